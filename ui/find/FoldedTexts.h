// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "log/EventLog.h"
#include "ui/find/TextCache.h"

namespace vell {

class FindMatch;

// The text forms as a search sees them, read when they are first needed and kept for the session as far as the memory
// goes. What does not fit is read again each time.
class FoldedTexts {
  public:
    static constexpr std::size_t pieceSize = std::size_t{256} << 10;

    FoldedTexts(const Files& disk, EventLog& log, std::size_t mostBytes) : disk_(disk), log_(log), cache_(mostBytes) {}

    // Another search begins; a text that is under way is left.
    void beginSearch();
    // The files may be others now: whatever is kept is compared with its file before it is used again.
    void filesMayHaveChanged() { ++changes_; }

    // Shows the match the next piece of a text; true when that was the last that is needed, and the next call may be
    // for another text. A text that will be kept is read to its end, whatever the match knows by then.
    [[nodiscard]] bool lookOn(const std::string& path, FindMatch& match);

    // Texts of this search that could not be read; the log says why. They have no words.
    [[nodiscard]] std::size_t unreadable() const { return unreadable_; }
    // How much memory the texts take.
    [[nodiscard]] std::size_t bytes() const { return cache_.bytes(); }

  private:
    enum class Source : std::uint8_t { None, Memory, File };
    [[nodiscard]] Source open(const std::string& path);
    [[nodiscard]] bool lookOnInMemory(const std::string& path, FindMatch& match);
    [[nodiscard]] bool lookOnInFile(const std::string& path, FindMatch& match);
    void close();

    const Files& disk_;
    EventLog& log_;
    TextCache cache_;
    std::uint64_t changes_ = 0;
    std::size_t unreadable_ = 0;

    // Of the text under way.
    Source source_ = Source::None;
    std::size_t offset_ = 0;   // of what comes next
    std::string read_;         // from the file: all of it, or the end of the last piece when it is not kept
    TextCache::Text pending_;  // what will be kept, without the text itself
    bool keeps_ = false;
};

}  // namespace vell
