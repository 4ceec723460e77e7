// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Files.h"

namespace vell {

// The index file of the day that is being downloaded, in which clippings are marked as they become complete. The file
// is read once; it is read again only when somebody else has changed it, so that marking does not become slower
// with the number of clippings.
class DayIndex {
  public:
    explicit DayIndex(Files& files);

    // Rewrites the index in `dayFolder`: lines without "||" are dropped, and in the lines of the clipping, named by its
    // PDF file, every "||-||" becomes "||d||" and the change field that of the version that has come. The file ends
    // with an empty line, which the index reader counts on. Returns how many lines are the clipping's. Raises
    // RunTimeError when the file cannot be read or written.
    int markDownloaded(const std::string& dayFolder, const std::string& pdfName, std::string_view change);

  private:
    // Where a line stands in text_.
    struct Line {
        std::size_t Begin;
        std::size_t Length;
    };

    void load(const std::string& path);
    void parse(const std::string& content);
    // In all lines of the clipping.
    void setChange(std::string_view pdfName, std::string_view change);
    [[nodiscard]] std::string_view textOf(const Line& line) const;
    void store(const std::vector<std::size_t>& changed);

    Files& files_;
    std::string path_;
    std::optional<FileStamp> stamp_;  // of the file as it was written last
    bool isOnDisk_ = false;           // the file was written from text_
    std::string text_;
    std::unordered_map<std::string, std::vector<Line>> linesOf_;  // of a clipping
};

}  // namespace vell
