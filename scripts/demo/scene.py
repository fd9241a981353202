"""The desktop that the demo draws on: a wallpaper and a document worth annotating."""

from PIL import Image, ImageDraw, ImageFilter, ImageFont

FONT = "/usr/share/fonts/truetype/liberation/LiberationSans-{}.ttf"

INK = (33, 43, 54)
QUIET = (120, 132, 145)
RULE = (228, 232, 237)
BARS = (148, 186, 214)
TALLEST = (42, 111, 151)

HEADINGS = ("Visitors per month", "Thousands, last eight months")
VALUES = (("Jan", 31), ("Feb", 34), ("Mar", 29), ("Apr", 41), ("May", 47), ("Jun", 72),
          ("Jul", 58), ("Aug", 52))
NOTES = ("The new tour opened in June.", "Half of the visitors came back within a week.",
         "Winter numbers stay flat; they need a plan of their own.")


def wallpaper(size):
    """Soft hills at dusk, in colours that leave red ink room to shine."""
    width, height = size
    top, bottom = (24, 44, 71), (120, 158, 178)
    column = Image.new("RGB", (1, height))
    for y in range(height):
        column.putpixel((0, y), _mix(top, bottom, y / height))
    picture = column.resize(size)
    draw = ImageDraw.Draw(picture, "RGBA")
    for level, colour in ((0.55, (58, 96, 120)), (0.7, (40, 76, 99)), (0.84, (25, 54, 74))):
        y = height * level
        draw.ellipse((-width * 0.3, y, width * (0.5 + level * 0.5), height * (1.6 + level)), colour)
        draw.ellipse((width * (0.75 - level * 0.3), y + height * 0.06, width * 1.5, height * 2),
                     _mix(colour, bottom, 0.08))
    return picture.filter(ImageFilter.GaussianBlur(1.2))


def document(width, height):
    """A page with a chart and three notes. Returns the picture and the points worth marking."""
    picture = Image.new("RGB", (width, height), (255, 255, 255))
    draw = ImageDraw.Draw(picture)
    margin = 56
    draw.text((margin, 40), HEADINGS[0], INK, _font("Bold", 34))
    draw.text((margin, 86), HEADINGS[1], QUIET, _font("Regular", 18))
    floor, ceiling = int(height * 0.64), 150
    marks = {"line": (margin, floor)}
    for step in range(5):
        y = floor - (floor - ceiling) * step // 4
        draw.line((margin, y, width - margin, y), RULE, 1)
    pitch = (width - 2 * margin) / len(VALUES)
    for number, (month, value) in enumerate(VALUES):
        left = margin + pitch * (number + 0.2)
        box = (left, floor - (floor - ceiling) * value / 80, left + pitch * 0.6, floor)
        highest = value == max(value for _, value in VALUES)
        draw.rounded_rectangle(box, 4, TALLEST if highest else BARS)
        draw.rectangle((box[0], floor - 4, box[2], floor), TALLEST if highest else BARS)
        draw.text((left + pitch * 0.3, floor + 10), month, QUIET, _font("Regular", 16), "ma")
        marks[month] = tuple(round(edge) for edge in box)
    for number, note in enumerate(NOTES):
        y = floor + 62 + number * 36
        draw.ellipse((margin, y + 8, margin + 7, y + 15), TALLEST)
        draw.text((margin + 20, y), note, INK, _font("Regular", 20))
        marks[f"note{number + 1}"] = (
            margin + 20, y, margin + 20 + int(_font("Regular", 20).getlength(note)), y + 24)
    return picture, marks


def _font(weight, size):
    return ImageFont.truetype(FONT.format(weight), size)


def _mix(a, b, share):
    return tuple(round(x + (y - x) * share) for x, y in zip(a, b))
