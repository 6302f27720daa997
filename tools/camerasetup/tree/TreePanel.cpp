#include "tools/camerasetup/tree/TreePanel.h"

TreePanel::TreePanel(FeatureClient &, OpeningSnapshot &, Favourites &, QWidget *parent) : QWidget(parent) { }

void TreePanel::setStreamPauser(StreamPauser *) { }

QString TreePanel::currentFeature() const
{
    return {};
}

void TreePanel::saveState(QSettings &) const { }

void TreePanel::restoreState(const QSettings &) { }

void TreePanel::showFeature(const QString &) { }

void TreePanel::focusSearch() { }
