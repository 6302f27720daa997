#include "tools/camerasetup/details/DetailsPane.h"

#include "sdk/features/FeatureText.h"
#include "tools/camerasetup/details/CategoryPath.h"
#include "tools/camerasetup/details/SelectorTable.h"
#include "tools/camerasetup/values/Favourites.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/PresentSelectors.h"
#include "tools/camerasetup/values/ValueText.h"
#include "tools/kit/editors/FeatureEditor.h"
#include "tools/kit/editors/FeatureEditors.h"
#include "tools/kit/start/ToolIcons.h"
#include "tools/kit/widgets/VerticalScrollArea.h"

#include <QApplication>
#include <QClipboard>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

using namespace CvxCPP;

namespace {

QLabel *createText(const char *role)
{
    auto *const label = new QLabel;
    label->setProperty("role", QString::fromLatin1(role));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// These have their label in the control.
bool isLabelInControl(NodeType type)
{
    return type == NodeType::Boolean || type == NodeType::Command;
}

/// Returns the control that gets the focus first; null if there is none.
QWidget *firstControl(QWidget &editor)
{
    for (QWidget *widget = editor.nextInFocusChain(); widget != &editor;
         widget = widget->nextInFocusChain()) {
        if (editor.isAncestorOf(widget) && widget->focusPolicy() & Qt::TabFocus
            && widget->isVisibleTo(&editor))
            return widget;
    }
    return nullptr;
}

bool areSame(const FeatureFact &left, const FeatureFact &right)
{
    return left.title == right.title && left.text == right.text && left.features == right.features;
}

} // namespace

DetailsPane::DetailsPane(const Parts &parts, QWidget *parent)
    : QWidget(parent),
      m_parts(parts),
      m_content(new QWidget),
      m_editorLayout(new QVBoxLayout),
      m_factLayout(new QFormLayout),
      m_hint(createText("secondary")),
      m_path(createText("secondary")),
      m_title(createText("title")),
      m_name(createText("code")),
      m_description(createText("")),
      m_star(new QToolButton),
      m_copy(new QToolButton),
      m_table(new QPushButton(tr("All values side by side")))
{
    m_hint->setText(tr("Select a feature to see what the camera says about it."));
    m_factLayout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_factLayout->setContentsMargins(0, 0, 0, 0);
    auto *const layout = new QVBoxLayout(m_content);
    layout->setSpacing(10);
    layout->addWidget(m_path);
    layout->addWidget(createTop());
    layout->addLayout(m_editorLayout);
    layout->addWidget(createOpeningRow());
    layout->addWidget(m_table, 0, Qt::AlignLeft);
    layout->addWidget(m_description);
    layout->addLayout(m_factLayout);
    layout->addStretch();

    auto *const area = new VerticalScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(m_content);
    auto *const outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    m_hint->setMargin(12);
    outer->addWidget(m_hint);
    outer->addWidget(area, 1);

    connect(
        m_star, &QToolButton::toggled, this, [this](bool isOn) { m_parts.favourites.set(m_feature, isOn); });
    connect(m_copy, &QToolButton::clicked, this, &DetailsPane::copyName);
    connect(m_table, &QPushButton::clicked, this, [this] { emit tableRequested(m_feature); });
    connect(m_setBack, &QPushButton::clicked, this, &DetailsPane::setBack);
    connect(&parts.client, &FeatureClient::stateChanged, this, &DetailsPane::onStateChanged);
    connect(&parts.client, &FeatureClient::nodesLoaded, this, &DetailsPane::startAnew);
    connect(&parts.opening, &OpeningSnapshot::stateChanged, this, &DetailsPane::showOpening);
    connect(&parts.opening, &OpeningSnapshot::changedFeatures, this, &DetailsPane::showOpening);
    connect(&parts.favourites, &Favourites::changed, this, &DetailsPane::showFavourite);
    connect(&parts.favourites, &Favourites::modelChanged, this, &DetailsPane::showFavourite);
    rebuild();
}

QWidget *DetailsPane::createTop()
{
    m_star->setCheckable(true);
    m_star->setIcon(ToolIcons::icon(ToolIcons::Kind::Star));
    m_star->setToolTip(tr("Favourite"));
    m_star->setAccessibleName(tr("Favourite"));
    m_copy->setIcon(ToolIcons::icon(ToolIcons::Kind::Copy));
    m_copy->setToolTip(tr("Copy the name used in programs"));
    m_copy->setAccessibleName(tr("Copy the name used in programs"));
    for (QToolButton *const button : {m_star, m_copy})
        button->setFocusPolicy(Qt::StrongFocus);

    auto *const top = new QWidget;
    auto *const layout = new QGridLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(0, 1);
    layout->addWidget(m_title, 0, 0);
    layout->addWidget(m_star, 0, 1, Qt::AlignTop);
    layout->addWidget(m_name, 1, 0);
    layout->addWidget(m_copy, 1, 1);
    return top;
}

QWidget *DetailsPane::createOpeningRow()
{
    m_openingRow = new QWidget;
    m_openingText = createText("secondary");
    m_setBack = new QPushButton(tr("Set back"));
    m_setBack->setToolTip(tr("Writes the value that the camera had when it was opened."));
    auto *const layout = new QHBoxLayout(m_openingRow);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_openingText, 1);
    layout->addWidget(m_setBack);
    return m_openingRow;
}

