// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/Session.h"
#include "app/TransferProgress.h"
#include "tests/support/RecordingView.h"
#include "tests/support/StoreRig.h"

namespace vell::test {
namespace {

class TransferProgressTest : public testing::Test, protected StoreRig {
  protected:
    // A list of `count` entries of 10240 bytes each; the entry `current` is being fetched.
    void list(std::size_t count, std::int32_t current) {
        session.Downloads = {{count, {"A.PDF", "", 10240}}, 40960};
        session.gCurrentFileIndex = current;
        session.gLastProgressBytes = 0;
    }
    Session session;
    RecordingView view;
    TransferProgress progress{session, view, loop, clock, log, std::chrono::milliseconds{50}};
};

TEST_F(TransferProgressTest, followsAFileFromItsFirstByteToItsEnd) {
    list(10, 4);
    for (const std::int32_t bytes : {0, 5120, 10240, 10240})
        progress.HTTPDownloadProgress(bytes);
    EXPECT_EQ(view.Progress, (std::vector<std::pair<int, int>>{{0, 0}, {50, 12}, {100, 25}, {100, 25}}));
    EXPECT_EQ(session.Downloads.gBytesDownloaded, 10240);
    EXPECT_EQ(session.gLastProgressBytes, 0);
    EXPECT_EQ(view.Statuses[1], "(1/3) Downloading A.PDF (5/10kb), Total kb downloaded: 5/40kb");
    EXPECT_EQ(logged(), "HTTP-->" + view.Statuses[0] + "\nHTTP-->" + view.Statuses[1] + "\nHTTP-->" + view.Statuses[2] +
                            "\nHTTP-->" + view.Statuses[3] + "\n");
    progress.HTTPDownloadProgress(5120);  // a broken attempt ...
    progress.HTTPDownloadProgress(2047);  // ... and the next one: fewer bytes begin anew
    EXPECT_EQ(session.Downloads.gBytesDownloaded, 10240 + 5120 + 2047);
    EXPECT_EQ(view.Statuses.back(), "(1/3) Downloading A.PDF (1/10kb), Total kb downloaded: 16/40kb");
}

TEST_F(TransferProgressTest, countsClippingsWithTheirFractionsAndTellsTheEnd) {
    const struct {
        std::size_t count;
        std::int32_t current;
        std::string status;
    } table[] = {
        {10, 1, "(0/3) Downloading A.PDF (10/10kb), Total kb downloaded: 10/40kb"},
        {11, 2, "(0/3.33333333333333) Downloading A.PDF (10/10kb), Total kb downloaded: 10/40kb"},
        {10, 9, "(3/3) Downloading A.PDF (10/10kb), Total kb downloaded: 10/40kb"},
        {10, 10, "Finished: 3 of 3 clippings downloaded."},
        {11, 11, "Finished: 3 of 3.33333333333333 clippings downloaded."},
    };
    session.gClippingsDownloaded = 3;
    for (const auto& row : table) {
        list(row.count, row.current);
        progress.HTTPDownloadProgress(10240);
        progress.HTTPDownloadProgress(10240);
        EXPECT_EQ(view.Statuses.back(), row.status);
    }
}

TEST_F(TransferProgressTest, keepsItsErrorsToItselfAndItsStatusOnOneLine) {
    progress.StatusBar("a\r\nb\nc\r");
    EXPECT_EQ(view.Statuses.back() + progress.statusText(), "abcabc");
    list(4, 2);
    session.Downloads.gDownloadList[1].Size = 0;
    progress.HTTPDownloadProgress(100);
    session.gCurrentFileIndex = 5;
    progress.HTTPDownloadProgress(200);
    EXPECT_EQ(session.Downloads.gBytesDownloaded, 200);
    EXPECT_EQ(view.Statuses.size(), 1U);
    EXPECT_EQ(Split(logged(), " in HTTPDownloadProgress()\n").size(), 3U);
}

TEST_F(TransferProgressTest, withoutALogPaintsOnlyWhatAnEyeCanFollow) {
    log.Stop();
    list(4, 2);
    for (std::int32_t bytes = 0; bytes <= 10240; bytes += 1024, clock.advance(std::chrono::milliseconds{10}))
        progress.HTTPDownloadProgress(bytes);
    EXPECT_EQ(view.Progress.size(), 3U);
    progress.HTTPDownloadProgress(10240);
    EXPECT_EQ(view.Progress.back(), (std::pair{100, 25}));
    EXPECT_EQ(session.Downloads.gBytesDownloaded, 10240);
}

}  // namespace
}  // namespace vell::test
