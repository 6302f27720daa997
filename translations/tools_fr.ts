<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AssistantWindow</name>
    <message>
        <source>The result was saved to &quot;%1&quot;.</source>
        <translation>Résultat enregistré dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Press F5 to see the live picture.</source>
        <translation>Appuyez sur F5 pour voir l’image en direct.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Résultat</translation>
    </message>
    <message>
        <source>&amp;Live picture</source>
        <translation>Image en &amp;direct</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Caméra</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>Ouvrir dans la &amp;visionneuse d’images</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Cancel the measurement</source>
        <translation>Annuler la mesure</translation>
    </message>
</context>
<context>
    <name>BigNumber</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>CameraChooser</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Caméras</translation>
    </message>
    <message>
        <source>Choose a camera</source>
        <translation>Choisissez une caméra</translation>
    </message>
    <message>
        <source>Search by name, model, serial number or connection</source>
        <translation>Rechercher par nom, modèle, n°&#xa0;de série ou connexion</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Rechercher des caméras</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>Recherche de caméras…</translation>
    </message>
    <message>
        <source>Cameras: %1</source>
        <translation>Caméras&#xa0;: %1</translation>
    </message>
    <message>
        <source>No camera matches &quot;%1&quot;.</source>
        <translation>Aucune caméra ne correspond à «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>CameraConnection</name>
    <message>
        <source>The camera is not open.</source>
        <translation>La caméra n’est pas ouverte.</translation>
    </message>
