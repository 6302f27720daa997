#include "tools/imageviewer/numbers/StreamMonitor.h"

StreamMonitor::StreamMonitor(LiveStream &stream, PictureFeed &feed, FeatureClient &features, QObject *parent)
    : QObject(parent), m_stream(stream), m_feed(feed), m_features(features)
{ }

StreamMonitor::~StreamMonitor() = default;

void StreamMonitor::followState() { }
void StreamMonitor::update() { }
void StreamMonitor::readFeatures() { }
void StreamMonitor::adviseOnLosses() { }
void StreamMonitor::startAgain() { }
