<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>Shell-Version</translation>
    </message>
    <message>
        <source>Qt version</source>
        <translation>Qt-Version</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>Version of this page</source>
        <translation>Version dieser Seite</translation>
    </message>
    <message>
        <source>Running for</source>
        <translation>Läuft seit</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Memory free</source>
        <translation>Speicher frei</translation>
    </message>
    <message>
        <source>Memory available</source>
        <translation>Speicher verfügbar</translation>
    </message>
    <message>
        <source>Address of %1</source>
        <comment>a network interface</comment>
        <translation>Adresse von %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>address</comment>
        <translation>keine</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>value</comment>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>IPv4 address of %1</source>
        <comment>a network interface</comment>
        <translation>IPv4-Adresse von %1</translation>
    </message>
    <message>
        <source>IPv6 address of %1</source>
        <comment>a network interface</comment>
        <translation>IPv6-Adresse von %1</translation>
    </message>
    <message>
        <source>Network address</source>
        <translation>Netzwerkadresse</translation>
    </message>
</context>
<context>
    <name>CAboutPlugin</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>CAdvanceMenu</name>
    <message>
        <source>Fiber Scope</source>
        <translation>Fasermikroskop</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Optical Power
Meter</source>
        <translation>Optischer
Pegelmesser</translation>
    </message>
    <message>
        <source>WiFi InSSIDer</source>
        <translation>WiFi InSSIDer</translation>
    </message>
    <message>
        <source>Data Card</source>
        <translation>Datenkarte</translation>
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
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>brightness</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Im Akkubetrieb</translation>
    </message>
    <message>
        <source>On external power</source>
        <translation>Am Netzteil</translation>
    </message>
    <message>
        <source>Switch off the backlight after</source>
        <comment>a time that stands beside it</comment>
        <translation>Beleuchtung ausschalten nach</translation>
    </message>
</context>
<context>
    <name>CBacklightPlugin</name>
    <message>
        <source>Backlight</source>
        <translation>Licht</translation>
    </message>
</context>
<context>
    <name>CGlobalSettings</name>
    <message>
        <source>General Setting</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Storage Setting</source>
        <translation>Speicherung</translation>
    </message>
    <message>
        <source>Save Setting</source>
        <translation>Screenshots</translation>
    </message>
    <message>
        <source>File Name Prefix</source>
        <translation>Präfix der Dateinamen</translation>
    </message>
    <message>
        <source>Maximum Number of Screenshots</source>
        <translation>Höchstzahl der Screenshots</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
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
        <translation>Maßeinheiten</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Angloamerikanisch</translation>
    </message>
    <message>
        <source>Audible Alarm</source>
        <translation>Akustischer Alarm</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Show Password</source>
        <translation>Passwörter anzeigen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>User Interface</source>
        <translation>Bedienoberfläche</translation>
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
        <translation>Taktquelle</translation>
    </message>
    <message>
        <source>Atomic 1PPS</source>
        <translation>Atomuhr 1 PPS</translation>
    </message>
    <message>
        <source>GPS 1PPS</source>
        <translation>GPS 1 PPS</translation>
    </message>
    <message>
        <source>Atomic Clock 10M Hz</source>
        <translation>Atomuhr 10 MHz</translation>
    </message>
    <message>
        <source>Profile Deleting</source>
        <translation>Profile löschen</translation>
    </message>
    <message>
        <source>Auto Delete</source>
        <translation>Automatisch löschen</translation>
    </message>
    <message>
        <source>Prompt User</source>
        <translation>Nachfragen</translation>
    </message>
    <message>
        <source>Profile Saving</source>
        <translation>Profile speichern</translation>
    </message>
    <message>
        <source>Auto Overwrite</source>
        <translation>Automatisch überschreiben</translation>
    </message>
    <message>
        <source>Result Saving</source>
        <translation>Ergebnisse speichern</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Advance Saving</source>
        <translation>Erweitertes Speichern</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Lock/Save Screen</source>
        <translation>Bildschirm sperren/Screenshot</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Bildschirm sperren</translation>
    </message>
    <message>
        <source>Save Screen</source>
        <translation>Screenshot speichern</translation>
    </message>
    <message>
        <source>Screenshot Compression Level</source>
        <translation>Komprimierung der Screenshots</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>No Compression</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>CIpToolsPage</name>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Run in background</source>
        <translation>Im Hintergrund</translation>
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
        <translation>Stopp</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP-Tools</translation>
    </message>
    <message>
        <source>Please enter an IP address or a host name.</source>
        <translation>Bitte eine IP-Adresse oder einen Hostnamen eingeben.</translation>
    </message>
    <message>
        <source>Enter an address, then touch Ping or Trace.</source>
        <translation>Adresse eingeben, dann Ping oder Trace berühren.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Ping of %1 runs</source>
        <translation>Ping von %1 läuft</translation>
    </message>
    <message>
        <source>Trace to %1 runs</source>
        <translation>Trace zu %1 läuft</translation>
    </message>
