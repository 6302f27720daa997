#include "tools/imageviewer/panel/CameraPanel.h"

#include "tools/imageviewer/panel/PanelLayout.h"
#include "tools/imageviewer/panel/RegionCall.h"
#include "tools/imageviewer/panel/WhiteBalanceCall.h"
#include "tools/kit/editors/CommandButton.h"
#include "tools/kit/editors/EditorNote.h"
#include "tools/kit/editors/FeatureEditors.h"
#include "tools/kit/editors/FeatureRow.h"
#include "tools/kit/editors/StreamPauser.h"
#include "tools/kit/widgets/CollapsibleGroup.h"
#include "tools/kit/widgets/VerticalScrollArea.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int labelCharacters = 16; ///< Width of the labels; longer ones are wrapped.
constexpr int contentMargin = 4; ///< Between the controls and the scroll bar.

QString stateKey(const QString &group)
{
    return QStringLiteral("CameraPanel/%1").arg(group);
}

QStringList featureNames(const FeatureClient &client)
{
    QStringList names;
    for (const CvxCPP::NodeInfo &node : client.nodes())
        names.append(QString::fromStdString(node.name));
    return names;
}

} // namespace

CameraPanel::CameraPanel(FeatureClient &client, QWidget *parent)
    : QWidget(parent),
      m_client(client),
      m_notice(new QLabel(this)),
      m_failure(new EditorNote(this)),
      m_groupLayout(new QVBoxLayout)
{
    for (const PanelGroup &group : panelGroups())
        m_isOpen.insert(group.key, group.isOpenAtFirst);
    setObjectName(QStringLiteral("cameraPanel"));
    m_notice->setObjectName(QStringLiteral("panelNotice"));
    m_notice->setProperty("role", QStringLiteral("warning"));
    m_notice->setWordWrap(true);

    auto *const content = new QWidget;
    content->setObjectName(QStringLiteral("cameraPanelContent"));
    auto *const contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(0, 0, contentMargin, 0);
    contentLayout->addLayout(m_groupLayout);
    contentLayout->addStretch();
    m_groupLayout->setSpacing(4);
    auto *const scrollArea = new VerticalScrollArea(this);
    scrollArea->setWidget(content);
    auto *const cameraSetup = new QPushButton(tr("All features (Camera Setup)"), this);
    cameraSetup->setObjectName(QStringLiteral("cameraSetupButton"));

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_notice);
    layout->addWidget(m_failure);
    layout->addWidget(scrollArea, 1);
    layout->addWidget(cameraSetup);

    connect(cameraSetup, &QPushButton::clicked, this, &CameraPanel::openCameraSetupRequested);
    connect(&client, &FeatureClient::nodesLoaded, this, &CameraPanel::onNodesLoaded);
    connect(&client, &FeatureClient::stateChanged, this, &CameraPanel::onFeatureChanged);
    connect(&client.connection(), &CameraConnection::stateChanged, this, &CameraPanel::showConnection);
    onNodesLoaded();
    showConnection();
}

void CameraPanel::setStreamPauser(StreamPauser *pauser)
{
    m_pauser = pauser;
    for (FeatureEditor *const editor : qAsConst(m_editors))
        editor->setStreamPauser(pauser);
}

FeatureEditor *CameraPanel::editor(const QString &feature) const
{
    return m_editors.value(feature);
}

void CameraPanel::saveState(QSettings &settings) const
{
    for (auto group = m_isOpen.begin(); group != m_isOpen.end(); ++group)
        settings.setValue(stateKey(group.key()), group.value());
}

void CameraPanel::restoreState(const QSettings &settings)
{
    for (auto group = m_isOpen.begin(); group != m_isOpen.end(); ++group)
        group.value() = settings.value(stateKey(group.key()), group.value()).toBool();
    for (CollapsibleGroup *const group : qAsConst(m_groups))
        group->setOpen(m_isOpen.value(group->objectName()));
}

void CameraPanel::applyRegion(const QRect &drawn, const QSize &picture)
{
    change(regionCall(drawn, picture), [this](const CvxCPP::CvxResult &result) { onRegionChanged(result); });
}

void CameraPanel::applyWholeSensor()
{
    change(wholeSensorCall(), [this](const CvxCPP::CvxResult &result) { onRegionChanged(result); });
}

void CameraPanel::writeWhiteBalance(const std::array<double, 3> &gains)
{
    m_failure->clear();
    m_client.connection().run(whiteBalanceCall(gains), this,
        [this](const CvxCPP::CvxResult &result) { onWhiteBalanceChanged(result); });
}

