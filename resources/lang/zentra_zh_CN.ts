<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CAboutPage</name>
    <message>
        <source>%1 d %2</source>
        <comment>days, then hours:minutes:seconds</comment>
        <translation>%1 天 %2</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>Shell version</source>
        <translation>外壳版本</translation>
    </message>
    <message>
        <source>Qt version</source>
        <translation>Qt 版本</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>内核</translation>
    </message>
    <message>
        <source>Version of this page</source>
        <translation>本页版本</translation>
    </message>
    <message>
        <source>Running for</source>
        <translation>已运行</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Memory free</source>
        <translation>空闲内存</translation>
    </message>
    <message>
        <source>Memory available</source>
        <translation>可用内存</translation>
    </message>
    <message>
        <source>Address of %1</source>
        <comment>a network interface</comment>
        <translation>%1 的地址</translation>
    </message>
    <message>
        <source>none</source>
        <comment>address</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>value</comment>
        <translation>未知</translation>
    </message>
    <message>
        <source>IPv4 address of %1</source>
        <comment>a network interface</comment>
        <translation>%1 的 IPv4 地址</translation>
    </message>
    <message>
        <source>IPv6 address of %1</source>
        <comment>a network interface</comment>
        <translation>%1 的 IPv6 地址</translation>
    </message>
    <message>
        <source>Network address</source>
        <translation>网络地址</translation>
    </message>
</context>
<context>
    <name>CAboutPlugin</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
</context>
<context>
    <name>CAdvanceMenu</name>
    <message>
        <source>Fiber Scope</source>
        <translation>光纤显微镜</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi 频谱</translation>
    </message>
    <message>
        <source>Optical Power
Meter</source>
        <translation>光功率计</translation>
    </message>
    <message>
        <source>WiFi InSSIDer</source>
        <translation>WiFi InSSIDer</translation>
    </message>
    <message>
        <source>Data Card</source>
        <translation>数据卡</translation>
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
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>brightness</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>使用电池</translation>
    </message>
    <message>
        <source>On external power</source>
        <translation>使用外接电源</translation>
    </message>
    <message>
        <source>Switch off the backlight after</source>
        <comment>a time that stands beside it</comment>
        <translation>关闭背光前等待</translation>
    </message>
</context>
<context>
    <name>CBacklightPlugin</name>
    <message>
        <source>Backlight</source>
        <translation>背光</translation>
    </message>
</context>
<context>
    <name>CGlobalSettings</name>
    <message>
        <source>General Setting</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Storage Setting</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>Save Setting</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>File Name Prefix</source>
        <translation>文件名前缀</translation>
    </message>
    <message>
        <source>Maximum Number of Screenshots</source>
        <translation>截图最大数量</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
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
        <translation>单位</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>公制</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>英制</translation>
    </message>
    <message>
        <source>Audible Alarm</source>
        <translation>声音告警</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Show Password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>User Interface</source>
        <translation>用户界面</translation>
    </message>
    <message>
        <source>International</source>
        <translation>国际</translation>
    </message>
    <message>
        <source>USA</source>
        <translation>美国</translation>
    </message>
    <message>
        <source>Clock Source</source>
        <translation>时钟源</translation>
    </message>
    <message>
        <source>Atomic 1PPS</source>
        <translation>原子钟 1PPS</translation>
    </message>
    <message>
        <source>GPS 1PPS</source>
        <translation>GPS 1PPS</translation>
    </message>
    <message>
        <source>Atomic Clock 10M Hz</source>
        <translation>原子钟 10 MHz</translation>
    </message>
    <message>
        <source>Profile Deleting</source>
        <translation>删除配置文件</translation>
    </message>
    <message>
        <source>Auto Delete</source>
        <translation>自动删除</translation>
    </message>
    <message>
        <source>Prompt User</source>
        <translation>提示用户</translation>
    </message>
    <message>
        <source>Profile Saving</source>
        <translation>保存配置文件</translation>
    </message>
    <message>
        <source>Auto Overwrite</source>
        <translation>自动覆盖</translation>
    </message>
    <message>
        <source>Result Saving</source>
        <translation>保存结果</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Advance Saving</source>
        <translation>高级保存</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Lock/Save Screen</source>
        <translation>锁定/保存屏幕</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>锁定屏幕</translation>
    </message>
    <message>
        <source>Save Screen</source>
        <translation>保存屏幕</translation>
    </message>
    <message>
        <source>Screenshot Compression Level</source>
        <translation>截图压缩级别</translation>
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
        <translation>无</translation>
    </message>
</context>
<context>
    <name>CIpToolsPage</name>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Run in background</source>
        <translation>后台运行</translation>
    </message>
    <message>
        <source>Ping</source>
        <translation>Ping</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>路由跟踪</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP 工具</translation>
    </message>
    <message>
        <source>Please enter an IP address or a host name.</source>
        <translation>请输入 IP 地址或主机名。</translation>
    </message>
    <message>
        <source>Enter an address, then touch Ping or Trace.</source>
        <translation>输入地址，然后点按 Ping 或路由跟踪。</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Ping of %1 runs</source>
        <translation>正在 Ping %1</translation>
    </message>
    <message>
        <source>Trace to %1 runs</source>
        <translation>正在跟踪到 %1 的路由</translation>
    </message>
</context>
<context>
    <name>CIpToolsPlugin</name>
    <message>
        <source>IP Tools</source>
        <translation>IP 工具</translation>
    </message>
