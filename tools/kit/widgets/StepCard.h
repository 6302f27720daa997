#pragma once

#include <QFrame>
#include <QString>

class QLabel;
class QPushButton;
class QVBoxLayout;

/// One step of a procedure: its number and title, a sentence that says what to do, and one button that does
/// it. A step that is done shows a check mark and what it has brought; its button can do it again.
class StepCard : public QFrame
{
    Q_OBJECT

public:
    enum class State
    {
        Pending, ///< Earlier steps come first; the button is disabled.
        Current, ///< This is the next thing to do; the button is the primary one.
        Done
    };

    /// @param number Shown in front of the title; counted from 1.
    /// @param buttonText Empty if the step has no button.
    StepCard(int number, const QString &title, const QString &text, const QString &buttonText,
        QWidget *parent = nullptr);

    State state() const { return m_state; }
    void setState(State state);

    /// Replaces the sentence that says what to do.
    void setText(const QString &text);

    /// Shows what the step has brought, or why it has failed; an empty text hides the line.
    /// @param role The style sheet's name for the kind of message: "good", "warning", "error", "secondary".
    void setResult(const QString &text, const char *role = "good");

    /// Adds a control between the sentence and the button.
    void addWidget(QWidget *widget);

    /// The button is disabled for another reason than the state, for example while something is measured.
    void setButtonAllowed(bool isAllowed);

    /// Returns null if the step has no button.
    QPushButton *button() const { return m_button; }

signals:
    /// The button was clicked.
    void triggered();

private:
    void update();

    const int m_number;
    const QString m_title;
    State m_state = State::Pending;
    bool m_isButtonAllowed = true;
    QLabel *m_mark;
    QLabel *m_heading;
    QLabel *m_text;
    QLabel *m_result;
    QVBoxLayout *m_controls;
    QPushButton *m_button = nullptr;
};
