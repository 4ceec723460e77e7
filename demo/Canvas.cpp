// SPDX-License-Identifier: MIT
#include "demo/Canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "demo/GreekLetters.h"

namespace vell::demo {

namespace {

Colour mixed(const Colour& a, const Colour& b, double share) {
    return {a.Red + (b.Red - a.Red) * share, a.Green + (b.Green - a.Green) * share, a.Blue + (b.Blue - a.Blue) * share};
}

Spot pointOfCurve(const std::array<Spot, 4>& p, double t) {
    const double u = 1 - t;
    const double a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
    return {a * p[0].X + b * p[1].X + c * p[2].X + d * p[3].X, a * p[0].Y + b * p[1].Y + c * p[2].Y + d * p[3].Y};
}

// In the units of the letters.
constexpr double capitalHeight = 660;
constexpr double letterSpace = 60;  // pens are broader here than on paper

double widthOf(std::string_view text) {
    double width = 0;
    for (char c : text)
        width += advanceOf(c) + letterSpace;
    return width;
}

}  // namespace

Shape circle(Spot centre, double radius) {
    return [=](Spot p) { return std::hypot(p.X - centre.X, p.Y - centre.Y) - radius; };
}

Shape box(Spot from, Spot to) {
    return [=](Spot p) { return std::max({from.X - p.X, p.X - to.X, from.Y - p.Y, p.Y - to.Y}); };
}

Shape line(Spot from, Spot to, double thickness) {
    return [=](Spot p) {
        const double dx = to.X - from.X, dy = to.Y - from.Y;
        const double length = std::max(dx * dx + dy * dy, 1e-9);
        const double along = std::clamp(((p.X - from.X) * dx + (p.Y - from.Y) * dy) / length, 0.0, 1.0);
        return std::hypot(p.X - from.X - along * dx, p.Y - from.Y - along * dy) - thickness / 2;
    };
}

Shape under(std::function<double(double x)> curve) {
    return [curve = std::move(curve)](Spot p) { return curve(p.X) - p.Y; };
}

Canvas::Canvas(int width, int height)
    : width_(width), height_(height), pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

void Canvas::grade(int fromRow, int toRow, const Colour& top, const Colour& bottom) {
    for (int y = fromRow; y < toRow; ++y)
        for (int x = 0; x < width_; ++x)
            pixels_[index(x, y)] = mixed(top, bottom, double(y - fromRow) / (toRow - fromRow));
}

void Canvas::paint(const Shape& shape, const Colour& colour) {
    paint(shape, colour, {0, 0}, {double(width_), double(height_)});
}

void Canvas::paint(const Shape& shape, const Colour& colour, Spot from, Spot to) {
    const int left = std::max(int(from.X) - 1, 0), right = std::min(int(to.X) + 2, width_);
    const int top = std::max(int(from.Y) - 1, 0), bottom = std::min(int(to.Y) + 2, height_);
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x) {
            const double cover = std::clamp(0.5 - shape({x + 0.5, y + 0.5}), 0.0, 1.0);
            Colour& pixel = pixels_[index(x, y)];
            if (cover > 0) pixel = mixed(pixel, colour, cover);
        }
}

void Canvas::writeCapitals(std::string_view text, Spot middle, double size, double thickness, const Colour& colour) {
    const double scale = size / capitalHeight;
    double x = middle.X - (widthOf(text) - letterSpace) * scale / 2;
    const auto draw = [&](Spot a, Spot b) {
        const Spot from{x + a.X * scale, middle.Y + size / 2 - a.Y * scale};
        const Spot to{x + b.X * scale, middle.Y + size / 2 - b.Y * scale};
        paint(line(from, to, thickness), colour,
              {std::min(from.X, to.X) - thickness, std::min(from.Y, to.Y) - thickness},
              {std::max(from.X, to.X) + thickness, std::max(from.Y, to.Y) + thickness});
    };
    for (char c : text) {
        Spot pen{};
        for (const auto& step : strokesOf(c)) {
            constexpr int pieces = 10;
            const std::array<Spot, 4> curve{pen, step.Points[0], step.Points[1], step.Points[2]};
            if (step.Kind == PenStep::Line) draw(pen, step.Points[0]);
            for (int i = 0; step.Kind == PenStep::Curve && i < pieces; ++i)
                draw(pointOfCurve(curve, double(i) / pieces), pointOfCurve(curve, double(i + 1) / pieces));
            pen = step.Kind == PenStep::Curve ? step.Points[2] : step.Points[0];
        }
        x += (advanceOf(c) + letterSpace) * scale;
    }
}

void Canvas::addGrain(double strength) {
    std::uint32_t state = 2463534242;  // xorshift: plain, and the same on every machine
    for (auto& pixel : pixels_) {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        const double change = (double(state % 1024) / 512 - 1) * strength;
        pixel = {pixel.Red + change, pixel.Green + change, pixel.Blue + change};
    }
}

}  // namespace vell::demo
