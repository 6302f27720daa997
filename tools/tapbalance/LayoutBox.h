#pragma once

#include "tools/kit/measure/taps/TapBalancing.h"

#include <QWidget>

class QComboBox;
class QSpinBox;

/// Chooses how the taps share the picture, and what they are compared with.
class LayoutBox : public QWidget
{
    Q_OBJECT

public:
    explicit LayoutBox(QWidget *parent = nullptr);

    /// Returns the choices. The other members of the options keep their defaults.
    TapOptions options() const;

    /// Shows what the camera reports, for example "Geometry_4X_1Y". Without a geometry, the layout has to be
    /// chosen by hand.
    void setGeometry(const QString &geometry);

signals:
    void changed();

private:
    QSpinBox *addNumber(const QString &label, const QString &toolTip, int value, int maximum);
    void followSource();

    QComboBox *m_source;
    QWidget *m_byHand;
    QSpinBox *m_zonesX;
    QSpinBox *m_zonesY;
    QSpinBox *m_tapsX;
    QComboBox *m_reference;
    QSpinBox *m_images;
};
