// SPDX-License-Identifier: MIT
#include "demo/SamplePictures.h"

#include <array>
#include <cmath>
#include <numbers>

#include "base/text.h"
#include "demo/Canvas.h"
#include "demo/JpegWriter.h"

namespace vell::demo {

namespace {

// The motifs are drawn on a field of 3 by 2, whatever its size: 300 by 200 units.
class Field {
  public:
    explicit Field(Canvas& canvas) : canvas_(canvas), unit_(canvas.width() / 300.0) {}

    [[nodiscard]] Spot at(double x, double y) const { return {x * unit_, y * unit_}; }
    void sky(const Colour& top, const Colour& bottom, double from, double to) {
        canvas_.grade(int(from * unit_), std::min(int(to * unit_), canvas_.height()), top, bottom);
    }
    void disc(double x, double y, double radius, const Colour& colour) {
        canvas_.paint(circle(at(x, y), radius * unit_), colour);
    }
    void block(double x1, double y1, double x2, double y2, const Colour& colour) {
        canvas_.paint(box(at(x1, y1), at(x2, y2)), colour, at(x1, y1), at(x2, y2));
    }
    void stroke(double x1, double y1, double x2, double y2, double thickness, const Colour& colour) {
        canvas_.paint(line(at(x1, y1), at(x2, y2), thickness * unit_), colour);
    }
    // A row of hills around a height.
    void hills(double height, double swing, double length, double shift, const Colour& colour) {
        const auto crest = [=, unit = unit_](double x) {
            const double angle = x / unit / length + shift;
            return unit * (height - swing * (std::sin(angle) + 0.4 * std::sin(2.7 * angle)));
        };
        canvas_.paint(under(crest), colour);
    }

