// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/support/ProgramRig.h"
#include "tests/support/signedManifest.h"

namespace vell::test {
namespace {

using testing::HasSubstr;
using End = frmUpdate::End;

constexpr const char* script = "/vell/vellUpdate.asp";
constexpr const char* file = "vell-2.1.38-linux-x86_64.tar.gz";
const std::string ready = "Version 2.1.38 is ready. It is installed when the program starts the next time.";
const std::string question =
    "Version 2.1.38 is available.\r\n\r\nFinds more.\r\n\r\nFetch it now? It is installed when the program starts the "
    "next time.";
const std::string newest = "There is no newer version than this one, 2.1.37.";

// Version 2.1.37, and a service that has 2.1.38.
class UpdateTest : public testing::Test, protected ProgramRig {
  protected:
    UpdateTest() { offer(signedManifest(archive_), archive_); }
    void offer(const std::string& manifest, const std::string& archive) {
        service.Answers[script] = HttpPeer::ok(manifest);
        service.Answers[std::string("/vell/update/") + file] = HttpPeer::ok(archive);
    }
    bool load(const std::string& settings, frmMain::Start start = frmMain::Start::Beside) {
        configure(settings, folder.text() + "/clips");
        return program.Form_Load(start);
    }
    [[nodiscard]] bool isReady() const {
        const std::string ini = folder.get("vell.ini");
        const bool isAnnounced = ini.find("UpdateVersion=2.1.38") != std::string::npos;
        EXPECT_EQ(ini.find("Update=1") != std::string::npos, isAnnounced);
        EXPECT_EQ(folder.has("UPDATE/linux-x86_64.txt"), isAnnounced);
        EXPECT_EQ(folder.has("UPDATE"), isAnnounced) << "nothing is left behind";
        EXPECT_EQ(isAnnounced ? folder.get(std::string("UPDATE/") + file) : archive_, archive_);
        return isAnnounced;
    }
    // All boxes but the one with the list, which the log's being on brings.
    [[nodiscard]] std::string told() const {
        std::string all;
        for (const std::string& text : boxes.Shown)
            if (text.find("||") == std::string::npos) all += text + "|";
        return all;
    }
    [[nodiscard]] bool wasFetched() const {
        return service.requests().back().find("/vell/update/") != std::string::npos;
    }

