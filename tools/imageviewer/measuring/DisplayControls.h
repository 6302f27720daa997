#pragma once

#include "tools/kit/picture/DisplaySettings.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QPushButton;

/// The controls for what concerns only the display: demosaicing, white balance, clip marks and the size of a
/// pixel. The contrast curve, which belongs to HistogramWidget, is kept here with the other settings.
class DisplayControls : public QWidget
{
    Q_OBJECT

public:
    explicit DisplayControls(QWidget *parent = nullptr);

    const DisplaySettings &settings() const { return m_settings; }

    // These functions emit the same signals as a person's choice.
    void setSettings(const DisplaySettings &settings);
    void setCurve(const ContrastCurve &curve);
    void setGains(const std::array<double, 3> &gains);
    void setMicrometresPerPixel(double micrometres);
    void setPickingGrey(bool isPicking);

    double micrometresPerPixel() const; ///< 0 if unknown.

    /// Disables what has no meaning for the picture.
    void setPictureKind(bool isBayer, bool hasColors);

    void setWhiteBalanceWritable(bool isWritable);

signals:
    void settingsChanged(const DisplaySettings &settings);
    void micrometresPerPixelChanged(double micrometres);
    void greyPickingChanged(bool isPicking);
    void whiteBalanceWriteRequested(const std::array<double, 3> &gains);

private:
    void addPictureRows(QFormLayout *layout);
    void addWhiteBalanceRows(QFormLayout *layout);
    void changeDemosaicing(int index);
    void changeClipMarks(bool isOn);
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
