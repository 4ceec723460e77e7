// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vell::demo {

// A picture as a JPEG file, with its size in pixels.
struct Picture {
    int Width = 0;
    int Height = 0;
    std::string Jpeg;
};

enum class Face { Regular, Bold };

// A PDF file of one page. Positions are in points from the lower left corner. Texts are in code page 1253: Greek
// letters are drawn by the page itself, all else is set in Times, which every reader has.
class PdfPage {
  public:
    PdfPage(double width, double height) : width_(width), height_(height) {}

    [[nodiscard]] static double textWidth(std::string_view text, Face face, double size);

    // Each blank is made wider by `wordSpace`.
    void text(double x, double y, std::string_view text, Face face, double size, double wordSpace = 0);
    void rule(double x1, double y1, double x2, double y2, double thickness);
    // Scaled to the given size. One picture for a page.
    void picture(double x, double y, double width, double height, const Picture& picture);

    // The file.
    [[nodiscard]] std::string bytes(std::string_view title) const;

  private:
    double width_;
    double height_;
    std::string content_;
    std::set<char> greekLetters_;  // that the texts show
    Picture picture_;
};

}  // namespace vell::demo
