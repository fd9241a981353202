// The yardstick for a pen's latency: bare_pen INK_RRGGBB WIDTH_PX. It says "ready" once it can be
// drawn on.

#include "bench/latency/barepen.h"

#include <exception>
#include <iostream>
#include <string>

int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::cerr << "usage: bare_pen INK_RRGGBB WIDTH_PX\n";
        return 2;
    }
    try {
        BarePen pen(static_cast<uint32_t>(std::stoul(argv[1], nullptr, 16)),
            static_cast<uint32_t>(std::stoul(argv[2])));
        pen.run([] { std::cout << "ready" << std::endl; });
    } catch (const std::exception &error) {
        std::cerr << "bare_pen: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