void DetailsPane::setStreamPauser(StreamPauser *pauser)
{
    m_pauser = pauser;
    if (m_editor)
        m_editor->setStreamPauser(pauser);
    for (FeatureEditor *const editor : qAsConst(m_kept))
        editor->setStreamPauser(pauser);
}

void DetailsPane::setFeature(const QString &name)
{
    if (name == m_feature)
        return;
    m_feature = name;
    rebuild();
}

/// Forgets all editors: the features are new ones.
void DetailsPane::startAnew()
{
    delete std::exchange(m_editor, nullptr);
    qDeleteAll(m_kept);
    m_kept.clear();
    rebuild();
}

/// Keeps the editor while it contains something that was typed and not written.
void DetailsPane::putEditorAway()
{
    FeatureEditor *const editor = std::exchange(m_editor, nullptr);
    if (!editor || !editor->hasEdits())
        return delete editor;
    editor->hide();
    m_editorLayout->removeWidget(editor);
    m_kept.insert(editor->feature(), editor);
}

void DetailsPane::rebuild()
{
    putEditorAway();
    const NodeInfo *const info = m_parts.client.info(m_feature);
    m_hint->setVisible(!info);
    m_content->setVisible(info);
    if (!info)
        return;
    m_path->setText(categoryPath(m_parts.client, *info));
    m_title->setText(QString::fromStdString(info->displayName));
    m_name->setText(m_feature);
    const std::string &text = info->description.empty() ? info->toolTip : info->description;
    m_description->setText(QString::fromStdString(text));
    m_description->setVisible(!text.empty());
    m_star->setVisible(info->type != NodeType::Category);
    m_table->setVisible(SelectorTable::hasTable(*info));
    placeEditor(*info);
    showFavourite();
    showOpening();
    showFacts();
}

void DetailsPane::placeEditor(const NodeInfo &info)
{
    m_editor = m_kept.take(m_feature);
    if (!m_editor)
        m_editor = createEditor(info);
    if (!m_editor)
        return;
    m_editorLayout->addWidget(m_editor);
    m_editor->show();
    setFocusProxy(firstControl(*m_editor));
}

FeatureEditor *DetailsPane::createEditor(const NodeInfo &info)
{
    FeatureEditor *const editor = createFeatureEditor(info, m_parts.client, m_content);
    if (!editor)
        return nullptr;
    if (!isLabelInControl(info.type))
        editor->setLabelWidth(0);
    editor->setLockHelp(true);
    editor->setStreamPauser(m_pauser);
    connect(editor, &FeatureEditor::featureRequested, this, &DetailsPane::featureRequested);
    return editor;
}

void DetailsPane::onStateChanged(const QString &name)
{
    if (name == m_feature)
        showFacts();
    if (name == m_feature || m_parts.selectors.directory().isSelector(name.toStdString()))
        showOpening();
}