</context>
<context>
    <name>CameraFinder</name>
    <message>
        <source>Corvix X is not installed completely: the program CvxProducerHost is missing or not executable. Install the package again.</source>
        <translation>L’installation de Corvix X est incomplète&#xa0;: le programme CvxProducerHost est absent ou non exécutable. Réinstallez le paquet.</translation>
    </message>
    <message>
        <source>The camera system cannot be started (error %1).</source>
        <translation>Impossible de démarrer le système de caméras (erreur&#xa0;%1).</translation>
    </message>
    <message>
        <source>The cameras cannot be listed (error %1).</source>
        <translation>Impossible de lister les caméras (erreur&#xa0;%1).</translation>
    </message>
</context>
<context>
    <name>CameraPanel</name>
    <message>
        <source>All features (Camera Setup)</source>
        <translation>Tous les paramètres (Camera Setup)</translation>
    </message>
    <message>
        <source>Draw on picture</source>
        <translation>Tracer sur l’image</translation>
    </message>
    <message>
        <source>Whole sensor</source>
        <translation>Capteur entier</translation>
    </message>
    <message>
        <source>Drag a rectangle over the part of the picture that the camera shall send.</source>
        <translation>Tracez un rectangle sur la partie de l’image que la caméra doit envoyer.</translation>
    </message>
    <message>
        <source>You are watching this camera, so nothing can be changed here.</source>
        <translation>Vous ne faites qu’observer cette caméra&#xa0;: rien n’est modifiable ici.</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Temps d’exposition</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Black level and gamma</source>
        <translation>Niveau de noir et gamma</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Niveau de noir</translation>
    </message>
    <message>
        <source>Apply gamma</source>
        <translation>Appliquer le gamma</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balance des blancs</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>Facteur</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Fréquence d’images</translation>
    </message>
    <message>
        <source>Set the frame rate</source>
        <translation>Fixer la fréquence</translation>
    </message>
    <message>
        <source>Line scan</source>
        <translation>Balayage linéaire</translation>
    </message>
    <message>
        <source>Set the line rate</source>
        <translation>Fixer la fréquence</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>Fréquence de lignes</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>Format de pixel</translation>
    </message>
    <message>
        <source>Region of interest</source>
        <translation>Région d’intérêt (ROI)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>Décalage X</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Décalage Y</translation>
    </message>
    <message>
        <source>Binning and mirroring</source>
        <translation>Binning et miroir</translation>
    </message>
    <message>
        <source>Horizontal binning</source>
        <translation>Binning horizontal</translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation>Mode horizontal</translation>
    </message>
    <message>
        <source>Vertical binning</source>
        <translation>Binning vertical</translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation>Mode vertical</translation>
    </message>
    <message>
        <source>Horizontal decimation</source>
        <translation>Décimation horizontale</translation>
    </message>
    <message>
        <source>Vertical decimation</source>
        <translation>Décimation verticale</translation>
    </message>
    <message>
        <source>Mirror horizontally</source>
        <translation>Miroir horizontal</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>Miroir vertical</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Déclenchement</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Activation</source>
        <translation>Activation</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Retard</translation>
    </message>
    <message>
        <source>Trigger now</source>
        <translation>Déclencher</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>Jeu de paramètres</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>Au démarrage</translation>
    </message>
    <message>
        <source>Saving replaces what is stored in the camera as &quot;%1&quot;.</source>
        <translation>L’enregistrement remplace le contenu de «&#xa0;%1&#xa0;» mémorisé dans la caméra.</translation>
    </message>
    <message>
        <source>Resulting rate</source>
        <translation>Fréquence résultante</translation>
    </message>
    <message>
        <source>Binning location</source>
        <translation>Lieu du binning</translation>
    </message>
    <message>
        <source>Trigger type</source>
        <translation>Type de déclencheur</translation>
    </message>
</context>
<context>
    <name>CameraSettings</name>
    <message>
        <source>Camera settings</source>
        <translation>Réglages de la caméra</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>This camera now</source>
        <translation>Cette caméra (état actuel)</translation>
    </message>
    <message>
        <source>Reading the settings of this camera</source>
        <translation>Lecture des réglages de cette caméra</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>Cette caméra n’est pas ouverte en mode contrôle.</translation>
    </message>
    <message>
        <source>Copying to this camera</source>
        <translation>Copie vers cette caméra</translation>
    </message>
    <message>
        <source>Copy of differences</source>
        <translation>Copie de différences</translation>
    </message>
</context>
<context>
    <name>CameraTable</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>N°&#xa0;de série</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>User-defined name</source>
        <translation>Nom personnalisé</translation>
    </message>
</context>
<context>
    <name>ChangeHistory</name>
    <message>
        <source>Undo: %1</source>
        <translation>Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>The value of %1 before the change is unknown.</source>
        <translation>La valeur de %1 avant la modification est inconnue.</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 cannot be changed while the camera is streaming.</source>
        <translation>%1 n’est pas modifiable pendant l’acquisition.</translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation>L’opération a été annulée.</translation>
    </message>
</context>
<context>
    <name>CollapsibleGroup</name>
    <message>
        <source>Expanded group</source>
        <translation>Groupe déplié</translation>
    </message>
    <message>
        <source>Collapsed group</source>
        <translation>Groupe replié</translation>
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
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Swap the sides</source>
        <translation>Intervertir les côtés</translation>
    </message>
    <message>
        <source>Reads both sides again.</source>
        <translation>Relit les deux côtés.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Compare settings</source>
        <translation>Comparer les réglages</translation>
    </message>
    <message>
        <source>&amp;Load the user set</source>
        <translation>&amp;Charger le jeu</translation>
    </message>
    <message>
        <source>Compare with a file</source>
        <translation>Comparer à un fichier</translation>
    </message>
    <message>
        <source>Settings files (*.txt *.pfs *.features);;All files (*)</source>
        <translation>Fichiers de réglages (*.txt *.pfs *.features);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Writes settings of the left side to the right side.</source>
        <translation>Écrit des réglages du côté gauche dans le côté droit.</translation>
    </message>
    <message>
        <source>The settings are being read.</source>
        <translation>Lecture des réglages en cours.</translation>
    </message>
    <message>
        <source>Choose two sides that can be read.</source>
        <translation>Choisissez deux côtés lisibles.</translation>
    </message>
    <message>
        <source>Copy to the ri&amp;ght</source>
        <translation>Copier &amp;vers la droite</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
</context>
<context>
    <name>CompareSession</name>
    <message>
        <source>Reading: %1</source>
        <translation>Lecture&#xa0;: %1</translation>
    </message>
    <message>
        <source>Copying to: %1</source>
        <translation>Copie vers&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>CompareSides</name>
    <message>
        <source>User set %1</source>
        <translation>Jeu de paramètres %1</translation>
    </message>
    <message>
        <source>This camera now</source>
        <translation>Cette caméra (état actuel)</translation>
    </message>
    <message>
        <source>This camera at opening</source>
        <translation>Cette caméra (à l’ouverture)</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Caméra %1</translation>
    </message>
</context>
<context>
    <name>ComparisonCounts</name>
    <message numerus="yes">
        <source>No difference in %n setting(s).</source>
        <translation>
            <numerusform>Aucune différence sur %n&#xa0;réglage.</numerusform>
            <numerusform>Aucune différence sur %n&#xa0;réglages.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 setting(s) differ.</source>
        <translation>
            <numerusform>%n&#xa0;réglage sur %1 diffère.</numerusform>
            <numerusform>%n&#xa0;réglages sur %1 diffèrent.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) belong to one camera or one moment.</source>
        <translation>
            <numerusform>%n&#xa0;autre différence est propre à une caméra ou à un instant.</numerusform>
            <numerusform>%n&#xa0;autres différences sont propres à une caméra ou à un instant.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) that belong to one camera or one moment are hidden.</source>
        <translation>
            <numerusform>%n&#xa0;autre différence, propre à une caméra ou à un instant, est masquée.</numerusform>
            <numerusform>%n&#xa0;autres différences, propres à une caméra ou à un instant, sont masquées.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ComparisonReport</name>
    <message>
        <source>(missing)</source>
        <translation>(absent)</translation>
    </message>
    <message>
        <source>belongs to one camera or one moment</source>
        <translation>propre à une caméra ou à un instant</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>identique</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Comparison of camera settings</source>
        <translation>Comparaison de réglages de caméra</translation>
    </message>
    <message>
        <source>Left: %1, %2</source>
        <translation>Gauche&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>Right: %1, %2</source>
        <translation>Droite&#xa0;: %1, %2</translation>
    </message>
</context>
<context>
    <name>ConnectionBar</name>
    <message>
        <source>&amp;Watch only</source>
        <translation>&amp;Observer seulement</translation>
    </message>
    <message>
        <source>&amp;Other camera…</source>
        <translation>A&amp;utre caméra…</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Impossible d’ouvrir la caméra «&#xa0;%1&#xa0;». %2</translation>
    </message>
    <message>
        <source>&amp;Take control</source>
        <translation>Prendre &amp;le contrôle</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>Réessa&amp;yer</translation>
    </message>
    <message>
        <source>%1 The camera was lost at %2. The program continues by itself when the camera is back.</source>
        <translation>%1 Connexion à la caméra perdue à %2. Le programme reprendra automatiquement à son retour.</translation>
    </message>
    <message>
        <source>Shows the settings of the camera and how they change, and its pictures if it sends them to more than one program. Nothing is changed.</source>
        <translation>Affiche les réglages de la caméra et leur évolution, ainsi que ses images si elle les envoie à plusieurs programmes. Rien n’est modifié.</translation>
    </message>
    <message>
        <source>Watching %1: its settings are shown as another program changes them.</source>
        <translation>Observation de «&#xa0;%1&#xa0;»&#xa0;: ses réglages s’affichent tels qu’un autre programme les modifie.</translation>
    </message>
</context>
<context>
    <name>ContrastHandle</name>
    <message>
        <source>%1: drag it, or use the arrow keys. A double click resets it.</source>
        <translation>%1&#xa0;: faites glisser la poignée ou utilisez les touches fléchées. Un double-clic rétablit la valeur initiale.</translation>
    </message>
</context>
<context>
    <name>CopyActions</name>
    <message>
        <source>&amp;Selected differences</source>
        <translation>Différences &amp;sélectionnées</translation>
    </message>
    <message>
        <source>&amp;Checked differences</source>
        <translation>Différences &amp;cochées</translation>
    </message>
    <message>
        <source>&amp;All differences</source>
        <translation>&amp;Toutes les différences</translation>
    </message>
    <message>
        <source>Copy differences</source>
        <translation>Copier les différences</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>É&amp;crire</translation>
    </message>
    <message>
        <source>Nothing was copied: %1</source>
        <translation>Rien n’a été copié&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were copied.</source>
        <translation>
            <numerusform>%n&#xa0;réglage copié.</numerusform>
            <numerusform>%n&#xa0;réglages copiés.</numerusform>
        </translation>
    </message>
    <message>
        <source>The copy was cancelled.</source>
        <translation>La copie a été annulée.</translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s) were reported.</source>
        <translation>
            <numerusform>%n&#xa0;problème signalé.</numerusform>
            <numerusform>%n&#xa0;problèmes signalés.</numerusform>
        </translation>
    </message>
    <message>
        <source>What could not be copied or put back:</source>
        <translation>Réglages qui n’ont pas pu être copiés ou restaurés&#xa0;:</translation>
    </message>
    <message>
        <source>The copy failed partway: %1</source>
        <translation>La copie a échoué après une écriture partielle&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>CorrectionDialog</name>
    <message>
        <source>&amp;Correct the pictures</source>
        <translation>&amp;Corriger les images</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>Corrections</translation>
    </message>
    <message>
        <source>&amp;Defect map:</source>
        <translation>Carte des &amp;défauts&#xa0;:</translation>
    </message>
    <message>
        <source>Choose a defect map</source>
        <translation>Choisir une carte des défauts</translation>
    </message>
    <message>
        <source>Defect maps (*.json *.csv);;All files (*)</source>
        <translation>Cartes des défauts (*.json *.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;Flat field:</source>
        <translation>Champ &amp;plat&#xa0;:</translation>
    </message>
    <message>
        <source>Choose a flat field</source>
        <translation>Choisir un champ plat</translation>
    </message>
    <message>
        <source>Flat fields (*.tif *.tiff);;All files (*)</source>
        <translation>Champs plats (*.tif *.tiff);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The correction applies to the shown pictures, to PNG and TIFF files and to TIFF recordings. Raw files, videos and measured values stay those of the camera.</source>
        <translation>La correction s’applique aux images affichées, aux fichiers PNG et TIFF et aux séquences TIFF. Les fichiers bruts, les vidéos et les valeurs mesurées restent ceux de la caméra.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>The pictures are not corrected: %1.</source>
        <translation>Les images ne sont pas corrigées&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The pictures are corrected.</source>
        <translation>Les images sont corrigées.</translation>
    </message>
</context>
<context>
    <name>DarkBox</name>
    <message>
        <source>Cover the lens, and choose a long exposure and a pixel format with many bits in the camera settings. Then measure while the camera warms up.</source>
        <translation>Obturez l’objectif et choisissez, dans les réglages de la caméra, une longue exposition et un format de pixel à grand nombre de bits. Mesurez ensuite pendant la montée en température.</translation>
    </message>
    <message>
        <source>Stop measuring the &amp;dark level</source>
        <translation>Arrêter la mesure d’&amp;obscurité</translation>
    </message>
    <message>
        <source>Measure the &amp;dark level</source>
        <translation>Mesurer le niveau d’&amp;obscurité</translation>
    </message>
</context>
<context>
    <name>DefectList</name>
    <message>
        <source>Columns %1 to %2, lines %3 to %4</source>
        <translation>Colonnes %1 à %2, lignes %3 à %4</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>Écart</translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s)</source>
        <translation>
            <numerusform>%n&#xa0;pixel</numerusform>
            <numerusform>%n&#xa0;pixels</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 σ</source>
        <translation>%1&#xa0;σ</translation>
    </message>
</context>
<context>
    <name>DefectTexts</name>
    <message>
        <source>Hot</source>
        <translation>Chaud</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Mort</translation>
    </message>
    <message>
        <source>Stuck</source>
        <translation>Figé</translation>
    </message>
    <message>
        <source>Blinking</source>
        <translation>Clignotant</translation>
    </message>
    <message>
        <source>Deviating</source>
        <translation>Déviant</translation>
    </message>
    <message>
        <source>Too bright in the dark.</source>
        <translation>Trop clair dans l’obscurité.</translation>
    </message>
    <message>
        <source>Hardly reacts to light.</source>
        <translation>Réagit à peine à la lumière.</translation>
    </message>
    <message>
        <source>Always has the same value.</source>
        <translation>A toujours la même valeur.</translation>
    </message>
    <message>
        <source>Changes between levels from image to image.</source>
        <translation>Change de niveau d’une image à l’autre.</translation>
    </message>
    <message>
        <source>Reacts to light much more or less than its neighbours.</source>
        <translation>Réagit à la lumière nettement plus ou moins que ses voisins.</translation>
    </message>
    <message>
        <source>Cluster</source>
        <translation>Amas</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>No defect pixels were found.</source>
        <translation>Aucun pixel défectueux trouvé.</translation>
    </message>
    <message numerus="yes">
        <source>%n defect pixel(s) found.</source>
        <translation>
            <numerusform>%n&#xa0;pixel défectueux trouvé.</numerusform>
            <numerusform>%n&#xa0;pixels défectueux trouvés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Numbers of the stream</source>
        <translation>Données du flux</translation>
    </message>
    <message>
        <source>Copies all numbers to the clipboard.</source>
        <translation>Copie toutes les valeurs dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Command that corrects the cause</source>
        <translation>Commande qui corrige la cause</translation>
    </message>
    <message>
        <source>Copy as te&amp;xt</source>
        <translation>Copier comme te&amp;xte</translation>
    </message>
    <message>
        <source>Copy comma&amp;nd</source>
        <translation>Copier la co&amp;mmande</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message>
        <source>All values side by side</source>
        <translation>Toutes les valeurs côte à côte</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favori</translation>
    </message>
    <message>
        <source>Set back</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Writes the value that the camera had when it was opened.</source>
        <translation>Réécrit la valeur qu’avait la caméra à son ouverture.</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>Contient</translation>
    </message>
    <message>
        <source>At opening: %1</source>
        <translation>À l’ouverture&#xa0;: %1</translation>
    </message>
    <message>
        <source>As it was when the camera was opened</source>
        <translation>Inchangé depuis l’ouverture de la caméra</translation>
    </message>
    <message>
        <source>Select a feature to see what the camera says about it.</source>
        <translation>Sélectionnez un paramètre pour voir ce que la caméra en indique.</translation>
    </message>
    <message>
        <source>Copy the name used in programs</source>
        <translation>Copier le nom technique</translation>
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
        <translation>%1&#xa0;; gauche&#xa0;: %2&#xa0;; droite&#xa0;: %3</translation>
    </message>
    <message>
        <source>(missing)</source>
        <translation>(absent)</translation>
    </message>
    <message>
        <source>%1
This value belongs to one camera or one moment.</source>
        <translation>%1
Cette valeur est propre à une caméra ou à un instant.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
</context>
<context>
    <name>DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>Différences</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search the differences</source>
        <translation>Rechercher dans les différences</translation>
    </message>
    <message>
        <source>Also e&amp;qual</source>
        <translation>Aussi les identi&amp;ques</translation>
    </message>
    <message>
        <source>Shows the settings that both sides have in common too.</source>
        <translation>Affiche aussi les réglages identiques des deux côtés.</translation>
    </message>
    <message>
        <source>Also those of one camera or one &amp;moment</source>
        <translation>Aussi ceux propres à une caméra ou un i&amp;nstant</translation>
    </message>
    <message>
        <source>Shows values that differ between cameras with the same settings too: serial numbers, temperatures, counters.</source>
        <translation>Affiche aussi les valeurs qui diffèrent entre des caméras réglées à l’identique&#xa0;: numéros de série, températures, compteurs.</translation>
    </message>
    <message>
        <source>There is no difference to show.</source>
        <translation>Aucune différence à afficher.</translation>
    </message>
    <message>
        <source>Nothing that is shown contains the text.</source>
        <translation>Aucun élément affiché ne contient ce texte.</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Mark clipped pixels</source>
        <translation>Marquer les pixels écrêtés</translation>
    </message>
    <message>
        <source>Pick grey</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Fast (bilinear)</source>
        <translation>Rapide (bilinéaire)</translation>
    </message>
    <message>
        <source>Fine (along edges)</source>
        <translation>Fin (selon les contours)</translation>
    </message>
    <message>
        <source>How the missing colours of a Bayer picture are found.</source>
        <translation>Méthode d’interpolation des couleurs manquantes d’une image Bayer.</translation>
    </message>
    <message>
        <source>Shows overexposed pixels in red and underexposed ones in blue.</source>
        <translation>Affiche les pixels surexposés en rouge et les pixels sous-exposés en bleu.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source> µm</source>
        <translation> µm</translation>
    </message>
    <message>
        <source>Demosaicing</source>
        <translation>Dématriçage</translation>
    </message>
    <message>
        <source>Click on something grey in the picture. Its surroundings become grey on the screen.</source>
        <translation>Cliquez sur une zone grise de l’image. Ses environs deviennent gris neutre à l’écran.</translation>
    </message>
    <message>
        <source>Reset the white balance</source>
        <translation>Rétablir la balance des blancs</translation>
    </message>
    <message>
        <source>Multiplies the white balance of the camera by these factors.</source>
        <translation>Multiplie la balance des blancs de la caméra par ces facteurs.</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balance des blancs</translation>
    </message>
    <message>
        <source>R %1 G %2 B %3</source>
        <translation>R %1 V %2 B %3</translation>
    </message>
    <message>
        <source>The factors of red, green and blue on the screen.</source>
        <translation>Facteurs du rouge, du vert et du bleu à l’écran.</translation>
    </message>
    <message>
        <source>Write to camera</source>
        <translation>Écrire dans la caméra</translation>
    </message>
    <message>
        <source>What one pixel shows of the object. Lengths and the scale bar need this number.</source>
        <translation>Taille d’un pixel dans le plan de l’objet. Cette valeur est nécessaire aux longueurs et à la barre d’échelle.</translation>
    </message>
    <message>
        <source>Size of a pixel</source>
        <translation>Taille d’un pixel</translation>
    </message>
</context>
<context>
    <name>DurationScale</name>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;h</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1&#xa0;h %2&#xa0;min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1&#xa0;j</translation>
    </message>
</context>
<context>
    <name>EditorNote</name>
    <message>
        <source>Discard</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Encoder</name>
    <message>
        <source>ffmpeg cannot be started: %1</source>
        <translation>Impossible de démarrer ffmpeg&#xa0;: %1</translation>
    </message>
    <message>
        <source>ffmpeg has failed: %1</source>
        <translation>ffmpeg a échoué&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not accepted an image for %n second(s)</source>
        <translation>
            <numerusform>ffmpeg n’a accepté aucune image depuis %n&#xa0;seconde</numerusform>
            <numerusform>ffmpeg n’a accepté aucune image depuis %n&#xa0;secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not ended after %n second(s)</source>
        <translation>
            <numerusform>ffmpeg n’est toujours pas terminé après %n&#xa0;seconde</numerusform>
            <numerusform>ffmpeg n’est toujours pas terminé après %n&#xa0;secondes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportActions</name>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Saves what is shown as text or as a page (HTML).</source>
        <translation>Enregistre le contenu affiché sous forme de texte ou de page (HTML).</translation>
    </message>
    <message>
        <source>Copies what is shown as text to the clipboard.</source>
        <translation>Copie le contenu affiché dans le presse-papiers, sous forme de texte.</translation>
    </message>
    <message>
        <source>Export the comparison</source>
        <translation>Exporter la comparaison</translation>
    </message>
    <message>
        <source>Page (*.html)</source>
        <translation>Page (*.html)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>The comparison was saved as %1.</source>
        <translation>Comparaison enregistrée sous %1.</translation>
    </message>
    <message>
        <source>The comparison could not be saved as %1: %2</source>
        <translation>Impossible d’enregistrer la comparaison sous %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The comparison was copied.</source>
        <translation>Comparaison copiée.</translation>
    </message>
</context>
<context>
    <name>FeatureActions</name>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Show Locking Feature</source>
        <translation>Afficher le paramètre verrouillant</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favori</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Copier le nom</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Copier la valeur</translation>
    </message>
    <message>
        <source>Copy &quot;Name=Value&quot;</source>
        <translation>Copier «&#xa0;Nom=Valeur&#xa0;»</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Tout déplier</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Tout replier</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Exécuter</translation>
    </message>
</context>
<context>
    <name>FeatureEditor</name>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>Cette modification exige un bref arrêt du flux.</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>Régler et relancer</translation>
    </message>
</context>
<context>
    <name>FeatureFacts</name>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Entier</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Booléen</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>Énumération</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registre</translation>
    </message>
    <message>
        <source>Not in this camera</source>
        <translation>Absent de cette caméra</translation>
    </message>
    <message>
        <source>Not available at present</source>
        <translation>Indisponible actuellement</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>Écriture seule</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lecture et écriture</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>Logarithmique</translation>
    </message>
    <message>
        <source>Number without slider</source>
        <translation>Nombre sans curseur</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadécimal</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>Adresse IPv4</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>Adresse MAC</translation>
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
        <translation>Incrément</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n&#xa0;octet</numerusform>
            <numerusform>%n&#xa0;octets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n character(s)</source>
        <translation>
            <numerusform>%n&#xa0;caractère</numerusform>
            <numerusform>%n&#xa0;caractères</numerusform>
        </translation>
    </message>
    <message>
        <source>Every %1 ms</source>
        <translation>Toutes les %1&#xa0;ms</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>Représentation</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Not allowed now</source>
        <translation>Non admis actuellement</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Accès</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>In settings files</source>
        <translation>Dans les fichiers de réglages</translation>
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
        <source>Changes by itself</source>
        <translation>Change de lui-même</translation>
    </message>
    <message>
        <source>Selected by</source>
        <translation>Sélectionné par</translation>
    </message>
    <message>
        <source>Selects</source>
        <translation>Sélectionne</translation>
    </message>
    <message>
        <source>Depends on</source>
        <translation>Dépend de</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>Nombre décimal</translation>
    </message>
    <message>
        <source>Maximum length</source>
        <translation>Longueur maximale</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>The camera is not connected.</source>
        <translation>La caméra n’est pas connectée.</translation>
    </message>
    <message>
        <source>The value was not read yet.</source>
        <translation>La valeur n’a pas encore été lue.</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>verrouillé</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>favori</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>Features</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>FileNamePattern</name>
    <message>
        <source>name or model of the camera</source>
        <translation>nom ou modèle de la caméra</translation>
    </message>
    <message>
        <source>serial number of the camera</source>
        <translation>n°&#xa0;de série de la caméra</translation>
    </message>
    <message>
        <source>date of the image, for example 2026-01-31</source>
        <translation>date de l’image, par exemple 2026-01-31</translation>
    </message>
    <message>
        <source>time of the image, for example 23-59-59</source>
        <translation>heure de l’image, par exemple 23-59-59</translation>
    </message>
    <message>
        <source>next free number; {number:4} has at least four digits</source>
        <translation>prochain numéro libre&#xa0;; {number:4} a au moins quatre chiffres</translation>
    </message>
    <message>
        <source>frame ID of the image</source>
        <translation>ID de trame (frame ID) de l’image</translation>
    </message>
    <message>
        <source>pixel format of the image, for example Mono8</source>
        <translation>format de pixel de l’image, par exemple Mono8</translation>
    </message>
    <message>
        <source>The name may contain these placeholders:</source>
        <translation>Le nom peut contenir les champs suivants&#xa0;:</translation>
    </message>
    <message>
        <source>a brace is missing; placeholders look like {number}</source>
        <translation>il manque une accolade&#xa0;; les champs s’écrivent comme {number}</translation>
    </message>
    <message>
        <source>the name must not contain &quot;/&quot;; choose the folder above</source>
        <translation>le nom ne doit pas contenir «&#xa0;/&#xa0;»&#xa0;; choisissez le dossier ci-dessus</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>le nom est vide</translation>
    </message>
    <message>
        <source>{%1} is not a placeholder; use one of %2</source>
        <translation>{%1} n’est pas un champ connu&#xa0;; champs possibles&#xa0;: %2</translation>
    </message>
    <message>
        <source>{%1} has to be like {number:4}, with 1 to %2 digits</source>
        <translation>{%1} doit s’écrire comme {number:4}, avec 1 à %2 chiffres</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>File %1</source>
        <translation>Fichier %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Le fichier n’est pas accessible en écriture.</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the file %1? The other settings stay, but comments and lines that cannot be read are lost.</source>
        <translation>
            <numerusform>Écrire %n&#xa0;réglage dans le fichier %1&#xa0;? Les autres réglages sont conservés, mais les commentaires et les lignes illisibles sont perdus.</numerusform>
            <numerusform>Écrire %n&#xa0;réglages dans le fichier %1&#xa0;? Les autres réglages sont conservés, mais les commentaires et les lignes illisibles sont perdus.</numerusform>
        </translation>
    </message>
    <message>
        <source>changed by a copy of differences</source>
        <translation>modifié par une copie de différences</translation>
    </message>
</context>
<context>
    <name>FilesPanel</name>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Choisir le dossier</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>&amp;Dossier</translation>
    </message>
    <message>
        <source>File &amp;name</source>
        <translation>&amp;Nom de fichier</translation>
    </message>
    <message>
        <source>PNG, 16 bits</source>
        <translation>PNG, 16 bits</translation>
    </message>
    <message>
        <source>PNG, 8 bits</source>
        <translation>PNG, 8 bits</translation>
    </message>
    <message>
        <source>TIFF, measured values</source>
        <translation>TIFF, valeurs mesurées</translation>
    </message>
    <message>
        <source>Raw bytes</source>
        <translation>Données brutes</translation>
    </message>
    <message>
        <source>Saves the values of the picture that is shown, with a sidecar that contains the camera&apos;s settings. Contrast, white balance and marks of the display are not part of the file.</source>
        <translation>Enregistre les valeurs de l’image affichée, avec un fichier annexe contenant les réglages de la caméra. Le contraste, la balance des blancs et les marques de l’affichage ne font pas partie du fichier.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Séquence</translation>
    </message>
    <message>
        <source>Format of recordings</source>
        <translation>Format des séquences</translation>
    </message>
    <message>
        <source>BigTIFF, measured values</source>
        <translation>BigTIFF, valeurs mesurées</translation>
    </message>
    <message>
        <source>Raw bytes with an index</source>
        <translation>Données brutes avec index</translation>
    </message>
    <message>
        <source>Video, 8 bits, H.264 (MP4)</source>
        <translation>Vidéo, 8 bits, H.264 (MP4)</translation>
    </message>
    <message>
        <source>Video, 8 bits, lossless (MKV)</source>
        <translation>Vidéo, 8 bits, sans perte (MKV)</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>Arrêter après</translation>
    </message>
    <message>
        <source> images</source>
        <translation> images</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Keep free</source>
        <translation>Garder libres</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> Go</translation>
    </message>
    <message>
        <source>Stops the recording before less space than this is left on the disk.</source>
        <translation>Arrête l’enregistrement avant que l’espace libre du disque ne passe sous cette valeur.</translation>
    </message>
    <message>
        <source>Play at</source>
        <translation>Lire à</translation>
    </message>
    <message>
        <source> images/s</source>
        <translation> images/s</translation>
    </message>
    <message>
        <source>Images per second when the video is played. Otherwise, it plays as fast as it was recorded.</source>
        <translation>Images par seconde à la lecture de la vidéo. Sinon, elle est lue à la vitesse d’enregistrement.</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>Par exemple&#xa0;: %1</translation>
    </message>
    <message>
        <source>Videos need the program ffmpeg, which is not installed. Install it with: %1</source>
        <translation>Les vidéos nécessitent le programme ffmpeg, qui n’est pas installé. Pour l’installer&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>Enregistrer la &amp;séquence</translation>
    </message>
    <message>
        <source>S&amp;top recording</source>
        <translation>Arrê&amp;ter la séquence</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Écriture…</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>Image enregistrée sous «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The folder for snapshots and recordings.</source>
        <translation>Dossier des captures et des séquences.</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>Pa&amp;rcourir…</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Format of snapshots</source>
        <translation>Format des captures</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>&amp;Enregistrer la capture</translation>
    </message>
    <message>
        <source>Folder for snapshots and recordings</source>
        <translation>Dossier des captures et des séquences</translation>
    </message>
    <message>
        <source>This name cannot be used: %1.</source>
        <translation>Ce nom ne peut pas être utilisé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The camera is lost; the recording goes on when the camera is back. %1</source>
        <translation>Connexion à la caméra perdue&#xa0;; l’enregistrement reprendra à son retour. %1</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Search features</source>
        <translation>Rechercher des paramètres</translation>
    </message>
    <message>
        <source>Shows the features with all of these words in their name or description.</source>
        <translation>Affiche les paramètres dont le nom ou la description contient tous ces mots.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Which features are shown: the most important ones, most, or all.</source>
        <translation>Paramètres affichés&#xa0;: les plus importants, la plupart ou tous.</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifiés</translation>
    </message>
    <message>
        <source>Shows only features that have changed since the camera was opened.</source>
        <translation>N’affiche que les paramètres modifiés depuis l’ouverture de la caméra.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Shows only the features that you have marked as favourites.</source>
        <translation>N’affiche que les paramètres marqués comme favoris.</translation>
    </message>
</context>
<context>
    <name>FilterHint</name>
    <message numerus="yes">
        <source>%n feature(s) are hidden by the level %1.</source>
        <translation>
            <numerusform>%n&#xa0;paramètre est masqué par le niveau «&#xa0;%1&#xa0;».</numerusform>
            <numerusform>%n&#xa0;paramètres sont masqués par le niveau «&#xa0;%1&#xa0;».</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Them</source>
        <translation>Les afficher</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>Aucun paramètre ne correspond.</translation>
    </message>
    <message>
        <source>No feature is marked as a favourite. Ctrl+D marks one.</source>
        <translation>Aucun paramètre n’est marqué comme favori. Ctrl+D en marque un.</translation>
    </message>
    <message>
        <source>No feature has changed since the camera was opened.</source>
        <translation>Aucun paramètre n’a changé depuis l’ouverture de la caméra.</translation>
    </message>
    <message>
        <source>This level has no features.</source>
        <translation>Ce niveau ne contient aucun paramètre.</translation>
    </message>
</context>
<context>
    <name>FindingCard</name>
    <message>
        <source>In order</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copies the command, which you can paste into a terminal.</source>
        <translation>Copie la commande, à coller dans un terminal.</translation>
    </message>
</context>
<context>
    <name>FlatFieldPanel</name>
    <message>
        <source>Shading before</source>
        <translation>Ombrage avant</translation>
    </message>
    <message>
        <source>Shading after</source>
        <translation>Ombrage après</translation>
    </message>
    <message>
        <source>Show the picture corrected</source>
        <translation>Afficher l’image corrigée</translation>
    </message>
    <message>
        <source>Dark images</source>
        <translation>Images sombres</translation>
    </message>
    <message>
        <source>Cover the lens completely. The images show the offset of each pixel.</source>
        <translation>Obturez complètement l’objectif. Les images révèlent l’offset de chaque pixel.</translation>
    </message>
    <message>
        <source>Take dark images</source>
        <translation>Prendre les images sombres</translation>
    </message>
    <message>
        <source>Bright images</source>
        <translation>Images claires</translation>
    </message>
    <message>
        <source>Uncover the lens, and point the camera at an evenly lit surface, out of focus.</source>
        <translation>Découvrez l’objectif et visez une surface éclairée uniformément, hors mise au point.</translation>
    </message>
    <message>
        <source>Take bright images</source>
        <translation>Prendre les images claires</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl apply the file to every picture of this camera.</source>
        <translation>La visionneuse d’images et cvxctl appliquent le fichier à chaque image de cette caméra.</translation>
    </message>
    <message>
        <source>Save the correction…</source>
        <translation>Enregistrer la correction…</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>Nombre d’images</translation>
    </message>
    <message>
        <source>Images: </source>
        <translation>Images&#xa0;: </translation>
    </message>
    <message>
        <source>Sets the exposure time so that the bright images have about 70 % of the range, and puts it back afterwards.</source>
        <translation>Règle le temps d’exposition pour que les images claires atteignent environ 70&#xa0;% de la plage, puis le restaure.</translation>
    </message>
    <message>
        <source>Correct every pixel</source>
        <translation>Corriger chaque pixel</translation>
    </message>
    <message>
        <source>Correct the shading only</source>
        <translation>Corriger l’ombrage seul</translation>
    </message>
    <message>
        <source>What is corrected</source>
        <translation>Étendue de la correction</translation>
    </message>
    <message>
        <source>The shading only: the gain changes smoothly over the picture, which adds no noise.</source>
        <translation>Ombrage seul&#xa0;: le gain varie progressivement dans l’image, ce qui n’ajoute aucun bruit.</translation>
    </message>
    <message>
        <source>Keep the mean brightness</source>
        <translation>Conserver la luminosité moyenne</translation>
    </message>
    <message>
        <source>Raise to the brightest place</source>
        <translation>Aligner sur le point le plus clair</translation>
    </message>
    <message>
        <source>Brightness after the correction</source>
        <translation>Luminosité après correction</translation>
    </message>
    <message>
        <source>Raised to the brightest place, no gain is below 1: what is clipped stays white.</source>
        <translation>Alignement sur le point le plus clair&#xa0;: aucun gain n’est inférieur à 1, les zones écrêtées restent blanches.</translation>
    </message>
    <message>
        <source>Non-uniformity before and after the correction</source>
        <translation>Non-uniformité avant et après correction</translation>
    </message>
    <message>
        <source>DSNU: differences of the pixels in the dark. PRNU: differences of their sensitivity. By EMVA 1288 release 4.0, without the temporal noise.</source>
        <translation>DSNU&#xa0;: différences entre pixels dans l’obscurité. PRNU&#xa0;: différences de sensibilité. Selon EMVA 1288, version 4.0, sans le bruit temporel.</translation>
    </message>
    <message>
        <source>Mean of the columns, before and after</source>
        <translation>Moyenne des colonnes, avant et après</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>% of the mean</source>
        <translation>% de la moyenne</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>Enregistré sous «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Set the exposure time automatically</source>
        <translation>Régler le temps d’exposition</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images leave less noise in the correction. Half as many are taken in addition, to check the correction.</source>
        <translation>Images sombres, et autant d’images claires. Plus elles sont nombreuses, moins la correction contient de bruit. Moitié moins d’images sont prises en plus, pour vérifier la correction.</translation>
    </message>
    <message>
        <source>The dark images were taken.</source>
        <translation>Les images sombres sont prises.</translation>
    </message>
</context>
<context>
    <name>FlatFieldReport</name>
    <message>
        <source>Flat Field</source>
        <translation>Correction de champ plat</translation>
    </message>
    <message>
        <source>Non-uniformity by EMVA 1288 release 4.0</source>
        <translation>Non-uniformité selon EMVA 1288, version 4.0</translation>
    </message>
    <message>
        <source>Mean of the columns</source>
        <translation>Moyenne des colonnes</translation>
    </message>
    <message>
        <source>A picture as the camera sends it</source>
        <translation>Image telle que la caméra l’envoie</translation>
    </message>
    <message>
        <source>The same picture, corrected</source>
        <translation>La même image, corrigée</translation>
    </message>
    <message>
        <source>The gains: the brighter, the higher</source>
        <translation>Gains&#xa0;: plus c’est clair, plus le gain est élevé</translation>
    </message>
</context>
<context>
    <name>FlatFieldTexts</name>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>%1 DN</source>
        <translation>%1&#xa0;DN</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>Shading</source>
        <translation>Ombrage</translation>
    </message>
    <message>
        <source>… without shading</source>
        <translation>… sans l’ombrage</translation>
    </message>
    <message>
        <source>… in electrons</source>
        <translation>… en électrons</translation>
    </message>
    <message>
        <source>The picture is even: its shading is only %1.</source>
        <translation>L’image est uniforme&#xa0;: son ombrage n’est que de %1.</translation>
    </message>
    <message>
        <source>The correction reduces the shading from %1 to %2.</source>
        <translation>La correction réduit l’ombrage de %1 à %2.</translation>
    </message>
    <message>
        <source>%1; gains from %2 to %3; bright images at %4 of the range.</source>
        <translation>%1&#xa0;; gains de %2 à %3&#xa0;; images claires à %4 de la plage.</translation>
    </message>
    <message numerus="yes">
        <source>The numbers after the correction are those of %n other image(s).</source>
        <translation>
            <numerusform>Les valeurs après correction sont celles de %n&#xa0;autre image.</numerusform>
            <numerusform>Les valeurs après correction sont celles de %n&#xa0;autres images.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s) deviate strongly and got the gain of their neighbours; Pixel Repair replaces them.</source>
        <translation>
            <numerusform>%n&#xa0;pixel s’écarte fortement et a reçu le gain de ses voisins&#xa0;; la Réparation de pixels le remplace.</numerusform>
            <numerusform>%n&#xa0;pixels s’écartent fortement et ont reçu le gain de leurs voisins&#xa0;; la Réparation de pixels les remplace.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The gain of %n pixel(s) was limited.</source>
        <translation>
            <numerusform>Le gain de %n&#xa0;pixel a été limité.</numerusform>
            <numerusform>Le gain de %n&#xa0;pixels a été limité.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FlatFieldWindow</name>
    <message>
        <source>Flat Field</source>
        <translation>Correction de champ plat</translation>
    </message>
    <message>
        <source>The camera does not say its pixel format (PixelFormat), so its values cannot be corrected.</source>
        <translation>La caméra n’indique pas son format de pixel (PixelFormat)&#xa0;: ses valeurs ne peuvent pas être corrigées.</translation>
    </message>
    <message>
        <source>&amp;Save the correction…</source>
        <translation>&amp;Enregistrer la correction…</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>Prise des images sombres</translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>Prise des images claires</translation>
    </message>
</context>
<context>
    <name>FocusPanel</name>
    <message>
        <source>Share of the peak</source>
        <translation>Part du pic</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>&amp;Enregistrer le résultat…</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>Netteté au cours de la dernière minute</translation>
    </message>
    <message>
        <source>&amp;Forget the peaks</source>
        <translation>&amp;Oublier les pics</translation>
    </message>
    <message>
        <source>Begins again, for example because the camera looks at something else.</source>
        <translation>Recommence, par exemple parce que la caméra vise autre chose.</translation>
    </message>
    <message>
        <source>Point the camera</source>
        <translation>Orienter la caméra</translation>
    </message>
    <message>
        <source>It looks at something with edges all over the picture.</source>
        <translation>La caméra doit viser un objet présentant des contours dans toute l’image.</translation>
    </message>
    <message>
        <source>Find the best focus</source>
        <translation>Trouver la meilleure mise au point</translation>
    </message>
    <message>
        <source>Search &amp;automatically</source>
        <translation>Recherche &amp;automatique</translation>
    </message>
    <message>
        <source>Read the tilt</source>
        <translation>Lire l’inclinaison</translation>
    </message>
    <message>
        <source>The order in which the regions become sharp says how the focus is tilted.</source>
        <translation>L’ordre dans lequel les régions deviennent nettes indique l’inclinaison du plan de netteté.</translation>
    </message>
    <message>
        <source>Read the &amp;tilt</source>
        <translation>&amp;Lire l’inclinaison</translation>
    </message>
    <message>
        <source>Moves the lens through its range and leaves it at the best position. Cancelling puts it back.</source>
        <translation>Parcourt la plage de l’objectif et le laisse à la meilleure position. En cas d’annulation, sa position est restaurée.</translation>
    </message>
    <message>
        <source>Nothing was measured yet.</source>
        <translation>Aucune mesure pour l’instant.</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>of the peak. Sharpness %1, peak %2.</source>
        <translation>du pic. Netteté %1, pic %2.</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Pic</translation>
    </message>
    <message>
        <source>Search the best position, or turn the lens slowly through the sharpest position.</source>
        <translation>Lancez la recherche ou tournez lentement la bague en passant par la position la plus nette.</translation>
    </message>
    <message>
        <source>Turn the lens slowly through the sharpest position, then back to it.</source>
        <translation>Tournez lentement la bague au-delà de la position la plus nette, puis revenez-y.</translation>
    </message>
    <message>
        <source>Time before now</source>
        <translation>Avant maintenant</translation>
    </message>
    <message>
        <source>Re&amp;gions per direction</source>
        <translation>Ré&amp;gions par direction</translation>
    </message>
</context>
<context>
    <name>FocusReport</name>
    <message>
        <source>Focus Assistant</source>
        <translation>Assistant de mise au point</translation>
    </message>
    <message>
        <source>Sharpness %1, which is %2 of the peak.</source>
        <translation>Netteté %1, soit %2 du pic.</translation>
    </message>
    <message>
        <source>Share of the peak of each region</source>
        <translation>Part du pic de chaque région</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>Netteté au cours de la dernière minute</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Régions</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Share of the peak</source>
        <translation>Part du pic</translation>
    </message>
    <message>
        <source>Best position</source>
        <translation>Meilleure position</translation>
    </message>
    <message>
        <source>Sharp at (s)</source>
        <translation>Nette à (s)</translation>
    </message>
    <message>
        <source>Share at the best position</source>
        <translation>Part à la meilleure position</translation>
    </message>
    <message>
        <source>The sharpness is the energy of the differences between neighbouring pixels, divided by the squared brightness, without the part of the noise. Exposure and gain do not change it.</source>
        <translation>La netteté est l’énergie des différences entre pixels voisins, divisée par le carré de la luminosité, sans la contribution du bruit. L’exposition et le gain ne la modifient pas.</translation>
    </message>
</context>
<context>
    <name>FocusTexts</name>
    <message>
        <source>Left end</source>
        <translation>Extrémité gauche</translation>
    </message>
    <message>
        <source>Right end</source>
        <translation>Extrémité droite</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>no edges</source>
        <translation>aucun contour</translation>
    </message>
    <message>
        <source>too dark</source>
        <translation>trop sombre</translation>
    </message>
    <message>
        <source>overexposed</source>
        <translation>surexposé</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Shares of their peaks at the best position: %1.</source>
        <translation>Parts du pic à la meilleure position&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>FocusWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>&amp;Enregistrer le résultat…</translation>
    </message>
    <message>
        <source>Focus Assistant</source>
        <translation>Assistant de mise au point</translation>
    </message>
    <message>
        <source>Searching the best focus</source>
        <translation>Recherche de la meilleure mise au point</translation>
    </message>
</context>
<context>
    <name>HexView</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Offset %1, byte %2</source>
        <translation>Décalage %1, octet %2</translation>
    </message>
    <message>
        <source>Offset %1, character %2</source>
        <translation>Décalage %1, caractère %2</translation>
    </message>
    <message>
        <source>The clipboard contains no hexadecimal bytes.</source>
        <translation>Le presse-papiers ne contient pas d’octets hexadécimaux.</translation>
    </message>
    <message>
        <source>The clipboard contains no ASCII text.</source>
        <translation>Le presse-papiers ne contient pas de texte ASCII.</translation>
    </message>
    <message numerus="yes">
        <source>The last %n byte(s) of the clipboard did not fit.</source>
        <translation>
            <numerusform>Le presse-papiers dépassait de %n&#xa0;octet, qui n’a pas été collé.</numerusform>
            <numerusform>Le presse-papiers dépassait de %n&#xa0;octets, qui n’ont pas été collés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistogramWidget</name>
    <message>
        <source>&lt; %1 %</source>
        <translation>&lt; %1&#xa0;%</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Black point</source>
        <translation>Point noir</translation>
    </message>
    <message>
        <source>White point</source>
        <translation>Point blanc</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramme</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Value %1
%2</source>
        <translation>Valeur %1
%2</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Aucune image.</translation>
    </message>
    <message>
        <source>%1 underexposed, %2 overexposed</source>
        <translation>%1 sous-exposés, %2 surexposés</translation>
    </message>
    <message>
        <source>%1 dark</source>
        <translation>%1 sous-exposés</translation>
    </message>
    <message>
        <source>%1 bright</source>
        <translation>%1 surexposés</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Executed: %1</source>
        <translation>Exécution&#xa0;: %1</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annulation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Rétablissement&#xa0;: %1</translation>
    </message>
    <message>
        <source>This change was undone.</source>
        <translation>Cette modification a été annulée.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Ancienne valeur</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Nouvelle valeur</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Changes since the camera was opened</source>
        <translation>Modifications depuis l’ouverture de la caméra</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Export as script…</source>
        <translation>Exporter en script…</translation>
    </message>
    <message>
        <source>Writes a shell script that makes these changes again with cvxctl.</source>
        <translation>Crée un script shell qui refait ces modifications avec cvxctl.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Export the changes</source>
        <translation>Exporter les modifications</translation>
    </message>
    <message>
        <source>Shell scripts (*.sh)</source>
        <translation>Scripts shell (*.sh)</translation>
    </message>
    <message>
        <source>The script &quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire le script «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>HtmlReport</name>
    <message>
        <source>Vendor</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>N°&#xa0;de série</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Settings of the camera</source>
        <translation>Réglages de la caméra</translation>
    </message>
    <message>
        <source>Created by Corvix X, version %1.</source>
        <translation>Rapport créé par Corvix X, version %1.</translation>
    </message>
</context>
<context>
    <name>ImageCanvas</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>No picture yet</source>
        <translation>Pas encore d’image</translation>
    </message>
    <message>
        <source>%1 by %2 pixels, shown at %3 %</source>
        <translation>%1 × %2 pixels, affichage à %3&#xa0;%</translation>
    </message>
</context>
<context>
    <name>InputsForm</name>
    <message>
        <source>&amp;Lines come from</source>
        <translation>&amp;Source des lignes</translation>
    </message>
    <message>
        <source>the camera&apos;s line rate</source>
        <translation>fréquence de la caméra</translation>
    </message>
    <message>
        <source>an encoder</source>
        <translation>codeur</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Vitesse</translation>
    </message>
    <message>
        <source>mm/s</source>
        <translation>mm/s</translation>
    </message>
    <message>
        <source>Speed of the object. With an encoder: the highest speed, for which the limits are checked.</source>
        <translation>Vitesse de l’objet. Avec un codeur&#xa0;: vitesse maximale, pour laquelle les limites sont vérifiées.</translation>
    </message>
    <message>
        <source>&amp;Encoder</source>
        <translation>Cod&amp;eur</translation>
    </message>
    <message>
        <source>movement per pulse</source>
        <translation>avance par impulsion</translation>
    </message>
    <message>
        <source>pulses and roller</source>
        <translation>impulsions et rouleau</translation>
    </message>
    <message>
        <source>&amp;Movement per pulse</source>
        <translation>Avance par i&amp;mpulsion</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Movement of the object for one pulse, that is one cycle of one signal of the encoder.</source>
        <translation>Avance de l’objet pour une impulsion, c’est-à-dire une période d’un signal du codeur.</translation>
    </message>
    <message>
        <source>Number of pulses that the encoder sends while its roller turns once.</source>
        <translation>Nombre d’impulsions émises par le codeur pour un tour du rouleau.</translation>
    </message>
    <message>
        <source>Roller &amp;diameter</source>
        <translation>&amp;Diamètre du rouleau</translation>
    </message>
    <message>
        <source>Diameter of the roller or wheel that turns the encoder.</source>
        <translation>Diamètre du rouleau ou de la roue qui entraîne le codeur.</translation>
    </message>
    <message>
        <source>Size of a &amp;pixel</source>
        <translation>Taille d’un &amp;pixel</translation>
    </message>
    <message>
        <source>from sensor and lens</source>
        <translation>selon capteur et objectif</translation>
    </message>
    <message>
        <source>known on the object</source>
        <translation>connue sur l’objet</translation>
    </message>
    <message>
        <source>Pi&amp;xel of the sensor</source>
        <translation>Pi&amp;xel du capteur</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Width of a pixel of the sensor; the data sheet names it.</source>
        <translation>Largeur d’un pixel du capteur&#xa0;; elle figure dans la fiche technique.</translation>
    </message>
    <message>
        <source>Ma&amp;gnification</source>
        <translation>&amp;Grandissement</translation>
    </message>
    <message>
        <source>Size of the image on the sensor divided by the size of the object, for example 0.5.</source>
        <translation>Taille de l’image sur le capteur divisée par la taille de l’objet, par exemple 0,5.</translation>
    </message>
    <message>
        <source>Pixel &amp;on the object</source>
        <translation>Pixel sur l’&amp;objet</translation>
    </message>
    <message>
        <source>Width of the object that one pixel of the picture shows.</source>
        <translation>Largeur de l’objet couverte par un pixel de l’image.</translation>
    </message>
    <message>
        <source>Use the longest exposure</source>
        <translation>Utiliser l’exposition maximale</translation>
    </message>
    <message>
        <source>Otherwise, the exposure is only shortened if it does not fit into a line.</source>
        <translation>Sinon, l’exposition n’est raccourcie que si elle dépasse la durée d’une ligne.</translation>
    </message>
    <message>
        <source>not entered</source>
        <translation>non renseigné</translation>
    </message>
    <message>
        <source>Pulses per re&amp;volution</source>
        <translation>Impulsions par &amp;tour</translation>
    </message>
</context>
<context>
    <name>JobBar</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>LastingJob</name>
    <message>
        <source>The work was cancelled before it began, or the camera was closed.</source>
        <translation>L’opération a été annulée avant son début, ou la caméra a été fermée.</translation>
    </message>
</context>
<context>
    <name>LayoutBox</name>
    <message>
        <source>As the camera says</source>
        <translation>Selon la caméra</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>Canaux (taps)&#xa0;:</translation>
    </message>
    <message>
        <source>Side by side:</source>
        <translation>Côte à côte&#xa0;:</translation>
    </message>
    <message>
        <source>Stripes of the picture, from left to right</source>
        <translation>Bandes de l’image, de gauche à droite</translation>
    </message>
    <message>
        <source>One above the other:</source>
        <translation>Superposés&#xa0;:</translation>
    </message>
    <message>
        <source>Stripes of the picture, from top to bottom</source>
        <translation>Bandes de l’image, de haut en bas</translation>
    </message>
    <message>
        <source>Neighbouring columns:</source>
        <translation>Colonnes voisines&#xa0;:</translation>
    </message>
    <message>
        <source>Taps that read the columns of a stripe in turn; 1 if a stripe has one tap</source>
        <translation>Canaux qui lisent à tour de rôle les colonnes d’une bande&#xa0;; 1 si une bande n’a qu’un canal</translation>
    </message>
    <message>
        <source>Mean of all taps</source>
        <translation>Moyenne de tous les canaux</translation>
    </message>
    <message>
        <source>Tap 1</source>
        <translation>Canal 1</translation>
    </message>
    <message>
        <source>Compare with:</source>
        <translation>Comparer à&#xa0;:</translation>
    </message>
    <message>
        <source>Images of each measurement; more images make the numbers more certain</source>
        <translation>Nombre d’images par mesure&#xa0;; plus il est grand, plus les valeurs sont sûres</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Images&#xa0;:</translation>
    </message>
    <message>
        <source>Camera: %1</source>
        <translation>Caméra&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not reported by the camera</source>
        <translation>Non indiqué par la caméra</translation>
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
        <translation>Luminosité de l’image en direct</translation>
    </message>
    <message>
        <source>%1 % of the range; 50 to 80 % is good</source>
        <translation>%1&#xa0;% de la plage&#xa0;; 50 à 80&#xa0;% convient</translation>
    </message>
    <message>
        <source>%1 % of the values are clipped</source>
        <translation>%1&#xa0;% des valeurs sont écrêtées</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Aucune image.</translation>
    </message>
</context>
<context>
    <name>LevelText</name>
    <message>
        <source>Beginner</source>
        <translation>Débutant</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>Gourou</translation>
    </message>
</context>
<context>
    <name>LineScanReport</name>
    <message>
        <source>Speed of the object</source>
        <translation>Vitesse de l’objet</translation>
    </message>
    <message>
        <source>mm/s</source>
        <translation>mm/s</translation>
    </message>
    <message>
        <source>Movement per encoder pulse</source>
        <translation>Avance par impulsion du codeur</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>Pixel sur l’objet</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Line rate for square pixels</source>
        <translation>Fréquence de lignes pour des pixels carrés</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Lines per pulse for square pixels</source>
        <translation>Lignes par impulsion pour des pixels carrés</translation>
    </message>
    <message>
        <source>Longest exposure</source>
        <translation>Exposition maximale</translation>
    </message>
    <message>
        <source>µs</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>Vitesse maximale</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Erreur résiduelle</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Line Scan Tuner</source>
        <translation>Réglage de caméra linéaire</translation>
    </message>
    <message>
        <source>Round target</source>
        <translation>Cible ronde</translation>
    </message>
    <message>
        <source>First measurement</source>
        <translation>Première mesure</translation>
    </message>
    <message>
        <source>Last measurement</source>
        <translation>Dernière mesure</translation>
    </message>
    <message>
        <source>Height to width</source>
        <translation>Rapport hauteur/largeur</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>Turn of the camera (°)</source>
        <translation>Rotation de la caméra (°)</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>The picture at the time of the report</source>
        <translation>Image au moment du rapport</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>Fréquence de lignes</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandeur</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Written settings</source>
        <translation>Réglages écrits</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
</context>
<context>
    <name>LineScanWindow</name>
    <message>
        <source>Line Scan Tuner</source>
        <translation>Réglage de caméra linéaire</translation>
    </message>
    <message>
        <source>This camera takes whole pictures: it has no line rate (AcquisitionLineRate) and no encoder. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>Cette caméra prend des images entières&#xa0;: elle n’a ni fréquence de lignes (AcquisitionLineRate) ni codeur. Choisissez une caméra linéaire, qui acquiert ligne par ligne un objet en mouvement.</translation>
    </message>
    <message>
        <source>Do the &amp;next step</source>
        <translation>Étape &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>&amp;Enregistrer le résultat…</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Entrée</translation>
    </message>
    <message>
        <source>Do the next step</source>
        <translation>Exécuter l’étape suivante</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Save the result</source>
        <translation>Enregistrer le résultat</translation>
    </message>
    <message>
        <source>No round target was found yet.</source>
        <translation>Aucune cible ronde trouvée pour l’instant.</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>Enregistrer le résultat…</translation>
    </message>
    <message>
        <source>the largest</source>
        <translation>la plus grande</translation>
    </message>
    <message>
        <source>the one that I click</source>
        <translation>celle sur laquelle je clique</translation>
    </message>
    <message>
        <source>in the columns that I draw</source>
        <translation>dans les colonnes tracées</translation>
    </message>
    <message>
        <source>Which disc or ring is measured. The picture rolls, so only the columns count.</source>
        <translation>Disque ou anneau à mesurer. L’image défile&#xa0;: seules les colonnes comptent.</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>Ci&amp;ble</translation>
    </message>
    <message>
        <source>Look for the target in the live picture</source>
        <translation>Chercher la cible dans l’image en direct</translation>
    </message>
    <message>
        <source>The picture stands still for a moment where a target was found.</source>
        <translation>L’image se fige un instant lorsqu’une cible est trouvée.</translation>
    </message>
    <message>
        <source>Describe the machine</source>
        <translation>Décrire la machine</translation>
    </message>
    <message>
        <source>Pixels are square if the camera takes one line while the object moves by one pixel.</source>
        <translation>Les pixels sont carrés si la caméra acquiert une ligne pendant que l’objet avance d’un pixel.</translation>
    </message>
    <message>
        <source>Set the camera</source>
        <translation>Régler la caméra</translation>
    </message>
    <message>
        <source>This follows from the machine and from the limits of the camera.</source>
        <translation>Résulte de la machine et des limites de la caméra.</translation>
    </message>
    <message>
        <source>Write the settings</source>
        <translation>Écrire les réglages</translation>
    </message>
    <message>
        <source>Undo what was written</source>
        <translation>Annuler l’écriture</translation>
    </message>
    <message>
        <source>Measure a round target</source>
        <translation>Mesurer une cible ronde</translation>
    </message>
    <message>
        <source>Let a dark or bright disc or ring move under the camera. It must be complete in one picture.</source>
        <translation>Faites passer sous la caméra un disque ou un anneau sombre ou clair. Il doit être entier dans une image.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesurer</translation>
    </message>
    <message>
        <source>Make it round</source>
        <translation>La rendre ronde</translation>
    </message>
    <message>
        <source>Correct the rate</source>
        <translation>Corriger la fréquence</translation>
    </message>
    <message>
        <source>The target in the live picture is round.</source>
        <translation>La cible de l’image en direct est ronde.</translation>
    </message>
    <message>
        <source>The target in the live picture is too tall.</source>
        <translation>La cible de l’image en direct est trop haute.</translation>
    </message>
    <message>
        <source>The target in the live picture is too flat.</source>
        <translation>La cible de l’image en direct est trop aplatie.</translation>
    </message>
    <message>
        <source>The line rate, or the ratio of the encoder, is multiplied with width / height of the target.</source>
        <translation>La fréquence de lignes, ou le rapport du codeur, est multipliée par largeur / hauteur de la cible.</translation>
    </message>
    <message>
        <source>The camera is turned by %1° against the movement.</source>
        <translation>La caméra est tournée de %1° par rapport au mouvement.</translation>
    </message>
    <message>
        <source>The camera has accepted the settings.</source>
        <translation>La caméra a accepté les réglages.</translation>
    </message>
    <message>
        <source>Measuring the target</source>
        <translation>Mesure de la cible</translation>
    </message>
</context>
<context>
    <name>LivePicture</name>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>La caméra n’envoie pas d’images. %1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off.</source>
        <translation>La caméra attend un déclenchement. Déclenchez-la ou désactivez le mode de déclenchement.</translation>
    </message>
    <message>
        <source>No picture has arrived yet.</source>
        <translation>Aucune image reçue pour l’instant.</translation>
    </message>
</context>
<context>
    <name>LiveStream</name>
    <message>
        <source>The stream of the camera has ended.</source>
        <translation>Le flux de la caméra s’est arrêté.</translation>
    </message>
</context>
<context>
    <name>LoadDialog</name>
    <message>
        <source>Show only what &amp;changes</source>
        <translation>Afficher seulement ce qui c&amp;hange</translation>
    </message>
    <message>
        <source>Load what &amp;fits. If you cancel, what was loaded stays.</source>
        <translation>Charger ce qui est &amp;possible. En cas d’annulation, ce qui a été chargé est conservé.</translation>
    </message>
    <message>
        <source>&amp;All or nothing. If a setting fails or you cancel, everything is put back.</source>
        <translation>&amp;Tout ou rien. En cas d’échec d’un réglage ou d’annulation, tout est restauré.</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Charger</translation>
    </message>
    <message>
        <source>&amp;Undo the load</source>
        <translation>&amp;Défaire le chargement</translation>
    </message>
    <message>
        <source>Co&amp;py report</source>
        <translation>Copier le &amp;rapport</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>Charger %1</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Nothing is written at all if a line of the file cannot be read, or if a setting cannot fit the camera.</source>
        <translation>Rien n’est écrit si une ligne du fichier est illisible ou si un réglage ne convient pas à la caméra.</translation>
    </message>
    <message>
        <source>Puts back all settings from before the load.</source>
        <translation>Restaure tous les réglages d’avant le chargement.</translation>
    </message>
    <message>
        <source>The load was not undone. Without this dialog, it cannot be undone any more.</source>
        <translation>Le chargement n’a pas été défait. Une fois cette boîte de dialogue fermée, il ne pourra plus l’être.</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>&amp;Fermer quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>LoadTable</name>
    <message>
        <source>The line cannot be read. %1</source>
        <translation>Ligne illisible. %1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>In camera</source>
        <translation>Dans la caméra</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Nouvelle valeur</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Valeur relue</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
</context>
<context>
    <name>LoadText</name>
    <message>
        <source>Cannot be loaded.</source>
        <translation>Chargement impossible.</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Échec.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) cannot be loaded.</source>
        <translation>
            <numerusform>%n&#xa0;réglage ne peut pas être chargé.</numerusform>
            <numerusform>%n&#xa0;réglages ne peuvent pas être chargés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) failed.</source>
        <translation>
            <numerusform>%n&#xa0;réglage a échoué.</numerusform>
            <numerusform>%n&#xa0;réglages ont échoué.</numerusform>
        </translation>
    </message>
    <message>
        <source>Will change.</source>
        <translation>Sera modifié.</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>Modifié.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will change.</source>
        <translation>
            <numerusform>%n&#xa0;réglage sera modifié.</numerusform>
            <numerusform>%n&#xa0;réglages seront modifiés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) changed.</source>
        <translation>
            <numerusform>%n&#xa0;réglage a été modifié.</numerusform>
            <numerusform>%n&#xa0;réglages ont été modifiés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Overruled by another setting.</source>
        <translation>Écrasé par un autre réglage.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will be overruled by others.</source>
        <translation>
            <numerusform>%n&#xa0;réglage sera écrasé par d’autres.</numerusform>
            <numerusform>%n&#xa0;réglages seront écrasés par d’autres.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were overruled by others.</source>
        <translation>
            <numerusform>%n&#xa0;réglage a été écrasé par d’autres.</numerusform>
            <numerusform>%n&#xa0;réglages ont été écrasés par d’autres.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already have the value.</source>
        <translation>
            <numerusform>%n&#xa0;réglage a déjà cette valeur.</numerusform>
            <numerusform>%n&#xa0;réglages ont déjà cette valeur.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already had the value.</source>
        <translation>
            <numerusform>%n&#xa0;réglage avait déjà cette valeur.</numerusform>
            <numerusform>%n&#xa0;réglages avaient déjà cette valeur.</numerusform>
        </translation>
    </message>
    <message>
        <source>Already has this value.</source>
        <translation>Déjà à cette valeur.</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) cannot be read.</source>
        <translation>
            <numerusform>%n&#xa0;ligne est illisible.</numerusform>
            <numerusform>%n&#xa0;lignes sont illisibles.</numerusform>
        </translation>
    </message>
    <message>
        <source>The load was cancelled, and the settings from before were put back.</source>
        <translation>Le chargement a été annulé et les réglages antérieurs ont été restaurés.</translation>
    </message>
    <message>
        <source>The load has failed, and the settings from before were put back.</source>
        <translation>Le chargement a échoué et les réglages antérieurs ont été restaurés.</translation>
    </message>
    <message>
        <source>The load was cancelled. What was loaded before stays.</source>
        <translation>Le chargement a été annulé. Ce qui était déjà chargé est conservé.</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>Le chargement a été annulé. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Nothing was changed, because not everything can be loaded.</source>
        <translation>Rien n’a été modifié, car tout ne peut pas être chargé.</translation>
    </message>
    <message>
        <source>Not everything could be loaded.</source>
        <translation>Tout n’a pas pu être chargé.</translation>
    </message>
    <message>
        <source>The settings were loaded and read back.</source>
        <translation>Les réglages ont été chargés et relus.</translation>
    </message>
    <message>
        <source>All settings from before the load were put back.</source>
        <translation>Tous les réglages d’avant le chargement ont été restaurés.</translation>
    </message>
    <message>
        <source>Not all settings from before the load could be put back.</source>
        <translation>Certains réglages d’avant le chargement n’ont pas pu être restaurés.</translation>
    </message>
    <message>
        <source>Put back.</source>
        <translation>Restauré.</translation>
    </message>
    <message>
        <source>Not put back.</source>
        <translation>Non restauré.</translation>
    </message>
    <message>
        <source>The settings are being compared with the camera.</source>
        <translation>Comparaison des réglages avec la caméra en cours.</translation>
    </message>
    <message>
        <source>The settings are being loaded and read back.</source>
        <translation>Chargement et relecture des réglages en cours.</translation>
    </message>
    <message>
        <source>The settings from before the load are being put back.</source>
        <translation>Restauration des réglages d’avant le chargement en cours.</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>Rien ne changerait.</translation>
    </message>
    <message>
        <source>There are no settings to load.</source>
        <translation>Aucun réglage à charger.</translation>
    </message>
