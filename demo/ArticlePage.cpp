// SPDX-License-Identifier: MIT
#include "demo/ArticlePage.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace vell::demo {

namespace {

constexpr double pageWidth = 595, margin = 42, textWide = pageWidth - 2 * margin;
constexpr int columns = 3;
constexpr double gutter = 16, columnWide = (textWide - (columns - 1) * gutter) / columns;
constexpr double bodySize = 10, bodyLeading = 13;
constexpr double titleSize = 25, titleLeading = 29;
constexpr double leadSize = 12.5, leadLeading = 16, leadGap = 6;
constexpr double pictureWide = 2 * columnWide + gutter;
constexpr double footRoom = 34;

struct Line {
    std::string Text;
    double Indent = 0;
    bool EndsParagraph = false;
};

std::vector<Line> linesOf(std::string_view text, double width, Face face, double size, double indent = 0) {
    std::vector<Line> lines{{"", indent}};
    for (auto word : Split(text, " ")) {
        const std::string longer = lines.back().Text + (lines.back().Text.empty() ? "" : " ") + std::string(word);
        if (PdfPage::textWidth(longer, face, size) + lines.back().Indent <= width || lines.back().Text.empty())
            lines.back().Text = longer;
        else
            lines.push_back({std::string(word)});
    }
    lines.back().EndsParagraph = true;
    return lines;
}

std::vector<Line> bodyLines(const std::vector<std::string>& paragraphs) {
    std::vector<Line> body;
    for (const auto& paragraph : paragraphs)
        for (auto& line : linesOf(paragraph, columnWide, Face::Regular, bodySize, body.empty() ? 0 : 10))
            body.push_back(std::move(line));
    return body;
}

// The lines of the page, measured before it is made: its height follows from them.
struct Layout {
    std::vector<Line> Title, Lead, Body;
    double PictureHigh = 0;
    int PictureRows = 0;  // body lines that the picture and its caption take from the right-hand columns
    int Rows = 0;         // body lines of the first column
};

Layout layoutOf(const Article& article) {
    Layout layout{linesOf(article.Title, textWide, Face::Bold, titleSize),
                  linesOf(article.Lead, textWide, Face::Bold, leadSize), bodyLines(article.Paragraphs)};
    if (article.Title.empty()) layout.Title.clear();
    if (article.Image) {
        layout.PictureHigh = pictureWide * article.Image->Height / article.Image->Width;
        layout.PictureRows = int(std::ceil((layout.PictureHigh + 20) / bodyLeading));
    }
    const int lines = static_cast<int>(layout.Body.size());
    layout.Rows = std::max((lines + (columns - 1) * layout.PictureRows + columns - 1) / columns, layout.PictureRows);
    return layout;
}

constexpr double mastHigh = 74;

double heightOf(const Layout& layout) {
    return margin + mastHigh + double(layout.Title.size()) * titleLeading + double(layout.Lead.size()) * leadLeading +
           leadGap + 12 + layout.Rows * bodyLeading + footRoom;
}

class Setter {
  public:
    Setter(const Article& article, const Layout& layout)
        : article_(article), layout_(layout), page_(pageWidth, heightOf(layout)), y_(heightOf(layout) - margin) {}

    std::string set() {
        setMast();
        for (const auto& line : layout_.Title)
            page_.text(margin, down(titleLeading), line.Text, Face::Bold, titleSize);
        down(leadGap);
        for (const auto& line : layout_.Lead)
            page_.text(margin, down(leadLeading), line.Text, Face::Bold, leadSize);
        down(12);
        setPicture();
        setBody();
        setFoot();
        return page_.bytes(article_.Title);
    }

  private:
    double down(double by) { return y_ -= by; }
    void ruleAcross(double by, double thickness) {
        down(by);
        page_.rule(margin, y_, pageWidth - margin, y_, thickness);
    }

    void setMast() {
        constexpr double size = 32, smallSize = 9.5;
        const double width = PdfPage::textWidth(article_.Newspaper, Face::Bold, size);
        page_.text((pageWidth - width) / 2, down(24), article_.Newspaper, Face::Bold, size);
        ruleAcross(16, 2);
        page_.text(margin, down(13), article_.DateLine, Face::Regular, smallSize);
        page_.text(pageWidth - margin - PdfPage::textWidth(article_.PageLine, Face::Regular, smallSize), y_,
                   article_.PageLine, Face::Regular, smallSize);
        ruleAcross(6, 0.6);
        down(8);
    }

    void setPicture() {
        if (!article_.Image) return;
        const double x = margin + columnWide + gutter, bottom = y_ - layout_.PictureHigh;
        page_.picture(x, bottom, pictureWide, layout_.PictureHigh, *article_.Image);
        for (double side : {x, x + pictureWide})
            page_.rule(side, bottom, side, y_, 0.8);
        for (double end : {bottom, y_})
            page_.rule(x, end, x + pictureWide, end, 0.8);
        page_.text(x, bottom - 11, article_.Caption, Face::Regular, 8.5);
    }

    void setBody() {
        std::size_t next = 0;
        for (int column = 0; column < columns; ++column) {
            const double x = margin + column * (columnWide + gutter);
            for (int row = column == 0 ? 0 : layout_.PictureRows; row < layout_.Rows; ++row)
                if (next < layout_.Body.size())
                    setLine(layout_.Body[next++], x, y_ - bodySize * 0.8 - row * bodyLeading);
        }
        y_ -= layout_.Rows * bodyLeading;
    }

    // Justified, unless that would tear the words apart.
    void setLine(const Line& line, double x, double y) {
        constexpr double widestGap = 9;
        const double room = columnWide - line.Indent - PdfPage::textWidth(line.Text, Face::Regular, bodySize);
        const auto blanks = double(std::count(line.Text.begin(), line.Text.end(), ' '));
        const bool isJustified = !line.EndsParagraph && blanks > 0 && room / blanks < widestGap;
        page_.text(x + line.Indent, y, line.Text, Face::Regular, bodySize, isJustified ? room / blanks : 0);
    }

    void setFoot() {
        ruleAcross(4, 0.6);
        page_.text(margin, y_ - 11, article_.Newspaper + ", " + article_.DateLine, Face::Regular, 7.5);
    }

    const Article& article_;
    const Layout& layout_;
    PdfPage page_;
    double y_;  // the lower edge of what was set so far
};

}  // namespace

std::string articlePage(const Article& article) {
    return Setter(article, layoutOf(article)).set();
}

}  // namespace vell::demo
