#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/// The line under an editor: why the feature is locked, what failed, what was corrected, or a question with
/// two buttons. A lock can have buttons too. Takes no room if there is nothing to say. The property "role" of
/// the label, which the style sheet uses, follows the kind of the text.
class EditorNote : public QWidget
{
    Q_OBJECT

public:
    explicit EditorNote(QWidget *parent = nullptr);

    void clear();
    /// A button without text is not shown.
    void showLock(const QString &text, const QString &unlockText = {}, const QString &showText = {});
    void showError(const QString &text);
    void showRemark(const QString &text);
    void showQuestion(const QString &text, const QString &acceptText);

    QString text() const;
    bool isQuestion() const;

signals:
    void accepted();
    void rejected();
    void unlockRequested(); ///< The button `unlockText` was clicked.
    void featureRequested(); ///< The button `showText` was clicked.

private:
    void hideButtons();
    void showAs(const QString &role, const QString &text);

    QLabel *m_text;
    QWidget *m_buttons;
    QPushButton *m_accept;
    QPushButton *m_reject;
    QPushButton *m_unlock;
    QPushButton *m_show;
};
