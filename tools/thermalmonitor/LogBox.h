#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class ThermalSession;
class ToolSettings;

/// Starts and stops the log of a session and shows its file.
class LogBox : public QWidget
{
    Q_OBJECT

public:
    /// The objects must outlive the widget.
    LogBox(ThermalSession &session, ToolSettings &settings, QWidget *parent = nullptr);

    /// Starts a log in this file.
    void start(const QString &path);

private:
    void toggle();
    void show();

    ThermalSession &m_session;
    ToolSettings &m_settings;
    QPushButton *m_button;
    QLabel *m_file;
    QLabel *m_message;
    QString m_startProblem;
};
