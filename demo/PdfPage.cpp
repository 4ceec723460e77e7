// SPDX-License-Identifier: MIT
#include "demo/PdfPage.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <iterator>
#include <locale>
#include <sstream>

#include "base/text.h"
#include "demo/GreekLetters.h"

namespace vell::demo {

namespace {

// Widths of Times-Roman and Times-Bold in thousandths of the size, for the characters from 32 to 126.
constexpr std::array<short, 95> romanWidths{
    250, 333, 408, 500, 500, 833, 778, 180, 333, 333, 500, 564, 250, 333, 250, 278, 500, 500, 500,
    500, 500, 500, 500, 500, 500, 500, 278, 278, 564, 564, 564, 444, 921, 722, 667, 667, 722, 611,
    556, 722, 722, 333, 389, 722, 611, 889, 722, 722, 556, 722, 667, 556, 611, 722, 722, 944, 722,
    722, 611, 333, 278, 333, 469, 500, 333, 444, 500, 444, 500, 444, 333, 500, 500, 278, 278, 500,
    278, 778, 500, 500, 500, 500, 333, 389, 278, 500, 500, 722, 500, 500, 444, 480, 200, 480, 541};
constexpr std::array<short, 95> boldWidths{
    250, 333, 555, 500, 500, 1000, 833, 278, 333, 333, 500, 570, 250, 333, 250, 278, 500, 500,  500,
    500, 500, 500, 500, 500, 500,  500, 333, 333, 570, 570, 570, 500, 930, 722, 667, 722, 722,  667,
    611, 778, 778, 389, 500, 778,  667, 944, 722, 778, 611, 778, 722, 556, 667, 722, 722, 1000, 722,
    722, 667, 333, 278, 333, 581,  500, 333, 500, 556, 444, 556, 444, 333, 500, 556, 278, 333,  556,
    278, 833, 556, 500, 556, 556,  444, 389, 333, 556, 500, 722, 500, 500, 444, 394, 220, 394,  520};

// What the bold pen adds to the distance between Greek letters.
constexpr double boldRoom = 25;

double latinWidth(char c, Face face) {
    const auto index = static_cast<unsigned char>(c) - 32u;
    const auto& widths = face == Face::Bold ? boldWidths : romanWidths;
    if (index < widths.size()) return widths[index];
    return c == '\xB7' ? 250 : 500;  // the middle dot; dashes and quotation marks
}

double charWidth(char c, Face face) {
    if (!isGreekLetter(c)) return latinWidth(c, face);
    return advanceOf(c) + (face == Face::Bold ? boldRoom : 0);
}

std::ostringstream plainStream() {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::fixed << std::setprecision(2);
    return stream;
}

std::string hex(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text.append({digits[byte / 16u], digits[byte % 16u]});
    }
    return text;
}

// The UTF-16 of a byte of the code page, in hexadecimal digits.
std::string utf16Hex(char c) {
    const std::string utf8 = utf8FromCodePage({&c, 1});
    const auto part = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]) & 63u; };
    unsigned code = part(0) & 31u;
    if (utf8.size() == 1) code = static_cast<unsigned char>(utf8[0]);
    if (utf8.size() == 3) code = part(0) & 15u;
    for (std::size_t i = 1; i < utf8.size(); ++i)
        code = code << 6 | part(i);
    return hex(std::string{static_cast<char>(code >> 8), static_cast<char>(code & 255)});
}

// The objects of a file, numbered from 1 in the order in which they are added, and the table that finds them.
class PdfObjects {
  public:
    int add(std::string_view content) {
        offsets_.push_back(file_.size());
        const int number = static_cast<int>(offsets_.size());
        file_.append(std::to_string(number)).append(" 0 obj\n").append(content).append("\nendobj\n");
        return number;
    }
    int addStream(const std::string& dictionary, std::string_view bytes) {
        return add("<< " + dictionary + " /Length " + std::to_string(bytes.size()) + " >>\nstream\n" +
                   std::string(bytes) + "\nendstream");
    }
    std::string finish(int catalog, int info) {
        std::ostringstream end = plainStream();
        end << "xref\n0 " << offsets_.size() + 1 << "\n0000000000 65535 f \n";
        for (auto offset : offsets_)
            end << std::setw(10) << std::setfill('0') << offset << " 00000 n \n";
        end << "trailer\n<< /Size " << offsets_.size() + 1 << " /Root " << catalog << " 0 R /Info " << info
            << " 0 R >>\nstartxref\n"
            << file_.size() << "\n%%EOF\n";
        return file_ + end.str();
    }

  private:
    // The second line tells programs that transfer files that this one is binary.
    std::string file_ = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    std::vector<std::size_t> offsets_;
};

std::string reference(int number) {
    return std::to_string(number) + " 0 R";
}

// A letter as the drawing of a Type 3 font: a pen that is broader than it is high gives thick stems and thin bars.
std::string glyphOf(char c, Face face) {
    const bool isBold = face == Face::Bold;
    const double penX = isBold ? 120 : 74, penY = isBold ? 60 : 44;
    std::ostringstream out = plainStream();
    out << std::setprecision(0) << charWidth(c, face) << " 0 d0 1 J 1 j " << penX << " 0 0 " << penY << " 0 0 cm 1 w\n"
        << std::setprecision(3);
    for (const auto& step : strokesOf(c)) {
        const std::size_t points = step.Kind == PenStep::Curve ? 3 : 1;
        for (std::size_t i = 0; i < points; ++i)
            out << step.Points[i].X / penX << ' ' << step.Points[i].Y / penY << ' ';
        out << (step.Kind == PenStep::Curve ? "c\n" : step.Kind == PenStep::Line ? "l\n" : "m\n");
    }
    out << "S";
    return out.str();
}

