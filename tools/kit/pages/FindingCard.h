#pragma once

#include "sdk/doctor/Finding.h"

#include <QFrame>

/// Shows one finding of the checks, with the command that corrects it.
class FindingCard : public QFrame
{
    Q_OBJECT

public:
    explicit FindingCard(const Finding &finding, QWidget *parent = nullptr);

private:
    QWidget *createCommand(const QString &command);
};
