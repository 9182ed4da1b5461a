<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CAboutPage</name>
    <message>
        <source>%1 d %2</source>
        <comment>days, then hours:minutes:seconds</comment>
        <translation>%1 d %2</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>Shell version</source>
        <translation>Shell version</translation>
    </message>
    <message>
        <source>Qt version</source>
        <translation>Qt version</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>Version of this page</source>
        <translation>Version of this page</translation>
    </message>
    <message>
        <source>Running for</source>
        <translation>Running for</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memory</translation>
    </message>
    <message>
        <source>Memory free</source>
        <translation>Memory free</translation>
    </message>
    <message>
        <source>Memory available</source>
        <translation>Memory available</translation>
    </message>
    <message>
        <source>Address of %1</source>
        <comment>a network interface</comment>
        <translation>Address of %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>address</comment>
        <translation>none</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>value</comment>
        <translation>unknown</translation>
    </message>
    <message>
        <source>IPv4 address of %1</source>
        <comment>a network interface</comment>
        <translation>IPv4 address of %1</translation>
    </message>
    <message>
        <source>IPv6 address of %1</source>
        <comment>a network interface</comment>
        <translation>IPv6 address of %1</translation>
    </message>
    <message>
        <source>Network address</source>
        <translation>Network address</translation>
    </message>
</context>
<context>
    <name>CAboutPlugin</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
</context>
<context>
    <name>CAdvanceMenu</name>
    <message>
        <source>Fiber Scope</source>
        <translation>Fiber Scope</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Optical Power
Meter</source>
        <translation>Optical Power
Meter</translation>
    </message>
    <message>
        <source>WiFi InSSIDer</source>
        <translation>WiFi InSSIDer</translation>
    </message>
    <message>
        <source>Data Card</source>
        <translation>Data Card</translation>
    </message>
</context>
<context>
    <name>CBacklightGroup</name>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <comment>minutes</comment>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>brightness</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>On battery</translation>
    </message>
    <message>
        <source>On external power</source>
        <translation>On external power</translation>
    </message>
    <message>
        <source>Switch off the backlight after</source>
        <comment>a time that stands beside it</comment>
        <translation>Switch off the backlight after</translation>
    </message>
</context>
<context>
    <name>CBacklightPlugin</name>
    <message>
        <source>Backlight</source>
        <translation>Backlight</translation>
    </message>
</context>
<context>
    <name>CGlobalSettings</name>
    <message>
        <source>General Setting</source>
        <translation>General Setting</translation>
    </message>
    <message>
        <source>Storage Setting</source>
        <translation>Storage Setting</translation>
    </message>
    <message>
        <source>Save Setting</source>
        <translation>Save Setting</translation>
    </message>
    <message>
        <source>File Name Prefix</source>
        <translation>File Name Prefix</translation>
    </message>
    <message>
        <source>Maximum Number of Screenshots</source>
        <translation>Maximum Number of Screenshots</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinese</translation>
    </message>
    <message>
        <source>German</source>
        <translation>German</translation>
    </message>
    <message>
        <source>French</source>
        <translation>French</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>Hungarian</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russian</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metric</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Audible Alarm</source>
        <translation>Audible Alarm</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Show Password</source>
        <translation>Show Password</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>User Interface</source>
        <translation>User Interface</translation>
    </message>
    <message>
        <source>International</source>
        <translation>International</translation>
    </message>
    <message>
        <source>USA</source>
        <translation>USA</translation>
    </message>
    <message>
        <source>Clock Source</source>
        <translation>Clock Source</translation>
    </message>
    <message>
        <source>Atomic 1PPS</source>
        <translation>Atomic 1PPS</translation>
    </message>
    <message>
        <source>GPS 1PPS</source>
        <translation>GPS 1PPS</translation>
    </message>
    <message>
        <source>Atomic Clock 10M Hz</source>
        <translation>Atomic Clock 10M Hz</translation>
    </message>
    <message>
        <source>Profile Deleting</source>
        <translation>Profile Deleting</translation>
    </message>
    <message>
        <source>Auto Delete</source>
        <translation>Auto Delete</translation>
    </message>
    <message>
        <source>Prompt User</source>
        <translation>Prompt User</translation>
    </message>
    <message>
        <source>Profile Saving</source>
        <translation>Profile Saving</translation>
    </message>
    <message>
        <source>Auto Overwrite</source>
        <translation>Auto Overwrite</translation>
    </message>
    <message>
        <source>Result Saving</source>
        <translation>Result Saving</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Advance Saving</source>
        <translation>Advance Saving</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Lock/Save Screen</source>
        <translation>Lock/Save Screen</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Lock Screen</translation>
    </message>
    <message>
        <source>Save Screen</source>
        <translation>Save Screen</translation>
    </message>
    <message>
        <source>Screenshot Compression Level</source>
        <translation>Screenshot Compression Level</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Mid</translation>
    </message>
    <message>
        <source>No Compression</source>
        <translation>No Compression</translation>
    </message>
