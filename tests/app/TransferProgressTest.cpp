// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "app/Session.h"
#include "app/progress/TransferProgress.h"
#include "tests/support/RecordingView.h"
#include "tests/support/StoreRig.h"

namespace vell::test {

class TransferProgressTest : public testing::Test, protected StoreRig {
  protected:
    // Of a list of `count` entries of 10240 bytes each, the entry `current` is being fetched.
    void list(std::size_t count, std::int32_t current) {
        session.Downloads = {{count, {.FileName = "A.PDF", .Size = 10240, .Change = {}}}, 40960};
        session.gCurrentFileIndex = current;
        session.gLastProgressBytes = 0;
    }
    void report(std::initializer_list<std::int32_t> counts) {
        for (const std::int32_t bytes : counts)
            progress.HTTPDownloadProgress(bytes);
    }
    Session session;
    RecordingView view;
    TransferProgress progress{session, view, loop, clock, log, std::chrono::milliseconds{50}};
};

TEST_F(TransferProgressTest, followsAFileFromItsFirstByteToItsEnd) {
    list(10, 4);
    report({0, 5120, 10240, 10240});
    EXPECT_EQ(view.Progress, "0/0 50/12 100/25 100/25 ");
    EXPECT_EQ(session.Downloads.gBytesDownloaded, 10240);
    EXPECT_EQ(session.gLastProgressBytes, 0);
    EXPECT_EQ(Replace("HTTP-->" + view.Statuses, "\n", "\nHTTP-->"), logged() + "HTTP-->");
    report({5120, 2047});  // an attempt that breaks off, and the next one: fewer bytes begin anew
    EXPECT_EQ(session.Downloads.gBytesDownloaded, 10240 + 5120 + 2047);
    EXPECT_EQ(view.Status, "(1/3) Downloading A.PDF (1/10kb), Total kb downloaded: 16/40kb");
    progress.attemptBegins();
    report({2048, 9000});
    progress.attemptFailed();
    report({5000});
    EXPECT_EQ(session.Downloads.gBytesDownloaded, 10240 + 5120 + 2047 + 5000);
}

TEST_F(TransferProgressTest, countsClippingsWithTheirFractionsAndTellsTheEnd) {
    session.gClippingsDownloaded = 3;
    const std::string file = " Downloading A.PDF (10/10kb), Total kb downloaded: 10/40kb";
    const std::tuple<int, int, std::string> table[] = {
        {10, 1, "(0/3)" + file},
        {11, 9, "(3/3.33333333333333)" + file},
        {11, 11, "Finished: 3 of 3.33333333333333 clippings downloaded."}};
    for (const auto& [count, current, status] : table) {
        list(static_cast<std::size_t>(count), current);
        report({10240, 10240});
        EXPECT_EQ(view.Status, status);
    }
}

TEST_F(TransferProgressTest, keepsItsErrorsToItselfAndPaintsOnlyWhatAnEyeCanFollow) {
    list(4, 2);
    session.Downloads.gDownloadList[1].Size = 0;
    report({100});
    EXPECT_EQ(session.Downloads.gBytesDownloaded, 100);
    EXPECT_THAT(logged(), testing::EndsWith(" in HTTPDownloadProgress()\n"));
    EXPECT_EQ(view.Statuses, "");
    log.Stop();
    list(4, 2);
    for (std::int32_t bytes = 0; bytes <= 10240; bytes += 1024, clock.advance(std::chrono::milliseconds{10}))
        report({bytes});
    report({10240});
    EXPECT_EQ(view.Progress, "0/0 50/12 100/25 100/25 ");
    progress.StatusBar("a\r\nb\nc\r");
    EXPECT_THAT((std::vector{view.Status, progress.statusText()}), testing::Each("abc"));
}

}  // namespace vell::test
