// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vell {

// Makes case, Greek accents and the final sigma alike, byte for byte: the text keeps its length.
void foldForFinding(std::string& text);

// A word that is looked for, folded.
struct FindWord {
    std::string Text;
    std::size_t Rarest = 0;  // the place of its character that texts have least

    explicit FindWord(std::string_view folded);
    bool operator==(const FindWord&) const = default;
    // Where it stands from there on; npos when it does not.
    [[nodiscard]] std::size_t placeIn(std::string_view folded, std::size_t from) const;
};

// What somebody looks for: words, or parts of words, all of which are to be there, in whatever order.
class FindQuery {
  public:
    // Nobody types more, and each word costs every text a search. What was pasted is taken to there.
    static constexpr std::size_t longest = 200;

    FindQuery() = default;
    explicit FindQuery(std::string_view typed);

    // The longest first: it is the one that is missing most often.
    [[nodiscard]] const std::vector<FindWord>& words() const { return words_; }
    [[nodiscard]] bool isEmpty() const { return words_.empty(); }
    // How many bytes two pieces of a text must share so that a word between them is not missed.
    [[nodiscard]] std::size_t overlap() const { return words_.empty() ? 0 : words_.front().Text.size() - 1; }

    bool operator==(const FindQuery&) const = default;

  private:
    std::vector<FindWord> words_;
};

// A stretch of a text that has a word of a query, in bytes.
struct FoundPlace {
    std::size_t From = 0;
    std::size_t Length = 0;

    bool operator==(const FoundPlace&) const = default;
};
// In the order of the text, none over another; of each word so many at most.
[[nodiscard]] std::vector<FoundPlace> foundPlaces(std::string_view text, const FindQuery& query, std::size_t most);

// Which words of a query one clipping has. It is shown the clipping piece by piece; the query outlives it.
class FindMatch {
  public:
    explicit FindMatch(const FindQuery& query);

    enum class Piece { OneOfSeveral, Last };
    void look(std::string_view folded, Piece piece);
    // All of them.
    [[nodiscard]] bool isHit() const { return missing_.empty(); }
    [[nodiscard]] std::size_t overlap() const { return overlap_; }

  private:
    std::vector<const FindWord*> missing_;
    std::size_t overlap_;
};

}  // namespace vell