</context>
<context>
    <name>CIpToolsPlugin</name>
    <message>
        <source>IP Tools</source>
        <translation>IP-Tools</translation>
    </message>
</context>
<context>
    <name>CKeyPadDialog</name>
    <message>
        <source>Value not allowed</source>
        <translation>Wert nicht zulässig</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Passwort zeigen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP-Tools</translation>
    </message>
    <message>
        <source>Net Wiz</source>
        <translation>Netz-Assist.</translation>
    </message>
    <message>
        <source>WiFi Wiz</source>
        <translation>WiFi-Assist.</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Scopex</source>
        <translation>Scopex</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Fasermikroskop</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Unterschrift</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Opt. Pegelmesser</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Datum &amp; Zeit</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Fernzugriff</translation>
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
        <translation>Mitschnitt</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>System Error</source>
        <translation>Systemfehler</translation>
    </message>
    <message>
        <source>Error Code: %1</source>
        <translation>Fehlercode: %1</translation>
    </message>
    <message>
        <source>Please contact customer service!</source>
        <translation>Bitte den Kundendienst rufen!</translation>
    </message>
    <message>
        <source>Error saving screen!</source>
        <translation>Fehler beim Speichern des Bildschirms!</translation>
    </message>
    <message>
        <source>Number of saved screenshots already reach
or exceed maximum number allowed!</source>
        <translation>Die zulässige Anzahl gespeicherter Bilder
ist erreicht oder überschritten!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Cannot find USB drive attached to the unit!</source>
        <translation>Kein USB-Laufwerk am Gerät gefunden!</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Proceed with touch screen calibration?</source>
        <translation>Touchscreen jetzt kalibrieren?</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>Das Programm konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Load plugin</source>
        <translation>Plug-in laden</translation>
    </message>
    <message>
        <source>Loading test application, please wait...</source>
        <translation>Testanwendung wird geladen, bitte warten...</translation>
    </message>
    <message>
        <source>Releasing test application, please wait...</source>
        <translation>Testanwendung wird beendet, bitte warten...</translation>
    </message>
    <message>
        <source>%1 is not available on this unit.</source>
        <translation>%1 ist auf diesem Gerät nicht verfügbar.</translation>
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
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CParmLineEdit</name>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Bitte eine ganze Zahl von %1 bis %2 eingeben.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>limits of a number</comment>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>CPluginManager</name>
    <message>
        <source>IP Tools</source>
        <translation>IP-Tools</translation>
    </message>
    <message>
        <source>Network Wizard</source>
        <translation>Netzwerk-Assistent</translation>
    </message>
    <message>
        <source>WIFI Wizard</source>
        <translation>WIFI-Assistent</translation>
    </message>
    <message>
        <source>Web Browser</source>
        <translation>Webbrowser</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Result Manager</source>
        <translation>Ergebnisverwaltung</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Fasermikroskop</translation>
    </message>
    <message>
        <source>WIFI SA</source>
        <translation>WIFI SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Unterschrift</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Opt. Pegelmesser</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Screen Calibration</source>
        <translation>Bildschirmkalibrierung</translation>
    </message>
    <message>
        <source>Bluetooth Settings</source>
        <translation>Bluetooth-Einstellungen</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Energieeinstellungen</translation>
    </message>
    <message>
        <source>Date &amp; Time Settings</source>
        <translation>Datum und Zeit</translation>
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
        <translation>Pcap-Verwaltung</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>Invalid plugin ID.</source>
        <translation>Ungültige Plug-in-Kennung.</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>Das Programm konnte nicht gestartet werden.</translation>
    </message>
