#include "tools/kit/measure/thermal/ThermalMonitor.h"

#include "tools/kit/measure/thermal/ThermalResult.h"

#include <algorithm>
#include <utility>

namespace {

/// Appends an event to those of the same line of the log.
void appendEvent(std::string &events, const std::string &event)
{
    events += (events.empty() ? "" : "; ") + event;
}

} // namespace

ThermalMonitor::ThermalMonitor(const std::vector<std::string> &places, std::string start)
    : m_start(std::move(start)), m_places(places.begin(), places.end())
{ }

std::vector<ThermalMonitor::AlertChange> ThermalMonitor::add(
    double seconds, const std::string &time, const std::vector<std::optional<double>> &celsius)
{
    std::vector<AlertChange> changes;
    std::string events;
    for (std::size_t index = 0; index < m_places.size(); ++index) {
        PlaceMonitor &place = m_places[index];
        if (const auto level = place.add(seconds, celsius[index])) {
            changes.push_back({place.place(), *level, *celsius[index]});
            appendEvent(events, (place.place().empty() ? "" : place.place() + ": ") + alertName(*level));
        }
        place.analyse();
    }
    const std::optional<DarkLevel> dark = std::exchange(m_nextDark, std::nullopt);
    const bool hasDark = dark && celsius[sensorPlace()];
    if (hasDark && addDark(seconds, *celsius[sensorPlace()], *dark))
        appendEvent(events, "dark level follows");
    const bool wasLost = m_isLost;
    m_isLost = std::none_of(
        celsius.begin(), celsius.end(), [](const std::optional<double> &value) { return value.has_value(); });
    if (m_isLost)
        events = "no reading";
    if (m_log.isOpen() && !(wasLost && m_isLost))
        m_log.append(time, celsius, hasDark ? std::optional(dark->mean) : std::nullopt, events);
    return changes;
}

/// Returns true if the dark level has begun to follow the temperature.
bool ThermalMonitor::addDark(double seconds, double celsius, const DarkLevel &level)
{
    const bool hasFollowed = m_dark.followedAt().has_value();
    m_dark.add(seconds, celsius, level);
    return !hasFollowed && m_dark.followedAt();
}

void ThermalMonitor::clearDark()
{
    m_dark.clear();
    m_nextDark.reset();
}

void ThermalMonitor::setThresholds(const Thresholds &thresholds)
{
    for (PlaceMonitor &place : m_places)
        place.thresholds().setThresholds(thresholds);
}

std::vector<std::string> ThermalMonitor::placeNames() const
{
    std::vector<std::string> names;
    for (const PlaceMonitor &place : m_places)
        names.push_back(place.place());
    return names;
}

std::size_t ThermalMonitor::sensorPlace() const
{
    const auto sensor = std::find_if(m_places.begin(), m_places.end(),
        [](const PlaceMonitor &place) { return place.place().find("ensor") != std::string::npos; });
    return sensor == m_places.end() ? 0 : static_cast<std::size_t>(sensor - m_places.begin());
}

bool ThermalMonitor::isSteady() const
{
    const auto hasReadings = [](const PlaceMonitor &place) { return !place.history().isEmpty(); };
    const auto isSteadyOrUnread = [&](const PlaceMonitor &place) {
        return place.report().state == ThermalState::Steady || !hasReadings(place);
    };
    return std::any_of(m_places.begin(), m_places.end(), hasReadings)
        && std::all_of(m_places.begin(), m_places.end(), isSteadyOrUnread);
}

AlertLevel ThermalMonitor::alert() const
{
    AlertLevel highest = AlertLevel::Normal;
    for (const PlaceMonitor &place : m_places)
        highest = std::max(highest, place.report().alert);
    return highest;
}
