<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>CAboutPage</name>
    <message>
        <source>%1 d %2</source>
        <comment>days, then hours:minutes:seconds</comment>
        <translation>%1 nap %2</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>Shell version</source>
        <translation>Shell verziója</translation>
    </message>
    <message>
        <source>Qt version</source>
        <translation>Qt verziója</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>Version of this page</source>
        <translation>Az oldal verziója</translation>
    </message>
    <message>
        <source>Running for</source>
        <translation>Működési idő</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>Memory free</source>
        <translation>Szabad memória</translation>
    </message>
    <message>
        <source>Memory available</source>
        <translation>Elérhető memória</translation>
    </message>
    <message>
        <source>Address of %1</source>
        <comment>a network interface</comment>
        <translation>%1 címe</translation>
    </message>
    <message>
        <source>none</source>
        <comment>address</comment>
        <translation>nincs</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>value</comment>
        <translation>ismeretlen</translation>
    </message>
    <message>
        <source>IPv4 address of %1</source>
        <comment>a network interface</comment>
        <translation>%1 IPv4-címe</translation>
    </message>
    <message>
        <source>IPv6 address of %1</source>
        <comment>a network interface</comment>
        <translation>%1 IPv6-címe</translation>
    </message>
    <message>
        <source>Network address</source>
        <translation>Hálózati cím</translation>
    </message>
</context>
<context>
    <name>CAboutPlugin</name>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
</context>
<context>
    <name>CAdvanceMenu</name>
    <message>
        <source>Fiber Scope</source>
        <translation>Szálmikroszkóp</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Optical Power
Meter</source>
        <translation>Optikai
teljesítménymérő</translation>
    </message>
    <message>
        <source>WiFi InSSIDer</source>
        <translation>WiFi InSSIDer</translation>
    </message>
    <message>
        <source>Data Card</source>
        <translation>Adatkártya</translation>
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
        <translation>%1 perc</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Fényerő</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>brightness</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Akkumulátorról</translation>
    </message>
    <message>
        <source>On external power</source>
        <translation>Külső tápról</translation>
    </message>
    <message>
        <source>Switch off the backlight after</source>
        <comment>a time that stands beside it</comment>
        <translation>Háttérvilágítás ki ennyi idő után</translation>
    </message>
</context>
<context>
    <name>CBacklightPlugin</name>
    <message>
        <source>Backlight</source>
        <translation>Fény</translation>
    </message>
</context>
<context>
    <name>CGlobalSettings</name>
    <message>
        <source>General Setting</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Storage Setting</source>
        <translation>Tárolás</translation>
    </message>
    <message>
        <source>Save Setting</source>
        <translation>Képernyőképek</translation>
    </message>
    <message>
        <source>File Name Prefix</source>
        <translation>Fájlnév-előtag</translation>
    </message>
    <message>
        <source>Maximum Number of Screenshots</source>
        <translation>Képernyőképek legnagyobb száma</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
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
        <translation>Mértékegységek</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrikus</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Angolszász</translation>
    </message>
    <message>
        <source>Audible Alarm</source>
        <translation>Hangjelzés</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Show Password</source>
        <translation>Jelszavak megjelenítése</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>User Interface</source>
        <translation>Felhasználói felület</translation>
    </message>
    <message>
        <source>International</source>
        <translation>Nemzetközi</translation>
    </message>
    <message>
        <source>USA</source>
        <translation>USA</translation>
    </message>
    <message>
        <source>Clock Source</source>
        <translation>Órajelforrás</translation>
    </message>
    <message>
        <source>Atomic 1PPS</source>
        <translation>Atomóra 1 PPS</translation>
    </message>
    <message>
        <source>GPS 1PPS</source>
        <translation>GPS 1 PPS</translation>
    </message>
    <message>
        <source>Atomic Clock 10M Hz</source>
        <translation>Atomóra 10 MHz</translation>
    </message>
    <message>
        <source>Profile Deleting</source>
        <translation>Profilok törlése</translation>
    </message>
    <message>
        <source>Auto Delete</source>
        <translation>Automatikus törlés</translation>
    </message>
    <message>
        <source>Prompt User</source>
        <translation>Rákérdezés</translation>
    </message>
    <message>
        <source>Profile Saving</source>
        <translation>Profilok mentése</translation>
    </message>
    <message>
        <source>Auto Overwrite</source>
        <translation>Automatikus felülírás</translation>
    </message>
    <message>
        <source>Result Saving</source>
        <translation>Eredmények mentése</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Kézi</translation>
    </message>
    <message>
        <source>Advance Saving</source>
        <translation>Speciális mentés</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Lock/Save Screen</source>
        <translation>Képernyő zárolása/mentése</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Képernyő zárolása</translation>
    </message>
    <message>
        <source>Save Screen</source>
        <translation>Képernyőkép mentése</translation>
    </message>
    <message>
        <source>Screenshot Compression Level</source>
        <translation>Képernyőképek tömörítése</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Magas</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Közepes</translation>
    </message>
    <message>
        <source>No Compression</source>
        <translation>Nincs</translation>
    </message>
