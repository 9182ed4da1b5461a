<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>CAboutPage</name>
    <message>
        <source>%1 d %2</source>
        <comment>days, then hours:minutes:seconds</comment>
        <translation>%1 д %2</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 МиБ</translation>
    </message>
    <message>
        <source>Shell version</source>
        <translation>Версия оболочки</translation>
    </message>
    <message>
        <source>Qt version</source>
        <translation>Версия Qt</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Ядро</translation>
    </message>
    <message>
        <source>Version of this page</source>
        <translation>Версия этой страницы</translation>
    </message>
    <message>
        <source>Running for</source>
        <translation>Время работы</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>Memory free</source>
        <translation>Свободная память</translation>
    </message>
    <message>
        <source>Memory available</source>
        <translation>Доступная память</translation>
    </message>
    <message>
        <source>Address of %1</source>
        <comment>a network interface</comment>
        <translation>Адрес %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>address</comment>
        <translation>нет</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>value</comment>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>IPv4 address of %1</source>
        <comment>a network interface</comment>
        <translation>IPv4-адрес %1</translation>
    </message>
    <message>
        <source>IPv6 address of %1</source>
        <comment>a network interface</comment>
        <translation>IPv6-адрес %1</translation>
    </message>
    <message>
        <source>Network address</source>
        <translation>Сетевой адрес</translation>
    </message>
</context>
<context>
    <name>CAboutPlugin</name>
    <message>
        <source>About</source>
        <translation>О приборе</translation>
    </message>
</context>
<context>
    <name>CAdvanceMenu</name>
    <message>
        <source>Fiber Scope</source>
        <translation>Микроскоп</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Optical Power
Meter</source>
        <translation>Измеритель
опт. мощности</translation>
    </message>
    <message>
        <source>WiFi InSSIDer</source>
        <translation>WiFi InSSIDer</translation>
    </message>
    <message>
        <source>Data Card</source>
        <translation>Карта данных</translation>
    </message>
</context>
<context>
    <name>CBacklightGroup</name>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>%1 min</source>
        <comment>minutes</comment>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>brightness</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>От батареи</translation>
    </message>
    <message>
        <source>On external power</source>
        <translation>От внешнего питания</translation>
    </message>
    <message>
        <source>Switch off the backlight after</source>
        <comment>a time that stands beside it</comment>
        <translation>Выключать подсветку через</translation>
    </message>
</context>
<context>
    <name>CBacklightPlugin</name>
    <message>
        <source>Backlight</source>
        <translation>Подсветка</translation>
    </message>
</context>
<context>
    <name>CGlobalSettings</name>
    <message>
        <source>General Setting</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Storage Setting</source>
        <translation>Хранение</translation>
    </message>
    <message>
        <source>Save Setting</source>
        <translation>Снимки экрана</translation>
    </message>
    <message>
        <source>File Name Prefix</source>
        <translation>Префикс имён файлов</translation>
    </message>
    <message>
        <source>Maximum Number of Screenshots</source>
        <translation>Максимальное число снимков</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
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
        <translation>Единицы измерения</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Метрические</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Британские</translation>
    </message>
    <message>
        <source>Audible Alarm</source>
        <translation>Звуковой сигнал</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Show Password</source>
        <translation>Показывать пароли</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>User Interface</source>
        <translation>Интерфейс</translation>
    </message>
    <message>
        <source>International</source>
        <translation>Международный</translation>
    </message>
    <message>
        <source>USA</source>
        <translation>США</translation>
    </message>
    <message>
        <source>Clock Source</source>
        <translation>Источник синхронизации</translation>
    </message>
    <message>
        <source>Atomic 1PPS</source>
        <translation>Атомные часы 1PPS</translation>
    </message>
    <message>
        <source>GPS 1PPS</source>
        <translation>GPS 1PPS</translation>
    </message>
    <message>
        <source>Atomic Clock 10M Hz</source>
        <translation>Атомные часы 10 МГц</translation>
    </message>
    <message>
        <source>Profile Deleting</source>
        <translation>Удаление профилей</translation>
    </message>
    <message>
        <source>Auto Delete</source>
        <translation>Удалять автоматически</translation>
    </message>
    <message>
        <source>Prompt User</source>
        <translation>Спрашивать</translation>
    </message>
    <message>
        <source>Profile Saving</source>
        <translation>Сохранение профилей</translation>
    </message>
    <message>
        <source>Auto Overwrite</source>
        <translation>Перезаписывать автоматически</translation>
    </message>
    <message>
        <source>Result Saving</source>
        <translation>Сохранение результатов</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <source>Advance Saving</source>
        <translation>Расширенное сохранение</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Lock/Save Screen</source>
        <translation>Блокировка/снимок экрана</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Блокировка экрана</translation>
    </message>
    <message>
        <source>Save Screen</source>
        <translation>Снимок экрана</translation>
    </message>
    <message>
        <source>Screenshot Compression Level</source>
        <translation>Сжатие снимков экрана</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Высокое</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Среднее</translation>
    </message>
    <message>
        <source>No Compression</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>CIpToolsPage</name>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Run in background</source>
        <translation>В фоне</translation>
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
        <translation>Стоп</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP-утилиты</translation>
    </message>
    <message>
        <source>Please enter an IP address or a host name.</source>
        <translation>Введите IP-адрес или имя узла.</translation>
    </message>
    <message>
        <source>Enter an address, then touch Ping or Trace.</source>
        <translation>Введите адрес, затем коснитесь Ping или Trace.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Ping of %1 runs</source>
        <translation>Выполняется ping %1</translation>
    </message>
    <message>
        <source>Trace to %1 runs</source>
        <translation>Трассировка до %1</translation>
    </message>
