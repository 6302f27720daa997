<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AssistantWindow</name>
    <message>
        <source>The result was saved to &quot;%1&quot;.</source>
        <translation>Das Ergebnis wurde in „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Press F5 to see the live picture.</source>
        <translation>Drücken Sie F5, um das Livebild zu sehen.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Ergebnis</translation>
    </message>
    <message>
        <source>&amp;Live picture</source>
        <translation>&amp;Livebild</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Kamera</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>Im &amp;Image Viewer öffnen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Cancel the measurement</source>
        <translation>Messung abbrechen</translation>
    </message>
</context>
<context>
    <name>BigNumber</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>CameraChooser</name>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Choose a camera</source>
        <translation>Kamera auswählen</translation>
    </message>
    <message>
        <source>Search by name, model, serial number or connection</source>
        <translation>Nach Name, Modell, Seriennummer oder Verbindung suchen</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Kameras suchen</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>Kameras werden gesucht…</translation>
    </message>
    <message>
        <source>Cameras: %1</source>
        <translation>Kameras: %1</translation>
    </message>
    <message>
        <source>No camera matches &quot;%1&quot;.</source>
        <translation>Keine Kamera entspricht „%1“.</translation>
    </message>
</context>
<context>
    <name>CameraConnection</name>
    <message>
        <source>The camera is not open.</source>
        <translation>Die Kamera ist nicht geöffnet.</translation>
    </message>
</context>
<context>
    <name>CameraFinder</name>
    <message>
        <source>Corvix X is not installed completely: the program CvxProducerHost is missing or not executable. Install the package again.</source>
        <translation>Corvix X ist nicht vollständig installiert: Das Programm CvxProducerHost fehlt oder ist nicht ausführbar. Installieren Sie das Paket erneut.</translation>
    </message>
    <message>
        <source>The camera system cannot be started (error %1).</source>
        <translation>Das Kamerasystem kann nicht gestartet werden (Fehler %1).</translation>
    </message>
    <message>
        <source>The cameras cannot be listed (error %1).</source>
        <translation>Die Kameras können nicht aufgelistet werden (Fehler %1).</translation>
    </message>
</context>
<context>
    <name>CameraPanel</name>
    <message>
        <source>All features (Camera Setup)</source>
        <translation>Alle Features (Camera Setup)</translation>
    </message>
    <message>
        <source>Draw on picture</source>
        <translation>Im Bild zeichnen</translation>
    </message>
    <message>
        <source>Whole sensor</source>
        <translation>Ganzer Sensor</translation>
    </message>
    <message>
        <source>Drag a rectangle over the part of the picture that the camera shall send.</source>
        <translation>Ziehen Sie ein Rechteck über den Teil des Bilds, den die Kamera senden soll.</translation>
    </message>
    <message>
        <source>You are watching this camera, so nothing can be changed here.</source>
        <translation>Sie beobachten diese Kamera nur, deshalb sind hier keine Änderungen möglich.</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatik</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Black level and gamma</source>
        <translation>Schwarzwert und Gamma</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Schwarzwert</translation>
    </message>
    <message>
        <source>Apply gamma</source>
        <translation>Gamma anwenden</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Set the frame rate</source>
        <translation>Bildrate vorgeben</translation>
    </message>
    <message>
        <source>Line scan</source>
        <translation>Zeilenkamera</translation>
    </message>
    <message>
        <source>Set the line rate</source>
        <translation>Zeilenrate vorgeben</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>Zeilenrate</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>Pixelformat</translation>
    </message>
    <message>
        <source>Region of interest</source>
        <translation>Bildausschnitt (ROI)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>Offset X</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Offset Y</translation>
    </message>
    <message>
        <source>Binning and mirroring</source>
        <translation>Binning und Spiegelung</translation>
    </message>
    <message>
        <source>Horizontal binning</source>
        <translation>Binning horizontal</translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation>Modus horizontal</translation>
    </message>
    <message>
        <source>Vertical binning</source>
        <translation>Binning vertikal</translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation>Modus vertikal</translation>
    </message>
    <message>
        <source>Horizontal decimation</source>
        <translation>Dezimierung horizontal</translation>
    </message>
    <message>
        <source>Vertical decimation</source>
        <translation>Dezimierung vertikal</translation>
    </message>
    <message>
        <source>Mirror horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Activation</source>
        <translation>Aktivierung</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Trigger now</source>
        <translation>Jetzt auslösen</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>User-Set</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>Beim Einschalten</translation>
    </message>
    <message>
        <source>Saving replaces what is stored in the camera as &quot;%1&quot;.</source>
        <translation>Beim Speichern wird ersetzt, was in der Kamera als „%1“ gespeichert ist.</translation>
    </message>
    <message>
        <source>Resulting rate</source>
        <translation>Resultierende Rate</translation>
    </message>
    <message>
        <source>Binning location</source>
        <translation>Binning-Ort</translation>
    </message>
    <message>
        <source>Trigger type</source>
        <translation>Triggertyp</translation>
    </message>
</context>
<context>
    <name>CameraSettings</name>
    <message>
        <source>Camera settings</source>
        <translation>Kameraeinstellungen</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>This camera now</source>
        <translation>Diese Kamera jetzt</translation>
    </message>
    <message>
        <source>Reading the settings of this camera</source>
        <translation>Einstellungen dieser Kamera werden gelesen</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>Diese Kamera ist nicht zum Steuern geöffnet.</translation>
    </message>
    <message>
        <source>Copying to this camera</source>
        <translation>In diese Kamera wird kopiert</translation>
    </message>
    <message>
        <source>Copy of differences</source>
        <translation>Unterschiede kopieren</translation>
    </message>
</context>
<context>
    <name>CameraTable</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>User-defined name</source>
        <translation>Benutzerdef. Name</translation>
    </message>
</context>
<context>
    <name>ChangeHistory</name>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>The value of %1 before the change is unknown.</source>
        <translation>Der Wert von %1 vor der Änderung ist unbekannt.</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>%1 cannot be changed while the camera is streaming.</source>
        <translation>%1 kann nicht geändert werden, solange der Stream der Kamera läuft.</translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>CollapsibleGroup</name>
    <message>
        <source>Expanded group</source>
        <translation>Aufgeklappte Gruppe</translation>
    </message>
    <message>
        <source>Collapsed group</source>
        <translation>Zugeklappte Gruppe</translation>
    </message>
</context>
<context>
    <name>CommandButton</name>
    <message>
        <source>%1 …</source>
        <translation>%1 …</translation>
    </message>
</context>
<context>
    <name>ComparePanel</name>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Swap the sides</source>
        <translation>Seiten tauschen</translation>
    </message>
    <message>
        <source>Reads both sides again.</source>
        <translation>Liest beide Seiten erneut.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Compare settings</source>
        <translation>Einstellungen vergleichen</translation>
    </message>
    <message>
        <source>&amp;Load the user set</source>
        <translation>User-Set &amp;laden</translation>
    </message>
    <message>
        <source>Compare with a file</source>
        <translation>Mit einer Datei vergleichen</translation>
    </message>
    <message>
        <source>Settings files (*.txt *.pfs *.features);;All files (*)</source>
        <translation>Einstellungsdateien (*.txt *.pfs *.features);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Writes settings of the left side to the right side.</source>
        <translation>Schreibt Einstellungen der linken Seite in die rechte.</translation>
    </message>
    <message>
        <source>The settings are being read.</source>
        <translation>Die Einstellungen werden gelesen.</translation>
    </message>
    <message>
        <source>Choose two sides that can be read.</source>
        <translation>Wählen Sie zwei Seiten, die sich lesen lassen.</translation>
    </message>
    <message>
        <source>Copy to the ri&amp;ght</source>
        <translation>Nach &amp;rechts kopieren</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
</context>
<context>
    <name>CompareSession</name>
    <message>
        <source>Reading: %1</source>
        <translation>Wird gelesen: %1</translation>
    </message>
    <message>
        <source>Copying to: %1</source>
        <translation>Kopieren nach: %1</translation>
    </message>
</context>
<context>
    <name>CompareSides</name>
    <message>
        <source>User set %1</source>
        <translation>User-Set %1</translation>
    </message>
    <message>
        <source>This camera now</source>
        <translation>Diese Kamera jetzt</translation>
    </message>
    <message>
        <source>This camera at opening</source>
        <translation>Diese Kamera beim Öffnen</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
</context>
<context>
    <name>ComparisonCounts</name>
    <message numerus="yes">
        <source>No difference in %n setting(s).</source>
        <translation>
            <numerusform>Kein Unterschied in %n Einstellung.</numerusform>
            <numerusform>Kein Unterschied in %n Einstellungen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 setting(s) differ.</source>
        <translation>
            <numerusform>%n von %1 Einstellungen unterscheidet sich.</numerusform>
            <numerusform>%n von %1 Einstellungen unterscheiden sich.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) belong to one camera or one moment.</source>
        <translation>
            <numerusform>%n weiterer Unterschied ist kamera- oder zeitabhängig.</numerusform>
            <numerusform>%n weitere Unterschiede sind kamera- oder zeitabhängig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) that belong to one camera or one moment are hidden.</source>
        <translation>
            <numerusform>%n weiterer kamera- oder zeitabhängiger Unterschied ist ausgeblendet.</numerusform>
            <numerusform>%n weitere kamera- oder zeitabhängige Unterschiede sind ausgeblendet.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ComparisonReport</name>
    <message>
        <source>(missing)</source>
        <translation>(fehlt)</translation>
    </message>
    <message>
        <source>belongs to one camera or one moment</source>
        <translation>kamera- oder zeitabhängig</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Comparison of camera settings</source>
        <translation>Vergleich von Kameraeinstellungen</translation>
    </message>
    <message>
        <source>Left: %1, %2</source>
        <translation>Links: %1, %2</translation>
    </message>
    <message>
        <source>Right: %1, %2</source>
        <translation>Rechts: %1, %2</translation>
    </message>
</context>
<context>
    <name>ConnectionBar</name>
    <message>
        <source>&amp;Watch only</source>
        <translation>Nur b&amp;eobachten</translation>
    </message>
    <message>
        <source>&amp;Other camera…</source>
        <translation>Andere Ka&amp;mera…</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 kann nicht geöffnet werden. %2</translation>
    </message>
    <message>
        <source>&amp;Take control</source>
        <translation>Kamera &amp;steuern</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>%1 The camera was lost at %2. The program continues by itself when the camera is back.</source>
        <translation>%1 Die Verbindung zur Kamera ging um %2 verloren. Das Programm macht automatisch weiter, sobald die Kamera wieder da ist.</translation>
    </message>
    <message>
        <source>Shows the settings of the camera and how they change, and its pictures if it sends them to more than one program. Nothing is changed.</source>
        <translation>Zeigt die Einstellungen der Kamera und deren Änderungen an, und auch ihre Bilder, falls sie diese an mehr als ein Programm sendet. Nichts wird verändert.</translation>
    </message>
    <message>
        <source>Watching %1: its settings are shown as another program changes them.</source>
        <translation>%1 wird beobachtet: Änderungen der Einstellungen durch ein anderes Programm werden angezeigt.</translation>
    </message>
</context>
<context>
    <name>ContrastHandle</name>
    <message>
        <source>%1: drag it, or use the arrow keys. A double click resets it.</source>
        <translation>%1: mit der Maus ziehen oder mit den Pfeiltasten verschieben. Ein Doppelklick setzt den Wert zurück.</translation>
    </message>
</context>
<context>
    <name>CopyActions</name>
    <message>
        <source>&amp;Selected differences</source>
        <translation>A&amp;usgewählte Unterschiede</translation>
    </message>
    <message>
        <source>&amp;Checked differences</source>
        <translation>Ange&amp;hakte Unterschiede</translation>
    </message>
    <message>
        <source>&amp;All differences</source>
        <translation>&amp;Alle Unterschiede</translation>
    </message>
    <message>
        <source>Copy differences</source>
        <translation>Unterschiede kopieren</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Schreiben</translation>
    </message>
    <message>
        <source>Nothing was copied: %1</source>
        <translation>Es wurde nichts kopiert: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were copied.</source>
        <translation>
            <numerusform>%n Einstellung wurde kopiert.</numerusform>
            <numerusform>%n Einstellungen wurden kopiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The copy was cancelled.</source>
        <translation>Das Kopieren wurde abgebrochen.</translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s) were reported.</source>
        <translation>
            <numerusform>%n Problem wurde gemeldet.</numerusform>
            <numerusform>%n Probleme wurden gemeldet.</numerusform>
        </translation>
    </message>
    <message>
        <source>What could not be copied or put back:</source>
        <translation>Was nicht kopiert oder wiederhergestellt werden konnte:</translation>
    </message>
    <message>
        <source>The copy failed partway: %1</source>
        <translation>Das Kopieren ist nach einem Teil der Einstellungen fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>CorrectionDialog</name>
    <message>
        <source>&amp;Correct the pictures</source>
        <translation>Bilder &amp;korrigieren</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>&amp;Defect map:</source>
        <translation>&amp;Defektkarte:</translation>
    </message>
    <message>
        <source>Choose a defect map</source>
        <translation>Defektkarte auswählen</translation>
    </message>
    <message>
        <source>Defect maps (*.json *.csv);;All files (*)</source>
        <translation>Defektkarten (*.json *.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Flat field:</source>
        <translation>&amp;Flat-Field:</translation>
    </message>
    <message>
        <source>Choose a flat field</source>
        <translation>Flat-Field auswählen</translation>
    </message>
    <message>
        <source>Flat fields (*.tif *.tiff);;All files (*)</source>
        <translation>Flat-Fields (*.tif *.tiff);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The correction applies to the shown pictures, to PNG and TIFF files and to TIFF recordings. Raw files, videos and measured values stay those of the camera.</source>
        <translation>Die Korrektur gilt für die angezeigten Bilder, für PNG- und TIFF-Dateien und für TIFF-Aufzeichnungen. Rohdaten, Videos und Messwerte bleiben die der Kamera.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>The pictures are not corrected: %1.</source>
        <translation>Die Bilder werden nicht korrigiert: %1.</translation>
    </message>
    <message>
        <source>The pictures are corrected.</source>
        <translation>Die Bilder werden korrigiert.</translation>
    </message>
</context>
<context>
    <name>DarkBox</name>
    <message>
        <source>Cover the lens, and choose a long exposure and a pixel format with many bits in the camera settings. Then measure while the camera warms up.</source>
        <translation>Decken Sie das Objektiv ab, und wählen Sie in den Kameraeinstellungen eine lange Belichtungszeit und ein Pixelformat mit vielen Bits. Messen Sie dann, während sich die Kamera erwärmt.</translation>
    </message>
    <message>
        <source>Stop measuring the &amp;dark level</source>
        <translation>&amp;Dunkelwert nicht mehr messen</translation>
    </message>
    <message>
        <source>Measure the &amp;dark level</source>
        <translation>&amp;Dunkelwert messen</translation>
    </message>
</context>
<context>
    <name>DefectList</name>
    <message>
        <source>Columns %1 to %2, lines %3 to %4</source>
        <translation>Spalten %1 bis %2, Zeilen %3 bis %4</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>Abweichung</translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s)</source>
        <translation>
            <numerusform>%n Pixel</numerusform>
            <numerusform>%n Pixel</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 σ</source>
        <translation>%1 σ</translation>
    </message>
</context>
<context>
    <name>DefectTexts</name>
    <message>
        <source>Hot</source>
        <translation>Heiß</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>Stuck</source>
        <translation>Hängend</translation>
    </message>
    <message>
        <source>Blinking</source>
        <translation>Blinkend</translation>
    </message>
    <message>
        <source>Deviating</source>
        <translation>Abweichend</translation>
    </message>
    <message>
        <source>Too bright in the dark.</source>
        <translation>Im Dunkeln zu hell.</translation>
    </message>
    <message>
        <source>Hardly reacts to light.</source>
        <translation>Reagiert kaum auf Licht.</translation>
    </message>
    <message>
        <source>Always has the same value.</source>
        <translation>Hat immer denselben Wert.</translation>
    </message>
    <message>
        <source>Changes between levels from image to image.</source>
        <translation>Springt von Bild zu Bild zwischen verschiedenen Werten.</translation>
    </message>
    <message>
        <source>Reacts to light much more or less than its neighbours.</source>
        <translation>Reagiert viel stärker oder schwächer auf Licht als seine Nachbarn.</translation>
    </message>
    <message>
        <source>Cluster</source>
        <translation>Cluster</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>No defect pixels were found.</source>
        <translation>Es wurden keine Defektpixel gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>%n defect pixel(s) found.</source>
        <translation>
            <numerusform>%n Defektpixel gefunden.</numerusform>
            <numerusform>%n Defektpixel gefunden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Numbers of the stream</source>
        <translation>Kennzahlen des Streams</translation>
    </message>
    <message>
        <source>Copies all numbers to the clipboard.</source>
        <translation>Kopiert alle Kennzahlen in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Command that corrects the cause</source>
        <translation>Befehl, der die Ursache behebt</translation>
    </message>
    <message>
        <source>Copy as te&amp;xt</source>
        <translation>Als Te&amp;xt kopieren</translation>
    </message>
    <message>
        <source>Copy comma&amp;nd</source>
        <translation>Be&amp;fehl kopieren</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message>
        <source>All values side by side</source>
        <translation>Alle Werte nebeneinander</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Set back</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Writes the value that the camera had when it was opened.</source>
        <translation>Schreibt den Wert, den die Kamera beim Öffnen hatte.</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>Enthält</translation>
    </message>
    <message>
        <source>At opening: %1</source>
        <translation>Beim Öffnen: %1</translation>
    </message>
    <message>
        <source>As it was when the camera was opened</source>
        <translation>Wie beim Öffnen der Kamera</translation>
    </message>
    <message>
        <source>Select a feature to see what the camera says about it.</source>
        <translation>Wählen Sie ein Feature aus, um die Angaben der Kamera dazu zu sehen.</translation>
    </message>
    <message>
        <source>Copy the name used in programs</source>
        <translation>Namen für Programme kopieren</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1; left: %2; right: %3</source>
        <translation>%1; links: %2; rechts: %3</translation>
    </message>
    <message>
        <source>(missing)</source>
        <translation>(fehlt)</translation>
    </message>
    <message>
        <source>%1
This value belongs to one camera or one moment.</source>
        <translation>%1
Dieser Wert ist kamera- oder zeitabhängig.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
</context>
<context>
    <name>DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the differences</source>
        <translation>Unterschiede durchsuchen</translation>
    </message>
    <message>
        <source>Also e&amp;qual</source>
        <translation>A&amp;uch gleiche</translation>
    </message>
    <message>
        <source>Shows the settings that both sides have in common too.</source>
        <translation>Zeigt auch die Einstellungen, die auf beiden Seiten gleich sind.</translation>
    </message>
    <message>
        <source>Also those of one camera or one &amp;moment</source>
        <translation>Auch kamera- oder &amp;zeitabhängige</translation>
    </message>
    <message>
        <source>Shows values that differ between cameras with the same settings too: serial numbers, temperatures, counters.</source>
        <translation>Zeigt auch Werte, die sich trotz gleicher Einstellungen von Kamera zu Kamera unterscheiden: Seriennummern, Temperaturen, Zähler.</translation>
    </message>
    <message>
        <source>There is no difference to show.</source>
        <translation>Es gibt keinen Unterschied anzuzeigen.</translation>
    </message>
    <message>
        <source>Nothing that is shown contains the text.</source>
        <translation>Keiner der angezeigten Einträge enthält den Text.</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Mark clipped pixels</source>
        <translation>Clipping markieren</translation>
    </message>
    <message>
        <source>Pick grey</source>
        <translation>Grau wählen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Fast (bilinear)</source>
        <translation>Schnell (bilinear)</translation>
    </message>
    <message>
        <source>Fine (along edges)</source>
        <translation>Fein (kantengeführt)</translation>
    </message>
    <message>
        <source>How the missing colours of a Bayer picture are found.</source>
        <translation>Verfahren, mit dem die fehlenden Farbwerte eines Bayer-Bilds berechnet werden.</translation>
    </message>
    <message>
        <source>Shows overexposed pixels in red and underexposed ones in blue.</source>
        <translation>Zeigt überbelichtete Pixel rot und unterbelichtete blau an.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source> µm</source>
        <translation> µm</translation>
    </message>
    <message>
        <source>Demosaicing</source>
        <translation>Demosaicing</translation>
    </message>
    <message>
        <source>Click on something grey in the picture. Its surroundings become grey on the screen.</source>
        <translation>Klicken Sie im Bild auf etwas Graues. Dessen Umgebung wird auf dem Bildschirm grau.</translation>
    </message>
    <message>
        <source>Reset the white balance</source>
        <translation>Weißabgleich zurücksetzen</translation>
    </message>
    <message>
        <source>Multiplies the white balance of the camera by these factors.</source>
        <translation>Multipliziert den Weißabgleich der Kamera mit diesen Faktoren.</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>R %1 G %2 B %3</source>
        <translation>R %1 G %2 B %3</translation>
    </message>
    <message>
        <source>The factors of red, green and blue on the screen.</source>
        <translation>Faktoren für Rot, Grün und Blau auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>Write to camera</source>
        <translation>In Kamera schreiben</translation>
    </message>
    <message>
        <source>What one pixel shows of the object. Lengths and the scale bar need this number.</source>
        <translation>Größe eines Pixels auf dem Objekt. Längen und Maßstabsbalken brauchen diesen Wert.</translation>
    </message>
    <message>
        <source>Size of a pixel</source>
        <translation>Objektpixelgröße</translation>
    </message>
