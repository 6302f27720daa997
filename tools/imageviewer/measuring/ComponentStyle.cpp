#include "tools/imageviewer/measuring/ComponentStyle.h"

#include <QCoreApplication>

#include <array>

namespace {

struct ComponentRow
{
    MeasuredComponent component;
    const char *name;
    QRgb color;
};

constexpr std::array componentRows = {
    ComponentRow{MeasuredComponent::Grey, QT_TRANSLATE_NOOP("MeasuredComponent", "Grey"), 0xff94a3b8},
    ComponentRow{MeasuredComponent::Red, QT_TRANSLATE_NOOP("MeasuredComponent", "Red"), 0xfff87171},
    ComponentRow{MeasuredComponent::Green, QT_TRANSLATE_NOOP("MeasuredComponent", "Green"), 0xff4ade80},
    ComponentRow{MeasuredComponent::Blue, QT_TRANSLATE_NOOP("MeasuredComponent", "Blue"), 0xff60a5fa},
    ComponentRow{MeasuredComponent::Alpha, QT_TRANSLATE_NOOP("MeasuredComponent", "Alpha"), 0xffe8edf2},
    ComponentRow{MeasuredComponent::Luma, QT_TRANSLATE_NOOP("MeasuredComponent", "Luma"), 0xff94a3b8},
    ComponentRow{MeasuredComponent::ChromaBlue, QT_TRANSLATE_NOOP("MeasuredComponent", "Cb"), 0xff60a5fa},
    ComponentRow{MeasuredComponent::ChromaRed, QT_TRANSLATE_NOOP("MeasuredComponent", "Cr"), 0xfff87171},
    ComponentRow{MeasuredComponent::First, QT_TRANSLATE_NOOP("MeasuredComponent", "First"), 0xff94a3b8},
    ComponentRow{MeasuredComponent::Second, QT_TRANSLATE_NOOP("MeasuredComponent", "Second"), 0xfffbbf24},
    ComponentRow{MeasuredComponent::Third, QT_TRANSLATE_NOOP("MeasuredComponent", "Third"), 0xff22d3ee},
    ComponentRow{MeasuredComponent::Fourth, QT_TRANSLATE_NOOP("MeasuredComponent", "Fourth"), 0xffc084fc},
};

const ComponentRow &rowOf(MeasuredComponent component)
{
    return componentRows[static_cast<std::size_t>(component)]; // The rows are in the order of the type.
}

} // namespace

QString componentName(MeasuredComponent component)
{
    return QCoreApplication::translate("MeasuredComponent", rowOf(component).name);
}

QColor componentColor(MeasuredComponent component)
{
    return QColor(rowOf(component).color);
}
