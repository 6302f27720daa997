#include "tools/camerasetup/values/OpeningSnapshot.h"

OpeningSnapshot::OpeningSnapshot(FeatureClient &client, const PresentSelectors &selectors, QObject *parent)
    : QObject(parent), m_client(client), m_selectors(selectors)
{ }

std::optional<std::string> OpeningSnapshot::value(
    const std::string &, const std::vector<SelectorSetting> &) const
{
    return std::nullopt;
}

void OpeningSnapshot::noteEdits(const std::vector<FeatureEdit> &) { }