</context>
<context>
    <name>DurationScale</name>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
</context>
<context>
    <name>EditorNote</name>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>Encoder</name>
    <message>
        <source>ffmpeg cannot be started: %1</source>
        <translation>ffmpeg kann nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>ffmpeg has failed: %1</source>
        <translation>ffmpeg ist fehlgeschlagen: %1</translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not accepted an image for %n second(s)</source>
        <translation>
            <numerusform>ffmpeg hat seit %n Sekunde kein Bild angenommen</numerusform>
            <numerusform>ffmpeg hat seit %n Sekunden kein Bild angenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not ended after %n second(s)</source>
        <translation>
            <numerusform>ffmpeg hat sich nach %n Sekunde noch nicht beendet</numerusform>
            <numerusform>ffmpeg hat sich nach %n Sekunden noch nicht beendet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportActions</name>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Saves what is shown as text or as a page (HTML).</source>
        <translation>Speichert die angezeigten Einträge als Text oder als HTML-Seite.</translation>
    </message>
    <message>
        <source>Copies what is shown as text to the clipboard.</source>
        <translation>Kopiert die angezeigten Einträge als Text in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Export the comparison</source>
        <translation>Vergleich exportieren</translation>
    </message>
    <message>
        <source>Page (*.html)</source>
        <translation>HTML-Seite (*.html)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>The comparison was saved as %1.</source>
        <translation>Der Vergleich wurde als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The comparison could not be saved as %1: %2</source>
        <translation>Der Vergleich konnte nicht als %1 gespeichert werden: %2</translation>
    </message>
    <message>
        <source>The comparison was copied.</source>
        <translation>Der Vergleich wurde kopiert.</translation>
    </message>
</context>
<context>
    <name>FeatureActions</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Show Locking Feature</source>
        <translation>Sperrendes Feature zeigen</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Namen kopieren</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Wert kopieren</translation>
    </message>
    <message>
        <source>Copy &quot;Name=Value&quot;</source>
        <translation>„Name=Wert“ kopieren</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Alle aufklappen</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Alle zuklappen</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ausführen</translation>
    </message>
</context>
<context>
    <name>FeatureEditor</name>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>Für diese Änderung muss der Stream kurz angehalten werden.</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>Anhalten und setzen</translation>
    </message>
</context>
<context>
    <name>FeatureFacts</name>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Not in this camera</source>
        <translation>In dieser Kamera nicht vorhanden</translation>
    </message>
    <message>
        <source>Not available at present</source>
        <translation>Derzeit nicht verfügbar</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Nur lesen</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>Nur schreiben</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lesen und schreiben</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>Logarithmisch</translation>
    </message>
    <message>
        <source>Number without slider</source>
        <translation>Zahl ohne Schieberegler</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadezimal</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4-Adresse</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n character(s)</source>
        <translation>
            <numerusform>%n Zeichen</numerusform>
            <numerusform>%n Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>Every %1 ms</source>
        <translation>Alle %1 ms</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Not allowed now</source>
        <translation>Derzeit nicht zulässig</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Zugriff</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>In settings files</source>
        <translation>In Einstellungsdateien</translation>
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
        <source>Changes by itself</source>
        <translation>Ändert sich von selbst</translation>
    </message>
    <message>
        <source>Selected by</source>
        <translation>Ausgewählt durch</translation>
    </message>
    <message>
        <source>Selects</source>
        <translation>Wählt aus</translation>
    </message>
    <message>
        <source>Depends on</source>
        <translation>Hängt ab von</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>Gleitkommazahl</translation>
    </message>
    <message>
        <source>Maximum length</source>
        <translation>Max. Textlänge</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>The camera is not connected.</source>
        <translation>Die Kamera ist nicht verbunden.</translation>
    </message>
    <message>
        <source>The value was not read yet.</source>
        <translation>Der Wert wurde noch nicht gelesen.</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>Features</source>
        <translation>Features</translation>
    </message>
</context>
<context>
    <name>FileNamePattern</name>
    <message>
        <source>name or model of the camera</source>
        <translation>Name oder Modell der Kamera</translation>
    </message>
    <message>
        <source>serial number of the camera</source>
        <translation>Seriennummer der Kamera</translation>
    </message>
    <message>
        <source>date of the image, for example 2026-01-31</source>
        <translation>Datum des Bilds, zum Beispiel 2026-01-31</translation>
    </message>
    <message>
        <source>time of the image, for example 23-59-59</source>
        <translation>Uhrzeit des Bilds, zum Beispiel 23-59-59</translation>
    </message>
    <message>
        <source>next free number; {number:4} has at least four digits</source>
        <translation>nächste freie Nummer; {number:4} hat mindestens vier Stellen</translation>
    </message>
    <message>
        <source>frame ID of the image</source>
        <translation>Frame-ID des Bilds</translation>
    </message>
    <message>
        <source>pixel format of the image, for example Mono8</source>
        <translation>Pixelformat des Bilds, zum Beispiel Mono8</translation>
    </message>
    <message>
        <source>The name may contain these placeholders:</source>
        <translation>Der Name darf diese Platzhalter enthalten:</translation>
    </message>
    <message>
        <source>a brace is missing; placeholders look like {number}</source>
        <translation>eine geschweifte Klammer fehlt; Platzhalter haben die Form {number}</translation>
    </message>
    <message>
        <source>the name must not contain &quot;/&quot;; choose the folder above</source>
        <translation>der Name darf kein „/“ enthalten; wählen Sie den Ordner oben aus</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>der Name ist leer</translation>
    </message>
    <message>
        <source>{%1} is not a placeholder; use one of %2</source>
        <translation>{%1} ist kein Platzhalter; möglich sind %2</translation>
    </message>
    <message>
        <source>{%1} has to be like {number:4}, with 1 to %2 digits</source>
        <translation>{%1} muss die Form {number:4} haben, mit 1 bis %2 Stellen</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>File %1</source>
        <translation>Datei %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Die Datei kann nicht geschrieben werden.</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the file %1? The other settings stay, but comments and lines that cannot be read are lost.</source>
        <translation>
            <numerusform>%n Einstellung in die Datei %1 schreiben? Die übrigen Einstellungen bleiben erhalten, aber Kommentare und nicht lesbare Zeilen gehen verloren.</numerusform>
            <numerusform>%n Einstellungen in die Datei %1 schreiben? Die übrigen Einstellungen bleiben erhalten, aber Kommentare und nicht lesbare Zeilen gehen verloren.</numerusform>
        </translation>
    </message>
    <message>
        <source>changed by a copy of differences</source>
        <translation>geändert durch Kopieren von Unterschieden</translation>
    </message>
</context>
<context>
    <name>FilesPanel</name>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>File &amp;name</source>
        <translation>Datei&amp;name</translation>
    </message>
    <message>
        <source>PNG, 16 bits</source>
        <translation>PNG, 16 Bit</translation>
    </message>
    <message>
        <source>PNG, 8 bits</source>
        <translation>PNG, 8 Bit</translation>
    </message>
    <message>
        <source>TIFF, measured values</source>
        <translation>TIFF, Messwerte</translation>
    </message>
    <message>
        <source>Raw bytes</source>
        <translation>Rohdaten</translation>
    </message>
    <message>
        <source>Saves the values of the picture that is shown, with a sidecar that contains the camera&apos;s settings. Contrast, white balance and marks of the display are not part of the file.</source>
        <translation>Speichert die Werte des angezeigten Bilds, dazu eine Begleitdatei mit den Einstellungen der Kamera. Kontrast, Weißabgleich und Markierungen der Anzeige werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Format of recordings</source>
        <translation>Format der Aufzeichnungen</translation>
    </message>
    <message>
        <source>BigTIFF, measured values</source>
        <translation>BigTIFF, Messwerte</translation>
    </message>
    <message>
        <source>Raw bytes with an index</source>
        <translation>Rohdaten mit Index</translation>
    </message>
    <message>
        <source>Video, 8 bits, H.264 (MP4)</source>
        <translation>Video, 8 Bit, H.264 (MP4)</translation>
    </message>
    <message>
        <source>Video, 8 bits, lossless (MKV)</source>
        <translation>Video, 8 Bit, verlustfrei (MKV)</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>Stoppen nach</translation>
    </message>
    <message>
        <source> images</source>
        <translation> Bilder</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Keep free</source>
        <translation>Frei lassen</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
    <message>
        <source>Stops the recording before less space than this is left on the disk.</source>
        <translation>Stoppt die Aufzeichnung, bevor weniger als dieser Speicherplatz auf dem Datenträger frei ist.</translation>
    </message>
    <message>
        <source>Play at</source>
        <translation>Abspielen mit</translation>
    </message>
    <message>
        <source> images/s</source>
        <translation> Bilder/s</translation>
    </message>
    <message>
        <source>Images per second when the video is played. Otherwise, it plays as fast as it was recorded.</source>
        <translation>Bilder pro Sekunde beim Abspielen des Videos. Ohne diese Angabe läuft es so schnell ab, wie es aufgezeichnet wurde.</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>Zum Beispiel: %1</translation>
    </message>
    <message>
        <source>Videos need the program ffmpeg, which is not installed. Install it with: %1</source>
        <translation>Videos benötigen das Programm ffmpeg, das nicht installiert ist. Installieren Sie es mit: %1</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>A&amp;ufzeichnen</translation>
    </message>
    <message>
        <source>S&amp;top recording</source>
        <translation>Aufzeichnung s&amp;toppen</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Wird geschrieben…</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>Gespeichert als „%1“.</translation>
    </message>
    <message>
        <source>The folder for snapshots and recordings.</source>
        <translation>Ordner für Bilder und Aufzeichnungen.</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>Wäh&amp;len…</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Einzelbild</translation>
    </message>
    <message>
        <source>Format of snapshots</source>
        <translation>Format der Einzelbilder</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>Bild speiche&amp;rn</translation>
    </message>
    <message>
        <source>Folder for snapshots and recordings</source>
        <translation>Ordner für Bilder und Aufzeichnungen</translation>
    </message>
    <message>
        <source>This name cannot be used: %1.</source>
        <translation>Dieser Name kann nicht verwendet werden: %1.</translation>
    </message>
    <message>
        <source>The camera is lost; the recording goes on when the camera is back. %1</source>
        <translation>Die Verbindung zur Kamera ist verloren; die Aufzeichnung geht weiter, sobald die Kamera wieder da ist. %1</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Search features</source>
        <translation>Features suchen</translation>
    </message>
    <message>
        <source>Shows the features with all of these words in their name or description.</source>
        <translation>Zeigt die Features, deren Name oder Beschreibung alle diese Wörter enthält.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Which features are shown: the most important ones, most, or all.</source>
        <translation>Legt fest, welche Features angezeigt werden: die wichtigsten, die meisten oder alle.</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Shows only features that have changed since the camera was opened.</source>
        <translation>Zeigt nur Features, die sich seit dem Öffnen der Kamera geändert haben.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Shows only the features that you have marked as favourites.</source>
        <translation>Zeigt nur die Features, die Sie als Favoriten markiert haben.</translation>
    </message>
</context>
<context>
    <name>FilterHint</name>
    <message numerus="yes">
        <source>%n feature(s) are hidden by the level %1.</source>
        <translation>
            <numerusform>%n Feature ist in der Stufe %1 ausgeblendet.</numerusform>
            <numerusform>%n Features sind in der Stufe %1 ausgeblendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Them</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>Kein Feature entspricht der Suche.</translation>
    </message>
    <message>
        <source>No feature is marked as a favourite. Ctrl+D marks one.</source>
        <translation>Kein Feature ist als Favorit markiert. Strg+D markiert eines.</translation>
    </message>
    <message>
        <source>No feature has changed since the camera was opened.</source>
        <translation>Seit dem Öffnen der Kamera hat sich kein Feature geändert.</translation>
    </message>
    <message>
        <source>This level has no features.</source>
        <translation>Diese Stufe hat keine Features.</translation>
    </message>
</context>
<context>
    <name>FindingCard</name>
    <message>
        <source>In order</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copies the command, which you can paste into a terminal.</source>
        <translation>Kopiert den Befehl, um ihn in ein Terminal einzufügen.</translation>
    </message>
</context>
<context>
    <name>FlatFieldPanel</name>
    <message>
        <source>Shading before</source>
        <translation>Shading vorher</translation>
    </message>
    <message>
        <source>Shading after</source>
        <translation>Shading nachher</translation>
    </message>
    <message>
        <source>Show the picture corrected</source>
        <translation>Bild korrigiert anzeigen</translation>
    </message>
    <message>
        <source>Dark images</source>
        <translation>Dunkelbilder</translation>
    </message>
    <message>
        <source>Cover the lens completely. The images show the offset of each pixel.</source>
        <translation>Decken Sie das Objektiv vollständig ab. Die Bilder zeigen den Offset jedes Pixels.</translation>
    </message>
    <message>
        <source>Take dark images</source>
        <translation>Dunkelbilder aufnehmen</translation>
    </message>
    <message>
        <source>Bright images</source>
        <translation>Hellbilder</translation>
    </message>
    <message>
        <source>Uncover the lens, and point the camera at an evenly lit surface, out of focus.</source>
        <translation>Nehmen Sie die Abdeckung ab, und richten Sie die Kamera unscharf auf eine gleichmäßig beleuchtete Fläche.</translation>
    </message>
    <message>
        <source>Take bright images</source>
        <translation>Hellbilder aufnehmen</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl apply the file to every picture of this camera.</source>
        <translation>Image Viewer und cvxctl wenden die Datei auf jedes Bild dieser Kamera an.</translation>
    </message>
    <message>
        <source>Save the correction…</source>
        <translation>Korrektur speichern…</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>Anzahl der Bilder</translation>
    </message>
    <message>
        <source>Images: </source>
        <translation>Bilder: </translation>
    </message>
    <message>
        <source>Sets the exposure time so that the bright images have about 70 % of the range, and puts it back afterwards.</source>
        <translation>Stellt die Belichtungszeit so ein, dass die Hellbilder etwa 70 % des Wertebereichs erreichen, und stellt sie danach wieder zurück.</translation>
    </message>
    <message>
        <source>Correct every pixel</source>
        <translation>Jedes Pixel korrigieren</translation>
    </message>
    <message>
        <source>Correct the shading only</source>
        <translation>Nur das Shading korrigieren</translation>
    </message>
    <message>
        <source>What is corrected</source>
        <translation>Was korrigiert wird</translation>
    </message>
    <message>
        <source>The shading only: the gain changes smoothly over the picture, which adds no noise.</source>
        <translation>Nur das Shading: Die Verstärkung ändert sich glatt über das Bild, wodurch kein Rauschen hinzukommt.</translation>
    </message>
    <message>
        <source>Keep the mean brightness</source>
        <translation>Mittlere Helligkeit erhalten</translation>
    </message>
    <message>
        <source>Raise to the brightest place</source>
        <translation>Auf hellste Stelle anheben</translation>
    </message>
    <message>
        <source>Brightness after the correction</source>
        <translation>Helligkeit nach der Korrektur</translation>
    </message>
    <message>
        <source>Raised to the brightest place, no gain is below 1: what is clipped stays white.</source>
        <translation>Beim Anheben auf die hellste Stelle ist keine Verstärkung kleiner als 1: Was übersteuert ist, bleibt weiß.</translation>
    </message>
    <message>
        <source>Non-uniformity before and after the correction</source>
        <translation>Inhomogenität vor und nach der Korrektur</translation>
    </message>
    <message>
        <source>DSNU: differences of the pixels in the dark. PRNU: differences of their sensitivity. By EMVA 1288 release 4.0, without the temporal noise.</source>
        <translation>DSNU: Unterschiede der Pixel im Dunkeln. PRNU: Unterschiede ihrer Empfindlichkeit. Nach EMVA 1288 Release 4.0, ohne das zeitliche Rauschen.</translation>
    </message>
    <message>
        <source>Mean of the columns, before and after</source>
        <translation>Mittelwerte der Spalten, vorher und nachher</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>% of the mean</source>
        <translation>% des Mittelwerts</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>Gespeichert als „%1“.</translation>
    </message>
    <message>
        <source>Set the exposure time automatically</source>
        <translation>Belichtungszeit einstellen</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images leave less noise in the correction. Half as many are taken in addition, to check the correction.</source>
        <translation>Jeweils für Dunkelbilder und Hellbilder. Mit mehr Bildern bleibt in der Korrektur weniger Rauschen. Zusätzlich werden halb so viele aufgenommen, um die Korrektur zu prüfen.</translation>
    </message>
    <message>
        <source>The dark images were taken.</source>
        <translation>Die Dunkelbilder sind aufgenommen.</translation>
    </message>
</context>
<context>
    <name>FlatFieldReport</name>
    <message>
        <source>Flat Field</source>
        <translation>Flat Field</translation>
    </message>
    <message>
        <source>Non-uniformity by EMVA 1288 release 4.0</source>
        <translation>Inhomogenität nach EMVA 1288 Release 4.0</translation>
    </message>
    <message>
        <source>Mean of the columns</source>
        <translation>Mittelwerte der Spalten</translation>
    </message>
    <message>
        <source>A picture as the camera sends it</source>
        <translation>Ein Bild, wie es die Kamera sendet</translation>
    </message>
    <message>
        <source>The same picture, corrected</source>
        <translation>Dasselbe Bild, korrigiert</translation>
    </message>
    <message>
        <source>The gains: the brighter, the higher</source>
        <translation>Verstärkungen: je heller, desto höher</translation>
    </message>
</context>
<context>
    <name>FlatFieldTexts</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 DN</source>
        <translation>%1 DN</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>Shading</source>
        <translation>Shading</translation>
    </message>
    <message>
        <source>… without shading</source>
        <translation>… ohne Shading</translation>
    </message>
    <message>
        <source>… in electrons</source>
        <translation>… in Elektronen</translation>
    </message>
    <message>
        <source>The picture is even: its shading is only %1.</source>
        <translation>Das Bild ist gleichmäßig: Sein Shading beträgt nur %1.</translation>
    </message>
    <message>
        <source>The correction reduces the shading from %1 to %2.</source>
        <translation>Die Korrektur verringert das Shading von %1 auf %2.</translation>
    </message>
    <message>
        <source>%1; gains from %2 to %3; bright images at %4 of the range.</source>
        <translation>%1; Verstärkungen von %2 bis %3; Hellbilder bei %4 des Wertebereichs.</translation>
    </message>
    <message numerus="yes">
        <source>The numbers after the correction are those of %n other image(s).</source>
        <translation>
            <numerusform>Die Werte nach der Korrektur stammen von %n anderen Bild.</numerusform>
            <numerusform>Die Werte nach der Korrektur stammen von %n anderen Bildern.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s) deviate strongly and got the gain of their neighbours; Pixel Repair replaces them.</source>
        <translation>
            <numerusform>%n Pixel weicht stark ab und hat die Verstärkung seiner Nachbarn erhalten; Pixel Repair ersetzt es.</numerusform>
            <numerusform>%n Pixel weichen stark ab und haben die Verstärkung ihrer Nachbarn erhalten; Pixel Repair ersetzt sie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The gain of %n pixel(s) was limited.</source>
        <translation>
            <numerusform>Die Verstärkung von %n Pixel wurde begrenzt.</numerusform>
            <numerusform>Die Verstärkung von %n Pixeln wurde begrenzt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FlatFieldWindow</name>
    <message>
        <source>Flat Field</source>
        <translation>Flat Field</translation>
    </message>
    <message>
        <source>The camera does not say its pixel format (PixelFormat), so its values cannot be corrected.</source>
        <translation>Die Kamera gibt ihr Pixelformat (PixelFormat) nicht an, deshalb können ihre Werte nicht korrigiert werden.</translation>
    </message>
    <message>
        <source>&amp;Save the correction…</source>
        <translation>Korrektur &amp;speichern…</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>Dunkelbilder werden aufgenommen</translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>Hellbilder werden aufgenommen</translation>
    </message>
