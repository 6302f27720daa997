<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ApplicationController</name>
    <message>
        <source>Scanning...</source>
        <translation>Suche läuft ...</translation>
    </message>
    <message>
        <source>Launch failed</source>
        <translation>Start fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not launch:
%1</source>
        <translation>Kann nicht gestartet werden:
%1</translation>
    </message>
    <message>
        <source>Corvix X - Application Launcher</source>
        <translation>Corvix X - Anwendungsstarter</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>LauncherConfig</name>
    <message>
        <source>Configuration files version mismatch!</source>
        <extracomment>A log message. All log messages are in English, so do not translate it.</extracomment>
        <translation>Configuration files version mismatch!</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Corvix X - Application Launcher</source>
        <translation>Corvix X - Anwendungsstarter</translation>
    </message>
    <message>
        <source>Corvix X</source>
        <translation>Corvix X</translation>
    </message>
    <message>
        <source>Application launcher</source>
        <translation>Anwendungsstarter</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Connected cameras</source>
        <translation>Angeschlossene Kameras</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Vendor Name</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model Name</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Recommended tools</source>
        <translation>Empfohlene Werkzeuge</translation>
    </message>
    <message>
        <source>Select a camera to enable its recommended tools.</source>
        <translation>Wählen Sie eine Kamera aus, um deren empfohlene Werkzeuge zu aktivieren.</translation>
    </message>
    <message>
        <source>Orvelle - Corvix X</source>
        <translation>Orvelle - Corvix X</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Über Qt</translation>
    </message>
    <message>
        <source>Unable to open documentation at:
%1</source>
        <translation>Die Dokumentation kann nicht geöffnet werden:
%1</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>CTI file</source>
        <translation>CTI-Datei</translation>
    </message>
    <message>
        <source>CTI location</source>
        <translation>Speicherort der CTI-Datei</translation>
    </message>
    <message>
        <source>Recommended for %1. Non-recommended tools are disabled.</source>
        <translation>Empfohlen für „%1“. Andere Werkzeuge sind deaktiviert.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Corvix X initialization failed</source>
        <translation>Initialisierung von Corvix X fehlgeschlagen</translation>
    </message>
    <message>
        <source>Failed to initialize the Corvix X system. The launcher will be closed.</source>
        <translation>Das System Corvix X konnte nicht initialisiert werden. Der Anwendungsstarter wird beendet.</translation>
    </message>
</context>
</TS>
