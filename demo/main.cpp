// SPDX-License-Identifier: MIT
#include <csignal>
#include <ctime>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include <asio/io_context.hpp>
#include <asio/signal_set.hpp>
#include <asio/steady_timer.hpp>

#include "demo/DemoService.h"
#include "demo/Options.h"
#include "demo/days/ClippingsTree.h"
#include "demo/days/SampleDays.h"

namespace vell::demo {

namespace {

Date today() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday};
}

// Whoever waits for the file finds it whole or not at all.
void writeReadyFile(const std::filesystem::path& file, const DemoService& service) {
    auto beside = file;
    beside += ".part";
    std::ofstream stream(beside);
    stream << "http " << service.http().text() << "\nftp " << service.ftp().text() << "\n";
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + beside.string() + "; give another place with --ready-file");
    std::filesystem::rename(beside, file);
}

void introduce(const ClippingsTree& tree, const DemoService& service) {
    for (const Date& day : tree.days()) {
        const DayTable table = tree.table(day);
        std::cout << day.dayName() << "  " << table.Clippings.size() << " clippings\n";
        for (const auto& problem : table.Problems)
            std::cerr << problem << "\n";
    }
    std::cout << "HTTP  " << service.http().text() << "\nFTP   " << service.ftp().text() << std::endl;
}

void prepare(const Options& options) {
    const auto samples = options.Samples.empty() ? installedSamples() : options.Samples;
    try {
        prepareTree(options.Root, today(), samples);
    } catch (const std::filesystem::filesystem_error& problem) {
        const std::string reason = problem.code().message();
        if (problem.path1().string().starts_with(samples.string()))
            throw std::runtime_error("cannot read the sample " + problem.path1().string() + ": " + reason +
                                     "; name the folder of the sample clippings with --samples");
        throw std::runtime_error("cannot prepare the folder " + options.Root.string() + ": " + reason +
                                 "; give another one with --root");
    }
}

int serve(const Options& options) {
    asio::io_context loop(1);
    const ClippingsTree tree(options.Root);
    prepare(options);
    const DemoService service(loop, options, tree);
    asio::signal_set signals(loop, SIGINT, SIGTERM);
    signals.async_wait([&](const asio::error_code&, int) { loop.stop(); });
    asio::steady_timer end(loop);
    if (options.RunsFor) {
        end.expires_after(*options.RunsFor);
        end.async_wait([&](const asio::error_code&) { loop.stop(); });
    }
    introduce(tree, service);
    if (!options.ReadyFile.empty()) writeReadyFile(options.ReadyFile, service);
    loop.run();
    return 0;
}

}  // namespace

}  // namespace vell::demo

int main(int count, char** words) {
    try {
        const auto line = vell::demo::readCommandLine(count, words);
        return line.Chosen ? vell::demo::serve(*line.Chosen) : line.ExitCode;
    } catch (const std::exception& problem) {
        std::cerr << "vell-demo-service: " << problem.what() << "\n";
        return 1;
    }
}
