// SPDX-License-Identifier: MIT
#include "ui/dialogs/FilterChoice.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "base/text.h"
#include "platform/Translations.h"
#include "ui/list/RowOrder.h"

namespace vell {

FilterChoice::FilterChoice(const std::vector<Names>& clippings, const Names& chosen) {
    std::map<std::string, Entry> entries;  // by their names in capitals: upper and lower case are the same
    const auto entryOf = [&](const std::string& name) {
        return &entries.try_emplace(Upper(name), Entry{name}).first->second;
    };
    for (const Names& names : clippings) {
        std::set<Entry*> its;
        for (const std::string& name : names)
            its.insert(entryOf(name));
        if (its.empty()) its.insert(entryOf(""));
        for (Entry* entry : its)
            ++entry->Count;
    }
    for (const std::string& name : chosen)
        entryOf(name)->Ticked = true;
    for (auto& [name, entry] : entries)
        entries_.push_back(std::move(entry));
    std::ranges::sort(entries_, {},
                      [](const Entry& entry) { return std::tuple(entry.Name.empty(), lookUpKey(entry.Name)); });
    entries_.insert(entries_.begin(), Entry{"", clippings.size()});
}

std::string FilterChoice::text(std::size_t entry, const Translations& words) const {
    const auto& [name, count, ticked] = entries_.at(entry);
    const std::string shown = entry == 0 ? words.translate("Any") : name.empty() ? words.translate("None") : name;
    return shown + " (" + std::to_string(count) + ")";
}

bool FilterChoice::isTicked(std::size_t entry) const {
    return entry == 0 ? chosen().empty() : entries_.at(entry).Ticked;
}

void FilterChoice::tick(std::size_t entry, bool ticked) {
    if (entry == 0)
        tickAny();
    else
        entries_.at(entry).Ticked = ticked;
}

void FilterChoice::tickAny() {
    for (Entry& entry : entries_)
        entry.Ticked = false;
}

FilterChoice::Names FilterChoice::chosen() const {
    Names names;
    for (const Entry& entry : entries_)
        if (entry.Ticked) names.push_back(entry.Name);
    return names;
}

}  // namespace vell
