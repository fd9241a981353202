"""Whether the demo's picture shows what it should: demo_picture.py PICTURE."""

import os
import sys

from PIL import Image

REPOSITORY = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
sys.path.insert(0, os.path.join(REPOSITORY, "scripts", "demo"))

import scene  # noqa: E402 (needs the path above)

ORANGE, RED = (242, 80, 23), (255, 0, 0)
# Where play.py puts its document.
DOCUMENT = (230, 100, 880, 640)
COLLAPSE_BUTTON = (26, 33)  # of a palette 33 pixels wide


def near(colour, wanted, tolerance=16):
    return all(abs(a - b) <= tolerance for a, b in zip(colour, wanted))


def count(picture, box, colour):
    return sum(number for number, seen in picture.crop(box).getcolors(1 << 24)
               if near(seen, colour))


def complaints(picture):
    """What is missing in the picture."""
    width, height = picture.size
    wallpaper = scene.wallpaper(picture.size)
    corners = [(20, 60), (20, height - 20), (width // 2, height - 30)]
    if not all(near(picture.getpixel(at), wallpaper.getpixel(at)) for at in corners):
        yield "the desktop's wallpaper"
    left, top, page_width, page_height = DOCUMENT
    page = (left, top, left + page_width, top + page_height)
    if count(picture, page, (255, 255, 255)) < page_width * page_height // 2:
        yield "the document"
    edge = (width - 33, 0, width, height)
    if count(picture, edge, ORANGE) < COLLAPSE_BUTTON[0] * COLLAPSE_BUTTON[1] // 3:
        yield "the palette at the right edge, with its orange button"
    _, marks = scene.document(page_width, page_height)
    bar = marks["Jun"]
    loop = (left + bar[0] - 60, top + bar[1] - 60, left + bar[2] + 60, top + bar[3] + 60)
    if count(picture, loop, RED) < 300:
        yield "the red circle around the highest bar"


def main():
    picture = Image.open(sys.argv[1]).convert("RGB")
    missing = list(complaints(picture))
    if missing:
        sys.exit(f"{sys.argv[1]} does not show " + ", nor ".join(missing))
    print(f"{sys.argv[1]} shows the desktop, the document, the palette and a stroke")


if __name__ == "__main__":
    main()
