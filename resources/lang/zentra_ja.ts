<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CAboutPage</name>
    <message>
        <source>%1 d %2</source>
        <comment>days, then hours:minutes:seconds</comment>
        <translation>%1 日 %2</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>Shell version</source>
        <translation>シェルのバージョン</translation>
    </message>
    <message>
        <source>Qt version</source>
        <translation>Qt のバージョン</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>カーネル</translation>
    </message>
    <message>
        <source>Version of this page</source>
        <translation>このページのバージョン</translation>
    </message>
    <message>
        <source>Running for</source>
        <translation>稼働時間</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Memory free</source>
        <translation>空きメモリ</translation>
    </message>
    <message>
        <source>Memory available</source>
        <translation>利用可能メモリ</translation>
    </message>
    <message>
        <source>Address of %1</source>
        <comment>a network interface</comment>
        <translation>%1 のアドレス</translation>
    </message>
    <message>
        <source>none</source>
        <comment>address</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>value</comment>
        <translation>不明</translation>
    </message>
    <message>
        <source>IPv4 address of %1</source>
        <comment>a network interface</comment>
        <translation>%1 の IPv4 アドレス</translation>
    </message>
    <message>
        <source>IPv6 address of %1</source>
        <comment>a network interface</comment>
        <translation>%1 の IPv6 アドレス</translation>
    </message>
    <message>
        <source>Network address</source>
        <translation>ネットワークアドレス</translation>
    </message>
</context>
<context>
    <name>CAboutPlugin</name>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
</context>
<context>
    <name>CAdvanceMenu</name>
    <message>
        <source>Fiber Scope</source>
        <translation>ファイバスコープ</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Optical Power
Meter</source>
        <translation>光パワー
メータ</translation>
    </message>
    <message>
        <source>WiFi InSSIDer</source>
        <translation>WiFi InSSIDer</translation>
    </message>
    <message>
        <source>Data Card</source>
        <translation>データカード</translation>
    </message>
</context>
<context>
    <name>CBacklightGroup</name>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <comment>minutes</comment>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>brightness</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>バッテリ使用時</translation>
    </message>
    <message>
        <source>On external power</source>
        <translation>外部電源使用時</translation>
    </message>
    <message>
        <source>Switch off the backlight after</source>
        <comment>a time that stands beside it</comment>
        <translation>バックライトを消すまで</translation>
    </message>
</context>
<context>
    <name>CBacklightPlugin</name>
    <message>
        <source>Backlight</source>
        <translation>照明</translation>
    </message>
</context>
<context>
    <name>CGlobalSettings</name>
    <message>
        <source>General Setting</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Storage Setting</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save Setting</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>File Name Prefix</source>
        <translation>ファイル名の接頭辞</translation>
    </message>
    <message>
        <source>Maximum Number of Screenshots</source>
        <translation>スクリーンショットの最大数</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>Magyar</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>メートル法</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>ヤード・ポンド法</translation>
    </message>
    <message>
        <source>Audible Alarm</source>
        <translation>アラーム音</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Show Password</source>
        <translation>パスワードの表示</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>User Interface</source>
        <translation>ユーザインタフェース</translation>
    </message>
    <message>
        <source>International</source>
        <translation>国際</translation>
    </message>
    <message>
        <source>USA</source>
        <translation>米国</translation>
    </message>
    <message>
        <source>Clock Source</source>
        <translation>クロック源</translation>
    </message>
    <message>
        <source>Atomic 1PPS</source>
        <translation>原子時計 1PPS</translation>
    </message>
    <message>
        <source>GPS 1PPS</source>
        <translation>GPS 1PPS</translation>
    </message>
    <message>
        <source>Atomic Clock 10M Hz</source>
        <translation>原子時計 10 MHz</translation>
    </message>
    <message>
        <source>Profile Deleting</source>
        <translation>プロファイルの削除</translation>
    </message>
    <message>
        <source>Auto Delete</source>
        <translation>自動削除</translation>
    </message>
    <message>
        <source>Prompt User</source>
        <translation>確認する</translation>
    </message>
    <message>
        <source>Profile Saving</source>
        <translation>プロファイルの保存</translation>
    </message>
    <message>
        <source>Auto Overwrite</source>
        <translation>自動上書き</translation>
    </message>
    <message>
        <source>Result Saving</source>
        <translation>結果の保存</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Advance Saving</source>
        <translation>詳細保存</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Lock/Save Screen</source>
        <translation>画面ロック/保存</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>画面ロック</translation>
    </message>
    <message>
        <source>Save Screen</source>
        <translation>画面を保存</translation>
    </message>
    <message>
        <source>Screenshot Compression Level</source>
        <translation>スクリーンショットの圧縮</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>中</translation>
    </message>
    <message>
        <source>No Compression</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>CIpToolsPage</name>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Run in background</source>
        <translation>バックグラウンド</translation>
    </message>
    <message>
        <source>Ping</source>
        <translation>Ping</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP ツール</translation>
    </message>
    <message>
        <source>Please enter an IP address or a host name.</source>
        <translation>IP アドレスまたはホスト名を入力してください。</translation>
    </message>
    <message>
        <source>Enter an address, then touch Ping or Trace.</source>
        <translation>アドレスを入力し、Ping か Trace に触れてください。</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Ping of %1 runs</source>
        <translation>%1 へ Ping 実行中</translation>
    </message>
    <message>
        <source>Trace to %1 runs</source>
        <translation>%1 へ Trace 実行中</translation>
    </message>
