#include "tools/kit/editors/EditorNote.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr double fontScale = 0.9; ///< A note is less important than the values.

} // namespace

EditorNote::EditorNote(QWidget *parent)
    : QWidget(parent),
      m_text(new QLabel(this)),
      m_buttons(new QWidget(this)),
      m_accept(new QPushButton(m_buttons)),
      m_reject(new QPushButton(tr("Discard"), m_buttons)),
      m_unlock(new QPushButton(this)),
      m_show(new QPushButton(this))
{
    m_text->setObjectName(QStringLiteral("featureNote"));
    QFont font = m_text->font();
    font.setPointSizeF(font.pointSizeF() * fontScale);
    m_text->setFont(font);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setFocusPolicy(Qt::NoFocus);
    m_accept->setProperty("role", QStringLiteral("primary"));

    auto *const buttonLayout = new QHBoxLayout(m_buttons);
    buttonLayout->setContentsMargins(0, 0, 0, 0);
    buttonLayout->addWidget(m_accept);
    buttonLayout->addWidget(m_reject);
    buttonLayout->addStretch();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_text);
    layout->addWidget(m_buttons);
    layout->addWidget(m_unlock, 0, Qt::AlignLeft); // Below each other, because the names can be long.
    layout->addWidget(m_show, 0, Qt::AlignLeft);

    connect(m_accept, &QPushButton::clicked, this, &EditorNote::accepted);
    connect(m_reject, &QPushButton::clicked, this, &EditorNote::rejected);
    connect(m_unlock, &QPushButton::clicked, this, &EditorNote::unlockRequested);
    connect(m_show, &QPushButton::clicked, this, &EditorNote::featureRequested);
    clear();
}

void EditorNote::clear()
{
    hideButtons();
    m_text->clear();
    hide();
}

void EditorNote::showLock(const QString &text, const QString &unlockText, const QString &showText)
{
    m_buttons->hide();
    m_unlock->setText(unlockText);
    m_unlock->setHidden(unlockText.isEmpty());
    m_show->setText(showText);
    m_show->setHidden(showText.isEmpty());
    showAs(QStringLiteral("secondary"), text);
}

void EditorNote::showError(const QString &text)
{
    hideButtons();
    showAs(QStringLiteral("error"), text);
}

void EditorNote::showRemark(const QString &text)
{
    hideButtons();
    showAs(QStringLiteral("warning"), text);
}

void EditorNote::showQuestion(const QString &text, const QString &acceptText)
{
    hideButtons();
    m_accept->setText(acceptText);
    m_buttons->show();
    showAs({}, text);
}

QString EditorNote::text() const
{
    return m_text->text();
}

bool EditorNote::isQuestion() const
{
    return !m_buttons->isHidden();
}

void EditorNote::hideButtons()
{
    for (QWidget *const button :
        {m_buttons, static_cast<QWidget *>(m_unlock), static_cast<QWidget *>(m_show)})
        button->hide();
}

void EditorNote::showAs(const QString &role, const QString &text)
{
    m_text->setText(text);
    if (m_text->property("role").toString() != role) {
        m_text->setProperty("role", role);
        style()->unpolish(m_text); // A style sheet does not notice a changed property by itself.
        style()->polish(m_text);
    }
    show();
}
