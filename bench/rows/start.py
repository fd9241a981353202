"""From the start of the process to its first whole picture, beside a bare window."""

import time

from PIL import ImageChops

from .bareprograms import DEFAULT_BACKEND, SOFTWARE_BACKEND, start_bare_window, start_palette
from .row import Row, medians
from .stages import FULL_HD

ROUNDS = 15
# How much of a window must look as it does in the end; the cursor of a text or a late shade may not.
SHARE = 0.95
SAME = 8  # difference of two colours' channels that nobody sees
TIMEOUT_S = 30


def rows(stages, notes):
    place = stages.desktop(FULL_HD)
    starts = {
        "the palette": lambda: start_palette(place, stages),
        "bare window": lambda: start_bare_window(place, stages, SOFTWARE_BACKEND),
        "bare window on OpenGL": lambda: start_bare_window(place, stages, DEFAULT_BACKEND),
    }
    pictures = {name: final_picture(place, start) for name, start in starts.items()}
    taken = {name: [] for name in starts}
    for _ in range(ROUNDS):
        for name, start in starts.items():
            taken[name].append(time_start(place, start, *pictures[name]))
    middle = medians(taken, "start to", "ms", notes)
    yield Row("process start to palette, against a bare window", 1.8,
              middle["the palette"] / middle["bare window"], "x")


def final_picture(place, start):
    """Where the window comes to stand and how it looks once nothing changes any more."""
    program, window = start()
    region = tuple(window().geometry)
    picture = None

    def settled():
        nonlocal picture
        time.sleep(0.5)
        picture, before = place.screen.shot(region), picture
        return before and picture.tobytes() == before.tobytes()
    place.wait_for(settled, "the window to settle")
    stop(place, program, region, picture)
    return region, picture


def time_start(place, start, region, picture):
    """Milliseconds until the window is seen."""
    begin = time.monotonic()
    program, _ = start()
    while True:
        shot = place.screen.shot(region)
        now = time.monotonic()
        if likeness(shot, picture) >= SHARE:
            break
        if now - begin > TIMEOUT_S:
            raise TimeoutError(f"the window was not seen in {TIMEOUT_S} s")
        time.sleep(0.001)
    stop(place, program, region, picture)
    return (now - begin) * 1000


def stop(place, program, region, picture):
    program.stop()
    place.wait_for(lambda: likeness(place.screen.shot(region), picture) < SHARE,
                   "the window to go")


def likeness(shot, picture):
    """Share of pixels that look the same."""
    red, green, blue = ImageChops.difference(shot, picture).split()
    worst = ImageChops.lighter(ImageChops.lighter(red, green), blue)
    return sum(worst.histogram()[:SAME + 1]) / (picture.width * picture.height)
