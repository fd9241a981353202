#pragma once

#include "bench/latency/xclient.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

/// A pixel of the screen.
struct Place {
    int16_t x = 0;
    int16_t y = 0;
};

/// Draws a stroke with the X server's test extension, as a hand does, and takes the time from each
/// motion until the composited screen shows its ink.
///
/// It looks at the middle between a motion and the one before: a smoothed stroke ends there.
class MotionProbe
{
public:
    using Clock = std::chrono::steady_clock;

    struct Result {
        std::vector<Clock::duration> latencies; ///< one for each motion but the first few
        Clock::duration pollCycle; ///< median time between two looks at the screen
    };

    /// `inkRgb` as 0xRRGGBB; `pace` is how long the screen is left alone between two motions.
    MotionProbe(uint32_t inkRgb, std::chrono::microseconds pace);

    /// Presses at the first place, moves along the others, and lets go at the last. Throws when ink
    /// is where it is not yet due, or does not come.
    [[nodiscard]] Result draw(const std::vector<Place> &stroke);

private:
    [[nodiscard]] std::optional<Clock::duration> timeMotion(Place from, Place to);
    [[nodiscard]] bool inkedAround(Place place) const;
    void fake(uint8_t event, uint8_t detail, Place place) const;

    XClient m_client;
    uint32_t m_inkRgb;
    std::chrono::microseconds m_pace;
    std::vector<Clock::duration> m_cycles;
};
