# SPDX-License-Identifier: MIT
"""Press pictures and the advertisement, drawn with Cairo and packed as JPEG."""
import math
import random

import cairo
import gi

gi.require_version("GdkPixbuf", "2.0")
gi.require_version("Pango", "1.0")
gi.require_version("PangoCairo", "1.0")
from gi.repository import GdkPixbuf, GLib, Pango, PangoCairo  # noqa: E402

SIZES = {"harbour": 520, "council": 400, "windpark": 480, "chart": 0, "street": 600, "archive": 360}  # pixels across
RATIO = 0.62  # of height to width


def jpeg_of(surface, quality):
    width, height = surface.get_width(), surface.get_height()
    data, stride, packed = bytes(surface.get_data()), surface.get_stride(), bytearray(width * height * 3)
    for y in range(height):
        line = data[y * stride:y * stride + width * 4]
        for channel in range(3):
            packed[y * width * 3 + channel:(y + 1) * width * 3:3] = line[2 - channel::4]
    pixels = GdkPixbuf.Pixbuf.new_from_bytes(GLib.Bytes.new(bytes(packed)), GdkPixbuf.Colorspace.RGB, False, 8, width,
                                             height, width * 3)
    return bytes(pixels.save_to_bufferv("jpeg", ["quality"], [str(quality)])[1])


def gradient(context, top, bottom, *stops):
    pattern = cairo.LinearGradient(0, top, 0, bottom)
    for place, shade in stops:
        pattern.add_color_stop_rgb(place, *([shade] * 3))
    context.set_source(pattern)


def grey(context, shade, alpha=1.0):
    context.set_source_rgba(shade, shade, shade, alpha)


def ridge(context, chance, base, height, shade, rough=5):
    """A line of hills over the whole width: a sum of waves, filled to the lower edge."""
    waves = [(chance.uniform(0.6, 1.2) / n ** 1.25, chance.uniform(0, 6.3), n) for n in range(1, rough * 3)]
    context.move_to(0, 1)
    for step in range(161):
        x = step / 160
        context.line_to(x, base - height * 0.4 * sum(a * math.sin(n * 2.6 * x + p) for a, p, n in waves))
    context.line_to(1, 1)
    context.close_path()
    grey(context, shade)
    context.fill()


def sky(context, horizon, sun=None):
    gradient(context, 0, horizon, (0, 0.50), (0.55, 0.78), (1, 0.95))
    context.paint()
    if sun:
        glow = cairo.RadialGradient(*sun, 0.01, *sun, 0.35)
        for place, alpha in ((0, 1), (0.12, 0.7), (1, 0)):
            glow.add_color_stop_rgba(place, 1, 1, 1, alpha)
        context.set_source(glow)
        context.paint()


def clouds(context, chance, count, top, bottom):
    for _ in range(count):
        x, y, size = chance.uniform(-0.1, 1), chance.uniform(top, bottom), chance.uniform(0.03, 0.10)
        for puff in range(9):
            px, py = x + (puff - 4) * size * 0.55, y + chance.uniform(-0.18, 0.18) * size
            glow = cairo.RadialGradient(px, py, 0, px, py, size * 0.7)
            glow.add_color_stop_rgba(0, 1, 1, 1, 0.20)
            glow.add_color_stop_rgba(1, 1, 1, 1, 0)
            context.set_source(glow)
            context.paint()


def boat(context, x, y, size, lean):
    context.save()
    context.translate(x, y)
    context.rotate(lean)
    context.scale(size, size)
    grey(context, 0.10)
    context.move_to(-0.55, 0)
    context.curve_to(-0.4, 0.2, 0.35, 0.2, 0.62, -0.03)
    context.close_path()
    context.fill()
    for points, shade in ((((0.02, -0.08), (0.02, -1.5), (-0.55, -0.12)), 0.97),
                          (((0.08, -0.08), (0.06, -1.3), (0.58, -0.10)), 0.86)):
        context.move_to(*points[0])
        context.curve_to(points[1][0] - 0.1, -0.9, points[1][0], -1.2, *points[1])
        context.line_to(*points[2])
        context.close_path()
        grey(context, shade)
        context.fill()
    context.restore()


