#include "tools/camerasetup/history/HistoryPanel.h"

#include "tools/camerasetup/values/ChangeHistory.h"

HistoryPanel::HistoryPanel(ChangeHistory &, QWidget *parent) : QWidget(parent) { }