</context>
<context>
    <name>FocusPanel</name>
    <message>
        <source>Share of the peak</source>
        <translation>Anteil am Maximum</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>Ergebnis &amp;speichern…</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>Schärfe in der letzten Minute</translation>
    </message>
    <message>
        <source>&amp;Forget the peaks</source>
        <translation>Ma&amp;xima vergessen</translation>
    </message>
    <message>
        <source>Begins again, for example because the camera looks at something else.</source>
        <translation>Beginnt von vorn, zum Beispiel weil die Kamera etwas anderes zeigt.</translation>
    </message>
    <message>
        <source>Point the camera</source>
        <translation>Kamera ausrichten</translation>
    </message>
    <message>
        <source>It looks at something with edges all over the picture.</source>
        <translation>Sie sieht etwas mit Kanten im ganzen Bild.</translation>
    </message>
    <message>
        <source>Find the best focus</source>
        <translation>Besten Fokus finden</translation>
    </message>
    <message>
        <source>Search &amp;automatically</source>
        <translation>&amp;Automatisch suchen</translation>
    </message>
    <message>
        <source>Read the tilt</source>
        <translation>Verkippung ablesen</translation>
    </message>
    <message>
        <source>The order in which the regions become sharp says how the focus is tilted.</source>
        <translation>Die Reihenfolge, in der die Bereiche scharf werden, zeigt, wie der Fokus verkippt ist.</translation>
    </message>
    <message>
        <source>Read the &amp;tilt</source>
        <translation>&amp;Verkippung ablesen</translation>
    </message>
    <message>
        <source>Moves the lens through its range and leaves it at the best position. Cancelling puts it back.</source>
        <translation>Fährt das Objektiv durch seinen Bereich und lässt es an der besten Position stehen. Abbrechen stellt es zurück.</translation>
    </message>
    <message>
        <source>Nothing was measured yet.</source>
        <translation>Es wurde noch nichts gemessen.</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>of the peak. Sharpness %1, peak %2.</source>
        <translation>des Maximums. Schärfe %1, Maximum %2.</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Search the best position, or turn the lens slowly through the sharpest position.</source>
        <translation>Lassen Sie die beste Position suchen, oder drehen Sie das Objektiv langsam durch die schärfste Position.</translation>
    </message>
    <message>
        <source>Turn the lens slowly through the sharpest position, then back to it.</source>
        <translation>Drehen Sie das Objektiv langsam durch die schärfste Position und dann zu ihr zurück.</translation>
    </message>
    <message>
        <source>Time before now</source>
        <translation>Zeit bis jetzt</translation>
    </message>
    <message>
        <source>Re&amp;gions per direction</source>
        <translation>Be&amp;reiche je Richtung</translation>
    </message>
</context>
<context>
    <name>FocusReport</name>
    <message>
        <source>Focus Assistant</source>
        <translation>Focus Assistant</translation>
    </message>
    <message>
        <source>Sharpness %1, which is %2 of the peak.</source>
        <translation>Schärfe %1; das sind %2 des Maximums.</translation>
    </message>
    <message>
        <source>Share of the peak of each region</source>
        <translation>Anteil am Maximum je Bereich</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>Schärfe in der letzten Minute</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Share of the peak</source>
        <translation>Anteil am Maximum</translation>
    </message>
    <message>
        <source>Best position</source>
        <translation>Beste Position</translation>
    </message>
    <message>
        <source>Sharp at (s)</source>
        <translation>Scharf bei (s)</translation>
    </message>
    <message>
        <source>Share at the best position</source>
        <translation>Anteil bei bester Position</translation>
    </message>
    <message>
        <source>The sharpness is the energy of the differences between neighbouring pixels, divided by the squared brightness, without the part of the noise. Exposure and gain do not change it.</source>
        <translation>Die Schärfe ist die Energie der Differenzen benachbarter Pixel, geteilt durch das Quadrat der Helligkeit, ohne den Anteil des Rauschens. Belichtung und Verstärkung ändern sie nicht.</translation>
    </message>
</context>
<context>
    <name>FocusTexts</name>
    <message>
        <source>Left end</source>
        <translation>Linkes Ende</translation>
    </message>
    <message>
        <source>Right end</source>
        <translation>Rechtes Ende</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>no edges</source>
        <translation>keine Kanten</translation>
    </message>
    <message>
        <source>too dark</source>
        <translation>zu dunkel</translation>
    </message>
    <message>
        <source>overexposed</source>
        <translation>überbelichtet</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Shares of their peaks at the best position: %1.</source>
        <translation>Anteile am jeweiligen Maximum bei der besten Position: %1.</translation>
    </message>
</context>
<context>
    <name>FocusWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>Ergebnis &amp;speichern…</translation>
    </message>
    <message>
        <source>Focus Assistant</source>
        <translation>Focus Assistant</translation>
    </message>
    <message>
        <source>Searching the best focus</source>
        <translation>Bester Fokus wird gesucht</translation>
    </message>
</context>
<context>
    <name>HexView</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Offset %1, byte %2</source>
        <translation>Offset %1, Byte %2</translation>
    </message>
    <message>
        <source>Offset %1, character %2</source>
        <translation>Offset %1, Zeichen %2</translation>
    </message>
    <message>
        <source>The clipboard contains no hexadecimal bytes.</source>
        <translation>Die Zwischenablage enthält keine hexadezimalen Bytes.</translation>
    </message>
    <message>
        <source>The clipboard contains no ASCII text.</source>
        <translation>Die Zwischenablage enthält keinen ASCII-Text.</translation>
    </message>
    <message numerus="yes">
        <source>The last %n byte(s) of the clipboard did not fit.</source>
        <translation>
            <numerusform>%n Byte am Ende der Zwischenablage passte nicht mehr hinein.</numerusform>
            <numerusform>%n Byte am Ende der Zwischenablage passten nicht mehr hinein.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistogramWidget</name>
    <message>
        <source>&lt; %1 %</source>
        <translation>&lt; %1 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Black point</source>
        <translation>Schwarzpunkt</translation>
    </message>
    <message>
        <source>White point</source>
        <translation>Weißpunkt</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Value %1
%2</source>
        <translation>Wert %1
%2</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Es ist kein Bild vorhanden.</translation>
    </message>
    <message>
        <source>%1 underexposed, %2 overexposed</source>
        <translation>%1 unterbelichtet, %2 überbelichtet</translation>
    </message>
    <message>
        <source>%1 dark</source>
        <translation>%1 dunkel</translation>
    </message>
    <message>
        <source>%1 bright</source>
        <translation>%1 hell</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Executed: %1</source>
        <translation>Ausgeführt: %1</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>This change was undone.</source>
        <translation>Diese Änderung wurde rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Alter Wert</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Changes since the camera was opened</source>
        <translation>Änderungen seit dem Öffnen der Kamera</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Export as script…</source>
        <translation>Als Skript exportieren…</translation>
    </message>
    <message>
        <source>Writes a shell script that makes these changes again with cvxctl.</source>
        <translation>Schreibt ein Shell-Skript, das diese Änderungen mit cvxctl erneut ausführt.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Export the changes</source>
        <translation>Änderungen exportieren</translation>
    </message>
    <message>
        <source>Shell scripts (*.sh)</source>
        <translation>Shell-Skripte (*.sh)</translation>
    </message>
    <message>
        <source>The script &quot;%1&quot; cannot be written: %2</source>
        <translation>Das Skript „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>HtmlReport</name>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Settings of the camera</source>
        <translation>Einstellungen der Kamera</translation>
    </message>
    <message>
        <source>Created by Corvix X, version %1.</source>
        <translation>Erstellt mit Corvix X, Version %1.</translation>
    </message>
</context>
<context>
    <name>ImageCanvas</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>No picture yet</source>
        <translation>Noch kein Bild</translation>
    </message>
    <message>
        <source>%1 by %2 pixels, shown at %3 %</source>
        <translation>%1 mal %2 Pixel, angezeigt mit %3 %</translation>
    </message>
</context>
<context>
    <name>InputsForm</name>
    <message>
        <source>&amp;Lines come from</source>
        <translation>&amp;Zeilentakt</translation>
    </message>
    <message>
        <source>the camera&apos;s line rate</source>
        <translation>Zeilenrate der Kamera</translation>
    </message>
    <message>
        <source>an encoder</source>
        <translation>Encoder</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Geschwindigkeit</translation>
    </message>
    <message>
        <source>mm/s</source>
        <translation>mm/s</translation>
    </message>
    <message>
        <source>Speed of the object. With an encoder: the highest speed, for which the limits are checked.</source>
        <translation>Geschwindigkeit des Objekts. Mit Encoder: die höchste Geschwindigkeit, für die die Grenzen geprüft werden.</translation>
    </message>
    <message>
        <source>&amp;Encoder</source>
        <translation>En&amp;coder</translation>
    </message>
    <message>
        <source>movement per pulse</source>
        <translation>Weg je Impuls</translation>
    </message>
    <message>
        <source>pulses and roller</source>
        <translation>Impulse und Rolle</translation>
    </message>
    <message>
        <source>&amp;Movement per pulse</source>
        <translation>&amp;Weg je Impuls</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Movement of the object for one pulse, that is one cycle of one signal of the encoder.</source>
        <translation>Weg des Objekts bei einem Impuls, also einer Periode eines Encodersignals.</translation>
    </message>
    <message>
        <source>Number of pulses that the encoder sends while its roller turns once.</source>
        <translation>Anzahl der Impulse, die der Encoder bei einer Umdrehung seiner Rolle sendet.</translation>
    </message>
    <message>
        <source>Roller &amp;diameter</source>
        <translation>Rollen&amp;durchmesser</translation>
    </message>
    <message>
        <source>Diameter of the roller or wheel that turns the encoder.</source>
        <translation>Durchmesser der Rolle oder des Rads, das den Encoder antreibt.</translation>
    </message>
    <message>
        <source>Size of a &amp;pixel</source>
        <translation>&amp;Pixelgröße</translation>
    </message>
    <message>
        <source>from sensor and lens</source>
        <translation>aus Sensor und Objektiv</translation>
    </message>
    <message>
        <source>known on the object</source>
        <translation>auf dem Objekt bekannt</translation>
    </message>
    <message>
        <source>Pi&amp;xel of the sensor</source>
        <translation>Sensorpi&amp;xel</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Width of a pixel of the sensor; the data sheet names it.</source>
        <translation>Breite eines Pixels auf dem Sensor; sie steht im Datenblatt.</translation>
    </message>
    <message>
        <source>Ma&amp;gnification</source>
        <translation>Abbildungs&amp;maßstab</translation>
    </message>
    <message>
        <source>Size of the image on the sensor divided by the size of the object, for example 0.5.</source>
        <translation>Größe des Bilds auf dem Sensor geteilt durch die Größe des Objekts, zum Beispiel 0,5.</translation>
    </message>
    <message>
        <source>Pixel &amp;on the object</source>
        <translation>&amp;Objektpixelgröße</translation>
    </message>
    <message>
        <source>Width of the object that one pixel of the picture shows.</source>
        <translation>Breite des Objekts, die ein Pixel des Bilds zeigt.</translation>
    </message>
    <message>
        <source>Use the longest exposure</source>
        <translation>Längste Belichtung nutzen</translation>
    </message>
    <message>
        <source>Otherwise, the exposure is only shortened if it does not fit into a line.</source>
        <translation>Sonst wird die Belichtung nur verkürzt, wenn sie nicht in eine Zeile passt.</translation>
    </message>
    <message>
        <source>not entered</source>
        <translation>nicht angegeben</translation>
    </message>
    <message>
        <source>Pulses per re&amp;volution</source>
        <translation>Impulse je &amp;Umdrehung</translation>
    </message>
</context>
<context>
    <name>JobBar</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>LastingJob</name>
    <message>
        <source>The work was cancelled before it began, or the camera was closed.</source>
        <translation>Der Vorgang wurde vor dem Beginn abgebrochen, oder die Kamera wurde geschlossen.</translation>
    </message>
</context>
<context>
    <name>LayoutBox</name>
    <message>
        <source>As the camera says</source>
        <translation>Laut Kamera</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>Taps:</translation>
    </message>
    <message>
        <source>Side by side:</source>
        <translation>Nebeneinander:</translation>
    </message>
    <message>
        <source>Stripes of the picture, from left to right</source>
        <translation>Streifen des Bilds, von links nach rechts</translation>
    </message>
    <message>
        <source>One above the other:</source>
        <translation>Übereinander:</translation>
    </message>
    <message>
        <source>Stripes of the picture, from top to bottom</source>
        <translation>Streifen des Bilds, von oben nach unten</translation>
    </message>
    <message>
        <source>Neighbouring columns:</source>
        <translation>Benachbarte Spalten:</translation>
    </message>
    <message>
        <source>Taps that read the columns of a stripe in turn; 1 if a stripe has one tap</source>
        <translation>Taps, die die Spalten eines Streifens abwechselnd auslesen; 1, wenn ein Streifen einen Tap hat</translation>
    </message>
    <message>
        <source>Mean of all taps</source>
        <translation>Mittelwert aller Taps</translation>
    </message>
    <message>
        <source>Tap 1</source>
        <translation>Tap 1</translation>
    </message>
    <message>
        <source>Compare with:</source>
        <translation>Vergleichen mit:</translation>
    </message>
    <message>
        <source>Images of each measurement; more images make the numbers more certain</source>
        <translation>Bilder je Messung; mit mehr Bildern werden die Werte sicherer</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <source>Camera: %1</source>
        <translation>Kamera: %1</translation>
    </message>
    <message>
        <source>Not reported by the camera</source>
        <translation>Keine Angabe der Kamera</translation>
    </message>
</context>
<context>
    <name>LengthText</name>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>%1 µm</source>
        <translation>%1 µm</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
</context>
<context>
    <name>LevelBar</name>
    <message>
        <source>Brightness of the live picture</source>
        <translation>Helligkeit des Livebilds</translation>
    </message>
    <message>
        <source>%1 % of the range; 50 to 80 % is good</source>
        <translation>%1 % des Wertebereichs; gut sind 50 bis 80 %</translation>
    </message>
    <message>
        <source>%1 % of the values are clipped</source>
        <translation>%1 % der Werte sind übersteuert</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Es ist kein Bild vorhanden.</translation>
    </message>
</context>
<context>
    <name>LevelText</name>
    <message>
        <source>Beginner</source>
        <translation>Beginner</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>Guru</translation>
    </message>
</context>
<context>
    <name>LineScanReport</name>
    <message>
        <source>Speed of the object</source>
        <translation>Geschwindigkeit des Objekts</translation>
    </message>
    <message>
        <source>mm/s</source>
        <translation>mm/s</translation>
    </message>
    <message>
        <source>Movement per encoder pulse</source>
        <translation>Weg je Encoderimpuls</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>Objektpixelgröße</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Line rate for square pixels</source>
        <translation>Zeilenrate für quadratische Pixel</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Lines per pulse for square pixels</source>
        <translation>Zeilen je Impuls für quadratische Pixel</translation>
    </message>
    <message>
        <source>Longest exposure</source>
        <translation>Längste Belichtung</translation>
    </message>
    <message>
        <source>µs</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>Höchste Geschwindigkeit</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Verbleibender Fehler</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Line Scan Tuner</source>
        <translation>Line Scan Tuner</translation>
    </message>
    <message>
        <source>Round target</source>
        <translation>Runde Marke</translation>
    </message>
    <message>
        <source>First measurement</source>
        <translation>Erste Messung</translation>
    </message>
    <message>
        <source>Last measurement</source>
        <translation>Letzte Messung</translation>
    </message>
    <message>
        <source>Height to width</source>
        <translation>Höhe zu Breite</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>Turn of the camera (°)</source>
        <translation>Verdrehung der Kamera (°)</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>The picture at the time of the report</source>
        <translation>Das Bild zum Zeitpunkt des Berichts</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>Zeilenrate</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Written settings</source>
        <translation>Geschriebene Einstellungen</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
</context>
<context>
    <name>LineScanWindow</name>
    <message>
        <source>Line Scan Tuner</source>
        <translation>Line Scan Tuner</translation>
    </message>
    <message>
        <source>This camera takes whole pictures: it has no line rate (AcquisitionLineRate) and no encoder. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>Diese Kamera nimmt ganze Bilder auf: Sie hat keine Zeilenrate (AcquisitionLineRate) und keinen Encoder. Wählen Sie eine Zeilenkamera, die einzelne Zeilen eines bewegten Objekts aufnimmt.</translation>
    </message>
    <message>
        <source>Do the &amp;next step</source>
        <translation>&amp;Nächsten Schritt ausführen</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>Ergebnis &amp;speichern…</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Strg+Eingabe</translation>
    </message>
    <message>
        <source>Do the next step</source>
        <translation>Nächsten Schritt ausführen</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Strg+S</translation>
    </message>
    <message>
        <source>Save the result</source>
        <translation>Ergebnis speichern</translation>
    </message>
    <message>
        <source>No round target was found yet.</source>
        <translation>Es wurde noch keine runde Marke gefunden.</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>Ergebnis speichern…</translation>
    </message>
    <message>
        <source>the largest</source>
        <translation>die größte</translation>
    </message>
    <message>
        <source>the one that I click</source>
        <translation>die angeklickte</translation>
    </message>
    <message>
        <source>in the columns that I draw</source>
        <translation>in den gezeichneten Spalten</translation>
    </message>
    <message>
        <source>Which disc or ring is measured. The picture rolls, so only the columns count.</source>
        <translation>Welche Scheibe oder welcher Ring gemessen wird. Das Bild läuft durch, deshalb zählen nur die Spalten.</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>M&amp;arke</translation>
    </message>
    <message>
        <source>Look for the target in the live picture</source>
        <translation>Marke im Livebild suchen</translation>
    </message>
    <message>
        <source>The picture stands still for a moment where a target was found.</source>
        <translation>Das Bild bleibt kurz stehen, wenn eine Marke gefunden wurde.</translation>
    </message>
    <message>
        <source>Describe the machine</source>
        <translation>Maschine beschreiben</translation>
    </message>
    <message>
        <source>Pixels are square if the camera takes one line while the object moves by one pixel.</source>
        <translation>Pixel sind quadratisch, wenn die Kamera je eine Zeile aufnimmt, während sich das Objekt um ein Pixel bewegt.</translation>
    </message>
    <message>
        <source>Set the camera</source>
        <translation>Kamera einstellen</translation>
    </message>
    <message>
        <source>This follows from the machine and from the limits of the camera.</source>
        <translation>Dies ergibt sich aus der Maschine und aus den Grenzen der Kamera.</translation>
    </message>
    <message>
        <source>Write the settings</source>
        <translation>Einstellungen schreiben</translation>
    </message>
    <message>
        <source>Undo what was written</source>
        <translation>Schreiben rückgängig machen</translation>
    </message>
    <message>
        <source>Measure a round target</source>
        <translation>Runde Marke messen</translation>
    </message>
    <message>
        <source>Let a dark or bright disc or ring move under the camera. It must be complete in one picture.</source>
        <translation>Lassen Sie eine dunkle oder helle Scheibe oder einen solchen Ring unter der Kamera durchlaufen. Die Marke muss vollständig in einem Bild liegen.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Make it round</source>
        <translation>Rund machen</translation>
    </message>
    <message>
        <source>Correct the rate</source>
        <translation>Rate korrigieren</translation>
    </message>
    <message>
        <source>The target in the live picture is round.</source>
        <translation>Die Marke im Livebild ist rund.</translation>
    </message>
    <message>
        <source>The target in the live picture is too tall.</source>
        <translation>Die Marke im Livebild ist zu hoch.</translation>
    </message>
    <message>
        <source>The target in the live picture is too flat.</source>
        <translation>Die Marke im Livebild ist zu flach.</translation>
    </message>
    <message>
        <source>The line rate, or the ratio of the encoder, is multiplied with width / height of the target.</source>
        <translation>Die Zeilenrate oder das Encoderverhältnis wird mit Breite / Höhe der Marke multipliziert.</translation>
    </message>
    <message>
        <source>The camera is turned by %1° against the movement.</source>
        <translation>Die Kamera ist um %1° gegenüber der Bewegungsrichtung verdreht.</translation>
    </message>
    <message>
        <source>The camera has accepted the settings.</source>
        <translation>Die Kamera hat die Einstellungen übernommen.</translation>
    </message>
    <message>
        <source>Measuring the target</source>
        <translation>Marke wird gemessen</translation>
    </message>
</context>
<context>
    <name>LivePicture</name>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>Die Kamera sendet keine Bilder. %1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off.</source>
        <translation>Die Kamera wartet auf einen Trigger. Lösen Sie ihn aus, oder schalten Sie den Triggermodus aus.</translation>
    </message>
    <message>
        <source>No picture has arrived yet.</source>
        <translation>Es ist noch kein Bild angekommen.</translation>
    </message>
</context>
<context>
    <name>LiveStream</name>
    <message>
        <source>The stream of the camera has ended.</source>
        <translation>Der Stream der Kamera wurde beendet.</translation>
    </message>
