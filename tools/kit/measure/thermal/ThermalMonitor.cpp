#include "tools/kit/measure/thermal/ThermalMonitor.h"

#include "tools/kit/measure/thermal/ThermalResult.h"

#include <algorithm>

ThermalMonitor::ThermalMonitor(const std::vector<std::string> &places, std::string start)
    : m_start(std::move(start)), m_places(places.begin(), places.end())
{ }

std::vector<ThermalMonitor::AlertChange> ThermalMonitor::add(
    double seconds, const std::string &time, const std::vector<std::optional<double>> &celsius)
{
    std::vector<AlertChange> changes;
    std::string event;
    for (std::size_t index = 0; index < m_places.size(); ++index) {
        PlaceMonitor &place = m_places[index];
        if (const auto level = place.add(seconds, celsius[index])) {
            changes.push_back({place.place(), *level, *celsius[index]});
            event += (event.empty() ? "" : "; ") + (place.place().empty() ? "" : place.place() + ": ")
                + alertName(*level);
        }
        place.analyse();
    }
    const bool wasLost = m_isLost;
    m_isLost = std::none_of(
        celsius.begin(), celsius.end(), [](const std::optional<double> &value) { return value.has_value(); });
    if (m_isLost)
        event = "no reading";
    if (m_log.isOpen() && !(wasLost && m_isLost)) {
        m_log.append(time, celsius, m_unloggedDark, event);
        m_unloggedDark.reset();
    }
    return changes;
}

void ThermalMonitor::addDark(double seconds, const DarkLevel &level)
{
    const std::optional<double> celsius = m_places[sensorPlace()].report().celsius;
    if (!celsius)
        return;
    m_dark.add(seconds, *celsius, level);
    m_unloggedDark = level.mean;
}

void ThermalMonitor::clearDark()
{
    m_dark.clear();
    m_unloggedDark.reset();
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
    return std::all_of(m_places.begin(), m_places.end(),
        [](const PlaceMonitor &place) { return place.report().state == ThermalState::Steady; });
}

AlertLevel ThermalMonitor::alert() const
{
    AlertLevel highest = AlertLevel::Normal;
    for (const PlaceMonitor &place : m_places)
        highest = std::max(highest, place.report().alert);
    return highest;
}
