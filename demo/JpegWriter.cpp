// SPDX-License-Identifier: MIT
#include "demo/JpegWriter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numbers>
#include <string_view>

namespace vell::demo {

using namespace std::string_view_literals;

namespace {

// The code lengths and symbols that T.81 gives for luminance (tables K.3 and K.5). Colours use them too, which keeps
// the file simpler and costs little.
constexpr std::string_view dcLengths = "\x00\x01\x05\x01\x01\x01\x01\x01\x01\x00\x00\x00\x00\x00\x00\x00"sv;
constexpr std::string_view dcSymbols = "\x00\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0a\x0b"sv;
constexpr std::string_view acLengths = "\x00\x02\x01\x03\x03\x02\x04\x03\x05\x05\x04\x04\x00\x00\x01\x7d"sv;
constexpr std::string_view acSymbols =
    "\x01\x02\x03\x00\x04\x11\x05\x12\x21\x31\x41\x06\x13\x51\x61\x07\x22\x71\x14\x32\x81\x91\xa1\x08\x23\x42\xb1\xc1"
    "\x15\x52\xd1\xf0\x24\x33\x62\x72\x82\x09\x0a\x16\x17\x18\x19\x1a\x25\x26\x27\x28\x29\x2a\x34\x35\x36\x37\x38\x39"
    "\x3a\x43\x44\x45\x46\x47\x48\x49\x4a\x53\x54\x55\x56\x57\x58\x59\x5a\x63\x64\x65\x66\x67\x68\x69\x6a\x73\x74\x75"
    "\x76\x77\x78\x79\x7a\x83\x84\x85\x86\x87\x88\x89\x8a\x92\x93\x94\x95\x96\x97\x98\x99\x9a\xa2\xa3\xa4\xa5\xa6\xa7"
    "\xa8\xa9\xaa\xb2\xb3\xb4\xb5\xb6\xb7\xb8\xb9\xba\xc2\xc3\xc4\xc5\xc6\xc7\xc8\xc9\xca\xd2\xd3\xd4\xd5\xd6\xd7\xd8"
    "\xd9\xda\xe1\xe2\xe3\xe4\xe5\xe6\xe7\xe8\xe9\xea\xf1\xf2\xf3\xf4\xf5\xf6\xf7\xf8\xf9\xfa"sv;

constexpr int side = 8;
constexpr std::size_t cells = 64;
using Block = std::array<double, cells>;

struct Code {
    unsigned Bits = 0;
    int Length = 0;
};
using Codes = std::array<Code, 256>;

// The codes that follow from the lengths (T.81, annex C).
Codes codesOf(std::string_view lengths, std::string_view symbols) {
    Codes codes{};
    unsigned next = 0;
    std::size_t symbol = 0;
    for (int length = 1; length <= 16; ++length, next <<= 1)
        for (int i = 0; i < lengths[static_cast<std::size_t>(length) - 1]; ++i)
            codes[static_cast<unsigned char>(symbols[symbol++])] = {next++, length};
    return codes;
}

// The order in which the values of a block are written: along its diagonals.
std::array<std::size_t, cells> zigzag() {
    std::array<std::size_t, cells> order{};
    std::size_t at = 0;
    for (std::size_t diagonal = 0; diagonal < 2 * side - 1; ++diagonal)
        for (std::size_t i = 0; i <= diagonal; ++i) {
            const std::size_t row = diagonal % 2 == 0 ? diagonal - i : i;
            if (row < side && diagonal - row < side) order[at++] = row * (side - 1) + diagonal;
        }
    return order;
}

class JpegFile {
  public:
    explicit JpegFile(double coarseness) {
        for (std::size_t i = 0; i < steps_.size(); ++i) {
            const std::size_t row = order_[i] / side, column = order_[i] % side;
            steps_[i] = std::clamp(int(coarseness * double(2 + row + column)), 1, 255);
        }
    }

    std::string write(const Canvas& canvas) {
        writeHeaders(canvas.width(), canvas.height());
        std::array<int, 3> last{};
        for (int y = 0; y < canvas.height(); y += side)
            for (int x = 0; x < canvas.width(); x += side)
                for (std::size_t component = 0; component < last.size(); ++component)
                    last[component] = writeBlock(transformed(blockOf(canvas, x, y, component)), last[component]);
        putBits({0x7F, 7});  // fills the last byte
        return file_ + "\xFF\xD9";
    }

  private:
    void putNumber(int value) { file_.append({static_cast<char>(value >> 8), static_cast<char>(value & 255)}); }

    void putSegment(char marker, const std::string& content) {
        file_.append({'\xFF', marker});
        putNumber(static_cast<int>(content.size()) + 2);
        file_ += content;
    }