</context>
<context>
    <name>CIpToolsPlugin</name>
    <message>
        <source>IP Tools</source>
        <translation>IP ツール</translation>
    </message>
</context>
<context>
    <name>CKeyPadDialog</name>
    <message>
        <source>Value not allowed</source>
        <translation>許可されない値</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>パスワードを表示</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP ツール</translation>
    </message>
    <message>
        <source>Net Wiz</source>
        <translation>ネット設定</translation>
    </message>
    <message>
        <source>WiFi Wiz</source>
        <translation>WiFi 設定</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>ブラウザ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>照明</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Scopex</source>
        <translation>Scopex</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>ファイバスコープ</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>署名パッド</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>光パワーメータ</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>リモートアクセス</translation>
    </message>
    <message>
        <source>Ostrel</source>
        <translation>Ostrel</translation>
    </message>
    <message>
        <source>Harbor</source>
        <translation>Harbor</translation>
    </message>
    <message>
        <source>WiFi InSSIDer</source>
        <translation>WiFi InSSIDer</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>キャプチャ</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>System Error</source>
        <translation>システムエラー</translation>
    </message>
    <message>
        <source>Error Code: %1</source>
        <translation>エラーコード: %1</translation>
    </message>
    <message>
        <source>Please contact customer service!</source>
        <translation>サービス窓口に連絡してください。</translation>
    </message>
    <message>
        <source>Error saving screen!</source>
        <translation>画面の保存エラー</translation>
    </message>
    <message>
        <source>Number of saved screenshots already reach
or exceed maximum number allowed!</source>
        <translation>保存された画面の数が
上限に達しています。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Cannot find USB drive attached to the unit!</source>
        <translation>USB ドライブが見つかりません。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Proceed with touch screen calibration?</source>
        <translation>タッチ画面を調整しますか？</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>ユーティリティを開始できませんでした。</translation>
    </message>
    <message>
        <source>Load plugin</source>
        <translation>プラグインの読み込み</translation>
    </message>
    <message>
        <source>Loading test application, please wait...</source>
        <translation>テストアプリを読み込み中です。お待ちください...</translation>
    </message>
    <message>
        <source>Releasing test application, please wait...</source>
        <translation>テストアプリを終了中です。お待ちください...</translation>
    </message>
    <message>
        <source>%1 is not available on this unit.</source>
        <translation>この本体では %1 を利用できません。</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>CParmLineEdit</name>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>%1 から %2 までの整数を入力してください。</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>limits of a number</comment>
        <translation>%1～%2</translation>
    </message>
