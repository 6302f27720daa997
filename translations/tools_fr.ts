<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>CameraChooser</name>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search by name, model, serial number or connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No camera matches “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cameras: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraConnection</name>
    <message>
        <source>The camera is not open.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraFinder</name>
    <message>
        <source>Corvix X is not installed completely: the program CvxProducerHost is missing or not executable. Install the package again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera system cannot be started (error %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cameras cannot be listed (error %1).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraPanel</name>
    <message>
        <source>All features (Camera Setup)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw on picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a rectangle over the part of the picture that the camera shall send.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving replaces what is stored in the camera as “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are watching this camera, so nothing can be changed here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black level and gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the frame rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Possible rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the line rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region of interest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Binning and mirroring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Binning in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal binning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical binning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal decimation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical decimation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraTable</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CollapsibleGroup</name>
    <message>
        <source>Open group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed group</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandButton</name>
    <message>
        <source>%1 …</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConnectionBar</name>
    <message>
        <source>&amp;Watch only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Other camera…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the settings of the camera and how they change, without changing them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is in use. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watching %1: its settings are shown as another program changes them. Only that program receives pictures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Lost at %2; it continues by itself when the camera is back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContrastHandle</name>
    <message>
        <source>%1: drag it, or use the arrow keys. A double click resets it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Numbers of the stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy as text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies all numbers to the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command that corrects the cause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy c&amp;ommand</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Mark clipped pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast (bilinear)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fine (along edges)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the missing colours of a Bayer picture are found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows overexposed pixels in red and underexposed ones in blue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> µm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What one pixel shows of the object. Lengths and the scale need this number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Demosaicing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One pixel is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on something grey in the picture. Its surroundings become grey on the screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset the white balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiplies the white balance of the camera by these factors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R %1 G %2 B %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The factors of red, green and blue on the screen.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Encoder</name>
    <message>
        <source>ffmpeg cannot be started: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not taken a picture for %n second(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not ended for %n second(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>ffmpeg has failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FeatureEditor</name>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FeatureNote</name>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileNamePattern</name>
    <message>
        <source>name or model of the camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>serial number of the camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date of the image, for example 2026-01-31</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time of the image, for example 23-59-59</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>next free number; {number:4} has at least four digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame ID of the image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixel format of the image, for example Mono8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A brace is missing; placeholders look like {number}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name must not contain &quot;/&quot;; choose the folder above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{%1} is no placeholder; there are %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{%1} has to be like {number:4}, with 1 to %2 digits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name may contain these placeholders:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilesPanel</name>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder for pictures and recordings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File &amp;name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format of pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG, 16 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG, 8 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIFF, measured values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raw bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the values of the picture that is shown, with a sidecar that contains the camera&apos;s settings. Contrast, white balance and marks of the display are not part of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format of recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BigTIFF, measured values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raw bytes with an index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video, 8 bits, H.264 (MP4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video, 8 bits, lossless (MKV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops the recording before less space than this is left on the disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> images/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images per second when the video is played. Otherwise, it plays as fast as it was recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder for pictures and recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Videos need the program ffmpeg, which is not installed. Install it with: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;top recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera is gone; the recording goes on when it is back. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindingCard</name>
    <message>
        <source>In order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the command, which you can paste into a terminal.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistogramWidget</name>
    <message>
        <source>&lt; %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 dark, %2 bright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value %1
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bright</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageCanvas</name>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 by %2 pixels, shown at %3 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LengthText</name>
    <message>
        <source>%1 px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 µm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LiveStream</name>
    <message>
        <source>The stream of the camera has ended.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockText</name>
    <message>
        <source>Not available at present.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available because of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available while %1 is %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked by the camera.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controlled by %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked while %1 is %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This camera does not have the feature.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera only reports this value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked while the camera streams.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LossAdvice</name>
    <message>
        <source>Packets are lost between camera and computer: check cable and switch, or reduce the frame rate or the region.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfers are lost between camera and computer: check the cable, connect the camera without a hub, or reduce the frame rate or the region.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection or the computer is too slow: reduce the frame rate or the region, or close other programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>No buffer was free for %n image(s). This computer is too slow at present: close other programs, record to a faster disk, or reduce the frame rate or the region.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were lost or damaged in the last seconds.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were incomplete in the last seconds.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeasuredComponent</name>
    <message>
        <source>Grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Third</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeasuringPanel</name>
    <message>
        <source>The picture has no colours to balance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This place is too dark for a white balance. Pick a brighter one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This place is overexposed. Pick a darker one, or reduce the exposure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawn region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measured area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where histogram and statistics are measured. Draw a region in the picture to measure it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the histogram logarithmically, so that rare values can be seen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spreads the values of the picture from black to white. Only the display changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset the contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the statistics to the clipboard, for a table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pixel format is not known, so bytes are measured.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NoCameraPage</name>
    <message>
        <source>Connect a camera and switch it on. It appears here by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what is in order, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The checks are running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Findings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking producers, network, GigE and USB. This takes some seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The checks have found nothing to correct.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Things to correct: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumberEditor</name>
    <message>
        <source>“%1” is not a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The nearest value that the camera allows is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, in steps of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureReadout</name>
    <message>
        <source>x %1, y %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>raw %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shown %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileBox</name>
    <message>
        <source>Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawn line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line of the profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row and column are those of the pointer in the picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line profile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileWidget</name>
    <message>
        <source>Line profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel %1
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no line to measure.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RateGraph</name>
    <message>
        <source>Images per second and losses of the last minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60 s ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30 s ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lost or incomplete/s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingControl</name>
    <message>
        <source>no pictures arrive; start the live picture first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the camera was closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It ended because the limit of free space was reached.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingSummary</name>
    <message>
        <source>The recording did not begin: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) recorded in %1 to &quot;%2&quot;.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The recording ended early: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No image is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera was gone for a while.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image format changed during the recording; the file describes each image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) never arrived from the camera</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) found no free buffer</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be kept because the disk or the encoder is too slow</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be written</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n recorded image(s) are incomplete</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Missing: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; </source>
        <comment>between parts of a list</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>disk space</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) waiting</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RegionCall</name>
    <message>
        <source>The camera does not report its region.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera&apos;s region has changed since it was drawn. Draw it again on the present picture.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShortcutPage</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What they do</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapshotSaver</name>
    <message>
        <source>There is no picture to save yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture was not saved, because earlier ones still wait for the disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture was not saved: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatisticsTable</name>
    <message>
        <source>Component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The deviation is the standard deviation.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusNumbers</name>
    <message>
        <source>Images per second and image data per second that arrive from the camera.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffers: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No losses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was lost since the camera was opened.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StreamNumbers</name>
    <message>
        <source>Delivered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images that arrived from the camera.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images that were drawn in the window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skipped for display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images that were not drawn because the screen is slower than the camera. They are not lost: recordings contain them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delivered images with missing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images that never arrived, by gaps in the frame IDs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underruns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images that were lost because no buffer was free: this computer was too slow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images per second during the last second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image data per second during the last second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffers in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed of the connection that the camera reports.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Packet size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the packets of a GigE camera.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resent packets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Packets that the camera has sent a second time because they were lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continued after a loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How often the camera was gone and the stream went on when it was back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>rate and data rate</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 without a buffer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>buffers</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name and value</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 images/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Mbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not reported</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ThumbnailStrip</name>
    <message>
        <source>%1
%2 · %3</source>
        <comment>name, size and time of a file</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program of this desktop opens &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and its sidecar?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolStarter</name>
    <message>
        <source>%1 cannot be started. Check that the file exists and is executable.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolWindow</name>
    <message>
        <source>Searching for cameras …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening %1 …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Other camera…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The guide cannot be opened: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of Corvix X, version %2.

For industrial cameras of any vendor. MIT licence.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VideoWriter</name>
    <message>
        <source>videos need the program ffmpeg, which is not installed; install it with: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the images are too small for a video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the format of the images has changed, which a video cannot contain; start another recording</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewerActions</name>
    <message>
        <source>&amp;Live</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Freeze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mark clipped pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Crosshair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All &amp;features (Camera Setup)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fit into the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror &amp;horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror &amp;vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw a re&amp;gion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw a &amp;line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+, -</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in or out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0, 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit the picture, or show it at its own size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the picture; with Shift, further</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the drawn region or line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle button, Space and drag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the picture, whatever the tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change between the fitted picture and its own size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Image Viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel under the pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera is stopped. Press %1 to start it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off in the panel &quot;Camera&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture has arrived yet. The panel &quot;Numbers&quot; may say why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the region that the camera shall send.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WhiteBalanceCall</name>
    <message>
        <source>The camera has no factors for its colours.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
