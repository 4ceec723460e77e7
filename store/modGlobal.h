// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Date.h"
#include "ftp/listing/CFtpFiles.h"
#include "log/EventLog.h"
#include "store/DayCount.h"
#include "store/DayState.h"
#include "store/IndexFile.h"

namespace vell {

class EventLoop;
class Files;
class MessageBoxes;
class modIni;
struct Settings;

// The store of clippings: a folder per day under the download root, and in it the article files, the day's index and
// the marks of what was opened and printed. Procedures keep their errors to themselves: they log them under their own
// name and return the failure value.
class modGlobal {
  public:
    struct Parts {
        Files& Disk;
        EventLoop& Loop;
        MessageBoxes& Boxes;
        modIni& Ini;
        EventLog& Log;
        const Settings& Setup;
        DayState& Day;
    };
    explicit modGlobal(const Parts& parts) : p_(parts) {}

    // Makes the folder of the day of the run, one level below the download root, and remembers it in the day state.
    bool CreateDownloadDirPath();
    [[nodiscard]] bool PathExists(std::string_view path) const;

    [[nodiscard]] std::vector<std::string> GetLocalDirectories(const std::string& folder, bool includeDotEntries);
    // The files of a day folder (backslash at its end), joined to the day's index. The last of the patterns is not
    // used: callers pass one more than they mean.
    [[nodiscard]] CFtpFiles GetLocalFiles(const std::string& dayFolder, std::span<const std::string> patterns);

    [[nodiscard]] DayCount CountDay(const Date& day) const;

    // Puts days in order, the newest first.
    [[nodiscard]] std::vector<Date> DateSort(std::vector<Date> days);

    // Deletes a whole day. When something cannot be deleted the user is asked whether to try again.
    void DeleteContent(const Date& day);
    // Both act on the day that is chosen in the date list, which need not be the day of the run.
    void DeleteArticleFiles(const std::string& fileName);
    void DeleteDayFile(const std::string& fileName);

    // The paths are full ones; without a backslash nothing is done and the result is false.
    bool MarkFileOpened(std::string_view path);
    bool MarkFilePrinted(std::string_view path);
    // Marks all of these files as opened, or as not opened, in one step for each day. False when a mark was not
    // written.
    bool markOpened(std::span<const std::string> paths, bool opened);
    [[nodiscard]] bool IsFileOpened(std::string_view path) const;
    [[nodiscard]] bool IsFilePrinted(std::string_view path) const;
    // Runs `asks`, in which the marks of that day's folder are read from the disk once for all clippings.
    void withMarksOf(const std::string& dayFolder, const std::function<void()>& asks) const;

    // A day's folder, backslash at its end. Raises RunTimeError when there is no download root or no such day, so that
    // nothing is ever made or deleted outside a day folder.
    [[nodiscard]] std::string folderOfDay(const Date& day) const;

  private:
    struct Mark {
        std::string_view File;
        std::string_view Section;
        std::string_view Procedure;
    };
    static constexpr Mark openedMark{openedFileName, "VIEW", "MarkFileOpened()"};
    static constexpr Mark printedMark{printedFileName, "PRINT", "MarkFilePrinted()"};
    // Where a file's mark stands.
    struct MarkPlace {
        std::string File;
        std::string Key;
    };
    [[nodiscard]] static std::optional<MarkPlace> placeOf(const Mark& mark, std::string_view path);
    bool setMark(const Mark& mark, std::string_view path);
    [[nodiscard]] bool hasMark(const Mark& mark, std::string_view path) const;

    void addMatches(CFtpFiles& files, const std::string& dayFolder, const std::string& pattern) const;
    void joinIndex(CFtpFiles& files, const std::string& dayFolder) const;
    void deleteFromSelectedDay(std::span<const std::string> fileNames, std::string_view procedure);

    Parts p_;
};

}  // namespace vell
