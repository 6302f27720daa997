#include "tools/imageviewer/panel/RegionCall.h"

#include "tools/imageviewer/panel/RegionOfInterest.h"

#include <QCoreApplication>

#include <array>
#include <optional>
#include <string>
#include <vector>

using CvxCPP::CvxResult;
using CvxCPP::Device;
using CvxCPP::NodeState;

namespace {

/// The names of the two features of an axis.
struct AxisNames
{
    const char *size;
    const char *offset;
};

constexpr AxisNames horizontalNames{"Width", "OffsetX"};
constexpr AxisNames verticalNames{"Height", "OffsetY"};

QString translateRegion(const char *text)
{
    return QCoreApplication::translate("RegionCall", text);
}

std::int64_t integerIn(const CvxCPP::NodeValue &value, std::int64_t fallback)
{
    const auto *const integer = std::get_if<std::int64_t>(&value);
    return integer ? *integer : fallback;
}

/// Reads one feature; no value if the camera does not have it at present.
std::optional<NodeState> readState(Device &device, const char *name)
{
    std::vector<NodeState> states;
    if (!device.ReadStates({name}, states) || states.empty() || states.front().value.index() == 0)
        return std::nullopt;
    return states.front();
}

std::optional<ReportedAxis> readAxis(Device &device, const AxisNames &names)
{
    const std::optional<NodeState> size = readState(device, names.size);
    if (!size)
        return std::nullopt;
    ReportedAxis axis;
    axis.present.size = integerIn(size->value, 0);
    axis.minimumSize = integerIn(size->minimum, 1);
    axis.maximumSize = integerIn(size->maximum, axis.present.size);
    axis.sizeIncrement = integerIn(size->increment, 1);
    const std::optional<NodeState> offset = readState(device, names.offset);
    axis.hasOffset = offset.has_value();
    if (!offset)
        return axis;
    axis.present.offset = integerIn(offset->value, 0);
    axis.minimumOffset = integerIn(offset->minimum, 0);
    axis.maximumOffset = integerIn(offset->maximum, axis.present.offset);
    axis.offsetIncrement = integerIn(offset->increment, 1);
    return axis;
}

CvxResult writeAxis(
    Device &device, const AxisNames &names, const RegionAxis &present, const RegionAxis &target)
{
    for (const RegionWrite &write : axisWrites(present, target)) {
        const char *const name = write.part == RegionPart::Offset ? names.offset : names.size;
        CvxResult result = device.WriteInteger(name, write.value);
        if (!result)
            return result;
    }
    return {};
}

CvxResult failure(const char *text)
{
    return {CvxCPP::CvxErrorNotAvailable, translateRegion(text).toStdString()};
}

/// Computes the new region of one axis.
using Target = std::function<RegionAxis(const ReportedAxis &, const RegionAxisLimits &)>;

CvxResult writeRegion(Device &device, const std::array<Target, 2> &targets, const QSize &picture)
{
    const std::optional<ReportedAxis> x = readAxis(device, horizontalNames);
    const std::optional<ReportedAxis> y = readAxis(device, verticalNames);
    if (!x || !y)
        return failure(QT_TRANSLATE_NOOP("RegionCall", "The camera does not report its region."));
    if (picture.isValid() && (x->present.size != picture.width() || y->present.size != picture.height()))
        return failure(QT_TRANSLATE_NOOP("RegionCall",
            "The camera's region has changed since it was drawn. Draw it again on the present picture."));
    const CvxResult result = writeAxis(device, horizontalNames, x->present, targets[0](*x, axisLimits(*x)));
    return result ? writeAxis(device, verticalNames, y->present, targets[1](*y, axisLimits(*y))) : result;
}

Target drawnTarget(int offset, int size)
{
    return [offset, size](const ReportedAxis &axis, const RegionAxisLimits &limits) {
        return snapAxis({axis.present.offset + offset, size}, limits);
    };
}

} // namespace

CameraConnection::Call regionCall(const QRect &drawn, const QSize &picture)
{
    const QRect inside = drawn.intersected(QRect(QPoint(), picture));
    const std::array<Target, 2> targets{
        drawnTarget(inside.x(), inside.width()), drawnTarget(inside.y(), inside.height())};
    return [targets, picture](Device &device) { return writeRegion(device, targets, picture); };
}

CameraConnection::Call wholeSensorCall()
{
    const Target whole
        = [](const ReportedAxis &, const RegionAxisLimits &limits) { return wholeAxis(limits); };
    return [whole](Device &device) { return writeRegion(device, {whole, whole}, {}); };
}
