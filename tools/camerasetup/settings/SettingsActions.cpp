#include "tools/camerasetup/settings/SettingsActions.h"

#include <QAction>
#include <QMenu>

SettingsActions::SettingsActions(const Parts &parts, QWidget *window)
    : QObject(window),
      save(new QAction(tr("&Save settings…"), this)),
      load(new QAction(tr("&Load settings…"), this)),
      restore(new QAction(tr("As it &was when I opened it…"), this)),
      m_parts(parts),
      m_window(window)
{ }

void SettingsActions::addToMenu(QMenu *menu)
{
    menu->addActions({save, load, restore});
}

void SettingsActions::loadSettings(const QString &, const FeatureFile &) { }

void SettingsActions::loadFile(const QString &) { }

void SettingsActions::restoreOpening() { }

void SettingsActions::saveFile(const QString &) { }

void SettingsActions::chooseFileToSave() { }

void SettingsActions::chooseFileToLoad() { }

void SettingsActions::update() { }
