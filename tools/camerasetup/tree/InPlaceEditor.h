#pragma once

#include "CvxCPP/Node.h"

#include <QRect>
#include <QTimer>
#include <QWidget>

class FeatureClient;
class FeatureEditor;
class StreamPauser;

/// An editor of the kit in a cell of the tree. Knows when the person is done: after the Return key or the
/// loss of the focus, once the camera has the value and nothing is left to be asked or said, or after Escape.
/// Messages and questions are shown below the cell.
class InPlaceEditor : public QWidget
{
    Q_OBJECT

public:
    /// Returns null if the feature cannot be edited in a cell.
    static InPlaceEditor *create(
        const CvxCPP::NodeInfo &info, FeatureClient &client, StreamPauser *pauser, QWidget *parent);

    FeatureEditor &editor() const { return *m_editor; }

    /// Places the editor.
    void setCell(const QRect &cell);

    /// Does what a person most likely wants: selects the text, opens the list of an enumeration, clicks a
    /// button or a check box.
    void begin();

signals:
    void finished();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    InPlaceEditor(FeatureEditor *editor, FeatureClient &client, QWidget *parent);

    void watchNote();
    void takeFocusBack();
    void place();
    void handleKey(int key);
    void leave();
    void closeWhenDone();
    void checkDone();
    void giveUp();

    FeatureEditor *m_editor;
    FeatureClient &m_client;
    QWidget *m_control = nullptr; // Has the focus.
    QRect m_cell;
    QTimer m_doneTimer; // Runs from the end of the input until nothing is left to wait for.
};