</context>
<context>
    <name>LoadDialog</name>
    <message>
        <source>Show only what &amp;changes</source>
        <translation>Nur Änderungen &amp;zeigen</translation>
    </message>
    <message>
        <source>Load what &amp;fits. If you cancel, what was loaded stays.</source>
        <translation>Laden, was &amp;passt. Beim Abbrechen bleibt, was schon geladen wurde.</translation>
    </message>
    <message>
        <source>&amp;All or nothing. If a setting fails or you cancel, everything is put back.</source>
        <translation>&amp;Alles oder nichts. Bei einem Fehler oder beim Abbrechen wird alles wiederhergestellt.</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>&amp;Undo the load</source>
        <translation>Laden zu&amp;rücknehmen</translation>
    </message>
    <message>
        <source>Co&amp;py report</source>
        <translation>Bericht &amp;kopieren</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>Laden: %1</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Nothing is written at all if a line of the file cannot be read, or if a setting cannot fit the camera.</source>
        <translation>Es wird überhaupt nichts geschrieben, wenn eine Zeile der Datei nicht lesbar ist oder eine Einstellung nicht zur Kamera passen kann.</translation>
    </message>
    <message>
        <source>Puts back all settings from before the load.</source>
        <translation>Stellt alle Einstellungen von vor dem Laden wieder her.</translation>
    </message>
    <message>
        <source>The load was not undone. Without this dialog, it cannot be undone any more.</source>
        <translation>Das Laden wurde nicht zurückgenommen. Ohne diesen Dialog ist das nicht mehr möglich.</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>Trotzdem &amp;schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>LoadTable</name>
    <message>
        <source>The line cannot be read. %1</source>
        <translation>Die Zeile ist nicht lesbar. %1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>In camera</source>
        <translation>In Kamera</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Rückgelesen</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>LoadText</name>
    <message>
        <source>Cannot be loaded.</source>
        <translation>Kann nicht geladen werden.</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Fehlgeschlagen.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) cannot be loaded.</source>
        <translation>
            <numerusform>%n Einstellung kann nicht geladen werden.</numerusform>
            <numerusform>%n Einstellungen können nicht geladen werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) failed.</source>
        <translation>
            <numerusform>%n Einstellung ist fehlgeschlagen.</numerusform>
            <numerusform>%n Einstellungen sind fehlgeschlagen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Will change.</source>
        <translation>Wird geändert.</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>Geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will change.</source>
        <translation>
            <numerusform>%n Einstellung wird geändert.</numerusform>
            <numerusform>%n Einstellungen werden geändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) changed.</source>
        <translation>
            <numerusform>%n Einstellung wurde geändert.</numerusform>
            <numerusform>%n Einstellungen wurden geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Overruled by another setting.</source>
        <translation>Von einer anderen Einstellung übersteuert.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will be overruled by others.</source>
        <translation>
            <numerusform>%n Einstellung wird von anderen übersteuert.</numerusform>
            <numerusform>%n Einstellungen werden von anderen übersteuert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were overruled by others.</source>
        <translation>
            <numerusform>%n Einstellung wurde von anderen übersteuert.</numerusform>
            <numerusform>%n Einstellungen wurden von anderen übersteuert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already have the value.</source>
        <translation>
            <numerusform>%n Einstellung hat den Wert bereits.</numerusform>
            <numerusform>%n Einstellungen haben den Wert bereits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already had the value.</source>
        <translation>
            <numerusform>%n Einstellung hatte den Wert bereits.</numerusform>
            <numerusform>%n Einstellungen hatten den Wert bereits.</numerusform>
        </translation>
    </message>
    <message>
        <source>Already has this value.</source>
        <translation>Bereits gesetzt.</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) cannot be read.</source>
        <translation>
            <numerusform>%n Zeile ist nicht lesbar.</numerusform>
            <numerusform>%n Zeilen sind nicht lesbar.</numerusform>
        </translation>
    </message>
    <message>
        <source>The load was cancelled, and the settings from before were put back.</source>
        <translation>Das Laden wurde abgebrochen, und die vorherigen Einstellungen wurden wiederhergestellt.</translation>
    </message>
    <message>
        <source>The load has failed, and the settings from before were put back.</source>
        <translation>Das Laden ist fehlgeschlagen, und die vorherigen Einstellungen wurden wiederhergestellt.</translation>
    </message>
    <message>
        <source>The load was cancelled. What was loaded before stays.</source>
        <translation>Das Laden wurde abgebrochen. Was schon geladen wurde, bleibt.</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>Das Laden wurde abgebrochen. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Nothing was changed, because not everything can be loaded.</source>
        <translation>Es wurde nichts geändert, weil sich nicht alles laden lässt.</translation>
    </message>
    <message>
        <source>Not everything could be loaded.</source>
        <translation>Nicht alles konnte geladen werden.</translation>
    </message>
    <message>
        <source>The settings were loaded and read back.</source>
        <translation>Die Einstellungen wurden geladen und rückgelesen.</translation>
    </message>
    <message>
        <source>All settings from before the load were put back.</source>
        <translation>Alle Einstellungen von vor dem Laden wurden wiederhergestellt.</translation>
    </message>
    <message>
        <source>Not all settings from before the load could be put back.</source>
        <translation>Nicht alle Einstellungen von vor dem Laden konnten wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Put back.</source>
        <translation>Wiederhergestellt.</translation>
    </message>
    <message>
        <source>Not put back.</source>
        <translation>Nicht wiederhergestellt.</translation>
    </message>
    <message>
        <source>The settings are being compared with the camera.</source>
        <translation>Die Einstellungen werden mit der Kamera verglichen.</translation>
    </message>
    <message>
        <source>The settings are being loaded and read back.</source>
        <translation>Die Einstellungen werden geladen und rückgelesen.</translation>
    </message>
    <message>
        <source>The settings from before the load are being put back.</source>
        <translation>Die Einstellungen von vor dem Laden werden wiederhergestellt.</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Es würde sich nichts ändern.</translation>
    </message>
    <message>
        <source>There are no settings to load.</source>
        <translation>Es gibt keine Einstellungen zu laden.</translation>
    </message>
</context>
<context>
    <name>LockText</name>
    <message>
        <source>Not available at present.</source>
        <translation>Derzeit nicht verfügbar.</translation>
    </message>
    <message>
        <source>Not available while %1 is %2.</source>
        <translation>Nicht verfügbar, solange %1 auf %2 steht.</translation>
    </message>
    <message>
        <source>Locked by the camera.</source>
        <translation>Von der Kamera gesperrt.</translation>
    </message>
    <message>
        <source>Controlled by %1.</source>
        <translation>Wird von %1 gesteuert.</translation>
    </message>
    <message>
        <source>Locked while %1 is %2.</source>
        <translation>Gesperrt, solange %1 auf %2 steht.</translation>
    </message>
    <message>
        <source>This camera does not have the feature.</source>
        <translation>Diese Kamera hat das Feature nicht.</translation>
    </message>
    <message>
        <source>The camera only reports this value.</source>
        <translation>Die Kamera meldet diesen Wert nur; er kann nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>Die Kamera wird nur beobachtet, deshalb sind keine Änderungen möglich.</translation>
    </message>
    <message>
        <source>Locked while the camera streams.</source>
        <translation>Gesperrt, solange der Stream der Kamera läuft.</translation>
    </message>
    <message>
        <source>Not available because of the setting of %1.</source>
        <translation>Wegen der Einstellung von %1 nicht verfügbar.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 zeigen</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1 auf %2 setzen</translation>
    </message>
</context>
<context>
    <name>LogBox</name>
    <message>
        <source>Appends each reading to a CSV file until you stop it. A file of the same camera is continued.</source>
        <translation>Hängt jeden Messwert an eine CSV-Datei an, bis Sie das Protokoll stoppen. Eine Datei derselben Kamera wird fortgesetzt.</translation>
    </message>
    <message>
        <source>Log the temperatures</source>
        <translation>Temperaturen protokollieren</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>CSV-Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>Stop the &amp;log</source>
        <translation>&amp;Protokoll stoppen</translation>
    </message>
    <message>
        <source>Start a &amp;log…</source>
        <translation>&amp;Protokoll starten…</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Protokoll: %1</translation>
    </message>
    <message>
        <source>The readings are not logged.</source>
        <translation>Die Messwerte werden nicht protokolliert.</translation>
    </message>
</context>
<context>
    <name>LossAdvice</name>
    <message>
        <source>Packets are lost between camera and computer: check cable and switch, or reduce the frame rate or the region.</source>
        <translation>Zwischen Kamera und Rechner gehen Pakete verloren: Prüfen Sie Kabel und Switch, oder verringern Sie die Bildrate oder den Bildausschnitt.</translation>
    </message>
    <message>
        <source>Transfers are lost between camera and computer: check the cable, connect the camera without a hub, or reduce the frame rate or the region.</source>
        <translation>Zwischen Kamera und Rechner gehen Übertragungen verloren: Prüfen Sie das Kabel, schließen Sie die Kamera ohne Hub an, oder verringern Sie die Bildrate oder den Bildausschnitt.</translation>
    </message>
    <message>
        <source>The connection or the computer is too slow: reduce the frame rate or the region, or close other programs.</source>
        <translation>Die Verbindung oder der Rechner ist zu langsam: Verringern Sie die Bildrate oder den Bildausschnitt, oder schließen Sie andere Programme.</translation>
    </message>
    <message numerus="yes">
        <source>No buffer was free for %n image(s). This computer is too slow at present: close other programs, record to a faster disk, or reduce the frame rate or the region.</source>
        <translation>
            <numerusform>Für %n Bild war kein Puffer frei. Dieser Rechner ist derzeit zu langsam: Schließen Sie andere Programme, zeichnen Sie auf einen schnelleren Datenträger auf, oder verringern Sie die Bildrate oder den Bildausschnitt.</numerusform>
            <numerusform>Für %n Bilder war kein Puffer frei. Dieser Rechner ist derzeit zu langsam: Schließen Sie andere Programme, zeichnen Sie auf einen schnelleren Datenträger auf, oder verringern Sie die Bildrate oder den Bildausschnitt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were lost or damaged in the last seconds.</source>
        <translation>
            <numerusform>In den letzten Sekunden ging %n Bild verloren oder wurde beschädigt.</numerusform>
            <numerusform>In den letzten Sekunden gingen %n Bilder verloren oder wurden beschädigt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were incomplete in the last seconds.</source>
        <translation>
            <numerusform>In den letzten Sekunden war %n Bild unvollständig.</numerusform>
            <numerusform>In den letzten Sekunden waren %n Bilder unvollständig.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Measure</name>
    <message>
        <source>The brightness changed by %1 % while the bright images were taken. Use a steady light, and take the images again.</source>
        <translation>Die Helligkeit hat sich während der Aufnahme der Hellbilder um %1 % geändert. Verwenden Sie gleichmäßiges Licht, und nehmen Sie die Bilder erneut auf.</translation>
    </message>
    <message>
        <source>Something moved while the bright images were taken. Point the camera at an evenly lit surface without objects, keep it still, and take the images again.</source>
        <translation>Während der Aufnahme der Hellbilder hat sich etwas bewegt. Richten Sie die Kamera auf eine gleichmäßig beleuchtete Fläche ohne Objekte, halten Sie sie ruhig, und nehmen Sie die Bilder erneut auf.</translation>
    </message>
    <message>
        <source>The bright images show a scene. Point the camera at an evenly lit surface without objects, for example white paper close to the lens and out of focus, and take the images again.</source>
        <translation>Die Hellbilder zeigen eine Szene. Richten Sie die Kamera auf eine gleichmäßig beleuchtete Fläche ohne Objekte, zum Beispiel auf weißes Papier dicht vor dem Objektiv und unscharf, und nehmen Sie die Bilder erneut auf.</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the highest value: light reaches the sensor, or the exposure is too long. Cover the lens, then take the dark images again.</source>
        <translation>Die Dunkelbilder haben %1 % des höchsten Werts: Licht erreicht den Sensor, oder die Belichtung ist zu lang. Decken Sie das Objektiv ab, und nehmen Sie die Dunkelbilder erneut auf.</translation>
    </message>
    <message>
        <source>The dark images show something: light reaches the sensor. Cover the lens completely, then take the dark images again.</source>
        <translation>Auf den Dunkelbildern ist etwas zu sehen: Licht erreicht den Sensor. Decken Sie das Objektiv vollständig ab, und nehmen Sie die Dunkelbilder erneut auf.</translation>
    </message>
    <message>
        <source>Many pixels of the dark images have the value 0, so their noise is not visible. Increase the black level (BlackLevel), then take the dark images again.</source>
        <translation>Viele Pixel der Dunkelbilder haben den Wert 0, deshalb ist ihr Rauschen nicht sichtbar. Erhöhen Sie den Schwarzwert (BlackLevel), und nehmen Sie die Dunkelbilder erneut auf.</translation>
    </message>
    <message>
        <source>The bright images are too dark: they use %1 % of the value range. Uncover the lens, use more light or a longer exposure, and take the images again.</source>
        <translation>Die Hellbilder sind zu dunkel: Sie nutzen %1 % des Wertebereichs. Nehmen Sie die Abdeckung ab, verwenden Sie mehr Licht oder eine längere Belichtung, und nehmen Sie die Bilder erneut auf.</translation>
    </message>
    <message>
        <source>%1 % of the pixels of the bright images have the highest value. Use less light or a shorter exposure, and take the images again.</source>
        <translation>%1 % der Pixel der Hellbilder haben den höchsten Wert. Verwenden Sie weniger Licht oder eine kürzere Belichtung, und nehmen Sie die Bilder erneut auf.</translation>
    </message>
    <message>
        <source>%1 % of the pixels deviate from their neighbours, so the surface had a structure, or light reached the sensor during the dark images. Take the images again.</source>
        <translation>%1 % der Pixel weichen von ihren Nachbarn ab; die Fläche hatte also eine Struktur, oder bei den Dunkelbildern erreichte Licht den Sensor. Nehmen Sie die Bilder erneut auf.</translation>
    </message>
    <message>
        <source>Set %1 to %2: defect pixels are measured at full resolution without mirroring.</source>
        <translation>Setzen Sie %1 auf %2: Defektpixel werden bei voller Auflösung und ohne Spiegelung gemessen.</translation>
    </message>
    <message>
        <source>Choose a pixel format that contains the values of the pixels as they are, with 8 to 16 bits: Mono8 to Mono16, or Bayer (PixelFormat).</source>
        <translation>Wählen Sie ein Pixelformat, das die Werte der Pixel unverändert enthält, mit 8 bis 16 Bit: Mono8 bis Mono16 oder Bayer (PixelFormat).</translation>
    </message>
    <message>
        <source>Choose a region of %1 x %1 pixels or more (Width, Height).</source>
        <translation>Wählen Sie einen Bildausschnitt von mindestens %1 x %1 Pixeln (Width, Height).</translation>
    </message>
    <message>
        <source>The size or the pixel format of the images has changed. Take the images again.</source>
        <translation>Die Größe oder das Pixelformat der Bilder hat sich geändert. Nehmen Sie die Bilder erneut auf.</translation>
    </message>
    <message>
        <source>Take %1 images or more: with fewer images, the noise hides defects.</source>
        <translation>Nehmen Sie mindestens %1 Bilder auf: Bei weniger Bildern verdeckt das Rauschen Defekte.</translation>
    </message>
    <message>
        <source>The region or the pixel format differs from that of the dark images. Set it as before, or take the dark images again.</source>
        <translation>Der Bildausschnitt oder das Pixelformat weicht von dem der Dunkelbilder ab. Stellen Sie den vorherigen Zustand ein, oder nehmen Sie die Dunkelbilder erneut auf.</translation>
    </message>
    <message>
        <source>The gain differs from that of the dark images, %1. Set it as before, or take the dark images again.</source>
        <translation>Die Verstärkung weicht von der der Dunkelbilder, %1, ab. Stellen Sie sie wie zuvor ein, oder nehmen Sie die Dunkelbilder erneut auf.</translation>
    </message>
    <message>
        <source>The camera has sent the same pictures again and again. Lower AcquisitionFrameRate, then measure again.</source>
        <translation>Die Kamera hat immer wieder dieselben Bilder gesendet. Verringern Sie AcquisitionFrameRate, und messen Sie dann noch einmal.</translation>
    </message>
</context>
<context>
    <name>MeasureBar</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>End the measurement. The settings of the camera are put back. (Esc)</source>
        <translation>Beendet die Messung. Die Einstellungen der Kamera werden wiederhergestellt. (Esc)</translation>
    </message>
</context>
<context>
    <name>MeasureJob</name>
    <message>
        <source>The camera is not open for control, so nothing can be measured.</source>
        <translation>Die Kamera ist nicht zum Steuern geöffnet, deshalb kann nichts gemessen werden.</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Measure again when it is back.</source>
        <translation>Die Verbindung zur Kamera ging während der Messung verloren. Messen Sie erneut, sobald die Kamera wieder da ist.</translation>
    </message>
    <message>
        <source>The camera was closed during the measurement.</source>
        <translation>Die Kamera wurde während der Messung geschlossen.</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>Die Kamera sendet keine Bilder. %1</translation>
    </message>
    <message>
        <source>Some settings were not put back. %1</source>
        <translation>Einige Einstellungen wurden nicht wiederhergestellt. %1</translation>
    </message>
</context>
<context>
    <name>MeasuredComponent</name>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>Luma</translation>
    </message>
    <message>
        <source>Cb</source>
        <translation>Cb</translation>
    </message>
    <message>
        <source>Cr</source>
        <translation>Cr</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erste</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Zweite</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>Dritte</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation>Vierte</translation>
    </message>
</context>
<context>
    <name>MeasuringPanel</name>
    <message>
        <source>The picture has no colours to balance.</source>
        <translation>Das Bild hat keine Farben, die sich abgleichen lassen.</translation>
    </message>
    <message>
        <source>This place is too dark for a white balance. Pick a brighter one.</source>
        <translation>Diese Stelle ist zu dunkel für einen Weißabgleich. Wählen Sie eine hellere.</translation>
    </message>
    <message>
        <source>This place is overexposed. Pick a darker one, or reduce the exposure.</source>
        <translation>Diese Stelle ist überbelichtet. Wählen Sie eine dunklere, oder verringern Sie die Belichtung.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>Drawn region</source>
        <translation>Eigener Bereich</translation>
    </message>
    <message>
        <source>Measured area</source>
        <translation>Messbereich</translation>
    </message>
    <message>
        <source>Where histogram and statistics are measured. Draw a region in the picture to measure it.</source>
        <translation>Bereich, in dem Histogramm und Statistik gemessen werden. Zeichnen Sie einen Bereich ins Bild, um ihn zu messen.</translation>
    </message>
    <message>
        <source>Shows the histogram logarithmically, so that rare values can be seen.</source>
        <translation>Zeigt das Histogramm logarithmisch, damit auch seltene Werte sichtbar sind.</translation>
    </message>
    <message>
        <source>Fit contrast</source>
        <translation>Kontrast spreizen</translation>
    </message>
    <message>
        <source>Spreads the values of the picture from black to white. Only the display changes.</source>
        <translation>Spreizt die Werte des Bilds von Schwarz bis Weiß. Nur die Anzeige ändert sich.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Reset the contrast</source>
        <translation>Kontrast zurücksetzen</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copies the statistics to the clipboard, for a table.</source>
        <translation>Kopiert die Statistik als Tabelle in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>The pixel format is not known, so bytes are measured.</source>
        <translation>Das Pixelformat ist unbekannt, deshalb werden Bytes gemessen.</translation>
    </message>
</context>
<context>
    <name>NoCameraPage</name>
    <message>
        <source>Connect a camera and switch it on. It appears here by itself.</source>
        <translation>Schließen Sie eine Kamera an und schalten Sie sie ein. Sie erscheint hier automatisch.</translation>
    </message>
    <message>
        <source>Show what is in order, too</source>
        <translation>Auch zeigen, was in Ordnung ist</translation>
    </message>
    <message>
        <source>The checks are running</source>
        <translation>Die Prüfungen laufen</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Checking producers, network, GigE and USB. This takes some seconds.</source>
        <translation>Producer, Netzwerk, GigE und USB werden geprüft. Das dauert einige Sekunden.</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>Erneut &amp;prüfen</translation>
    </message>
    <message>
        <source>No camera found</source>
        <translation>Keine Kamera gefunden</translation>
    </message>
    <message>
        <source>The checks have found no problem.</source>
        <translation>Die Prüfungen haben kein Problem gefunden.</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>Gefundene Probleme: %1</translation>
    </message>
</context>
<context>
    <name>NoteListDialog</name>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>NumberEditor</name>
    <message>
        <source>The nearest value that the camera allows is %1.</source>
        <translation>Der nächstliegende Wert, den die Kamera zulässt, ist %1.</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 bis %2 %3</translation>
    </message>
    <message>
        <source>%1, in steps of %2</source>
        <translation>%1, in Schritten von %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>OpeningSnapshot</name>
    <message>
        <source>This camera at opening</source>
        <translation>Diese Kamera beim Öffnen</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 was changed before its value at opening was read.</source>
        <translation>%1 wurde geändert, bevor der Wert beim Öffnen gelesen war.</translation>
    </message>
    <message>
        <source>%1 was executed before all settings were read, so some of them may be those after it.</source>
        <translation>%1 wurde ausgeführt, bevor alle Einstellungen gelesen waren; einige davon können deshalb den Stand danach zeigen.</translation>
    </message>
    <message>
        <source>There are too many values, so only some were read.</source>
        <translation>Es gibt zu viele Werte, deshalb wurden nur einige gelesen.</translation>
    </message>
</context>
<context>
    <name>OpeningSource</name>
    <message>
        <source>This camera at opening</source>
        <translation>Diese Kamera beim Öffnen</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>Es ist keine Kamera geöffnet.</translation>
    </message>
    <message>
        <source>The settings at opening are still being read.</source>
        <translation>Die Einstellungen beim Öffnen werden noch gelesen.</translation>
    </message>
    <message>
        <source>The settings at opening cannot be changed. Choose another right side.</source>
        <translation>Der Stand beim Öffnen lässt sich nicht mehr ändern. Wählen Sie eine andere rechte Seite.</translation>
    </message>
