#pragma once

#include "tools/kit/assistant/LiveAnalysis.h"
#include "tools/kit/canvas/LivePicture.h"
#include "tools/kit/measure/linescan/RoundTarget.h"
#include "tools/linescantuner/TargetOverlay.h"

#include <QObject>
#include <QTimer>

#include <mutex>

/// Looks for the round target in the live picture and draws it. A rolling picture shows the target at another
/// place each time, so the picture stands still until its target was found and could be seen.
class TargetTracker : public QObject
{
    Q_OBJECT

public:
    explicit TargetTracker(LivePicture &picture, QObject *parent = nullptr);
    ~TargetTracker() override;

    /// While the tracker is off, the picture rolls freely, and no target is drawn.
    void setOn(bool isOn);

    void setColumns(const TargetColumns &columns);
    const TargetColumns &columns() const { return m_overlay.columns; }

    /// Forgets the target, for example because another camera is opened.
    void clear();

signals:
    /// A picture was searched. Without a target, the sentence says why.
    void searched(const TargetSearch &search);

private:
    void searchShown();
    LiveAnalysis::Deliver search(const std::shared_ptr<const CvxCPP::Image> &image);
    void show(const TargetSearch &search);
    void roll();

    LivePicture &m_picture;
    TargetOverlay m_overlay;
    QTimer m_still; ///< Runs while a found target can be seen.
    bool m_isOn = true;
    bool m_isStill = false; ///< The picture does not roll, because it is being searched or was just found.
    std::weak_ptr<const CvxCPP::Image> m_searched;

    RoundTargetFinder m_finder; ///< Used by the thread of the analysis.
    std::mutex m_mutex; ///< Guards the following member.
    TargetColumns m_columns;
    LiveAnalysis m_analysis; ///< Last, so that its thread ends before the members that it uses.
};
