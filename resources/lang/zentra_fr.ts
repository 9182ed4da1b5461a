<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CAboutPage</name>
    <message>
        <source>%1 d %2</source>
        <comment>days, then hours:minutes:seconds</comment>
        <translation>%1 j %2</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 Mio</translation>
    </message>
    <message>
        <source>Shell version</source>
        <translation>Version du shell</translation>
    </message>
    <message>
        <source>Qt version</source>
        <translation>Version de Qt</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Noyau</translation>
    </message>
    <message>
        <source>Version of this page</source>
        <translation>Version de cette page</translation>
    </message>
    <message>
        <source>Running for</source>
        <translation>En marche depuis</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Memory free</source>
        <translation>Mémoire libre</translation>
    </message>
    <message>
        <source>Memory available</source>
        <translation>Mémoire disponible</translation>
    </message>
    <message>
        <source>Address of %1</source>
        <comment>a network interface</comment>
        <translation>Adresse de %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>address</comment>
        <translation>aucune</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>value</comment>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>IPv4 address of %1</source>
        <comment>a network interface</comment>
        <translation>Adresse IPv4 de %1</translation>
    </message>
    <message>
        <source>IPv6 address of %1</source>
        <comment>a network interface</comment>
        <translation>Adresse IPv6 de %1</translation>
    </message>
    <message>
        <source>Network address</source>
        <translation>Adresse réseau</translation>
    </message>
</context>
<context>
    <name>CAboutPlugin</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>CAdvanceMenu</name>
    <message>
        <source>Fiber Scope</source>
        <translation>Microscope fibre</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Optical Power
Meter</source>
        <translation>Mesureur de
puissance optique</translation>
    </message>
    <message>
        <source>WiFi InSSIDer</source>
        <translation>WiFi InSSIDer</translation>
    </message>
    <message>
        <source>Data Card</source>
        <translation>Carte de données</translation>
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
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>brightness</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Sur batterie</translation>
    </message>
    <message>
        <source>On external power</source>
        <translation>Sur secteur</translation>
    </message>
    <message>
        <source>Switch off the backlight after</source>
        <comment>a time that stands beside it</comment>
        <translation>Éteindre le rétroéclairage après</translation>
    </message>
</context>
<context>
    <name>CBacklightPlugin</name>
    <message>
        <source>Backlight</source>
        <translation>Éclairage</translation>
    </message>
</context>
<context>
    <name>CGlobalSettings</name>
    <message>
        <source>General Setting</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Storage Setting</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Save Setting</source>
        <translation>Captures d’écran</translation>
    </message>
    <message>
        <source>File Name Prefix</source>
        <translation>Préfixe des noms de fichier</translation>
    </message>
    <message>
        <source>Maximum Number of Screenshots</source>
        <translation>Nombre maximal de captures d’écran</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
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
        <translation>Unités</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Métrique</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Impérial</translation>
    </message>
    <message>
        <source>Audible Alarm</source>
        <translation>Alarme sonore</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Show Password</source>
        <translation>Afficher les mots de passe</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>User Interface</source>
        <translation>Interface utilisateur</translation>
    </message>
    <message>
        <source>International</source>
        <translation>Internationale</translation>
    </message>
    <message>
        <source>USA</source>
        <translation>États-Unis</translation>
    </message>
    <message>
        <source>Clock Source</source>
        <translation>Source d’horloge</translation>
    </message>
    <message>
        <source>Atomic 1PPS</source>
        <translation>Atomique 1 PPS</translation>
    </message>
    <message>
        <source>GPS 1PPS</source>
        <translation>GPS 1 PPS</translation>
    </message>
    <message>
        <source>Atomic Clock 10M Hz</source>
        <translation>Horloge atomique 10 MHz</translation>
    </message>
    <message>
        <source>Profile Deleting</source>
        <translation>Suppression des profils</translation>
    </message>
    <message>
        <source>Auto Delete</source>
        <translation>Suppression auto</translation>
    </message>
    <message>
        <source>Prompt User</source>
        <translation>Demander</translation>
    </message>
    <message>
        <source>Profile Saving</source>
        <translation>Enregistrement des profils</translation>
    </message>
    <message>
        <source>Auto Overwrite</source>
        <translation>Écrasement auto</translation>
    </message>
    <message>
        <source>Result Saving</source>
        <translation>Enregistrement des résultats</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Advance Saving</source>
        <translation>Enregistrement avancé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Lock/Save Screen</source>
        <translation>Verrouiller/capturer l’écran</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Verrouiller l’écran</translation>
    </message>
    <message>
        <source>Save Screen</source>
        <translation>Capturer l’écran</translation>
    </message>
    <message>
        <source>Screenshot Compression Level</source>
        <translation>Compression des captures d’écran</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>No Compression</source>
        <translation>Aucune</translation>
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
        <translation>En arrière-plan</translation>
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
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>Outils IP</translation>
    </message>
    <message>
        <source>Please enter an IP address or a host name.</source>
        <translation>Veuillez saisir une adresse IP ou un nom d’hôte.</translation>
    </message>
    <message>
        <source>Enter an address, then touch Ping or Trace.</source>
        <translation>Saisissez une adresse, puis touchez Ping ou Trace.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Ping of %1 runs</source>
        <translation>Ping de %1 en cours</translation>
    </message>
    <message>
        <source>Trace to %1 runs</source>
        <translation>Trace vers %1 en cours</translation>
    </message>