</context>
<context>
    <name>OtherCameraSource</name>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>Another program uses this camera, so it was only watched.</source>
        <translation>Ein anderes Programm verwendet diese Kamera, deshalb wurde sie nur beobachtet.</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) to the camera %1? This cannot be undone here.</source>
        <translation>
            <numerusform>%n Einstellung in die Kamera %1 schreiben? Das lässt sich hier nicht rückgängig machen.</numerusform>
            <numerusform>%n Einstellungen in die Kamera %1 schreiben? Das lässt sich hier nicht rückgängig machen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Opening the camera was cancelled.</source>
        <translation>Das Öffnen der Kamera wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The camera is not connected any more.</source>
        <translation>Die Kamera ist nicht mehr verbunden.</translation>
    </message>
    <message>
        <source>The camera did not answer in time.</source>
        <translation>Die Kamera hat nicht rechtzeitig geantwortet.</translation>
    </message>
</context>
<context>
    <name>PictureReadout</name>
    <message>
        <source>x %1, y %2</source>
        <translation>x %1, y %2</translation>
    </message>
    <message>
        <source>raw %1</source>
        <translation>Rohwert %1</translation>
    </message>
    <message>
        <source>shown %1</source>
        <translation>Anzeige %1</translation>
    </message>
    <message>
        <source>unknown pixel format, byte %1</source>
        <translation>unbekanntes Pixelformat, Byte %1</translation>
    </message>
</context>
<context>
    <name>PlanView</name>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>by the link</source>
        <translation>durch den Link</translation>
    </message>
    <message>
        <source>by the exposure</source>
        <translation>durch die Belichtung</translation>
    </message>
    <message>
        <source>by the camera</source>
        <translation>durch die Kamera</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Settings that are written</source>
        <translation>Einstellungen, die geschrieben werden</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>Objektpixelgröße</translation>
    </message>
    <message>
        <source>%1 µm</source>
        <translation>%1 µm</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>Zeilenrate</translation>
    </message>
    <message>
        <source>Highest line rate</source>
        <translation>Höchste Zeilenrate</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>Höchste Geschwindigkeit</translation>
    </message>
    <message>
        <source>%1 mm/s</source>
        <translation>%1 mm/s</translation>
    </message>
    <message>
        <source>Longest exposure</source>
        <translation>Längste Belichtung</translation>
    </message>
    <message>
        <source>%1 µs</source>
        <translation>%1 µs</translation>
    </message>
    <message>
        <source>Dead time of a line</source>
        <translation>Totzeit einer Zeile</translation>
    </message>
    <message>
        <source>Lines per pulse</source>
        <translation>Zeilen je Impuls</translation>
    </message>
    <message>
        <source>Multiplier, divider</source>
        <translation>Multiplikator, Teiler</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Verbleibender Fehler</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>The camera is set up for this already.</source>
        <translation>Die Kamera ist bereits so eingestellt.</translation>
    </message>
    <message>
        <source>These features are written, in this order:</source>
        <translation>Diese Features werden in dieser Reihenfolge geschrieben:</translation>
    </message>
</context>
<context>
    <name>ProfileBox</name>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Drawn line</source>
        <translation>Eigene Linie</translation>
    </message>
    <message>
        <source>Line of the profile</source>
        <translation>Linie des Profils</translation>
    </message>
    <message>
        <source>Row and column are those of the pointer in the picture.</source>
        <translation>Zeile und Spalte folgen dem Mauszeiger im Bild.</translation>
    </message>
    <message>
        <source>Line profile</source>
        <translation>Linienprofil</translation>
    </message>
</context>
<context>
    <name>ProfileWidget</name>
    <message>
        <source>Line profile</source>
        <translation>Linienprofil</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Pixel %1
%2</source>
        <translation>Pixel %1
%2</translation>
    </message>
    <message>
        <source>There is no line to measure.</source>
        <translation>Es ist keine Linie zum Messen vorhanden.</translation>
    </message>
</context>
<context>
    <name>RateGraph</name>
    <message>
        <source>Images per second and losses of the last minute</source>
        <translation>Bilder pro Sekunde und Verluste der letzten Minute</translation>
    </message>
    <message>
        <source>60 s ago</source>
        <translation>vor 60 s</translation>
    </message>
    <message>
        <source>30 s ago</source>
        <translation>vor 30 s</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>Images/s</source>
        <translation>Bilder/s</translation>
    </message>
    <message>
        <source>Lost or incomplete/s</source>
        <translation>Verloren oder unvollständig/s</translation>
    </message>
</context>
<context>
    <name>RecordingControl</name>
    <message>
        <source>no pictures arrive; start the live picture first</source>
        <translation>es kommen keine Bilder an; starten Sie zuerst das Livebild</translation>
    </message>
    <message>
        <source>the camera was closed</source>
        <translation>die Kamera wurde geschlossen</translation>
    </message>
    <message>
        <source>The recording ended because the limit of free space was reached.</source>
        <translation>Die Aufzeichnung endete, weil die Grenze für den freien Speicherplatz erreicht war.</translation>
    </message>
</context>
<context>
    <name>RecordingSummary</name>
    <message>
        <source>The recording did not begin: %1.</source>
        <translation>Die Aufzeichnung wurde nicht gestartet: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) recorded in %1 to &quot;%2&quot;.</source>
        <translation>
            <numerusform>%n Bild in %1 in „%2“ aufgezeichnet.</numerusform>
            <numerusform>%n Bilder in %1 in „%2“ aufgezeichnet.</numerusform>
        </translation>
    </message>
    <message>
        <source>The recording ended early: %1.</source>
        <translation>Die Aufzeichnung endete vorzeitig: %1.</translation>
    </message>
    <message>
        <source>No image is missing.</source>
        <translation>Es fehlt kein Bild.</translation>
    </message>
    <message>
        <source>The image format changed during the recording; the file describes each image.</source>
        <translation>Das Bildformat hat sich während der Aufzeichnung geändert; die Datei beschreibt jedes Bild.</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) never arrived from the camera</source>
        <translation>
            <numerusform>%n Bild kam nicht von der Kamera an</numerusform>
            <numerusform>%n Bilder kamen nicht von der Kamera an</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) found no free buffer</source>
        <translation>
            <numerusform>%n Bild fand keinen freien Puffer</numerusform>
            <numerusform>%n Bilder fanden keinen freien Puffer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be kept because the disk or the encoder is too slow</source>
        <translation>
            <numerusform>%n Bild konnte nicht übernommen werden, weil Datenträger oder Encoder zu langsam sind</numerusform>
            <numerusform>%n Bilder konnten nicht übernommen werden, weil Datenträger oder Encoder zu langsam sind</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be written</source>
        <translation>
            <numerusform>%n Bild konnte nicht geschrieben werden</numerusform>
            <numerusform>%n Bilder konnten nicht geschrieben werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n recorded image(s) are incomplete</source>
        <translation>
            <numerusform>%n aufgezeichnetes Bild ist unvollständig</numerusform>
            <numerusform>%n aufgezeichnete Bilder sind unvollständig</numerusform>
        </translation>
    </message>
    <message>
        <source>; </source>
        <comment>between parts of a list</comment>
        <translation>; </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>disk space</comment>
        <translation>%1 frei</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) waiting</source>
        <translation>
            <numerusform>%n Bild wartet</numerusform>
            <numerusform>%n Bilder warten</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost for a while.</source>
        <translation>Die Verbindung zur Kamera war zeitweise verloren.</translation>
    </message>
    <message>
        <source>Lost or incomplete: %1.</source>
        <translation>Verloren oder unvollständig: %1.</translation>
    </message>
</context>
<context>
    <name>RegionCall</name>
    <message>
        <source>The camera does not report its region.</source>
        <translation>Die Kamera meldet ihren Bildausschnitt nicht.</translation>
    </message>
    <message>
        <source>The camera&apos;s region has changed since it was drawn. Draw it again on the present picture.</source>
        <translation>Der Bildausschnitt der Kamera hat sich seit dem Zeichnen geändert. Zeichnen Sie den Bereich im aktuellen Bild neu.</translation>
    </message>
</context>
<context>
    <name>RegisterEditor</name>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Writes all bytes to the camera (Ctrl+Return).</source>
        <translation>Schreibt alle Bytes in die Kamera (Strg+Eingabe).</translation>
    </message>
    <message>
        <source>Shows the bytes of the camera again (Escape).</source>
        <translation>Zeigt wieder die Bytes der Kamera (Esc).</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, not readable</source>
        <translation>%1, nicht lesbar</translation>
    </message>
</context>
<context>
    <name>RepairPanel</name>
    <message>
        <source>Cover the lens</source>
        <translation>Objektiv abdecken</translation>
    </message>
    <message>
        <source>No light may reach the sensor. A long exposure and a high gain show more hot pixels: use the longest exposure that you work with, and let the camera warm up.</source>
        <translation>Kein Licht darf den Sensor erreichen. Eine lange Belichtung und eine hohe Verstärkung zeigen mehr heiße Pixel: Verwenden Sie die längste Belichtung, mit der Sie arbeiten, und lassen Sie die Kamera warm werden.</translation>
    </message>
    <message>
        <source>Take &amp;dark images</source>
        <translation>&amp;Dunkelbilder aufnehmen</translation>
    </message>
    <message>
        <source>Point at an evenly lit surface</source>
        <translation>Auf gleichmäßig beleuchtete Fläche richten</translation>
    </message>
    <message>
        <source>Uncover the lens and fill the picture with one bright surface without objects, for example white paper, out of focus. Half of the highest brightness is best; leave the gain as it is.</source>
        <translation>Nehmen Sie die Abdeckung ab, und füllen Sie das Bild unscharf mit einer hellen Fläche ohne Objekte, zum Beispiel weißem Papier. Am besten ist die Hälfte der höchsten Helligkeit; lassen Sie die Verstärkung unverändert.</translation>
    </message>
    <message>
        <source>Take &amp;bright images</source>
        <translation>Hell&amp;bilder aufnehmen</translation>
    </message>
    <message>
        <source>Save the map</source>
        <translation>Defektkarte speichern</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl repair pictures with the map. A report and a table are saved beside it.</source>
        <translation>Image Viewer und cvxctl korrigieren Bilder mit der Defektkarte. Ein Bericht und eine Tabelle werden daneben gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>&amp;Number of images</source>
        <translation>A&amp;nzahl der Bilder</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images find weaker defects and pixels that blink rarely.</source>
        <translation>Von jeder Art. Mehr Bilder finden schwächere Defekte und Pixel, die selten blinken.</translation>
    </message>
</context>
<context>
    <name>RepairReport</name>
    <message>
        <source>Pixel Repair</source>
        <translation>Pixel Repair</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>Cluster</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>Defektpixel, die einander berühren.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>Spaltenabschnitte mit mindestens acht Defektpixeln.</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>Zeilenabschnitte mit mindestens acht Defektpixeln.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Places of the defect pixels on the sensor</source>
        <translation>Lage der Defektpixel auf dem Sensor</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Bedingungen</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Exposure in ms</source>
        <translation>Belichtung in ms</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>Spread of the good pixels</source>
        <translation>Streuung der guten Pixel</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Threshold: %1 standard deviations. Examined pixels: %2.</source>
        <translation>Schwelle: %1 Standardabweichungen. Untersuchte Pixel: %2.</translation>
    </message>
</context>
<context>
    <name>RepairWindow</name>
    <message>
        <source>&amp;Save the map…</source>
        <translation>Defektkarte &amp;speichern…</translation>
    </message>
    <message>
        <source>Pixel Repair</source>
        <translation>Pixel Repair</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>Dunkelbilder werden aufgenommen</translation>
    </message>
    <message numerus="yes">
        <source>%n dark image(s) taken.</source>
        <translation>
            <numerusform>%n Dunkelbild aufgenommen.</numerusform>
            <numerusform>%n Dunkelbilder aufgenommen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>Hellbilder werden aufgenommen</translation>
    </message>
    <message>
        <source>%1 was off during the measurement, so the map also contains what the camera itself can repair.</source>
        <translation>%1 war während der Messung ausgeschaltet; deshalb enthält die Defektkarte auch, was die Kamera selbst korrigieren kann.</translation>
    </message>
    <message>
        <source>The picture is not repaired: %1.</source>
        <translation>Das Bild wird nicht repariert: %1.</translation>
    </message>
</context>
<context>
    <name>RestoreBar</name>
    <message>
        <source>Shows which settings differ from those when the camera was opened.</source>
        <translation>Zeigt, welche Einstellungen vom Stand beim Öffnen der Kamera abweichen.</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>%1 Settings that were not made with this program may have the values from power-on.</source>
        <translation>%1 Einstellungen, die nicht mit diesem Programm vorgenommen wurden, haben möglicherweise die Werte vom Einschalten.</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>Die Kamera wird nur beobachtet, deshalb sind keine Änderungen möglich.</translation>
    </message>
    <message>
        <source>The settings were not read completely before the camera was lost.</source>
        <translation>Die Einstellungen waren noch nicht vollständig gelesen, als die Verbindung zur Kamera verloren ging.</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>Zeigt, was sich ändern würde, und stellt dann alles so ein, wie es beim Öffnen der Kamera war.</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>Res&amp;tore</source>
        <translation>W&amp;iederherstellen</translation>
    </message>
</context>
<context>
    <name>ResultBox</name>
    <message>
        <source>Defect pixels</source>
        <translation>Defektpixel</translation>
    </message>
    <message>
        <source>&amp;Mark the defect pixels</source>
        <translation>Defektpixel &amp;markieren</translation>
    </message>
    <message>
        <source>Replaces each defect pixel by the median of its good neighbours of the same colour.</source>
        <translation>Ersetzt jedes Defektpixel durch den Median seiner guten Nachbarn derselben Farbe.</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>Cluster</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>Defektpixel, die einander berühren.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>Spaltenabschnitte mit mindestens acht Defektpixeln.</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>Zeilenabschnitte mit mindestens acht Defektpixeln.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Show the re&amp;paired picture</source>
        <translation>Ko&amp;rrigiertes Bild zeigen</translation>
    </message>
</context>
<context>
    <name>ResultSaver</name>
    <message>
        <source>Save the result</source>
        <translation>Ergebnis speichern</translation>
    </message>
    <message>
        <source>Results (%1)</source>
        <translation>Ergebnisse (%1)</translation>
    </message>
    <message>
        <source>These files exist already: %1. Do you want to replace them?</source>
        <translation>Diese Dateien existieren bereits: %1. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved. %2</source>
        <translation>„%1“ wurde nicht gespeichert. %2</translation>
    </message>
</context>
<context>
    <name>SelectorTable</name>
    <message>
        <source>Read again</source>
        <translation>Neu lesen</translation>
    </message>
    <message>
        <source>Values of the selected features</source>
        <translation>Werte der über den Selektor gewählten Features</translation>
    </message>
    <message>
        <source>Show the feature</source>
        <translation>Feature zeigen</translation>
    </message>
    <message>
        <source>The feature has no selector, so it has only one value.</source>
        <translation>Das Feature hat keinen Selektor und deshalb nur einen Wert.</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>The values for each %1</source>
        <translation>Werte je %1</translation>
    </message>
    <message>
        <source>%1, while %2</source>
        <translation>%1, bei %2</translation>
    </message>
    <message>
        <source>Reading the values for each %1</source>
        <translation>Werte je %1 werden gelesen</translation>
    </message>
    <message>
        <source>Reading was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The selector has more values; only the first ones are shown here.</source>
        <translation>Der Selektor hat weitere Werte; hier werden nur die ersten angezeigt.</translation>
    </message>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>Für diese Änderung muss der Stream kurz angehalten werden.</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>Anhalten und setzen</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>%1 wird geschrieben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of %2.</source>
        <translation>„%1“ ist kein Wert von %2.</translation>
    </message>
