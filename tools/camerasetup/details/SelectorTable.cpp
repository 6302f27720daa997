#include "tools/camerasetup/details/SelectorTable.h"

#include "sdk/features/FeatureText.h"
#include "sdk/features/SettingLabel.h"
#include "tools/camerasetup/details/SelectorDelegate.h"
#include "tools/camerasetup/details/SelectorModel.h"
#include "tools/camerasetup/details/SelectorReading.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/PresentSelectors.h"
#include "tools/camerasetup/values/ValueText.h"
#include "tools/kit/editors/EditorNote.h"
#include "tools/kit/widgets/Message.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace CvxCPP;

namespace {

constexpr std::chrono::milliseconds readDelay{100};
constexpr int restFactor = 30; ///< A table whose values change by themselves is not read most of the time.
constexpr int minColumnWidth = 72;

QString displayName(const FeatureClient &client, const QString &name)
{
    const NodeInfo *const info = client.info(name);
    return info ? QString::fromStdString(info->displayName) : name;
}

} // namespace

SelectorTable::SelectorTable(FeatureClient &client, CameraJobs &jobs, const PresentSelectors &selectors,
    ChangeHistory &history, QWidget *parent)
    : QWidget(parent),
      m_client(client),
      m_jobs(jobs),
      m_selectors(selectors),
      m_history(history),
      m_model(new SelectorModel(client, this)),
      m_view(new QTableView(this)),
      m_title(new QLabel(this)),
      m_readMessage(createMessage(this)),
      m_message(createMessage(this)),
      m_question(new EditorNote(this)),
      m_refresh(new QPushButton(tr("Read again"), this))
{
    createView();
    m_title->setWordWrap(true);
    auto *const top = new QHBoxLayout;
    top->addWidget(m_title, 1);
    top->addWidget(m_refresh);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_readMessage);
    layout->addWidget(m_message);
    layout->addWidget(m_question);
    layout->addWidget(m_view, 1);
    m_readTimer.setSingleShot(true);
    connectParts();
    rebuild();
}

void SelectorTable::createView()
{
    m_view->setModel(m_model);
    m_view->setItemDelegate(new SelectorDelegate(m_view));
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
        | QAbstractItemView::AnyKeyPressed);
    m_view->setTabKeyNavigation(false);
    m_view->setAccessibleName(tr("Values of the selected features"));
    m_view->verticalHeader()->setSectionsClickable(true);
    m_view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_view->horizontalHeader()->setMinimumSectionSize(minColumnWidth);
    auto *const show = new QAction(tr("Show the feature"), m_view);
    show->setShortcut(Qt::CTRL + Qt::Key_Return);
    show->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(show);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(show, &QAction::triggered, this, &SelectorTable::showCurrentFeature);
    connect(m_view->verticalHeader(), &QHeaderView::sectionDoubleClicked, this,
        [this](int row) { emit featureRequested(m_rows.value(row)); });
    // A read that only brings other values keeps the widths that a person has chosen.
    connect(m_model, &SelectorModel::modelReset, m_view, &QTableView::resizeColumnsToContents);
}

void SelectorTable::connectParts()
{
    connect(&m_readTimer, &QTimer::timeout, this, &SelectorTable::read);
    connect(m_refresh, &QPushButton::clicked, this, &SelectorTable::read);
    // A job that was cancelled before it began reports no result.
    connect(&m_jobs, &CameraJobs::changed, this, [this] { m_isReading = m_isReading && m_jobs.isBusy(); });
    connect(m_model, &SelectorModel::changeRequested, this, &SelectorTable::write);
    connect(m_model, &SelectorModel::refused, this, &SelectorTable::showRefused);
    connect(m_question, &EditorNote::accepted, this, &SelectorTable::writePaused);
    connect(m_question, &EditorNote::rejected, this, &SelectorTable::dropQuestion);
    connect(&m_client, &FeatureClient::stateChanged, this, &SelectorTable::onStateChanged);
    connect(&m_client, &FeatureClient::nodesLoaded, this, &SelectorTable::rebuild);
    connect(&m_client, &FeatureClient::nodesGone, this, &SelectorTable::rebuild);
    // Changes under other values of the selector do not change the states of the client.
    connect(&m_history, &ChangeHistory::changed, this, &SelectorTable::followHistory);
}

