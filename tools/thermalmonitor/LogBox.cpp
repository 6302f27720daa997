#include "tools/thermalmonitor/LogBox.h"

#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/Message.h"
#include "tools/kit/widgets/ToolTip.h"
#include "tools/thermalmonitor/ThermalSession.h"

#include <QDateTime>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <QVariant>

namespace {

const QString folderKey = QStringLiteral("log/folder");

} // namespace

LogBox::LogBox(ThermalSession &session, ToolSettings &settings, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_settings(settings),
      m_button(new QPushButton(this)),
      m_file(new QLabel(this)),
      m_message(createMessage(this))
{
    m_button->setObjectName(QStringLiteral("logButton"));
    m_button->setToolTip(tr("Appends each reading to a CSV file until you stop it. A file of the same camera "
                            "is continued."));
    m_file->setObjectName(QStringLiteral("logFile"));
    m_file->setTextFormat(Qt::PlainText);
    m_file->setWordWrap(true);
    m_file->setProperty("role", QStringLiteral("secondary"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_button);
    layout->addWidget(m_file);
    layout->addWidget(m_message);
    connect(m_button, &QPushButton::clicked, this, &LogBox::toggle);
    connect(&m_session, &ThermalSession::changed, this, &LogBox::show);
    show();
}

void LogBox::start(const QString &path)
{
    m_startProblem = m_session.startLog(path);
    show();
}

void LogBox::toggle()
{
    if (m_session.isLogging())
        return m_session.stopLog();
    const QString folder
        = m_settings.value(folderKey, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString name = QStringLiteral("temperatures-%1.csv")
                             .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss")));
    // An existing log is continued, and any other file is left alone, so there is nothing to confirm.
    const QString path
        = QFileDialog::getSaveFileName(this, tr("Log the temperatures"), folder + QLatin1Char('/') + name,
            tr("CSV table (*.csv)"), nullptr, QFileDialog::DontConfirmOverwrite);
    if (path.isEmpty())
        return;
    m_settings.setValue(folderKey, QFileInfo(path).path());
    start(QFileInfo(path).suffix().isEmpty() ? path + QStringLiteral(".csv") : path);
}

void LogBox::show()
{
    const QString path = m_session.logPath();
    const bool isLogging = !path.isEmpty();
    m_button->setText(isLogging ? tr("Stop the &log") : tr("Start a &log…"));
    m_button->setEnabled(m_session.monitor() != nullptr);
    m_file->setText(
        isLogging ? tr("Log: %1").arg(QFileInfo(path).fileName()) : tr("The readings are not logged."));
    m_file->setToolTip(plainToolTip(path));
    if (isLogging)
        m_startProblem.clear();
    showMessage(m_message, isLogging ? m_session.logProblem() : m_startProblem, "error");
}
