#include "sdk/simulator/SensorFlaws.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {
using Kind = DefectPixel::Kind;

// What a random number is for.
enum Purpose : std::uint64_t
{
    CenterPurpose = 1,
    TapGainPurpose,
    TapOffsetPurpose,
    ColumnPurpose,
    BlinkPurpose,
    DefectPurpose // Plus the kind of defect; the last one.
};

constexpr int hotClusterDistance = 8; // Every eighth hot pixel has two hot neighbours.
constexpr double tapOffsetRange = 400; // Units of a 12-bit pixel for a mismatch of 100 %.

SensorModel withTrueHeight(SensorModel model)
{
    if (model.isLineScan)
        model.height = 1;
    return model;
}

double logarithmic(double low, double high, double share)
{
    return low * std::pow(high / low, share);
}
} // namespace

SensorFlaws::SensorFlaws(const SensorModel &model)
    : m_model(withTrueHeight(model)),
      m_photoResponse(model.seed + 1, 1, model.photoResponse, model.width),
      m_darkSignal(model.seed + 2, 0, model.darkSignal, model.width)
{
    const double width = m_model.width;
    const double height = m_model.height;
    m_centerX = width * (0.47 + 0.06 * uniformRandom(key(CenterPurpose, 0)));
    m_centerY = height * (0.47 + 0.06 * uniformRandom(key(CenterPurpose, 1)));
    m_falloff = -std::log(1 - m_model.shading) / ((width * width + height * height) / 4);

    constexpr double radiansPerDegree = 3.141592653589793 / 180;
    m_tiltRight = m_model.focusTilt * std::cos(m_model.focusTiltAngle * radiansPerDegree);
    m_tiltDown = m_model.focusTilt * std::sin(m_model.focusTiltAngle * radiansPerDegree);

    addDefects(Kind::Hot, m_model.hotPixels);
    addDefects(Kind::StuckBlack, m_model.stuckPixels / 2);
    addDefects(Kind::StuckWhite, m_model.stuckPixels / 2);
    addDefects(Kind::Blinking, m_model.blinkingPixels);
    for (int i = 0; i < m_model.stuckColumns; ++i) {
        const int x
            = static_cast<int>(width * uniformRandom(key(ColumnPurpose, static_cast<std::uint64_t>(i))));
        for (int y = 0; y < m_model.height; ++y)
            addDefect({x, y, Kind::StuckBlack, 0});
    }
    sortDefects();
}

std::pair<std::size_t, std::size_t> SensorFlaws::defectsOfLine(int y) const
{
    const auto line = static_cast<std::size_t>(y);
    return {m_lineStarts[line], m_lineStarts[line + 1]};
}

bool SensorFlaws::isBlinkingOn(std::size_t index, std::uint64_t frameNumber) const
{
    return scrambled(key(BlinkPurpose, index) + frameNumber) % 2 == 1;
}

double SensorFlaws::columnShading(int x) const
{
    const double distance = x - m_centerX;
    return std::exp(-m_falloff * distance * distance);
}

double SensorFlaws::lineShading(int y) const
{
    const double distance = y - m_centerY;
    return std::exp(-m_falloff * distance * distance);
}

double SensorFlaws::tapGain(int tap) const
{
    if (tap == 0)
        return 1;
    if (tap == 1)
        return 1 - m_model.tapMismatch; // Every camera with a mismatch shows all of it.
    return 1
        + m_model.tapMismatch * (2 * uniformRandom(key(TapGainPurpose, static_cast<std::uint64_t>(tap))) - 1);
}

double SensorFlaws::tapOffset(int tap) const
{
    if (tap == 0)
        return 0;
    const double share = 2 * uniformRandom(key(TapOffsetPurpose, static_cast<std::uint64_t>(tap))) - 1;
    return m_model.tapMismatch * tapOffsetRange * share;
}

double SensorFlaws::darkFactor(double temperature)
{
    return std::exp2((temperature - 25) / 8);
}

double SensorFlaws::bestFocus(int x, int y) const
{
    const double right = (x + 0.5) / m_model.width - 0.5;
    const double down = m_model.isLineScan ? 0 : (y + 0.5) / m_model.height - 0.5;
    return m_model.focusPosition + right * m_tiltRight + down * m_tiltDown;
}

std::uint64_t SensorFlaws::key(std::uint64_t purpose, std::uint64_t index) const
{
    return scrambled(scrambled(m_model.seed) + purpose) + index;
}

void SensorFlaws::addDefects(DefectPixel::Kind kind, double perMegapixel)
{
    const std::uint64_t purpose = DefectPurpose + static_cast<std::uint64_t>(kind);
    const int count = static_cast<int>(std::lround(perMegapixel * m_model.width * m_model.height * 1e-6));
    for (int i = 0; i < count; ++i) {
        const auto random = [&](unsigned part) {
            return uniformRandom(key(purpose, static_cast<std::uint64_t>(i) * 4 + part));
        };
        DefectPixel defect{static_cast<int>(m_model.width * random(0)),
            static_cast<int>(m_model.height * random(1)), kind, 0};
        if (kind == Kind::Hot)
            defect.strength = logarithmic(2e3, 2e5, random(2));
        if (kind == Kind::Blinking)
            defect.strength = logarithmic(300, 2000, random(2));
        addDefect(defect);
        if (kind != Kind::Hot || i % hotClusterDistance != 0)
            continue;
        defect.strength /= 2;
        for (const auto &[right, down] : {std::pair(1, 0), std::pair(0, 1)})
            addDefect({defect.x + right, defect.y + down, kind, defect.strength});
    }
}

void SensorFlaws::addDefect(DefectPixel defect)
{
    if (defect.x < m_model.width && defect.y < m_model.height)
        m_defects.push_back(defect);
}

void SensorFlaws::sortDefects()
{
    const auto place = [](const DefectPixel &defect) { return std::tie(defect.y, defect.x); };
    std::stable_sort(m_defects.begin(), m_defects.end(),
        [place](const DefectPixel &a, const DefectPixel &b) { return place(a) < place(b); });
    const auto last = std::unique(m_defects.begin(), m_defects.end(),
        [place](const DefectPixel &a, const DefectPixel &b) { return place(a) == place(b); });
    m_defects.erase(last, m_defects.end());

    m_lineStarts.assign(static_cast<std::size_t>(m_model.height) + 1, 0);
    for (const DefectPixel &defect : m_defects)
        ++m_lineStarts[static_cast<std::size_t>(defect.y) + 1];
    for (std::size_t y = 1; y < m_lineStarts.size(); ++y)
        m_lineStarts[y] += m_lineStarts[y - 1];
}
