#include "packaging/toolstandin/ToolStandInWindow.h"

#include "config/LauncherConfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

ToolStandInWindow::ToolStandInWindow(const QString &program, QWidget *parent) : QWidget(parent)
{
    const QString name = toolName(program);
    setWindowTitle(name);
    setMinimumWidth(440);

    auto *title = new QLabel(name, this);
    title->setObjectName(QStringLiteral("titleLabel")); // The style sheet makes this label large and white.
    auto *notice = new QLabel(tr("This window stands in for the SDK's tool. It shows that the tool was "
                                 "started, and does nothing else."),
        this);
    notice->setWordWrap(true);

    auto *facts = new QGridLayout;
    facts->setHorizontalSpacing(16);
    facts->setColumnStretch(1, 1);
    addRow(facts, tr("Started as"), program);
    addRow(facts, tr("Process ID"), QString::number(QCoreApplication::applicationPid()));
    addRow(facts, tr("Working directory"), QDir::currentPath());

    auto *closeButton = new QPushButton(tr("Close"), this);
    connect(closeButton, &QPushButton::clicked, this, [this] { close(); });

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(14);
    layout->addWidget(title);
    layout->addWidget(notice);
    layout->addLayout(facts);
    layout->addStretch();
    layout->addWidget(closeButton, 0, Qt::AlignRight);
}

QString ToolStandInWindow::toolName(const QString &program)
{
    QString fileName = QFileInfo(program).fileName();
    LauncherConfig config;
    config.load();
    const QString platform = QStringLiteral("linux_") + QSysInfo::currentCpuArchitecture();
    const QVector<ToolConfig> tools = config.allTools(platform);
    for (const ToolConfig &tool : tools) {
        if (QFileInfo(tool.executable).fileName() == fileName)
            return tool.name;
    }
    return fileName;
}

void ToolStandInWindow::addRow(QGridLayout *facts, const QString &label, const QString &value)
{
    auto *text = new QLabel(value, this);
    text->setStyleSheet(QStringLiteral("color: #e8edf2;"));
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setWordWrap(true);
    const int row = facts->rowCount();
    facts->addWidget(new QLabel(label, this), row, 0, Qt::AlignTop);
    facts->addWidget(text, row, 1);
}