</context>
<context>
    <name>LockText</name>
    <message>
        <source>Not available at present.</source>
        <translation>Indisponible actuellement.</translation>
    </message>
    <message>
        <source>Not available while %1 is %2.</source>
        <translation>Indisponible tant que %1 = %2.</translation>
    </message>
    <message>
        <source>Locked by the camera.</source>
        <translation>Verrouillé par la caméra.</translation>
    </message>
    <message>
        <source>Controlled by %1.</source>
        <translation>Commandé par %1.</translation>
    </message>
    <message>
        <source>Locked while %1 is %2.</source>
        <translation>Verrouillé tant que %1 = %2.</translation>
    </message>
    <message>
        <source>This camera does not have the feature.</source>
        <translation>Paramètre absent de cette caméra.</translation>
    </message>
    <message>
        <source>The camera only reports this value.</source>
        <translation>Valeur en lecture seule.</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>Caméra en observation seule&#xa0;: rien n’est modifiable.</translation>
    </message>
    <message>
        <source>Locked while the camera streams.</source>
        <translation>Verrouillé pendant l’acquisition.</translation>
    </message>
    <message>
        <source>Not available because of the setting of %1.</source>
        <translation>Indisponible à cause du réglage de %1.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Afficher %1</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Régler %1 sur %2</translation>
    </message>