</context>
<context>
    <name>CIpToolsPage</name>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Run in background</source>
        <translation>Run in background</translation>
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
        <translation>Stop</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP Tools</translation>
    </message>
    <message>
        <source>Please enter an IP address or a host name.</source>
        <translation>Please enter an IP address or a host name.</translation>
    </message>
    <message>
        <source>Enter an address, then touch Ping or Trace.</source>
        <translation>Enter an address, then touch Ping or Trace.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Finished</translation>
    </message>
    <message>
        <source>Ping of %1 runs</source>
        <translation>Ping of %1 runs</translation>
    </message>
    <message>
        <source>Trace to %1 runs</source>
        <translation>Trace to %1 runs</translation>
    </message>
</context>
<context>
    <name>CIpToolsPlugin</name>
    <message>
        <source>IP Tools</source>
        <translation>IP Tools</translation>
    </message>
</context>
<context>
    <name>CKeyPadDialog</name>
    <message>
        <source>Value not allowed</source>
        <translation>Value not allowed</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Show password</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Utilities</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP Tools</translation>
    </message>
    <message>
        <source>Net Wiz</source>
        <translation>Net Wiz</translation>
    </message>
    <message>
        <source>WiFi Wiz</source>
        <translation>WiFi Wiz</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Backlight</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Saved</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>Scopex</source>
        <translation>Scopex</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Fiber Scope</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Signature Pad</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Optical Power Meter</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Screen</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Date &amp; Time</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Remote Access</translation>
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
        <translation>Capture</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>System Error</source>
        <translation>System Error</translation>
    </message>
    <message>
        <source>Error Code: %1</source>
        <translation>Error Code: %1</translation>
    </message>
    <message>
        <source>Please contact customer service!</source>
        <translation>Please contact customer service!</translation>
    </message>
    <message>
        <source>Error saving screen!</source>
        <translation>Error saving screen!</translation>
    </message>
    <message>
        <source>Number of saved screenshots already reach
or exceed maximum number allowed!</source>
        <translation>Number of saved screenshots already reach
or exceed maximum number allowed!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Cannot find USB drive attached to the unit!</source>
        <translation>Cannot find USB drive attached to the unit!</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Proceed with touch screen calibration?</source>
        <translation>Proceed with touch screen calibration?</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>The utility could not be started.</translation>
    </message>
    <message>
        <source>Load plugin</source>
        <translation>Load plugin</translation>
    </message>
    <message>
        <source>Loading test application, please wait...</source>
        <translation>Loading test application, please wait...</translation>
    </message>
    <message>
        <source>Releasing test application, please wait...</source>
        <translation>Releasing test application, please wait...</translation>
    </message>
    <message>
        <source>%1 is not available on this unit.</source>
        <translation>%1 is not available on this unit.</translation>
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
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>CParmLineEdit</name>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Enter a whole number from %1 to %2.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>limits of a number</comment>
        <translation>%1 to %2</translation>
    </message>
