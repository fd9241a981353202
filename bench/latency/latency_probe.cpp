// Draws one stroke and prints, in microseconds, how long the screen took to show each motion:
//     latency_probe INK_RRGGBB PACE_US <places
// Places are pairs of whole numbers, pixels of the screen. The first line that it prints is the
// time between two looks at the screen; each other line is one motion.

#include "bench/latency/motionprobe.h"

#include <exception>
#include <iostream>
#include <string>

namespace
{

double microseconds(MotionProbe::Clock::duration duration)
{
    return std::chrono::duration<double, std::micro>(duration).count();
}

std::vector<Place> readStroke(std::istream &in)
{
    std::vector<Place> stroke;
    for (Place place; in >> place.x >> place.y;)
        stroke.push_back(place);
    return stroke;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::cerr << "usage: latency_probe INK_RRGGBB PACE_US <places\n";
        return 2;
    }
    try {
        const auto ink = static_cast<uint32_t>(std::stoul(argv[1], nullptr, 16));
        MotionProbe probe(ink, std::chrono::microseconds(std::stol(argv[2])));
        const MotionProbe::Result result = probe.draw(readStroke(std::cin));
        std::cout << microseconds(result.pollCycle) << '\n';
        for (const MotionProbe::Clock::duration latency : result.latencies)
            std::cout << microseconds(latency) << '\n';
    } catch (const std::exception &error) {
        std::cerr << "latency_probe: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
