"""What a person sees: pixels of the composited screen."""

import os

from PIL import Image, ImageChops
from Xlib import X, Xatom


class Screen:
    """Reads the screen back. Regions are (x, y, width, height) in pixels of the desktop."""

    def __init__(self, display):
        self._display = display
        self._root = display.screen().root

    @property
    def size(self):
        geometry = self._root.get_geometry()
        return geometry.width, geometry.height

    def shot(self, region=None):
        """The screen, or a region of it, as an RGB picture."""
        x, y, width, height = region or (0, 0, *self.size)
        reply = self._root.get_image(x, y, width, height, X.ZPixmap, 0xFFFFFFFF)
        return Image.frombytes("RGB", (width, height), reply.data, "raw", "BGRX")

    def pixel(self, x, y):
        return self.shot((int(x), int(y), 1, 1)).getpixel((0, 0))

    def save(self, path, region=None):
        os.makedirs(os.path.dirname(os.path.abspath(path)), exist_ok=True)
        self.shot(region).save(path)
        return path


def changed_box(before, after):
    """The smallest (left, top, right, bottom) that holds every changed pixel, or None."""
    return ImageChops.difference(before, after).getbbox()


def near(colour, wanted, tolerance=12):
    """Whether two colours are the same to the eye; antialiasing and blending round a little."""
    return all(abs(a - b) <= tolerance for a, b in zip(colour, wanted))


def set_wallpaper(display, picture):
    """Makes a picture the desktop's background, in the way that compositors look for it."""
    root = display.screen().root
    geometry = root.get_geometry()
    picture = picture.convert("RGB").resize((geometry.width, geometry.height))
    pixmap = root.create_pixmap(geometry.width, geometry.height, geometry.depth)
    put_picture(display, pixmap, picture)
    root.change_attributes(background_pixmap=pixmap)
    root.clear_area()
    for name in ("_XROOTPMAP_ID", "ESETROOT_PMAP_ID"):
        root.change_property(display.get_atom(name), Xatom.PIXMAP, 32, [pixmap.id])
    display.sync()


def put_picture(display, drawable, picture):
    """Copies a picture into a window or pixmap, in stripes that one request can carry."""
    context = drawable.create_gc()
    data = picture.convert("RGB").tobytes("raw", "BGRX")
    stride = picture.width * 4
    rows = max(1, (display.display.info.max_request_length * 4 - 64) // stride)
    for top in range(0, picture.height, rows):
        count = min(rows, picture.height - top)
        drawable.put_image(context, 0, top, picture.width, count, X.ZPixmap, 24, 0,
                           data[top * stride:(top + count) * stride])
    context.free()