</context>
<context>
    <name>CPluginManager</name>
    <message>
        <source>IP Tools</source>
        <translation>IP Tools</translation>
    </message>
    <message>
        <source>Network Wizard</source>
        <translation>Network Wizard</translation>
    </message>
    <message>
        <source>WIFI Wizard</source>
        <translation>WIFI Wizard</translation>
    </message>
    <message>
        <source>Web Browser</source>
        <translation>Web Browser</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Backlight</translation>
    </message>
    <message>
        <source>Result Manager</source>
        <translation>Result Manager</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Fiber Scope</translation>
    </message>
    <message>
        <source>WIFI SA</source>
        <translation>WIFI SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Signature Pad</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Optical Power Meter</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Screen Calibration</source>
        <translation>Screen Calibration</translation>
    </message>
    <message>
        <source>Bluetooth Settings</source>
        <translation>Bluetooth Settings</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Power Settings</translation>
    </message>
    <message>
        <source>Date &amp; Time Settings</source>
        <translation>Date &amp; Time Settings</translation>
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
        <translation>Pcap Manager</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>Invalid plugin ID.</source>
        <translation>Invalid plugin ID.</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>The utility could not be started.</translation>
    </message>
</context>
<context>
    <name>CPowerMonitor</name>
    <message>
        <source>Power Information</source>
        <translation>Power Information</translation>
    </message>
    <message>
        <source>Power Source</source>
        <translation>Power Source</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>Battery Status</translation>
    </message>
    <message>
        <source>Fully Charged</source>
        <translation>Fully Charged</translation>
    </message>
    <message>
        <source>Remaining Capacity</source>
        <translation>Remaining Capacity</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Remaining Time</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>Discharging...</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>Charging...</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>hour</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>hours</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>mins</translation>
    </message>
</context>
<context>
    <name>CSettingMoreMenu</name>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>High Precision
Clock Source</translation>
    </message>
</context>
<context>
    <name>CStorageMonitor</name>
    <message>
        <source>Storage Information</source>
        <translation>Storage Information</translation>
    </message>
    <message>
        <source>Internal Storage</source>
        <translation>Internal Storage</translation>
    </message>
    <message>
        <source>USB Drive detected</source>
        <translation>USB Drive detected</translation>
    </message>
    <message>
        <source>Storage Information Loaded</source>
        <translation>Storage Information Loaded</translation>
    </message>
    <message>
        <source>1K blocks</source>
        <translation>1K blocks</translation>
    </message>
    <message>
        <source>4K blocks</source>
        <translation>4K blocks</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Used</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Available</translation>
    </message>
    <message>
        <source>Used Ratio</source>
        <translation>Used Ratio</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO USB Drive detected</source>
        <translation>NO USB Drive detected</translation>
    </message>
    <message>
        <source>USB Drive is in use</source>
        <translation>USB Drive is in use</translation>
    </message>
</context>
<context>
    <name>CSystemSettingsMenu</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Remote Access</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Backlight</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Date &amp; Time</translation>
    </message>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>High Precision
Clock Source</translation>
    </message>
</context>
<context>
    <name>QLibrary</name>
    <message>
        <source>&apos;%1&apos; is an invalid ELF object (%2)</source>
        <translation>&apos;%1&apos; is an invalid ELF object (%2)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object</source>
        <translation>&apos;%1&apos; is not an ELF object</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object (%2)</source>
        <translation>&apos;%1&apos; is not an ELF object (%2)</translation>
    </message>
    <message>
        <source>Cannot load library %1: %2</source>
        <translation>Cannot load library %1: %2</translation>
    </message>
    <message>
        <source>Failed to extract plugin meta data from &apos;%1&apos;</source>
        <translation>Failed to extract plugin meta data from &apos;%1&apos;</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a valid Qt plugin.</source>
        <translation>The file &apos;%1&apos; is not a valid Qt plugin.</translation>
    </message>
    <message>
        <source>The plugin &apos;%1&apos; uses incompatible Qt library. (%2.%3.%4) [%5]</source>
        <translation>The plugin &apos;%1&apos; uses incompatible Qt library. (%2.%3.%4) [%5]</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>The shared library was not found.</translation>
    </message>
</context>
<context>
    <name>QPluginLoader</name>
    <message>
        <source>The plugin was not loaded.</source>
        <translation>The plugin was not loaded.</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>The shared library was not found.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unknown error</translation>
    </message>
</context>
</TS>
