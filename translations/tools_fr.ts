<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
        <source>%1 is lost since %2. %3 It continues by itself when the camera is back.</source>
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
        <source>No single camera matches &quot;%1&quot;. It is opened when it is plugged in.</source>
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
        <source>No picture since %1.</source>
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
</TS>
