// SPDX-License-Identifier: MIT
#include <csignal>

#include <gtest/gtest.h>

#include "tests/demo/DemoProcess.h"
#include "tests/demo/HttpCaller.h"
#include "tests/demo/SmallTree.h"

namespace vell::test {
namespace {

Ended runService(std::vector<std::string> options) {
    options.insert(options.begin(), VELL_DEMO_SERVICE);
    return run(options);
}

TEST(DemoOptionsTest, namesEachMistakeAndItsRemedy) {
    const struct {
        std::vector<std::string> Options;
        const char* Mistake;
        const char* Remedy;
    } cases[] = {
        {{}, "--root is required", "--help"},
        {{"--root", "x", "--http", "0.0.0.0:0"}, "0.0.0.0:0 can be reached from other machines", "--public"},
        {{"--root", "x", "--ftp", "8.8.8.8:21"}, "--ftp: 8.8.8.8:21 can be reached", "--public"},
        {{"--root", "x", "--http", "127.0.0.1"}, "has no port", "ADDRESS:PORT"},
        {{"--root", "x", "--http", "127.0.0.1:99999"}, "\"99999\" is no port", "0 to 65535"},
        {{"--root", "x", "--http", "localhost:"}, "\"\" is no port", "0 to 65535"},
        {{"--root", "x", "--http", "clips.example:80"}, "\"clips.example\" is no address", "such as 127.0.0.1"},
        {{"--root", "x", "--ftp", "[::1]:0"}, "[::1]:0 is an IPv6 address", "127.0.0.1:0"},
        {{"--root", "x", "--list-form", "vms"}, "--list-form: vms", "{unix,dos}"},
        {{"--root", "x", "--for", "0"}, "--for: Value 0", "1 to 1000000"},
        {{"--root", "x", "--rate", "fast"}, "--rate", "--help"},
        {{"--root", "x", "--colour"}, "--colour", "--help"},
    };
    for (const auto& c : cases) {
        const Ended ended = runService(c.Options);
        EXPECT_EQ(ended.ExitCode, 2) << c.Mistake;
        EXPECT_NE(ended.Errors.find(c.Mistake), std::string::npos) << ended.Errors;
        EXPECT_NE(ended.Errors.find(c.Remedy), std::string::npos) << ended.Errors;
    }
}

TEST(DemoOptionsTest, helpsAndTellsItsVersionWithoutAFolder) {
    EXPECT_EQ(runService({"--version"}).Out, "vell-demo-service " VELL_VERSION "\n");
    const Ended help = runService({"--help"});
    EXPECT_EQ(help.ExitCode, 0);
    for (const char* option : {"--root", "--http", "--ftp", "--public", "--ready-file", "--for", "--latency", "--rate",
                               "--list-form", "--verbose"})
        EXPECT_NE(help.Out.find(option), std::string::npos) << option;
}

TEST(DemoOptionsTest, saysWhatStandsInTheWayOfAStart) {
    const SmallTree tree;
    const DemoProcess first(tree.path());
    const struct {
        std::vector<std::string> Options;
        std::string Problem;
        const char* Remedy;
    } cases[] = {
        {{"--root", tree.text(), "--http", first.http()}, "cannot listen on " + first.http(), "--http"},
        {{"--root", tree.text(), "--ftp", first.ftp()}, "cannot listen on " + first.ftp(), "--ftp"},
        {{"--root", tree.text() + "/users.tsv"}, "cannot prepare the folder", "--root"},
        {{"--root", tree.text(), "--ready-file", tree.text() + "/none/ready"}, "cannot write", "--ready-file"},
    };
    for (const auto& c : cases) {
        const Ended ended = runService(c.Options);
        EXPECT_EQ(ended.ExitCode, 1) << c.Problem;
        EXPECT_NE(ended.Errors.find(c.Problem), std::string::npos) << ended.Errors;
        EXPECT_NE(ended.Errors.find(c.Remedy), std::string::npos) << ended.Errors;
    }
}

TEST(DemoOptionsTest, endsCleanlyBySignalEvenWhileCallersAreConnected) {
    const SmallTree tree;
    for (int number : {SIGTERM, SIGINT}) {
        DemoProcess service(tree.path(), {"--verbose"});
        HttpCaller idle(service.http());
        auto ftp = streamTo(service.ftp());
        ftp.get();
        EXPECT_EQ(get(service.http(), "/none").Status, 404);
        const Ended ended = service.stop(number);
        EXPECT_EQ(ended.ExitCode, 0);
        EXPECT_EQ(ended.Errors, "");
        EXPECT_NE(ended.Out.find("GET /none -> 404"), std::string::npos) << ended.Out;
        EXPECT_NE(ended.Out.find("07/03/2004  2 clippings"), std::string::npos) << ended.Out;
    }
}

}  // namespace
}  // namespace vell::test
