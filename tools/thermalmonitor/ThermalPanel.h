#pragma once

#include <QVector>
#include <QWidget>

class DarkBox;
class LogBox;
class PlaceCard;
class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QVBoxLayout;
class TemperaturePlot;
class ThermalSession;
class ThresholdBox;
class ToolSettings;

/// Everything about the temperatures of the camera: the values, the plot, thresholds, log and dark level.
class ThermalPanel : public QWidget
{
    Q_OBJECT

public:
    /// The objects must outlive the widget.
    ThermalPanel(ThermalSession &session, ToolSettings &settings, QWidget *parent = nullptr);

    const TemperaturePlot &plot() const { return *m_plot; }
    LogBox &log() { return *m_log; }

    /// Shows what has happened last with the thresholds.
    /// @param role See showMessage().
    void showAlert(const QString &text, const char *role);

signals:
    void saveRequested();

private:
    QWidget *createControls();
    void show();
    void showCards();

    ThermalSession &m_session;
    ToolSettings &m_settings;
    QLabel *m_alert;
    QLabel *m_problem;
    QVBoxLayout *m_cardLayout;
    QVector<PlaceCard *> m_cards;
    TemperaturePlot *m_plot;
    QDoubleSpinBox *m_interval;
    ThresholdBox *m_thresholds;
    LogBox *m_log;
    DarkBox *m_dark;
    QPushButton *m_save;
};