</context>
<context>
    <name>CKeyPadDialog</name>
    <message>
        <source>Value not allowed</source>
        <translation>数值不允许</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP 工具</translation>
    </message>
    <message>
        <source>Net Wiz</source>
        <translation>网络向导</translation>
    </message>
    <message>
        <source>WiFi Wiz</source>
        <translation>WiFi 向导</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>背光</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
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
        <translation>光纤显微镜</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi 频谱</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>签名板</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>光功率计</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>蓝牙</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>远程访问</translation>
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
        <translation>抓包</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>System Error</source>
        <translation>系统错误</translation>
    </message>
    <message>
        <source>Error Code: %1</source>
        <translation>错误代码：%1</translation>
    </message>
    <message>
        <source>Please contact customer service!</source>
        <translation>请联系客户服务！</translation>
    </message>
    <message>
        <source>Error saving screen!</source>
        <translation>保存屏幕出错！</translation>
    </message>
    <message>
        <source>Number of saved screenshots already reach
or exceed maximum number allowed!</source>
        <translation>已保存的截图数量已达到
或超过允许的最大值！</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Cannot find USB drive attached to the unit!</source>
        <translation>未找到连接到设备的 USB 驱动器！</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Proceed with touch screen calibration?</source>
        <translation>要进行触摸屏校准吗？</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>无法启动该实用程序。</translation>
    </message>
    <message>
        <source>Load plugin</source>
        <translation>加载插件</translation>
    </message>
    <message>
        <source>Loading test application, please wait...</source>
        <translation>正在加载测试应用，请稍候...</translation>
    </message>
    <message>
        <source>Releasing test application, please wait...</source>
        <translation>正在释放测试应用，请稍候...</translation>
    </message>
    <message>
        <source>%1 is not available on this unit.</source>
        <translation>本机不提供“%1”。</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CParmLineEdit</name>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>请输入 %1 到 %2 之间的整数。</translation>
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
        <translation>IP 工具</translation>
    </message>
    <message>
        <source>Network Wizard</source>
        <translation>网络向导</translation>
    </message>
    <message>
        <source>WIFI Wizard</source>
        <translation>WIFI 向导</translation>
    </message>
    <message>
        <source>Web Browser</source>
        <translation>网页浏览器</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>背光</translation>
    </message>
    <message>
        <source>Result Manager</source>
        <translation>结果管理器</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>光纤显微镜</translation>
    </message>
    <message>
        <source>WIFI SA</source>
        <translation>WIFI 频谱</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>签名板</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>光功率计</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Screen Calibration</source>
        <translation>屏幕校准</translation>
    </message>
    <message>
        <source>Bluetooth Settings</source>
        <translation>蓝牙设置</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>电源设置</translation>
    </message>
    <message>
        <source>Date &amp; Time Settings</source>
        <translation>日期和时间设置</translation>
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
        <translation>抓包管理器</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>Invalid plugin ID.</source>
        <translation>插件标识无效。</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>无法启动该实用程序。</translation>
    </message>
</context>
<context>
    <name>CPowerMonitor</name>
    <message>
        <source>Power Information</source>
        <translation>电源信息</translation>
    </message>
    <message>
        <source>Power Source</source>
        <translation>供电方式</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>电池状态</translation>
    </message>
    <message>
        <source>Fully Charged</source>
        <translation>已充满</translation>
    </message>
    <message>
        <source>Remaining Capacity</source>
        <translation>剩余电量</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>正在放电...</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>正在充电...</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>分钟</translation>
    </message>
</context>
<context>
    <name>CSettingMoreMenu</name>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>高精度
时钟源</translation>
    </message>
</context>
<context>
    <name>CStorageMonitor</name>
    <message>
        <source>Storage Information</source>
        <translation>存储信息</translation>
    </message>
    <message>
        <source>Internal Storage</source>
        <translation>内部存储</translation>
    </message>
    <message>
        <source>USB Drive detected</source>
        <translation>检测到 USB 驱动器</translation>
    </message>
    <message>
        <source>Storage Information Loaded</source>
        <translation>存储信息已加载</translation>
    </message>
    <message>
        <source>1K blocks</source>
        <translation>1K 块</translation>
    </message>
    <message>
        <source>4K blocks</source>
        <translation>4K 块</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已用</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>Used Ratio</source>
        <translation>使用率</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>NO USB Drive detected</source>
        <translation>未检测到 USB 驱动器</translation>
    </message>
    <message>
        <source>USB Drive is in use</source>
        <translation>USB 驱动器正在使用</translation>
    </message>
</context>
<context>
    <name>CSystemSettingsMenu</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>远程访问</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>背光</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>高精度
时钟源</translation>
    </message>
</context>
<context>
    <name>QLibrary</name>
    <message>
        <source>&apos;%1&apos; is an invalid ELF object (%2)</source>
        <translation>“%1”是无效的 ELF 对象（%2）</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object</source>
        <translation>“%1”不是 ELF 对象</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object (%2)</source>
        <translation>“%1”不是 ELF 对象（%2）</translation>
    </message>
    <message>
        <source>Cannot load library %1: %2</source>
        <translation>无法加载库 %1：%2</translation>
    </message>
    <message>
        <source>Failed to extract plugin meta data from &apos;%1&apos;</source>
        <translation>“%1”中没有插件元数据</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a valid Qt plugin.</source>
        <translation>文件“%1”不是有效的 Qt 插件。</translation>
    </message>
    <message>
        <source>The plugin &apos;%1&apos; uses incompatible Qt library. (%2.%3.%4) [%5]</source>
        <translation>插件“%1”使用了不兼容的 Qt 库。（%2.%3.%4）[%5]</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>未找到共享库。</translation>
    </message>
</context>
<context>
    <name>QPluginLoader</name>
    <message>
        <source>The plugin was not loaded.</source>
        <translation>插件未加载。</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>未找到共享库。</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
</context>
</TS>