void SelectorTable::setFeature(const QString &name)
{
    m_feature = name;
    if (selectorFor(name) != m_selector)
        rebuild();
}

/// Returns the selector whose table is shown for a feature; empty if there is none.
QString SelectorTable::selectorFor(const QString &name) const
{
    const NodeInfo *const info = m_client.info(name);
    if (!info)
        return {};
    if (!info->selected.empty())
        return name;
    const std::vector<std::string> selectors = m_selectors.directory().selectorsOf(info->name);
    return selectors.empty() ? QString() : QString::fromStdString(selectors.back());
}

void SelectorTable::rebuild()
{
    watchRows(false);
    m_selector = selectorFor(m_feature);
    m_rows.clear();
    m_outer.clear();
    m_readTime = {};
    showMessage(m_readMessage, {}, "error");
    showMessage(m_message, {}, "error");
    dropQuestion();
    QVector<NodeInfo> features;
    const NodeInfo *const selector = m_client.info(m_selector);
    for (const std::string &name : selector ? selector->selected : std::vector<std::string>()) {
        const NodeInfo *const info = m_client.info(QString::fromStdString(name));
        if (!info || info->type == NodeType::Category || info->type == NodeType::Command)
            continue;
        features.append(*info);
        m_rows.append(QString::fromStdString(name));
    }
    m_model->setRows(selector ? *selector : NodeInfo(), features);
    m_view->setVisible(!m_rows.isEmpty());
    m_refresh->setVisible(!m_rows.isEmpty());
    showTitle();
    watchRows(isVisible());
    readSoon();
}

/// Says which selector the table is about, and which values the others had when it was read.
void SelectorTable::showTitle()
{
    if (m_rows.isEmpty()) {
        m_title->setText(tr("The feature has no selector, so it has only one value."));
        return;
    }
    QStringList others;
    for (const SelectorSetting &outer : m_outer) {
        const QString name = QString::fromStdString(outer.name);
        const QString value = settingValueText(m_client.info(name), outer.value);
        others.append(tr("%1 is %2").arg(displayName(m_client, name), value));
    }
    const QString title = tr("The values for each %1").arg(displayName(m_client, m_selector));
    m_title->setText(
        others.isEmpty() ? title : tr("%1, while %2").arg(title, others.join(QStringLiteral(", "))));
}

void SelectorTable::watchRows(bool isWatching)
{
    const QStringList previous = std::exchange(m_watched, isWatching ? m_rows : QStringList());
    m_client.watch(m_watched);
    m_client.unwatch(previous);
}

void SelectorTable::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    watchRows(true);
    readSoon();
}

void SelectorTable::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    watchRows(false);
}

void SelectorTable::onStateChanged(const QString &name)
{
    const auto selectors = m_selectors.directory().selectorsOf(m_selector.toStdString());
    const bool isOuter = std::find(selectors.begin(), selectors.end(), name.toStdString()) != selectors.end();
    if (isOuter)
        readSoon();
    else if (m_rows.contains(name))
        readLater();
}

/// An undo or a load may have changed features for other values of the selector than the present one.
void SelectorTable::followHistory()
{
    // The history also reports when a job starts or ends, which reading the table does all the time.
    if (std::exchange(m_entryCount, m_history.entries().size()) != m_history.entries().size())
        readSoon();
}

// ---- Reading and writing ----------------------------------------------------------------------------------

/// What is shown or being read is outdated because a person has changed something.
void SelectorTable::readSoon()
{
    if (m_reading)
        m_reading->isStale = true;
    m_reading.reset();
    m_isReading = false;
    m_readTimer.start(readDelay);
}

/// The camera has changed something, perhaps because the selector was switched, and may do so all the time.
void SelectorTable::readLater()
{
    if (!m_readTimer.isActive())
        m_readTimer.start(std::max(readDelay, restFactor * m_readTime));
}