</context>
<context>
    <name>CPluginManager</name>
    <message>
        <source>IP Tools</source>
        <translation>IP ツール</translation>
    </message>
    <message>
        <source>Network Wizard</source>
        <translation>ネットワークウィザード</translation>
    </message>
    <message>
        <source>WIFI Wizard</source>
        <translation>WIFI ウィザード</translation>
    </message>
    <message>
        <source>Web Browser</source>
        <translation>ウェブブラウザ</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>照明</translation>
    </message>
    <message>
        <source>Result Manager</source>
        <translation>結果マネージャ</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>ファイバスコープ</translation>
    </message>
    <message>
        <source>WIFI SA</source>
        <translation>WIFI SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>署名パッド</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>光パワーメータ</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Screen Calibration</source>
        <translation>画面の調整</translation>
    </message>
    <message>
        <source>Bluetooth Settings</source>
        <translation>Bluetooth 設定</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>電源設定</translation>
    </message>
    <message>
        <source>Date &amp; Time Settings</source>
        <translation>日付と時刻の設定</translation>
    </message>
    <message>
        <source>ostrel</source>
        <translation>ostrel</translation>
    </message>
    <message>
        <source>Harbor</source>
        <translation>Harbor</translation>
    </message>
    <message>
        <source>WIFI inSSIDer</source>
        <translation>WIFI inSSIDer</translation>
    </message>
    <message>
        <source>Pcap Manager</source>
        <translation>Pcap マネージャ</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>Invalid plugin ID.</source>
        <translation>プラグイン ID が無効です。</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>ユーティリティを開始できませんでした。</translation>
    </message>
</context>
<context>
    <name>CPowerMonitor</name>
    <message>
        <source>Power Information</source>
        <translation>電源情報</translation>
    </message>
    <message>
        <source>Power Source</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>バッテリ状態</translation>
    </message>
    <message>
        <source>Fully Charged</source>
        <translation>充電完了</translation>
    </message>
    <message>
        <source>Remaining Capacity</source>
        <translation>残容量</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>残り時間</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>放電中...</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>充電中...</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>分</translation>
    </message>
</context>
<context>
    <name>CSettingMoreMenu</name>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>高精度
クロック源</translation>
    </message>
</context>
<context>
    <name>CStorageMonitor</name>
    <message>
        <source>Storage Information</source>
        <translation>ストレージ情報</translation>
    </message>
    <message>
        <source>Internal Storage</source>
        <translation>内部ストレージ</translation>
    </message>
    <message>
        <source>USB Drive detected</source>
        <translation>USB ドライブを検出</translation>
    </message>
    <message>
        <source>Storage Information Loaded</source>
        <translation>ストレージ情報を読み込みました</translation>
    </message>
    <message>
        <source>1K blocks</source>
        <translation>1K ブロック</translation>
    </message>
    <message>
        <source>4K blocks</source>
        <translation>4K ブロック</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用済み</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>利用可能</translation>
    </message>
    <message>
        <source>Used Ratio</source>
        <translation>使用率</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO USB Drive detected</source>
        <translation>USB ドライブがありません</translation>
    </message>
    <message>
        <source>USB Drive is in use</source>
        <translation>USB ドライブ使用中</translation>
    </message>
</context>
<context>
    <name>CSystemSettingsMenu</name>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>リモートアクセス</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>照明</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>高精度
クロック源</translation>
    </message>
</context>
<context>
    <name>QLibrary</name>
    <message>
        <source>&apos;%1&apos; is an invalid ELF object (%2)</source>
        <translation>「%1」は無効な ELF オブジェクトです (%2)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object</source>
        <translation>「%1」は ELF オブジェクトではありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object (%2)</source>
        <translation>「%1」は ELF オブジェクトではありません (%2)</translation>
    </message>
    <message>
        <source>Cannot load library %1: %2</source>
        <translation>ライブラリ %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>Failed to extract plugin meta data from &apos;%1&apos;</source>
        <translation>「%1」にプラグインのメタデータがありません</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a valid Qt plugin.</source>
        <translation>「%1」は有効な Qt プラグインではありません。</translation>
    </message>
    <message>
        <source>The plugin &apos;%1&apos; uses incompatible Qt library. (%2.%3.%4) [%5]</source>
        <translation>プラグイン「%1」は互換性のない Qt ライブラリを使用しています。(%2.%3.%4) [%5]</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>ライブラリが見つかりません。</translation>
    </message>
</context>
<context>
    <name>QPluginLoader</name>
    <message>
        <source>The plugin was not loaded.</source>
        <translation>プラグインは読み込まれていません。</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>ライブラリが見つかりません。</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
    </message>
</context>
</TS>
