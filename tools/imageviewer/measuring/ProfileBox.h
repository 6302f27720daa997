#pragma once

#include "tools/kit/measure/Measurements.h"

#include <QLine>
#include <QPoint>
#include <QSize>
#include <QWidget>

#include <optional>

class ProfileWidget;
class QComboBox;
class QLabel;

/// The line profile with the choice of its line: the row or the column of the pointer, or a drawn line.
class ProfileBox : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileBox(QWidget *parent = nullptr);

    /// Returns the line that is to be measured; nothing if it is not drawn yet.
    std::optional<MeasuredLine> line() const;

    void setProfile(const std::optional<LineProfile> &profile);

    /// While the pointer has not been in the picture, row and column are those in the middle.
    void setPictureSize(const QSize &size);
    void setPointer(const QPoint &pixel);
    void setDrawnLine(const QLine &line); ///< Null if none is drawn. The first one becomes the choice.

signals:
    void lineChanged();

private:
    enum class Kind
    {
        Row,
        Column,
        Drawn
    };

    Kind kind() const;
    void setPoint(const QPoint &point);
    void change();

    ProfileWidget *m_profile;
    QComboBox *m_kind; ///< In the order of Kind.
    QLabel *m_place;
    bool m_hasPointer = false;
    QPoint m_point; ///< The pointer, or the middle of the picture.
    QLine m_drawnLine;
};