</context>
<context>
    <name>LogBox</name>
    <message>
        <source>Appends each reading to a CSV file until you stop it. A file of the same camera is continued.</source>
        <translation>Ajoute chaque relevé à un fichier CSV jusqu’à l’arrêt. Un fichier de la même caméra est complété.</translation>
    </message>
    <message>
        <source>Log the temperatures</source>
        <translation>Journaliser les températures</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>Table CSV (*.csv)</translation>
    </message>
    <message>
        <source>Stop the &amp;log</source>
        <translation>Arrêter le &amp;journal</translation>
    </message>
    <message>
        <source>Start a &amp;log…</source>
        <translation>Démarrer un &amp;journal…</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>Journal&#xa0;: %1</translation>
    </message>
    <message>
        <source>The readings are not logged.</source>
        <translation>Les relevés ne sont pas journalisés.</translation>
    </message>
</context>
<context>
    <name>LossAdvice</name>
    <message>
        <source>Packets are lost between camera and computer: check cable and switch, or reduce the frame rate or the region.</source>
        <translation>Des paquets se perdent entre la caméra et l’ordinateur&#xa0;: vérifiez le câble et le switch, ou réduisez la fréquence d’images ou la région.</translation>
    </message>
    <message>
        <source>Transfers are lost between camera and computer: check the cable, connect the camera without a hub, or reduce the frame rate or the region.</source>
        <translation>Des transferts se perdent entre la caméra et l’ordinateur&#xa0;: vérifiez le câble, connectez la caméra sans hub, ou réduisez la fréquence d’images ou la région.</translation>
    </message>
    <message>
        <source>The connection or the computer is too slow: reduce the frame rate or the region, or close other programs.</source>
        <translation>La connexion ou l’ordinateur est trop lent&#xa0;: réduisez la fréquence d’images ou la région, ou fermez d’autres programmes.</translation>
    </message>
    <message numerus="yes">
        <source>No buffer was free for %n image(s). This computer is too slow at present: close other programs, record to a faster disk, or reduce the frame rate or the region.</source>
        <translation>
            <numerusform>Aucun tampon libre pour %n&#xa0;image. Cet ordinateur est actuellement trop lent&#xa0;: fermez d’autres programmes, enregistrez sur un disque plus rapide, ou réduisez la fréquence d’images ou la région.</numerusform>
            <numerusform>Aucun tampon libre pour %n&#xa0;images. Cet ordinateur est actuellement trop lent&#xa0;: fermez d’autres programmes, enregistrez sur un disque plus rapide, ou réduisez la fréquence d’images ou la région.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were lost or damaged in the last seconds.</source>
        <translation>
            <numerusform>%n&#xa0;image perdue ou endommagée ces dernières secondes.</numerusform>
            <numerusform>%n&#xa0;images perdues ou endommagées ces dernières secondes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were incomplete in the last seconds.</source>
        <translation>
            <numerusform>%n&#xa0;image incomplète ces dernières secondes.</numerusform>
            <numerusform>%n&#xa0;images incomplètes ces dernières secondes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Measure</name>
    <message>
        <source>The brightness changed by %1 % while the bright images were taken. Use a steady light, and take the images again.</source>
        <translation>La luminosité a varié de %1&#xa0;% pendant la prise des images claires. Utilisez un éclairage stable et reprenez les images.</translation>
    </message>
    <message>
        <source>Something moved while the bright images were taken. Point the camera at an evenly lit surface without objects, keep it still, and take the images again.</source>
        <translation>Quelque chose a bougé pendant la prise des images claires. Visez une surface sans objet, éclairée uniformément, gardez la caméra immobile et reprenez les images.</translation>
    </message>
    <message>
        <source>The bright images show a scene. Point the camera at an evenly lit surface without objects, for example white paper close to the lens and out of focus, and take the images again.</source>
        <translation>Les images claires montrent une scène. Visez une surface sans objet, éclairée uniformément, par exemple du papier blanc près de l’objectif et hors mise au point, puis reprenez les images.</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the highest value: light reaches the sensor, or the exposure is too long. Cover the lens, then take the dark images again.</source>
        <translation>Les images sombres atteignent %1&#xa0;% de la valeur maximale&#xa0;: de la lumière parvient au capteur ou l’exposition est trop longue. Obturez l’objectif, puis reprenez les images sombres.</translation>
    </message>
    <message>
        <source>The dark images show something: light reaches the sensor. Cover the lens completely, then take the dark images again.</source>
        <translation>Les images sombres montrent quelque chose&#xa0;: de la lumière parvient au capteur. Obturez complètement l’objectif, puis reprenez les images sombres.</translation>
    </message>
    <message>
        <source>Many pixels of the dark images have the value 0, so their noise is not visible. Increase the black level (BlackLevel), then take the dark images again.</source>
        <translation>De nombreux pixels des images sombres valent 0&#xa0;: leur bruit n’est pas visible. Augmentez le niveau de noir (BlackLevel), puis reprenez les images sombres.</translation>
    </message>
    <message>
        <source>The bright images are too dark: they use %1 % of the value range. Uncover the lens, use more light or a longer exposure, and take the images again.</source>
        <translation>Les images claires sont trop sombres&#xa0;: elles occupent %1&#xa0;% de la plage de valeurs. Découvrez l’objectif, augmentez la lumière ou l’exposition, puis reprenez les images.</translation>
    </message>
    <message>
        <source>%1 % of the pixels of the bright images have the highest value. Use less light or a shorter exposure, and take the images again.</source>
        <translation>%1&#xa0;% des pixels des images claires ont la valeur maximale. Réduisez la lumière ou l’exposition, puis reprenez les images.</translation>
    </message>
    <message>
        <source>%1 % of the pixels deviate from their neighbours, so the surface had a structure, or light reached the sensor during the dark images. Take the images again.</source>
        <translation>%1&#xa0;% des pixels s’écartent de leurs voisins&#xa0;: la surface était structurée, ou de la lumière est parvenue au capteur pendant les images sombres. Reprenez les images.</translation>
    </message>
    <message>
        <source>Set %1 to %2: defect pixels are measured at full resolution without mirroring.</source>
        <translation>Réglez %1 sur %2&#xa0;: les pixels défectueux se mesurent en pleine résolution, sans miroir.</translation>
    </message>
    <message>
        <source>Choose a pixel format that contains the values of the pixels as they are, with 8 to 16 bits: Mono8 to Mono16, or Bayer (PixelFormat).</source>
        <translation>Choisissez un format de pixel contenant les valeurs brutes des pixels, sur 8 à 16&#xa0;bits&#xa0;: Mono8 à Mono16, ou Bayer (PixelFormat).</translation>
    </message>
    <message>
        <source>Choose a region of %1 x %1 pixels or more (Width, Height).</source>
        <translation>Choisissez une région d’au moins %1 x %1 pixels (Width, Height).</translation>
    </message>
    <message>
        <source>The size or the pixel format of the images has changed. Take the images again.</source>
        <translation>La taille ou le format de pixel des images a changé. Reprenez les images.</translation>
    </message>
    <message>
        <source>Take %1 images or more: with fewer images, the noise hides defects.</source>
        <translation>Prenez au moins %1 images&#xa0;: avec moins d’images, le bruit masque des défauts.</translation>
    </message>
    <message>
        <source>The region or the pixel format differs from that of the dark images. Set it as before, or take the dark images again.</source>
        <translation>La région ou le format de pixel diffère des images sombres. Rétablissez le réglage ou reprenez les images sombres.</translation>
    </message>
    <message>
        <source>The gain differs from that of the dark images, %1. Set it as before, or take the dark images again.</source>
        <translation>Le gain diffère de celui des images sombres (%1). Rétablissez-le ou reprenez les images sombres.</translation>
    </message>
    <message>
        <source>The camera has sent the same pictures again and again. Lower AcquisitionFrameRate, then measure again.</source>
        <translation>La caméra a envoyé plusieurs fois les mêmes images. Réduisez AcquisitionFrameRate, puis mesurez de nouveau.</translation>
    </message>
</context>
<context>
    <name>MeasureBar</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>End the measurement. The settings of the camera are put back. (Esc)</source>
        <translation>Met fin à la mesure. Les réglages de la caméra sont restaurés. (Échap)</translation>
    </message>
</context>
<context>
    <name>MeasureJob</name>
    <message>
        <source>The camera is not open for control, so nothing can be measured.</source>
        <translation>La caméra n’est pas ouverte en mode contrôle&#xa0;: aucune mesure n’est possible.</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Measure again when it is back.</source>
        <translation>Connexion à la caméra perdue pendant la mesure. Recommencez la mesure à son retour.</translation>
    </message>
    <message>
        <source>The camera was closed during the measurement.</source>
        <translation>La caméra a été fermée pendant la mesure.</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>La caméra n’envoie pas d’images. %1</translation>
    </message>
    <message>
        <source>Some settings were not put back. %1</source>
        <translation>Certains réglages n’ont pas été restaurés. %1</translation>
    </message>
</context>
<context>
    <name>MeasuredComponent</name>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
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
        <translation>Première</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Deuxième</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>Troisième</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation>Quatrième</translation>
    </message>
</context>
<context>
    <name>MeasuringPanel</name>
    <message>
        <source>The picture has no colours to balance.</source>
        <translation>L’image n’a pas de couleurs à équilibrer.</translation>
    </message>
    <message>
        <source>This place is too dark for a white balance. Pick a brighter one.</source>
        <translation>Cette zone est trop sombre pour la balance des blancs. Choisissez-en une plus claire.</translation>
    </message>
    <message>
        <source>This place is overexposed. Pick a darker one, or reduce the exposure.</source>
        <translation>Cette zone est surexposée. Choisissez-en une plus sombre ou réduisez l’exposition.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Image entière</translation>
    </message>
    <message>
        <source>Drawn region</source>
        <translation>Région tracée</translation>
    </message>
    <message>
        <source>Measured area</source>
        <translation>Zone de mesure</translation>
    </message>
    <message>
        <source>Where histogram and statistics are measured. Draw a region in the picture to measure it.</source>
        <translation>Zone de mesure de l’histogramme et des statistiques. Tracez une région dans l’image pour la mesurer.</translation>
    </message>
    <message>
        <source>Shows the histogram logarithmically, so that rare values can be seen.</source>
        <translation>Affiche l’histogramme en échelle logarithmique pour rendre visibles les valeurs rares.</translation>
    </message>
    <message>
        <source>Fit contrast</source>
        <translation>Contraste auto</translation>
    </message>
    <message>
        <source>Spreads the values of the picture from black to white. Only the display changes.</source>
        <translation>Étale les valeurs de l’image du noir au blanc. Seul l’affichage change.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Reset the contrast</source>
        <translation>Rétablir le contraste</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramme</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copies the statistics to the clipboard, for a table.</source>
        <translation>Copie les statistiques dans le presse-papiers, pour un tableur.</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>The pixel format is not known, so bytes are measured.</source>
        <translation>Format de pixel inconnu&#xa0;: la mesure porte sur les octets.</translation>
    </message>
</context>
<context>
    <name>NoCameraPage</name>
    <message>
        <source>Connect a camera and switch it on. It appears here by itself.</source>
        <translation>Connectez une caméra et mettez-la sous tension. Elle apparaîtra ici automatiquement.</translation>
    </message>
    <message>
        <source>Show what is in order, too</source>
        <translation>Afficher aussi les points conformes</translation>
    </message>
    <message>
        <source>The checks are running</source>
        <translation>Vérifications en cours</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Checking producers, network, GigE and USB. This takes some seconds.</source>
        <translation>Vérification des producers, du réseau, de GigE et de l’USB. Cela prend quelques secondes.</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>Vérifier à &amp;nouveau</translation>
    </message>
    <message>
        <source>No camera found</source>
        <translation>Aucune caméra trouvée</translation>
    </message>
    <message>
        <source>The checks have found no problem.</source>
        <translation>Les vérifications n’ont révélé aucun problème.</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>Problèmes trouvés&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>NoteListDialog</name>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>NumberEditor</name>
    <message>
        <source>The nearest value that the camera allows is %1.</source>
        <translation>La valeur la plus proche admise par la caméra est %1.</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 à %2 %3</translation>
    </message>
    <message>
        <source>%1, in steps of %2</source>
        <translation>%1, par pas de %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre.</translation>
    </message>
</context>
<context>
    <name>OpeningSnapshot</name>
    <message>
        <source>This camera at opening</source>
        <translation>Cette caméra (à l’ouverture)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was changed before its value at opening was read.</source>
        <translation>%1 a été modifié avant la lecture de sa valeur à l’ouverture.</translation>
    </message>
    <message>
        <source>%1 was executed before all settings were read, so some of them may be those after it.</source>
        <translation>%1 a été exécuté avant la lecture complète des réglages&#xa0;: certains peuvent dater d’après cette exécution.</translation>
    </message>
    <message>
        <source>There are too many values, so only some were read.</source>
        <translation>Les valeurs sont trop nombreuses&#xa0;: seule une partie a été lue.</translation>
    </message>
