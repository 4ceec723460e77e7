// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>
#include <vector>

namespace vell::demo {

struct Colour {
    double Red = 0, Green = 0, Blue = 0;  // 0 to 1
};

struct Spot {
    double X = 0, Y = 0;
};

// How far a point lies outside a shape, in pixels; negative inside it. Edges come out smooth.
using Shape = std::function<double(Spot)>;
[[nodiscard]] Shape circle(Spot centre, double radius);
[[nodiscard]] Shape box(Spot from, Spot to);
// A line with round ends.
[[nodiscard]] Shape line(Spot from, Spot to, double thickness);
// All that lies under a curve.
[[nodiscard]] Shape under(std::function<double(double x)> curve);

// A picture that is painted shape by shape. Pixel 0,0 is the upper left one.
class Canvas {
  public:
    Canvas(int width, int height);

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] const Colour& at(int x, int y) const { return pixels_[index(x, y)]; }

    // From one colour at the top of the rows to another at their end.
    void grade(int fromRow, int toRow, const Colour& top, const Colour& bottom);
    void paint(const Shape& shape, const Colour& colour);
    // The same where the shape lies within the given corners, which saves looking everywhere else.
    void paint(const Shape& shape, const Colour& colour, Spot from, Spot to);
    // Greek capitals and blanks in code page 1253, centred on `middle`; `size` is the height of the letters.
    void writeCapitals(std::string_view text, Spot middle, double size, double thickness, const Colour& colour);
    // Every pixel a little lighter or darker, as on newsprint; the same picture each time.
    void addGrain(double strength);

  private:
    [[nodiscard]] std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }

    int width_;
    int height_;
    std::vector<Colour> pixels_;
};

}  // namespace vell::demo
