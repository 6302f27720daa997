#include "tools/imageviewer/measuring/ProfileBox.h"

#include "tools/imageviewer/measuring/ProfileWidget.h"
#include "tools/kit/widgets/Heading.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QRect>

#include <algorithm>
#include <limits>

namespace {

constexpr auto toEnd = std::numeric_limits<std::uint32_t>::max(); // Lines are cut to the picture.

std::uint32_t pixelNumber(int number)
{
    return static_cast<std::uint32_t>(std::max(number, 0));
}

} // namespace

ProfileBox::ProfileBox(QWidget *parent)
    : QWidget(parent), m_profile(new ProfileWidget), m_kind(new QComboBox), m_place(new QLabel)
{
    m_kind->addItems({tr("Row"), tr("Column"), tr("Drawn line")});
    m_kind->setAccessibleName(tr("Line of the profile"));
    m_kind->setToolTip(tr("Row and column are those of the pointer in the picture."));
    auto *const title = new QHBoxLayout;
    title->addWidget(createHeading(tr("Line profile")), 1);
    title->addWidget(m_kind);
    title->addWidget(m_place);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(title);
    layout->addWidget(m_profile);
    connect(m_kind, qOverload<int>(&QComboBox::currentIndexChanged), this, &ProfileBox::change);
    change();
}

std::optional<MeasuredLine> ProfileBox::line() const
{
    const std::uint32_t x = pixelNumber(m_point.x());
    const std::uint32_t y = pixelNumber(m_point.y());
    switch (kind()) {
    case Kind::Row:
        return MeasuredLine{0, y, toEnd, y};
    case Kind::Column:
        return MeasuredLine{x, 0, x, toEnd};
    case Kind::Drawn:
        break;
    }
    if (m_drawnLine.isNull())
        return std::nullopt;
    return MeasuredLine{pixelNumber(m_drawnLine.x1()), pixelNumber(m_drawnLine.y1()),
        pixelNumber(m_drawnLine.x2()), pixelNumber(m_drawnLine.y2())};
}

void ProfileBox::setProfile(const std::optional<LineProfile> &profile)
{
    m_profile->setProfile(profile);
}

void ProfileBox::setPictureSize(const QSize &size)
{
    if (!m_hasPointer)
        setPoint({size.width() / 2, size.height() / 2});
}

void ProfileBox::setPointer(const QPoint &pixel)
{
    m_hasPointer = true;
    setPoint(pixel);
}

void ProfileBox::setDrawnLine(const QLine &line)
{
    const bool isFirst = m_drawnLine.isNull() && !line.isNull();
    m_drawnLine = line;
    if (isFirst && kind() != Kind::Drawn)
        m_kind->setCurrentIndex(static_cast<int>(Kind::Drawn));
    else if (kind() == Kind::Drawn)
        change();
}

ProfileBox::Kind ProfileBox::kind() const
{
    return static_cast<Kind>(m_kind->currentIndex());
}

void ProfileBox::setPoint(const QPoint &point)
{
    const QPoint before = m_point;
    m_point = point;
    const bool isOtherLine = kind() == Kind::Row ? point.y() != before.y() : point.x() != before.x();
    if (kind() != Kind::Drawn && isOtherLine)
        change();
}

void ProfileBox::change()
{
    const int number = kind() == Kind::Row ? m_point.y() : m_point.x();
    m_place->setText(kind() == Kind::Drawn ? QString() : QLocale().toString(number));
    emit lineChanged();
}