</context>
<context>
    <name>CIpToolsPlugin</name>
    <message>
        <source>IP Tools</source>
        <translation>IP-утилиты</translation>
    </message>
</context>
<context>
    <name>CKeyPadDialog</name>
    <message>
        <source>Value not allowed</source>
        <translation>Недопустимое значение</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Показать пароль</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Средства</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP-утилиты</translation>
    </message>
    <message>
        <source>Net Wiz</source>
        <translation>Мастер сети</translation>
    </message>
    <message>
        <source>WiFi Wiz</source>
        <translation>Мастер WiFi</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Браузер</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Scopex</source>
        <translation>Scopex</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Микроскоп</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Подпись</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Изм. мощности</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О приборе</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Питание</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Удал. доступ</translation>
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
        <translation>Захват</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>System Error</source>
        <translation>Системная ошибка</translation>
    </message>
    <message>
        <source>Error Code: %1</source>
        <translation>Код ошибки: %1</translation>
    </message>
    <message>
        <source>Please contact customer service!</source>
        <translation>Обратитесь в службу поддержки!</translation>
    </message>
    <message>
        <source>Error saving screen!</source>
        <translation>Ошибка сохранения экрана!</translation>
    </message>
    <message>
        <source>Number of saved screenshots already reach
or exceed maximum number allowed!</source>
        <translation>Число сохранённых снимков достигло
или превысило допустимое!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Cannot find USB drive attached to the unit!</source>
        <translation>USB-накопитель не подключён к прибору!</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Proceed with touch screen calibration?</source>
        <translation>Выполнить калибровку сенсорного экрана?</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>Не удалось запустить утилиту.</translation>
    </message>
    <message>
        <source>Load plugin</source>
        <translation>Загрузка модуля</translation>
    </message>
    <message>
        <source>Loading test application, please wait...</source>
        <translation>Загрузка тестового приложения, подождите...</translation>
    </message>
    <message>
        <source>Releasing test application, please wait...</source>
        <translation>Завершение тестового приложения, подождите...</translation>
    </message>
    <message>
        <source>%1 is not available on this unit.</source>
        <translation>«%1» недоступно на этом приборе.</translation>
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
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>CParmLineEdit</name>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Введите целое число от %1 до %2.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>limits of a number</comment>
        <translation>от %1 до %2</translation>
    </message>
