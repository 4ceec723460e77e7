// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

#include "demo/Canvas.h"

namespace vell::demo {

// The Greek letters of code page 1253 as strokes of a pen, drawn for this service, so that pages can show Greek on
// machines without a Greek font. 1000 units make the font size; the base line is at 0, capitals reach to 660.
struct PenStep {
    enum class Motion { Move, Line, Curve };
    using enum Motion;
    Motion Kind = Move;
    std::array<Spot, 3> Points;  // the target; for a curve its two control points come before it
};

[[nodiscard]] bool isGreekLetter(char c);
// Empty for what is no Greek letter.
[[nodiscard]] const std::vector<PenStep>& strokesOf(char c);
// How far the next letter is away; a blank's width for what is no Greek letter.
[[nodiscard]] double advanceOf(char c);

}  // namespace vell::demo
