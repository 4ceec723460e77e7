// SPDX-License-Identifier: MIT
#include "service/ListAnswer.h"

#include <algorithm>
#include <optional>
#include <unordered_set>

#include "base/text.h"
#include "store/ClippingName.h"
#include "store/IndexLine.h"

namespace vell {

namespace {

constexpr int refusedLogin = 1001;
constexpr int nothingForTheDay = 1002;
constexpr std::size_t shownOfRecord = 80;
// A busy day has some hundred clippings; what each costs in memory is several times its record.
constexpr std::size_t mostRecords = 100'000;

std::string lineBreaksMade(std::string_view answer) {
    std::string text;
    text.reserve(answer.size());
    while (!answer.empty()) {
        const auto at = answer.find('<');
        text.append(answer.substr(0, at));
        if (at == std::string_view::npos) break;
        answer.remove_prefix(at);
        const bool isBreak = equalNoCase(answer.substr(0, 4), "<BR>");
        text.append(isBreak ? indexLineEnd : answer.substr(0, 1));
        answer.remove_prefix(isBreak ? 4 : 1);
    }
    return text;
}

std::string_view withoutSpaceAround(std::string_view piece) {
    constexpr std::string_view space = " \r\n";
    const auto first = piece.find_first_not_of(space);
    if (first == std::string_view::npos) return {};
    return piece.substr(first, piece.find_last_not_of(space) - first + 1);
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 32 || c == 127;
}

std::optional<ListAnswer::Kind> errorAnswer(std::string_view record) {
    if (!record.starts_with("ERROR")) return std::nullopt;
    const double code = Val(Mid(record, 7));
    if (code == refusedLogin) return ListAnswer::Kind::LoginRefused;
    if (code == nothingForTheDay) return ListAnswer::Kind::NothingForTheDay;
    return std::nullopt;
}

// Goes through an answer record by record.
class ListReader {
  public:
    ListAnswer read(std::string_view text) {
        for (bool more = true; more;) {
            const auto end = text.find(indexLineEnd);
            more = end != std::string_view::npos;
            const std::string_view record = withoutSpaceAround(text.substr(0, end));
            if (more) text.remove_prefix(end + indexLineEnd.size());
            if (!record.empty() && !take(record)) return std::move(answer_);
            if (!more && record.empty()) answer_.Records.emplace_back();
        }
        return judged();
    }

  private:
    // False when nothing that follows can matter any more.
    bool take(std::string_view record) {
        if (fieldsOfFirst_ == 0)
            if (const auto kind = errorAnswer(record)) {
                answer_ = {.What = *kind};
                return false;
            }
        last_ = record;
        fieldsOfLast_ = indexFields(record).size();
        if (record.starts_with('<')) return refuse("it is a page");
        if (std::ranges::any_of(record, isControl)) return refuse("it holds control characters");
        if (fieldsOfLast_ < fewestIndexFields) return refuse("it holds what is no record");
        if (fieldsOfFirst_ == 0) fieldsOfFirst_ = fieldsOfLast_;
        if (answer_.Records.size() + answer_.Dropped.size() >= mostRecords) return refuse("it has too many records");
        const std::string_view name = indexKey(record);
        if (!isClippingName(name))
            answer_.Dropped.emplace_back(record.substr(0, shownOfRecord));
        else if (names_.insert(name).second)
            answer_.Records.emplace_back(record);
        return true;
    }

    bool refuse(std::string_view why) {
        answer_ = {.Fault = std::string(why).append(": '").append(last_.substr(0, shownOfRecord)).append("'")};
        return false;
    }

    ListAnswer judged() {
        if (fieldsOfFirst_ == 0)
            answer_ = {.What = ListAnswer::Kind::Silence};
        else if (fieldsOfLast_ < fieldsOfFirst_)
            refuse("it was cut short");
        else if (names_.empty())
            refuse("it names no clipping");
        else
            answer_.What = ListAnswer::Kind::List;
        return std::move(answer_);
    }

    ListAnswer answer_;
    std::unordered_set<std::string_view> names_;
    std::string_view last_;
    std::size_t fieldsOfFirst_ = 0;  // 0: there is no record yet
    std::size_t fieldsOfLast_ = 0;
};

}  // namespace

ListAnswer readListAnswer(std::string_view body) {
    const std::string text = withoutAccents(Upper(lineBreaksMade(body)));
    return ListReader().read(text);
}

}  // namespace vell
