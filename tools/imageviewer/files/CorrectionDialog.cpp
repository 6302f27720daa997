#include "tools/imageviewer/files/CorrectionDialog.h"

#include "tools/kit/widgets/Message.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int fileColumnWidth = 320; // Pixels.

} // namespace

CorrectionDialog::CorrectionDialog(PictureCorrection &correction, QWidget *parent)
    : QDialog(parent),
      m_correction(correction),
      m_isOn(new QCheckBox(tr("&Correct the pictures"))),
      m_state(createMessage(this))
{
    setWindowTitle(tr("Corrections"));
    setObjectName(QStringLiteral("corrections"));
    auto *const layout = new QGridLayout(this);
    layout->setColumnMinimumWidth(1, fileColumnWidth);
    layout->setColumnStretch(1, 1);
    layout->addWidget(m_isOn, 0, 0, 1, 3);
    m_defectMap = addFile(*layout, tr("&Defect map:"), tr("Choose a defect map"),
        tr("Defect maps (*.json *.csv);;All files (*)"));
    m_flatField = addFile(*layout, tr("&Flat field:"), tr("Choose a flat field"),
        tr("Flat fields (*.tif *.tiff);;All files (*)"));
    m_defectMap->setObjectName(QStringLiteral("defectMap"));
    m_flatField->setObjectName(QStringLiteral("flatField"));
    layout->addWidget(m_state, 3, 0, 1, 3);
    auto *const note
        = new QLabel(tr("The correction applies to the shown pictures, to PNG and TIFF files and "
                        "to TIFF recordings. Raw files, videos and measured values stay those of "
                        "the camera."));
    note->setWordWrap(true);
    layout->addWidget(note, 4, 0, 1, 3);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    // Return ends the input of a name and must not close the dialog.
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    layout->addWidget(buttons, 5, 0, 1, 3);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_isOn, &QCheckBox::clicked, this, &CorrectionDialog::apply);
    connect(&m_correction, &PictureCorrection::changed, this, &CorrectionDialog::showState);
    showState();
}

QLineEdit *CorrectionDialog::addFile(
    QGridLayout &layout, const QString &label, const QString &title, const QString &filter)
{
    const int row = layout.rowCount();
    auto *const file = new QLineEdit;
    file->setClearButtonEnabled(true);
    auto *const caption = new QLabel(label);
    caption->setBuddy(file);
    auto *const choose = new QPushButton(tr("Choose…"));
    choose->setAccessibleName(title);
    choose->setAutoDefault(false);
    layout.addWidget(caption, row, 0);
    layout.addWidget(file, row, 1);
    layout.addWidget(choose, row, 2);
    connect(file, &QLineEdit::editingFinished, this, &CorrectionDialog::apply);
    connect(choose, &QPushButton::clicked, this,
        [this, file, title, filter] { chooseFile(*file, title, filter); });
    return file;
}

void CorrectionDialog::chooseFile(QLineEdit &file, const QString &title, const QString &filter)
{
    auto *const dialog = new QFileDialog(this, title, QFileInfo(file.text()).path(), filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, &file, &QLineEdit::setText);
    connect(dialog, &QFileDialog::fileSelected, this, &CorrectionDialog::applyChosenFile);
    dialog->open();
}

void CorrectionDialog::apply()
{
    const PictureCorrection::Choice choice{m_defectMap->text(), m_flatField->text(), m_isOn->isChecked()};
    const PictureCorrection::Choice &present = m_correction.choice();
    const bool isPresent = choice.defectMap == present.defectMap && choice.flatField == present.flatField
        && choice.isOn == present.isOn;
    if (!isPresent) // Leaving a field is no change.
        m_correction.setChoice(choice);
}

/// A file of the same name may be a new one.
void CorrectionDialog::applyChosenFile()
{
    apply();
    m_correction.read();
}

void CorrectionDialog::showState()
{
    const PictureCorrection::Choice &choice = m_correction.choice();
    m_isOn->setChecked(choice.isOn);
    m_defectMap->setText(choice.defectMap);
    m_flatField->setText(choice.flatField);
    const QString problem = m_correction.problem();
    if (choice.isOn && !problem.isEmpty())
        showMessage(m_state, tr("The pictures are not corrected: %1.").arg(problem), "warning");
    else
        showMessage(m_state, m_correction.active().correction ? tr("The pictures are corrected.") : QString(),
            "good");
    // A dialog does not grow by itself when its texts need more lines.
    layout()->activate();
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
}
