#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

class StepCard;
class QVBoxLayout;

/// The steps of a procedure, one below the other. At most one of them is the next thing to do, and only its
/// button is the primary one.
class StepList : public QWidget
{
    Q_OBJECT

public:
    explicit StepList(QWidget *parent = nullptr);

    /// Adds a step at the end; see StepCard.
    StepCard *addStep(const QString &title, const QString &text, const QString &buttonText);

    StepCard *step(int index) const { return m_steps.at(index); }
    int count() const { return m_steps.size(); }

    /// Makes this step the current one: those before are done, and those after are pending. An index of
    /// count() means that all are done.
    void setCurrent(int index);
    int current() const { return m_current; }

    /// Disables all buttons, for example while something is measured.
    void setBusy(bool isBusy);

    /// Makes the first step the current one and removes all results.
    void reset();

private:
    QVBoxLayout *m_layout;
    QVector<StepCard *> m_steps;
    int m_current = 0;
};
