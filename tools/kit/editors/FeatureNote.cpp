#include "tools/kit/editors/FeatureNote.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

FeatureNote::FeatureNote(QWidget *parent)
    : QWidget(parent),
      m_text(new QLabel(this)),
      m_buttons(new QWidget(this)),
      m_accept(new QPushButton(m_buttons)),
      m_reject(new QPushButton(tr("Discard"), m_buttons))
{
    m_text->setObjectName(QStringLiteral("featureNote"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setFocusPolicy(Qt::NoFocus);
    m_accept->setObjectName(QStringLiteral("primaryButton"));

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
    showKind(QStringLiteral("lock"), text);
}

void FeatureNote::showError(const QString &text)
{
    m_buttons->hide();
    showKind(QStringLiteral("error"), text);
}

void FeatureNote::showRemark(const QString &text)
{
    m_buttons->hide();
    showKind(QStringLiteral("remark"), text);
}

void FeatureNote::showQuestion(const QString &text, const QString &acceptText)
{
    m_accept->setText(acceptText);
    m_buttons->show();
    showKind(QStringLiteral("question"), text);
}

QString FeatureNote::text() const
{
    return m_text->text();
}

bool FeatureNote::isQuestion() const
{
    return !m_buttons->isHidden();
}

void FeatureNote::showKind(const QString &kind, const QString &text)
{
    m_text->setText(text);
    if (m_text->property("kind").toString() != kind) {
        m_text->setProperty("kind", kind);
        style()->unpolish(m_text); // A style sheet does not notice a changed property by itself.
        style()->polish(m_text);
    }
    show();
}
