#include "tools/kit/camera/CameraFinder.h"

#include <QTimer>

#include <algorithm>
#include <vector>

using namespace CvxCPP;

namespace {

constexpr int lateAnswerTime = 1200; // Milliseconds; a GigE camera may wait for one second before it answers.

bool haveSameTexts(const CameraEntries &left, const CameraEntries &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](const CameraEntry &one, const CameraEntry &other) { return one.hasSameTexts(other); });
}

/// Copies the cameras of the last search.
CvxError knownCameras(std::vector<std::shared_ptr<Camera>> &cameras)
{
    for (unsigned size = 64;; size *= 2) {
        unsigned count = size;
        cameras.resize(size);
        if (const CvxError error = CvxSystem::GetInstance().GetCameras(cameras.data(), count))
            return error;
        cameras.resize(count);
        if (count < size)
            return CvxErrorSuccess;
    }
}

} // namespace

class CameraFinder::Observer : public ICameraListObserver
{
public:
    explicit Observer(CameraFinder &finder) : m_finder(finder) { }

    void CameraListChanged(std::shared_ptr<Camera>, UpdateTriggerType) override
    {
        QMetaObject::invokeMethod(m_finder.m_changes, qOverload<>(&QTimer::start), Qt::QueuedConnection);
    }

private:
    CameraFinder &m_finder; // Outlives the system, which releases the observer.
};

struct CameraFinder::List
{
    CvxError error = CvxErrorSuccess;
    CameraEntries cameras;
};

CameraFinder::CameraFinder(QObject *parent)
    : QObject(parent), m_lateAnswers(new QTimer(this)), m_changes(new QTimer(this))
{
    m_lateAnswers->setSingleShot(true);
    m_lateAnswers->setInterval(lateAnswerTime);
    connect(m_lateAnswers, &QTimer::timeout, this, [this] { search(State::Settled); });
    m_changes->setSingleShot(true);
    m_changes->setInterval(0);
    connect(m_changes, &QTimer::timeout, this, [this] { list(m_state); });
    start();
}

CameraFinder::~CameraFinder()
{
    CvxSystem::GetInstance().Shutdown();
}

void CameraFinder::refresh()
{
    if (m_state != State::Failed)
        return search(m_state);
    CvxSystem::GetInstance().Shutdown(); // A system that has failed later still has to be stopped.
    m_state = State::Searching;
    m_problem.clear();
    start();
    emit changed();
}

void CameraFinder::start()
{
    CvxSystem &system = CvxSystem::GetInstance();
    CvxError error = system.Startup();
    if (error == CvxErrorHostMissing)
        return fail(tr("Corvix X is not installed completely: the program CvxProducerHost is missing or not "
                       "executable. Install the package again."));
    if (error == CvxErrorSuccess)
        error = system.RegisterCameraListObserver(std::make_shared<Observer>(*this));
    if (error != CvxErrorSuccess)
        return fail(tr("The camera system cannot be started (error %1).").arg(error));
    search(State::Listed);
}

void CameraFinder::fail(const QString &problem)
{
    m_lateAnswers->stop();
    m_state = State::Failed;
    m_problem = problem;
    m_cameras.clear();
}

/// Searches for cameras, then lists them.
void CameraFinder::search(State reached)
{
    m_calls.post([] {
        unsigned count = 0;
        CvxSystem::GetInstance().GetCameras(nullptr, count); // The list reports the error.
    });
    list(reached);
}

/// Lists the known cameras.
/// @param reached The state after the list.
void CameraFinder::list(State reached)
{
    m_calls.post([this, reached] {
        List list;
        std::vector<std::shared_ptr<Camera>> cameras;
        list.error = knownCameras(cameras);
        for (const auto &camera : cameras) {
            if (camera)
                list.cameras.append(CameraEntry::read(camera));
        }
        QMetaObject::invokeMethod(
            this, [this, reached, list] { take(reached, list); }, Qt::QueuedConnection);
    });
}

void CameraFinder::take(State reached, const List &list)
{
    if (m_state == State::Failed)
        return; // This list was requested before the failure.
    const State previous = m_state;
    const bool isSame = haveSameTexts(list.cameras, m_cameras);
    m_cameras = list.cameras;
    m_state = std::max(m_state, reached); // A list that was requested earlier does not go back.
    if (list.error != CvxErrorSuccess)
        fail(tr("The cameras cannot be listed (error %1).").arg(list.error));
    else if (previous == State::Searching && m_state == State::Listed)
        m_lateAnswers->start();
    if (m_state != previous || !isSame)
        emit changed();
}
