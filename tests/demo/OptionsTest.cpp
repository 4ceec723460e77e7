// SPDX-License-Identifier: MIT
#include <csignal>

#include <gmock/gmock.h>

#include "tests/demo/DemoService.h"

namespace vell::test {
namespace {

using testing::HasSubstr;

TEST(DemoOptionsTest, namesWhatStandsInTheWayOfAStartAndItsRemedy) {
    const SmallTree tree;
    const DemoService first(tree);
    const std::string root = tree.text();
    const struct {
        std::vector<std::string> Options;
        int Code;
        std::string Mistake, Remedy;
    } cases[] = {
        {{}, 2, "--root is required", "--help"},
        {{"--root", "x", "--http", "0.0.0.0:0"}, 2, "0.0.0.0:0 can be reached from other machines", "--public"},
        {{"--root", "x", "--ftp", "8.8.8.8:21"}, 2, "--ftp: 8.8.8.8:21 can be reached", "--public"},
        {{"--root", "x", "--http", "127.0.0.1"}, 2, "has no port", "ADDRESS:PORT"},
        {{"--root", "x", "--http", "127.0.0.1:99999"}, 2, "\"99999\" is no port", "0 to 65535"},
        {{"--root", "x", "--ftp", "[::1]:0"}, 2, "[::1]:0 is an IPv6 address", "127.0.0.1:0"},
        {{"--root", "x", "--for", "0"}, 2, "--for: Value 0", "1 to 1000000"},
        {{"--root", root, "--http", first.http()}, 1, "cannot listen on " + first.http(), "--http"},
        {{"--root", root, "--ftp", first.ftp()}, 1, "cannot listen on " + first.ftp(), "--ftp"},
        {{"--root", root + "/users.tsv"}, 1, "cannot prepare the folder", "--root"},
        {{"--root", root, "--ready-file", root + "/none/ready"}, 1, "cannot write", "--ready-file"},
        {{"--root", root + "/new", "--samples", root + "/none"}, 1, root + "/none", "--samples"},
    };
    for (const auto& c : cases) {
        std::vector<std::string> words{VELL_DEMO_SERVICE};
        words.insert(words.end(), c.Options.begin(), c.Options.end());
        const Ended ended = ChildProcess(words).end();
        EXPECT_EQ(ended.Code, c.Code) << c.Mistake;
        EXPECT_THAT(ended.Errors, testing::AllOf(HasSubstr(c.Mistake), HasSubstr(c.Remedy)));
    }
    EXPECT_FALSE(tree.has("new/sample-days.txt"));
    EXPECT_EQ(ChildProcess({VELL_DEMO_SERVICE, "--version"}).end().Out, "vell-demo-service " VELL_VERSION "\n");
}

TEST(DemoOptionsTest, endsCleanlyBySignalEvenWhileCallersAreConnected) {
    const SmallTree tree;
    for (int number : {SIGTERM, SIGINT}) {
        DemoService service(tree, {"--verbose"});
        const auto idle = streamTo(service.http());
        auto ftp = streamTo(service.ftp());
        ftp.get();
        EXPECT_EQ(get(service.http(), "/none").Status, 404);
        const Ended ended = service.stop(number);
        EXPECT_EQ(ended.Code, 0);
        EXPECT_EQ(ended.Errors, "");
        EXPECT_THAT(ended.Out, testing::AllOf(HasSubstr("GET /none -> 404"), HasSubstr("07/03/2004  2 clippings")));
    }
}

TEST(DemoLineTest, isAsSlowAndAsBadAsTheOptionsSay) {
    const SmallTree tree;
    const std::string bytes(16'384, 'x'), address = "/archive/2004/03/07/NEA01_20040307.PDF";
    tree.put("07032004/NEA01_20040307.PDF", bytes);
    const DemoService service(tree, {"--rate", "64", "--latency", "60", "--break-each", "2"});
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(get(service.http(), address).Body, bytes);
    const auto took = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(took, std::chrono::milliseconds{60 + 200});  // the pause after the last block need not be waited for
    EXPECT_LT(took, std::chrono::seconds{10});
    EXPECT_EQ(get(service.http(), address).Body.size(), bytes.size() / 2);
}

}  // namespace
}  // namespace vell::test
