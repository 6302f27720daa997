#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class ThermalSession;

/// Measures how the dark level of the pictures follows the temperature.
class DarkBox : public QWidget
{
    Q_OBJECT

public:
    /// @param session Outlives the widget.
    explicit DarkBox(ThermalSession &session, QWidget *parent = nullptr);

private:
    void show();

    ThermalSession &m_session;
    QPushButton *m_button;
    QLabel *m_instruction;
    QLabel *m_result;
    QLabel *m_message;
};
