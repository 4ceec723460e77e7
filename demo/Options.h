// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>

#include "demo/Endpoint.h"

namespace vell::demo {

// How bad the line shall look.
struct LineSpeed {
    std::chrono::milliseconds Latency{0};  // before each answer
    std::size_t BytesPerSecond = 0;        // for each transfer; 0: as fast as it goes
    std::size_t BreaksEach = 0;            // every such transfer of a file breaks half way; 0: none
};

enum class ListForm { Unix, Dos };

// What the command line asks for.
struct Options {
    std::filesystem::path Root;
    std::filesystem::path Samples;  // empty: those that came with the program
    std::filesystem::path Updates;  // of the client; empty: there are none
    Endpoint Http;
    Endpoint Ftp;
    std::filesystem::path ReadyFile;              // empty: none is written
    std::optional<std::chrono::seconds> RunsFor;  // nothing: until a signal
    LineSpeed Speed;
    ListForm Listing = ListForm::Unix;
    bool Verbose = false;
};

// The options, or the exit code of a program that has said all there is to say (help, version, a mistake).
struct CommandLine {
    std::optional<Options> Chosen;
    int ExitCode = 0;
};
[[nodiscard]] CommandLine readCommandLine(int count, const char* const* words);

}  // namespace vell::demo
