// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/Files.h"

namespace vell {

// Folded texts by their paths, up to so much memory. A search goes through the texts in the same order each time: when
// they are more than fit, those of this search stay, and those that only earlier ones have used give way.
class TextCache {
  public:
    explicit TextCache(std::size_t mostBytes) : most_(mostBytes) {}

    struct Text {
        std::string Folded;
        std::optional<FileStamp> Stamp;  // of the file it was read from; nothing when there was none
        std::uint64_t Checked = 0;       // when the stamp was last compared, as the user of the cache counts
        bool IsUnreadable = false;
    };

    // Another search begins.
    void beginSearch() { ++search_; }
    // Null when it is not there. What is given lives until the next call of keep or drop.
    [[nodiscard]] Text* find(const std::string& path);
    // Would a text of this length find room?
    [[nodiscard]] bool hasRoom(const std::string& path, std::size_t length) const;
    // Nothing happens when there is no room.
    void keep(const std::string& path, Text text);
    void drop(const std::string& path);
    [[nodiscard]] std::size_t bytes() const { return bytes_; }

  private:
    struct Entry {
        std::string Path;
        Text Content;
        std::uint64_t Search = 0;  // the last one that used it
    };
    using Place = std::list<Entry>::iterator;
    void remove(Place place);
    [[nodiscard]] static std::size_t cost(const std::string& path, std::size_t length);

    std::size_t most_;
    std::size_t bytes_ = 0;
    std::uint64_t search_ = 0;
    std::list<Entry> entries_;  // the one used last first
    std::unordered_map<std::string_view, Place> places_;
};

}  // namespace vell