// Lets readers search and copy the Greek text.
int addUnicodeMap(PdfObjects& objects, const std::set<char>& letters) {
    std::string map =
        "/CIDInit /ProcSet findresource begin 12 dict begin begincmap /CMapName /Greek def /CMapType 2 def\n"
        "1 begincodespacerange <00> <FF> endcodespacerange\n" +
        std::to_string(letters.size()) + " beginbfchar\n";
    for (char c : letters)
        map.append("<").append(hex({&c, 1})).append("> <").append(utf16Hex(c)).append(">\n");
    return objects.addStream("", map + "endbfchar endcmap end end");
}

int addGreekFont(PdfObjects& objects, Face face, const std::set<char>& letters) {
    std::ostringstream widths = plainStream(), names = plainStream(), drawings = plainStream();
    for (int code = 128; code < 256; ++code) {
        const char c = static_cast<char>(code);
        widths << std::setprecision(0) << (letters.contains(c) ? charWidth(c, face) : 0) << ' ';
        if (!letters.contains(c)) continue;
        names << code << " /g" << code << ' ';
        drawings << "/g" << code << ' ' << reference(objects.addStream("", glyphOf(c, face))) << ' ';
    }
    const int map = addUnicodeMap(objects, letters);
    return objects.add(
        "<< /Type /Font /Subtype /Type3 /FontBBox [0 -300 1000 900] /FontMatrix [0.001 0 0 0.001 0 0]\n"
        "/FirstChar 128 /LastChar 255 /Widths [" +
        widths.str() +
        "]\n/Encoding << /Type /Encoding "
        "/Differences [" +
        names.str() + "] >>\n/CharProcs << " + drawings.str() + ">> /Resources << >> /ToUnicode " + reference(map) +
        " >>");
}

int addLatinFont(PdfObjects& objects, const char* name) {
    return objects.add(std::string("<< /Type /Font /Subtype /Type1 /Encoding /WinAnsiEncoding /BaseFont /") + name +
                       " >>");
}

// Marks, dashes and quotation marks have the same codes in WinAnsi as in code page 1253.
const char* fontOf(char c, Face face) {
    if (isGreekLetter(c)) return face == Face::Bold ? "/GB" : "/G";
    return face == Face::Bold ? "/TB" : "/T";
}

}  // namespace

double PdfPage::textWidth(std::string_view text, Face face, double size) {
    double width = 0;
    for (char c : text)
        width += charWidth(c, face);
    return width * size / 1000;
}

void PdfPage::text(double x, double y, std::string_view text, Face face, double size, double wordSpace) {
    std::copy_if(text.begin(), text.end(), std::inserter(greekLetters_, greekLetters_.end()), isGreekLetter);
    std::ostringstream out = plainStream();
    out << "BT " << wordSpace << " Tw " << x << ' ' << y << " Td\n";
    for (std::size_t from = 0, to = 0; from < text.size(); from = to) {
        const char* font = fontOf(text[from], face);
        while (to < text.size() && std::string_view(fontOf(text[to], face)) == font)
            ++to;
        out << font << ' ' << size << " Tf <" << hex(text.substr(from, to - from)) << "> Tj\n";
    }
    out << "ET\n";
    content_ += out.str();
}

void PdfPage::rule(double x1, double y1, double x2, double y2, double thickness) {
    std::ostringstream out = plainStream();
    out << thickness << " w " << x1 << ' ' << y1 << " m " << x2 << ' ' << y2 << " l S\n";
    content_ += out.str();
}

void PdfPage::picture(double x, double y, double width, double height, const Picture& picture) {
    picture_ = picture;
    std::ostringstream out = plainStream();
    out << "q " << width << " 0 0 " << height << ' ' << x << ' ' << y << " cm /P Do Q\n";
    content_ += out.str();
}

std::string PdfPage::bytes(std::string_view title) const {
    PdfObjects objects;
    std::string fonts = "/T " + reference(addLatinFont(objects, "Times-Roman")) + " /TB " +
                        reference(addLatinFont(objects, "Times-Bold"));
    if (!greekLetters_.empty())
        fonts += " /G " + reference(addGreekFont(objects, Face::Regular, greekLetters_)) + " /GB " +
                 reference(addGreekFont(objects, Face::Bold, greekLetters_));
    std::string resources = "/Font << " + fonts + " >>";
    if (!picture_.Jpeg.empty())
        resources += " /XObject << /P " +
                     reference(objects.addStream("/Type /XObject /Subtype /Image /ColorSpace /DeviceRGB "
                                                 "/BitsPerComponent 8 /Filter /DCTDecode /Width " +
                                                     std::to_string(picture_.Width) + " /Height " +
                                                     std::to_string(picture_.Height),
                                                 picture_.Jpeg)) +
                     " >>";
    const int content = objects.addStream("", content_);
    std::ostringstream page = plainStream();
    page << "<< /Type /Page /MediaBox [0 0 " << width_ << ' ' << height_ << "] /Resources << " << resources
         << " >> /Contents " << content << " 0 R /Parent " << content + 2 << " 0 R >>";
    const int pageNumber = objects.add(page.str());
    const int pages = objects.add("<< /Type /Pages /Count 1 /Kids [" + reference(pageNumber) + "] >>");
    const int catalog = objects.add("<< /Type /Catalog /Pages " + reference(pages) + " >>");
    std::string utf16Title = "FEFF";
    for (char c : title)
        utf16Title += utf16Hex(c);
    const int info = objects.add("<< /Title <" + utf16Title + "> /Producer (vell-demo-service) >>");
    return objects.finish(catalog, info);
}

}  // namespace vell::demo
