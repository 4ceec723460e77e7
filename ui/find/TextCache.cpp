// SPDX-License-Identifier: MIT
#include "ui/find/TextCache.h"

#include <utility>

namespace vell {

namespace {
constexpr std::size_t bookkeeping = 200;  // bytes that a text costs beside its own
}

std::size_t TextCache::cost(const std::string& path, std::size_t length) {
    return length + path.size() + bookkeeping;
}

TextCache::Text* TextCache::find(const std::string& path) {
    const auto found = places_.find(path);
    if (found == places_.end()) return nullptr;
    const Place place = found->second;
    entries_.splice(entries_.begin(), entries_, place);
    place->Search = search_;
    return &place->Content;
}

bool TextCache::hasRoom(const std::string& path, std::size_t length) const {
    std::size_t inUse = bytes_;
    for (auto entry = entries_.rbegin(); entry != entries_.rend() && entry->Search != search_; ++entry) {
        if (inUse + cost(path, length) <= most_) return true;
        inUse -= cost(entry->Path, entry->Content.Folded.size());
    }
    return inUse + cost(path, length) <= most_;
}

void TextCache::keep(const std::string& path, Text text) {
    drop(path);
    if (!hasRoom(path, text.Folded.size())) return;
    const std::size_t more = cost(path, text.Folded.size());
    while (bytes_ + more > most_)
        remove(std::prev(entries_.end()));
    text.Folded.shrink_to_fit();
    entries_.push_front({path, std::move(text), search_});
    places_.emplace(entries_.front().Path, entries_.begin());
    bytes_ += more;
}

void TextCache::drop(const std::string& path) {
    if (const auto found = places_.find(path); found != places_.end()) remove(found->second);
}

void TextCache::remove(Place place) {
    bytes_ -= cost(place->Path, place->Content.Folded.size());
    places_.erase(place->Path);
    entries_.erase(place);
}

}  // namespace vell