</context>
<context>
    <name>CIpToolsPlugin</name>
    <message>
        <source>IP Tools</source>
        <translation>Outils IP</translation>
    </message>
</context>
<context>
    <name>CKeyPadDialog</name>
    <message>
        <source>Value not allowed</source>
        <translation>Valeur non admise</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>IP Tools</source>
        <translation>Outils IP</translation>
    </message>
    <message>
        <source>Net Wiz</source>
        <translation>Assist. réseau</translation>
    </message>
    <message>
        <source>WiFi Wiz</source>
        <translation>Assist. WiFi</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Navigateur</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistrés</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>Scopex</source>
        <translation>Scopex</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Microscope fibre</translation>
    </message>
    <message>
        <source>WiFi SA</source>
        <translation>WiFi SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Signature</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Mesureur optique</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Accès distant</translation>
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
        <translation>Erreur système</translation>
    </message>
    <message>
        <source>Error Code: %1</source>
        <translation>Code d’erreur : %1</translation>
    </message>
    <message>
        <source>Please contact customer service!</source>
        <translation>Veuillez contacter le service client !</translation>
    </message>
    <message>
        <source>Error saving screen!</source>
        <translation>Échec de la capture d’écran !</translation>
    </message>
    <message>
        <source>Number of saved screenshots already reach
or exceed maximum number allowed!</source>
        <translation>Le nombre maximal de captures
enregistrées est atteint ou dépassé !</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Cannot find USB drive attached to the unit!</source>
        <translation>Aucune clé USB détectée sur l’appareil !</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Proceed with touch screen calibration?</source>
        <translation>Lancer l’étalonnage de l’écran tactile ?</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>L’utilitaire n’a pas pu démarrer.</translation>
    </message>
    <message>
        <source>Load plugin</source>
        <translation>Chargement du module</translation>
    </message>
    <message>
        <source>Loading test application, please wait...</source>
        <translation>Chargement de l’application de test, veuillez patienter...</translation>
    </message>
    <message>
        <source>Releasing test application, please wait...</source>
        <translation>Libération de l’application de test, veuillez patienter...</translation>
    </message>
    <message>
        <source>%1 is not available on this unit.</source>
        <translation>%1 n’est pas disponible sur cet appareil.</translation>
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
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>CParmLineEdit</name>
    <message>
        <source>Enter a whole number from %1 to %2.</source>
        <translation>Saisissez un nombre entier de %1 à %2.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>limits of a number</comment>
        <translation>%1 à %2</translation>
    </message>