</context>
<context>
    <name>CIpToolsPage</name>
    <message>
        <source>Address</source>
        <translation>Cím</translation>
    </message>
    <message>
        <source>Run in background</source>
        <translation>Háttérben</translation>
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
        <translation>IP eszközök</translation>
    </message>
    <message>
        <source>Please enter an IP address or a host name.</source>
        <translation>Adjon meg egy IP-címet vagy gépnevet.</translation>
    </message>
    <message>
        <source>Enter an address, then touch Ping or Trace.</source>
        <translation>Adjon meg egy címet, majd érintse meg: Ping vagy Trace.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Ping of %1 runs</source>
        <translation>%1 pingelése fut</translation>
    </message>
    <message>
        <source>Trace to %1 runs</source>
        <translation>Útvonalkeresés: %1</translation>
    </message>
</context>
<context>
    <name>CIpToolsPlugin</name>
    <message>
        <source>IP Tools</source>
        <translation>IP eszközök</translation>
    </message>
</context>
<context>
    <name>CKeyPadDialog</name>
    <message>
        <source>Value not allowed</source>
        <translation>Nem megengedett érték</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Jelszó látszik</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Szóköz</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Törlés</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Home</source>
        <translation>Kezdőlap</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Eszközök</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Rendszer</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fájlok</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Speciális</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítás</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>IP eszközök</translation>
    </message>
    <message>
        <source>Net Wiz</source>
        <translation>Hálóvarázsló</translation>
    </message>
    <message>
        <source>WiFi Wiz</source>
        <translation>WiFi varázsló</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Böngésző</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Fény</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Mentett</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>Scopex</source>
        <translation>Scopex</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Szálmikroszkóp</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Aláírás</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Optikai mérő</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Képernyő</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Tápellátás</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Dátum és idő</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Távoli elérés</translation>
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
        <translation>Rögzítés</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>System Error</source>
        <translation>Rendszerhiba</translation>
    </message>
    <message>
        <source>Error Code: %1</source>
        <translation>Hibakód: %1</translation>
    </message>
    <message>
        <source>Please contact customer service!</source>
        <translation>Forduljon az ügyfélszolgálathoz!</translation>
    </message>
    <message>
        <source>Error saving screen!</source>
        <translation>Hiba a képernyő mentésekor!</translation>
    </message>
    <message>
        <source>Number of saved screenshots already reach
or exceed maximum number allowed!</source>
        <translation>A mentett képek száma elérte
vagy meghaladta a megengedettet!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Cannot find USB drive attached to the unit!</source>
        <translation>Nem található USB-meghajtó az eszközön!</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Figyelmeztetés</translation>
    </message>
    <message>
        <source>Proceed with touch screen calibration?</source>
        <translation>Indulhat az érintőképernyő kalibrálása?</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>A segédprogram nem indítható el.</translation>
    </message>
    <message>
        <source>Load plugin</source>
        <translation>Bővítmény betöltése</translation>
    </message>
    <message>
        <source>Loading test application, please wait...</source>
        <translation>Tesztalkalmazás betöltése, kérem várjon...</translation>
    </message>
    <message>
        <source>Releasing test application, please wait...</source>
        <translation>Tesztalkalmazás leállítása, kérem várjon...</translation>
    </message>
    <message>
        <source>%1 is not available on this unit.</source>
        <translation>%1 ezen a készüléken nem érhető el.</translation>
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
        <translation>Igen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>CParmLineEdit</name>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Adjon meg egy egész számot %1 és %2 között.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>limits of a number</comment>
        <translation>%1–%2</translation>
    </message>
