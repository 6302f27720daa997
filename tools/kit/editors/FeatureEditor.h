#pragma once

#include "CvxCPP/Node.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/editors/LockAdvice.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>

class EditorNote;
class QGridLayout;
class QLabel;
class StreamPauser;

/// Shows one feature and lets a person change it: a label, a control, and a line below that says why the
/// feature is locked or what failed. Keeps the feature up to date while it is visible. After a change, it
/// shows what the camera has made of the value.
///
/// A feature that is locked by the running stream stays usable if there is a StreamPauser: the change is
/// then offered as "stop, set, start".
class FeatureEditor : public QWidget
{
    Q_OBJECT

public:
    ~FeatureEditor() override;

    const QString &feature() const { return m_feature; }
    const CvxCPP::NodeInfo &info() const { return m_info; }

    /// Shows another text than the camera's display name.
    void setLabel(const QString &text);
    QString label() const;

    /// Sets the width of the label's column; 0 hides the label, for example in a table with names of its own.
    void setLabelWidth(int width);

    /// Allows changes that need a stopped stream. The pauser must outlive the editor; null takes the offer
    /// back.
    void setStreamPauser(StreamPauser *pauser);

    /// Says every reason below the control, also that the camera only reports a value, with buttons that
    /// switch the responsible feature off or ask to see it; see featureRequested(). Off at first.
    void setLockHelp(bool isOffered);

    /// Returns true if a person can change the feature, if necessary with "stop, set, start".
    bool isEditable() const;

    /// Returns why the feature cannot be changed, also if the line below the control does not say it; empty
    /// if it can.
    QString lockReason() const;

    /// Returns true if the editor contains an unwritten edit that a person would miss.
    virtual bool hasEdits() const { return false; }

    /// Returns the text of the line below the control.
    QString noteText() const;

public slots:
    /// Writes the value. If the stream locks the feature, asks first.
    void submit(const CvxCPP::NodeValue &value);

    /// Answers the question of the line below the control.
    void acceptQuestion();
    void rejectQuestion();

signals:
    /// A person wants to see the feature that is responsible for the lock.
    void featureRequested(const QString &name);

protected:
    FeatureEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent);

    /// Places the control to the right of the label. Every derived class calls this once.
    void setControl(QWidget *control);

    /// Places a widget below, over the whole width.
    void addWideControl(QWidget *control);

    /// Leaves the label to the control, which then has the whole width. Called before setControl().
    void hideLabel();

    /// Returns false if setLabelWidth() has hidden the label.
    bool hasLabel() const { return m_hasLabel; }

    /// Shows value, limits and access. Called for each change, but not while a change is on its way to the
    /// camera.
    virtual void showState(const CvxCPP::NodeState &state) = 0;

    /// Lets the controls be used, or greys them out.
    virtual void setEditable(bool isEditable) = 0;

    /// Called after setLabel() and setLabelWidth().
    virtual void labelChanged() { }

    /// Executes the command. If the stream locks it, asks first.
    void execute();

    /// Asks a question below the control; `action` is called if it is answered with yes.
    void ask(const QString &question, const QString &acceptText, std::function<void()> action);

    /// Says below the control what is wrong with a text that was typed, until the next change.
    void showRemark(const QString &text);

    /// Returns null if nothing was read.
    const CvxCPP::NodeState *state() const;

    /// Shows the camera's value again, for example after typing was cancelled.
    void refresh();

    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

    /// Ignores the wheel over controls without focus, so scrolling a panel does not change the camera.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void onNodesLoaded();
    void onStateChanged(const QString &name);
    void onWritten(const QString &name);
    void onFailed(const QString &name, const QString &text);
    void askToPause(const std::optional<CvxCPP::NodeValue> &value);
    void pauseFor(const std::optional<CvxCPP::NodeValue> &value);
    void onPaused(const CvxCPP::CvxResult &result);
    LockAdvice advice() const;
    void unlock();
    void followLockingFeature();
    void showNote();
    void stopWatching();
    void forgetMessages();

    const CvxCPP::NodeInfo m_info;
    const QString m_feature;
    QPointer<FeatureClient> m_client; ///< Null once it was destroyed.
    StreamPauser *m_pauser = nullptr;
    QGridLayout *m_layout;
    QLabel *m_label;
    EditorNote *m_note;
    QString m_error; ///< What the last change failed with.
    CvxCPP::NodeValue m_submitted; ///< What the last change was.
    QString m_lockingFeature; ///< Watched together with the feature; empty if nothing locks it.
    QString m_remark; ///< What is wrong with what was typed last.
    std::function<void()> m_action; ///< What the present question is about.
    bool m_hasLockHelp = false;
    bool m_hasLabel = true;
    bool m_isLabelInControl = false;
    bool m_isPausing = false;
    bool m_isWatching = false;
};