</context>
<context>
    <name>OpeningSource</name>
    <message>
        <source>This camera at opening</source>
        <translation>Cette caméra (à l’ouverture)</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>Aucune caméra n’est ouverte.</translation>
    </message>
    <message>
        <source>The settings at opening are still being read.</source>
        <translation>Lecture des réglages à l’ouverture encore en cours.</translation>
    </message>
    <message>
        <source>The settings at opening cannot be changed. Choose another right side.</source>
        <translation>Les réglages à l’ouverture appartiennent au passé et ne sont pas modifiables. Choisissez un autre côté droit.</translation>
    </message>
</context>
<context>
    <name>OtherCameraSource</name>
    <message>
        <source>Camera %1</source>
        <translation>Caméra %1</translation>
    </message>
    <message>
        <source>Another program uses this camera, so it was only watched.</source>
        <translation>Un autre programme utilise cette caméra&#xa0;: elle a seulement été observée.</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) to the camera %1? This cannot be undone here.</source>
        <translation>
            <numerusform>Écrire %n&#xa0;réglage dans la caméra %1&#xa0;? Cette opération ne peut pas être annulée ici.</numerusform>
            <numerusform>Écrire %n&#xa0;réglages dans la caméra %1&#xa0;? Cette opération ne peut pas être annulée ici.</numerusform>
        </translation>
    </message>
    <message>
        <source>Opening the camera was cancelled.</source>
        <translation>L’ouverture de la caméra a été annulée.</translation>
    </message>
    <message>
        <source>The camera is not connected any more.</source>
        <translation>La caméra n’est plus connectée.</translation>
    </message>
    <message>
        <source>The camera did not answer in time.</source>
        <translation>La caméra n’a pas répondu à temps.</translation>
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
        <translation>brut %1</translation>
    </message>
    <message>
        <source>shown %1</source>
        <translation>affiché %1</translation>
    </message>
    <message>
        <source>unknown pixel format, byte %1</source>
        <translation>format de pixel inconnu, octet %1</translation>
    </message>
</context>
<context>
    <name>PlanView</name>
    <message>
        <source>%1 kHz</source>
        <translation>%1&#xa0;kHz</translation>
    </message>
    <message>
        <source>by the link</source>
        <translation>limite du lien</translation>
    </message>
    <message>
        <source>by the exposure</source>
        <translation>limite de l’exposition</translation>
    </message>
    <message>
        <source>by the camera</source>
        <translation>limite de la caméra</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Settings that are written</source>
        <translation>Réglages à écrire</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>Pixel sur l’objet</translation>
    </message>
    <message>
        <source>%1 µm</source>
        <translation>%1&#xa0;µm</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>Fréquence de lignes</translation>
    </message>
    <message>
        <source>Highest line rate</source>
        <translation>Fréquence maximale</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>Vitesse maximale</translation>
    </message>
    <message>
        <source>%1 mm/s</source>
        <translation>%1&#xa0;mm/s</translation>
    </message>
    <message>
        <source>Longest exposure</source>
        <translation>Exposition maximale</translation>
    </message>
    <message>
        <source>%1 µs</source>
        <translation>%1&#xa0;µs</translation>
    </message>
    <message>
        <source>Dead time of a line</source>
        <translation>Temps mort par ligne</translation>
    </message>
    <message>
        <source>Lines per pulse</source>
        <translation>Lignes par impulsion</translation>
    </message>
    <message>
        <source>Multiplier, divider</source>
        <translation>Multiplicateur, diviseur</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>Erreur résiduelle</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>The camera is set up for this already.</source>
        <translation>La caméra est déjà réglée ainsi.</translation>
    </message>
    <message>
        <source>These features are written, in this order:</source>
        <translation>Paramètres à écrire, dans cet ordre&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ProfileBox</name>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Drawn line</source>
        <translation>Ligne tracée</translation>
    </message>
    <message>
        <source>Line of the profile</source>
        <translation>Ligne de profil</translation>
    </message>
    <message>
        <source>Row and column are those of the pointer in the picture.</source>
        <translation>La ligne et la colonne sont celles du pointeur dans l’image.</translation>
    </message>
    <message>
        <source>Line profile</source>
        <translation>Profil d’intensité</translation>
    </message>
</context>
<context>
    <name>ProfileWidget</name>
    <message>
        <source>Line profile</source>
        <translation>Profil d’intensité</translation>
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
        <translation>Aucune ligne à mesurer.</translation>
    </message>
</context>
<context>
    <name>RateGraph</name>
    <message>
        <source>Images per second and losses of the last minute</source>
        <translation>Images par seconde et pertes de la dernière minute</translation>
    </message>
    <message>
        <source>60 s ago</source>
        <translation>il y a 60 s</translation>
    </message>
    <message>
        <source>30 s ago</source>
        <translation>il y a 30 s</translation>
    </message>
    <message>
        <source>now</source>
        <translation>maintenant</translation>
    </message>
    <message>
        <source>Images/s</source>
        <translation>Images/s</translation>
    </message>
    <message>
        <source>Lost or incomplete/s</source>
        <translation>Perdues ou incomplètes/s</translation>
    </message>
</context>
<context>
    <name>RecordingControl</name>
    <message>
        <source>no pictures arrive; start the live picture first</source>
        <translation>aucune image reçue&#xa0;; démarrez d’abord l’image en direct</translation>
    </message>
    <message>
        <source>the camera was closed</source>
        <translation>la caméra a été fermée</translation>
    </message>
    <message>
        <source>The recording ended because the limit of free space was reached.</source>
        <translation>Enregistrement arrêté&#xa0;: limite d’espace libre atteinte.</translation>
    </message>
</context>
<context>
    <name>RecordingSummary</name>
    <message>
        <source>The recording did not begin: %1.</source>
        <translation>L’enregistrement n’a pas démarré&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) recorded in %1 to &quot;%2&quot;.</source>
        <translation>
            <numerusform>%n&#xa0;image enregistrée en %1 dans «&#xa0;%2&#xa0;».</numerusform>
            <numerusform>%n&#xa0;images enregistrées en %1 dans «&#xa0;%2&#xa0;».</numerusform>
        </translation>
    </message>
    <message>
        <source>The recording ended early: %1.</source>
        <translation>L’enregistrement s’est arrêté prématurément&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No image is missing.</source>
        <translation>Aucune image manquante.</translation>
    </message>
    <message>
        <source>The image format changed during the recording; the file describes each image.</source>
        <translation>Le format d’image a changé pendant l’enregistrement&#xa0;; le fichier décrit chaque image.</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) never arrived from the camera</source>
        <translation>
            <numerusform>%n&#xa0;image jamais reçue de la caméra</numerusform>
            <numerusform>%n&#xa0;images jamais reçues de la caméra</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) found no free buffer</source>
        <translation>
            <numerusform>%n&#xa0;image sans tampon libre</numerusform>
            <numerusform>%n&#xa0;images sans tampon libre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be kept because the disk or the encoder is too slow</source>
        <translation>
            <numerusform>%n&#xa0;image abandonnée, car le disque ou l’encodeur est trop lent</numerusform>
            <numerusform>%n&#xa0;images abandonnées, car le disque ou l’encodeur est trop lent</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be written</source>
        <translation>
            <numerusform>%n&#xa0;image impossible à écrire</numerusform>
            <numerusform>%n&#xa0;images impossibles à écrire</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n recorded image(s) are incomplete</source>
        <translation>
            <numerusform>%n&#xa0;image enregistrée incomplète</numerusform>
            <numerusform>%n&#xa0;images enregistrées incomplètes</numerusform>
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
            <numerusform>%n&#xa0;image</numerusform>
            <numerusform>%n&#xa0;images</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>disk space</comment>
        <translation>%1 libres</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) waiting</source>
        <translation>
            <numerusform>%n&#xa0;image en attente</numerusform>
            <numerusform>%n&#xa0;images en attente</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost for a while.</source>
        <translation>La caméra a été momentanément déconnectée.</translation>
    </message>
    <message>
        <source>Lost or incomplete: %1.</source>
        <translation>Perdues ou incomplètes&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>RegionCall</name>
    <message>
        <source>The camera does not report its region.</source>
        <translation>La caméra n’indique pas sa région d’intérêt.</translation>
    </message>
    <message>
        <source>The camera&apos;s region has changed since it was drawn. Draw it again on the present picture.</source>
        <translation>La région de la caméra a changé depuis le tracé. Tracez-la à nouveau sur l’image actuelle.</translation>
    </message>
</context>
<context>
    <name>RegisterEditor</name>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Writes all bytes to the camera (Ctrl+Return).</source>
        <translation>Écrit tous les octets dans la caméra (Ctrl+Entrée).</translation>
    </message>
    <message>
        <source>Shows the bytes of the camera again (Escape).</source>
        <translation>Réaffiche les octets de la caméra (Échap).</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n&#xa0;octet</numerusform>
            <numerusform>%n&#xa0;octets</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, not readable</source>
        <translation>%1, non lisible</translation>
    </message>
</context>
<context>
    <name>RepairPanel</name>
    <message>
        <source>Cover the lens</source>
        <translation>Obturer l’objectif</translation>
    </message>
    <message>
        <source>No light may reach the sensor. A long exposure and a high gain show more hot pixels: use the longest exposure that you work with, and let the camera warm up.</source>
        <translation>Aucune lumière ne doit parvenir au capteur. Une longue exposition et un gain élevé révèlent plus de pixels chauds&#xa0;: utilisez votre plus longue exposition de travail et laissez chauffer la caméra.</translation>
    </message>
    <message>
        <source>Take &amp;dark images</source>
        <translation>Prendre les images &amp;sombres</translation>
    </message>
    <message>
        <source>Point at an evenly lit surface</source>
        <translation>Viser une surface uniforme</translation>
    </message>
    <message>
        <source>Uncover the lens and fill the picture with one bright surface without objects, for example white paper, out of focus. Half of the highest brightness is best; leave the gain as it is.</source>
        <translation>Découvrez l’objectif et remplissez l’image d’une surface claire sans objet, par exemple du papier blanc, hors mise au point. L’idéal est la moitié de la luminosité maximale&#xa0;; ne modifiez pas le gain.</translation>
    </message>
    <message>
        <source>Take &amp;bright images</source>
        <translation>Prendre les images c&amp;laires</translation>
    </message>
    <message>
        <source>Save the map</source>
        <translation>Enregistrer la carte</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl repair pictures with the map. A report and a table are saved beside it.</source>
        <translation>La visionneuse d’images et cvxctl corrigent les images avec la carte. Un rapport et une table sont enregistrés à côté.</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>&amp;Number of images</source>
        <translation>&amp;Nombre d’images</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images find weaker defects and pixels that blink rarely.</source>
        <translation>De chaque type. Plus d’images révèlent des défauts plus faibles et des pixels qui clignotent rarement.</translation>
    </message>
</context>
<context>
    <name>RepairReport</name>
    <message>
        <source>Pixel Repair</source>
        <translation>Réparation de pixels</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>Amas</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>Pixels défectueux contigus.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>Portions de colonnes d’au moins huit pixels défectueux.</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>Portions de lignes d’au moins huit pixels défectueux.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Signification</translation>
    </message>
    <message>
        <source>Places of the defect pixels on the sensor</source>
        <translation>Emplacement des pixels défectueux sur le capteur</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Exposure in ms</source>
        <translation>Exposition en ms</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Spread of the good pixels</source>
        <translation>Dispersion des bons pixels</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombres</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Claires</translation>
    </message>
    <message>
        <source>Threshold: %1 standard deviations. Examined pixels: %2.</source>
        <translation>Seuil&#xa0;: %1 écarts types. Pixels examinés&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>RepairWindow</name>
    <message>
        <source>&amp;Save the map…</source>
        <translation>&amp;Enregistrer la carte…</translation>
    </message>
    <message>
        <source>Pixel Repair</source>
        <translation>Réparation de pixels</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>Prise des images sombres</translation>
    </message>
    <message numerus="yes">
        <source>%n dark image(s) taken.</source>
        <translation>
            <numerusform>%n&#xa0;image sombre prise.</numerusform>
            <numerusform>%n&#xa0;images sombres prises.</numerusform>
        </translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>Prise des images claires</translation>
    </message>
    <message>
        <source>%1 was off during the measurement, so the map also contains what the camera itself can repair.</source>
        <translation>%1 était désactivé pendant la mesure&#xa0;: la carte contient aussi ce que la caméra peut corriger elle-même.</translation>
    </message>
    <message>
        <source>The picture is not repaired: %1.</source>
        <translation>L’image n’est pas réparée : %1.</translation>
    </message>
</context>
<context>
    <name>RestoreBar</name>
    <message>
        <source>Shows which settings differ from those when the camera was opened.</source>
        <translation>Affiche les réglages qui diffèrent de ceux de l’ouverture de la caméra.</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>I&amp;gnorer</translation>
    </message>
    <message>
        <source>%1 Settings that were not made with this program may have the values from power-on.</source>
        <translation>%1 Les réglages non effectués avec ce programme peuvent avoir repris leurs valeurs de démarrage.</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>Caméra en observation seule&#xa0;: rien n’est modifiable.</translation>
    </message>
    <message>
        <source>The settings were not read completely before the camera was lost.</source>
        <translation>La lecture des réglages n’était pas terminée lorsque la caméra a été perdue.</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>Affiche ce qui changerait, puis remet tout dans l’état de l’ouverture de la caméra.</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>Co&amp;mparer</translation>
    </message>
    <message>
        <source>Res&amp;tore</source>
        <translation>&amp;Restaurer</translation>
    </message>
</context>
<context>
    <name>ResultBox</name>
    <message>
        <source>Defect pixels</source>
        <translation>Pixels défectueux</translation>
    </message>
    <message>
        <source>&amp;Mark the defect pixels</source>
        <translation>&amp;Marquer les pixels défectueux</translation>
    </message>
    <message>
        <source>Replaces each defect pixel by the median of its good neighbours of the same colour.</source>
        <translation>Remplace chaque pixel défectueux par la médiane de ses bons voisins de même couleur.</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>Amas</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>Pixels défectueux contigus.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>Portions de colonnes d’au moins huit pixels défectueux.</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>Portions de lignes d’au moins huit pixels défectueux.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Show the re&amp;paired picture</source>
        <translation>&amp;Afficher l’image corrigée</translation>
    </message>
</context>
<context>
    <name>ResultSaver</name>
    <message>
        <source>Save the result</source>
        <translation>Enregistrer le résultat</translation>
    </message>
    <message>
        <source>Results (%1)</source>
        <translation>Résultats (%1)</translation>
    </message>
    <message>
        <source>These files exist already: %1. Do you want to replace them?</source>
        <translation>Ces fichiers existent déjà&#xa0;: %1. Voulez-vous les remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved. %2</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré. %2</translation>
    </message>
</context>
<context>
    <name>SelectorTable</name>
    <message>
        <source>Read again</source>
        <translation>Relire</translation>
    </message>
    <message>
        <source>Values of the selected features</source>
        <translation>Valeurs des paramètres sélectionnés</translation>
    </message>
    <message>
        <source>Show the feature</source>
        <translation>Afficher le paramètre</translation>
    </message>
    <message>
        <source>The feature has no selector, so it has only one value.</source>
        <translation>Ce paramètre n’a pas de sélecteur, donc une seule valeur.</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>The values for each %1</source>
        <translation>Valeurs pour chaque %1</translation>
    </message>
    <message>
        <source>%1, while %2</source>
        <translation>%1, avec %2</translation>
    </message>
    <message>
        <source>Reading the values for each %1</source>
        <translation>Lecture des valeurs pour chaque %1</translation>
    </message>
    <message>
        <source>Reading was cancelled.</source>
        <translation>La lecture a été annulée.</translation>
    </message>
    <message>
        <source>The selector has more values; only the first ones are shown here.</source>
        <translation>Le sélecteur a d’autres valeurs&#xa0;; seules les premières sont affichées ici.</translation>
    </message>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>Cette modification exige un bref arrêt du flux.</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>Régler et relancer</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>Écriture de %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une valeur de %2.</translation>
    </message>
