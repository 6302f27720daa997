#include "tools/camerasetup/details/SelectorTable.h"

#include "sdk/features/FeatureText.h"
#include "sdk/features/SettingLabel.h"
#include "tools/camerasetup/details/SelectorDelegate.h"
#include "tools/camerasetup/details/SelectorModel.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/PresentSelectors.h"
#include "tools/camerasetup/values/ValueText.h"
#include "tools/kit/widgets/Message.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

using namespace CvxCPP;

namespace {

constexpr std::chrono::milliseconds readDelay{100};

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
      m_message(createMessage(this)),
      m_refresh(new QPushButton(tr("Read again"), this))
{
    m_view->setModel(m_model);
    m_view->setItemDelegate(new SelectorDelegate(m_view));
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
        | QAbstractItemView::AnyKeyPressed);
    m_view->setTabKeyNavigation(false);
    m_view->setAccessibleName(tr("Values of the selected features"));
    m_view->verticalHeader()->setSectionsClickable(true);
    m_view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_title->setWordWrap(true);

    auto *const top = new QHBoxLayout;
    top->addWidget(m_title, 1);
    top->addWidget(m_refresh);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_message);
    layout->addWidget(m_view, 1);

    m_readTimer.setSingleShot(true);
    m_readTimer.setInterval(readDelay);
    connect(&m_readTimer, &QTimer::timeout, this, &SelectorTable::read);
    connect(m_refresh, &QPushButton::clicked, this, &SelectorTable::read);
    // A job that was cancelled before it began reports no result.
    connect(&jobs, &CameraJobs::changed, this, [this] { m_isReading = m_isReading && m_jobs.isBusy(); });
    connect(m_model, &SelectorModel::changeRequested, this, &SelectorTable::write);
    connect(m_view->verticalHeader(), &QHeaderView::sectionDoubleClicked, this,
        [this](int row) { emit featureRequested(m_rows.value(row)); });
    connect(&client, &FeatureClient::stateChanged, this, &SelectorTable::onStateChanged);
    connect(&client, &FeatureClient::nodesLoaded, this, &SelectorTable::rebuild);
    connect(&client, &FeatureClient::nodesGone, this, &SelectorTable::rebuild);
    rebuild();
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
    m_isReading = false; // The result is about other features, if it arrives at all.
    showMessage(m_message, {}, "error");
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
    read();
}

/// Says which selector the table is about, and which values the others have.
void SelectorTable::showTitle()
{
    if (m_rows.isEmpty()) {
        m_title->setText(tr("The feature has no selector, so it has only one value."));
        return;
    }
    QStringList others;
    for (const std::string &name : m_selectors.directory().selectorsOf(m_selector.toStdString())) {
        const QString other = QString::fromStdString(name);
        const NodeInfo *const info = m_client.info(other);
        const NodeState *const state = m_client.state(other);
        if (info && state)
            others.append(tr("%1 is %2").arg(displayName(m_client, other), valueText(*info, *state)));
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
    read();
}

void SelectorTable::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    watchRows(false);
}

/// Only states that differ are reported, so the switching of the selector does not lead to another read.
void SelectorTable::onStateChanged(const QString &name)
{
    const auto selectors = m_selectors.directory().selectorsOf(m_selector.toStdString());
    const bool isOuter = std::find(selectors.begin(), selectors.end(), name.toStdString()) != selectors.end();
    if (isOuter)
        showTitle();
    if (isVisible() && (isOuter || m_rows.contains(name) || name == m_selector))
        m_readTimer.start();
}

// ---- Reading and writing ----------------------------------------------------------------------------------

void SelectorTable::read()
{
    m_isOutdated = m_isReading;
    if (m_isReading || m_rows.isEmpty() || !isVisible())
        return;
    m_isReading = true;
    std::vector<std::string> features;
    for (const QString &row : qAsConst(m_rows))
        features.push_back(row.toStdString());
    const auto values = std::make_shared<SelectorValues>();
    const auto work = [directory = m_selectors.directory(), selector = m_selector.toStdString(), features,
                          values](Device &device, const FeatureProgress &progress) {
        return readSelectorValues(device, directory, selector, features, *values, progress);
    };
    m_jobs.start(tr("Reading the values for each %1").arg(displayName(m_client, m_selector)),
        CameraJobs::StreamUse::Keep, work, this,
        [this, values, selector = m_selector](const CvxResult &result) {
            if (selector == m_selector)
                takeValues(result, *values);
        });
}

void SelectorTable::takeValues(const CvxResult &result, const SelectorValues &values)
{
    m_isReading = false;
    if (!result) {
        showMessage(m_message, QString::fromStdString(result.text), "error");
        return;
    }
    if (values.isShortened)
        showMessage(
            m_message, tr("The selector has more values; only the first ones are shown here."), "warning");
    m_model->setValues(values);
    m_view->resizeColumnsToContents();
    if (std::exchange(m_isOutdated, false))
        m_readTimer.start();
}

void SelectorTable::write(const QModelIndex &index, const NodeValue &value)
{
    showMessage(m_message, {}, "error");
    SelectedValue written;
    written.name = m_model->info(index).name;
    written.value = value;
    for (const SelectorSetting &outer :
        m_selectors.of(m_selector.toStdString()).value_or(std::vector<SelectorSetting>()))
        written.selectors.push_back(outer);
    written.selectors.push_back({m_selector.toStdString(), m_model->selectorValue(index)});
    const bool isLocked = m_model->state(index).lockReason == LockReason::StreamRunning;
    const auto work = [directory = m_selectors.directory(), written](Device &device,
                          const FeatureProgress &) { return writeSelectedValue(device, directory, written); };
    m_jobs.start(tr("Writing %1").arg(QString::fromStdString(m_model->info(index).displayName)),
        isLocked ? CameraJobs::StreamUse::Pause : CameraJobs::StreamUse::Keep, work, this,
        [this, written, before = m_model->state(index).value](
            const CvxResult &result) { takeWritten(result, written, before); });
}

void SelectorTable::takeWritten(const CvxResult &result, const SelectedValue &value, const NodeValue &before)
{
    if (!result)
        showMessage(m_message, QString::fromStdString(result.text), "error");
    else
        m_history.addEdits(QString::fromStdString(settingLabel(value.name, value.selectors)),
            {{value.selectors, value.name, settingText(before), settingText(value.value)}});
    read();
}