def harbour(context, chance):
    sky(context, 0.40, (0.74, 0.28))
    clouds(context, chance, 7, 0.04, 0.22)
    ridge(context, chance, 0.38, 0.05, 0.62)
    ridge(context, chance, 0.41, 0.03, 0.45)
    gradient(context, 0.42, 0.62, (0, 0.80), (0.3, 0.55), (1, 0.26))
    context.rectangle(0, 0.42, 1, 1)
    context.fill()
    for _ in range(900):
        depth = chance.random() ** 1.6
        y = 0.425 + depth * 0.19
        near = abs(chance.gauss(0.74, 0.05 + depth * 0.12))
        x, length = (near, 0.01 + depth * 0.03) if chance.random() < 0.5 else (chance.random(), 0.006 + depth * 0.05)
        grey(context, 1 if x == near else chance.choice((0.12, 0.85)), 0.10 + 0.35 * chance.random())
        context.set_line_width(0.0008 + depth * 0.002)
        context.move_to(x, y)
        context.line_to(x + length, y + chance.uniform(-0.001, 0.001))
        context.stroke()
    for x, y, size in ((0.16, 0.452, 0.05), (0.34, 0.447, 0.035), (0.52, 0.475, 0.085), (0.86, 0.46, 0.05)):
        boat(context, x, y, size, chance.uniform(-0.12, 0.05))


def windpark(context, chance):
    sky(context, 0.42)
    clouds(context, chance, 10, 0.03, 0.30)
    for base, height, shade in ((0.40, 0.06, 0.70), (0.46, 0.06, 0.55)):
        ridge(context, chance, base, height, shade)
    for x, y, size in ((0.12, 0.47, 0.16), (0.29, 0.475, 0.20), (0.48, 0.48, 0.27), (0.68, 0.485, 0.33), (0.90, 0.48, 0.24)):
        grey(context, 0.97)
        context.move_to(x - size * 0.022, y + 0.03)
        context.line_to(x - size * 0.010, y - size)
        context.line_to(x + size * 0.010, y - size)
        context.line_to(x + size * 0.022, y + 0.03)
        context.fill()
        turn = chance.uniform(0, 2)
        for blade in range(3):
            context.save()
            context.translate(x, y - size)
            context.rotate(turn + blade * math.tau / 3)
            context.move_to(-size * 0.012, 0)
            context.curve_to(-size * 0.05, -size * 0.15, -size * 0.01, -size * 0.4, 0, -size * 0.62)
            context.line_to(size * 0.012, 0)
            context.fill()
            context.restore()
        context.arc(x, y - size, size * 0.03, 0, 7)
        grey(context, 0.80)
        context.fill()
    ridge(context, chance, 0.51, 0.04, 0.34)
    ridge(context, chance, 0.57, 0.04, 0.20)
    for _ in range(700):
        x, y = chance.random(), 0.53 + 0.1 * chance.random()
        grey(context, chance.choice((0.10, 0.42)), 0.4)
        context.set_line_width(0.0012)
        context.move_to(x, y)
        context.line_to(x + chance.uniform(-0.004, 0.004), y - 0.012)
        context.stroke()


def house(context, chance, x, base, width, height, shade):
    grey(context, shade)
    context.rectangle(x, base - height, width, 1)
    context.fill()
    grey(context, shade * 0.72)
    context.move_to(x - 0.004, base - height)
    context.line_to(x + width / 2, base - height - width * 0.28)
    context.line_to(x + width + 0.004, base - height)
    context.fill()
    columns, rows = max(2, int(width / 0.025)), max(1, int(height / 0.042))
    for column in range(columns):
        for row in range(rows):
            grey(context, 0.98 if chance.random() < 0.18 else shade * 0.45)
            wide, high = width / columns * 0.42, 0.021
            context.rectangle(x + (column + 0.5) * width / columns - wide / 2, base - height + 0.014 + row * 0.042, wide, high)
            context.fill()