    const std::string archive_ = std::string(700'000, 'v');
};

TEST_F(UpdateTest, whatIsBadIsRefusedWithAWordInTheLogAndToWhoAskedAndLeavesNothing) {
    const std::string good = signedManifest(archive_),
                      taken = "What the service offers as a newer version is not taken. ";
    const std::string unsignedText = taken + "Its maker has not signed it.",
                      damaged = taken + "The file is not the one that its maker has signed.",
                      notFetched = "Version 2.1.38 could not be fetched. ";
    const auto with = [&](const std::string& key, const std::string& value) {
        return signedManifest(archive_, {{key, value}});
    };
    const struct {
        const char* Case;
        std::string Manifest, Archive, Told;
    } cases[] = {
        {"unsigned", good.substr(0, good.find("signature=")), archive_, damaged},
        {"signed by a stranger", signedManifest(archive_, {}, SignedBy::Stranger), archive_, unsignedText},
        {"changed after signing", Replace(good, "Finds more", "Finds less"), archive_, unsignedText},
        {"higher after signing", Replace(good, "2.1.38", "2.1.39"), archive_, unsignedText},
        {"older", with("version", "2.1.36"), archive_, newest},
        {"the same", with("version", "2.1.37"), archive_, newest},
        {"other platform", with("platform", "windows-x86_64"), archive_, taken + "It is for another system."},
        {"below minimum", with("minimum", "2.1.38"), archive_,
         taken + "This version is too old for it. Install it by hand."},
        {"cut manifest", good.substr(0, good.size() / 2), archive_, damaged},
        {"10 MB of manifest", good + std::string(10U << 20, '\n'), archive_, damaged},
        {"name with separators", with("file", "../vell-2.tar.gz"), archive_, damaged},
        {"name with dots", with("file", "vell-.."), archive_, damaged},
        {"a web page", "<html>Service</html>", archive_, damaged},
        {"larger than signed", good, archive_ + 'x',
         notFetched + "An unexpected error: More bytes come than were announced"},
        {"without end", good, std::string(8U << 20, 'v'),
         notFetched + "An unexpected error: More bytes come than were announced"},
        {"shorter than signed", good, archive_.substr(1),
         notFetched + "The file is not the one that its maker has signed."},
        {"other bytes", good, std::string(archive_.size(), 'w'),
         notFetched + "The file is not the one that its maker has signed."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        offer(c.Manifest, c.Archive);
        ASSERT_TRUE(load(""));
        boxes.Shown.clear();
        const std::size_t logged = this->logged().size();
        EXPECT_NE(program.update().fetch(), End::Ready);
        EXPECT_THAT(boxes.Shown, testing::ElementsAre(c.Told));
        EXPECT_FALSE(isReady());
        EXPECT_GT(this->logged().size(), logged);
        boxes.Shown.clear();
        load("AutoUpdateCheck=1\r\n");
        program.Form_Unload();
        ASSERT_TRUE(runToday());
        EXPECT_EQ(told(), "") << "nobody has asked";
        EXPECT_FALSE(isReady());
        EXPECT_EQ(program.downloads().summary().NotBegun, std::nullopt);
    }
}

TEST_F(UpdateTest, whoAsksGetsAnAnswerInEveryCaseAndTheQuestionBeforeTheFetch) {
    ASSERT_TRUE(load(""));
    EXPECT_EQ(program.update().mnuCheckUpdate_Click(), End::Told);
    EXPECT_EQ(boxes.shown(), question + "|");
    EXPECT_FALSE(isReady());
    EXPECT_EQ(program.update().look(), End::Told);
    EXPECT_EQ(boxes.Shown.back(), "Version 2.1.38 is available.");
    boxes.Answers = {Answer::Yes};
    EXPECT_EQ(program.update().mnuCheckUpdate_Click(), End::Ready);
    EXPECT_EQ(boxes.Shown.back(), ready);
    EXPECT_TRUE(isReady());
    EXPECT_THAT(view.Statuses, HasSubstr("Fetching version 2.1.38 (683/683kb)\n"));
    EXPECT_EQ(program.update().mnuCheckUpdate_Click(), End::Ready) << "it is here already";
    EXPECT_FALSE(wasFetched());
    service.Answers[script] = HttpPeer::ok("No update\r\n");
    EXPECT_EQ(program.update().mnuCheckUpdate_Click(), End::Nothing);
    EXPECT_EQ(boxes.Shown.back(), newest);
    service.Answers[script] = HttpPeer::status("404 Not Found");
    EXPECT_EQ(program.update().mnuCheckUpdate_Click(), End::Failed);
    EXPECT_EQ(boxes.Shown.back(),
              "The service could not be asked for a newer version. The service answered with a failure: 404 Not Found");
    EXPECT_EQ(view.Message, "") << "that is no message of a download";
}

TEST_F(UpdateTest, theEndOfARunBringsItWithoutAWordOrAsksWhereThatIsWanted) {
    load("AutoUpdateCheck=1\r\n");
    program.Form_Unload();
    service.Answers[script] = HttpPeer::ok("No update");
    ASSERT_TRUE(runToday());
    EXPECT_EQ(view.Message + told(), "");
    EXPECT_EQ(view.Status, "Finished: 3 of 3 clippings downloaded.");
    offer(signedManifest(archive_), archive_);
    load("AutoUpdateCheck=1\r\nAutoUpdateNotify=1\r\n");
    program.Form_Unload();
    ASSERT_TRUE(runToday());
    EXPECT_EQ(told(), question + "|");
    EXPECT_FALSE(isReady());
    load("AutoUpdateCheck=1\r\n");
    program.Form_Unload();
    ASSERT_TRUE(runToday());
    EXPECT_EQ(view.Message, ready);
    EXPECT_EQ(told(), question + "|") << "no other one";
    EXPECT_TRUE(isReady());
}

TEST_F(UpdateTest, aScheduledRunWaitsForNobody) {
    for (const bool asksFirst : {true, false}) {
        configure("AutoUpdateCheck=1\r\nAutoUpdateNotify=" + std::to_string(asksFirst ? 1 : 0) + "\r\n",
                  folder.text() + "/clips");
        folder.put("vell.ini", folder.get("vell.ini") + "[Schedule]\r\nSchedule1=Sun 06:30\r\n");
        clock.setNow({{2004, 3, 7}, 6, 29, 55});
        ASSERT_TRUE(program.Form_Load(frmMain::Start::Alone));
        program.schedule().start();
        clock.advance(std::chrono::seconds{10});
        loop.DoEvents();
        program.schedule().stop();
        EXPECT_EQ(boxes.shown(), "");
        EXPECT_EQ(view.Message, asksFirst ? "Version 2.1.38 is available." : ready);
        EXPECT_EQ(isReady(), !asksFirst);
        EXPECT_TRUE(program.downloads().outcome().isGood());
        program.Form_Unload();
    }
}

TEST_F(UpdateTest, theSharedFolderIsLookedAtFirstAndFilledAfterwards) {
    ASSERT_TRUE(load("AutoUpdateServer=1\r\n"));
    ASSERT_EQ(program.update().fetch(), End::Ready);
    const auto clearOwn = [&] {
        std::filesystem::remove_all(folder.path() / "UPDATE");
        ASSERT_TRUE(load("AutoUpdateServer=1\r\n"));
    };
    const std::string shared = std::string("clips/UPDATE/") + file;
    EXPECT_EQ(folder.get(shared), archive_);
    const auto asked = service.requests().size();
    clearOwn();
    EXPECT_EQ(program.update().fetch(), End::Ready);
    EXPECT_TRUE(isReady());
    EXPECT_EQ(service.requests().size(), asked) << "another one has brought it";
    const std::string good = signedManifest(archive_), manifest = "clips/UPDATE/linux-x86_64.txt";
    const std::function<void()> troubles[] = {
        [&] { folder.put(shared, archive_.substr(1)); },
        [&] { folder.put(shared, std::string(archive_.size(), 'w')); },
        [&] { std::filesystem::remove(folder.path() / shared); },
        [&] { folder.put(manifest, Replace(good, "2.1.38", "2.1.39")); },
        [&] { folder.put(manifest, signedManifest(archive_, {}, SignedBy::Stranger)); },
        [&] { folder.put(manifest, std::string(10U << 20, 'x')); },
        [&] { std::filesystem::remove_all(folder.path() / "clips"); },
        [&] { files.Trouble = "clips\\UPDATE"; },
    };
    for (const auto& trouble : troubles) {
        clearOwn();
        trouble();
        EXPECT_EQ(program.update().fetch(), End::Ready);
        EXPECT_TRUE(isReady());
        EXPECT_TRUE(service.requests().size() > asked);
        files.Trouble.clear();
    }
}

TEST_F(UpdateTest, whoCannotInstallOnlyTells) {
    ASSERT_TRUE(load(""));
    installation.Command = "sudo apt install --only-upgrade vell";
    EXPECT_EQ(program.update().fetch(), End::Told);
    EXPECT_EQ(boxes.shown(),
              "Version 2.1.38 is available. This command installs it: sudo apt install --only-upgrade vell|");
    EXPECT_FALSE(isReady());
    EXPECT_FALSE(wasFetched());
}

TEST_F(UpdateTest, stopEndsTheFetchAndLeavesNothing) {
    ASSERT_TRUE(load(""));
    view.OnStatus = [&](const std::string& status) {
        if (status.starts_with("Fetching")) program.downloads().cmdStopDownload_Click();
    };
    EXPECT_EQ(program.update().fetch(), End::Failed);
    EXPECT_EQ(boxes.shown(), "");
    EXPECT_FALSE(isReady());
}

TEST_F(UpdateTest, theNextStartInstallsWhatIsStillTheSignedArchiveAndAFailureIsTold) {
    const struct {
        std::string Archive, Fault, Installed, Told;
    } cases[] = {
        {archive_, "", std::string(file) + " 2.1.38|", ""},
        {archive_.substr(1), "", "", "The file is not the one that its maker has signed."},
        {archive_, "Disk full", "", "Disk full"},
    };
    for (const auto& c : cases) {
        ASSERT_TRUE(load(""));
        ASSERT_EQ(program.update().fetch(), End::Ready);
        folder.put(std::string("UPDATE/") + file, c.Archive);
        installation.Fault = c.Fault;
        installation.Installed.clear();
        boxes.Shown.clear();
        EXPECT_FALSE(program.Form_Load(frmMain::Start::Window));
        EXPECT_TRUE(program.isUpdatePending());
        std::string told = "An update file is ready to be installed...|";
        if (!c.Told.empty())
            told += "The newer version could not be installed. The program stays as it is. " + c.Told + "|";
        EXPECT_EQ(boxes.shown(), told);
        EXPECT_EQ(installation.Installed, c.Installed);
        EXPECT_FALSE(folder.has("UPDATE"));
        EXPECT_THAT(folder.get("vell.ini"), HasSubstr("Update=0"));
        EXPECT_EQ(folder.get("vell.ini").find("UpdateVersion=2.1.38") == std::string::npos, !c.Told.empty());
    }
    // The version that failed comes only when somebody asks for it.
    load("AutoUpdateCheck=1\r\n");
    folder.put("vell.ini", folder.get("vell.ini") + "[Update]\r\nFailedVersion=2.1.38\r\n");
    ASSERT_TRUE(runToday());
    EXPECT_FALSE(isReady());
    EXPECT_EQ(program.update().fetch(), End::Ready);
}

TEST_F(UpdateTest, aVersionThatDidNotComeUpIsToldOnce) {
    installation.PutBack = "2.1.38";
    ASSERT_TRUE(load(""));
    ASSERT_TRUE(load(""));
    EXPECT_EQ(boxes.shown(), "Version 2.1.38 did not start. The version before it is back.|");
}

}  // namespace
}  // namespace vell::test
