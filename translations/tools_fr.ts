<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
    <name>FeatureEditor</name>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
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
    <name>EditorNote</name>
    <message>
        <source>Discard</source>
        <translation>Annuler</translation>
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
    <name>LiveStream</name>
    <message>
        <source>The stream of the camera has ended.</source>
        <translation>Le flux de la caméra s’est arrêté.</translation>
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
</context>
<context>
    <name>WhiteBalanceCall</name>
    <message>
        <source>The camera has no white balance ratios.</source>
        <translation>La caméra n’a pas de facteurs de balance des blancs.</translation>
    </message>
</context>
</TS>