</context>
<context>
    <name>CPluginManager</name>
    <message>
        <source>IP Tools</source>
        <translation>Outils IP</translation>
    </message>
    <message>
        <source>Network Wizard</source>
        <translation>Assistant réseau</translation>
    </message>
    <message>
        <source>WIFI Wizard</source>
        <translation>Assistant WIFI</translation>
    </message>
    <message>
        <source>Web Browser</source>
        <translation>Navigateur web</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Result Manager</source>
        <translation>Gestion des résultats</translation>
    </message>
    <message>
        <source>Fiber Scope</source>
        <translation>Microscope fibre</translation>
    </message>
    <message>
        <source>WIFI SA</source>
        <translation>WIFI SA</translation>
    </message>
    <message>
        <source>Signature Pad</source>
        <translation>Signature</translation>
    </message>
    <message>
        <source>Optical Power Meter</source>
        <translation>Mesureur optique</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Screen Calibration</source>
        <translation>Étalonnage de l’écran</translation>
    </message>
    <message>
        <source>Bluetooth Settings</source>
        <translation>Réglages Bluetooth</translation>
    </message>
    <message>
        <source>Power Settings</source>
        <translation>Réglages d’alimentation</translation>
    </message>
    <message>
        <source>Date &amp; Time Settings</source>
        <translation>Réglage date et heure</translation>
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
        <translation>Gestion Pcap</translation>
    </message>
    <message>
        <source>VFL</source>
        <translation>VFL</translation>
    </message>
    <message>
        <source>Invalid plugin ID.</source>
        <translation>Identifiant de module non valide.</translation>
    </message>
    <message>
        <source>The utility could not be started.</source>
        <translation>L’utilitaire n’a pas pu démarrer.</translation>
    </message>
</context>
<context>
    <name>CPowerMonitor</name>
    <message>
        <source>Power Information</source>
        <translation>Informations d’alimentation</translation>
    </message>
    <message>
        <source>Power Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Battery Status</source>
        <translation>État de la batterie</translation>
    </message>
    <message>
        <source>Fully Charged</source>
        <translation>Chargée</translation>
    </message>
    <message>
        <source>Remaining Capacity</source>
        <translation>Capacité restante</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Temps restant</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discharging...</source>
        <translation>Décharge...</translation>
    </message>
    <message>
        <source>Charging...</source>
        <translation>Charge...</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>heure</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>heures</translation>
    </message>
    <message>
        <source>min</source>
        <translation>minute</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>minutes</translation>
    </message>
</context>
<context>
    <name>CSettingMoreMenu</name>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>Source d’horloge
haute précision</translation>
    </message>
</context>
<context>
    <name>CStorageMonitor</name>
    <message>
        <source>Storage Information</source>
        <translation>Informations de stockage</translation>
    </message>
    <message>
        <source>Internal Storage</source>
        <translation>Stockage interne</translation>
    </message>
    <message>
        <source>USB Drive detected</source>
        <translation>Clé USB détectée</translation>
    </message>
    <message>
        <source>Storage Information Loaded</source>
        <translation>Informations chargées</translation>
    </message>
    <message>
        <source>1K blocks</source>
        <translation>Blocs de 1K</translation>
    </message>
    <message>
        <source>4K blocks</source>
        <translation>Blocs de 4K</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Used Ratio</source>
        <translation>Taux d’utilisation</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO USB Drive detected</source>
        <translation>AUCUNE clé USB détectée</translation>
    </message>
    <message>
        <source>USB Drive is in use</source>
        <translation>Clé USB utilisée</translation>
    </message>
</context>
<context>
    <name>CSystemSettingsMenu</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Remote Access</source>
        <translation>Accès distant</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>High Precision
Clock Source</source>
        <translation>Source d’horloge
haute précision</translation>
    </message>
</context>
<context>
    <name>QLibrary</name>
    <message>
        <source>&apos;%1&apos; is an invalid ELF object (%2)</source>
        <translation>« %1 » est un objet ELF non valide (%2)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object</source>
        <translation>« %1 » n’est pas un objet ELF</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object (%2)</source>
        <translation>« %1 » n’est pas un objet ELF (%2)</translation>
    </message>
    <message>
        <source>Cannot load library %1: %2</source>
        <translation>Impossible de charger la bibliothèque %1 : %2</translation>
    </message>
    <message>
        <source>Failed to extract plugin meta data from &apos;%1&apos;</source>
        <translation>Aucune métadonnée de plug-in trouvée dans « %1 »</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a valid Qt plugin.</source>
        <translation>Le fichier « %1 » n’est pas un plug-in Qt valide.</translation>
    </message>
    <message>
        <source>The plugin &apos;%1&apos; uses incompatible Qt library. (%2.%3.%4) [%5]</source>
        <translation>Le plug-in « %1 » utilise une bibliothèque Qt incompatible. (%2.%3.%4) [%5]</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>La bibliothèque est introuvable.</translation>
    </message>
</context>
<context>
    <name>QPluginLoader</name>
    <message>
        <source>The plugin was not loaded.</source>
        <translation>Le plug-in n’a pas été chargé.</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>La bibliothèque est introuvable.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
</context>
</TS>
