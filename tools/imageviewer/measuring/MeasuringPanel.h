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
class ProfileWidget;
class QCheckBox;
class QComboBox;
class QLabel;
class StatisticsTable;

/// The panel with histogram, line profile, statistics and the settings of the display.
///
/// The window connects it as follows. measureRequestChanged() goes to Measurer::setRequest(), and
/// Measurer::measured() comes back to setMeasurements(). displaySettingsChanged() goes to the canvas and so
/// to PictureFeed, micrometresPerPixelChanged() to the canvas. Of the canvas, regionChanged(), lineChanged()
/// and pointerMoved() go to setRegion(), setLine() and setPointer(). While a person picks a grey patch, which
/// greyPickingChanged() tells, a click in the canvas calls balanceWhite() with the image that is shown.
/// whiteBalanceWriteRequested() asks to multiply the camera's own balance by the gains; when that is done,
/// the window calls resetWhiteBalance(). A panel that is not visible requests nothing.
class MeasuringPanel : public QWidget
{
    Q_OBJECT

public:
    explicit MeasuringPanel(QWidget *parent = nullptr);

    MeasureRequest measureRequest() const;
    const DisplaySettings &displaySettings() const;
    double micrometresPerPixel() const;

    /// Restore earlier choices, with the same signals as those of a person.
    void setDisplaySettings(const DisplaySettings &settings);
    void setMicrometresPerPixel(double micrometres);

    /// Enables the button that writes the white balance to the camera.
    void setWhiteBalanceWritable(bool isWritable);

    /// Makes the surroundings of this pixel grey, and ends picking. Says so if the picture has no colours.
    void balanceWhite(const CvxCPP::Image &image, const QPoint &pixel);
    void resetWhiteBalance();

public slots:
    void setMeasurements(const Measurements &measurements);
    void setRegion(const QRect &region); ///< Empty if none is drawn.
    void setLine(const QLine &line); ///< Null if none is drawn.
    void setPointer(const QPoint &pixel); ///< The pixel under the pointer or the crosshair.
    void clear(); ///< There is no picture any more.
    void applyAutomaticContrast();
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
    enum class ProfileKind
    {
        Row,
        Column,
        DrawnLine
    };

    QWidget *createHistogramBox();
    QWidget *createStatisticsBox();
    QWidget *createProfileBox();
    void changeCurve(const ContrastCurve &curve);
    void changeRequest();
    std::optional<MeasuredLine> profileLine() const;
    void describePicture(const Measurements &measurements);

    HistogramWidget *m_histogram;
    ProfileWidget *m_profile;
    StatisticsTable *m_statistics;
    DisplayControls *m_display;
    QComboBox *m_area; ///< Whole picture or drawn region.
    QComboBox *m_profileKind;
    QLabel *m_profileText;
    QLabel *m_message;
    QRect m_region;
    QLine m_line;
    QPoint m_pointer;
};
