// SPDX-License-Identifier: MIT
// What a search through a day of 10,000 clippings with 50 MB of text costs: the first time, and for every further
// letter.
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>

#include <benchmark/benchmark.h>

#include "log/EventLog.h"
#include "platform/SystemTypes.h"
#include "ui/find/FindPass.h"
#include "ui/find/Finder.h"

namespace vell {
namespace {

constexpr int clippings = 10'000;
constexpr std::size_t textLength = 5'250;  // 50 MB in all

// Words of Greek letters about as frequent as in newspapers, in code page 1253.
std::string textOf(std::mt19937& random) {
    static const std::string letters =
        "\xE1\xE1\xE1\xDC\xE9\xE9\xDF\xEF\xEF\xFC\xE5\xE5\xDD\xF3\xF3\xF2\xF4\xF4\xED\xED\xF1\xEB\xEA\xEC\xF0\xF5\xE7";
    std::uniform_int_distribution<std::size_t> letter(0, letters.size() - 1);
    std::string text;
    while (text.size() < textLength) {
        for (std::size_t length = 2 + random() % 10; length > 0; --length)
            text += letters[letter(random)];
        text += random() % 12 == 0 ? "\r\n" : " ";
    }
    return text;
}

class ManyTexts {
  public:
    ManyTexts() : root_(std::filesystem::temp_directory_path() / "vell-bench-find") {
        std::filesystem::remove_all(root_);
        std::filesystem::create_directories(root_ / "07032004");
        std::mt19937 random(7);
        for (int i = 0; i < clippings; ++i) {
            auto clipping = std::make_shared<CFtpFile>();
            clipping->FileName = "C" + std::to_string(i) + ".PDF";
            clipping->FilePath = root_.string() + "\\07032004\\";
            clipping->NewspaperName = "NEWSPAPER " + std::to_string(i % 9);
            clipping->Description = "THE TITLE OF A CLIPPING OF USUAL LENGTH";
            clipping->Category = "POLITICS,ECONOMY";
            std::ofstream(root_ / "07032004" / ("C" + std::to_string(i) + ".TXT"), std::ios::binary) << textOf(random);
            Day.add(std::move(clipping));
        }
    }
    ~ManyTexts() { std::filesystem::remove_all(root_); }
    ManyTexts(const ManyTexts&) = delete;
    ManyTexts& operator=(const ManyTexts&) = delete;

    // The longest step, of those that the window makes, in milliseconds.
    double search(const std::string& typed, FoldedTexts& texts) {
        FindPass pass(FindQuery(typed), true, texts);
        pass.add(Day);
        double longest = 0;
        for (bool isOver = false; !isOver;) {
            const auto begun = Time.Steady();
            const auto begunFine = std::chrono::steady_clock::now();
            isOver = pass.step([&] { return Time.Steady() < begun + Finder::longestStep; });
            longest = std::max(
                longest,
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begunFine).count());
        }
        return longest;
    }

    SystemClock Time;
    SystemFiles Disk;
    EventLog Log{Time, Disk};
    CFtpFiles Day;

  private:
    std::filesystem::path root_;
};

ManyTexts& manyTexts() {
    static ManyTexts texts;
    return texts;
}

void readAndSearchTheFirstTime(benchmark::State& state) {
    ManyTexts& day = manyTexts();
    double longest = 0;
    for (auto _ : state) {
        FoldedTexts texts(day.Disk, day.Log, Finder::textMemory);
        longest = std::max(longest, day.search("\xE1", texts));
        state.counters["megabytes"] = static_cast<double>(texts.bytes()) / (1 << 20);
    }
    state.counters["longest step"] = longest;
}
BENCHMARK(readAndSearchTheFirstTime)->Unit(benchmark::kMillisecond);

void searchForEachLetter(benchmark::State& state, const std::string& typed) {
    ManyTexts& day = manyTexts();
    FoldedTexts texts(day.Disk, day.Log, Finder::textMemory);
    day.search("\xE1", texts);
    double longest = 0;
    for (auto _ : state)
        longest = std::max(longest, day.search(typed, texts));
    state.counters["longest step"] = longest;
}
BENCHMARK_CAPTURE(searchForEachLetter, one_that_all_have, std::string("\xE1"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchForEachLetter, three_letters, std::string("\xE1\xF3\xF4"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchForEachLetter, a_rare_word, std::string("\xE1\xF3\xF4\xEF\xF1"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchForEachLetter, a_word_that_none_has, std::string("\xE1\xF3\xF4Q"))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchForEachLetter, two_such_words, std::string("\xE1\xF3\xF4Q \xEF\xF1\xE5W"))
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vell