void SelectorTable::read()
{
    m_isOutdated = m_isReading;
    if (m_isReading || m_rows.isEmpty() || !isVisible())
        return;
    m_reading = std::make_shared<SelectorReading>();
    m_reading->selector = m_selector.toStdString();
    for (const QString &row : qAsConst(m_rows))
        m_reading->features.push_back(row.toStdString());
    continueReading();
}

void SelectorTable::continueReading()
{
    m_isReading = true;
    const auto work
        = [directory = m_selectors.directory(), reading = m_reading](Device &device,
              const FeatureProgress &progress) { return reading->read(device, directory, progress); };
    m_jobs.start(tr("Reading the values for each %1").arg(displayName(m_client, m_selector)),
        CameraJobs::StreamUse::Keep, work, this, [this, reading = m_reading](const CvxResult &result) {
            if (reading == m_reading)
                takeReading(result);
        });
}

void SelectorTable::takeReading(const CvxResult &result)
{
    m_isReading = false;
    const SelectorValues &values = m_reading->values;
    if (!result) {
        showMessage(m_readMessage, QString::fromStdString(result.text), "error");
    } else if (m_reading->isCancelled) {
        showMessage(m_readMessage, tr("Reading was cancelled."), "warning");
        m_isOutdated = false;
    } else if (values.isComplete) {
        showValues(values);
    } else if (isVisible()) {
        return continueReading();
    }
    if (std::exchange(m_isOutdated, false))
        readLater();
}

void SelectorTable::showValues(const SelectorValues &values)
{
    const QString shortened = tr("The selector has more values; only the first ones are shown here.");
    showMessage(m_readMessage, values.isShortened ? shortened : QString(), "warning");
    m_readTime = std::chrono::duration_cast<std::chrono::milliseconds>(m_reading->time);
    m_outer = values.outer;
    m_model->setValues(values);
    showTitle();
}

void SelectorTable::write(const QModelIndex &index, const NodeValue &value)
{
    showMessage(m_message, {}, "error");
    dropQuestion();
    const NodeState &state = m_model->state(index);
    Change change{{m_outer, m_model->info(index).name, value}, state.value};
    change.written.selectors.push_back({m_selector.toStdString(), m_model->selectorValue(index)});
    if (state.lockReason != LockReason::StreamRunning)
        return startWriting(change, CameraJobs::StreamUse::Keep);
    m_pending = change;
    m_question->showQuestion(
        tr("For this change, the stream has to be stopped for a moment."), tr("Stop, set, start"));
}

void SelectorTable::writePaused()
{
    const std::optional<Change> change = m_pending;
    dropQuestion();
    if (change)
        startWriting(*change, CameraJobs::StreamUse::Pause);
}

void SelectorTable::dropQuestion()
{
    m_pending.reset();
    m_question->clear();
}

void SelectorTable::startWriting(const Change &change, CameraJobs::StreamUse stream)
{
    const auto work = [directory = m_selectors.directory(), written = change.written](Device &device,
                          const FeatureProgress &) { return writeSelectedValue(device, directory, written); };
    m_jobs.start(tr("Writing %1").arg(displayName(m_client, QString::fromStdString(change.written.name))),
        stream, work, this, [this, change](const CvxResult &result) { takeWritten(result, change); });
}

void SelectorTable::takeWritten(const CvxResult &result, const Change &change)
{
    const SelectedValue &value = change.written;
    if (!result)
        showMessage(m_message, QString::fromStdString(result.text), "error");
    else
        m_history.addEdits(QString::fromStdString(settingLabel(value.name, value.selectors)),
            {{value.selectors, value.name, settingText(change.before), settingText(value.value)}});
    readSoon();
}

void SelectorTable::showRefused(const QModelIndex &index, const QString &text)
{
    const QString feature = QString::fromStdString(m_model->info(index).displayName);
    showMessage(m_message, tr("\"%1\" is no value of %2.").arg(text, feature), "error");
}

void SelectorTable::showCurrentFeature()
{
    if (m_view->currentIndex().isValid())
        emit featureRequested(m_rows.value(m_view->currentIndex().row()));
}