  private:
    Canvas& canvas_;
    double unit_;
};

Colour grey(double value) {
    return {value, value, value};
}

void drawHarbour(Field field) {
    field.sky(grey(0.62), grey(0.95), 0, 110);
    field.disc(215, 62, 17, grey(0.99));
    field.hills(104, 12, 34, 0.5, grey(0.55));
    field.hills(112, 7, 21, 2.2, grey(0.42));
    field.sky(grey(0.72), grey(0.3), 118, 200);
    for (int i = 0; i < 12; ++i)
        field.stroke(190 + 13 * std::sin(i * 2.1), 122 + i * 6, 232 + 11 * std::cos(i * 1.7), 122 + i * 6, 1,
                     grey(0.9));
    for (double boat : {40.0, 118.0}) {
        field.stroke(boat + 25, 88, boat + 25, 150, 1.6, grey(0.15));
        for (int i = 0; i < 40; ++i)
            field.stroke(boat + 27, 92 + i, boat + 27 + i * 0.55, 92 + i * 1.05, 1.2, grey(0.97));
        for (int i = 0; i < 9; ++i)
            field.stroke(boat + i, 150 + i, boat + 58 - i * 1.4, 150 + i, 1.4, grey(0.12));
    }
    field.block(0, 178, 300, 200, grey(0.2));
    for (double post : {24.0, 92.0, 160.0, 228.0, 290.0})
        field.stroke(post, 166, post, 190, 5, grey(0.1));
}

void drawCity(Field field) {
    field.sky(grey(0.5), grey(0.93), 0, 200);
    field.disc(70, 48, 15, grey(0.97));
    struct House {
        double Left, Right, Top;
    };
    constexpr std::array<House, 9> houses{{{0, 34, 96},
                                           {30, 62, 70},
                                           {58, 102, 112},
                                           {96, 126, 48},
                                           {122, 170, 100},
                                           {164, 194, 78},
                                           {188, 226, 118},
                                           {220, 254, 58},
                                           {250, 300, 92}}};
    for (std::size_t i = 0; i < houses.size(); ++i) {
        const auto& house = houses[i];
        field.block(house.Left, house.Top, house.Right, 200, grey(i % 2 == 0 ? 0.36 : 0.26));
        for (double y = house.Top + 8; y < 178; y += 12)
            for (double x = house.Left + 5; x < house.Right - 6; x += 9)
                if ((int(x * 7 + y * 3) % 5) < 3) field.block(x, y, x + 4.5, y + 6.5, grey(0.88));
    }
    field.block(0, 184, 300, 200, grey(0.16));
    for (double x = 8; x < 300; x += 34)
        field.block(x, 191, x + 18, 193, grey(0.85));
}

void drawWindPark(Field field) {
    field.sky(grey(0.6), grey(0.97), 0, 150);
    field.disc(62, 46, 14, grey(1));
    field.hills(128, 16, 40, 1.1, grey(0.62));
    field.hills(150, 14, 27, 3.4, grey(0.44));
    constexpr double turn = std::numbers::pi * 2 / 3;
    for (double x : {96.0, 168.0, 236.0}) {
        const double top = 52 + (x - 168) * (x - 168) / 900, reach = 34;
        field.stroke(x, top, x, 158, 3, grey(0.95));
        for (int blade = 0; blade < 3; ++blade)
            field.stroke(x, top, x + reach * std::cos(x + blade * turn), top + reach * std::sin(x + blade * turn), 2.4,
                         grey(0.98));
        field.disc(x, top, 3.4, grey(0.8));
    }
    field.hills(176, 9, 18, 0.2, grey(0.26));
}

void drawChart(Field field) {
    field.sky(grey(0.97), grey(0.9), 0, 200);
    for (double y = 40; y <= 160; y += 30)
        field.stroke(34, y, 282, y, 0.7, grey(0.7));
    constexpr std::array<double, 8> values{46, 58, 52, 71, 64, 88, 97, 116};
    Spot last{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double x = 48 + 30 * double(i), top = 170 - values[i];
        field.block(x, top, x + 18, 170, grey(i + 1 == values.size() ? 0.15 : 0.5));
        if (i > 0) field.stroke(last.X, last.Y, x + 9, top - 14, 2.2, grey(0.05));
        last = {x + 9, top - 14};
    }
    field.disc(last.X, last.Y, 4, grey(0.05));
    field.stroke(34, 170, 282, 170, 1.6, grey(0.1));
    field.stroke(34, 24, 34, 170, 1.6, grey(0.1));
}

}  // namespace

Picture pressPicture(Motif motif, int width, double coarseness) {
    Canvas canvas(width, width * 2 / 3);
    const Field field(canvas);
    if (motif == Motif::Harbour) drawHarbour(field);
    if (motif == Motif::City) drawCity(field);
    if (motif == Motif::WindPark) drawWindPark(field);
    if (motif == Motif::Chart) drawChart(field);
    canvas.addGrain(0.05);
    return {canvas.width(), canvas.height(), jpegOf(canvas, coarseness)};
}

std::string advertisementPicture() {
    constexpr Colour cream{0.98, 0.94, 0.85}, brown{0.33, 0.18, 0.09}, red{0.72, 0.16, 0.12}, white{1, 0.99, 0.97};
    Canvas canvas(360, 240);
    Field field(canvas);
    field.sky({0.96, 0.8, 0.55}, cream, 0, 200);
    field.disc(150, 104, 62, {0.99, 0.87, 0.62});
    for (double x : {132.0, 150.0, 168.0})  // steam
        for (int i = 0; i < 30; ++i)
            field.disc(x + 5 * std::sin(i / 4.0), 88 - i * 1.2, 2.6 - i * 0.06, {1, 0.97, 0.9});
    for (int i = 0; i < 40; ++i) {  // cup
        const double half = 40 - i * i / 100.0;
        field.stroke(150 - half, 96 + i, 150 + half, 96 + i, 1.6, white);
    }
    field.stroke(112, 97, 188, 97, 5, brown);
    for (int i = 0; i <= 24; ++i)  // handle
        field.disc(188 + 14 * std::sin(i * std::numbers::pi / 24), 105 + i * 0.9, 2.4, white);
    field.stroke(96, 139, 204, 139, 5, white);
    field.block(0, 148, 300, 200, brown);
    const auto write = [&](std::string_view utf8, double y, double size, double thickness, const Colour& colour) {
        canvas.writeCapitals(codePageFromUtf8Lossy(utf8), field.at(150, y), size, thickness, colour);
    };
    write("ΚΑΦΕΣ ΑΡΓΩ", 30, 30, 5.5, red);
    write("Ο ΠΡΩΤΟΣ ΤΗΣ ΗΜΕΡΑΣ", 168, 17, 2.6, cream);
    write("ΜΑΖΙ ΜΕ ΤΑ ΝΕΑ", 188, 11, 1.7, {0.93, 0.76, 0.52});
    return jpegOf(canvas, 1.5);
}

}  // namespace vell::demo
