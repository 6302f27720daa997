#include "tools/camerasetup/settings/UserSetPanel.h"

#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/widgets/Message.h"
#include "tools/kit/widgets/Messages.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

UserSetPanel::UserSetPanel(const Parts &parts, QWidget *parent)
    : QWidget(parent),
      m_control(parts),
      m_text(createMessage(this)),
      m_content(new QWidget(this)),
      m_list(new QTreeWidget(m_content)),
      m_load(new QPushButton(tr("&Load…"), m_content)),
      m_save(new QPushButton(tr("&Save…"), m_content)),
      m_default(new QPushButton(tr("&Use at power-on"), m_content)),
      m_compare(new QPushButton(tr("Comp&are"), m_content)),
      m_reason(createMessage(m_content)),
      m_message(createMessage(this))
{
    setObjectName(QStringLiteral("userSetPanel"));
    m_text->setObjectName(QStringLiteral("text"));
    m_message->setObjectName(QStringLiteral("message"));
    createList();
    auto *const content = new QVBoxLayout(m_content);
    content->setContentsMargins(0, 0, 0, 0);
    content->addWidget(createButtons()); // Above the texts that come and go, so that no button moves.
    content->addWidget(m_list, 1);
    content->addWidget(m_reason);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_content, 1);
    layout->addWidget(m_message);
    layout->addStretch();
    connect(&parts.client, &FeatureClient::nodesLoaded, this, &UserSetPanel::readWhenVisible);
    connect(&parts.client, &FeatureClient::nodesGone, m_message, &QWidget::hide);
    connect(&m_control, &UserSetControl::changed, this, &UserSetPanel::showSets);
    connect(&m_control, &UserSetControl::succeeded, this, &UserSetPanel::showSuccess);
    connect(&m_control, &UserSetControl::failed, this, &UserSetPanel::showError);
    showSets();
}

void UserSetPanel::createList()
{
    m_list->setObjectName(QStringLiteral("userSets"));
    m_list->setAccessibleName(tr("User sets"));
    m_list->setHeaderLabels({tr("User set"), tr("At power-on")});
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &UserSetPanel::showButtons);
}

QWidget *UserSetPanel::createButtons()
{
    m_load->setObjectName(QStringLiteral("load"));
    m_save->setObjectName(QStringLiteral("save"));
    m_default->setObjectName(QStringLiteral("default"));
    m_compare->setObjectName(QStringLiteral("compare"));
    m_reason->setObjectName(QStringLiteral("reason"));
    auto *const buttons = new QWidget(m_content);
    auto *const layout = new QGridLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_load, 0, 0);
    layout->addWidget(m_save, 0, 1);
    layout->addWidget(m_default, 1, 0);
    layout->addWidget(m_compare, 1, 1);
    connect(m_load, &QPushButton::clicked, this, &UserSetPanel::askToLoad);
    connect(m_save, &QPushButton::clicked, this, &UserSetPanel::askToSave);
    connect(m_default, &QPushButton::clicked, this, &UserSetPanel::makeDefault);
    connect(m_compare, &QPushButton::clicked, this, &UserSetPanel::requestComparison);
    return buttons;
}

void UserSetPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    readWhenVisible();
}

/// Reading selects one set after the other, so it is only done for somebody.
void UserSetPanel::readWhenVisible()
{
    if (isVisible())
        m_control.read();
}

// ---- The list ---------------------------------------------------------------------------------------------