</context>
<context>
    <name>CPluginManager</name>
    <message>
        <source>IP Tools</source>
        <translation>IP-утилиты</translation>
    </message>
    <message>
        <source>Network Wizard</source>
        <translation>Мастер сети</translation>
    </message>
    <message>
        <source>WIFI Wizard</source>
        <translation>Мастер WIFI</translation>
    </message>
    <message>
        <source>Web Browser</source>
        <translation>Веб-браузер</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>Result Manager</source>
        <translation>Диспетчер результатов</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Микроскоп</translation>
    </message>
    <message>
        <source>WIFI SA</source>
        <translation>WIFI SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Подпись</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Изм. мощности</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О приборе</translation>
    </message>
    <message>
        <source>Screen Calibration</source>
        <translation>Калибровка экрана</translation>
    </message>
    <message>
        <source>Bluetooth Settings</source>
        <translation>Настройки Bluetooth</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Настройки питания</translation>
    </message>
    <message>
        <source>Date &amp; Time Settings</source>
        <translation>Настройка даты и времени</translation>
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
        <translation>Диспетчер Pcap</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>Invalid plugin ID.</source>
        <translation>Недопустимый идентификатор модуля.</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>Не удалось запустить утилиту.</translation>
    </message>
</context>
<context>
    <name>CPowerMonitor</name>
    <message>
        <source>Power Information</source>
        <translation>Сведения о питании</translation>
    </message>
    <message>
        <source>Power Source</source>
        <translation>Источник питания</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>Состояние батареи</translation>
    </message>
    <message>
        <source>Fully Charged</source>
        <translation>Заряжена</translation>
    </message>
    <message>
        <source>Remaining Capacity</source>
        <translation>Остаток заряда</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Оставшееся время</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>Разряжается...</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>Заряжается...</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>ч</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>ч</translation>
    </message>
    <message>
        <source>min</source>
        <translation>мин</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>мин</translation>
    </message>
</context>
<context>
    <name>CSettingMoreMenu</name>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>Точный источник
тактов</translation>
    </message>
</context>
<context>
    <name>CStorageMonitor</name>
    <message>
        <source>Storage Information</source>
        <translation>Сведения о памяти</translation>
    </message>
    <message>
        <source>Internal Storage</source>
        <translation>Внутренняя память</translation>
    </message>
    <message>
        <source>USB Drive detected</source>
        <translation>USB-накопитель обнаружен</translation>
    </message>
    <message>
        <source>Storage Information Loaded</source>
        <translation>Сведения загружены</translation>
    </message>
    <message>
        <source>1K blocks</source>
        <translation>Блоки 1K</translation>
    </message>
    <message>
        <source>4K blocks</source>
        <translation>Блоки 4K</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Занято</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Доступно</translation>
    </message>
    <message>
        <source>Used Ratio</source>
        <translation>Занято, %</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO USB Drive detected</source>
        <translation>USB-накопитель не обнаружен</translation>
    </message>
    <message>
        <source>USB Drive is in use</source>
        <translation>USB-накопитель используется</translation>
    </message>
</context>
<context>
    <name>CSystemSettingsMenu</name>
    <message>
        <source>About</source>
        <translation>О приборе</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Удал. доступ</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Питание</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>Точный источник
тактов</translation>
    </message>
</context>
<context>
    <name>QLibrary</name>
    <message>
        <source>&apos;%1&apos; is an invalid ELF object (%2)</source>
        <translation>«%1» — недопустимый объект ELF (%2)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object</source>
        <translation>«%1» не является объектом ELF</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object (%2)</source>
        <translation>«%1» не является объектом ELF (%2)</translation>
    </message>
    <message>
        <source>Cannot load library %1: %2</source>
        <translation>Не удалось загрузить библиотеку %1: %2</translation>
    </message>
    <message>
        <source>Failed to extract plugin meta data from &apos;%1&apos;</source>
        <translation>В «%1» не найдены метаданные плагина</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a valid Qt plugin.</source>
        <translation>Файл «%1» не является плагином Qt.</translation>
    </message>
    <message>
        <source>The plugin &apos;%1&apos; uses incompatible Qt library. (%2.%3.%4) [%5]</source>
        <translation>Плагин «%1» использует несовместимую библиотеку Qt. (%2.%3.%4) [%5]</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>Библиотека не найдена.</translation>
    </message>
</context>
<context>
    <name>QPluginLoader</name>
    <message>
        <source>The plugin was not loaded.</source>
        <translation>Плагин не загружен.</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>Библиотека не найдена.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Неизвестная ошибка</translation>
    </message>
</context>
</TS>
