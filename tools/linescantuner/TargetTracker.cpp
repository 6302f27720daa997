#include "tools/linescantuner/TargetTracker.h"

#include "tools/kit/canvas/ImageCanvas.h"

namespace {

constexpr double maxSearches = 10; // Per second.
constexpr int stillTime = 250; // Milliseconds; the eye needs them to compare the ellipse with the picture.

} // namespace

TargetTracker::TargetTracker(LivePicture &picture, QObject *parent)
    : QObject(parent),
      m_picture(picture),
      m_analysis(
          [this](const std::shared_ptr<const CvxCPP::Image> &image) { return search(image); }, maxSearches)
{
    m_still.setSingleShot(true);
    m_still.setInterval(stillTime);
    connect(&m_still, &QTimer::timeout, this, &TargetTracker::roll);
    m_picture.canvas().addOverlay(&m_overlay);
    connect(&m_picture.canvas(), &ImageCanvas::painted, this, &TargetTracker::searchShown);
}

TargetTracker::~TargetTracker()
{
    m_picture.canvas().removeOverlay(&m_overlay);
}

void TargetTracker::setOn(bool isOn)
{
    m_isOn = isOn;
    clear();
}

void TargetTracker::setColumns(const TargetColumns &columns)
{
    m_overlay.columns = columns;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_columns = columns;
    }
    m_overlay.target.reset();
    m_analysis.repeat();
    m_picture.canvas().update();
}

void TargetTracker::clear()
{
    m_still.stop();
    m_analysis.clear();
    m_overlay.target.reset();
    roll();
    m_picture.canvas().update();
}

void TargetTracker::searchShown()
{
    const std::shared_ptr<const CvxCPP::Image> shown = m_picture.canvas().picture().image;
    if (!m_isOn || !shown || shown == m_searched.lock())
        return;
    if (m_isStill) { // This picture was on its way when the other one was stopped.
        m_overlay.target.reset();
        return m_picture.canvas().update();
    }
    m_isStill = true;
    m_searched = shown;
    m_overlay.target.reset();
    m_picture.feed().setFrozen(true);
    m_analysis.take(shown);
}

LiveAnalysis::Deliver TargetTracker::search(const std::shared_ptr<const CvxCPP::Image> &image)
{
    TargetColumns columns;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        columns = m_columns;
    }
    const TargetSearch found
        = image->GetInfo().isComplete ? m_finder.find(rawImage(*image), columns) : TargetSearch();
    return [this, found] { show(found); };
}

void TargetTracker::show(const TargetSearch &search)
{
    const bool isShown = m_picture.canvas().picture().image == m_searched.lock();
    m_overlay.target = isShown ? search.target : std::nullopt;
    m_picture.canvas().update();
    if (m_overlay.target)
        m_still.start();
    else
        roll();
    emit searched(search);
}

void TargetTracker::roll()
{
    m_isStill = false;
    m_overlay.target.reset(); // The next picture shows the target at another place.
    m_picture.feed().setFrozen(false);
}
