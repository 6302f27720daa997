#include "tools/imageviewer/panel/PanelLayout.h"

#include <QCoreApplication>

namespace {

using Slider = NumberEditor::SliderUse;

/// The texts of the panel, and the function that translates them.
class PanelText
{
    Q_DECLARE_TR_FUNCTIONS(CameraPanel)
};

PanelRow row(const QString &label, const QStringList &names, Slider slider = Slider::Never)
{
    return {label, names, slider, false};
}

PanelRow selectorRow(const QString &label, const QString &name)
{
    return {label, {name}, Slider::Never, true};
}

/// Returns the names in the order in which cameras used them, the present one first: without an addition,
/// with "Abs" for a value with a unit, and with "Raw" for the number in the register.
QStringList withOldNames(const QString &name)
{
    return {name, name + QStringLiteral("Abs"), name + QStringLiteral("Raw")};
}

PanelGroup exposureGroup()
{
    return {QStringLiteral("exposure"), PanelText::tr("Exposure"),
        {row(PanelText::tr("Exposure time"), withOldNames(QStringLiteral("ExposureTime")), Slider::Always),
            row(PanelText::tr("Automatic"), {QStringLiteral("ExposureAuto")})},
        true};
}

PanelGroup gainGroup()
{
    return {QStringLiteral("gain"), PanelText::tr("Gain"),
        {selectorRow(PanelText::tr("Channel"), QStringLiteral("GainSelector")),
            row(PanelText::tr("Gain"), withOldNames(QStringLiteral("Gain")), Slider::Always),
            row(PanelText::tr("Automatic"), {QStringLiteral("GainAuto")})},
        true};
}

PanelGroup toneGroup()
{
    return {QStringLiteral("tone"), PanelText::tr("Black level and gamma"),
        {selectorRow(PanelText::tr("Channel"), QStringLiteral("BlackLevelSelector")),
            row(PanelText::tr("Black level"), withOldNames(QStringLiteral("BlackLevel")), Slider::Always),
            row(PanelText::tr("Automatic"), {QStringLiteral("BlackLevelAuto")}),
            row(PanelText::tr("Apply gamma"), {QStringLiteral("GammaEnable")}),
            row(PanelText::tr("Gamma"), withOldNames(QStringLiteral("Gamma")), Slider::Always)}};
}

PanelGroup whiteBalanceGroup()
{
    return {QStringLiteral("whitebalance"), PanelText::tr("White balance"),
        {row(PanelText::tr("Automatic"), {QStringLiteral("BalanceWhiteAuto")}),
            selectorRow(PanelText::tr("Colour"), QStringLiteral("BalanceRatioSelector")),
            row(PanelText::tr("Factor"), withOldNames(QStringLiteral("BalanceRatio")), Slider::Always)}};
}

PanelGroup frameRateGroup()
{
    return {QStringLiteral("framerate"), PanelText::tr("Frame rate"),
        {row(PanelText::tr("Set the frame rate"),
             {QStringLiteral("AcquisitionFrameRateEnable"), QStringLiteral("AcquisitionFrameRateEnabled")}),
            row(PanelText::tr("Frame rate"), withOldNames(QStringLiteral("AcquisitionFrameRate")),
                Slider::Always),
            row(PanelText::tr("Resulting rate"),
                {QStringLiteral("ResultingFrameRate"), QStringLiteral("AcquisitionResultingFrameRate"),
                    QStringLiteral("ResultingFrameRateAbs")})},
        true};
}

PanelGroup lineRateGroup()
{
    return {QStringLiteral("linerate"), PanelText::tr("Line scan"),
        {row(PanelText::tr("Set the line rate"), {QStringLiteral("AcquisitionLineRateEnable")}),
            row(PanelText::tr("Line rate"), withOldNames(QStringLiteral("AcquisitionLineRate")),
                Slider::Always),
            row(PanelText::tr("Resulting rate"),
                {QStringLiteral("ResultingLineRate"), QStringLiteral("ResultingLineRateAbs")})},
        true};
}

PanelGroup formatGroup()
{
    return {QStringLiteral("format"), PanelText::tr("Pixel format"),
        {row(PanelText::tr("Pixel format"), {QStringLiteral("PixelFormat")})}, true};
}

PanelGroup regionGroup()
{
    return {regionGroupKey(), PanelText::tr("Region of interest"),
        {row(PanelText::tr("Width"), {QStringLiteral("Width")}),
            row(PanelText::tr("Height"), {QStringLiteral("Height")}),
            row(PanelText::tr("Offset X"), {QStringLiteral("OffsetX")}),
            row(PanelText::tr("Offset Y"), {QStringLiteral("OffsetY")})}};
}

PanelGroup binningGroup()
{
    return {QStringLiteral("binning"), PanelText::tr("Binning and mirroring"),
        {selectorRow(PanelText::tr("Binning location"), QStringLiteral("BinningSelector")),
            row(PanelText::tr("Horizontal binning"), {QStringLiteral("BinningHorizontal")}),
            row(PanelText::tr("Horizontal mode"), {QStringLiteral("BinningHorizontalMode")}),
            row(PanelText::tr("Vertical binning"), {QStringLiteral("BinningVertical")}),
            row(PanelText::tr("Vertical mode"), {QStringLiteral("BinningVerticalMode")}),
            row(PanelText::tr("Horizontal decimation"), {QStringLiteral("DecimationHorizontal")}),
            row(PanelText::tr("Vertical decimation"), {QStringLiteral("DecimationVertical")}),
            row(PanelText::tr("Mirror horizontally"), {QStringLiteral("ReverseX")}),
            row(PanelText::tr("Mirror vertically"), {QStringLiteral("ReverseY")})}};
}

PanelGroup triggerGroup()
{
    return {QStringLiteral("trigger"), PanelText::tr("Trigger"),
        {selectorRow(PanelText::tr("Trigger type"), QStringLiteral("TriggerSelector")),
            row(PanelText::tr("Mode"), {QStringLiteral("TriggerMode")}),
            row(PanelText::tr("Source"), {QStringLiteral("TriggerSource")}),
            row(PanelText::tr("Activation"), {QStringLiteral("TriggerActivation")}),
            row(PanelText::tr("Delay"), withOldNames(QStringLiteral("TriggerDelay"))),
            row(PanelText::tr("Trigger now"), {QStringLiteral("TriggerSoftware")})}};
}

PanelGroup userSetGroup()
{
    return {QStringLiteral("userset"), PanelText::tr("User set"),
        {row(PanelText::tr("User set"), {userSetSelectorName()}),
            row(PanelText::tr("Load"), {QStringLiteral("UserSetLoad")}),
            row(PanelText::tr("Save"), {userSetSaveName()}),
            row(PanelText::tr("At power-on"),
                {QStringLiteral("UserSetDefault"), QStringLiteral("UserSetDefaultSelector")})}};
}

} // namespace

QString regionGroupKey()
{
    return QStringLiteral("region");
}

QString userSetSelectorName()
{
    return QStringLiteral("UserSetSelector");
}

QString userSetSaveName()
{
    return QStringLiteral("UserSetSave");
}

QVector<PanelGroup> panelGroups()
{
    return {exposureGroup(), gainGroup(), toneGroup(), whiteBalanceGroup(), lineRateGroup(), frameRateGroup(),
        formatGroup(), regionGroup(), binningGroup(), triggerGroup(), userSetGroup()};
}
