// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vell {

class Translations;

// One list of the filter dialog, of newspapers for example: "Any" first, which stands for no choice, then the names
// that the day's clippings have, and "None" for those that have no name. Each says how many clippings it stands for.
class FilterChoice {
  public:
    using Names = std::vector<std::string>;

    // `clippings`: the names that each clipping of the day has. `chosen`: the names that pass now, "" for none; they
    // are offered also where the day has none of them.
    FilterChoice(const std::vector<Names>& clippings, const Names& chosen);

    // Entries are counted from 0.
    [[nodiscard]] std::size_t size() const { return entries_.size(); }
    [[nodiscard]] std::string text(std::size_t entry, const Translations& words) const;
    [[nodiscard]] bool isTicked(std::size_t entry) const;
    // "Any" and the others exclude each other.
    void tick(std::size_t entry, bool ticked);
    void tickAny();
    // What a filter takes; empty for any.
    [[nodiscard]] Names chosen() const;

  private:
    struct Entry {
        std::string Name;
        std::size_t Count = 0;
        bool Ticked = false;
    };
    std::vector<Entry> entries_;  // the first is "Any", an empty name behind it "None"
};

}  // namespace vell
