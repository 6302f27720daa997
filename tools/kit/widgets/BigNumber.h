#pragma once

#include <QString>
#include <QWidget>

class QLabel;

/// A measured value in large digits with its unit, and below a caption that says what it is.
class BigNumber : public QWidget
{
    Q_OBJECT

public:
    explicit BigNumber(const QString &caption, QWidget *parent = nullptr);

    /// Shows a number as people of this country write it.
    /// @param unit For example "K" or "%"; may be empty.
    void setValue(double value, int decimals, const QString &unit = {});

    /// Shows another text instead of a number.
    void setText(const QString &text, const QString &unit = {});

    /// Shows that there is no value yet.
    void clear();

    void setCaption(const QString &caption);
    QString text() const; ///< The value, as it is shown, with its unit.

    /// Colours the value.
    /// @param role The style sheet's name: "good", "warning", "error", or "" for the usual colour.
    void setRole(const char *role);

private:
    void describe();

    QLabel *m_value;
    QLabel *m_unit;
    QLabel *m_caption;
};
