#include "tools/camerasetup/tree/FilterHint.h"

#include "tools/camerasetup/tree/FeatureFilter.h"
#include "tools/camerasetup/values/LevelText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

FilterHint::FilterHint(FeatureFilter &filter, QWidget *parent)
    : QWidget(parent), m_filter(filter), m_text(new QLabel(this)), m_button(new QPushButton(this))
{
    m_text->setWordWrap(true);
    m_text->setProperty("role", QStringLiteral("secondary"));
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_button);
    connect(m_button, &QPushButton::clicked, this, &FilterHint::showMore);
    connect(&filter, &FeatureFilter::filtered, this, &FilterHint::showFilter);
    connect(&filter, &QAbstractItemModel::modelReset, this, &FilterHint::showFilter);
    showFilter();
}

QString FilterHint::text() const
{
    return m_text->text();
}

void FilterHint::showFilter()
{
    const bool isEmpty = m_filter.rowCount() == 0;
    const int hidden = m_filter.hiddenByLevel();
    QStringList sentences;
    if (isEmpty)
        sentences.append(textForNothing());
    if (hidden > 0 && (isEmpty || m_filter.isNarrow()))
        sentences.append(tr("%n feature(s) are hidden by the level %1.", nullptr, hidden)
                             .arg(levelText(m_filter.level())));
    m_text->setText(sentences.join(QLatin1Char(' ')));
    m_button->setText(hidden > 0 ? tr("Show Them") : tr("Show All"));
    setVisible(!sentences.isEmpty() && m_filter.model().featureCount() > 0);
}

/// Returns the reason why there are no rows.
QString FilterHint::textForNothing() const
{
    if (!m_filter.text().isEmpty())
        return tr("No feature matches.");
    if (m_filter.isOnlyFavourites() && !m_filter.isOnlyChanged())
        return tr("No feature is marked as a favourite. Ctrl+D marks one.");
    if (m_filter.isOnlyChanged())
        return tr("No feature has changed since the camera was opened.");
    return tr("This level has no features.");
}

void FilterHint::showMore()
{
    if (m_filter.hiddenByLevel() > 0)
        m_filter.setLevel(CvxCPP::NodeVisibility::Guru);
    else
        m_filter.clear();
}
