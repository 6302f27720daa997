#pragma once

#include "tools/kit/picture/DisplaySettings.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;

/// The controls for what concerns only the display: demosaicing, white balance, clip marks and the size of a
/// pixel. The contrast curve belongs to HistogramWidget.
class DisplayControls : public QWidget
{
    Q_OBJECT

public:
    explicit DisplayControls(QWidget *parent = nullptr);

    /// Sets the controls without a signal.
    void setSettings(const DisplaySettings &settings);

    /// Shows and changes everything but the contrast curve, which is passed on.
    const DisplaySettings &settings() const { return m_settings; }
    void setCurve(const ContrastCurve &curve) { m_settings.curve = curve; }

    void setGains(const std::array<double, 3> &gains);

    double micrometresPerPixel() const;
    void setMicrometresPerPixel(double micrometres);

    /// Disables what has no meaning for the picture.
    void setPictureKind(bool isBayer, bool hasColors);

    void setWhiteBalanceWritable(bool isWritable);
    void setPickingGrey(bool isPicking);

signals:
    void settingsChanged(const DisplaySettings &settings);
    void micrometresPerPixelChanged(double micrometres);
    void greyPickingChanged(bool isPicking);
    void whiteBalanceWriteRequested(const std::array<double, 3> &gains);

private:
    void changeDemosaicing(int index);
    void changeClipMarks(bool isOn);
    void resetGains();
    void showGains();
    void enableButtons();

    DisplaySettings m_settings;
    bool m_hasColors = false;
    bool m_isWritable = false;
    QComboBox *m_demosaicing;
    QCheckBox *m_clipMarks;
    QDoubleSpinBox *m_micrometres;
    QLabel *m_gains;
    QPushButton *m_pickGrey;
    QPushButton *m_resetGains;
    QPushButton *m_writeGains;
};