</context>
<context>
    <name>Sentence</name>
    <message>
        <source>The exposure time of this camera cannot be set. Change the light until the picture has about 70 % of the range, and measure without setting the exposure time.</source>
        <translation>Die Belichtungszeit dieser Kamera lässt sich nicht einstellen. Ändern Sie das Licht, bis das Bild etwa 70 % des Wertebereichs erreicht, und messen Sie, ohne die Belichtungszeit einzustellen.</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed since the dark images. Take the dark images again.</source>
        <translation>Der Bildausschnitt oder das Pixelformat hat sich seit den Dunkelbildern geändert. Nehmen Sie die Dunkelbilder erneut auf.</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be corrected. Choose a Mono or Bayer format of 8 to 16 bits.</source>
        <translation>Das Pixelformat %1 kann nicht korrigiert werden. Wählen Sie ein Mono- oder Bayer-Format mit 8 bis 16 Bit.</translation>
    </message>
    <message>
        <source>The colours of a line scan camera cannot be corrected. Choose a Mono format.</source>
        <translation>Die Farben einer Zeilenkamera können nicht korrigiert werden. Wählen Sie ein Mono-Format.</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed during the measurement. Measure again without changing them.</source>
        <translation>Der Bildausschnitt oder das Pixelformat hat sich während der Messung geändert. Messen Sie erneut, ohne beides zu ändern.</translation>
    </message>
    <message>
        <source>%1 images are too few for a correction. Take at least %2.</source>
        <translation>%1 Bilder sind zu wenige für eine Korrektur. Nehmen Sie mindestens %2 auf.</translation>
    </message>
    <message>
        <source>The bright images are too dark: %1 % of the range above the dark images. Is the lens still covered? Otherwise, use more light or a longer exposure time, for about 70 %.</source>
        <translation>Die Hellbilder sind zu dunkel: %1 % des Wertebereichs über den Dunkelbildern. Ist das Objektiv noch abgedeckt? Verwenden Sie andernfalls mehr Licht oder eine längere Belichtungszeit, bis etwa 70 % erreicht sind.</translation>
    </message>
    <message>
        <source>The bright images have %1 % of the range. Between 50 and 80 %, the gains are most exact.</source>
        <translation>Die Hellbilder erreichen %1 % des Wertebereichs. Zwischen 50 und 80 % sind die Verstärkungen am genauesten.</translation>
    </message>
    <message>
        <source>Parts of the picture have changed by %1 % between the images: something moves, or the light flickers. Use an even surface that keeps still, and steady light.</source>
        <translation>Teile des Bilds haben sich zwischen den Bildern um %1 % geändert: Etwas bewegt sich, oder das Licht flackert. Verwenden Sie eine gleichmäßige, unbewegte Fläche und konstantes Licht.</translation>
    </message>
    <message>
        <source>The brightness has changed by %1 % between the images. Use steady light.</source>
        <translation>Die Helligkeit hat sich zwischen den Bildern um %1 % geändert. Verwenden Sie konstantes Licht.</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the range, so there seems to be light. Cover the lens completely. If it is covered, reduce BlackLevel or Gain.</source>
        <translation>Die Dunkelbilder haben %1 % des Wertebereichs; offenbar fällt Licht ein. Decken Sie das Objektiv vollständig ab. Wenn es abgedeckt ist, verringern Sie BlackLevel oder Gain.</translation>
    </message>
    <message>
        <source>The dark images are not equally dark everywhere. Make sure that no light reaches the lens, and take them again.</source>
        <translation>Die Dunkelbilder sind nicht überall gleich dunkel. Stellen Sie sicher, dass kein Licht in das Objektiv fällt, und nehmen Sie sie erneut auf.</translation>
    </message>
    <message>
        <source>%1 % of the values in the dark are 0, so the offsets are cut off. Increase BlackLevel.</source>
        <translation>%1 % der Werte im Dunkeln sind 0, die Offsets sind also abgeschnitten. Erhöhen Sie BlackLevel.</translation>
    </message>
    <message>
        <source>The noise in the dark is smaller than one step of the pixel format, so the numbers of the dark images are not exact. A pixel format with more bits shows the differences.</source>
        <translation>Das Rauschen im Dunkeln ist kleiner als eine Stufe des Pixelformats, deshalb sind die Werte der Dunkelbilder nicht genau. Ein Pixelformat mit mehr Bits zeigt die Unterschiede.</translation>
    </message>
    <message>
        <source>%1 % of the values in the bright images are clipped. Reduce the exposure time or the light, to about 70 % of the range.</source>
        <translation>%1 % der Werte in den Hellbildern sind übersteuert. Verringern Sie die Belichtungszeit oder das Licht, auf etwa 70 % des Wertebereichs.</translation>
    </message>
    <message>
        <source>The bright images show structures that look like an object and not like shading; the correction would draw them into every picture. Use an even surface, out of focus.</source>
        <translation>Die Hellbilder zeigen Strukturen, die nach einem Objekt aussehen und nicht nach Shading; die Korrektur würde sie in jedes Bild übertragen. Verwenden Sie eine gleichmäßige Fläche, unscharf abgebildet.</translation>
    </message>
    <message>
        <source>The picture is too dark. Remove the lens cap, open the aperture, add light or lengthen the exposure time.</source>
        <translation>Das Bild ist zu dunkel. Nehmen Sie die Objektivkappe ab, öffnen Sie die Blende, sorgen Sie für mehr Licht, oder verlängern Sie die Belichtungszeit.</translation>
    </message>
    <message>
        <source>%1 % of the pixels are overexposed. Close the aperture or shorten the exposure time.</source>
        <translation>%1 % der Pixel sind überbelichtet. Schließen Sie die Blende, oder verkürzen Sie die Belichtungszeit.</translation>
    </message>
    <message>
        <source>The picture has no edges. Point the camera at something with structure, for example a printed page, or turn the lens if the picture is blurred.</source>
        <translation>Das Bild hat keine Kanten. Richten Sie die Kamera auf etwas mit Struktur, zum Beispiel eine bedruckte Seite, oder drehen Sie am Objektiv, wenn das Bild unscharf ist.</translation>
    </message>
    <message>
        <source>Pictures of this pixel format cannot be measured. Choose a Mono, Bayer, RGB or YUV format.</source>
        <translation>Bilder in diesem Pixelformat können nicht gemessen werden. Wählen Sie ein Mono-, Bayer-, RGB- oder YUV-Format.</translation>
    </message>
    <message>
        <source>The picture is too small for so many regions. Choose a larger Width and Height, or fewer regions.</source>
        <translation>Das Bild ist zu klein für so viele Bereiche. Wählen Sie größere Werte für Width und Height oder weniger Bereiche.</translation>
    </message>
    <message>
        <source>The picture became sharp at no position of the lens. Point the camera at something with structure, check the distance, and search again.</source>
        <translation>Das Bild wurde an keiner Position des Objektivs scharf. Richten Sie die Kamera auf etwas mit Struktur, prüfen Sie den Abstand, und suchen Sie erneut.</translation>
    </message>
    <message>
        <source>The camera cannot move its lens: it has no feature for the position of the focus, for example LensFocusPosition. Turn the lens by hand.</source>
        <translation>Die Kamera kann ihr Objektiv nicht verstellen: Sie hat kein Feature für die Fokusposition, zum Beispiel LensFocusPosition. Drehen Sie das Objektiv von Hand.</translation>
    </message>
    <message>
        <source>The right edge is sharp at a higher position than the left edge, by %1.</source>
        <translation>Der rechte Rand ist an einer um %1 höheren Position scharf als der linke.</translation>
    </message>
    <message>
        <source>The left edge became sharp before the right edge, by %1 s.</source>
        <translation>Der linke Rand wurde %1 s vor dem rechten scharf.</translation>
    </message>
    <message>
        <source>The lower right corner is sharp at a higher position than the upper left corner, by %1.</source>
        <translation>Die untere rechte Ecke ist an einer um %1 höheren Position scharf als die obere linke.</translation>
    </message>
    <message>
        <source>The upper left corner became sharp before the lower right corner, by %1 s.</source>
        <translation>Die obere linke Ecke wurde %1 s vor der unteren rechten scharf.</translation>
    </message>
    <message>
        <source>The lower edge is sharp at a higher position than the upper edge, by %1.</source>
        <translation>Der untere Rand ist an einer um %1 höheren Position scharf als der obere.</translation>
    </message>
    <message>
        <source>The upper edge became sharp before the lower edge, by %1 s.</source>
        <translation>Der obere Rand wurde %1 s vor dem unteren scharf.</translation>
    </message>
    <message>
        <source>The lower left corner is sharp at a higher position than the upper right corner, by %1.</source>
        <translation>Die untere linke Ecke ist an einer um %1 höheren Position scharf als die obere rechte.</translation>
    </message>
    <message>
        <source>The upper right corner became sharp before the lower left corner, by %1 s.</source>
        <translation>Die obere rechte Ecke wurde %1 s vor der unteren linken scharf.</translation>
    </message>
    <message>
        <source>The left edge is sharp at a higher position than the right edge, by %1.</source>
        <translation>Der linke Rand ist an einer um %1 höheren Position scharf als der rechte.</translation>
    </message>
    <message>
        <source>The right edge became sharp before the left edge, by %1 s.</source>
        <translation>Der rechte Rand wurde %1 s vor dem linken scharf.</translation>
    </message>
    <message>
        <source>The upper left corner is sharp at a higher position than the lower right corner, by %1.</source>
        <translation>Die obere linke Ecke ist an einer um %1 höheren Position scharf als die untere rechte.</translation>
    </message>
    <message>
        <source>The lower right corner became sharp before the upper left corner, by %1 s.</source>
        <translation>Die untere rechte Ecke wurde %1 s vor der oberen linken scharf.</translation>
    </message>
    <message>
        <source>The upper edge is sharp at a higher position than the lower edge, by %1.</source>
        <translation>Der obere Rand ist an einer um %1 höheren Position scharf als der untere.</translation>
    </message>
    <message>
        <source>The lower edge became sharp before the upper edge, by %1 s.</source>
        <translation>Der untere Rand wurde %1 s vor dem oberen scharf.</translation>
    </message>
    <message>
        <source>The upper right corner is sharp at a higher position than the lower left corner, by %1.</source>
        <translation>Die obere rechte Ecke ist an einer um %1 höheren Position scharf als die untere linke.</translation>
    </message>
    <message>
        <source>The lower left corner became sharp before the upper right corner, by %1 s.</source>
        <translation>Die untere linke Ecke wurde %1 s vor der oberen rechten scharf.</translation>
    </message>
    <message>
        <source>Turn the lens slowly in one direction, until the picture has become blurred again.</source>
        <translation>Drehen Sie das Objektiv langsam in eine Richtung, bis das Bild wieder unscharf geworden ist.</translation>
    </message>
    <message>
        <source>Keep turning in this direction.</source>
        <translation>Drehen Sie weiter in diese Richtung.</translation>
    </message>
    <message>
        <source>Turn back: the peak lies in the other direction.</source>
        <translation>Drehen Sie zurück: Das Maximum liegt in der anderen Richtung.</translation>
    </message>
    <message>
        <source>The best position is %1. The lens is there.</source>
        <translation>Die beste Position ist %1. Dort steht das Objektiv.</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens up by %2.</source>
        <translation>Die beste Position ist %1: Erhöhen Sie die Position um %2.</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens down by %2.</source>
        <translation>Die beste Position ist %1: Verringern Sie die Position um %2.</translation>
    </message>
    <message>
        <source>Too few regions became sharp and blurred again to tell whether the focus is tilted. Point the camera at something with edges all over the picture, and go through the sharpest position once more.</source>
        <translation>Es wurden zu wenige Bereiche scharf und wieder unscharf, um zu erkennen, ob der Fokus verkippt ist. Richten Sie die Kamera auf etwas mit Kanten im ganzen Bild, und drehen Sie noch einmal durch die schärfste Position.</translation>
    </message>
    <message>
        <source>The focus is not tilted.</source>
        <translation>Der Fokus ist nicht verkippt.</translation>
    </message>
    <message>
        <source>The centre became sharp before the corners, by %1 s.</source>
        <translation>Die Mitte wurde %1 s vor den Ecken scharf.</translation>
    </message>
    <message>
        <source>The corners became sharp before the centre, by %1 s.</source>
        <translation>Die Ecken wurden %1 s vor der Mitte scharf.</translation>
    </message>
    <message>
        <source>The corners are sharp at a higher position than the centre, by %1.</source>
        <translation>Die Ecken sind an einer um %1 höheren Position scharf als die Mitte.</translation>
    </message>
    <message>
        <source>The corners are sharp at a lower position than the centre, by %1.</source>
        <translation>Die Ecken sind an einer um %1 niedrigeren Position scharf als die Mitte.</translation>
    </message>
    <message>
        <source>The link carries %1 MB/s: at most %2 kHz with this width and pixel format. Choose a smaller width, a pixel format with fewer bits, or a lower speed.</source>
        <translation>Der Link überträgt %1 MB/s: bei dieser Breite und diesem Pixelformat höchstens %2 kHz. Wählen Sie eine kleinere Breite, ein Pixelformat mit weniger Bits oder eine niedrigere Geschwindigkeit.</translation>
    </message>
    <message>
        <source>The exposure allows at most %1 kHz, because a line cannot be shorter than its exposure. Shorten the exposure, and add light or gain.</source>
        <translation>Die Belichtung lässt höchstens %1 kHz zu, weil eine Zeile nicht kürzer als ihre Belichtung sein kann. Verkürzen Sie die Belichtung, und erhöhen Sie Licht oder Verstärkung.</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz with its present settings. Choose a lower speed or a smaller magnification.</source>
        <translation>Die Kamera schafft mit ihren aktuellen Einstellungen höchstens %1 kHz. Wählen Sie eine niedrigere Geschwindigkeit oder einen kleineren Abbildungsmaßstab.</translation>
    </message>
    <message>
        <source>This camera takes whole pictures. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>Diese Kamera nimmt ganze Bilder auf. Wählen Sie eine Zeilenkamera, die einzelne Zeilen eines bewegten Objekts aufnimmt.</translation>
    </message>
    <message>
        <source>Every number must be greater than 0.</source>
        <translation>Alle Zahlen müssen größer als 0 sein.</translation>
    </message>
    <message>
        <source>Enter the pixel size and the magnification, or the size of a pixel on the object.</source>
        <translation>Geben Sie Pixelgröße und Abbildungsmaßstab oder die Objektpixelgröße ein.</translation>
    </message>
    <message>
        <source>Enter the speed of the object.</source>
        <translation>Geben Sie die Geschwindigkeit des Objekts ein.</translation>
    </message>
    <message>
        <source>Enter the movement per encoder pulse, or the pulses per revolution and the diameter of the roller.</source>
        <translation>Geben Sie den Weg je Encoderimpuls oder die Impulse je Umdrehung und den Durchmesser der Rolle ein.</translation>
    </message>
    <message>
        <source>The camera has no line rate of its own (AcquisitionLineRate). Use an encoder, or an external trigger.</source>
        <translation>Die Kamera hat keine eigene Zeilenrate (AcquisitionLineRate). Verwenden Sie einen Encoder oder einen externen Trigger.</translation>
    </message>
    <message>
        <source>The camera cannot start lines by an encoder (TriggerSelector has no LineStart). Use its line rate.</source>
        <translation>Die Kamera kann Zeilen nicht durch einen Encoder starten (TriggerSelector hat kein LineStart). Verwenden Sie ihre Zeilenrate.</translation>
    </message>
    <message>
        <source>The exposure of %1 µs is longer than a line. It has to be shortened to %2 µs, so the picture becomes darker: add light or gain.</source>
        <translation>Die Belichtung von %1 µs ist länger als eine Zeile. Sie muss auf %2 µs verkürzt werden, dadurch wird das Bild dunkler: Erhöhen Sie Licht oder Verstärkung.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification, or use another encoder.</source>
        <translation>Mit der nächstliegenden Einstellung der Kamera werden Objekte %1 % zu hoch. Ändern Sie den Abbildungsmaßstab, oder verwenden Sie einen anderen Encoder.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification, or use another encoder.</source>
        <translation>Mit der nächstliegenden Einstellung der Kamera werden Objekte %1 % zu flach. Ändern Sie den Abbildungsmaßstab, oder verwenden Sie einen anderen Encoder.</translation>
    </message>
    <message>
        <source>The camera offers no encoder as the source of its line trigger (TriggerSource). Use its line rate.</source>
        <translation>Die Kamera bietet keinen Encoder als Quelle ihres Zeilentriggers an (TriggerSource). Verwenden Sie ihre Zeilenrate.</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz, but square pixels need %2 kHz. Nothing was changed. Choose a lower speed or a smaller magnification.</source>
        <translation>Die Kamera schafft höchstens %1 kHz, aber quadratische Pixel brauchen %2 kHz. Es wurde nichts geändert. Wählen Sie eine niedrigere Geschwindigkeit oder einen kleineren Abbildungsmaßstab.</translation>
    </message>
    <message>
        <source>The camera has refused %1, so nothing was changed. %2</source>
        <translation>Die Kamera hat %1 abgelehnt, deshalb wurde nichts geändert. %2</translation>
    </message>
    <message>
        <source>The circle is round: height and width differ by %1 %.</source>
        <translation>Der Kreis ist rund: Höhe und Breite unterscheiden sich um %1 %.</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the lines per encoder pulse from %2 to %3.</source>
        <translation>Der Kreis ist %1 % zu hoch: Verringern Sie die Zeilen je Encoderimpuls von %2 auf %3.</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the lines per encoder pulse from %2 to %3.</source>
        <translation>Der Kreis ist %1 % zu flach: Erhöhen Sie die Zeilen je Encoderimpuls von %2 auf %3.</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the line rate from %2 kHz to %3 kHz.</source>
        <translation>Der Kreis ist %1 % zu hoch: Verringern Sie die Zeilenrate von %2 kHz auf %3 kHz.</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the line rate from %2 kHz to %3 kHz.</source>
        <translation>Der Kreis ist %1 % zu flach: Erhöhen Sie die Zeilenrate von %2 kHz auf %3 kHz.</translation>
    </message>
    <message>
        <source>The border of the round target is uneven. Check whether the object moves evenly, whether lines are lost, and whether the target is sharp and free of other shapes.</source>
        <translation>Der Rand der runden Marke ist ungleichmäßig. Prüfen Sie, ob sich das Objekt gleichmäßig bewegt, ob Zeilen verloren gehen und ob die Marke scharf und frei von anderen Formen ist.</translation>
    </message>
    <message>
        <source>There is no complete round target in the picture of %1 lines. Show the camera a dark or bright disc or ring, or make the picture higher (Height).</source>
        <translation>Im Bild mit %1 Zeilen ist keine vollständige runde Marke. Zeigen Sie der Kamera eine dunkle oder helle Scheibe oder einen solchen Ring, oder machen Sie das Bild höher (Height).</translation>
    </message>
    <message>
        <source>The picture has too little contrast. Take off the lens cap, add light, and show the camera a dark or bright disc or ring.</source>
        <translation>Das Bild hat zu wenig Kontrast. Nehmen Sie die Objektivkappe ab, sorgen Sie für mehr Licht, und zeigen Sie der Kamera eine dunkle oder helle Scheibe oder einen solchen Ring.</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s, because it waits for a trigger. Trigger it, or set TriggerMode to Off, and measure again.</source>
        <translation>Die Kamera hat seit %1 s kein Bild gesendet, weil sie auf einen Trigger wartet. Lösen Sie ihn aus, oder setzen Sie TriggerMode auf Off, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s. Check whether the live picture moves, and the cable, then measure again.</source>
        <translation>Die Kamera hat seit %1 s kein Bild gesendet. Prüfen Sie, ob sich das Livebild bewegt, und prüfen Sie das Kabel; messen Sie dann erneut.</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Check its cable and its power, wait until the picture is back, then measure again. (%1)</source>
        <translation>Die Verbindung zur Kamera ging während der Messung verloren. Prüfen Sie Kabel und Stromversorgung, warten Sie, bis das Bild wieder da ist, und messen Sie erneut. (%1)</translation>
    </message>
    <message>
        <source>The images arrive with missing data. Check the cable and the network card (&quot;cvxctl doctor&quot; helps), or lower the image rate, then measure again.</source>
        <translation>Die Bilder kommen mit fehlenden Daten an. Prüfen Sie Kabel und Netzwerkkarte („cvxctl doctor“ hilft dabei), oder verringern Sie die Bildrate, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The measurement was cancelled.</source>
        <translation>Die Messung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The pixel values are not proportional to the light. Set Gamma to 1, then measure again.</source>
        <translation>Die Pixelwerte sind nicht proportional zum Licht. Setzen Sie Gamma auf 1, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;DeviceTapGeometry&quot;. Choose the layout of its taps by hand.</source>
        <translation>Die Kamera hat kein Feature „DeviceTapGeometry“. Wählen Sie die Anordnung ihrer Taps von Hand.</translation>
    </message>
    <message>
        <source>The tap geometry &quot;%1&quot; is unknown. Choose the layout of the taps by hand.</source>
        <translation>Die Tap-Geometrie „%1“ ist unbekannt. Wählen Sie die Anordnung der Taps von Hand.</translation>
    </message>
    <message>
        <source>The sensor has one tap only, so there is nothing to balance. If that is wrong, choose the layout of the taps by hand.</source>
        <translation>Der Sensor hat nur einen Tap, deshalb gibt es nichts abzugleichen. Wenn das nicht stimmt, wählen Sie die Anordnung der Taps von Hand.</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;%1&quot;, so its taps can be measured, but not set.</source>
        <translation>Die Kamera hat kein Feature „%1“, deshalb können ihre Taps gemessen, aber nicht eingestellt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the entries Tap1 to Tap%2, so the taps can be measured, but not set. Choose the layout of the camera&apos;s taps.</source>
        <translation>„%1“ hat die Einträge Tap1 bis Tap%2 nicht, deshalb können die Taps gemessen, aber nicht eingestellt werden. Wählen Sie die Anordnung der Taps der Kamera.</translation>
    </message>
    <message>
        <source>The scene moves: %1 % of the picture has changed during the measurement. Show an even surface that rests, then measure again.</source>
        <translation>Die Szene bewegt sich: %1 % des Bilds haben sich während der Messung geändert. Zeigen Sie eine gleichmäßige, unbewegte Fläche, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The picture is overexposed: %1 % of a tap&apos;s pixels have the largest value. Shorten the exposure time or close the lens aperture, then measure again.</source>
        <translation>Das Bild ist überbelichtet: %1 % der Pixel eines Taps haben den größten Wert. Verkürzen Sie die Belichtungszeit, oder schließen Sie die Blende des Objektivs, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The picture is too dark: it reaches %1 % of the range. Remove the lens cap, add light or lengthen the exposure time, then measure again.</source>
        <translation>Das Bild ist zu dunkel: Es erreicht %1 % des Wertebereichs. Nehmen Sie die Objektivkappe ab, sorgen Sie für mehr Licht, oder verlängern Sie die Belichtungszeit, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The picture is not dark: its mean is %1 % of the range. Cover the lens, then measure again.</source>
        <translation>Das Bild ist nicht dunkel: Sein Mittelwert liegt bei %1 % des Wertebereichs. Decken Sie das Objektiv ab, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The dark picture is cut off: %1 % of a tap&apos;s pixels are 0. Raise the black level, then measure again.</source>
        <translation>Das Dunkelbild ist abgeschnitten: %1 % der Pixel eines Taps sind 0. Erhöhen Sie den Schwarzwert, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The step between tap %1 and tap %2 cannot be told from the scene. Show an even surface, or take more images, then measure again.</source>
        <translation>Die Stufe zwischen Tap %1 und Tap %2 lässt sich nicht von der Szene unterscheiden. Zeigen Sie eine gleichmäßige Fläche, oder nehmen Sie mehr Bilder auf, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>Taps cannot be measured in this pixel format. Choose a Mono or Bayer format of 8 to 16 bits, then measure again.</source>
        <translation>In diesem Pixelformat können Taps nicht gemessen werden. Wählen Sie ein Mono- oder Bayer-Format mit 8 bis 16 Bit, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The taps read neighbouring pixels in turn, which have different colours, so taps and colours cannot be told apart. Choose a layout of stripes by hand.</source>
        <translation>Die Taps lesen abwechselnd benachbarte Pixel aus, die verschiedene Farben haben; deshalb lassen sich Taps und Farben nicht unterscheiden. Wählen Sie von Hand eine Anordnung in Streifen.</translation>
    </message>
    <message>
        <source>Binning adds up pixels of several taps. Switch it off, then measure again.</source>
        <translation>Binning summiert Pixel mehrerer Taps. Schalten Sie es aus, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The size or the format of the images has changed during the measurement. Measure again.</source>
        <translation>Die Größe oder das Format der Bilder hat sich während der Messung geändert. Messen Sie erneut.</translation>
    </message>
    <message>
        <source>The dark level of this pixel format cannot be measured; choose a Mono, Bayer or RGB format.</source>
        <translation>Der Dunkelwert kann in diesem Pixelformat nicht gemessen werden; wählen Sie ein Mono-, Bayer- oder RGB-Format.</translation>
    </message>
    <message>
        <source>The picture is not dark. Put the cap on the lens, or cover the lens completely.</source>
        <translation>Das Bild ist nicht dunkel. Setzen Sie die Objektivkappe auf, oder decken Sie das Objektiv vollständig ab.</translation>
    </message>
    <message>
        <source>%1 % of the pixels are 0, which hides the dark level. Raise BlackLevel, so that the noise lies above 0.</source>
        <translation>%1 % der Pixel sind 0, was den Dunkelwert verdeckt. Erhöhen Sie BlackLevel, sodass das Rauschen über 0 liegt.</translation>
    </message>
    <message>
        <source>The noise is smaller than one step of the pixel format, which hides small changes of the dark level. Choose a pixel format with more bits, or a higher gain.</source>
        <translation>Das Rauschen ist kleiner als eine Stufe des Pixelformats, was kleine Änderungen des Dunkelwerts verdeckt. Wählen Sie ein Pixelformat mit mehr Bits oder eine höhere Verstärkung.</translation>
    </message>
    <message>
        <source>The features cannot be read: %1</source>
        <translation>Die Features können nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature.</source>
        <translation>Die Kamera hat kein Feature DeviceTemperature, deshalb meldet sie ihre Temperatur nicht.</translation>
    </message>
    <message>
        <source>The scene moves, so the regions&apos; shares also change with what they show. Let it stand still to compare the regions.</source>
        <translation>Die Szene bewegt sich, deshalb ändern sich die Anteile der Bereiche auch mit ihrem Inhalt. Halten Sie sie ruhig, um die Bereiche zu vergleichen.</translation>
    </message>
    <message>
        <source>The picture is as sharp as it gets. Lock the lens.</source>
        <translation>Schärfer wird das Bild nicht. Fixieren Sie das Objektiv.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification or the speed.</source>
        <translation>Mit der nächstliegenden Einstellung der Kamera werden Objekte %1 % zu hoch. Ändern Sie den Abbildungsmaßstab oder die Geschwindigkeit.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification or the speed.</source>
        <translation>Mit der nächstliegenden Einstellung der Kamera werden Objekte %1 % zu flach. Ändern Sie den Abbildungsmaßstab oder die Geschwindigkeit.</translation>
    </message>
    <message>
        <source>The camera has refused a setting, and then also refused to go back to %1: %2</source>
        <translation>Die Kamera hat eine Einstellung abgelehnt und danach auch die Rückkehr zu %1: %2</translation>
    </message>
    <message>
        <source>The stream has ended during the measurement. Start the live picture and measure again.</source>
        <translation>Während der Messung kamen keine Bilder mehr an. Starten Sie das Livebild, und messen Sie erneut.</translation>
    </message>
    <message>
        <source>The picture shows no border between tap %1 and the other taps. Set the region to the whole sensor, or choose another layout, then measure again.</source>
        <translation>Das Bild zeigt keine Grenze zwischen Tap %1 und den anderen Taps. Stellen Sie die Bildregion auf den ganzen Sensor, oder wählen Sie eine andere Anordnung, und messen Sie dann noch einmal.</translation>
    </message>
