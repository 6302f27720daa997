#pragma once

#include <QAbstractSpinBox>

/// A line for a number with arrows. Unlike the spin boxes of Qt, it leaves the number to its owner, so every
/// range and every notation is possible. A text that a person is typing is not replaced.
class StepBox : public QAbstractSpinBox
{
    Q_OBJECT

public:
    explicit StepBox(QWidget *parent = nullptr);

    /// Shows the text, unless a person is typing.
    void showText(const QString &text);

    /// Sets which arrows can be used.
    void setSteps(StepEnabled steps);

    bool isBeingEdited() const { return m_isBeingEdited; }

    /// Ends typing; what was typed is forgotten by the next showText().
    void endEditing();

    void stepBy(int steps) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// A text was typed and confirmed with the Return key, or by leaving the line.
    void confirmed(const QString &text);

    /// Typing was cancelled with the Escape key.
    void cancelled();

    /// An arrow, the wheel or a key asks for another value; negative is down.
    void stepped(int steps);

protected:
    StepEnabled stepEnabled() const override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void noteEditing();
    void confirm();

    StepEnabled m_steps = StepNone;
    bool m_isBeingEdited = false;
};
