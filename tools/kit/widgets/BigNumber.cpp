#include "tools/kit/widgets/BigNumber.h"

#include "tools/kit/widgets/Role.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QVariant>

BigNumber::BigNumber(const QString &caption, QWidget *parent)
    : QWidget(parent), m_value(new QLabel(this)), m_unit(new QLabel(this)), m_caption(new QLabel(this))
{
    for (QLabel *const label : {m_value, m_unit, m_caption})
        label->setTextFormat(Qt::PlainText);
    m_value->setObjectName(QStringLiteral("bigNumber"));
    m_value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_unit->setObjectName(QStringLiteral("bigUnit"));
    m_caption->setProperty("role", QStringLiteral("secondary"));
    m_caption->setWordWrap(true);
    auto *const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(6);
    layout->setVerticalSpacing(0);
    layout->setColumnStretch(1, 1);
    layout->addWidget(m_value, 0, 0, Qt::AlignBaseline);
    layout->addWidget(m_unit, 0, 1, Qt::AlignBaseline);
    layout->addWidget(m_caption, 1, 0, 1, 2);
    m_caption->setText(caption);
    clear();
}

void BigNumber::setValue(double value, int decimals, const QString &unit)
{
    setText(QLocale().toString(value, 'f', decimals), unit);
}

void BigNumber::setText(const QString &text, const QString &unit)
{
    m_value->setText(text);
    m_unit->setText(unit);
    describe();
}

void BigNumber::clear()
{
    setText(QString(QChar(0x2013)));
    setRole("");
}

void BigNumber::setCaption(const QString &caption)
{
    m_caption->setText(caption);
    describe();
}

QString BigNumber::text() const
{
    return m_unit->text().isEmpty() ? m_value->text() : m_value->text() + QLatin1Char(' ') + m_unit->text();
}

void BigNumber::setRole(const char *role)
{
    changeRole(m_value, role);
}

/// The caption is apart from the value, so a screen reader gets both together.
void BigNumber::describe()
{
    m_value->setAccessibleName(tr("%1: %2").arg(m_caption->text(), text()));
}