</context>
<context>
    <name>SettingTexts</name>
    <message>
        <source>Without category</source>
        <translation>Ohne Kategorie</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save settings…</source>
        <translation>Einstellungen &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Load settings…</source>
        <translation>Einstellungen &amp;laden…</translation>
    </message>
    <message>
        <source>As it &amp;was when I opened it…</source>
        <translation>&amp;Wie beim Öffnen der Kamera…</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>Die Kamera wird nur beobachtet, deshalb sind keine Änderungen möglich.</translation>
    </message>
    <message>
        <source>The camera is not open.</source>
        <translation>Die Kamera ist nicht geöffnet.</translation>
    </message>
    <message>
        <source>Saves all settings to a file that other GenICam programs can read, too.</source>
        <translation>Speichert alle Einstellungen in einer Datei, die auch andere GenICam-Programme lesen können.</translation>
    </message>
    <message>
        <source>Shows what a settings file would change, and then loads it.</source>
        <translation>Zeigt, was eine Einstellungsdatei ändern würde, und lädt sie dann.</translation>
    </message>
    <message>
        <source>The settings from the opening are not completely known.</source>
        <translation>Die Einstellungen beim Öffnen sind nicht vollständig bekannt.</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>Zeigt, was sich ändern würde, und stellt dann alles so ein, wie es beim Öffnen der Kamera war.</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Settings files (%1)</source>
        <translation>Einstellungsdateien (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Alle Dateien (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were saved to &quot;%1&quot;.</source>
        <translation>
            <numerusform>%n Einstellung wurde in „%1“ gespeichert.</numerusform>
            <numerusform>%n Einstellungen wurden in „%1“ gespeichert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s):</source>
        <translation>
            <numerusform>%n Hinweis:</numerusform>
            <numerusform>%n Hinweise:</numerusform>
        </translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Einstellungen laden</translation>
    </message>
    <message>
        <source>the settings from the opening</source>
        <translation>Einstellungen beim Öffnen</translation>
    </message>
</context>
<context>
    <name>SettingsLoad</name>
    <message>
        <source>Comparing %1 with the camera</source>
        <translation>Vergleich mit der Kamera: %1</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>Wird geladen: %1</translation>
    </message>
    <message>
        <source>Putting back the settings from before %1</source>
        <translation>Laden wird zurückgenommen: %1</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>Laden: %1</translation>
    </message>
    <message>
        <source>Undo loading %1</source>
        <translation>Laden zurücknehmen: %1</translation>
    </message>
</context>
<context>
    <name>SettingsSave</name>
    <message>
        <source>Saving the settings</source>
        <translation>Einstellungen werden gespeichert</translation>
    </message>
    <message>
        <source>Saving was cancelled. The file was not written.</source>
        <translation>Das Speichern wurde abgebrochen. Die Datei wurde nicht geschrieben.</translation>
    </message>
    <message>
        <source>The camera has no settings that belong in a file. The file was not written.</source>
        <translation>Die Kamera hat keine Einstellungen, die in eine Datei gehören. Die Datei wurde nicht geschrieben.</translation>
    </message>
</context>
<context>
    <name>SettingsSource</name>
    <message>
        <source>The reading was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Camera Setup</source>
        <translation>Camera Setup</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Features</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>User-Sets</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>All selector values</source>
        <translation>Alle Selektorwerte</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Find a feature</source>
        <translation>Feature &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Kamera</translation>
    </message>
    <message>
        <source>Live &amp;picture</source>
        <translation>Live&amp;bild</translation>
    </message>
    <message>
        <source>&amp;Compare with the opening</source>
        <translation>Mit Stand beim Öffnen &amp;vergleichen</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>Im &amp;Image Viewer öffnen</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>Bedien&amp;felder</translation>
    </message>
    <message>
        <source>F2, Return</source>
        <translation>F2, Eingabe</translation>
    </message>
    <message>
        <source>Edit the value of the selected feature</source>
        <translation>Wert des ausgewählten Features bearbeiten</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Links, Rechts</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s). The settings at opening are being read.</source>
        <translation>
            <numerusform>%n Feature. Die Einstellungen beim Öffnen werden gelesen.</numerusform>
            <numerusform>%n Features. Die Einstellungen beim Öffnen werden gelesen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n Feature</numerusform>
            <numerusform>%n Features</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed since opening</source>
        <translation>
            <numerusform>%n seit dem Öffnen geändert</numerusform>
            <numerusform>%n seit dem Öffnen geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>Collapse or expand a category</source>
        <translation>Kategorie zu- oder aufklappen</translation>
    </message>
</context>
<context>
    <name>ShortcutPage</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>What they do</source>
        <translation>Funktion</translation>
    </message>
</context>
<context>
    <name>SideBox</name>
    <message>
        <source>Shows what could not be read, and why.</source>
        <translation>Zeigt, was nicht gelesen werden konnte und warum.</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>Datei…</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s), %1</source>
        <translation>
            <numerusform>%n Einstellung, %1</numerusform>
            <numerusform>%n Einstellungen, %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n Hinweis</numerusform>
            <numerusform>%n Hinweise</numerusform>
        </translation>
    </message>
    <message>
        <source>Not read yet.</source>
        <translation>Noch nicht gelesen.</translation>
    </message>
    <message>
        <source>Notes on what was read:</source>
        <translation>Hinweise zum Gelesenen:</translation>
    </message>
</context>
<context>
    <name>SnapshotSaver</name>
    <message>
        <source>There is no picture to save yet.</source>
        <translation>Es gibt noch kein Bild zum Speichern.</translation>
    </message>
    <message>
        <source>The snapshot was not saved: %1.</source>
        <translation>Das Bild wurde nicht gespeichert: %1.</translation>
    </message>
    <message>
        <source>The snapshot was not saved, because earlier ones still wait for the disk.</source>
        <translation>Das Bild wurde nicht gespeichert, weil frühere noch auf den Datenträger warten.</translation>
    </message>
</context>
<context>
    <name>StatisticsTable</name>
    <message>
        <source>Component</source>
        <translation>Komponente</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>Std.-Abw.</translation>
    </message>
</context>
<context>
    <name>StatusNumbers</name>
    <message>
        <source>Images per second and image data per second that arrive from the camera.</source>
        <translation>Bilder pro Sekunde und Bilddaten pro Sekunde, die von der Kamera ankommen.</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>Puffer mit einem Bild, das angezeigt, gemessen oder aufgezeichnet wird. Sind alle belegt, gehen Bilder verloren.</translation>
    </message>
    <message>
        <source>Buffers: %1</source>
        <translation>Puffer: %1</translation>
    </message>
    <message>
        <source>No losses</source>
        <translation>Keine Verluste</translation>
    </message>
    <message>
        <source>What was lost since the camera was opened.</source>
        <translation>Verluste seit dem Öffnen der Kamera.</translation>
    </message>
</context>
<context>
    <name>StepCard</name>
    <message>
        <source>Step %1, not yet possible: %2</source>
        <translation>Schritt %1, noch nicht möglich: %2</translation>
    </message>
    <message>
        <source>Step %1, next: %2</source>
        <translation>Schritt %1, als Nächstes: %2</translation>
    </message>
    <message>
        <source>Step %1, done: %2</source>
        <translation>Schritt %1, erledigt: %2</translation>
    </message>
</context>
<context>
    <name>StreamNumbers</name>
    <message>
        <source>Delivered</source>
        <translation>Geliefert</translation>
    </message>
    <message>
        <source>Images that arrived from the camera.</source>
        <translation>Bilder, die von der Kamera angekommen sind.</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Angezeigt</translation>
    </message>
    <message>
        <source>Images that were drawn in the window.</source>
        <translation>Bilder, die im Fenster dargestellt wurden.</translation>
    </message>
    <message>
        <source>Skipped for display</source>
        <translation>In der Anzeige übersprungen</translation>
    </message>
    <message>
        <source>Images that were not drawn because the screen is slower than the camera. They are not lost: recordings contain them.</source>
        <translation>Bilder, die nicht dargestellt wurden, weil der Bildschirm langsamer ist als die Kamera. Sie sind nicht verloren: Aufzeichnungen enthalten sie.</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Unvollständig</translation>
    </message>
    <message>
        <source>Delivered images with missing data.</source>
        <translation>Gelieferte Bilder mit fehlenden Daten.</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Images that never arrived, by gaps in the frame IDs.</source>
        <translation>Bilder, die nie ankamen, laut Lücken in den Frame-IDs.</translation>
    </message>
    <message>
        <source>Underruns</source>
        <translation>Pufferunterläufe</translation>
    </message>
    <message>
        <source>Images that were lost because no buffer was free: this computer was too slow.</source>
        <translation>Bilder, die verloren gingen, weil kein Puffer frei war: Dieser Rechner war zu langsam.</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Images per second during the last second.</source>
        <translation>Bilder pro Sekunde in der letzten Sekunde.</translation>
    </message>
    <message>
        <source>Data rate</source>
        <translation>Datenrate</translation>
    </message>
    <message>
        <source>Image data per second during the last second.</source>
        <translation>Bilddaten pro Sekunde in der letzten Sekunde.</translation>
    </message>
    <message>
        <source>Buffers in use</source>
        <translation>Belegte Puffer</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>Puffer mit einem Bild, das angezeigt, gemessen oder aufgezeichnet wird. Sind alle belegt, gehen Bilder verloren.</translation>
    </message>
    <message>
        <source>Link speed</source>
        <translation>Linkgeschwindigkeit</translation>
    </message>
    <message>
        <source>Speed of the connection that the camera reports.</source>
        <translation>Geschwindigkeit der Verbindung, wie sie die Kamera meldet.</translation>
    </message>
    <message>
        <source>Packet size</source>
        <translation>Paketgröße</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>Size of the packets of a GigE camera.</source>
        <translation>Größe der Pakete einer GigE-Kamera.</translation>
    </message>
    <message>
        <source>Resent packets</source>
        <translation>Erneut gesendete Pakete</translation>
    </message>
    <message>
        <source>Packets that the camera has sent a second time because they were lost.</source>
        <translation>Pakete, die die Kamera ein zweites Mal gesendet hat, weil sie verloren gingen.</translation>
    </message>
    <message>
        <source>Continued after a loss</source>
        <translation>Nach Ausfall fortgesetzt</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>rate and data rate</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>%1 verloren</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>%1 unvollständig</translation>
    </message>
    <message>
        <source>no stream</source>
        <translation>kein Stream</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>buffers</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name and value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 images/s</source>
        <translation>%1 Bilder/s</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/s</translation>
    </message>
    <message>
        <source>%1 Mbit/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>not reported</source>
        <translation>keine Angabe</translation>
    </message>
    <message>
        <source>How often the camera was lost and the stream went on when it was back.</source>
        <translation>Wie oft die Verbindung zur Kamera verloren ging und der Stream danach weiterlief.</translation>
    </message>
    <message>
        <source>%1 underruns</source>
        <translation>%1 Pufferunterläufe</translation>
    </message>
</context>
<context>
    <name>TapBars</name>
    <message>
        <source>Deviation of each tap</source>
        <translation>Abweichung jedes Taps</translation>
    </message>
    <message>
        <source>Grey: before; blue: now</source>
        <translation>Grau: vorher; blau: jetzt</translation>
    </message>
    <message>
        <source>Tap %1: %2 %3</source>
        <translation>Tap %1: %2 %3</translation>
    </message>
    <message>
        <source>Not measured yet</source>
        <translation>Noch nicht gemessen</translation>
    </message>
</context>
<context>
    <name>TapPanel</name>
    <message>
        <source>Tap</source>
        <translation>Tap</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>Mismatch of the taps</source>
        <translation>Unterschied der Taps</translation>
    </message>
    <message>
        <source>Skip this step</source>
        <translation>Schritt überspringen</translation>
    </message>
    <message>
        <source>Undo the last balancing</source>
        <translation>Letzten Abgleich zurücknehmen</translation>
    </message>
    <message>
        <source>Mean and noise of each tap</source>
        <translation>Mittelwert und Rauschen jedes Taps</translation>
    </message>
    <message>
        <source>Shading changes the means, so the steps at the borders say how the taps differ.</source>
        <translation>Shading verändert die Mittelwerte, deshalb zeigen die Stufen an den Grenzen, wie sich die Taps unterscheiden.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Show an even, bright surface that fills the picture, for example a white sheet out of focus.</source>
        <translation>Zeigen Sie eine gleichmäßige, helle Fläche, die das Bild füllt, zum Beispiel ein unscharf abgebildetes weißes Blatt.</translation>
    </message>
    <message>
        <source>Measure the taps</source>
        <translation>Taps messen</translation>
    </message>
    <message>
        <source>Black levels</source>
        <translation>Schwarzwerte</translation>
    </message>
    <message>
        <source>Cover the lens. Without this step, differences of the black levels count as those of the gains.</source>
        <translation>Decken Sie das Objektiv ab. Ohne diesen Schritt werden Unterschiede der Schwarzwerte den Verstärkungen zugerechnet.</translation>
    </message>
    <message>
        <source>Balance the black levels</source>
        <translation>Schwarzwerte abgleichen</translation>
    </message>
    <message>
        <source>Gains</source>
        <translation>Verstärkungen</translation>
    </message>
    <message>
        <source>Uncover the lens and show the even, bright surface again.</source>
        <translation>Nehmen Sie die Abdeckung ab, und zeigen Sie wieder die gleichmäßige, helle Fläche.</translation>
    </message>
    <message>
        <source>Balance the gains</source>
        <translation>Verstärkungen abgleichen</translation>
    </message>
    <message>
        <source>The camera has the new values until it is switched off. Store them in a user set with Camera Setup to keep them.</source>
        <translation>Die Kamera behält die neuen Werte, bis sie ausgeschaltet wird. Um sie dauerhaft zu behalten, speichern Sie sie mit Camera Setup in einem User-Set.</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>Ergebnis speichern…</translation>
    </message>
    <message>
        <source>The taps differ by up to %1.</source>
        <translation>Die Taps unterscheiden sich um bis zu %1.</translation>
    </message>
    <message>
        <source>Keep the values</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>TapReport</name>
    <message>
        <source>Tap Balance</source>
        <translation>Tap Balance</translation>
    </message>
    <message>
        <source>Layout of the taps: %1</source>
        <translation>Anordnung der Taps: %1</translation>
    </message>
    <message>
        <source>Deviation of each tap; grey: before, blue: now</source>
        <translation>Abweichung jedes Taps; grau: vorher, blau: jetzt</translation>
    </message>
    <message>
        <source>Bright picture</source>
        <translation>Hellbild</translation>
    </message>
    <message>
        <source>Dark picture</source>
        <translation>Dunkelbild</translation>
    </message>
    <message>
        <source>The picture with the borders of the taps</source>
        <translation>Das Bild mit den Grenzen der Taps</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation>Tap</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 zu %2</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Taps</translation>
    </message>
    <message>
        <source>Step at the border</source>
        <translation>Stufe an der Grenze</translation>
    </message>
    <message>
        <source>The deviations follow from the steps at the borders, which straight lines on both sides are extended to; shading has no influence. The noise is the temporal standard deviation of a pixel by the differences of successive images (EMVA 1288). The uncertainty of a step is twice its standard error.</source>
        <translation>Die Abweichungen ergeben sich aus den Stufen an den Grenzen, bis zu denen Geraden auf beiden Seiten verlängert werden; Shading hat keinen Einfluss. Das Rauschen ist die zeitliche Standardabweichung eines Pixels aus den Differenzen aufeinanderfolgender Bilder (EMVA 1288). Die Unsicherheit einer Stufe ist ihr doppelter Standardfehler.</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>%1 vorher</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
</context>
<context>
    <name>TapSession</name>
    <message>
        <source>Measuring the taps</source>
        <translation>Taps werden gemessen</translation>
    </message>
    <message>
        <source>Balancing the gains</source>
        <translation>Verstärkungen werden abgeglichen</translation>
    </message>
    <message>
        <source>Balancing the black levels</source>
        <translation>Schwarzwerte werden abgeglichen</translation>
    </message>
    <message>
        <source>Putting the earlier values back</source>
        <translation>Frühere Werte werden wiederhergestellt</translation>
    </message>
</context>
<context>
    <name>TapTexts</name>
    <message>
        <source>The mismatch fell from %1 to %2.</source>
        <translation>Der Unterschied sank von %1 auf %2.</translation>
    </message>
    <message>
        <source>The mismatch fell from %1 to %2. The camera offers no finer values.</source>
        <translation>Der Unterschied sank von %1 auf %2. Feinere Werte bietet die Kamera nicht.</translation>
    </message>
    <message>
        <source>DN</source>
        <comment>unit of pixel values</comment>
        <translation>Grauwerte</translation>
    </message>
</context>
<context>
    <name>TapWindow</name>
    <message>
        <source>Tap Balance</source>
        <translation>Tap Balance</translation>
    </message>
    <message>
        <source>The camera has no feature GainSelector, so the gains of its taps cannot be set one by one. Use a flat-field correction instead.</source>
        <translation>Die Kamera hat kein Feature GainSelector, deshalb lassen sich die Verstärkungen ihrer Taps nicht einzeln einstellen. Verwenden Sie stattdessen eine Flat-Field-Korrektur.</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>Ergebnis &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Undo the last balancing</source>
        <translation>Letzten Abgleich &amp;zurücknehmen</translation>
    </message>
</context>
<context>
    <name>TargetOverlay</name>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
</context>
<context>
    <name>TemperaturePlot</name>
    <message>
        <source>Time since the start</source>
        <translation>Zeit seit dem Start</translation>
    </message>
    <message>
        <source>Temperature in °C</source>
        <translation>Temperatur in °C</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>Dunkelwert</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Final value of %1</source>
        <translation>Endwert von %1</translation>
    </message>
    <message>
        <source>Dark level follows</source>
        <translation>Dunkelwert folgt</translation>
    </message>
    <message>
        <source>Show the &amp;last</source>
        <translation>&amp;Zeitraum</translation>
    </message>
    <message>
        <source>Temperatures since the start</source>
        <translation>Temperaturen seit dem Start</translation>
    </message>
    <message>
        <source>Dark level since the start</source>
        <translation>Dunkelwert seit dem Start</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message numerus="yes">
        <source>At most %n character(s)</source>
        <translation>
            <numerusform>Höchstens %n Zeichen</numerusform>
            <numerusform>Höchstens %n Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>ThermalPanel</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>Ergebnis &amp;speichern…</translation>
    </message>
    <message>
        <source>Notify me</source>
        <translation>Benachrichtigung</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>Dunkelwert</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Read &amp;every</source>
        <translation>&amp;Messen alle</translation>
    </message>
    <message>
        <source>Start a&amp;new</source>
        <translation>&amp;Neu beginnen</translation>
    </message>
    <message>
        <source>Forgets the readings and begins again. A running log goes on.</source>
        <translation>Verwirft die Messwerte und beginnt von vorn. Ein laufendes Protokoll geht weiter.</translation>
    </message>
