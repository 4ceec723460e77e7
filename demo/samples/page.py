# SPDX-License-Identifier: MIT
"""Sets a clipping as a one-page PDF, in the manner of its newspaper."""
import math
import re
from dataclasses import dataclass

import cairo
import gi

import pictures

gi.require_version("Pango", "1.0")
gi.require_version("PangoCairo", "1.0")
from gi.repository import Pango, PangoCairo  # noqa: E402

WIDTH, MARGIN, GUTTER = 595, 44, 15
INNER = WIDTH - 2 * MARGIN


@dataclass
class Style:
    mast: str
    mast_size: float
    head: str
    head_size: float
    body: str
    size: float
    leading: float
    columns: int
    centred: bool = False
    paper: tuple = (1, 1, 1)
    accent: tuple = (0.1, 0.1, 0.1)


STYLES = {
    "ANEM": Style("GFS Didot Bold", 40, "GFS Didot Bold", 24, "GFS Didot", 10, 13.2, 3, centred=True),
    "DIAV": Style("Linux Libertine O Bold", 33, "Linux Libertine O Bold", 25, "Linux Libertine O", 10.4, 13, 3,
                  paper=(0.995, 0.955, 0.91), accent=(0.45, 0.16, 0.10)),
    "GLAR": Style("Roboto Condensed Bold", 36, "Roboto Condensed Bold", 29, "GFS Artemisia", 9.8, 13, 3,
                  accent=(0.05, 0.30, 0.52)),
    "KYMA": Style("GFS Artemisia Bold Italic", 36, "GFS Artemisia Bold", 25, "GFS Artemisia", 10.2, 14, 2,
                  accent=(0.10, 0.32, 0.34)),
    "LANT": Style("EB Garamond 12 Bold", 40, "EB Garamond 12 Bold", 30, "EB Garamond 12", 10.6, 13.4, 3, centred=True),
    "THYM": Style("Linux Biolinum O Bold", 34, "Linux Biolinum O Bold", 27, "Linux Libertine O", 10.4, 13.2, 2,
                  accent=(0.20, 0.33, 0.16)),
}


# A consonant between two vowels begins a syllable; three letters at least stay on each line.
VOWELS = "αειουηωάέίόύήώϊϋΐΰ"
SYLLABLE = re.compile(f"(?<=[^\\W\\d_]{{2}}[{VOWELS}])(?=[βγδζθκλμνξπρσςτφχψ][{VOWELS}][^\\W\\d_])")


def hyphenated(words):
    return SYLLABLE.sub("\u00ad", words)


