#include "tools/camerasetup/tree/FilterBar.h"

#include "tools/camerasetup/tree/FeatureFilter.h"
#include "tools/camerasetup/values/LevelText.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

using CvxCPP::NodeVisibility;

FilterBar::FilterBar(FeatureFilter &filter, QWidget *parent)
    : QWidget(parent),
      m_filter(filter),
      m_search(new QLineEdit(this)),
      m_level(new QComboBox(this)),
      m_changed(new QToolButton(this)),
      m_favourites(new QToolButton(this))
{
    m_search->setPlaceholderText(tr("Search features"));
    m_search->setAccessibleName(tr("Search features"));
    m_search->setToolTip(tr("Shows the features with all of these words in their name or description."));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    for (const NodeVisibility level : shownLevels)
        m_level->addItem(levelText(level));
    m_level->setAccessibleName(tr("Level"));
    m_level->setToolTip(tr("Which features are shown: the most important ones, most, or all."));
    m_changed->setText(tr("Changed"));
    m_changed->setToolTip(tr("Shows only features that have changed since the camera was opened."));
    m_changed->setCheckable(true);
    m_favourites->setText(tr("Favourites"));
    m_favourites->setToolTip(tr("Shows only the features that you have marked as favourites."));
    m_favourites->setCheckable(true);
    for (QToolButton *const button : {m_changed, m_favourites})
        button->setFocusPolicy(Qt::StrongFocus);

    auto *const switches = new QHBoxLayout;
    switches->addWidget(m_level);
    switches->addWidget(m_changed);
    switches->addWidget(m_favourites);
    switches->addStretch();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search);
    layout->addLayout(switches);

    connect(m_search, &QLineEdit::textChanged, &filter, &FeatureFilter::setText);
    connect(m_level, QOverload<int>::of(&QComboBox::activated), this, &FilterBar::setLevel);
    connect(m_changed, &QToolButton::toggled, &filter, &FeatureFilter::setOnlyChanged);
    connect(m_favourites, &QToolButton::toggled, &filter, &FeatureFilter::setOnlyFavourites);
    connect(&filter, &FeatureFilter::filtered, this, &FilterBar::showFilter);
    showFilter();
}

void FilterBar::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void FilterBar::setLevel(int row)
{
    m_filter.setLevel(shownLevels[std::size_t(row)]);
}

void FilterBar::showFilter()
{
    if (m_search->text() != m_filter.text())
        m_search->setText(m_filter.text());
    m_level->setCurrentText(levelText(m_filter.level()));
    m_changed->setChecked(m_filter.isOnlyChanged());
    m_favourites->setChecked(m_filter.isOnlyFavourites());
}

bool FilterBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape && !m_search->text().isEmpty()) {
        m_search->clear();
        return true;
    }
    if (key != Qt::Key_Down && key != Qt::Key_Return && key != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    emit left();
    return true;
}
