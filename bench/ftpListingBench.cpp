// SPDX-License-Identifier: MIT
#include <string>

#include <benchmark/benchmark.h>

#include "ftp/listing/FtpListing.h"

namespace {

using Line = std::string (*)(int number);

std::string unixLine(int number) {
    return "-rw-r--r--   1 ftp      ftp          " + std::to_string(number) + " Mar  7 10:30 " +
           std::to_string(number) + ".PDF\r\n";
}

std::string dosLine(int number) {
    return "03-07-04  10:30AM           " + std::to_string(number) + " " + std::to_string(number) + ".PDF\r\n";
}

// No field of it can be read.
std::string nonsense(int number) {
    return "x y z " + std::to_string(number) + "\xFF 99999999999 31 Foo 1e999 w\r\n";
}

void listing(benchmark::State& state, Line line) {
    std::string text;
    for (int i = 0; i < state.range(0); ++i)
        text += line(i);
    for (auto _ : state)
        benchmark::DoNotOptimize(vell::ParseListing(text, 2004).Count());
}

}  // namespace

BENCHMARK_CAPTURE(listing, unixForm, unixLine)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(listing, dosForm, dosLine)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(listing, nonsense, nonsense)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
