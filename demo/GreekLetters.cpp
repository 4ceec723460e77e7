// SPDX-License-Identifier: MIT
#include "demo/GreekLetters.h"

#include <sstream>
#include <string>
#include <string_view>

#include "base/text.h"

namespace vell::demo {

namespace {

// M moves the pen, L draws a line, C a cubic Bezier curve, O an ellipse of the given centre and half axes.
struct Drawing {
    std::string_view Letter;
    double Advance;
    const char* Strokes;
};
constexpr Drawing drawings[] = {
    {"Α", 620, "M 30 0 L 310 660 L 590 0 M 135 230 L 485 230"},
    {"Β", 600, "M 90 0 L 90 660 L 300 660 C 520 660 520 350 300 350 L 90 350 M 300 350 C 570 350 570 0 300 0 L 90 0"},
    {"Γ", 520, "M 90 0 L 90 660 L 480 660"},
    {"Δ", 640, "M 40 0 L 320 660 L 600 0 L 40 0"},
    {"Ε", 540, "M 490 660 L 90 660 L 90 0 L 490 0 M 90 340 L 430 340"},
    {"Ζ", 580, "M 60 660 L 520 660 L 60 0 L 530 0"},
    {"Η", 660, "M 90 0 L 90 660 M 570 0 L 570 660 M 90 340 L 570 340"},
    {"Θ", 700, "O 350 330 285 335 M 230 335 L 470 335"},
    {"Ι", 270, "M 135 0 L 135 660"},
    {"Κ", 620, "M 90 0 L 90 660 M 540 660 L 90 270 M 235 395 L 570 0"},
    {"Λ", 620, "M 30 0 L 310 660 L 590 0"},
    {"Μ", 780, "M 80 0 L 110 660 L 390 90 L 670 660 L 700 0"},
    {"Ν", 680, "M 90 0 L 90 660 L 590 0 L 590 660"},
    {"Ξ", 580, "M 70 660 L 510 660 M 120 340 L 460 340 M 60 0 L 520 0"},
    {"Ο", 720, "O 360 330 295 335"},
    {"Π", 660, "M 90 0 L 90 660 L 570 660 L 570 0"},
    {"Ρ", 560, "M 90 0 L 90 660 L 290 660 C 550 660 550 300 290 300 L 90 300"},
    {"Σ", 560, "M 510 660 L 60 660 L 310 345 L 60 0 L 520 0"},
    {"Τ", 580, "M 290 0 L 290 660 M 40 660 L 540 660"},
    {"Υ", 600, "M 30 660 L 300 310 L 570 660 M 300 310 L 300 0"},
    {"Φ", 740, "M 370 0 L 370 660 O 370 335 290 210"},
    {"Χ", 600, "M 50 0 L 550 660 M 50 660 L 550 0"},
    {"Ψ", 720, "M 360 0 L 360 660 M 70 660 L 70 480 C 70 160 650 160 650 480 L 650 660"},
    {"Ω", 720, "M 50 0 L 250 0 C 90 110 55 270 70 390 C 110 740 610 740 650 390 C 665 270 630 110 470 0 L 670 0"},
    {"α", 575,
     "M 455 450 C 420 250 370 0 225 0 C 110 0 60 110 60 225 C 60 340 115 450 225 450 C 370 450 395 170 430 60 C 450 0 "
     "490 -5 525 15"},
    {"β", 530,
     "M 90 -190 L 90 470 C 90 600 150 665 250 665 C 350 665 410 610 410 530 C 410 430 340 380 230 375 C 380 375 460 "
     "300 460 190 C 460 70 380 0 270 0 C 190 0 120 40 90 100"},
    {"γ", 500,
     "M 25 430 C 80 470 130 440 160 350 L 265 0 C 285 -70 285 -190 245 -190 C 205 -190 215 -60 265 40 L 455 450"},
    {"δ", 530,
     "O 255 215 195 215 M 410 600 C 370 660 300 670 240 655 C 150 620 160 530 240 480 C 340 420 450 350 450 215"},
    {"ε", 460,
     "M 400 385 C 360 435 300 450 240 450 C 140 450 85 405 85 345 C 85 275 150 240 250 240 C 130 240 60 195 60 120 C "
     "60 40 130 0 230 0 C 310 0 370 25 410 75"},
    {"ζ", 430,
     "M 90 660 L 370 660 C 200 560 70 380 70 200 C 70 60 150 20 250 0 C 340 -15 370 -60 350 -120 C 335 -170 290 -185 "
     "240 -180"},
    {"η", 540,
     "M 30 400 C 60 460 130 460 130 380 L 130 0 M 130 320 C 170 410 230 450 300 450 C 400 450 430 400 430 310 L 430 "
     "-190"},
    {"θ", 530, "O 265 330 190 335 M 80 335 L 450 335"},
    {"ι", 280, "M 110 450 L 110 100 C 110 20 150 0 190 0 C 220 0 240 10 255 25"},
    {"κ", 510, "M 95 0 L 95 450 M 440 450 L 95 180 M 215 275 L 460 0"},
    {"λ", 500, "M 40 640 C 90 670 130 650 160 580 L 400 60 C 420 10 450 0 480 10 M 255 375 L 50 0"},
    {"μ", 570,
     "M 95 -190 L 95 450 M 95 160 C 95 50 160 0 240 0 C 330 0 410 60 430 150 M 430 450 L 430 100 C 430 20 460 0 510 "
     "10"},
    {"ν", 490, "M 40 450 L 235 0 C 330 120 430 300 430 450"},
    {"ξ", 440,
     "M 90 660 L 370 660 M 340 660 C 200 650 100 600 100 510 C 100 420 180 380 310 380 C 150 380 60 300 60 190 C 60 70 "
     "150 20 250 0 C 340 -15 370 -60 350 -120 C 335 -170 290 -185 240 -180"},
    {"ο", 530, "O 265 225 205 225"},
    {"π", 600,
     "M 30 400 C 60 440 90 450 130 450 L 570 450 M 180 450 C 180 300 170 130 110 0 M 400 450 L 400 110 C 400 20 430 0 "
     "490 10"},
    {"ρ", 540,
     "M 85 -190 L 85 220 C 85 360 160 450 275 450 C 400 450 470 360 470 228 C 470 100 400 0 275 0 C 190 0 120 50 85 "
     "130"},
    {"ς", 450,
     "M 400 400 C 370 440 320 450 260 450 C 130 450 60 350 60 220 C 60 80 150 30 250 5 C 340 -15 370 -55 355 -110 C "
     "340 -160 300 -180 250 -175"},
    {"σ", 580, "O 255 223 195 223 M 255 446 L 545 446"},
    {"τ", 475, "M 30 400 C 60 440 90 450 130 450 L 430 450 M 220 450 L 220 110 C 220 20 260 0 330 15"},
    {"υ", 530,
     "M 40 410 C 70 460 130 460 130 380 L 130 170 C 130 50 180 0 265 0 C 390 0 460 130 460 270 C 460 340 440 400 410 "
     "450"},
    {"φ", 640,
     "M 210 440 C 110 400 60 320 60 220 C 60 80 160 0 310 0 C 470 0 575 90 575 235 C 575 360 520 450 430 450 C 340 450 "
     "310 380 310 270 L 310 -190"},
    {"χ", 520, "M 40 430 C 90 470 130 440 160 390 L 370 -130 C 395 -185 430 -195 480 -170 M 460 450 L 60 -190"},
    {"ψ", 640,
     "M 320 -190 L 320 600 M 40 410 C 70 460 130 460 130 380 L 130 190 C 130 60 200 0 320 0 C 450 0 570 90 570 260 C "
     "570 340 550 400 520 450"},
    {"ω", 680,
     "M 170 450 C 90 390 60 300 60 200 C 60 80 110 0 200 0 C 290 0 340 80 340 200 L 340 260 M 340 200 C 340 80 390 0 "
     "480 0 C 570 0 620 80 620 200 C 620 300 590 390 510 450"},
};

// An accent over a letter: where it stands, and which letter takes it.
struct Accented {
    std::string_view Letter;
    std::string_view Base;
    double Middle;
    enum { Tonos, Dialytika, Both, Before } Kind;
};
constexpr Accented accents[] = {
    {"ά", "α", 280, Accented::Tonos},     {"έ", "ε", 250, Accented::Tonos},     {"ή", "η", 300, Accented::Tonos},
    {"ί", "ι", 110, Accented::Tonos},     {"ό", "ο", 265, Accented::Tonos},     {"ύ", "υ", 265, Accented::Tonos},
    {"ώ", "ω", 340, Accented::Tonos},     {"ϊ", "ι", 110, Accented::Dialytika}, {"ϋ", "υ", 265, Accented::Dialytika},
    {"ΐ", "ι", 110, Accented::Both},      {"ΰ", "υ", 265, Accented::Both},      {"Ϊ", "Ι", 135, Accented::Dialytika},
    {"Ϋ", "Υ", 300, Accented::Dialytika}, {"Ά", "Α", 0, Accented::Before},      {"Έ", "Ε", 0, Accented::Before},
    {"Ή", "Η", 0, Accented::Before},      {"Ί", "Ι", 0, Accented::Before},      {"Ό", "Ο", 0, Accented::Before},
    {"Ύ", "Υ", 0, Accented::Before},      {"Ώ", "Ω", 0, Accented::Before},
};

struct Letter {
    double Advance = 0;
    std::vector<PenStep> Strokes;
};

void addLine(std::vector<PenStep>& strokes, Spot from, Spot to) {
    strokes.push_back({PenStep::Move, {from}});
    strokes.push_back({PenStep::Line, {to}});
}

void addEllipse(std::vector<PenStep>& strokes, Spot centre, Spot half) {
    constexpr double k = 0.5523;  // where the control points of a quarter circle lie
    const auto at = [&](double x, double y) { return Spot{centre.X + x * half.X, centre.Y + y * half.Y}; };
    strokes.push_back({PenStep::Move, {at(1, 0)}});
    strokes.push_back({PenStep::Curve, {at(1, k), at(k, 1), at(0, 1)}});
    strokes.push_back({PenStep::Curve, {at(-k, 1), at(-1, k), at(-1, 0)}});
    strokes.push_back({PenStep::Curve, {at(-1, -k), at(-k, -1), at(0, -1)}});
    strokes.push_back({PenStep::Curve, {at(k, -1), at(1, -k), at(1, 0)}});
}

std::vector<PenStep> parsed(const char* text) {
    std::vector<PenStep> strokes;
    std::istringstream words(text);
    char kind = 0;
    while (words >> kind) {
        Spot a, b, c;
        words >> a.X >> a.Y;
        if (kind == 'C' || kind == 'O') words >> b.X >> b.Y;
        if (kind == 'C') words >> c.X >> c.Y;
        if (kind == 'M') strokes.push_back({PenStep::Move, {a}});
        if (kind == 'L') strokes.push_back({PenStep::Line, {a}});
        if (kind == 'C') strokes.push_back({PenStep::Curve, {a, b, c}});
        if (kind == 'O') addEllipse(strokes, a, b);
    }
    return strokes;
}

void addAccent(Letter& letter, const Accented& accent, double top) {
    constexpr double room = 130;  // that an accent before a capital takes
    const double x = accent.Middle;
    if (accent.Kind == Accented::Before) {
        for (auto& step : letter.Strokes)
            for (auto& point : step.Points)
                point.X += room;
        letter.Advance += room;
        addLine(letter.Strokes, {30, top - 130}, {80, top});
        return;
    }
    if (accent.Kind != Accented::Dialytika) addLine(letter.Strokes, {x - 5, top - 120}, {x + 55, top + 10});
    if (accent.Kind == Accented::Tonos) return;
    for (double side : {-95.0, 95.0})
        addLine(letter.Strokes, {x + side, top - 70}, {x + side + 3, top - 70});
}

std::array<Letter, 256> drawn() {
    std::array<Letter, 256> letters;
    const auto slot = [&](std::string_view utf8) -> Letter& {
        return letters[static_cast<unsigned char>(codePageFromUtf8Lossy(utf8).front())];
    };
    for (const auto& drawing : drawings)
        slot(drawing.Letter) = {drawing.Advance, parsed(drawing.Strokes)};
    for (const auto& accent : accents) {
        const bool isOverCapital = accent.Base == "Ι" || accent.Base == "Υ";
        slot(accent.Letter) = slot(accent.Base);
        addAccent(slot(accent.Letter), accent, isOverCapital && accent.Kind == Accented::Dialytika ? 850 : 660);
    }
    return letters;
}

const Letter& letterOf(char c) {
    static const std::array<Letter, 256> letters = drawn();
    return letters[static_cast<unsigned char>(c)];
}

}  // namespace

bool isGreekLetter(char c) {
    return !letterOf(c).Strokes.empty();
}

const std::vector<PenStep>& strokesOf(char c) {
    return letterOf(c).Strokes;
}

double advanceOf(char c) {
    constexpr double blank = 260;
    return isGreekLetter(c) ? letterOf(c).Advance : blank;
}

}  // namespace vell::demo
