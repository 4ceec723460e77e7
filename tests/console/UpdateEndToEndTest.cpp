// SPDX-License-Identifier: MIT
#include <chrono>
#include <csignal>
#include <thread>

#include <gmock/gmock.h>

#include "tests/support/ChildProcess.h"
#include "tests/support/ServicePeer.h"
#include "tests/support/signedManifest.h"
#include "tests/support/waitForLock.h"

namespace vell::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr const char* archiveName = "vell-" VELL_VERSION "-linux-x86_64.tar.gz";

// The real programs: an older one in folders of its users', and the service with this build's.
class UpdateEndToEndTest : public testing::Test {
  protected:
    // The archive is made once.
    static void SetUpTestSuite() {
        made_ = std::make_unique<TempFolder>();
        fs::create_directories(made_->path() / "vell-" VELL_VERSION "/bin");
        fs::copy_file(VELL_CONSOLE, made_->path() / "vell-" VELL_VERSION "/bin/vell-console");
        made_->put("vell-" VELL_VERSION "/share/vell/Vellhelp.htm", "new");
        const auto archive = made_->path() / "a.tar.gz";
        const std::string set = "vell-" VELL_VERSION, program = made_->text() + '/' + set + "/bin/vell-console";
        ASSERT_EQ(ChildProcess({"strip", "-g", program}).end().Code, 0);
        ASSERT_EQ(ChildProcess({"tar", "-C", made_->text(), "-czf", archive, set}).end().Code, 0);
        archive_ = made_->get("a.tar.gz");
    }
    static void TearDownTestSuite() { made_.reset(); }

    UpdateEndToEndTest() {
        service_.Answers["/vell/vellUpdate.asp"] = HttpPeer::ok(
            signedManifest(archive_, {{"version", VELL_VERSION}, {"file", archiveName}, {"minimum", "0.0.1"}}));
        service_.Answers[std::string("/vell/update/") + archiveName] = HttpPeer::ok(archive_);
        for (const char* user : {"ann", "bob"})
            installOlder(user);
    }
    void installOlder(const std::string& user) const {
        fs::remove_all(folder_.path() / user);
        fs::create_directories(folder_.path() / user / "bin");
        fs::copy_file(VELL_OLDER_CONSOLE, folder_.path() / user / "bin/vell-console");
        folder_.put(user + "/share/vell/Vellhelp.htm", "old");
        folder_.put(user + "/bin/vell.ini",
                    "[Host]\r\nHost=service.example\r\n[Download]\r\nAutoUpdateServer=1\r\nLocalDir=" + folder_.text() +
                        "/clips\r\n");
    }
    [[nodiscard]] ChildProcess start(const std::string& user, std::vector<std::string> words) const {
        words.insert(words.begin(), folder_.text() + "/" + user + "/bin/vell-console");
        return ChildProcess(std::move(words));
    }
    // The exit code, the output, "!", and the error output.
    [[nodiscard]] std::string run(const std::string& user, const std::vector<std::string>& words) const {
        const Ended ended = start(user, words).end();
        return std::to_string(ended.Code) + " " + ended.Out + "!" + ended.Errors;
    }
    [[nodiscard]] std::string programOf(const std::string& user) const {
        return run(user, {"--version"}) + folder_.get(user + "/share/vell/Vellhelp.htm");
    }
    [[nodiscard]] bool isSettled(const std::string& user) const {
        return !folder_.has(user + "/.vell-update/PREVIOUS") && !folder_.has(user + "/.vell-update/STAGING") &&
               !folder_.has(user + "/.vell-update/STATE");
    }

    static inline std::unique_ptr<TempFolder> made_;
    static inline std::string archive_;
    const std::string old_ = "0 vell-console 0.0.1\n!old";
    const std::string new_ = "0 vell-console " VELL_VERSION "\n!new";
    TempFolder folder_;
    ServicePeer service_;
};

TEST_F(UpdateEndToEndTest, oneClientBringsTheNewVersionAndAnotherFindsItInTheirFolder) {
    fs::create_directory(folder_.path() / "clips");
    EXPECT_EQ(programOf("ann"), old_);
    EXPECT_EQ(run("ann", {"update", "--check", "--install"})[0], '2');
    EXPECT_EQ(run("ann", {"update", "--check"}), "0 !Version " VELL_VERSION " is available.\n");
    EXPECT_THAT(run("ann", {"update"}), HasSubstr("Fetch it now?")) << "nobody is at a terminal";
    EXPECT_FALSE(folder_.has("ann/bin/UPDATE"));
    EXPECT_THAT(run("ann", {"update", "--yes"}), HasSubstr("is ready."));
    EXPECT_EQ(programOf("ann"), old_);
    service_.Answers.clear();
    EXPECT_EQ(run("bob", {"update", "--install"})[0], '0');
    EXPECT_EQ(programOf("bob"), new_);
    EXPECT_FALSE(isSettled("bob")) << "the old one is kept";
    EXPECT_EQ(run("bob", {"days"}), "0 !");
    EXPECT_TRUE(isSettled("bob"));
    EXPECT_FALSE(folder_.has("bob/bin/UPDATE"));
    EXPECT_THAT(run("ann", {"download"}), AllOf(HasSubstr("An update file is ready to be installed...\n"),
                                                HasSubstr("Installation completed succesfully\n")));
    EXPECT_EQ(programOf("ann"), new_);
    EXPECT_TRUE(isSettled("ann"));
    EXPECT_THAT(run("ann", {"download"}), Not(HasSubstr("Installation completed succesfully")));
    EXPECT_EQ(run("ann", {"update"})[0], '1') << "the service does not answer";
}

TEST_F(UpdateEndToEndTest, killedAtAnyMomentTheProgramStartsAndTheNextUpdateCompletesIt) {
    const auto begun = std::chrono::steady_clock::now();
    ASSERT_EQ(run("ann", {"update", "--install"})[0], '0');
    const auto whole = std::chrono::steady_clock::now() - begun;
    constexpr int moments = 12;
    for (int moment = 0; moment < moments; ++moment) {
        installOlder("ann");
        ChildProcess program = start("ann", {"update", "--install"});
        std::this_thread::sleep_for(whole * moment / (moments - 1));
        program.send(SIGKILL);
        (void)program.end();
        waitForLock(folder_.text() + "/ann/.vell-update/LOCK");
        ASSERT_EQ(run("ann", {"days"}), "0 !") << moment;
        ASSERT_THAT(programOf("ann"), testing::AnyOf(old_, new_)) << moment;
        ASSERT_TRUE(isSettled("ann")) << moment;
        if (programOf("ann") == new_) continue;
        ASSERT_EQ(run("ann", {"update", "--install"})[0], '0') << moment;
        ASSERT_EQ(programOf("ann"), new_) << moment;
    }
}

}  // namespace
}  // namespace vell::test