    void writeHeaders(int width, int height) {
        file_ = "\xFF\xD8";
        putSegment('\xE0', std::string("JFIF\0\1\1\0\0\1\0\1\0\0"sv));
        std::string quantization(1, '\0');
        for (int step : steps_)
            quantization += static_cast<char>(step);
        putSegment('\xDB', quantization);
        std::string frame = "\x08";
        for (int number : {height, width})
            frame.append({static_cast<char>(number >> 8), static_cast<char>(number & 255)});
        putSegment('\xC0', frame.append("\x03\x01\x11\x00\x02\x11\x00\x03\x11\x00"sv));
        putSegment('\xC4', std::string(1, '\0').append(dcLengths).append(dcSymbols));
        putSegment('\xC4', std::string("\x10").append(acLengths).append(acSymbols));
        putSegment('\xDA', std::string("\x03\x01\x00\x02\x00\x03\x00\x00\x3F\x00"sv));
    }

    // Brightness (component 0) or one of the two colour differences of a square, around zero.
    static Block blockOf(const Canvas& canvas, int left, int top, std::size_t component) {
        static constexpr std::array<std::array<double, 3>, 3> weights{
            {{0.299, 0.587, 0.114}, {-0.1687, -0.3313, 0.5}, {0.5, -0.4187, -0.0813}}};
        Block block{};
        for (int i = 0; i < side * side; ++i) {
            const Colour& c =
                canvas.at(std::min(left + i % side, canvas.width() - 1), std::min(top + i / side, canvas.height() - 1));
            const auto& w = weights[component];
            const double value = w[0] * std::clamp(c.Red, 0.0, 1.0) + w[1] * std::clamp(c.Green, 0.0, 1.0) +
                                 w[2] * std::clamp(c.Blue, 0.0, 1.0);
            block[static_cast<std::size_t>(i)] = value * 255 - (component == 0 ? 128 : 0);
        }
        return block;
    }

    // The discrete cosine transform of the lines, the result turned on its side.
    static Block cosines(const Block& block) {
        static const Block table = [] {
            Block values{};
            for (std::size_t i = 0; i < cells; ++i) {
                const std::size_t u = i / side, x = i % side;
                values[i] =
                    std::cos(double((2 * x + 1) * u) * std::numbers::pi / 16) / 2 * (u == 0 ? std::sqrt(0.5) : 1);
            }
            return values;
        }();
        Block result{};
        for (std::size_t line = 0; line < side; ++line)
            for (std::size_t u = 0; u < side; ++u)
                for (std::size_t x = 0; x < side; ++x)
                    result[u * side + line] += block[line * side + x] * table[u * side + x];
        return result;
    }
    static Block transformed(const Block& block) { return cosines(cosines(block)); }

    // Gives the first value back: the next block of the same component tells only how its own differs.
    int writeBlock(const Block& block, int last) {
        std::array<int, cells> values{};
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = int(std::lround(block[order_[i]] / steps_[i]));
        putValue(dcCodes_, 0, values[0] - last);
        int zeros = 0;
        for (std::size_t i = 1; i < values.size(); ++i) {
            if (values[i] == 0) {
                ++zeros;
                continue;
            }
            for (; zeros > 15; zeros -= 16)
                putBits(acCodes_[0xF0]);
            putValue(acCodes_, zeros, values[i]);
            zeros = 0;
        }
        if (zeros > 0) putBits(acCodes_[0]);
        return values[0];
    }

    // A value after a run of zeros: the code of both sizes, then the value's own bits.
    void putValue(const Codes& codes, int zeros, int value) {
        int size = 0;
        for (int rest = std::abs(value); rest > 0; rest >>= 1)
            ++size;
        putBits(codes[static_cast<std::size_t>(zeros << 4 | size)]);
        const int bits = value < 0 ? value + (1 << size) - 1 : value;
        putBits({static_cast<unsigned>(bits), size});
    }

    void putBits(Code code) {
        waiting_ = waiting_ << code.Length | code.Bits;
        waitingCount_ += code.Length;
        for (; waitingCount_ >= 8; waitingCount_ -= 8) {
            const auto byte = static_cast<char>(waiting_ >> (waitingCount_ - 8) & 255);
            file_ += byte;
            if (byte == '\xFF') file_ += '\0';  // so that it is not taken for a marker
        }
    }

    const std::array<std::size_t, cells> order_ = zigzag();
    const Codes dcCodes_ = codesOf(dcLengths, dcSymbols);
    const Codes acCodes_ = codesOf(acLengths, acSymbols);
    std::array<int, cells> steps_{};  // in zigzag order
    std::string file_;
    std::uint64_t waiting_ = 0;
    int waitingCount_ = 0;
};

}  // namespace

std::string jpegOf(const Canvas& canvas, double coarseness) {
    return JpegFile(coarseness).write(canvas);
}

}  // namespace vell::demo
