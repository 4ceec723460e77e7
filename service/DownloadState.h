// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vell {

struct DownloadEntry {
    std::string FileName;
    std::int32_t Size = 0;    // 0 when the service does not say
    std::string Change;       // of its clipping: tells the versions of a file apart; empty for the advertisement
    bool IsHere = false;      // it has come in an earlier run and needs no turn
    bool IsNew = false;       // its clipping is not here yet, or in another version
    bool IsOutdated = false;  // the service has changed it since: what lies on the disk is no beginning of it
};

inline constexpr const char* advertisementFile = "ADVERTISMENT.JPG";

// What is to be fetched for a day, in the service's order: the advertisement first, then three files per clipping.
struct DownloadState {
    std::vector<DownloadEntry> gDownloadList;
    std::int64_t gTotalBytes = 0;       // of all files of the list
    std::int64_t gBytesDownloaded = 0;  // received in this run over HTTP
    std::int32_t gClippingsCount = 0;   // clippings that the service listed for the day
    std::int32_t DroppedRecords = 0;    // of the service's list, because they name no file of a clipping
    bool HasNewAlert = false;           // the day's alert is another one than before
    bool ServiceWasSilent = false;      // it did not even say that the day is empty: nothing may be removed for that
};

}  // namespace vell
