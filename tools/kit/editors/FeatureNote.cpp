#include "tools/kit/editors/FeatureNote.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr double fontScale = 0.9; ///< A note is less important than the values.

} // namespace

FeatureNote::FeatureNote(QWidget *parent)
    : QWidget(parent),
      m_text(new QLabel(this)),
      m_buttons(new QWidget(this)),
      m_accept(new QPushButton(m_buttons)),
      m_reject(new QPushButton(tr("Discard"), m_buttons))
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

    connect(m_accept, &QPushButton::clicked, this, &FeatureNote::accepted);
    connect(m_reject, &QPushButton::clicked, this, &FeatureNote::rejected);
    clear();
}

void FeatureNote::clear()
{
    m_buttons->hide();
    m_text->clear();
    hide();
}

void FeatureNote::showLock(const QString &text)
{
    m_buttons->hide();
    showAs(QStringLiteral("secondary"), text);
}

void FeatureNote::showError(const QString &text)
{
    m_buttons->hide();
    showAs(QStringLiteral("error"), text);
}

void FeatureNote::showRemark(const QString &text)
{
    m_buttons->hide();
    showAs(QStringLiteral("warning"), text);
}

void FeatureNote::showQuestion(const QString &text, const QString &acceptText)
{
    m_accept->setText(acceptText);
    m_buttons->show();
    showAs({}, text);
}

QString FeatureNote::text() const
{
    return m_text->text();
}

bool FeatureNote::isQuestion() const
{
    return !m_buttons->isHidden();
}

void FeatureNote::showAs(const QString &role, const QString &text)
{
    m_text->setText(text);
    if (m_text->property("role").toString() != role) {
        m_text->setProperty("role", role);
        style()->unpolish(m_text); // A style sheet does not notice a changed property by itself.
        style()->polish(m_text);
    }
    show();
}
