#pragma once

#include <optional>

/// What a camera and its link allow at present. Rates are lines per second, times are microseconds.
struct RateFacts
{
    double exposure = 0; ///< The present one.
    std::optional<double> shortestExposure;
    std::optional<double> maxRate; ///< The highest line rate with the present exposure, as the camera says.
    std::optional<double> bytesPerLine;
    std::optional<double> linkSpeed; ///< Bytes per second.
};

enum class RateReason
{
    None, ///< The rate is possible.
    Link, ///< The link cannot carry so many lines.
    Exposure, ///< The exposure is longer than a line.
    Camera ///< The sensor or its electronics.
};

/// A limit of the line rate.
struct RateLimit
{
    RateReason reason = RateReason::None;
    double rate = 0; ///< The highest possible one; of no use if the reason is None.
};

/// Decides what limits the line rate. A line takes its exposure and a dead time in which the camera cannot
/// expose, so the highest rate is 1 / (exposure + dead time). The camera reports the highest rate for its
/// present exposure. If the exposure takes at least half of that line, the exposure is the limit, and the
/// rest of the line is the dead time. Otherwise, the camera or its link is the limit, whatever the exposure.
/// The camera is also the limit if its exposure cannot be shorter.
class RateLimits
{
public:
    explicit RateLimits(const RateFacts &facts) : m_facts(facts) { }

    /// Returns the time of a line that is not for exposing, or nothing if the camera does not tell.
    std::optional<double> deadTime() const;

    /// Returns the longest exposure at a line rate; 0 if there is no time for any.
    double longestExposure(double rate) const;

    /// Returns the highest rate that the link carries; nothing if the camera does not tell its speed.
    std::optional<double> linkRate() const;

    /// Returns the limit for the exposure that is the lowest one: if the reason is None, no limit is known.
    RateLimit lowest(double exposure) const;

    /// Returns the lowest limit that forbids the rate, with the exposure that is intended.
    RateLimit check(double rate, double exposure) const;

private:
    bool isExposureLimiting() const;
    bool isLinkInMaxRate() const;

    RateFacts m_facts;
};