class Setter:
    """Sets a page from its top down. The first pass, on a page that is thrown away, finds the height."""

    def __init__(self, surface, sample, page_line):
        self.context = cairo.Context(surface)
        self.sample, self.page_line, self.style = sample, page_line, STYLES[sample["paper"]]
        self.y = MARGIN - 8

    def layout(self, font, size, words, width=INNER, justified=False, align=Pango.Alignment.LEFT, indent=0.0):
        layout = PangoCairo.create_layout(self.context)
        description = Pango.FontDescription(font)
        description.set_absolute_size(size * Pango.SCALE)
        layout.set_font_description(description)
        layout.set_width(round(width * Pango.SCALE))
        layout.set_justify(justified)
        layout.set_alignment(align)
        layout.set_indent(round(indent * Pango.SCALE))
        layout.set_text(words, -1)
        return layout

    def lines(self, layout):
        return [layout.get_line_readonly(i) for i in range(layout.get_line_count())]

    def block(self, leading, layout, x=MARGIN, colour=(0.08, 0.08, 0.08)):
        """Lines one below the other over the whole width."""
        self.context.set_source_rgb(*colour)
        for line in self.lines(layout):
            ink, extent = line.get_extents()
            shift = {Pango.Alignment.CENTER: 0.5, Pango.Alignment.RIGHT: 1.0}.get(layout.get_alignment(), 0.0)
            room = layout.get_width() - extent.width
            self.y += leading
            self.context.move_to(x + shift * room / Pango.SCALE, self.y)
            PangoCairo.show_layout_line(self.context, line)

    def rule(self, thickness, gap, colour=(0.1, 0.1, 0.1)):
        self.y += gap
        self.context.set_source_rgb(*colour)
        self.context.rectangle(MARGIN, self.y, INNER, thickness)
        self.context.fill()
        self.y += thickness

    def mast(self):
        style, middle = self.style, Pango.Alignment.CENTER
        self.block(style.mast_size * 0.85, self.layout(style.mast, style.mast_size, self.sample["newspaper"],
                                                       align=middle if style.centred else Pango.Alignment.LEFT),
                   colour=style.accent)
        self.rule(2.2, 9, style.accent)
        if style.centred:
            self.rule(0.6, 1.6, style.accent)
        top = self.y
        category = self.sample["category"].strip("|").replace("|", " · ")
        self.block(12, self.layout(style.body, 9, category))
        self.y = top
        self.block(12, self.layout(style.body, 9, self.page_line, align=Pango.Alignment.RIGHT))
        self.rule(0.5, 4.5)
        self.y += 10

    def headline(self):
        style, sample = self.style, self.sample
        size = style.head_size * (0.72 if len(sample["title"]) > 90 else 1)
        align = Pango.Alignment.CENTER if style.centred else Pango.Alignment.LEFT
        if sample["title"]:
            self.block(size * 1.16, self.layout(style.head, size, sample["title"], align=align))
            self.y += 5
        self.block(17, self.layout(style.body, 13.2, sample["lead"], align=align), colour=(0.22, 0.22, 0.22))
        self.block(17, self.layout(style.body, 9.2, sample["author"], align=align),
                   colour=style.accent)
        self.y += 9

    def picture(self, x, width):
        """The height that the picture and its caption take."""
        height = width * pictures.RATIO
        context = self.context
        context.save()
        context.rectangle(x, self.y, width, height)
        context.clip()
        if self.sample["picture"] == "chart":
            self.chart(x, self.y, width, height)
        else:
            jpeg, pixels, _ = pictures.press_picture(self.sample["picture"])
            image = cairo.ImageSurface(cairo.FORMAT_RGB24, pixels, round(pixels * pictures.RATIO))
            image.set_mime_data(cairo.MIME_TYPE_JPEG, jpeg)
            context.translate(x, self.y)
            context.scale(width / pixels, width / pixels)
            context.set_source_surface(image, 0, 0)
            context.paint()
        context.restore()
        context.set_source_rgb(0.2, 0.2, 0.2)
        context.set_line_width(0.5)
        context.rectangle(x, self.y, width, height)
        context.stroke()
        top, self.y = self.y, self.y + height
        self.block(12, self.layout(self.style.body, 8.8, self.sample["caption"], width), x, (0.3, 0.3, 0.3))
        used, self.y = self.y - top, top
        return used

    def chart(self, x, y, width, height):
        values = [100, 103, 101, 106, 109, 107, 112, 118, 115, 121, 126, 131]
        context, foot, left = self.context, y + height - 22, x + 30
        step = (width - 44) / len(values)
        for number, mark in enumerate(range(90, 140, 10)):
            line = foot - number * (height - 44) / 4
            context.set_source_rgb(0.75, 0.72, 0.70)
            context.rectangle(left, line, width - 40, 0.5)
            context.fill()
            context.set_source_rgb(0.3, 0.3, 0.3)
            context.move_to(x + 7, line + 3)
            PangoCairo.show_layout_line(context, self.layout(self.style.body, 8.5, str(mark)).get_line_readonly(0))
        for number, value in enumerate(values):
            tall = (value - 90) / 40 * (height - 44)
            context.set_source_rgb(*(self.style.accent if number == len(values) - 1 else (0.55, 0.53, 0.52)))
            context.rectangle(left + 5 + number * step, foot - tall, step - 7, tall)
            context.fill()
            context.set_source_rgb(0.3, 0.3, 0.3)
            context.move_to(left + 5 + number * step + 2, foot + 11)
            PangoCairo.show_layout_line(context, self.layout(self.style.body, 7.5, f"Q{number % 4 + 1}").get_line_readonly(0))

    def body(self):
        style, sample = self.style, self.sample
        width = (INNER - (style.columns - 1) * GUTTER) / style.columns
        lines = [line for number, words in enumerate(sample["paragraphs"])
                 for line in self.lines_of(words, width, 0 if number == 0 else 11)]
        rows, top = 0, self.y
        if sample["picture"]:
            span = 2 if style.columns > 2 else 1
            at = MARGIN + (style.columns - span) * (width + GUTTER)
            used = self.picture(at, width * span + GUTTER * (span - 1))
            rows, covered = math.ceil((used + 5) / style.leading), span
        else:
            covered = 0
        deep = max(math.ceil((len(lines) + covered * rows) / style.columns), rows)
        self.context.set_source_rgb(0.1, 0.1, 0.1)
        column, row = 0, 0
        for line in lines:
            if row == deep:
                column += 1
                row = rows if column >= style.columns - covered else 0
            self.context.move_to(MARGIN + column * (width + GUTTER) + line[1], top + (row + 0.8) * style.leading)
            PangoCairo.show_layout_line(self.context, line[0])
            row += 1
        self.context.set_source_rgb(0.7, 0.7, 0.7)
        for gap in range(1, style.columns):
            start = top + (rows * style.leading if gap > style.columns - covered else 0)
            self.context.rectangle(MARGIN + gap * (width + GUTTER) - GUTTER / 2, start + 2, 0.4, top + deep * style.leading - start - 2)
            self.context.fill()
        self.y = top + deep * style.leading

    def lines_of(self, words, width, indent):
        layout = self.layout(self.style.body, self.style.size, hyphenated(words), width, justified=True, indent=indent)
        return [(line, indent if number == 0 else 0) for number, line in enumerate(self.lines(layout))]

    def foot(self):
        self.rule(0.5, 9)
        top = self.y
        self.block(11, self.layout(self.style.body, 7.8, f"{self.sample['newspaper']} · {self.page_line}"), colour=(0.35, 0.35, 0.35))
        self.y = max(self.y, top) + 18

    def set(self):
        self.context.set_source_rgb(*self.style.paper)
        self.context.paint()
        for part in (self.mast, self.headline, self.body, self.foot):
            part()
        return self.y


def draw(path, sample, page_line):
    height = Setter(cairo.PDFSurface(None, WIDTH, 2000), sample, page_line).set()
    surface = cairo.PDFSurface(str(path), WIDTH, round(height))
    surface.set_metadata(cairo.PDF_METADATA_TITLE, sample["title"] or sample["newspaper"])
    surface.set_metadata(cairo.PDF_METADATA_CREATE_DATE, "2026-01-05T06:00:00Z")
    Setter(surface, sample, page_line).set()
    surface.finish()
