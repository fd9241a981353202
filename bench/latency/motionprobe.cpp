#include "bench/latency/motionprobe.h"

#include "platform/xcbptr.h"

#include <sys/prctl.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>

namespace
{

using namespace std::chrono_literals;

constexpr uint8_t kLeftButton = 1;
constexpr int16_t kReach = 2; ///< pixels on each side of the expected place
constexpr int kTolerance = 40; ///< per colour channel; antialiasing lets some ground through
constexpr int kWarmUpMotions = 4; ///< a stroke's beginning is not smoothed
/// The window manager holds the pointer while it looks at a press; a hand is slower than that.
constexpr auto kAfterPress = 300ms;
constexpr auto kBetweenLooks = 40us; ///< leaves the processor and the server to the others
constexpr auto kTimeout = 5s;

bool near(uint32_t rgb, uint32_t other)
{
    for (int shift = 0; shift <= 16; shift += 8) {
        const int one = static_cast<int>(rgb >> shift & 0xFFU);
        const int two = static_cast<int>(other >> shift & 0xFFU);
        if (std::abs(one - two) > kTolerance)
            return false;
    }
    return true;
}

Place middle(Place one, Place two)
{
    return { static_cast<int16_t>((one.x + two.x) / 2), static_cast<int16_t>((one.y + two.y) / 2) };
}

std::string text(Place place)
{
    return std::to_string(place.x) + "," + std::to_string(place.y);
}

} // namespace

MotionProbe::MotionProbe(uint32_t inkRgb, std::chrono::microseconds pace)
    : m_inkRgb(inkRgb), m_pace(pace)
{
    // Without it every sleep lasts 50 microseconds longer.
    prctl(PR_SET_TIMERSLACK, 1);
}

MotionProbe::Result MotionProbe::draw(const std::vector<Place> &stroke)
{
    if (stroke.size() <= kWarmUpMotions + 1)
        throw std::runtime_error("the stroke is too short");

    Result result;
    m_cycles.clear();
    // Motions that kept to a clock would always meet other clocks at the same moment.
    std::mt19937 random(stroke.size());
    std::uniform_real_distribution<double> jitter(0.5, 1.5);
    fake(XCB_MOTION_NOTIFY, 0, stroke.front());
    fake(XCB_BUTTON_PRESS, kLeftButton, stroke.front());
    std::this_thread::sleep_for(kAfterPress);
    std::optional<Place> lost;
    for (size_t i = 1; i < stroke.size() && !lost; ++i) {
        const std::optional<Clock::duration> latency = timeMotion(stroke[i - 1], stroke[i]);
        if (!latency && i > kWarmUpMotions)
            lost = stroke[i];
        else if (i > kWarmUpMotions)
            result.latencies.push_back(*latency);
        std::this_thread::sleep_for(m_pace * jitter(random));
    }
    fake(XCB_BUTTON_RELEASE, kLeftButton, stroke.back());
    m_client.sync();
    if (lost)
        throw std::runtime_error("no ink came for the motion to " + text(*lost));

    std::nth_element(m_cycles.begin(), m_cycles.begin() + m_cycles.size() / 2, m_cycles.end());
    result.pollCycle = m_cycles[m_cycles.size() / 2];
    return result;
}

std::optional<MotionProbe::Clock::duration> MotionProbe::timeMotion(Place from, Place to)
{
    const Place expected = middle(from, to);
    if (inkedAround(expected))
        throw std::runtime_error("ink is at " + text(expected) + " before the pointer");

    const Clock::time_point start = Clock::now();
    fake(XCB_MOTION_NOTIFY, 0, to);
    Clock::time_point last = start;
    while (!inkedAround(expected)) {
        if (Clock::now() - start > kTimeout)
            return std::nullopt;
        std::this_thread::sleep_for(kBetweenLooks);
        m_cycles.push_back(Clock::now() - last);
        last = Clock::now();
    }
    return Clock::now() - start;
}

bool MotionProbe::inkedAround(Place place) const
{
    constexpr uint16_t kSide = 2 * kReach + 1;
    xcb_connection_t *connection = m_client.connection();
    // The root window's picture is the screen itself: windows of their own have been redirected,
    // so it holds only what the compositor painted.
    const XcbPtr<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection,
        xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_client.screen().root,
            static_cast<int16_t>(place.x - kReach), static_cast<int16_t>(place.y - kReach), kSide,
            kSide, ~0U),
        nullptr));
    if (!reply)
        throw std::runtime_error("cannot read the screen at " + text(place));
    const uint8_t *bytes = xcb_get_image_data(reply.get());
    for (int i = 0; i + 3 < xcb_get_image_data_length(reply.get()); i += 4) {
        const auto rgb = static_cast<uint32_t>(bytes[i + 2] << 16 | bytes[i + 1] << 8 | bytes[i]);
        if (near(rgb, m_inkRgb))
            return true;
    }
    return false;
}

void MotionProbe::fake(uint8_t event, uint8_t detail, Place place) const
{
    xcb_test_fake_input(m_client.connection(), event, detail, XCB_CURRENT_TIME,
        m_client.screen().root, place.x, place.y, 0);
    xcb_flush(m_client.connection());
    m_client.expectAlive();
}
