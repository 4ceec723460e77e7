// SPDX-License-Identifier: MIT
#include "demo/Options.h"

#include <iostream>
#include <stdexcept>

#include <CLI/CLI.hpp>

namespace vell::demo {

namespace {

constexpr int usageMistake = 2;

// The options as text and numbers, before they are judged together.
struct Words {
    std::string Root, Samples, Updates, Http = "127.0.0.1:0", Ftp = "127.0.0.1:0", ReadyFile, Listing = "unix";
    long RunsFor = 0, Latency = 0, Rate = 0, BreakEach = 0;
    bool Public = false, Verbose = false;
};

void describe(CLI::App& app, Words& words) {
    app.footer(
        "Who may ask for lists stands in DIR/users.tsv: at first demo, with the password demo. FTP also takes the "
        "user vell with the password ruxo. SIGINT and SIGTERM end the service.");
    app.set_version_flag("--version", "vell-demo-service " VELL_VERSION);
    app.add_option("--root", words.Root, "Folder that is served; sample days are put there when it is missing or empty")
        ->required()
        ->type_name("DIR");
    app.add_option("--samples", words.Samples, "Folder of the sample clippings, if not the one that came along")
        ->type_name("DIR");
    app.add_option("--updates", words.Updates, "Folder of newer versions of the client, with their manifests")
        ->type_name("DIR");
    app.add_option("--http", words.Http, "Where HTTP listens, as origin server and as proxy; port 0 for a free one")
        ->type_name("ADDRESS:PORT")
        ->capture_default_str();
    app.add_option("--ftp", words.Ftp, "Where FTP listens; port 0 for a free one")
        ->type_name("ADDRESS:PORT")
        ->capture_default_str();
    app.add_flag("--public", words.Public, "Allow addresses that other machines can reach");
    app.add_option("--ready-file", words.ReadyFile, "File that gets the two addresses once both can be reached")
        ->type_name("FILE");
    app.add_option("--for", words.RunsFor, "Stop after that many seconds")
        ->type_name("SECONDS")
        ->check(CLI::Range(1L, 1'000'000L));
    app.add_option("--latency", words.Latency, "Act like a slow line: wait that long before each answer")
        ->type_name("MS")
        ->check(CLI::Range(0L, 10'000L));
    app.add_option("--rate", words.Rate, "Act like a slow line: kilobytes per second of each transfer, 0 for no limit")
        ->type_name("KBPS")
        ->check(CLI::Range(0L, 1'000'000L));
    app.add_option("--break-each", words.BreakEach, "Act like a bad line: every N-th file breaks half way")
        ->type_name("N")
        ->check(CLI::Range(0L, 1'000'000L));
    app.add_option("--list-form", words.Listing, "Form of FTP listings")
        ->type_name("FORM")
        ->transform(CLI::IsMember({"unix", "dos"}, CLI::ignore_case))
        ->capture_default_str();
    app.add_flag("--verbose", words.Verbose, "Print every request, command and reply");
}

Endpoint endpointOf(const std::string& option, const std::string& text, bool isPublic) {
    try {
        Endpoint endpoint = Endpoint::parse(text);
        if (isPublic || endpoint.isLoopback()) return endpoint;
    } catch (const std::invalid_argument& mistake) {
        throw CLI::ValidationError(option, mistake.what());
    }
    throw CLI::ValidationError(option, text +
                                           " can be reached from other machines; give an address such as "
                                           "127.0.0.1, or --public if that is wanted");
}

Options judged(const Words& words) {
    Options options;
    options.Root = words.Root;
    options.Samples = words.Samples;
    options.Updates = words.Updates;
    options.Http = endpointOf("--http", words.Http, words.Public);
    options.Ftp = endpointOf("--ftp", words.Ftp, words.Public);
    if (!options.Ftp.isIpV4())
        throw CLI::ValidationError("--ftp", words.Ftp +
                                                " is an IPv6 address, which the commands PORT and PASV cannot "
                                                "carry; give an IPv4 one, such as 127.0.0.1:0");
    options.ReadyFile = words.ReadyFile;
    if (words.RunsFor > 0) options.RunsFor = std::chrono::seconds{words.RunsFor};
    options.Speed = {std::chrono::milliseconds{words.Latency}, static_cast<std::size_t>(words.Rate) * 1024,
                     static_cast<std::size_t>(words.BreakEach)};
    options.Listing = words.Listing == "dos" ? ListForm::Dos : ListForm::Unix;
    options.Verbose = words.Verbose;
    return options;
}

}  // namespace

CommandLine readCommandLine(int count, const char* const* words) {
    CLI::App app{"Serves press clippings over HTTP and FTP from a folder, for trying out and demonstrating Vell.",
                 "vell-demo-service"};
    Words read;
    describe(app, read);
    try {
        app.parse(count, words);
        return {judged(read), 0};
    } catch (const CLI::ParseError& end) {
        return {std::nullopt, app.exit(end) == 0 ? 0 : usageMistake};
    }
}

}  // namespace vell::demo