</context>
<context>
    <name>CPowerMonitor</name>
    <message>
        <source>Power Information</source>
        <translation>Energieinformation</translation>
    </message>
    <message>
        <source>Power Source</source>
        <translation>Stromquelle</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>Akkuzustand</translation>
    </message>
    <message>
        <source>Fully Charged</source>
        <translation>Voll geladen</translation>
    </message>
    <message>
        <source>Remaining Capacity</source>
        <translation>Restkapazität</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Restzeit</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>Entlädt...</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>Lädt...</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>min</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>Minuten</translation>
    </message>
</context>
<context>
    <name>CSettingMoreMenu</name>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>Hochpräzise
Taktquelle</translation>
    </message>
</context>
<context>
    <name>CStorageMonitor</name>
    <message>
        <source>Storage Information</source>
        <translation>Speicherinformation</translation>
    </message>
    <message>
        <source>Internal Storage</source>
        <translation>Interner Speicher</translation>
    </message>
    <message>
        <source>USB Drive detected</source>
        <translation>USB-Laufwerk erkannt</translation>
    </message>
    <message>
        <source>Storage Information Loaded</source>
        <translation>Speicherinformation geladen</translation>
    </message>
    <message>
        <source>1K blocks</source>
        <translation>1K-Blöcke</translation>
    </message>
    <message>
        <source>4K blocks</source>
        <translation>4K-Blöcke</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>Used Ratio</source>
        <translation>Belegungsgrad</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO USB Drive detected</source>
        <translation>KEIN USB-Laufwerk erkannt</translation>
    </message>
    <message>
        <source>USB Drive is in use</source>
        <translation>USB-Laufwerk wird verwendet</translation>
    </message>
</context>
<context>
    <name>CSystemSettingsMenu</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Fernzugriff</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Datum &amp; Zeit</translation>
    </message>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>Hochpräzise
Taktquelle</translation>
    </message>
</context>
<context>
    <name>QLibrary</name>
    <message>
        <source>&apos;%1&apos; is an invalid ELF object (%2)</source>
        <translation>„%1“ ist ein ungültiges ELF-Objekt (%2)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object</source>
        <translation>„%1“ ist kein ELF-Objekt</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object (%2)</source>
        <translation>„%1“ ist kein ELF-Objekt (%2)</translation>
    </message>
    <message>
        <source>Cannot load library %1: %2</source>
        <translation>Bibliothek %1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>Failed to extract plugin meta data from &apos;%1&apos;</source>
        <translation>In „%1“ wurden keine Plug-in-Metadaten gefunden</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a valid Qt plugin.</source>
        <translation>Die Datei „%1“ ist kein gültiges Qt-Plug-in.</translation>
    </message>
    <message>
        <source>The plugin &apos;%1&apos; uses incompatible Qt library. (%2.%3.%4) [%5]</source>
        <translation>Das Plug-in „%1“ verwendet eine inkompatible Qt-Bibliothek. (%2.%3.%4) [%5]</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>Die Bibliothek wurde nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>QPluginLoader</name>
    <message>
        <source>The plugin was not loaded.</source>
        <translation>Das Plug-in wurde nicht geladen.</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>Die Bibliothek wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
</context>
</TS>
