#include "tools/kit/pages/FindingCard.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct SeverityLook
{
    const char *name;
    const char *property; // The severity of the card; see tools.qss.
    const char *role; // The role of the label.
};

// In the order of Severity.
constexpr SeverityLook severityLooks[] = {
    {QT_TRANSLATE_NOOP("FindingCard", "In order"), "ok", "good"},
    {QT_TRANSLATE_NOOP("FindingCard", "Note"), "notice", "secondary"},
    {QT_TRANSLATE_NOOP("FindingCard", "Warning"), "warning", "warning"},
    {QT_TRANSLATE_NOOP("FindingCard", "Error"), "error", "error"},
};

QLabel *createText(const std::string &text, const char *role)
{
    auto *const label = new QLabel(QString::fromStdString(text));
    label->setTextFormat(Qt::PlainText); // The text may contain the name of a camera.
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setProperty("role", QString::fromLatin1(role));
    return label;
}

} // namespace

FindingCard::FindingCard(const Finding &finding, QWidget *parent) : QFrame(parent)
{
    const SeverityLook &look = severityLooks[int(finding.severity)];
    setProperty("role", QStringLiteral("card"));
    setProperty("severity", QString::fromLatin1(look.property));

    auto *const severity = new QLabel(tr(look.name));
    severity->setProperty("role", QString::fromLatin1(look.role));
    auto *const top = new QHBoxLayout;
    top->addWidget(severity);
    top->addWidget(createText(finding.subject, "heading"), 1);

    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(createText(finding.what, ""));
    if (!finding.why.empty())
        layout->addWidget(createText(finding.why, "secondary"));
    if (!finding.command.empty())
        layout->addWidget(createCommand(QString::fromStdString(finding.command)));
}

QWidget *FindingCard::createCommand(const QString &command)
{
    auto *const text = new QLineEdit(command);
    text->setReadOnly(true);
    text->setCursorPosition(0);
    text->setProperty("role", QStringLiteral("code"));
    text->setAccessibleName(tr("Command"));
    auto *const copy = new QPushButton(tr("Copy"));
    copy->setToolTip(tr("Copies the command, which you can paste into a terminal."));
    connect(copy, &QPushButton::clicked, this, [command] { QApplication::clipboard()->setText(command); });

    auto *const row = new QWidget;
    auto *const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text, 1);
    layout->addWidget(copy);
    return row;
}
