#include "tools/camerasetup/values/LevelText.h"

#include <QCoreApplication>

using CvxCPP::NodeVisibility;

QString levelText(NodeVisibility level)
{
    switch (level) {
    case NodeVisibility::Beginner:
        return QCoreApplication::translate("LevelText", "Beginner");
    case NodeVisibility::Expert:
        return QCoreApplication::translate("LevelText", "Expert");
    case NodeVisibility::Guru:
        return QCoreApplication::translate("LevelText", "Guru");
    case NodeVisibility::Invisible:
        break;
    }
    return {};
}