def street(context, chance, sun=(0.2, 0.2)):
    sky(context, 0.45, sun)
    clouds(context, chance, 5, 0.04, 0.2)
    ridge(context, chance, 0.30, 0.10, 0.72)
    for base, lowest, highest, shade in ((0.42, 0.05, 0.11, 0.66), (0.47, 0.05, 0.12, 0.56), (0.53, 0.06, 0.13, 0.80)):
        x = -0.02
        while x < 1:
            width = chance.uniform(0.05, 0.10)
            house(context, chance, x, base, width, chance.uniform(lowest, highest), shade * chance.uniform(0.88, 1.1))
            x += width + chance.choice((0, 0, 0.008))
    grey(context, 0.30)
    context.rectangle(0, 0.53, 1, 0.012)
    context.fill()
    gradient(context, 0.54, 0.63, (0, 0.62), (1, 0.30))
    context.rectangle(0, 0.54, 1, 1)
    context.fill()
    for _ in range(420):
        x, y = chance.random(), 0.542 + 0.08 * chance.random()
        grey(context, chance.choice((0.15, 0.9)), 0.25)
        context.set_line_width(0.0014)
        context.move_to(x, y)
        context.line_to(x + chance.uniform(0.01, 0.05), y)
        context.stroke()


def council(context, chance):
    sky(context, 0.6)
    clouds(context, chance, 8, 0.02, 0.2)
    left, right, top, foot = 0.16, 0.84, 0.24, 0.52
    gradient(context, top, foot, (0, 0.86), (1, 0.66))
    context.rectangle(left, top, right - left, foot - top)
    context.fill()
    for line, shade in ((top, 0.55), (top + 0.022, 0.45)):
        grey(context, shade)
        context.rectangle(left - 0.012, line, right - left + 0.024, 0.006)
        context.fill()
    context.move_to(left + 0.12, top)
    context.line_to(0.5, top - 0.10)
    context.line_to(right - 0.12, top)
    gradient(context, top - 0.1, top, (0, 0.92), (1, 0.76))
    context.fill_preserve()
    grey(context, 0.42)
    context.set_line_width(0.004)
    context.stroke()
    grey(context, 0.20)
    context.rectangle(left + 0.13, top + 0.03, right - left - 0.26, foot - top - 0.03)
    context.fill()
    for column in range(8):
        x = left + 0.14 + column * (right - left - 0.28) / 7
        shaft = cairo.LinearGradient(x - 0.014, 0, x + 0.014, 0)
        for place, shade in ((0, 0.62), (0.35, 0.98), (1, 0.50)):
            shaft.add_color_stop_rgb(place, shade, shade, shade)
        context.set_source(shaft)
        context.rectangle(x - 0.012, top + 0.032, 0.024, foot - top - 0.032)
        context.fill()
        grey(context, 0.75)
        context.rectangle(x - 0.018, top + 0.030, 0.036, 0.012)
        context.fill()
    for side in (left + 0.03, left + 0.08, right - 0.055, right - 0.105):
        for row in range(3):
            grey(context, 0.22 if row else 0.95)
            context.rectangle(side, top + 0.06 + row * 0.075, 0.028, 0.045)
            context.fill()
    for step in range(5):
        grey(context, 0.80 - step * 0.09)
        context.rectangle(left + 0.06 - step * 0.03, foot + step * 0.012, right - left - 0.12 + step * 0.06, 0.0125)
        context.fill()
    gradient(context, foot + 0.05, 0.63, (0, 0.48), (1, 0.30))
    context.rectangle(0, foot + 0.055, 1, 1)
    context.fill()
    for _ in range(46):
        x, y = chance.uniform(0.04, 0.96), chance.uniform(0.55, 0.60)
        size = (y - 0.40) * 0.055
        grey(context, chance.uniform(0.04, 0.20))
        context.arc(x, y - size * 2.6, size * 0.55, 0, 7)
        context.fill()
        context.save()
        context.translate(x, y)
        context.scale(size * 0.85, size * 2.2)
        context.arc(0, 0, 1, math.pi, 0)
        context.restore()
        context.fill()