</context>
<context>
    <name>Sentence</name>
    <message>
        <source>The exposure time of this camera cannot be set. Change the light until the picture has about 70 % of the range, and measure without setting the exposure time.</source>
        <translation>Le temps d’exposition de cette caméra n’est pas réglable. Ajustez la lumière jusqu’à environ 70&#xa0;% de la plage et mesurez sans régler le temps d’exposition.</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed since the dark images. Take the dark images again.</source>
        <translation>La région ou le format de pixel a changé depuis les images sombres. Reprenez les images sombres.</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be corrected. Choose a Mono or Bayer format of 8 to 16 bits.</source>
        <translation>Le format de pixel %1 ne peut pas être corrigé. Choisissez un format Mono ou Bayer de 8 à 16&#xa0;bits.</translation>
    </message>
    <message>
        <source>The colours of a line scan camera cannot be corrected. Choose a Mono format.</source>
        <translation>Les couleurs d’une caméra linéaire ne peuvent pas être corrigées. Choisissez un format Mono.</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed during the measurement. Measure again without changing them.</source>
        <translation>La région ou le format de pixel a changé pendant la mesure. Recommencez la mesure sans les modifier.</translation>
    </message>
    <message>
        <source>%1 images are too few for a correction. Take at least %2.</source>
        <translation>%1 images ne suffisent pas pour une correction. Prenez-en au moins %2.</translation>
    </message>
    <message>
        <source>The bright images are too dark: %1 % of the range above the dark images. Is the lens still covered? Otherwise, use more light or a longer exposure time, for about 70 %.</source>
        <translation>Les images claires sont trop sombres&#xa0;: %1&#xa0;% de la plage au-dessus des images sombres. L’objectif est-il encore obturé&#xa0;? Sinon, augmentez la lumière ou le temps d’exposition pour atteindre environ 70&#xa0;%.</translation>
    </message>
    <message>
        <source>The bright images have %1 % of the range. Between 50 and 80 %, the gains are most exact.</source>
        <translation>Les images claires atteignent %1&#xa0;% de la plage. Les gains sont les plus précis entre 50 et 80&#xa0;%.</translation>
    </message>
    <message>
        <source>Parts of the picture have changed by %1 % between the images: something moves, or the light flickers. Use an even surface that keeps still, and steady light.</source>
        <translation>Des parties de l’image ont varié de %1&#xa0;% d’une image à l’autre&#xa0;: quelque chose bouge ou la lumière scintille. Utilisez une surface uniforme et immobile, et un éclairage stable.</translation>
    </message>
    <message>
        <source>The brightness has changed by %1 % between the images. Use steady light.</source>
        <translation>La luminosité a varié de %1&#xa0;% d’une image à l’autre. Utilisez un éclairage stable.</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the range, so there seems to be light. Cover the lens completely. If it is covered, reduce BlackLevel or Gain.</source>
        <translation>Les images sombres atteignent %1&#xa0;% de la plage&#xa0;: il semble y avoir de la lumière. Obturez complètement l’objectif. S’il l’est déjà, réduisez BlackLevel ou Gain.</translation>
    </message>
    <message>
        <source>The dark images are not equally dark everywhere. Make sure that no light reaches the lens, and take them again.</source>
        <translation>Les images sombres ne sont pas uniformément sombres. Vérifiez qu’aucune lumière n’atteint l’objectif et reprenez-les.</translation>
    </message>
    <message>
        <source>%1 % of the values in the dark are 0, so the offsets are cut off. Increase BlackLevel.</source>
        <translation>%1&#xa0;% des valeurs dans l’obscurité sont nulles&#xa0;: les offsets sont tronqués. Augmentez BlackLevel.</translation>
    </message>
    <message>
        <source>The noise in the dark is smaller than one step of the pixel format, so the numbers of the dark images are not exact. A pixel format with more bits shows the differences.</source>
        <translation>Le bruit dans l’obscurité est inférieur à un pas du format de pixel&#xa0;: les valeurs des images sombres sont imprécises. Un format de pixel à plus de bits révèle les différences.</translation>
    </message>
    <message>
        <source>%1 % of the values in the bright images are clipped. Reduce the exposure time or the light, to about 70 % of the range.</source>
        <translation>%1&#xa0;% des valeurs des images claires sont écrêtées. Réduisez le temps d’exposition ou la lumière, jusqu’à environ 70&#xa0;% de la plage.</translation>
    </message>
    <message>
        <source>The bright images show structures that look like an object and not like shading; the correction would draw them into every picture. Use an even surface, out of focus.</source>
        <translation>Les images claires montrent des structures qui évoquent un objet et non un ombrage&#xa0;; la correction les reporterait dans chaque image. Utilisez une surface uniforme, hors mise au point.</translation>
    </message>
    <message>
        <source>The picture is too dark. Remove the lens cap, open the aperture, add light or lengthen the exposure time.</source>
        <translation>L’image est trop sombre. Retirez le bouchon d’objectif, ouvrez le diaphragme, ajoutez de la lumière ou allongez le temps d’exposition.</translation>
    </message>
    <message>
        <source>%1 % of the pixels are overexposed. Close the aperture or shorten the exposure time.</source>
        <translation>%1&#xa0;% des pixels sont surexposés. Fermez le diaphragme ou réduisez le temps d’exposition.</translation>
    </message>
    <message>
        <source>The picture has no edges. Point the camera at something with structure, for example a printed page, or turn the lens if the picture is blurred.</source>
        <translation>L’image ne contient aucun contour. Visez un objet structuré, par exemple une page imprimée, ou tournez la bague si l’image est floue.</translation>
    </message>
    <message>
        <source>Pictures of this pixel format cannot be measured. Choose a Mono, Bayer, RGB or YUV format.</source>
        <translation>Les images de ce format de pixel ne sont pas mesurables. Choisissez un format Mono, Bayer, RGB ou YUV.</translation>
    </message>
    <message>
        <source>The picture is too small for so many regions. Choose a larger Width and Height, or fewer regions.</source>
        <translation>L’image est trop petite pour autant de régions. Augmentez Width et Height, ou réduisez le nombre de régions.</translation>
    </message>
    <message>
        <source>The picture became sharp at no position of the lens. Point the camera at something with structure, check the distance, and search again.</source>
        <translation>L’image n’est devenue nette à aucune position de l’objectif. Visez un objet structuré, vérifiez la distance et relancez la recherche.</translation>
    </message>
    <message>
        <source>The camera cannot move its lens: it has no feature for the position of the focus, for example LensFocusPosition. Turn the lens by hand.</source>
        <translation>La caméra ne peut pas piloter son objectif&#xa0;: elle n’a aucun paramètre de position de mise au point, par exemple LensFocusPosition. Tournez la bague à la main.</translation>
    </message>
    <message>
        <source>The right edge is sharp at a higher position than the left edge, by %1.</source>
        <translation>Le bord droit est net à une position plus élevée que le bord gauche, de %1.</translation>
    </message>
    <message>
        <source>The left edge became sharp before the right edge, by %1 s.</source>
        <translation>Le bord gauche est devenu net %1&#xa0;s avant le bord droit.</translation>
    </message>
    <message>
        <source>The lower right corner is sharp at a higher position than the upper left corner, by %1.</source>
        <translation>Le coin inférieur droit est net à une position plus élevée que le coin supérieur gauche, de %1.</translation>
    </message>
    <message>
        <source>The upper left corner became sharp before the lower right corner, by %1 s.</source>
        <translation>Le coin supérieur gauche est devenu net %1&#xa0;s avant le coin inférieur droit.</translation>
    </message>
    <message>
        <source>The lower edge is sharp at a higher position than the upper edge, by %1.</source>
        <translation>Le bord inférieur est net à une position plus élevée que le bord supérieur, de %1.</translation>
    </message>
    <message>
        <source>The upper edge became sharp before the lower edge, by %1 s.</source>
        <translation>Le bord supérieur est devenu net %1&#xa0;s avant le bord inférieur.</translation>
    </message>
    <message>
        <source>The lower left corner is sharp at a higher position than the upper right corner, by %1.</source>
        <translation>Le coin inférieur gauche est net à une position plus élevée que le coin supérieur droit, de %1.</translation>
    </message>
    <message>
        <source>The upper right corner became sharp before the lower left corner, by %1 s.</source>
        <translation>Le coin supérieur droit est devenu net %1&#xa0;s avant le coin inférieur gauche.</translation>
    </message>
    <message>
        <source>The left edge is sharp at a higher position than the right edge, by %1.</source>
        <translation>Le bord gauche est net à une position plus élevée que le bord droit, de %1.</translation>
    </message>
    <message>
        <source>The right edge became sharp before the left edge, by %1 s.</source>
        <translation>Le bord droit est devenu net %1&#xa0;s avant le bord gauche.</translation>
    </message>
    <message>
        <source>The upper left corner is sharp at a higher position than the lower right corner, by %1.</source>
        <translation>Le coin supérieur gauche est net à une position plus élevée que le coin inférieur droit, de %1.</translation>
    </message>
    <message>
        <source>The lower right corner became sharp before the upper left corner, by %1 s.</source>
        <translation>Le coin inférieur droit est devenu net %1&#xa0;s avant le coin supérieur gauche.</translation>
    </message>
    <message>
        <source>The upper edge is sharp at a higher position than the lower edge, by %1.</source>
        <translation>Le bord supérieur est net à une position plus élevée que le bord inférieur, de %1.</translation>
    </message>
    <message>
        <source>The lower edge became sharp before the upper edge, by %1 s.</source>
        <translation>Le bord inférieur est devenu net %1&#xa0;s avant le bord supérieur.</translation>
    </message>
    <message>
        <source>The upper right corner is sharp at a higher position than the lower left corner, by %1.</source>
        <translation>Le coin supérieur droit est net à une position plus élevée que le coin inférieur gauche, de %1.</translation>
    </message>
    <message>
        <source>The lower left corner became sharp before the upper right corner, by %1 s.</source>
        <translation>Le coin inférieur gauche est devenu net %1&#xa0;s avant le coin supérieur droit.</translation>
    </message>
    <message>
        <source>Turn the lens slowly in one direction, until the picture has become blurred again.</source>
        <translation>Tournez lentement la bague dans un sens, jusqu’à ce que l’image redevienne floue.</translation>
    </message>
    <message>
        <source>Keep turning in this direction.</source>
        <translation>Continuez de tourner dans ce sens.</translation>
    </message>
    <message>
        <source>Turn back: the peak lies in the other direction.</source>
        <translation>Revenez en arrière&#xa0;: le pic est dans l’autre sens.</translation>
    </message>
    <message>
        <source>The best position is %1. The lens is there.</source>
        <translation>La meilleure position est %1. L’objectif s’y trouve.</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens up by %2.</source>
        <translation>La meilleure position est %1&#xa0;: augmentez la position de l’objectif de %2.</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens down by %2.</source>
        <translation>La meilleure position est %1&#xa0;: diminuez la position de l’objectif de %2.</translation>
    </message>
    <message>
        <source>Too few regions became sharp and blurred again to tell whether the focus is tilted. Point the camera at something with edges all over the picture, and go through the sharpest position once more.</source>
        <translation>Trop peu de régions sont devenues nettes puis floues pour savoir si le plan de netteté est incliné. Visez un objet présentant des contours dans toute l’image et repassez par la position la plus nette.</translation>
    </message>
    <message>
        <source>The focus is not tilted.</source>
        <translation>Le plan de netteté n’est pas incliné.</translation>
    </message>
    <message>
        <source>The centre became sharp before the corners, by %1 s.</source>
        <translation>Le centre est devenu net %1&#xa0;s avant les coins.</translation>
    </message>
    <message>
        <source>The corners became sharp before the centre, by %1 s.</source>
        <translation>Les coins sont devenus nets %1&#xa0;s avant le centre.</translation>
    </message>
    <message>
        <source>The corners are sharp at a higher position than the centre, by %1.</source>
        <translation>Les coins sont nets à une position plus élevée que le centre, de %1.</translation>
    </message>
    <message>
        <source>The corners are sharp at a lower position than the centre, by %1.</source>
        <translation>Les coins sont nets à une position plus basse que le centre, de %1.</translation>
    </message>
    <message>
        <source>The link carries %1 MB/s: at most %2 kHz with this width and pixel format. Choose a smaller width, a pixel format with fewer bits, or a lower speed.</source>
        <translation>Le lien transmet %1&#xa0;Mo/s&#xa0;: au plus %2&#xa0;kHz avec cette largeur et ce format de pixel. Choisissez une largeur plus petite, un format de pixel à moins de bits ou une vitesse plus faible.</translation>
    </message>
    <message>
        <source>The exposure allows at most %1 kHz, because a line cannot be shorter than its exposure. Shorten the exposure, and add light or gain.</source>
        <translation>L’exposition autorise au plus %1&#xa0;kHz, car une ligne ne peut pas être plus courte que son exposition. Réduisez l’exposition et ajoutez de la lumière ou du gain.</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz with its present settings. Choose a lower speed or a smaller magnification.</source>
        <translation>Avec ses réglages actuels, la caméra atteint au plus %1&#xa0;kHz. Choisissez une vitesse ou un grandissement plus faible.</translation>
    </message>
    <message>
        <source>This camera takes whole pictures. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>Cette caméra prend des images entières. Choisissez une caméra linéaire, qui acquiert ligne par ligne un objet en mouvement.</translation>
    </message>
    <message>
        <source>Every number must be greater than 0.</source>
        <translation>Chaque valeur doit être supérieure à 0.</translation>
    </message>
    <message>
        <source>Enter the pixel size and the magnification, or the size of a pixel on the object.</source>
        <translation>Saisissez la taille de pixel et le grandissement, ou la taille d’un pixel sur l’objet.</translation>
    </message>
    <message>
        <source>Enter the speed of the object.</source>
        <translation>Saisissez la vitesse de l’objet.</translation>
    </message>
    <message>
        <source>Enter the movement per encoder pulse, or the pulses per revolution and the diameter of the roller.</source>
        <translation>Saisissez l’avance par impulsion du codeur, ou les impulsions par tour et le diamètre du rouleau.</translation>
    </message>
    <message>
        <source>The camera has no line rate of its own (AcquisitionLineRate). Use an encoder, or an external trigger.</source>
        <translation>La caméra n’a pas de fréquence de lignes propre (AcquisitionLineRate). Utilisez un codeur ou un déclenchement externe.</translation>
    </message>
    <message>
        <source>The camera cannot start lines by an encoder (TriggerSelector has no LineStart). Use its line rate.</source>
        <translation>La caméra ne peut pas déclencher ses lignes par un codeur (TriggerSelector sans LineStart). Utilisez sa fréquence de lignes.</translation>
    </message>
    <message>
        <source>The exposure of %1 µs is longer than a line. It has to be shortened to %2 µs, so the picture becomes darker: add light or gain.</source>
        <translation>L’exposition de %1&#xa0;µs est plus longue qu’une ligne. Elle doit être réduite à %2&#xa0;µs, ce qui assombrit l’image&#xa0;: ajoutez de la lumière ou du gain.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification, or use another encoder.</source>
        <translation>Avec le réglage le plus proche de la caméra, les objets sont %1&#xa0;% trop hauts. Modifiez le grandissement ou utilisez un autre codeur.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification, or use another encoder.</source>
        <translation>Avec le réglage le plus proche de la caméra, les objets sont %1&#xa0;% trop aplatis. Modifiez le grandissement ou utilisez un autre codeur.</translation>
    </message>
    <message>
        <source>The camera offers no encoder as the source of its line trigger (TriggerSource). Use its line rate.</source>
        <translation>La caméra ne propose aucun codeur comme source du déclenchement de ligne (TriggerSource). Utilisez sa fréquence de lignes.</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz, but square pixels need %2 kHz. Nothing was changed. Choose a lower speed or a smaller magnification.</source>
        <translation>La caméra atteint au plus %1&#xa0;kHz, mais des pixels carrés exigent %2&#xa0;kHz. Rien n’a été modifié. Choisissez une vitesse ou un grandissement plus faible.</translation>
    </message>
    <message>
        <source>The camera has refused %1, so nothing was changed. %2</source>
        <translation>La caméra a refusé %1&#xa0;: rien n’a été modifié. %2</translation>
    </message>
    <message>
        <source>The circle is round: height and width differ by %1 %.</source>
        <translation>Le cercle est rond&#xa0;: hauteur et largeur diffèrent de %1&#xa0;%.</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the lines per encoder pulse from %2 to %3.</source>
        <translation>Le cercle est %1&#xa0;% trop haut&#xa0;: réduisez les lignes par impulsion du codeur de %2 à %3.</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the lines per encoder pulse from %2 to %3.</source>
        <translation>Le cercle est %1&#xa0;% trop aplati&#xa0;: augmentez les lignes par impulsion du codeur de %2 à %3.</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the line rate from %2 kHz to %3 kHz.</source>
        <translation>Le cercle est %1&#xa0;% trop haut&#xa0;: réduisez la fréquence de lignes de %2&#xa0;kHz à %3&#xa0;kHz.</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the line rate from %2 kHz to %3 kHz.</source>
        <translation>Le cercle est %1&#xa0;% trop aplati&#xa0;: augmentez la fréquence de lignes de %2&#xa0;kHz à %3&#xa0;kHz.</translation>
    </message>
    <message>
        <source>The border of the round target is uneven. Check whether the object moves evenly, whether lines are lost, and whether the target is sharp and free of other shapes.</source>
        <translation>Le bord de la cible ronde est irrégulier. Vérifiez que l’objet avance régulièrement, qu’aucune ligne n’est perdue et que la cible est nette et sans autre forme.</translation>
    </message>
    <message>
        <source>There is no complete round target in the picture of %1 lines. Show the camera a dark or bright disc or ring, or make the picture higher (Height).</source>
        <translation>L’image de %1 lignes ne contient aucune cible ronde entière. Présentez à la caméra un disque ou un anneau sombre ou clair, ou augmentez la hauteur de l’image (Height).</translation>
    </message>
    <message>
        <source>The picture has too little contrast. Take off the lens cap, add light, and show the camera a dark or bright disc or ring.</source>
        <translation>L’image manque de contraste. Retirez le bouchon d’objectif, ajoutez de la lumière et présentez à la caméra un disque ou un anneau sombre ou clair.</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s, because it waits for a trigger. Trigger it, or set TriggerMode to Off, and measure again.</source>
        <translation>La caméra n’a envoyé aucune image depuis %1&#xa0;s, car elle attend un déclenchement. Déclenchez-la ou réglez TriggerMode sur Off, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s. Check whether the live picture moves, and the cable, then measure again.</source>
        <translation>La caméra n’a envoyé aucune image depuis %1&#xa0;s. Vérifiez que l’image en direct évolue, ainsi que le câble, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Check its cable and its power, wait until the picture is back, then measure again. (%1)</source>
        <translation>Connexion à la caméra perdue pendant la mesure. Vérifiez son câble et son alimentation, attendez le retour de l’image, puis recommencez la mesure. (%1)</translation>
    </message>
    <message>
        <source>The images arrive with missing data. Check the cable and the network card (&quot;cvxctl doctor&quot; helps), or lower the image rate, then measure again.</source>
        <translation>Les images arrivent avec des données manquantes. Vérifiez le câble et la carte réseau (à l’aide de «&#xa0;cvxctl doctor&#xa0;») ou réduisez la fréquence d’images, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The measurement was cancelled.</source>
        <translation>La mesure a été annulée.</translation>
    </message>
    <message>
        <source>The pixel values are not proportional to the light. Set Gamma to 1, then measure again.</source>
        <translation>Les valeurs de pixel ne sont pas proportionnelles à la lumière. Réglez Gamma sur 1, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;DeviceTapGeometry&quot;. Choose the layout of its taps by hand.</source>
        <translation>La caméra n’a pas de paramètre «&#xa0;DeviceTapGeometry&#xa0;». Choisissez manuellement la disposition de ses canaux.</translation>
    </message>
    <message>
        <source>The tap geometry &quot;%1&quot; is unknown. Choose the layout of the taps by hand.</source>
        <translation>La géométrie des canaux «&#xa0;%1&#xa0;» est inconnue. Choisissez manuellement la disposition des canaux.</translation>
    </message>
    <message>
        <source>The sensor has one tap only, so there is nothing to balance. If that is wrong, choose the layout of the taps by hand.</source>
        <translation>Le capteur n’a qu’un canal&#xa0;: il n’y a rien à équilibrer. Si c’est inexact, choisissez manuellement la disposition des canaux.</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;%1&quot;, so its taps can be measured, but not set.</source>
        <translation>La caméra n’a pas de paramètre «&#xa0;%1&#xa0;»&#xa0;: ses canaux sont mesurables, mais pas réglables.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the entries Tap1 to Tap%2, so the taps can be measured, but not set. Choose the layout of the camera&apos;s taps.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas les entrées Tap1 à Tap%2&#xa0;: les canaux sont mesurables, mais pas réglables. Choisissez la disposition des canaux de la caméra.</translation>
    </message>
    <message>
        <source>The scene moves: %1 % of the picture has changed during the measurement. Show an even surface that rests, then measure again.</source>
        <translation>La scène bouge&#xa0;: %1&#xa0;% de l’image a changé pendant la mesure. Présentez une surface uniforme et immobile, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The picture is overexposed: %1 % of a tap&apos;s pixels have the largest value. Shorten the exposure time or close the lens aperture, then measure again.</source>
        <translation>L’image est surexposée&#xa0;: %1&#xa0;% des pixels d’un canal ont la valeur maximale. Réduisez le temps d’exposition ou fermez le diaphragme, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The picture is too dark: it reaches %1 % of the range. Remove the lens cap, add light or lengthen the exposure time, then measure again.</source>
        <translation>L’image est trop sombre&#xa0;: elle atteint %1&#xa0;% de la plage. Retirez le bouchon d’objectif, ajoutez de la lumière ou allongez le temps d’exposition, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The picture is not dark: its mean is %1 % of the range. Cover the lens, then measure again.</source>
        <translation>L’image n’est pas sombre&#xa0;: sa moyenne est de %1&#xa0;% de la plage. Obturez l’objectif, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The dark picture is cut off: %1 % of a tap&apos;s pixels are 0. Raise the black level, then measure again.</source>
        <translation>L’image sombre est tronquée&#xa0;: %1&#xa0;% des pixels d’un canal sont nuls. Augmentez le niveau de noir, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The step between tap %1 and tap %2 cannot be told from the scene. Show an even surface, or take more images, then measure again.</source>
        <translation>Le saut entre les canaux %1 et %2 ne se distingue pas de la scène. Présentez une surface uniforme ou prenez plus d’images, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>Taps cannot be measured in this pixel format. Choose a Mono or Bayer format of 8 to 16 bits, then measure again.</source>
        <translation>Les canaux ne sont pas mesurables dans ce format de pixel. Choisissez un format Mono ou Bayer de 8 à 16&#xa0;bits, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The taps read neighbouring pixels in turn, which have different colours, so taps and colours cannot be told apart. Choose a layout of stripes by hand.</source>
        <translation>Les canaux lisent à tour de rôle des pixels voisins de couleurs différentes&#xa0;: canaux et couleurs ne peuvent pas être distingués. Choisissez manuellement une disposition en bandes.</translation>
    </message>
    <message>
        <source>Binning adds up pixels of several taps. Switch it off, then measure again.</source>
        <translation>Le binning additionne des pixels de plusieurs canaux. Désactivez-le, puis recommencez la mesure.</translation>
    </message>
    <message>
        <source>The size or the format of the images has changed during the measurement. Measure again.</source>
        <translation>La taille ou le format des images a changé pendant la mesure. Recommencez la mesure.</translation>
    </message>
    <message>
        <source>The dark level of this pixel format cannot be measured; choose a Mono, Bayer or RGB format.</source>
        <translation>Le niveau d’obscurité n’est pas mesurable dans ce format de pixel&#xa0;; choisissez un format Mono, Bayer ou RGB.</translation>
    </message>
    <message>
        <source>The picture is not dark. Put the cap on the lens, or cover the lens completely.</source>
        <translation>L’image n’est pas sombre. Mettez le bouchon d’objectif ou obturez complètement l’objectif.</translation>
    </message>
    <message>
        <source>%1 % of the pixels are 0, which hides the dark level. Raise BlackLevel, so that the noise lies above 0.</source>
        <translation>%1&#xa0;% des pixels sont nuls, ce qui masque le niveau d’obscurité. Augmentez BlackLevel pour que le bruit reste au-dessus de 0.</translation>
    </message>
    <message>
        <source>The noise is smaller than one step of the pixel format, which hides small changes of the dark level. Choose a pixel format with more bits, or a higher gain.</source>
        <translation>Le bruit est inférieur à un pas du format de pixel, ce qui masque les faibles variations du niveau d’obscurité. Choisissez un format de pixel à plus de bits ou un gain plus élevé.</translation>
    </message>
    <message>
        <source>The features cannot be read: %1</source>
        <translation>Les paramètres ne peuvent pas être lus&#xa0;: %1</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature.</source>
        <translation>La caméra n’a pas de paramètre DeviceTemperature&#xa0;: elle n’indique pas sa température.</translation>
    </message>
    <message>
        <source>The scene moves, so the regions&apos; shares also change with what they show. Let it stand still to compare the regions.</source>
        <translation>La scène bouge&#xa0;: les parts des régions varient aussi avec leur contenu. Immobilisez-la pour comparer les régions.</translation>
    </message>
    <message>
        <source>The picture is as sharp as it gets. Lock the lens.</source>
        <translation>La netteté est maximale. Bloquez l’objectif.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification or the speed.</source>
        <translation>Avec le réglage le plus proche de la caméra, les objets sont %1 % trop hauts. Modifiez le grandissement ou la vitesse.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification or the speed.</source>
        <translation>Avec le réglage le plus proche de la caméra, les objets sont %1 % trop aplatis. Modifiez le grandissement ou la vitesse.</translation>
    </message>
    <message>
        <source>The camera has refused a setting, and then also refused to go back to %1: %2</source>
        <translation>La caméra a refusé un réglage, puis aussi le retour à %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The stream has ended during the measurement. Start the live picture and measure again.</source>
        <translation>Les images se sont interrompues pendant la mesure. Démarrez l’image en direct et recommencez la mesure.</translation>
    </message>
    <message>
        <source>The picture shows no border between tap %1 and the other taps. Set the region to the whole sensor, or choose another layout, then measure again.</source>
        <translation>L’image ne montre aucune limite entre le canal %1 et les autres canaux. Réglez la région sur tout le capteur ou choisissez une autre disposition, puis mesurez de nouveau.</translation>
    </message>
</context>
<context>
    <name>SettingTexts</name>
    <message>
        <source>Without category</source>
        <translation>Sans catégorie</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save settings…</source>
        <translation>&amp;Enregistrer les réglages…</translation>
    </message>
    <message>
        <source>&amp;Load settings…</source>
        <translation>&amp;Charger des réglages…</translation>
    </message>
    <message>
        <source>As it &amp;was when I opened it…</source>
        <translation>&amp;Restaurer l’état d’ouverture…</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>Caméra en observation seule&#xa0;: rien n’est modifiable.</translation>
    </message>
    <message>
        <source>The camera is not open.</source>
        <translation>La caméra n’est pas ouverte.</translation>
    </message>
    <message>
        <source>Saves all settings to a file that other GenICam programs can read, too.</source>
        <translation>Enregistre tous les réglages dans un fichier également lisible par d’autres programmes GenICam.</translation>
    </message>
    <message>
        <source>Shows what a settings file would change, and then loads it.</source>
        <translation>Affiche ce qu’un fichier de réglages changerait, puis le charge.</translation>
    </message>
    <message>
        <source>The settings from the opening are not completely known.</source>
        <translation>Les réglages à l’ouverture ne sont pas entièrement connus.</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>Affiche ce qui changerait, puis remet tout dans l’état de l’ouverture de la caméra.</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Enregistrer les réglages</translation>
    </message>
    <message>
        <source>Settings files (%1)</source>
        <translation>Fichiers de réglages (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>Tous les fichiers (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were saved to &quot;%1&quot;.</source>
        <translation>
            <numerusform>%n&#xa0;réglage enregistré dans «&#xa0;%1&#xa0;».</numerusform>
            <numerusform>%n&#xa0;réglages enregistrés dans «&#xa0;%1&#xa0;».</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s):</source>
        <translation>
            <numerusform>%n&#xa0;remarque&#xa0;:</numerusform>
            <numerusform>%n&#xa0;remarques&#xa0;:</numerusform>
        </translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Charger des réglages</translation>
    </message>
    <message>
        <source>the settings from the opening</source>
        <translation>les réglages à l’ouverture</translation>
    </message>
</context>
<context>
    <name>SettingsLoad</name>
    <message>
        <source>Comparing %1 with the camera</source>
        <translation>Comparaison avec la caméra&#xa0;: %1</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>Chargement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Putting back the settings from before %1</source>
        <translation>Restauration des réglages antérieurs au chargement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>Charger %1</translation>
    </message>
    <message>
        <source>Undo loading %1</source>
        <translation>Défaire le chargement&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SettingsSave</name>
    <message>
        <source>Saving the settings</source>
        <translation>Enregistrement des réglages</translation>
    </message>
    <message>
        <source>Saving was cancelled. The file was not written.</source>
        <translation>L’enregistrement a été annulé. Le fichier n’a pas été écrit.</translation>
    </message>
    <message>
        <source>The camera has no settings that belong in a file. The file was not written.</source>
        <translation>La caméra n’a aucun réglage à enregistrer dans un fichier. Le fichier n’a pas été écrit.</translation>
    </message>
</context>
<context>
    <name>SettingsSource</name>
    <message>
        <source>The reading was cancelled.</source>
        <translation>La lecture a été annulée.</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Camera Setup</source>
        <translation>Configuration de caméra</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>Jeux de paramètres</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>All selector values</source>
        <translation>Toutes les valeurs du sélecteur</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Find a feature</source>
        <translation>Rec&amp;hercher un paramètre</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Caméra</translation>
    </message>
    <message>
        <source>Live &amp;picture</source>
        <translation>&amp;Image en direct</translation>
    </message>
    <message>
        <source>&amp;Compare with the opening</source>
        <translation>&amp;Comparer à l’ouverture</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>Ouvrir dans la &amp;visionneuse d’images</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Panneaux</translation>
    </message>
    <message>
        <source>F2, Return</source>
        <translation>F2, Entrée</translation>
    </message>
    <message>
        <source>Edit the value of the selected feature</source>
        <translation>Modifier la valeur du paramètre sélectionné</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Gauche, Droite</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s). The settings at opening are being read.</source>
        <translation>
            <numerusform>%n&#xa0;paramètre. Lecture des réglages à l’ouverture en cours.</numerusform>
            <numerusform>%n&#xa0;paramètres. Lecture des réglages à l’ouverture en cours.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n&#xa0;paramètre</numerusform>
            <numerusform>%n&#xa0;paramètres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed since opening</source>
        <translation>
            <numerusform>%n&#xa0;modifié depuis l’ouverture</numerusform>
            <numerusform>%n&#xa0;modifiés depuis l’ouverture</numerusform>
        </translation>
    </message>
    <message>
        <source>Collapse or expand a category</source>
        <translation>Replier ou déplier une catégorie</translation>
    </message>
</context>
<context>
    <name>ShortcutPage</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>What they do</source>
        <translation>Fonction</translation>
    </message>
</context>
<context>
    <name>SideBox</name>
    <message>
        <source>Shows what could not be read, and why.</source>
        <translation>Affiche ce qui n’a pas pu être lu, et pourquoi.</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>Fichier…</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s), %1</source>
        <translation>
            <numerusform>%n&#xa0;réglage, %1</numerusform>
            <numerusform>%n&#xa0;réglages, %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n&#xa0;remarque</numerusform>
            <numerusform>%n&#xa0;remarques</numerusform>
        </translation>
    </message>
    <message>
        <source>Not read yet.</source>
        <translation>Pas encore lu.</translation>
    </message>
    <message>
        <source>Notes on what was read:</source>
        <translation>Remarques sur la lecture&#xa0;:</translation>
    </message>
</context>
<context>
    <name>SnapshotSaver</name>
    <message>
        <source>There is no picture to save yet.</source>
        <translation>Il n’y a pas encore d’image à enregistrer.</translation>
    </message>
    <message>
        <source>The snapshot was not saved: %1.</source>
        <translation>Capture non enregistrée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The snapshot was not saved, because earlier ones still wait for the disk.</source>
        <translation>Capture non enregistrée&#xa0;: des captures précédentes attendent encore le disque.</translation>
    </message>
</context>
<context>
    <name>StatisticsTable</name>
    <message>
        <source>Component</source>
        <translation>Composante</translation>
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
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>Écart type</translation>
    </message>
</context>
<context>
    <name>StatusNumbers</name>
    <message>
        <source>Images per second and image data per second that arrive from the camera.</source>
        <translation>Images et données d’image reçues de la caméra par seconde.</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>Tampons contenant une image en cours d’affichage, de mesure ou d’enregistrement. S’ils sont tous occupés, des images sont perdues.</translation>
    </message>
    <message>
        <source>Buffers: %1</source>
        <translation>Tampons&#xa0;: %1</translation>
    </message>
    <message>
        <source>No losses</source>
        <translation>Aucune perte</translation>
    </message>
    <message>
        <source>What was lost since the camera was opened.</source>
        <translation>Pertes depuis l’ouverture de la caméra.</translation>
    </message>
</context>
<context>
    <name>StepCard</name>
    <message>
        <source>Step %1, not yet possible: %2</source>
        <translation>Étape %1, pas encore possible&#xa0;: %2</translation>
    </message>
    <message>
        <source>Step %1, next: %2</source>
        <translation>Étape %1, à faire&#xa0;: %2</translation>
    </message>
    <message>
        <source>Step %1, done: %2</source>
        <translation>Étape %1, terminée&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>StreamNumbers</name>
    <message>
        <source>Delivered</source>
        <translation>Reçues</translation>
    </message>
    <message>
        <source>Images that arrived from the camera.</source>
        <translation>Images reçues de la caméra.</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Affichées</translation>
    </message>
    <message>
        <source>Images that were drawn in the window.</source>
        <translation>Images affichées dans la fenêtre.</translation>
    </message>
    <message>
        <source>Skipped for display</source>
        <translation>Non affichées</translation>
    </message>
    <message>
        <source>Images that were not drawn because the screen is slower than the camera. They are not lost: recordings contain them.</source>
        <translation>Images non affichées, car l’écran est plus lent que la caméra. Elles ne sont pas perdues&#xa0;: les séquences enregistrées les contiennent.</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Incomplètes</translation>
    </message>
    <message>
        <source>Delivered images with missing data.</source>
        <translation>Images reçues avec des données manquantes.</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdues</translation>
    </message>
    <message>
        <source>Images that never arrived, by gaps in the frame IDs.</source>
        <translation>Images jamais reçues, d’après les discontinuités des ID de trame.</translation>
    </message>
    <message>
        <source>Underruns</source>
        <translation>Sans tampon</translation>
    </message>
    <message>
        <source>Images that were lost because no buffer was free: this computer was too slow.</source>
        <translation>Images perdues faute de tampon libre&#xa0;: cet ordinateur était trop lent.</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Images per second during the last second.</source>
        <translation>Images par seconde au cours de la dernière seconde.</translation>
    </message>
    <message>
        <source>Data rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Image data per second during the last second.</source>
        <translation>Données d’image par seconde au cours de la dernière seconde.</translation>
    </message>
    <message>
        <source>Buffers in use</source>
        <translation>Tampons occupés</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>Tampons contenant une image en cours d’affichage, de mesure ou d’enregistrement. S’ils sont tous occupés, des images sont perdues.</translation>
    </message>
    <message>
        <source>Link speed</source>
        <translation>Débit du lien</translation>
    </message>
    <message>
        <source>Speed of the connection that the camera reports.</source>
        <translation>Débit de la connexion indiqué par la caméra.</translation>
    </message>
    <message>
        <source>Packet size</source>
        <translation>Taille de paquet</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>Size of the packets of a GigE camera.</source>
        <translation>Taille des paquets d’une caméra GigE.</translation>
    </message>
    <message>
        <source>Resent packets</source>
        <translation>Paquets renvoyés</translation>
    </message>
    <message>
        <source>Packets that the camera has sent a second time because they were lost.</source>
        <translation>Paquets envoyés une seconde fois par la caméra, car ils avaient été perdus.</translation>
    </message>
    <message>
        <source>Continued after a loss</source>
        <translation>Reprises après perte</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>rate and data rate</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>perdues&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>incomplètes&#xa0;: %1</translation>
    </message>
    <message>
        <source>no stream</source>
        <translation>aucun flux</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>buffers</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name and value</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 images/s</source>
        <translation>%1 images/s</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 Mo/s</translation>
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
        <translation>non indiqué</translation>
    </message>
    <message>
        <source>How often the camera was lost and the stream went on when it was back.</source>
        <translation>Nombre de fois où la caméra a été déconnectée, puis le flux repris à son retour.</translation>
    </message>
    <message>
        <source>%1 underruns</source>
        <translation>sans tampon&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TapBars</name>
    <message>
        <source>Deviation of each tap</source>
        <translation>Écart de chaque canal</translation>
    </message>
    <message>
        <source>Grey: before; blue: now</source>
        <translation>Gris&#xa0;: avant&#xa0;; bleu&#xa0;: maintenant</translation>
    </message>
    <message>
        <source>Tap %1: %2 %3</source>
        <translation>Canal %1&#xa0;: %2 %3</translation>
    </message>
    <message>
        <source>Not measured yet</source>
        <translation>Pas encore mesuré</translation>
    </message>
</context>
<context>
    <name>TapPanel</name>
    <message>
        <source>Tap</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Mismatch of the taps</source>
        <translation>Écart entre canaux</translation>
    </message>
    <message>
        <source>Skip this step</source>
        <translation>Ignorer cette étape</translation>
    </message>
    <message>
        <source>Undo the last balancing</source>
        <translation>Annuler le dernier équilibrage</translation>
    </message>
    <message>
        <source>Mean and noise of each tap</source>
        <translation>Moyenne et bruit de chaque canal</translation>
    </message>
    <message>
        <source>Shading changes the means, so the steps at the borders say how the taps differ.</source>
        <translation>L’ombrage modifie les moyennes&#xa0;: ce sont les sauts aux frontières qui indiquent l’écart entre canaux.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesurer</translation>
    </message>
    <message>
        <source>Show an even, bright surface that fills the picture, for example a white sheet out of focus.</source>
        <translation>Présentez une surface claire et uniforme qui remplit l’image, par exemple une feuille blanche hors mise au point.</translation>
    </message>
    <message>
        <source>Measure the taps</source>
        <translation>Mesurer les canaux</translation>
    </message>
    <message>
        <source>Black levels</source>
        <translation>Niveaux de noir</translation>
    </message>
    <message>
        <source>Cover the lens. Without this step, differences of the black levels count as those of the gains.</source>
        <translation>Obturez l’objectif. Sans cette étape, les écarts de niveau de noir sont attribués aux gains.</translation>
    </message>
    <message>
        <source>Balance the black levels</source>
        <translation>Équilibrer les niveaux de noir</translation>
    </message>
    <message>
        <source>Gains</source>
        <translation>Gains</translation>
    </message>
    <message>
        <source>Uncover the lens and show the even, bright surface again.</source>
        <translation>Découvrez l’objectif et présentez de nouveau la surface claire et uniforme.</translation>
    </message>
    <message>
        <source>Balance the gains</source>
        <translation>Équilibrer les gains</translation>
    </message>
    <message>
        <source>The camera has the new values until it is switched off. Store them in a user set with Camera Setup to keep them.</source>
        <translation>La caméra garde les nouvelles valeurs jusqu’à son extinction. Pour les conserver, mémorisez-les dans un jeu de paramètres avec Configuration de caméra.</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>Enregistrer le résultat…</translation>
    </message>
    <message>
        <source>The taps differ by up to %1.</source>
        <translation>Les canaux diffèrent de %1 au maximum.</translation>
    </message>
    <message>
        <source>Keep the values</source>
        <translation>Conserver</translation>
    </message>
</context>
<context>
    <name>TapReport</name>
    <message>
        <source>Tap Balance</source>
        <translation>Équilibrage des canaux</translation>
    </message>
    <message>
        <source>Layout of the taps: %1</source>
        <translation>Disposition des canaux&#xa0;: %1</translation>
    </message>
    <message>
        <source>Deviation of each tap; grey: before, blue: now</source>
        <translation>Écart de chaque canal&#xa0;; gris&#xa0;: avant, bleu&#xa0;: maintenant</translation>
    </message>
    <message>
        <source>Bright picture</source>
        <translation>Image claire</translation>
    </message>
    <message>
        <source>Dark picture</source>
        <translation>Image sombre</translation>
    </message>
    <message>
        <source>The picture with the borders of the taps</source>
        <translation>Image avec les frontières des canaux</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Step at the border</source>
        <translation>Saut à la frontière</translation>
    </message>
    <message>
        <source>The deviations follow from the steps at the borders, which straight lines on both sides are extended to; shading has no influence. The noise is the temporal standard deviation of a pixel by the differences of successive images (EMVA 1288). The uncertainty of a step is twice its standard error.</source>
        <translation>Les écarts se déduisent des sauts aux frontières, jusqu’auxquelles des droites sont prolongées de part et d’autre&#xa0;; l’ombrage est sans influence. Le bruit est l’écart type temporel d’un pixel, calculé sur les différences d’images successives (EMVA 1288). L’incertitude d’un saut est le double de son erreur type.</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>%1 avant</translation>
    </message>
    <message>
        <source>now</source>
        <translation>maintenant</translation>
    </message>
</context>
<context>
    <name>TapSession</name>
    <message>
        <source>Measuring the taps</source>
        <translation>Mesure des canaux</translation>
    </message>
    <message>
        <source>Balancing the gains</source>
        <translation>Équilibrage des gains</translation>
    </message>
    <message>
        <source>Balancing the black levels</source>
        <translation>Équilibrage des niveaux de noir</translation>
    </message>
    <message>
        <source>Putting the earlier values back</source>
        <translation>Restauration des valeurs antérieures</translation>
    </message>
</context>
<context>
    <name>TapTexts</name>
    <message>
        <source>The mismatch fell from %1 to %2.</source>
        <translation>L’écart entre canaux est passé de %1 à %2.</translation>
    </message>
    <message>
        <source>The mismatch fell from %1 to %2. The camera offers no finer values.</source>
        <translation>L’écart entre canaux est passé de %1 à %2. La caméra n’offre pas de réglage plus fin.</translation>
    </message>
    <message>
        <source>DN</source>
        <comment>unit of pixel values</comment>
        <translation>niveaux</translation>
    </message>
</context>
<context>
    <name>TapWindow</name>
    <message>
        <source>Tap Balance</source>
        <translation>Équilibrage des canaux</translation>
    </message>
    <message>
        <source>The camera has no feature GainSelector, so the gains of its taps cannot be set one by one. Use a flat-field correction instead.</source>
        <translation>La caméra n’a pas de paramètre GainSelector&#xa0;: les gains de ses canaux ne sont pas réglables séparément. Utilisez plutôt une correction de champ plat.</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>&amp;Enregistrer le résultat…</translation>
    </message>
    <message>
        <source>&amp;Undo the last balancing</source>
        <translation>&amp;Annuler le dernier équilibrage</translation>
    </message>
</context>
<context>
    <name>TargetOverlay</name>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2&#xa0;px</translation>
    </message>
</context>
<context>
    <name>TemperaturePlot</name>
    <message>
        <source>Time since the start</source>
        <translation>Temps depuis le début</translation>
    </message>
    <message>
        <source>Temperature in °C</source>
        <translation>Température en °C</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>Niveau d’obscurité</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>Final value of %1</source>
        <translation>Valeur finale de %1</translation>
    </message>
    <message>
        <source>Dark level follows</source>
        <translation>L’obscurité suit</translation>
    </message>
    <message>
        <source>Show the &amp;last</source>
        <translation>&amp;Durée affichée</translation>
    </message>
    <message>
        <source>Temperatures since the start</source>
        <translation>Températures depuis le début</translation>
    </message>
    <message>
        <source>Dark level since the start</source>
        <translation>Niveau d’obscurité depuis le début</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message numerus="yes">
        <source>At most %n character(s)</source>
        <translation>
            <numerusform>%n&#xa0;caractère au maximum</numerusform>
            <numerusform>%n&#xa0;caractères au maximum</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>ThermalPanel</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>&amp;Enregistrer le résultat…</translation>
    </message>
    <message>
        <source>Notify me</source>
        <translation>M’avertir</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>Niveau d’obscurité</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Read &amp;every</source>
        <translation>Re&amp;lever toutes les</translation>
    </message>
    <message>
        <source>Start a&amp;new</source>
        <translation>Reco&amp;mmencer</translation>
    </message>
    <message>
        <source>Forgets the readings and begins again. A running log goes on.</source>
        <translation>Efface les relevés et recommence. Un journal en cours continue.</translation>
    </message>
</context>
<context>
    <name>ThermalReport</name>
    <message>
        <source>Thermal Monitor</source>
        <translation>Moniteur thermique</translation>
    </message>
    <message>
        <source>Readings since %1 (UTC).</source>
        <translation>Relevés depuis %1 (UTC).</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Expected final value in °C</source>
        <translation>Valeur finale prévue en °C</translation>
    </message>
    <message>
        <source>Time constant</source>
        <translation>Constante de temps</translation>
    </message>
    <message>
        <source>Steady in</source>
        <translation>Stable dans</translation>
    </message>
    <message>
        <source>The final value belongs to an exponential curve through the readings; the uncertainty is twice the standard deviation. Steady means within 0.5 K of the final value, or a change of less than 0.1 K per minute.</source>
        <translation>La valeur finale est celle d’une exponentielle ajustée aux relevés&#xa0;; l’incertitude est le double de l’écart type. Stable signifie à moins de 0,5&#xa0;K de la valeur finale, ou une variation inférieure à 0,1&#xa0;K par minute.</translation>
    </message>
    <message>
        <source>Temperatures over time</source>
        <translation>Températures au cours du temps</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>Niveau d’obscurité</translation>
    </message>
    <message>
        <source>Dark level over time</source>
        <translation>Niveau d’obscurité au cours du temps</translation>
    </message>
</context>
<context>
    <name>ThermalSession</name>
    <message>
        <source>The camera has not been read yet.</source>
        <translation>La caméra n’a pas encore été lue.</translation>
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
        <translation>10&#xa0;min</translation>
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
        <translation>Tout</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;h</translation>
    </message>
    <message>
        <source>Cannot be read at present</source>
        <translation>Illisible actuellement</translation>
    </message>
    <message>
        <source>Rate and state are known in %1.</source>
        <translation>Évolution et état connus dans %1.</translation>
    </message>
    <message>
        <source>Warming up, %1 K/min</source>
        <translation>Échauffement, %1&#xa0;K/min</translation>
    </message>
    <message>
        <source>Cooling, %1 K/min</source>
        <translation>Refroidissement, %1&#xa0;K/min</translation>
    </message>
    <message>
        <source>Steady, %1 K/min</source>
        <translation>Stable, %1&#xa0;K/min</translation>
    </message>
    <message>
        <source>The temperature does not change any more.</source>
        <translation>La température ne varie plus.</translation>
    </message>
    <message>
        <source>The final value is not determined yet.</source>
        <translation>La valeur finale n’est pas encore déterminée.</translation>
    </message>
    <message>
        <source>Expected final value: %1 °C ± %2 K</source>
        <translation>Valeur finale prévue&#xa0;: %1&#xa0;°C ± %2&#xa0;K</translation>
    </message>
    <message>
        <source>%1, steady in %2</source>
        <translation>%1, stable dans %2</translation>
    </message>
    <message>
        <source>Alarm: %1 has reached %2. Cool the camera or let it work less.</source>
        <translation>Alarme&#xa0;: «&#xa0;%1&#xa0;» a atteint %2. Refroidissez la caméra ou réduisez sa charge.</translation>
    </message>
    <message>
        <source>Warning: %1 is at %2.</source>
        <translation>Avertissement&#xa0;: «&#xa0;%1&#xa0;» est à %2.</translation>
    </message>
    <message>
        <source>%1 is below the thresholds again: %2.</source>
        <translation>«&#xa0;%1&#xa0;» est de nouveau sous les seuils&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Dark level: %1</source>
        <translation>Niveau d’obscurité&#xa0;: %1</translation>
    </message>
    <message>
        <source>Dark level: %1 (noise %2)</source>
        <translation>Niveau d’obscurité&#xa0;: %1 (bruit %2)</translation>
    </message>
    <message>
        <source>The dark level has followed the temperature since %1 after the start.</source>
        <translation>Le niveau d’obscurité suit la température depuis %1 après le début.</translation>
    </message>
    <message>
        <source>The dark level has not changed by more than its noise.</source>
        <translation>Le niveau d’obscurité n’a pas varié au-delà de son bruit.</translation>
    </message>
    <message>
        <source>The dark signal doubles every %1 ± %2 K.</source>
        <translation>Le signal d’obscurité double tous les %1 ± %2&#xa0;K.</translation>
    </message>
    <message>
        <source>The doubling temperature is not determined yet; the temperature has to change more.</source>
        <translation>L’écart de température de doublement n’est pas encore déterminé&#xa0;; la température doit varier davantage.</translation>
    </message>
</context>
<context>
    <name>ThermalWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>&amp;Enregistrer le résultat…</translation>
    </message>
    <message>
        <source>Thermal Monitor</source>
        <translation>Moniteur thermique</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature. The data sheet says whether a newer firmware does.</source>
        <translation>La caméra n’a pas de paramètre DeviceTemperature&#xa0;: elle n’indique pas sa température. La fiche technique précise si un firmware plus récent le permet.</translation>
    </message>
</context>
<context>
    <name>ThresholdBox</name>
    <message>
        <source>&amp;Warning at</source>
        <translation>A&amp;vertissement à</translation>
    </message>
    <message>
        <source>&amp;Alarm at</source>
        <translation>&amp;Alarme à</translation>
    </message>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source>A warning or an alarm ends when the temperature is so far below its threshold again.</source>
        <translation>Un avertissement ou une alarme prend fin lorsque la température est redescendue d’autant sous son seuil.</translation>
    </message>
    <message>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <source>Ends &amp;below by</source>
        <translation>&amp;Hystérésis</translation>
    </message>
    <message>
        <source>The program notifies you, also while its window is behind others, when a place gets this warm.</source>
        <translation>Le programme vous avertit, même si sa fenêtre est masquée, lorsqu’un emplacement atteint cette température.</translation>
    </message>
</context>
<context>
    <name>ThresholdControl</name>
    <message>
        <source>How far a pixel deviates from its neighbours before it counts as a defect, in standard deviations of the good pixels. At 6 σ, less than one good pixel per megapixel is taken for a defect.</source>
        <translation>Écart d’un pixel à ses voisins à partir duquel il est considéré comme défectueux, en écarts types des bons pixels. À 6&#xa0;σ, moins d’un bon pixel par mégapixel est pris pour un défaut.</translation>
    </message>
    <message>
        <source>&amp;Threshold</source>
        <translation>Se&amp;uil</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
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
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Copy path</source>
        <translation>&amp;Copier le chemin</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist any more.</source>
        <translation>«&#xa0;%1&#xa0;» n’existe plus.</translation>
    </message>
    <message>
        <source>No program of this desktop opens &quot;%1&quot;.</source>
        <translation>Aucun programme de ce bureau n’ouvre «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and its sidecar?</source>
        <translation>Supprimer «&#xa0;%1&#xa0;» et son fichier annexe&#xa0;?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: %2.</source>
        <translation>Impossible de supprimer «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>Ouvrir le &amp;dossier</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Captures</translation>
    </message>
    <message>
        <source>Delete snapshot</source>
        <translation>Supprimer la capture</translation>
    </message>
</context>
<context>
    <name>ToolStarter</name>
    <message>
        <source>%1 cannot be started. Check that the file exists and is executable.</source>
        <translation>Impossible de démarrer %1. Vérifiez que le fichier existe et qu’il est exécutable.</translation>
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
        <translation>&amp;Autre caméra…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>À &amp;propos de %1</translation>
    </message>
    <message>
        <source>The guide cannot be opened: %1</source>
        <translation>Impossible d’ouvrir le guide&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 of Corvix X, version %2.

For industrial cameras of any vendor. MIT licence.</source>
        <translation>%1 de Corvix X, version %2.

Pour caméras industrielles de tous fabricants. Licence MIT.</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>Recherche de caméras…</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Ouverture de «&#xa0;%1&#xa0;»…</translation>
    </message>
</context>
<context>
    <name>UserSetControl</name>
    <message>
        <source>Reading the user sets</source>
        <translation>Lecture des jeux de paramètres</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>Caméra en observation seule&#xa0;: rien n’est modifiable.</translation>
    </message>
    <message>
        <source>The camera does not offer this.</source>
        <translation>La caméra ne propose pas cette fonction.</translation>
    </message>
    <message>
        <source>The camera does not let the set for power-on be chosen.</source>
        <translation>La caméra ne permet pas de choisir le jeu de démarrage.</translation>
    </message>
    <message>
        <source>The camera does not allow this set at power-on.</source>
        <translation>La caméra n’admet pas ce jeu au démarrage.</translation>
    </message>
    <message>
        <source>The camera is only watched, so its user sets cannot be loaded.</source>
        <translation>Caméra en observation seule&#xa0;: ses jeux de paramètres ne peuvent pas être chargés.</translation>
    </message>
    <message>
        <source>Loading &quot;%1&quot;</source>
        <translation>Chargement de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Load user set &quot;%1&quot;</source>
        <translation>Charger le jeu de paramètres «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>Le chargement a été annulé. Rien n’a été modifié.</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was loaded, which changed %n setting(s).</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» a été chargé&#xa0;; %n&#xa0;réglage a été modifié.</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» a été chargé&#xa0;; %n&#xa0;réglages ont été modifiés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation>Enregistrement de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The present settings were saved as &quot;%1&quot;.</source>
        <translation>Les réglages actuels ont été enregistrés dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Choosing &quot;%1&quot; for power-on</source>
        <translation>Choix de «&#xa0;%1&#xa0;» pour le démarrage</translation>
    </message>
    <message>
        <source>Use user set &quot;%1&quot; at power-on</source>
        <translation>Utiliser le jeu «&#xa0;%1&#xa0;» au démarrage</translation>
    </message>
    <message>
        <source>The camera begins with &quot;%1&quot; at power-on.</source>
        <translation>La caméra démarre désormais avec «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>UserSetPanel</name>
    <message>
        <source>&amp;Load…</source>
        <translation>C&amp;harger…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>Enregi&amp;strer…</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>Jeux de paramètres</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>Jeu de paramètres</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>Au démarrage</translation>
    </message>
    <message>
        <source>This camera keeps no user sets.</source>
        <translation>Cette caméra ne mémorise aucun jeu de paramètres.</translation>
    </message>
    <message>
        <source>The user sets are not known yet.</source>
        <translation>Les jeux de paramètres ne sont pas encore connus.</translation>
    </message>
    <message>
        <source>✓ yes</source>
        <translation>✓ oui</translation>
    </message>
    <message>
        <source>Replaces the settings of the camera by those of &quot;%1&quot;.</source>
        <translation>Remplace les réglages de la caméra par ceux de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be loaded.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être chargé.</translation>
    </message>
    <message>
        <source>Stores the present settings as &quot;%1&quot;.</source>
        <translation>Mémorise les réglages actuels dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être enregistré.</translation>
    </message>
    <message>
        <source>Lets the camera begin with &quot;%1&quot;.</source>
        <translation>Fait démarrer la caméra avec «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used at power-on.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être utilisé au démarrage.</translation>
    </message>
    <message>
        <source>Shows how the settings of the camera differ from this set.</source>
        <translation>Affiche en quoi les réglages de la caméra diffèrent de ce jeu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be compared.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être comparé.</translation>
    </message>
    <message>
        <source>Load &quot;%1&quot;? The present settings of the camera are overwritten.</source>
        <translation>Charger «&#xa0;%1&#xa0;»&#xa0;? Les réglages actuels de la caméra seront écrasés.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) differ from those when the camera was opened.</source>
        <translation>
            <numerusform>%n&#xa0;paramètre diffère de l’état à l’ouverture de la caméra.</numerusform>
            <numerusform>%n&#xa0;paramètres diffèrent de l’état à l’ouverture de la caméra.</numerusform>
        </translation>
    </message>
    <message>
        <source>Loading can be undone.</source>
        <translation>Le chargement peut être annulé.</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>Charger le jeu de paramètres</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Charger</translation>
    </message>
    <message>
        <source>Save user set</source>
        <translation>Enregistrer le jeu de paramètres</translation>
    </message>
    <message>
        <source>Save the present settings as &quot;%1&quot;? What is in this set now is overwritten, which cannot be undone.</source>
        <translation>Enregistrer les réglages actuels dans «&#xa0;%1&#xa0;»&#xa0;? Le contenu actuel de ce jeu sera définitivement écrasé.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Use at power-on</source>
        <translation>U&amp;tiliser au démarrage</translation>
    </message>
    <message>
        <source>Comp&amp;are</source>
        <translation>Compar&amp;er</translation>
    </message>
</context>
<context>
    <name>UserSetSource</name>
    <message>
        <source>User set %1</source>
        <translation>Jeu de paramètres %1</translation>
    </message>
    <message>
        <source>The camera has to load the user set %1 to show it. The stream is stopped for this, and your present settings are put back afterwards.</source>
        <translation>Pour afficher le jeu de paramètres %1, la caméra doit le charger. Le flux est arrêté pendant l’opération, puis vos réglages actuels sont restaurés.</translation>
    </message>
    <message>
        <source>Not put back after the user set %1</source>
        <translation>Non restaurés après le jeu de paramètres %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more setting(s) were not put back; the history lists them.</source>
        <translation>
            <numerusform>%n&#xa0;autre réglage n’a pas été restauré&#xa0;; il figure dans l’historique.</numerusform>
            <numerusform>%n&#xa0;autres réglages n’ont pas été restaurés&#xa0;; ils figurent dans l’historique.</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera may still have the settings of the user set. Restore those from the opening.</source>
        <translation>La caméra a peut-être encore les réglages du jeu de paramètres. Restaurez ceux de l’ouverture.</translation>
    </message>
    <message>
        <source>Reading the user set %1</source>
        <translation>Lecture du jeu de paramètres %1</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>Cette caméra n’est pas ouverte en mode contrôle.</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the user set %1? The camera loads the set, changes it and saves it, and then your present settings are put back. The stream is stopped for this.</source>
        <translation>
            <numerusform>Écrire %n&#xa0;réglage dans le jeu de paramètres %1&#xa0;? La caméra charge le jeu, le modifie et l’enregistre, puis vos réglages actuels sont restaurés. Le flux est arrêté pendant l’opération.</numerusform>
            <numerusform>Écrire %n&#xa0;réglages dans le jeu de paramètres %1&#xa0;? La caméra charge le jeu, le modifie et l’enregistre, puis vos réglages actuels sont restaurés. Le flux est arrêté pendant l’opération.</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying to the user set %1</source>
        <translation>Copie vers le jeu de paramètres %1</translation>
    </message>
    <message>
        <source>The copy was cancelled, so the user set was not changed.</source>
        <translation>La copie a été annulée&#xa0;: le jeu de paramètres n’a pas été modifié.</translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message numerus="yes">
        <source>%1 … (%n bytes)</source>
        <translation>
            <numerusform>%1 … (%n&#xa0;octet)</numerusform>
            <numerusform>%1 … (%n&#xa0;octets)</numerusform>
        </translation>
    </message>
    <message>
        <source>not in this camera</source>
        <translation>absent de cette caméra</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>indisponible</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>can only be written</source>
        <translation>écriture seule</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Running …</source>
        <translation>Exécution …</translation>
    </message>
</context>
<context>
    <name>VideoWriter</name>
    <message>
        <source>videos need the program ffmpeg, which is not installed; install it with: %1</source>
        <translation>les vidéos nécessitent le programme ffmpeg, qui n’est pas installé&#xa0;; pour l’installer&#xa0;: %1</translation>
    </message>
    <message>
        <source>the images are too small for a video</source>
        <translation>les images sont trop petites pour une vidéo</translation>
    </message>
    <message>
        <source>the format of the images has changed, which a video cannot contain; start another recording</source>
        <translation>le format des images a changé, ce qu’une vidéo ne peut pas contenir&#xa0;; lancez un nouvel enregistrement</translation>
    </message>
</context>
<context>
    <name>ViewerActions</name>
    <message>
        <source>&amp;Live</source>
        <translation>En &amp;direct</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>Enregistrer une &amp;capture</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>Enregistrer une &amp;séquence</translation>
    </message>
    <message>
        <source>&amp;Crosshair</source>
        <translation>Réti&amp;cule</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>Plei&amp;n écran</translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation>&amp;Nouvelle fenêtre</translation>
    </message>
    <message>
        <source>All &amp;features (Camera Setup)</source>
        <translation>&amp;Tous les paramètres (Camera Setup)</translation>
    </message>
    <message>
        <source>&amp;Fit into the window</source>
        <translation>&amp;Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>&amp;Taille réelle</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Z&amp;oom arrière</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>Rotation à &amp;gauche</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>Rotation à &amp;droite</translation>
    </message>
    <message>
        <source>Mirror &amp;horizontally</source>
        <translation>Miroir &amp;horizontal</translation>
    </message>
    <message>
        <source>Mirror &amp;vertically</source>
        <translation>Miroir &amp;vertical</translation>
    </message>
    <message>
        <source>&amp;Move the picture</source>
        <translation>Dé&amp;placer l’image</translation>
    </message>
    <message>
        <source>Draw a re&amp;gion</source>
        <translation>Tracer une &amp;région</translation>
    </message>
    <message>
        <source>+, -</source>
        <translation>+, -</translation>
    </message>
    <message>
        <source>Zoom in or out</source>
        <translation>Zoom avant ou arrière</translation>
    </message>
    <message>
        <source>0, 1</source>
        <translation>0, 1</translation>
    </message>
    <message>
        <source>Fit the picture, or show it at its own size</source>
        <translation>Ajuster l’image ou l’afficher en taille réelle</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Touches fléchées</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Remove the drawn region or line</source>
        <translation>Effacer la région ou la ligne tracée</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Molette</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Zoomer sous le pointeur</translation>
    </message>
    <message>
        <source>Move the picture, whatever the tool</source>
        <translation>Déplacer l’image, quel que soit l’outil</translation>
    </message>
    <message>
        <source>Double click</source>
        <translation>Double-clic</translation>
    </message>
    <message>
        <source>Change between the fitted picture and its own size</source>
        <translation>Basculer entre image ajustée et taille réelle</translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>&amp;Figer</translation>
    </message>
    <message>
        <source>Mark clipped &amp;pixels</source>
        <translation>Marquer le&amp;s pixels écrêtés</translation>
    </message>
    <message>
        <source>Gri&amp;d</source>
        <translation>Grill&amp;e</translation>
    </message>
    <message>
        <source>Draw a li&amp;ne</source>
        <translation>Tracer une &amp;ligne</translation>
    </message>
    <message>
        <source>Move the picture; in larger steps with Shift</source>
        <translation>Déplacer l’image&#xa0;; avec Maj, d’un plus grand pas</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inser</translation>
    </message>
    <message>
        <source>Draw a region or a line in the middle</source>
        <translation>Tracer une région ou une ligne au centre</translation>
    </message>
    <message>
        <source>Ctrl and arrow keys</source>
        <translation>Ctrl + touches fléchées</translation>
    </message>
    <message>
        <source>Move the drawn region or line; resize it with Shift</source>
        <translation>Déplacer la région ou la ligne tracée&#xa0;; avec Maj, la redimensionner</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Finish the region for the camera</source>
        <translation>Valider la région pour la caméra</translation>
    </message>
    <message>
        <source>Middle button, or Space and drag</source>
        <translation>Bouton central ou Espace + glisser</translation>
    </message>
    <message>
        <source>&amp;Corrections…</source>
        <translation>Correct&amp;ions…</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Image Viewer</source>
        <translation>Visionneuse d’images</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Captures</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Caméra</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Panneaux</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Pixel under the pointer</source>
        <translation>Pixel sous le pointeur</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>La caméra n’envoie pas d’images. %1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off in the panel &quot;Camera&quot;.</source>
        <translation>La caméra attend un déclenchement. Déclenchez-la ou désactivez le mode de déclenchement dans le panneau «&#xa0;Caméra&#xa0;».</translation>
    </message>
    <message>
        <source>Draw the region that the camera shall send.</source>
        <translation>Tracez la région que la caméra doit envoyer.</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>Flux</translation>
    </message>
    <message>
        <source>The stream is stopped. Press %1 to start it.</source>
        <translation>Le flux est arrêté. Appuyez sur %1 pour le démarrer.</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The panel &quot;Stream&quot; may say why.</source>
        <translation>Aucune image reçue pour l’instant. Le panneau «&#xa0;Flux&#xa0;» peut en indiquer la cause.</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The program that controls the camera may not stream.</source>
        <translation>Aucune image n’est encore arrivée. Le programme qui contrôle la caméra n’a peut-être pas démarré le flux.</translation>
    </message>
    <message>
        <source>Not corrected</source>
        <translation>Non corrigé</translation>
    </message>
    <message>
        <source>Corrected</source>
        <translation>Corrigé</translation>
    </message>
</context>
<context>
    <name>WhiteBalanceCall</name>
    <message>
        <source>The camera has no white balance ratios.</source>
        <translation>La caméra n’a pas de facteurs de balance des blancs.</translation>
    </message>
</context>
</TS>
