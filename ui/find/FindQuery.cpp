// SPDX-License-Identifier: MIT
#include "ui/find/FindQuery.h"

#include <algorithm>
#include <array>
#include <functional>

#include "ui/list/RowOrder.h"

namespace vell {

namespace {

constexpr std::string_view blanks(" \t\r\n\f\xA0", 6);  // the last one is the blank that does not break

std::array<char, 256> foldTable() {
    std::array<char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const char c = static_cast<char>(static_cast<unsigned char>(i));
        table.at(i) = lookUpKey(std::string_view(&c, 1)).front();
    }
    return table;
}

// As often as texts have them, in Greek and in English, the most frequent first. What is not among them is rare.
constexpr std::string_view frequent(
    " \xC1\xCF\xC9\xC5\xD4\xD3\xCD\xC7\xD5\xD1\xD0\xCA\xCB\xCC\xD9\xC4\xC3\xD7\xC8"
    "ETAOINSRHLDCU.,MFPGWYBV");

std::size_t rarestOf(std::string_view word) {
    std::size_t rarest = 0;
    std::size_t most = 0;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const std::size_t rank = std::min(frequent.find(word[i]), frequent.size());
        if (rank <= most) continue;
        most = rank;
        rarest = i;
    }
    return rarest;
}

}  // namespace

void foldForFinding(std::string& text) {
    static const std::array<char, 256> table = foldTable();
    for (char& c : text)
        c = table[static_cast<unsigned char>(c)];
}

FindWord::FindWord(std::string_view folded) : Text(folded), Rarest(rarestOf(folded)) {}

// Looking for a rare character is several times as fast as for the first one.
std::size_t FindWord::placeIn(std::string_view folded, std::size_t from) const {
    if (folded.size() < Text.size()) return std::string_view::npos;
    const std::string_view places = folded.substr(0, folded.size() - Text.size() + Rarest + 1);
    for (std::size_t at = places.find(Text[Rarest], from + Rarest); at != std::string_view::npos;
         at = places.find(Text[Rarest], at + 1))
        if (folded.substr(at - Rarest, Text.size()) == Text) return at - Rarest;
    return std::string_view::npos;
}

std::vector<FoundPlace> foundPlaces(std::string_view text, const FindQuery& query, std::size_t most) {
    std::string folded(text);
    foldForFinding(folded);
    std::vector<FoundPlace> all;
    for (const FindWord& word : query.words()) {
        std::size_t left = most;
        for (std::size_t at = word.placeIn(folded, 0); at != std::string_view::npos && left > 0;
             at = word.placeIn(folded, at + word.Text.size()), --left)
            all.push_back({at, word.Text.size()});
    }
    std::ranges::sort(all, {}, &FoundPlace::From);
    std::vector<FoundPlace> places;
    for (const FoundPlace& place : all) {
        const std::size_t end = places.empty() ? 0 : places.back().From + places.back().Length;
        if (places.empty() || place.From > end)
            places.push_back(place);
        else
            places.back().Length += std::max(end, place.From + place.Length) - end;
    }
    return places;
}

FindQuery::FindQuery(std::string_view typed) {
    std::string folded(typed.substr(0, longest));
    foldForFinding(folded);
    std::string_view rest = folded;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of(blanks), rest.size());
        if (end > 0) words_.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    std::ranges::stable_sort(words_, std::greater{}, [](const FindWord& word) { return word.Text.size(); });
}

FindMatch::FindMatch(const FindQuery& query) : overlap_(query.overlap()) {
    for (const FindWord& word : query.words())
        missing_.push_back(&word);
}

void FindMatch::look(std::string_view folded, Piece piece) {
    // Who misses one word at the end need not look for the others.
    bool isHopeless = false;
    std::erase_if(missing_, [&](const FindWord* word) {
        if (isHopeless) return false;
        const bool isThere = word->placeIn(folded, 0) != std::string_view::npos;
        isHopeless = !isThere && piece == Piece::Last;
        return isThere;
    });
}

}  // namespace vell