def archive(context, chance):
    street(context, chance, (0.8, 0.15))
    vignette = cairo.RadialGradient(0.5, 0.31, 0.22, 0.5, 0.31, 0.66)
    vignette.add_color_stop_rgba(0, 1, 1, 1, 0)
    vignette.add_color_stop_rgba(1, 1, 1, 1, 0.95)
    context.set_source(vignette)
    context.paint()


def grain(surface, chance):
    """The grain of a press picture, without which a drawing looks smoother than any photograph."""
    data, dust = surface.get_data(), [int(chance.gauss(0, 6)) for _ in range(4099)]
    for at in range(0, len(data), 4):
        shade = max(0, min(255, data[at] + dust[at // 4 * 7 % 4099]))
        data[at] = data[at + 1] = data[at + 2] = shade
    surface.mark_dirty()


def press_picture(motif):
    """A JPEG of the motif, and its width and height in pixels."""
    width, chance = SIZES[motif], random.Random(motif)
    surface = cairo.ImageSurface(cairo.FORMAT_RGB24, width, round(width * RATIO))
    context = cairo.Context(surface)
    context.scale(width, width)
    globals()[motif](context, chance)
    surface.flush()
    grain(surface, chance)
    return jpeg_of(surface, 50), width, surface.get_height()


def text(context, font, size, words, x, y, shade):
    layout = PangoCairo.create_layout(context)
    layout.set_font_description(Pango.FontDescription(f"{font} {size}px"))
    layout.set_text(words, -1)
    context.move_to(x - layout.get_pixel_size().width / 2, y)
    context.set_source_rgb(*shade)
    PangoCairo.show_layout(context, layout)


ADVERTISEMENT_SIZE = 17855  # bytes, as the clients of the service expect it


def advertisement():
    """The picture that goes with every day, filled up to its fixed size with a comment, as JPEG allows."""
    width, height = 468, 120
    surface = cairo.ImageSurface(cairo.FORMAT_RGB24, width, height)
    context = cairo.Context(surface)
    paper = cairo.LinearGradient(0, 0, width, height)
    paper.add_color_stop_rgb(0, 0.06, 0.20, 0.36)
    paper.add_color_stop_rgb(1, 0.10, 0.42, 0.52)
    context.set_source(paper)
    context.paint()
    chance = random.Random("advertisement")
    for sheet in range(7):
        context.save()
        context.translate(52 + sheet * 5, 60 - sheet * 2)
        context.rotate(-0.34 + sheet * 0.09)
        context.rectangle(-29, -38, 58, 76)
        context.set_source_rgb(0.80 + sheet * 0.03, 0.80 + sheet * 0.03, 0.78 + sheet * 0.03)
        context.fill_preserve()
        context.set_source_rgba(0, 0, 0, 0.35)
        context.set_line_width(0.8)
        context.stroke()
        context.set_source_rgb(0.25, 0.27, 0.30)
        context.rectangle(-24, -32, 48, 7)
        context.fill()
        for line in range(9):
            context.rectangle(-24, -19 + line * 6, chance.uniform(14, 22), 2)
            context.rectangle(2, -19 + line * 6, chance.uniform(14, 22), 2)
        context.fill()
        context.restore()
    text(context, "GFS Didot Bold", 25, "Όλος ο τύπος, κάθε πρωί", 285, 22, (1, 1, 1))
    text(context, "GFS Didot Italic", 19, "Every newspaper, every morning", 285, 60, (0.86, 0.93, 0.97))
    text(context, "GFS Neohellenic Bold", 15, "ΑΠΟΚΟΜΜΑΤΑ · CLIPPINGS", 285, 89, (0.98, 0.82, 0.45))
    surface.flush()
    jpeg = next(jpeg for quality in range(95, 40, -1) if len(jpeg := jpeg_of(surface, quality)) <= ADVERTISEMENT_SIZE - 4)
    room = ADVERTISEMENT_SIZE - len(jpeg) - 4
    return jpeg[:2] + b"\xff\xfe" + (room + 2).to_bytes(2, "big") + b" " * room + jpeg[2:]