</context>
<context>
    <name>CPluginManager</name>
    <message>
        <source>IP Tools</source>
        <translation>IP eszközök</translation>
    </message>
    <message>
        <source>Network Wizard</source>
        <translation>Hálózati varázsló</translation>
    </message>
    <message>
        <source>WIFI Wizard</source>
        <translation>WIFI varázsló</translation>
    </message>
    <message>
        <source>Web Browser</source>
        <translation>Webböngésző</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Fény</translation>
    </message>
    <message>
        <source>Result Manager</source>
        <translation>Eredménykezelő</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Szálmikroszkóp</translation>
    </message>
    <message>
        <source>WIFI SA</source>
        <translation>WIFI SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Aláírás</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Optikai mérő</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>Screen Calibration</source>
        <translation>Képernyő-kalibrálás</translation>
    </message>
    <message>
        <source>Bluetooth Settings</source>
        <translation>Bluetooth-beállítások</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Tápellátás beállításai</translation>
    </message>
    <message>
        <source>Date &amp; Time Settings</source>
        <translation>Dátum és idő beállítása</translation>
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
        <translation>Pcap-kezelő</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>Invalid plugin ID.</source>
        <translation>Érvénytelen bővítményazonosító.</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>A segédprogram nem indítható el.</translation>
    </message>
</context>
<context>
    <name>CPowerMonitor</name>
    <message>
        <source>Power Information</source>
        <translation>Tápellátás adatai</translation>
    </message>
    <message>
        <source>Power Source</source>
        <translation>Áramforrás</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>Akku állapota</translation>
    </message>
    <message>
        <source>Fully Charged</source>
        <translation>Feltöltve</translation>
    </message>
    <message>
        <source>Remaining Capacity</source>
        <translation>Hátralévő töltés</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Hátralévő idő</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>Merül...</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>Töltődik...</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>óra</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>óra</translation>
    </message>
    <message>
        <source>min</source>
        <translation>perc</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>perc</translation>
    </message>
</context>
<context>
    <name>CSettingMoreMenu</name>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>Nagy pontosságú
órajelforrás</translation>
    </message>
</context>
<context>
    <name>CStorageMonitor</name>
    <message>
        <source>Storage Information</source>
        <translation>Tárhely adatai</translation>
    </message>
    <message>
        <source>Internal Storage</source>
        <translation>Belső tárhely</translation>
    </message>
    <message>
        <source>USB Drive detected</source>
        <translation>USB-meghajtó észlelve</translation>
    </message>
    <message>
        <source>Storage Information Loaded</source>
        <translation>Tárhely adatai betöltve</translation>
    </message>
    <message>
        <source>1K blocks</source>
        <translation>1K-blokkok</translation>
    </message>
    <message>
        <source>4K blocks</source>
        <translation>4K-blokkok</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Használt</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Szabad</translation>
    </message>
    <message>
        <source>Used Ratio</source>
        <translation>Használat</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO USB Drive detected</source>
        <translation>NINCS USB-meghajtó</translation>
    </message>
    <message>
        <source>USB Drive is in use</source>
        <translation>USB-meghajtó használatban</translation>
    </message>
</context>
<context>
    <name>CSystemSettingsMenu</name>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Távoli elérés</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Tápellátás</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Fény</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Dátum és idő</translation>
    </message>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>Nagy pontosságú
órajelforrás</translation>
    </message>
</context>
<context>
    <name>QLibrary</name>
    <message>
        <source>&apos;%1&apos; is an invalid ELF object (%2)</source>
        <translation>„%1” érvénytelen ELF-objektum (%2)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object</source>
        <translation>„%1” nem ELF-objektum</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object (%2)</source>
        <translation>„%1” nem ELF-objektum (%2)</translation>
    </message>
    <message>
        <source>Cannot load library %1: %2</source>
        <translation>A(z) %1 könyvtár nem tölthető be: %2</translation>
    </message>
    <message>
        <source>Failed to extract plugin meta data from &apos;%1&apos;</source>
        <translation>„%1” nem tartalmaz bővítmény-metaadatokat</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a valid Qt plugin.</source>
        <translation>„%1” nem érvényes Qt-bővítmény.</translation>
    </message>
    <message>
        <source>The plugin &apos;%1&apos; uses incompatible Qt library. (%2.%3.%4) [%5]</source>
        <translation>A(z) „%1” bővítmény nem kompatibilis Qt-könyvtárat használ. (%2.%3.%4) [%5]</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>A könyvtár nem található.</translation>
    </message>
</context>
<context>
    <name>QPluginLoader</name>
    <message>
        <source>The plugin was not loaded.</source>
        <translation>A bővítmény nem lett betöltve.</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>A könyvtár nem található.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Ismeretlen hiba</translation>
    </message>
</context>
</TS>
