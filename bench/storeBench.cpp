// SPDX-License-Identifier: MIT
// What a day with many clippings costs until it can be shown.
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include "base/Date.h"
#include "config/Settings.h"
#include "config/modIni.h"
#include "platform/MessageBoxes.h"
#include "platform/SystemTypes.h"
#include "platform/Translations.h"
#include "platform/asio/AsioEventLoop.h"
#include "store/DayIndex.h"
#include "store/IndexFile.h"
#include "store/modGlobal.h"
#include "ui/ClippingsBrowser.h"
#include "ui/days/DayCounts.h"

namespace vell {
namespace {

std::string nameOf(int number) {
    std::array<char, 32> name{};
    (void)std::snprintf(name.data(), name.size(), "N%05d20040307.PDF", number);
    return name.data();
}

std::string indexOf(int records) {
    std::string text;
    for (int i = 0; i < records; ++i)
        text += nameOf(i) + "||NEWSPAPER " + std::to_string(i % 9) + "||THE TITLE OF A CLIPPING OF USUAL LENGTH||" +
                "POLITICS|ECONOMY||ARTICLE||1||-||71000||4000||500\r\n";
    return text + "\r\n";
}

struct NoBoxes : MessageBoxes {
    Answer Show(std::string_view, std::string_view, Buttons, BoxIcon) override { return Answer::Cancel; }
};

struct NoView : BrowserView {
    void showDays(const std::vector<DayLine>&, const std::optional<Date>&) override {}
    void showClippings(const std::vector<ClippingRow>&) override {}
    void showMarks(std::size_t) override {}
    void showCounts(const CountTexts&) override {}
    void showAlert(std::string_view) override {}
    void showAdvertisement(const std::string&) override {}
    void showBusy(bool) override {}
};

// A download root with one day of so many clippings, each of three files, a third of them marked opened.
class Day {
  public:
    explicit Day(int clippings) : root_(std::filesystem::temp_directory_path() / "vell-bench-day") {
        std::filesystem::remove_all(root_);
        std::filesystem::create_directories(root_ / "07032004");
        const auto put = [&](const std::string& name, const std::string& bytes) {
            std::ofstream(root_ / "07032004" / name, std::ios::binary) << bytes;
        };
        put("ALLFILES.DIR", indexOf(clippings));
        std::string marks = "[VIEW]\r\n";
        for (int i = 0; i < clippings; ++i) {
            const std::string base = nameOf(i).substr(0, 14);
            for (const char* ending : {".PDF", ".TXT", ".MT"})
                put(base + ending, "x");
            if (i % 3 == 0) marks += nameOf(i) + "=1\r\n";
        }
        put("OPENED.DIR", marks);
        settings_.LocalDir = root_.string();
    }
    ~Day() { std::filesystem::remove_all(root_); }
    Day(const Day&) = delete;
    Day& operator=(const Day&) = delete;

    [[nodiscard]] std::string folder() const { return settings_.LocalDir + "\\07032004\\"; }

  private:
    std::filesystem::path root_;

  public:
    SystemClock Time;
    AsioEventLoop Loop{Time};
    SystemFiles Disk;
    SystemIniFile Ini{Disk};
    NoBoxes Boxes;
    EventLog Log{Time, Disk};
    modIni Inis{Ini, Log};
    Settings settings_;
    DayState State{{2004, 3, 7}, "", Date{2004, 3, 7}};
    modGlobal Store{{Disk, Loop, Boxes, Inis, Log, settings_, State}};
    NoView View;
    Translations English;
    DayCounts Counts{{Store, Loop, Time, Log}};
    ClippingsBrowser Browser{{Store, Disk, View, Time, Log, settings_, State, English, Counts}};
};

void readIndexOfManyRecords(benchmark::State& state) {
    const std::string text = indexOf(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(readIndex(text));
}
BENCHMARK(readIndexOfManyRecords)->Arg(100000)->Unit(benchmark::kMillisecond);

void showADay(benchmark::State& state) {
    Day day(static_cast<int>(state.range(0)));
    for (auto _ : state)
        day.Browser.PopulateLocalFilesGrid();
    if (day.Browser.rows().size() != static_cast<std::size_t>(state.range(0))) state.SkipWithError("rows are missing");
}
BENCHMARK(showADay)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// Every clipping once: each time the index is written, and flushed to the disk.
void markAClipping(benchmark::State& state) {
    Day day(static_cast<int>(state.range(0)));
    DayIndex index(day.Disk);
    int number = 0;
    for (auto _ : state)
        index.markDownloaded(day.folder(), std::vector<ArrivedClipping>{{nameOf(number++), "1"}});
}
BENCHMARK(markAClipping)->Arg(100)->Iterations(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(markAClipping)->Arg(1000)->Iterations(1000)->Unit(benchmark::kMicrosecond);

// The day has been fetched and every clipping is marked; it is fetched once more.
void markAMarkedDayAgain(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    Day day(count);
    DayIndex index(day.Disk);
    std::vector<ArrivedClipping> all;
    for (int number = 0; number < count; ++number)
        all.push_back({nameOf(number), "1"});
    index.markDownloaded(day.folder(), all);
    for (auto _ : state)
        index.markDownloaded(day.folder(), all);
}
BENCHMARK(markAMarkedDayAgain)->Arg(3000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vell
