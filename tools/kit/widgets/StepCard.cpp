#include "tools/kit/widgets/StepCard.h"

#include "tools/kit/widgets/Message.h"
#include "tools/kit/widgets/Role.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr int markSize = 22;

struct StateLook
{
    const char *severity; // The property "severity" of the card; see tools.qss.
    const char *markRole;
    const char *headingRole;
    const char *buttonRole;
    const char *name; // For a screen reader.
};

// In the order of StepCard::State.
constexpr StateLook stateLooks[] = {
    {"pending", "stepPending", "secondary", "",
        QT_TRANSLATE_NOOP("StepCard", "Step %1, not yet possible: %2")},
    {"notice", "stepCurrent", "heading", "primary", QT_TRANSLATE_NOOP("StepCard", "Step %1, next: %2")},
    {"ok", "stepDone", "heading", "", QT_TRANSLATE_NOOP("StepCard", "Step %1, done: %2")},
};

QLabel *createText(const QString &text, const char *role)
{
    auto *const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setProperty("role", QString::fromLatin1(role));
    return label;
}

} // namespace

StepCard::StepCard(
    int number, const QString &title, const QString &text, const QString &buttonText, QWidget *parent)
    : QFrame(parent),
      m_number(number),
      m_title(title),
      m_mark(new QLabel),
      m_heading(createText(title, "heading")),
      m_text(createText(text, "secondary")),
      m_result(createMessage()),
      m_controls(new QVBoxLayout)
{
    setProperty("role", QStringLiteral("card"));
    m_mark->setFixedSize(markSize, markSize);
    m_mark->setAlignment(Qt::AlignCenter);
    m_controls->setSpacing(6);
    auto *const layout = new QGridLayout(this);
    layout->setContentsMargins(10, 8, 10, 8);
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(6);
    layout->setColumnStretch(1, 1);
    layout->addWidget(m_mark, 0, 0, Qt::AlignTop);
    layout->addWidget(m_heading, 0, 1);
    layout->addWidget(m_text, 1, 1);
    layout->addLayout(m_controls, 2, 1);
    layout->addWidget(m_result, 3, 1);
    if (!buttonText.isEmpty()) {
        m_button = new QPushButton(buttonText);
        layout->addWidget(m_button, 4, 1, Qt::AlignLeft);
        connect(m_button, &QPushButton::clicked, this, &StepCard::triggered);
    }
    update();
}

void StepCard::setState(State state)
{
    m_state = state;
    update();
}

void StepCard::setText(const QString &text)
{
    m_text->setText(text);
}

void StepCard::setResult(const QString &text, const char *role)
{
    showMessage(m_result, text, role);
}

void StepCard::addWidget(QWidget *widget)
{
    m_controls->addWidget(widget);
}

void StepCard::setButtonAllowed(bool isAllowed)
{
    m_isButtonAllowed = isAllowed;
    update();
}

void StepCard::update()
{
    const StateLook &look = stateLooks[int(m_state)];
    setProperty("severity", QString::fromLatin1(look.severity));
    changeRole(this, "card");
    m_mark->setText(m_state == State::Done ? QString(QChar(0x2713)) : QString::number(m_number));
    changeRole(m_mark, look.markRole);
    changeRole(m_heading, look.headingRole);
    setAccessibleName(tr(look.name).arg(m_number).arg(m_title));
    m_heading->setAccessibleName(accessibleName());
    if (!m_button)
        return;
    m_button->setEnabled(m_isButtonAllowed && m_state != State::Pending);
    changeRole(m_button, look.buttonRole);
}
