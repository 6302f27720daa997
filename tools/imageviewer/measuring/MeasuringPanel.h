#pragma once

#include "CvxCPP/Image.h"
#include "tools/kit/measure/Measurements.h"
#include "tools/kit/picture/DisplaySettings.h"

#include <QLine>
#include <QPoint>
#include <QRect>
#include <QWidget>

#include <array>

class DisplayControls;
class HistogramWidget;
class ProfileBox;
class QComboBox;
class QLabel;
class QPushButton;
class QVBoxLayout;
class StatisticsTable;

/// The panel with histogram, line profile, statistics and the settings of the display. Scrolls if it is
/// higher than its place.
///
/// The window connects it as follows. measureRequestChanged() goes to Measurer::setRequest(), and
/// Measurer::measured() comes back to setMeasurements(). displaySettingsChanged() and
/// micrometresPerPixelChanged() go to the canvas. The canvas's regionChanged(), lineChanged() and
/// pointerMoved() go to setRegion(), setLine() and setPointer(). While a person picks a grey patch, as
/// greyPickingChanged() reports, the canvas's picked() leads to balanceWhite() with the image that is shown.
/// whiteBalanceWriteRequested() asks to multiply the camera's white balance by the gains; when the camera has
/// them, the window calls resetWhiteBalance(). A panel that is not visible requests nothing.
class MeasuringPanel : public QWidget
{
    Q_OBJECT

public:
    explicit MeasuringPanel(QWidget *parent = nullptr);

    MeasureRequest measureRequest() const;
    const DisplaySettings &displaySettings() const;
    double micrometresPerPixel() const;
    bool isLogarithmic() const;

    // These functions restore earlier choices and emit the same signals as a person's choice.
    void setDisplaySettings(const DisplaySettings &settings);
    void setMicrometresPerPixel(double micrometres);
    void setLogarithmic(bool isLogarithmic);

    /// Enables the button that writes the white balance to the camera.
    void setWhiteBalanceWritable(bool isWritable);

    /// Makes the surroundings of this pixel grey, and ends picking; or says why they cannot serve.
    void balanceWhite(const CvxCPP::Image &image, const QPoint &pixel);
    void resetWhiteBalance();

public slots:
    void setMeasurements(const Measurements &measurements);
    void setRegion(const QRect &region); ///< Empty if none is drawn.
    void setLine(const QLine &line); ///< Null if none is drawn.
    void setPointer(const QPoint &pixel); ///< The pixel under the pointer or the crosshair.
    void clear(); ///< There is no picture any more.
    void fitContrast(); ///< Has no effect before the first histogram.
    void resetContrast();

signals:
    void measureRequestChanged(const MeasureRequest &request);
    void displaySettingsChanged(const DisplaySettings &settings);
    void micrometresPerPixelChanged(double micrometres);
    void greyPickingChanged(bool isPicking);
    void whiteBalanceWriteRequested(const std::array<double, 3> &gains);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void addHistogram(QVBoxLayout *layout);
    void addStatistics(QVBoxLayout *layout);
    void addDisplay(QVBoxLayout *layout);
    void requestMeasurement();
    void describePicture(const Measurements &measurements);

    HistogramWidget *m_histogram;
    QPushButton *m_logarithmic;
    ProfileBox *m_profile;
    StatisticsTable *m_statistics;
    DisplayControls *m_display;
    QComboBox *m_area; ///< Whole picture or drawn region.
    QLabel *m_message;
    std::uint32_t m_pixelFormat = 0; ///< The format that the controls were enabled for.
    QRect m_region;
};
