#include "tools/kit/pages/CameraChooser.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace {

constexpr int columnWidths[] = {280, 170, 140, 130, 140}; // Initial; a person can change them.

/// Shows the rows that contain every word of the search.
class CameraFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setWords(const QStringList &words)
    {
        m_words = words;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        QString texts;
        for (int column = 0; column < sourceModel()->columnCount(parent); ++column)
            texts += sourceModel()->index(row, column, parent).data().toString() + QLatin1Char('\n');
        texts += static_cast<CameraTable *>(sourceModel())->camera(row).id;
        return std::all_of(m_words.begin(), m_words.end(),
            [&](const QString &word) { return texts.contains(word, Qt::CaseInsensitive); });
    }

private:
    QStringList m_words;
};

} // namespace

CameraChooser::CameraChooser(CameraFinder &finder, QWidget *parent)
    : QWidget(parent),
      m_finder(finder),
      m_cameras(new CameraTable(this)),
      m_visible(new CameraFilter(this)),
      m_search(new QLineEdit),
      m_table(new QTableView),
      m_status(new QLabel),
      m_open(new QPushButton(tr("&Open")))
{
    m_visible->setSourceModel(m_cameras);
    m_visible->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_visible->setSortLocaleAware(true);
    createTable();
    createWidgets();
    connectWidgets();
    takeCameras();
}

void CameraChooser::createTable()
{
    m_table->setModel(m_visible);
    m_table->setAccessibleName(tr("Cameras"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setAlternatingRowColors(true);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(CameraTable::Name, Qt::AscendingOrder);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setStretchLastSection(true);
    for (int column = 0; column < int(std::size(columnWidths)); ++column)
        m_table->setColumnWidth(column, columnWidths[column]);
}

void CameraChooser::createWidgets()
{
    auto *const title = new QLabel(tr("Choose a camera"));
    title->setProperty("role", QStringLiteral("title"));
    m_search->setPlaceholderText(tr("Search by name, model, serial number or connection"));
    m_search->setAccessibleName(tr("Search cameras"));
    m_search->setClearButtonEnabled(true);
    m_status->setProperty("role", QStringLiteral("secondary"));
    m_status->setWordWrap(true);
    m_open->setProperty("role", QStringLiteral("primary"));

    auto *const bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(m_open);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(10);
    layout->addWidget(title);
    layout->addWidget(m_search);
    layout->addWidget(m_table, 1);
    layout->addLayout(bottom);
    setFocusProxy(m_search);
}

void CameraChooser::connectWidgets()
{
    connect(&m_finder, &CameraFinder::changed, this, &CameraChooser::takeCameras);
    connect(m_search, &QLineEdit::textChanged, this, &CameraChooser::filter);
    connect(m_search, &QLineEdit::returnPressed, this, &CameraChooser::choose);
    connect(m_table, &QTableView::doubleClicked, this, &CameraChooser::choose);
    connect(
        m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CameraChooser::showState);
    connect(m_open, &QPushButton::clicked, this, &CameraChooser::choose);
    m_search->installEventFilter(this);
    m_table->installEventFilter(this);
}

bool CameraChooser::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (watched == m_table && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        choose();
        return true;
    }
    const bool isForTable
        = key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown || key == Qt::Key_PageUp;
    if (watched == m_search && isForTable)
        return QCoreApplication::sendEvent(
            m_table, event); // The selection moves while a person is still typing.
    return QWidget::eventFilter(watched, event);
}

void CameraChooser::takeCameras()
{
    m_cameras->setCameras(m_finder.cameras());
    selectSomething();
    showState();
}

void CameraChooser::filter(const QString &text)
{
    static_cast<CameraFilter *>(m_visible)->setWords(text.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    selectSomething();
    showState();
}

/// Selects the first camera if none is selected, so that Enter opens what is visible.
void CameraChooser::selectSomething()
{
    if (!selected() && m_visible->rowCount() > 0)
        m_table->selectRow(0);
}

void CameraChooser::select(const QString &id)
{
    for (int row = 0; row < m_visible->rowCount(); ++row) {
        if (m_cameras->camera(m_visible->mapToSource(m_visible->index(row, 0)).row()).id == id)
            m_table->selectRow(row);
    }
}

std::optional<CameraEntry> CameraChooser::selected() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return std::nullopt;
    return m_cameras->camera(m_visible->mapToSource(rows.first()).row());
}

void CameraChooser::showState()
{
    m_open->setEnabled(selected().has_value());
    m_status->setText(statusText());
}

QString CameraChooser::statusText() const
{
    if (m_finder.state() == CameraFinder::State::Failed)
        return m_finder.problem();
    if (!m_finder.isComplete())
        return tr("Searching for cameras…");
    if (m_visible->rowCount() == 0 && m_cameras->rowCount() > 0)
        return tr("No camera matches \"%1\".").arg(m_search->text());
    return tr("Cameras: %1").arg(QLocale().toString(m_visible->rowCount()));
}

void CameraChooser::choose()
{
    if (const std::optional<CameraEntry> camera = selected())
        emit chosen(*camera);
}