// ---- What the camera says of the feature ------------------------------------------------------------------

QVector<FeatureFact> DetailsPane::facts(const NodeInfo &info) const
{
    QVector<FeatureFact> found = featureFacts(info, m_parts.client.state(m_feature));
    if (info.type != NodeType::Category)
        return found;
    FeatureFact content{tr("Contains"), {}, {}};
    for (const NodeInfo &node : m_parts.client.nodes()) {
        if (node.category == info.name)
            content.features.append(QString::fromStdString(node.name));
    }
    found.append(content);
    return found;
}

void DetailsPane::showFacts()
{
    const NodeInfo *const info = m_parts.client.info(m_feature);
    const QVector<FeatureFact> wanted = info ? facts(*info) : QVector<FeatureFact>();
    if (std::equal(wanted.begin(), wanted.end(), m_shownFacts.begin(), m_shownFacts.end(), areSame))
        return; // The selected text of a label stays.
    m_shownFacts = wanted;
    while (m_factLayout->rowCount() > 0)
        m_factLayout->removeRow(0);
    for (const FeatureFact &fact : wanted) {
        QLabel *const title = createText("secondary");
        title->setText(fact.title);
        title->setWordWrap(false);
        QLabel *const text = createText("");
        text->setTextFormat(Qt::RichText);
        text->setText(factText(fact));
        text->setTextInteractionFlags(Qt::TextBrowserInteraction);
        text->setAccessibleName(fact.title);
        connect(text, &QLabel::linkActivated, this, &DetailsPane::featureRequested);
        m_factLayout->addRow(title, text);
    }
}

QString DetailsPane::factText(const FeatureFact &fact) const
{
    if (fact.features.isEmpty())
        return fact.text.toHtmlEscaped();
    QStringList links;
    for (const QString &feature : fact.features)
        links.append(linkTo(feature));
    return links.join(QStringLiteral(", "));
}

QString DetailsPane::linkTo(const QString &feature) const
{
    const NodeInfo *const info = m_parts.client.info(feature);
    if (!info)
        return feature.toHtmlEscaped();
    return QStringLiteral("<a style=\"color: #64b5f6; text-decoration: none\" href=\"%1\">%2</a>")
        .arg(feature.toHtmlEscaped(), QString::fromStdString(info->displayName).toHtmlEscaped());
}

// ---- The value at opening, favourites, the name -----------------------------------------------------------

std::optional<NodeValue> DetailsPane::valueAtOpening() const
{
    const NodeInfo *const info = m_parts.client.info(m_feature);
    const auto selectors = m_parts.selectors.of(m_feature.toStdString());
    if (!info || !selectors)
        return std::nullopt;
    const auto text = m_parts.opening.value(info->name, *selectors);
    if (!text)
        return std::nullopt;
    const auto value = settingValue(info->type, *text);
    const auto *const parsed = std::get_if<NodeValue>(&value);
    return parsed ? std::optional(*parsed) : std::nullopt;
}

void DetailsPane::showOpening()
{
    const NodeInfo *const info = m_parts.client.info(m_feature);
    const NodeState *const state = m_parts.client.state(m_feature);
    const auto value = valueAtOpening();
    m_openingRow->setVisible(info && value);
    if (!info || !value)
        return;
    const bool isChanged = state && !isSameValue(state->value, *value);
    m_openingText->setText(isChanged ? tr("At opening: %1").arg(plainValueText(*info, *value))
                                     : tr("As it was when the camera was opened"));
    m_setBack->setVisible(isChanged);
    m_setBack->setEnabled(m_editor && m_editor->isEditable());
}

void DetailsPane::setBack()
{
    if (const auto value = valueAtOpening(); value && m_editor)
        m_editor->submit(*value);
}

void DetailsPane::showFavourite()
{
    const QSignalBlocker blocker(m_star);
    m_star->setChecked(m_parts.favourites.contains(m_feature));
}

void DetailsPane::copyName() const
{
    QApplication::clipboard()->setText(m_feature);
}