/// Keeps the groups if the same camera was opened again.
void CameraPanel::onNodesLoaded()
{
    const QStringList features = featureNames(m_client);
    const QString id = m_client.connection().camera().id;
    if (features.isEmpty() || (id == m_cameraId && features == m_features))
        return;
    m_cameraId = id;
    m_features = features;
    rebuild();
}

void CameraPanel::rebuild()
{
    m_editors.clear();
    m_regionButtons = nullptr;
    m_failure->clear();
    qDeleteAll(m_groups);
    m_groups.clear();
    for (const PanelGroup &group : panelGroups())
        addGroup(group);
    showConnection();
}

void CameraPanel::addGroup(const PanelGroup &layout)
{
    auto *const group = new CollapsibleGroup(layout.title);
    group->setObjectName(layout.key);
    group->hide(); // Until one of its features is found.
    m_groups.append(group);
    m_groupLayout->addWidget(group);
    for (const PanelRow &row : layout.rows) {
        auto *const widget = new FeatureRow(row, m_client, group);
        group->addWidget(widget);
        if (widget->editor())
            onFound(group, widget, widget->editor());
        connect(widget, &FeatureRow::found, this,
            [this, group, widget](FeatureEditor *editor) { onFound(group, widget, editor); });
    }
    if (layout.key == regionGroupKey())
        addRegionButtons(*group);
    group->setOpen(m_isOpen.value(layout.key));
    connect(group, &CollapsibleGroup::toggled, this,
        [this, key = layout.key](bool isOpen) { m_isOpen.insert(key, isOpen); });
}

void CameraPanel::addRegionButtons(CollapsibleGroup &group)
{
    m_regionButtons = new QWidget;
    auto *const draw = new QPushButton(tr("Draw on picture"), m_regionButtons);
    auto *const whole = new QPushButton(tr("Whole sensor"), m_regionButtons);
    draw->setToolTip(tr("Drag a rectangle over the part of the picture that the camera shall send."));
    auto *const layout = new QHBoxLayout(m_regionButtons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(draw, 1);
    layout->addWidget(whole);
    group.addWidget(m_regionButtons);
    connect(draw, &QPushButton::clicked, this, &CameraPanel::drawRegionRequested);
    connect(whole, &QPushButton::clicked, this, &CameraPanel::applyWholeSensor);
}

void CameraPanel::onFound(CollapsibleGroup *group, FeatureRow *row, FeatureEditor *editor)
{
    m_editors.insert(editor->feature(), editor);
    editor->setLabelWidth(fontMetrics().averageCharWidth() * labelCharacters);
    editor->setStreamPauser(m_pauser);
    if (!row->isSelector())
        group->show();
    auto *const command = qobject_cast<CommandButton *>(editor);
    if (command && editor->feature() == userSetSaveName())
        command->setQuestion([this] { return overwriteQuestion(); });
}

/// Takes the question about a user set back when another one is selected.
void CameraPanel::onFeatureChanged(const QString &name)
{
    FeatureEditor *const save = name == userSetSelectorName() ? editor(userSetSaveName()) : nullptr;
    if (save)
        save->rejectQuestion();
}

QString CameraPanel::overwriteQuestion() const
{
    const CvxCPP::NodeState *const selector = m_client.state(userSetSelectorName());
    const auto *const name = selector ? std::get_if<std::string>(&selector->value) : nullptr;
    return tr("Saving replaces what is stored in the camera as \"%1\".")
        .arg(name ? QString::fromStdString(*name) : QString());
}

void CameraPanel::showConnection()
{
    const CameraConnection &connection = m_client.connection();
    const bool isWatching = connection.state() == CameraConnection::State::Open && !connection.isControlled();
    m_notice->setText(
        isWatching ? tr("You are watching this camera, so nothing can be changed here.") : QString());
    m_notice->setVisible(isWatching);
    if (m_regionButtons)
        m_regionButtons->setEnabled(connection.isControlled());
}

void CameraPanel::change(const CameraConnection::Call &call, CameraConnection::Done done)
{
    m_failure->clear();
    if (m_regionButtons)
        m_regionButtons->setEnabled(false);
    if (m_pauser)
        m_pauser->pauseFor(call, this, std::move(done));
    else
        m_client.connection().run(call, this, std::move(done));
}

void CameraPanel::onRegionChanged(const CvxCPP::CvxResult &result)
{
    showConnection();
    showResult(result);
    if (result)
        emit regionApplied();
}

void CameraPanel::onWhiteBalanceChanged(const CvxCPP::CvxResult &result)
{
    showResult(result);
    if (result)
        emit whiteBalanceWritten();
}

void CameraPanel::showResult(const CvxCPP::CvxResult &result)
{
    if (!result)
        m_failure->showError(QString::fromStdString(result.text));
}
