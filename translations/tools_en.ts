<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
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
</TS>
