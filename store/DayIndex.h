// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

namespace vell {

class Files;

// A clipping whose three files have come.
struct ArrivedClipping {
    std::string PdfName;
    std::string Change;  // the change field of the version that has come
};

// The index file of a day, in which clippings are marked as they become complete. Whoever replaces it holds its lock
// (Files::Lock), so that of two programs on one download folder none loses the marks of the other.
class DayIndex {
  public:
    explicit DayIndex(Files& files) : files_(files) {}

    // Rewrites the index in `dayFolder`: lines without "||" are dropped, and in the lines of the clippings, named by
    // their PDF files, every "||-||" becomes "||d||" and the change field that of the version that has come. The file
    // ends with an empty line, which the index reader counts on. Raises RunTimeError, and nothing has changed, when the
    // file cannot be read or written.
    void markDownloaded(const std::string& dayFolder, std::span<const ArrivedClipping> clippings);

  private:
    Files& files_;
};

}  // namespace vell
