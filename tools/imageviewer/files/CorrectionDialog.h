#pragma once

#include "tools/imageviewer/files/PictureCorrection.h"

#include <QDialog>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;

/// Lets a person choose the files that correct the pictures, and says why they cannot be applied.
class CorrectionDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CorrectionDialog(PictureCorrection &correction, QWidget *parent = nullptr);

private:
    QLineEdit *addFile(
        QGridLayout &layout, const QString &label, const QString &title, const QString &filter);
    void chooseFile(QLineEdit &file, const QString &title, const QString &filter);
    void apply();
    void applyChosenFile();
    void showState();

    PictureCorrection &m_correction;
    QCheckBox *const m_isOn;
    QLineEdit *m_defectMap = nullptr;
    QLineEdit *m_flatField = nullptr;
    QLabel *const m_state;
};
