<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>ComparisonCounts</name>
    <message numerus="yes">
        <source>No difference in %n setting(s).</source>
        <translation>
            <numerusform>No difference in %n setting.</numerusform>
            <numerusform>No difference in %n settings.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 setting(s) differ.</source>
        <translation>
            <numerusform>%n of %1 settings differs.</numerusform>
            <numerusform>%n of %1 settings differ.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) belong to one camera or one moment.</source>
        <translation>
            <numerusform>%n more difference belongs to one camera or one moment.</numerusform>
            <numerusform>%n more differences belong to one camera or one moment.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) that belong to one camera or one moment are hidden.</source>
        <translation>
            <numerusform>%n more difference that belongs to one camera or one moment is hidden.</numerusform>
            <numerusform>%n more differences that belong to one camera or one moment are hidden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyActions</name>
    <message numerus="yes">
        <source>%n setting(s) were copied.</source>
        <translation>
            <numerusform>%n setting was copied.</numerusform>
            <numerusform>%n settings were copied.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s) were reported.</source>
        <translation>
            <numerusform>%n problem was reported.</numerusform>
            <numerusform>%n problems were reported.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DefectList</name>
    <message numerus="yes">
        <source>%n pixel(s)</source>
        <translation>
            <numerusform>%n pixel</numerusform>
            <numerusform>%n pixels</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DefectTexts</name>
    <message numerus="yes">
        <source>%n defect pixel(s) found.</source>
        <translation>
            <numerusform>%n defect pixel found.</numerusform>
            <numerusform>%n defect pixels found.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Encoder</name>
    <message numerus="yes">
        <source>ffmpeg has not accepted an image for %n second(s)</source>
        <translation>
            <numerusform>ffmpeg has not accepted an image for %n second</numerusform>
            <numerusform>ffmpeg has not accepted an image for %n seconds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not ended after %n second(s)</source>
        <translation>
            <numerusform>ffmpeg has not ended after %n second</numerusform>
            <numerusform>ffmpeg has not ended after %n seconds</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FeatureFacts</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n character(s)</source>
        <translation>
            <numerusform>%n character</numerusform>
            <numerusform>%n characters</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message numerus="yes">
        <source>Write %n setting(s) into the file %1? The other settings stay, but comments and lines that cannot be read are lost.</source>
        <translation>
            <numerusform>Write %n setting into the file %1? The other settings stay, but comments and lines that cannot be read are lost.</numerusform>
            <numerusform>Write %n settings into the file %1? The other settings stay, but comments and lines that cannot be read are lost.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterHint</name>
    <message numerus="yes">
        <source>%n feature(s) are hidden by the level %1.</source>
        <translation>
            <numerusform>%n feature is hidden by the level %1.</numerusform>
            <numerusform>%n features are hidden by the level %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FlatFieldTexts</name>
    <message numerus="yes">
        <source>The numbers after the correction are those of %n other image(s).</source>
        <translation>
            <numerusform>The numbers after the correction are those of %n other image.</numerusform>
            <numerusform>The numbers after the correction are those of %n other images.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s) deviate strongly and got the gain of their neighbours; Pixel Repair replaces them.</source>
        <translation>
            <numerusform>%n pixel deviate strongly and got the gain of their neighbours; Pixel Repair replaces them.</numerusform>
            <numerusform>%n pixels deviate strongly and got the gain of their neighbours; Pixel Repair replaces them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The gain of %n pixel(s) was limited.</source>
        <translation>
            <numerusform>The gain of %n pixel was limited.</numerusform>
            <numerusform>The gain of %n pixels was limited.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HexView</name>
    <message numerus="yes">
        <source>The last %n byte(s) of the clipboard did not fit.</source>
        <translation>
            <numerusform>The last %n byte of the clipboard did not fit.</numerusform>
            <numerusform>The last %n bytes of the clipboard did not fit.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LoadText</name>
    <message numerus="yes">
        <source>%n setting(s) cannot be loaded.</source>
        <translation>
            <numerusform>%n setting cannot be loaded.</numerusform>
            <numerusform>%n settings cannot be loaded.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) failed.</source>
        <translation>
            <numerusform>%n setting failed.</numerusform>
            <numerusform>%n settings failed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will change.</source>
        <translation>
            <numerusform>%n setting will change.</numerusform>
            <numerusform>%n settings will change.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) changed.</source>
        <translation>
            <numerusform>%n setting changed.</numerusform>
            <numerusform>%n settings changed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will be overruled by others.</source>
        <translation>
            <numerusform>%n setting will be overruled by others.</numerusform>
            <numerusform>%n settings will be overruled by others.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were overruled by others.</source>
        <translation>
            <numerusform>%n setting was overruled by others.</numerusform>
            <numerusform>%n settings were overruled by others.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already have the value.</source>
        <translation>
            <numerusform>%n setting already has the value.</numerusform>
            <numerusform>%n settings already have the value.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already had the value.</source>
        <translation>
            <numerusform>%n setting already had the value.</numerusform>
            <numerusform>%n settings already had the value.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) cannot be read.</source>
        <translation>
            <numerusform>%n line cannot be read.</numerusform>
            <numerusform>%n lines cannot be read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LossAdvice</name>
    <message numerus="yes">
        <source>No buffer was free for %n image(s). This computer is too slow at present: close other programs, record to a faster disk, or reduce the frame rate or the region.</source>
        <translation>
            <numerusform>No buffer was free for %n image. This computer is too slow at present: close other programs, record to a faster disk, or reduce the frame rate or the region.</numerusform>
            <numerusform>No buffer was free for %n images. This computer is too slow at present: close other programs, record to a faster disk, or reduce the frame rate or the region.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were lost or damaged in the last seconds.</source>
        <translation>
            <numerusform>%n image was lost or damaged in the last seconds.</numerusform>
            <numerusform>%n images were lost or damaged in the last seconds.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were incomplete in the last seconds.</source>
        <translation>
            <numerusform>%n image was incomplete in the last seconds.</numerusform>
            <numerusform>%n images were incomplete in the last seconds.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OtherCameraSource</name>
    <message numerus="yes">
        <source>Write %n setting(s) to the camera %1? This cannot be undone here.</source>
        <translation>
            <numerusform>Write %n setting to the camera %1? This cannot be undone here.</numerusform>
            <numerusform>Write %n settings to the camera %1? This cannot be undone here.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecordingSummary</name>
    <message numerus="yes">
        <source>%n image(s) recorded in %1 to &quot;%2&quot;.</source>
        <translation>
            <numerusform>%n image recorded in %1 to &quot;%2&quot;.</numerusform>
            <numerusform>%n images recorded in %1 to &quot;%2&quot;.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) never arrived from the camera</source>
        <translation>
            <numerusform>%n image never arrived from the camera</numerusform>
            <numerusform>%n images never arrived from the camera</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) found no free buffer</source>
        <translation>
            <numerusform>%n image found no free buffer</numerusform>
            <numerusform>%n images found no free buffer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be kept because the disk or the encoder is too slow</source>
        <translation>
            <numerusform>%n image could not be kept because the disk or the encoder is too slow</numerusform>
            <numerusform>%n images could not be kept because the disk or the encoder is too slow</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be written</source>
        <translation>
            <numerusform>%n image could not be written</numerusform>
            <numerusform>%n images could not be written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n recorded image(s) are incomplete</source>
        <translation>
            <numerusform>%n recorded image is incomplete</numerusform>
            <numerusform>%n recorded images are incomplete</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) waiting</source>
        <translation>
            <numerusform>%n image waiting</numerusform>
            <numerusform>%n images waiting</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RegisterEditor</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RepairWindow</name>
    <message numerus="yes">
        <source>%n dark image(s) taken.</source>
        <translation>
            <numerusform>%n dark image taken.</numerusform>
            <numerusform>%n dark images taken.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message numerus="yes">
        <source>%n setting(s) were saved to &quot;%1&quot;.</source>
        <translation>
            <numerusform>%n setting was saved to &quot;%1&quot;.</numerusform>
            <numerusform>%n settings were saved to &quot;%1&quot;.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s):</source>
        <translation>
            <numerusform>%n remark:</numerusform>
            <numerusform>%n remarks:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message numerus="yes">
        <source>%n feature(s). The settings at opening are being read.</source>
        <translation>
            <numerusform>%n feature. The settings at opening are being read.</numerusform>
            <numerusform>%n features. The settings at opening are being read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n feature</numerusform>
            <numerusform>%n features</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed since opening</source>
        <translation>
            <numerusform>%n changed since opening</numerusform>
            <numerusform>%n changed since opening</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SideBox</name>
    <message numerus="yes">
        <source>%n setting(s), %1</source>
        <translation>
            <numerusform>%n setting, %1</numerusform>
            <numerusform>%n settings, %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n note</numerusform>
            <numerusform>%n notes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message numerus="yes">
        <source>At most %n character(s)</source>
        <translation>
            <numerusform>At most %n character</numerusform>
            <numerusform>At most %n characters</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserSetControl</name>
    <message numerus="yes">
        <source>&quot;%1&quot; was loaded, which changed %n setting(s).</source>
        <translation>
            <numerusform>&quot;%1&quot; was loaded, which changed %n setting.</numerusform>
            <numerusform>&quot;%1&quot; was loaded, which changed %n settings.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserSetPanel</name>
    <message numerus="yes">
        <source>%n feature(s) differ from those when the camera was opened.</source>
        <translation>
            <numerusform>%n feature differs from those when the camera was opened.</numerusform>
            <numerusform>%n features differ from those when the camera was opened.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserSetSource</name>
    <message numerus="yes">
        <source>%n more setting(s) were not put back; the history lists them.</source>
        <translation>
            <numerusform>%n more setting was not put back; the history lists them.</numerusform>
            <numerusform>%n more settings were not put back; the history lists them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the user set %1? The camera loads the set, changes it and saves it, and then your present settings are put back. The stream is stopped for this.</source>
        <translation>
            <numerusform>Write %n setting into the user set %1? The camera loads the set, changes it and saves it, and then your present settings are put back. The stream is stopped for this.</numerusform>
            <numerusform>Write %n settings into the user set %1? The camera loads the set, changes it and saves it, and then your present settings are put back. The stream is stopped for this.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message numerus="yes">
        <source>%1 … (%n bytes)</source>
        <translation>
            <numerusform>%1 … (%n byte)</numerusform>
            <numerusform>%1 … (%n bytes)</numerusform>
        </translation>
    </message>
</context>
</TS>
