<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ApplicationController</name>
    <message>
        <source>Scanning...</source>
        <translation>Recherche...</translation>
    </message>
    <message>
        <source>Launch failed</source>
        <translation>Échec du lancement</translation>
    </message>
    <message>
        <source>Could not launch:
%1</source>
        <translation>Impossible de lancer l’outil&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Corvix X - Application Launcher</source>
        <translation>Corvix X - Lanceur d’applications</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
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
        <translation>Corvix X - Lanceur d’applications</translation>
    </message>
    <message>
        <source>Corvix X</source>
        <translation>Corvix X</translation>
    </message>
    <message>
        <source>Application launcher</source>
        <translation>Lanceur d’applications</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Connected cameras</source>
        <translation>Caméras connectées</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Vendor Name</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Model Name</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>N°&#xa0;de série</translation>
    </message>
    <message>
        <source>Recommended tools</source>
        <translation>Outils recommandés</translation>
    </message>
    <message>
        <source>Select a camera to enable its recommended tools.</source>
        <translation>Sélectionnez une caméra pour activer les outils recommandés.</translation>
    </message>
    <message>
        <source>Orvelle - Corvix X</source>
        <translation>Orvelle - Corvix X</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>À propos de Qt</translation>
    </message>
    <message>
        <source>Unable to open documentation at:
%1</source>
        <translation>Impossible d’ouvrir la documentation&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
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
        <translation>Fichier CTI</translation>
    </message>
    <message>
        <source>CTI location</source>
        <translation>Emplacement du fichier CTI</translation>
    </message>
    <message>
        <source>Recommended for %1. Non-recommended tools are disabled.</source>
        <translation>Recommandés pour «&#xa0;%1&#xa0;». Autres outils désactivés.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Corvix X initialization failed</source>
        <translation>Échec de l’initialisation de Corvix X</translation>
    </message>
    <message>
        <source>Failed to initialize the Corvix X system. The launcher will be closed.</source>
        <translation>Impossible d’initialiser le système Corvix X. Le lanceur va être fermé.</translation>
    </message>
</context>
</TS>