void UserSetPanel::showSets()
{
    const auto &userSets = m_control.userSets();
    const bool hasSets = userSets && !userSets->sets.empty();
    m_content->setVisible(hasSets);
    const QString text = hasSets ? QString()
        : userSets               ? tr("This camera keeps no user sets.")
                                 : tr("The user sets are not known yet.");
    showMessage(m_text, text, "secondary");
    if (!hasSets)
        return m_list->clear();
    const int count = int(userSets->sets.size());
    while (m_list->topLevelItemCount() > count)
        delete m_list->takeTopLevelItem(count);
    for (int row = 0; row < count; ++row) {
        if (row == m_list->topLevelItemCount())
            m_list->addTopLevelItem(new QTreeWidgetItem);
        const UserSet &userSet = userSets->sets[std::size_t(row)];
        m_list->topLevelItem(row)->setText(0, m_control.title(userSet));
        m_list->topLevelItem(row)->setText(1, m_control.isDefault(userSet) ? tr("✓ yes") : QString());
    }
    if (!m_list->currentItem())
        m_list->setCurrentItem(m_list->topLevelItem(0));
    showButtons();
}

const UserSet *UserSetPanel::current() const
{
    const auto &userSets = m_control.userSets();
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    return userSets && row >= 0 && row < int(userSets->sets.size()) ? &userSets->sets[std::size_t(row)]
                                                                    : nullptr;
}

void UserSetPanel::showButtons()
{
    const UserSet *const userSet = current();
    if (!userSet)
        return;
    const QString title = m_control.title(*userSet);
    struct Button
    {
        QPushButton *button;
        QString problem;
        QString toolTip;
        QString sentence; // What cannot be done.
    };
    const Button buttons[] = {{m_load, m_control.loadProblem(*userSet),
                                  tr("Replaces the settings of the camera by those of \"%1\".").arg(title),
                                  tr("\"%1\" cannot be loaded.").arg(title)},
        {m_save, m_control.saveProblem(*userSet), tr("Stores the present settings as \"%1\".").arg(title),
            tr("\"%1\" cannot be saved.").arg(title)},
        {m_default, m_control.defaultProblem(*userSet), tr("Lets the camera begin with \"%1\".").arg(title),
            tr("\"%1\" cannot be used at power-on.").arg(title)},
        {m_compare, m_control.compareProblem(*userSet),
            tr("Shows how the settings of the camera differ from this set."),
            tr("\"%1\" cannot be compared.").arg(title)}};
    QStringList reasons;
    for (const Button &button : buttons) {
        button.button->setEnabled(button.problem.isEmpty() && !m_control.isBusy());
        button.button->setToolTip(button.problem.isEmpty() ? button.toolTip : button.problem);
        if (!button.problem.isEmpty())
            reasons.append(button.sentence + QLatin1Char(' ') + button.problem);
    }
    m_default->setEnabled(m_default->isEnabled() && !m_control.isDefault(*userSet));
    showMessage(m_reason, reasons.join(QLatin1Char('\n')), "secondary");
}

// ---- The buttons ------------------------------------------------------------------------------------------

void UserSetPanel::askToLoad()
{
    const UserSet userSet = *current();
    QStringList text{
        tr("Load \"%1\"? The present settings of the camera are overwritten.").arg(m_control.title(userSet))};
    if (const int count = m_control.countChanges().value_or(0); count > 0)
        text.append(tr("%n feature(s) differ from those when the camera was opened.", nullptr, count));
    text.append(tr("Loading can be undone."));
    askToOverwrite(window(), tr("Load user set"), text.join(QLatin1Char('\n')), tr("&Load"), this,
        [this, userSet] { m_control.load(userSet); });
}

void UserSetPanel::askToSave()
{
    const UserSet userSet = *current();
    askToOverwrite(window(), tr("Save user set"),
        tr("Save the present settings as \"%1\"? What is in this set now is overwritten, which cannot be "
           "undone.")
            .arg(m_control.title(userSet)),
        tr("&Save"), this, [this, userSet] { m_control.save(userSet); });
}

void UserSetPanel::makeDefault()
{
    m_control.makeDefault(UserSet(*current()));
}

void UserSetPanel::requestComparison()
{
    emit compareRequested(QString::fromStdString(current()->name));
}

void UserSetPanel::showSuccess(const QString &text)
{
    showMessage(m_message, text, "good");
}

void UserSetPanel::showError(const QString &text)
{
    showMessage(m_message, text, "error");
}
