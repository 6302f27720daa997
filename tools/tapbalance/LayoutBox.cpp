#include "tools/tapbalance/LayoutBox.h"

#include "tools/kit/widgets/ComboBox.h"

#include <QComboBox>
#include <QFormLayout>
#include <QSpinBox>
#include <QStandardItemModel>

namespace {

enum Source
{
    FromCamera,
    ByHand
};

} // namespace

LayoutBox::LayoutBox(QWidget *parent)
    : QWidget(parent), m_source(new QComboBox), m_byHand(new QWidget), m_reference(new QComboBox)
{
    auto *const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    m_source->addItem(tr("As the camera says"));
    m_source->addItem(tr("By hand"));
    form->addRow(tr("Taps:"), m_source);

    auto *const byHand = new QFormLayout(m_byHand);
    byHand->setContentsMargins(0, 0, 0, 0);
    m_zonesX = addNumber(tr("Side by side:"), tr("Stripes of the picture, from left to right"), 2, 16);
    m_zonesY = addNumber(tr("One above the other:"), tr("Stripes of the picture, from top to bottom"), 1, 4);
    m_tapsX = addNumber(tr("Neighbouring columns:"),
        tr("Taps that read the columns of a stripe in turn; 1 if a stripe has one tap"), 1, 8);
    form->addRow(m_byHand);

    m_reference->addItem(tr("Mean of all taps"));
    m_reference->addItem(tr("Tap 1"));
    form->addRow(tr("Compare with:"), m_reference);
    m_images = new QSpinBox;
    m_images->setRange(2, 256);
    m_images->setValue(8);
    m_images->setToolTip(tr("Images of each measurement; more images make the numbers more certain"));
    form->addRow(tr("Images:"), m_images);

    makeNarrow(m_source);
    makeNarrow(m_reference);
    connect(m_source, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &LayoutBox::followSource);
    connect(m_reference, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &LayoutBox::changed);
    connect(m_images, QOverload<int>::of(&QSpinBox::valueChanged), this, &LayoutBox::changed);
    followSource();
}

QSpinBox *LayoutBox::addNumber(const QString &label, const QString &toolTip, int value, int maximum)
{
    auto *const box = new QSpinBox;
    box->setRange(1, maximum);
    box->setValue(value);
    box->setToolTip(toolTip);
    static_cast<QFormLayout *>(m_byHand->layout())->addRow(label, box);
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &LayoutBox::changed);
    return box;
}

TapOptions LayoutBox::options() const
{
    TapOptions options;
    if (m_source->currentIndex() == ByHand)
        options.layout = TapLayout{static_cast<unsigned>(m_zonesX->value()),
            static_cast<unsigned>(m_tapsX->value()), static_cast<unsigned>(m_zonesY->value()), 1};
    options.reference = m_reference->currentIndex() == 0 ? TapReference::Mean : TapReference::FirstTap;
    options.images = static_cast<std::size_t>(m_images->value());
    return options;
}

void LayoutBox::setGeometry(const QString &geometry)
{
    const bool isKnown = parseTapGeometry(geometry.toStdString()).has_value();
    m_source->setItemText(
        FromCamera, isKnown ? tr("Camera: %1").arg(geometry) : tr("Not reported by the camera"));
    QStandardItem *const fromCamera = static_cast<QStandardItemModel *>(m_source->model())->item(FromCamera);
    const bool wasKnown = fromCamera->isEnabled();
    fromCamera->setEnabled(isKnown);
    if (isKnown != wasKnown)
        m_source->setCurrentIndex(isKnown ? FromCamera : ByHand);
}

void LayoutBox::followSource()
{
    m_byHand->setVisible(m_source->currentIndex() == ByHand);
    emit changed();
}
