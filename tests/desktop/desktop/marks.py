"""What the tests of drawing share: a document to draw on, shapes, and how to see them."""

from .case import DesktopTestCase
from .palette import Palette
from .screen import near

RED = (255, 0, 0)
PAPER = (250, 250, 210)
# A gesture from one corner to the other, and the middle between them.
FROM, TO, CENTRE = (300, 300), (500, 400), (400, 350)
# Points that the gesture covers with each tool, and points that it leaves alone.
SHAPES = {
    "stroke": ([CENTRE, (350, 325)], [(400, 300)]),
    "line": ([CENTRE, (350, 325)], [(400, 300), (487, 398)]),
    "circle": ([(523, 300), (300, 523)], [CENTRE]),
    "rectangle": ([(400, 300), (300, 350), (500, 350)], [CENTRE]),
    "arrow": ([CENTRE, (487, 398)], [(400, 300), (300, 350)]),
}


class MarksTestCase(DesktopTestCase):
    """Starts the program over a document of one colour."""

    def setUp(self):
        super().setUp()
        self.document = self.desktop.open_window("Document", (200, 150, 700, 500), PAPER)
        self.program = self.start()
        self.palette = Palette(self.desktop, self.program)
        self.palette.window

    def draw(self, points=(FROM, TO)):
        """A mark begins where the pen first moves to, which is the first of the points."""
        x, y = points[0]
        self.desktop.pointer.drag([(x - 1, y), *points])

    def expect(self, point, colour, what, tolerance=110):
        """Waits for the colour; a mark's edge lets some of the paper through."""
        self.wait_for_pixel(*point, lambda seen: near(seen, colour, tolerance), what)

    def is_paper(self, x, y):
        return near(self.desktop.screen.pixel(x, y), PAPER)

    def draw_and_see(self, shape):
        """Draws with the tool in use and waits until the shape is seen."""
        on, off = SHAPES[shape]
        self.draw()
        for point in on:
            self.expect(point, RED, f"the {shape}")
        for point in off:
            self.assertTrue(self.is_paper(*point), f"{point} is no part of the {shape}")

    def expect_gone(self, shape):
        for point in SHAPES[shape][0]:
            self.expect(point, PAPER, f"the {shape} to go")

    def erase(self):
        """Pulls an eraser across the gesture's middle."""
        self.draw([(CENTRE[0], FROM[1]), (CENTRE[0], TO[1])])
