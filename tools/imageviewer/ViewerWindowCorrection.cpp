// The correction of the pictures.

#include "tools/imageviewer/ViewerWindow.h"
#include "tools/imageviewer/files/CorrectionDialog.h"
#include "tools/imageviewer/measuring/MeasuringPanel.h"
#include "tools/kit/widgets/Role.h"

#include <QLabel>

void ViewerWindow::connectCorrection()
{
    connect(&m_correction, &PictureCorrection::changed, this, &ViewerWindow::applyCorrection);
    connect(&m_feed, &PictureFeed::rendered, this,
        [this](const ShownPicture &picture) { m_correction.checkPicture(picture.image->GetInfo()); });
    connect(&m_stream, &LiveStream::stateChanged, this, [this] {
        if (m_stream.state() == LiveStream::State::Running) // Mirroring and binning change without a stream.
            m_correction.checkCamera();
    });
}

void ViewerWindow::openCorrections()
{
    if (!m_corrections)
        m_corrections = new CorrectionDialog(m_correction, this);
    m_corrections->show();
    m_corrections->raise();
    m_corrections->activateWindow();
}

void ViewerWindow::applyCorrection()
{
    const CorrectionSource active = m_correction.active();
    m_saver.setCorrection(active);
    m_recording.setCorrection(active);
    const bool isMissing = m_correction.choice().isOn && !m_correction.problem().isEmpty();
    const QString state = isMissing ? tr("Not corrected") : QString();
    m_correctionState->setText(active.correction ? tr("Corrected") : state);
    m_correctionState->setToolTip(m_correction.problem());
    changeRole(m_correctionState, isMissing ? "warning" : "");
    updateDisplay();
}

void ViewerWindow::updateDisplay()
{
    DisplaySettings display = m_measuringPanel->displaySettings();
    display.correction = m_correction.active().correction;
    m_canvas->setDisplaySettings(display);
}