</context>
<context>
    <name>ThermalReport</name>
    <message>
        <source>Thermal Monitor</source>
        <translation>Thermal Monitor</translation>
    </message>
    <message>
        <source>Readings since %1 (UTC).</source>
        <translation>Messwerte seit %1 (UTC).</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Messstelle</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Expected final value in °C</source>
        <translation>Erwarteter Endwert in °C</translation>
    </message>
    <message>
        <source>Time constant</source>
        <translation>Zeitkonstante</translation>
    </message>
    <message>
        <source>Steady in</source>
        <translation>Stabil in</translation>
    </message>
    <message>
        <source>The final value belongs to an exponential curve through the readings; the uncertainty is twice the standard deviation. Steady means within 0.5 K of the final value, or a change of less than 0.1 K per minute.</source>
        <translation>Der Endwert gehört zu einer Exponentialkurve durch die Messwerte; die Unsicherheit ist die doppelte Standardabweichung. Stabil bedeutet: höchstens 0,5 K vom Endwert entfernt oder eine Änderung von weniger als 0,1 K pro Minute.</translation>
    </message>
    <message>
        <source>Temperatures over time</source>
        <translation>Temperaturverlauf</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>Dunkelwert</translation>
    </message>
    <message>
        <source>Dark level over time</source>
        <translation>Verlauf des Dunkelwerts</translation>
    </message>
</context>
<context>
    <name>ThermalSession</name>
    <message>
        <source>The camera has not been read yet.</source>
        <translation>Die Kamera wurde noch nicht ausgelesen.</translation>
    </message>
</context>
<context>
    <name>ThermalTexts</name>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>10 min</source>
        <translation>10 min</translation>
    </message>
    <message>
        <source>1 h</source>
        <translation>1 h</translation>
    </message>
    <message>
        <source>24 h</source>
        <translation>24 h</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>Cannot be read at present</source>
        <translation>Derzeit nicht lesbar</translation>
    </message>
    <message>
        <source>Rate and state are known in %1.</source>
        <translation>Rate und Zustand sind in %1 bekannt.</translation>
    </message>
    <message>
        <source>Warming up, %1 K/min</source>
        <translation>Erwärmt sich, %1 K/min</translation>
    </message>
    <message>
        <source>Cooling, %1 K/min</source>
        <translation>Kühlt ab, %1 K/min</translation>
    </message>
    <message>
        <source>Steady, %1 K/min</source>
        <translation>Stabil, %1 K/min</translation>
    </message>
    <message>
        <source>The temperature does not change any more.</source>
        <translation>Die Temperatur ändert sich nicht mehr.</translation>
    </message>
    <message>
        <source>The final value is not determined yet.</source>
        <translation>Der Endwert ist noch nicht bestimmt.</translation>
    </message>
    <message>
        <source>Expected final value: %1 °C ± %2 K</source>
        <translation>Erwarteter Endwert: %1 °C ± %2 K</translation>
    </message>
    <message>
        <source>%1, steady in %2</source>
        <translation>%1, stabil in %2</translation>
    </message>
    <message>
        <source>Alarm: %1 has reached %2. Cool the camera or let it work less.</source>
        <translation>Alarm: %1 hat %2 erreicht. Kühlen Sie die Kamera, oder verringern Sie ihre Last.</translation>
    </message>
    <message>
        <source>Warning: %1 is at %2.</source>
        <translation>Warnung: %1 bei %2.</translation>
    </message>
    <message>
        <source>%1 is below the thresholds again: %2.</source>
        <translation>%1 ist wieder unter den Schwellen: %2.</translation>
    </message>
    <message>
        <source>Dark level: %1</source>
        <translation>Dunkelwert: %1</translation>
    </message>
    <message>
        <source>Dark level: %1 (noise %2)</source>
        <translation>Dunkelwert: %1 (Rauschen %2)</translation>
    </message>
    <message>
        <source>The dark level has followed the temperature since %1 after the start.</source>
        <translation>Der Dunkelwert folgt der Temperatur seit %1 nach dem Start.</translation>
    </message>
    <message>
        <source>The dark level has not changed by more than its noise.</source>
        <translation>Der Dunkelwert hat sich nicht stärker als sein Rauschen geändert.</translation>
    </message>
    <message>
        <source>The dark signal doubles every %1 ± %2 K.</source>
        <translation>Das Dunkelsignal verdoppelt sich alle %1 ± %2 K.</translation>
    </message>
    <message>
        <source>The doubling temperature is not determined yet; the temperature has to change more.</source>
        <translation>Die Verdopplungstemperatur ist noch nicht bestimmt; die Temperatur muss sich stärker ändern.</translation>
    </message>
</context>
<context>
    <name>ThermalWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>Ergebnis &amp;speichern…</translation>
    </message>
    <message>
        <source>Thermal Monitor</source>
        <translation>Thermal Monitor</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature. The data sheet says whether a newer firmware does.</source>
        <translation>Die Kamera hat kein Feature DeviceTemperature, deshalb meldet sie ihre Temperatur nicht. Ob eine neuere Firmware das kann, steht im Datenblatt.</translation>
    </message>
</context>
<context>
    <name>ThresholdBox</name>
    <message>
        <source>&amp;Warning at</source>
        <translation>&amp;Warnung ab</translation>
    </message>
    <message>
        <source>&amp;Alarm at</source>
        <translation>&amp;Alarm ab</translation>
    </message>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source>A warning or an alarm ends when the temperature is so far below its threshold again.</source>
        <translation>Eine Warnung oder ein Alarm endet, wenn die Temperatur um diesen Wert unter die Schwelle gefallen ist.</translation>
    </message>
    <message>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <source>Ends &amp;below by</source>
        <translation>Hys&amp;terese</translation>
    </message>
    <message>
        <source>The program notifies you, also while its window is behind others, when a place gets this warm.</source>
        <translation>Das Programm benachrichtigt Sie, auch wenn sein Fenster verdeckt ist, sobald eine Messstelle so warm wird.</translation>
    </message>
</context>
<context>
    <name>ThresholdControl</name>
    <message>
        <source>How far a pixel deviates from its neighbours before it counts as a defect, in standard deviations of the good pixels. At 6 σ, less than one good pixel per megapixel is taken for a defect.</source>
        <translation>Wie weit ein Pixel von seinen Nachbarn abweichen muss, um als Defekt zu zählen, in Standardabweichungen der guten Pixel. Bei 6 σ wird weniger als ein gutes Pixel pro Megapixel für einen Defekt gehalten.</translation>
    </message>
    <message>
        <source>&amp;Threshold</source>
        <translation>Sch&amp;welle</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source> σ</source>
        <translation> σ</translation>
    </message>
</context>
<context>
    <name>ThumbnailStrip</name>
    <message>
        <source>%1
%2 · %3</source>
        <comment>name, size and time of a file</comment>
        <translation>%1
%2 · %3</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Copy path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist any more.</source>
        <translation>„%1“ existiert nicht mehr.</translation>
    </message>
    <message>
        <source>No program of this desktop opens &quot;%1&quot;.</source>
        <translation>Kein Programm dieses Desktops öffnet „%1“.</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and its sidecar?</source>
        <translation>„%1“ und die Begleitdatei löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: %2.</source>
        <translation>„%1“ kann nicht gelöscht werden: %2.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Gespeicherte Bilder</translation>
    </message>
    <message>
        <source>Delete snapshot</source>
        <translation>Bild löschen</translation>
    </message>
</context>
<context>
    <name>ToolStarter</name>
    <message>
        <source>%1 cannot be started. Check that the file exists and is executable.</source>
        <translation>%1 kann nicht gestartet werden. Prüfen Sie, ob die Datei existiert und ausführbar ist.</translation>
    </message>
</context>
<context>
    <name>ToolWindow</name>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>&amp;Other camera…</source>
        <translation>&amp;Andere Kamera…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>Anleitun&amp;g</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>&amp;Info über %1</translation>
    </message>
    <message>
        <source>The guide cannot be opened: %1</source>
        <translation>Die Anleitung kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>%1 of Corvix X, version %2.

For industrial cameras of any vendor. MIT licence.</source>
        <translation>%1 von Corvix X, Version %2.

Für Industriekameras aller Hersteller. MIT-Lizenz.</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>Kameras werden gesucht…</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet…</translation>
    </message>
</context>
<context>
    <name>UserSetControl</name>
    <message>
        <source>Reading the user sets</source>
        <translation>User-Sets werden gelesen</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>Die Kamera wird nur beobachtet, deshalb sind keine Änderungen möglich.</translation>
    </message>
    <message>
        <source>The camera does not offer this.</source>
        <translation>Die Kamera bietet das nicht an.</translation>
    </message>
    <message>
        <source>The camera does not let the set for power-on be chosen.</source>
        <translation>Bei dieser Kamera lässt sich das Set für das Einschalten nicht wählen.</translation>
    </message>
    <message>
        <source>The camera does not allow this set at power-on.</source>
        <translation>Die Kamera lässt dieses Set beim Einschalten nicht zu.</translation>
    </message>
    <message>
        <source>The camera is only watched, so its user sets cannot be loaded.</source>
        <translation>Die Kamera wird nur beobachtet, deshalb können ihre User-Sets nicht geladen werden.</translation>
    </message>
    <message>
        <source>Loading &quot;%1&quot;</source>
        <translation>„%1“ wird geladen</translation>
    </message>
    <message>
        <source>Load user set &quot;%1&quot;</source>
        <translation>User-Set „%1“ laden</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>Das Laden wurde abgebrochen. Es wurde nichts geändert.</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was loaded, which changed %n setting(s).</source>
        <translation>
            <numerusform>„%1“ wurde geladen und hat %n Einstellung geändert.</numerusform>
            <numerusform>„%1“ wurde geladen und hat %n Einstellungen geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation>„%1“ wird gespeichert</translation>
    </message>
    <message>
        <source>The present settings were saved as &quot;%1&quot;.</source>
        <translation>Die aktuellen Einstellungen wurden als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Choosing &quot;%1&quot; for power-on</source>
        <translation>„%1“ wird für das Einschalten gewählt</translation>
    </message>
    <message>
        <source>Use user set &quot;%1&quot; at power-on</source>
        <translation>User-Set „%1“ beim Einschalten verwenden</translation>
    </message>
    <message>
        <source>The camera begins with &quot;%1&quot; at power-on.</source>
        <translation>Die Kamera startet beim Einschalten mit „%1“.</translation>
    </message>
</context>
<context>
    <name>UserSetPanel</name>
    <message>
        <source>&amp;Load…</source>
        <translation>&amp;Laden…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>S&amp;peichern…</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>User-Sets</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>User-Set</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>Beim Einschalten</translation>
    </message>
    <message>
        <source>This camera keeps no user sets.</source>
        <translation>Diese Kamera hat keine User-Sets.</translation>
    </message>
    <message>
        <source>The user sets are not known yet.</source>
        <translation>Die User-Sets sind noch nicht bekannt.</translation>
    </message>
    <message>
        <source>✓ yes</source>
        <translation>✓ ja</translation>
    </message>
    <message>
        <source>Replaces the settings of the camera by those of &quot;%1&quot;.</source>
        <translation>Ersetzt die Einstellungen der Kamera durch die von „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be loaded.</source>
        <translation>„%1“ kann nicht geladen werden.</translation>
    </message>
    <message>
        <source>Stores the present settings as &quot;%1&quot;.</source>
        <translation>Speichert die aktuellen Einstellungen als „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved.</source>
        <translation>„%1“ kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Lets the camera begin with &quot;%1&quot;.</source>
        <translation>Lässt die Kamera beim Einschalten mit „%1“ starten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used at power-on.</source>
        <translation>„%1“ kann beim Einschalten nicht verwendet werden.</translation>
    </message>
    <message>
        <source>Shows how the settings of the camera differ from this set.</source>
        <translation>Zeigt, wie sich die Einstellungen der Kamera von diesem Set unterscheiden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be compared.</source>
        <translation>„%1“ kann nicht verglichen werden.</translation>
    </message>
    <message>
        <source>Load &quot;%1&quot;? The present settings of the camera are overwritten.</source>
        <translation>„%1“ laden? Die aktuellen Einstellungen der Kamera werden überschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) differ from those when the camera was opened.</source>
        <translation>
            <numerusform>%n Feature weicht vom Stand beim Öffnen der Kamera ab.</numerusform>
            <numerusform>%n Features weichen vom Stand beim Öffnen der Kamera ab.</numerusform>
        </translation>
    </message>
    <message>
        <source>Loading can be undone.</source>
        <translation>Das Laden kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>User-Set laden</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>Save user set</source>
        <translation>User-Set speichern</translation>
    </message>
    <message>
        <source>Save the present settings as &quot;%1&quot;? What is in this set now is overwritten, which cannot be undone.</source>
        <translation>Die aktuellen Einstellungen als „%1“ speichern? Der bisherige Inhalt dieses Sets wird überschrieben; das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Use at power-on</source>
        <translation>Als Ei&amp;nschalt-Set</translation>
    </message>
    <message>
        <source>Comp&amp;are</source>
        <translation>Ver&amp;gleichen</translation>
    </message>
</context>
<context>
    <name>UserSetSource</name>
    <message>
        <source>User set %1</source>
        <translation>User-Set %1</translation>
    </message>
    <message>
        <source>The camera has to load the user set %1 to show it. The stream is stopped for this, and your present settings are put back afterwards.</source>
        <translation>Um das User-Set %1 anzuzeigen, muss die Kamera es laden. Dazu wird der Stream angehalten, und danach werden Ihre aktuellen Einstellungen wiederhergestellt.</translation>
    </message>
    <message>
        <source>Not put back after the user set %1</source>
        <translation>Nach User-Set %1 nicht wiederhergestellt</translation>
    </message>
    <message numerus="yes">
        <source>%n more setting(s) were not put back; the history lists them.</source>
        <translation>
            <numerusform>%n weitere Einstellung wurde nicht wiederhergestellt; sie ist im Verlauf aufgeführt.</numerusform>
            <numerusform>%n weitere Einstellungen wurden nicht wiederhergestellt; sie sind im Verlauf aufgeführt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera may still have the settings of the user set. Restore those from the opening.</source>
        <translation>Die Kamera hat möglicherweise noch die Einstellungen des User-Sets. Stellen Sie die Einstellungen vom Öffnen wieder her.</translation>
    </message>
    <message>
        <source>Reading the user set %1</source>
        <translation>User-Set %1 wird gelesen</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>Diese Kamera ist nicht zum Steuern geöffnet.</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the user set %1? The camera loads the set, changes it and saves it, and then your present settings are put back. The stream is stopped for this.</source>
        <translation>
            <numerusform>%n Einstellung in das User-Set %1 schreiben? Die Kamera lädt, ändert und speichert das Set; danach werden Ihre aktuellen Einstellungen wiederhergestellt. Dazu wird der Stream angehalten.</numerusform>
            <numerusform>%n Einstellungen in das User-Set %1 schreiben? Die Kamera lädt, ändert und speichert das Set; danach werden Ihre aktuellen Einstellungen wiederhergestellt. Dazu wird der Stream angehalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying to the user set %1</source>
        <translation>In das User-Set %1 wird kopiert</translation>
    </message>
    <message>
        <source>The copy was cancelled, so the user set was not changed.</source>
        <translation>Das Kopieren wurde abgebrochen, deshalb wurde das User-Set nicht geändert.</translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message numerus="yes">
        <source>%1 … (%n bytes)</source>
        <translation>
            <numerusform>%1 … (%n Byte)</numerusform>
            <numerusform>%1 … (%n Byte)</numerusform>
        </translation>
    </message>
    <message>
        <source>not in this camera</source>
        <translation>in dieser Kamera nicht vorhanden</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>nicht verfügbar</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>can only be written</source>
        <translation>nur schreibbar</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Running …</source>
        <translation>Läuft …</translation>
    </message>
</context>
<context>
    <name>VideoWriter</name>
    <message>
        <source>videos need the program ffmpeg, which is not installed; install it with: %1</source>
        <translation>Videos benötigen das Programm ffmpeg, das nicht installiert ist; installieren Sie es mit: %1</translation>
    </message>
    <message>
        <source>the images are too small for a video</source>
        <translation>die Bilder sind zu klein für ein Video</translation>
    </message>
    <message>
        <source>the format of the images has changed, which a video cannot contain; start another recording</source>
        <translation>das Format der Bilder hat sich geändert, was in einem Video nicht möglich ist; starten Sie eine neue Aufzeichnung</translation>
    </message>
</context>
<context>
    <name>ViewerActions</name>
    <message>
        <source>&amp;Live</source>
        <translation>&amp;Live</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>Bild &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>A&amp;ufzeichnen</translation>
    </message>
    <message>
        <source>&amp;Crosshair</source>
        <translation>Fa&amp;denkreuz</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>Vollb&amp;ild</translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation>&amp;Neues Fenster</translation>
    </message>
    <message>
        <source>All &amp;features (Camera Setup)</source>
        <translation>Alle &amp;Features (Camera Setup)</translation>
    </message>
    <message>
        <source>&amp;Fit into the window</source>
        <translation>In &amp;Fenster einpassen</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>Nach &amp;links drehen</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>Nach &amp;rechts drehen</translation>
    </message>
    <message>
        <source>Mirror &amp;horizontally</source>
        <translation>&amp;Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Mirror &amp;vertically</source>
        <translation>&amp;Vertikal spiegeln</translation>
    </message>
    <message>
        <source>&amp;Move the picture</source>
        <translation>Bild verschie&amp;ben</translation>
    </message>
    <message>
        <source>Draw a re&amp;gion</source>
        <translation>Bereich &amp;zeichnen</translation>
    </message>
    <message>
        <source>+, -</source>
        <translation>+, -</translation>
    </message>
    <message>
        <source>Zoom in or out</source>
        <translation>Vergrößern oder verkleinern</translation>
    </message>
    <message>
        <source>0, 1</source>
        <translation>0, 1</translation>
    </message>
    <message>
        <source>Fit the picture, or show it at its own size</source>
        <translation>Bild einpassen oder in Originalgröße zeigen</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Remove the drawn region or line</source>
        <translation>Gezeichneten Bereich oder gezeichnete Linie entfernen</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>An der Zeigerposition zoomen</translation>
    </message>
    <message>
        <source>Move the picture, whatever the tool</source>
        <translation>Bild verschieben, unabhängig vom Werkzeug</translation>
    </message>
    <message>
        <source>Double click</source>
        <translation>Doppelklick</translation>
    </message>
    <message>
        <source>Change between the fitted picture and its own size</source>
        <translation>Zwischen eingepasstem Bild und Originalgröße wechseln</translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>&amp;Einfrieren</translation>
    </message>
    <message>
        <source>Mark clipped &amp;pixels</source>
        <translation>&amp;Clipping markieren</translation>
    </message>
    <message>
        <source>Gri&amp;d</source>
        <translation>Gi&amp;tter</translation>
    </message>
    <message>
        <source>Draw a li&amp;ne</source>
        <translation>Linie zeich&amp;nen</translation>
    </message>
    <message>
        <source>Move the picture; in larger steps with Shift</source>
        <translation>Bild verschieben; mit Umschalt in größeren Schritten</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Draw a region or a line in the middle</source>
        <translation>Bereich oder Linie in der Mitte zeichnen</translation>
    </message>
    <message>
        <source>Ctrl and arrow keys</source>
        <translation>Strg und Pfeiltasten</translation>
    </message>
    <message>
        <source>Move the drawn region or line; resize it with Shift</source>
        <translation>Gezeichneten Bereich oder gezeichnete Linie verschieben; mit Umschalt Größe ändern</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Finish the region for the camera</source>
        <translation>Bildausschnitt für die Kamera fertigstellen</translation>
    </message>
    <message>
        <source>Middle button, or Space and drag</source>
        <translation>Mittlere Maustaste oder Leertaste und ziehen</translation>
    </message>
    <message>
        <source>&amp;Corrections…</source>
        <translation>&amp;Korrekturen…</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Image Viewer</source>
        <translation>Image Viewer</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Gespeicherte Bilder</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Kamera</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Bedienfelder</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Pixel under the pointer</source>
        <translation>Pixel unter dem Mauszeiger</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>Die Kamera sendet keine Bilder. %1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off in the panel &quot;Camera&quot;.</source>
        <translation>Die Kamera wartet auf einen Trigger. Lösen Sie ihn aus, oder schalten Sie den Triggermodus im Bedienfeld „Kamera“ aus.</translation>
    </message>
    <message>
        <source>Draw the region that the camera shall send.</source>
        <translation>Zeichnen Sie den Bildausschnitt, den die Kamera senden soll.</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>Stream</translation>
    </message>
    <message>
        <source>The stream is stopped. Press %1 to start it.</source>
        <translation>Der Stream ist gestoppt. Drücken Sie %1, um ihn zu starten.</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The panel &quot;Stream&quot; may say why.</source>
        <translation>Noch kein Bild angekommen. Das Bedienfeld „Stream“ kann den Grund zeigen.</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The program that controls the camera may not stream.</source>
        <translation>Es ist noch kein Bild angekommen. Vielleicht hat das Programm, das die Kamera steuert, den Stream nicht gestartet.</translation>
    </message>
    <message>
        <source>Not corrected</source>
        <translation>Nicht korrigiert</translation>
    </message>
    <message>
        <source>Corrected</source>
        <translation>Korrigiert</translation>
    </message>
</context>
<context>
    <name>WhiteBalanceCall</name>
    <message>
        <source>The camera has no white balance ratios.</source>
        <translation>Die Kamera hat keine Faktoren für den Weißabgleich.</translation>
    </message>
</context>
</TS>
