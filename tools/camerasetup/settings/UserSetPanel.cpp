#include "tools/camerasetup/settings/UserSetPanel.h"

UserSetPanel::UserSetPanel(const Parts &parts, QWidget *parent) : QWidget(parent), m_parts(parts) { }
