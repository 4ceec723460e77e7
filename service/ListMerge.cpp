// SPDX-License-Identifier: MIT
#include "service/ListMerge.h"

#include <unordered_set>
#include <utility>

#include "base/text.h"
#include "store/IndexLine.h"

namespace vell {

namespace {

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

bool sameVersion(std::string_view oldLine, std::string_view record) {
    return indexField(oldLine, IndexField::Change) == indexField(record, IndexField::Change);
}

}  // namespace

std::vector<std::string> answerRecords(std::string_view answer) {
    const std::string text = withoutAccents(Upper(Trim(lineBreaksMade(answer))));
    const auto pieces = Split(text, indexLineEnd);
    return {pieces.begin(), pieces.end()};
}

Merged mergeWithIndex(std::vector<std::string> records, std::string_view oldIndex) {
    std::unordered_set<std::string> listed;
    for (const std::string& record : records)
        listed.emplace(indexKey(record));

    const auto old = indexLines(oldIndex);
    Merged merged;
    std::size_t position = 0;
    const auto passOld = [&] {
        std::string name(indexKey(old[position++]));
        if (!listed.contains(name)) merged.GoneFiles.push_back(std::move(name));
    };
    for (std::string& record : records) {
        if (record.empty()) continue;
        const std::string_view name = indexKey(record);
        while (position < old.size() && name > indexKey(old[position]))
            passOld();
        if (position < old.size() && name == indexKey(old[position])) {
            if (!sameVersion(old[position], record))
                merged.ChangedFiles.emplace(name);
            else if (isMarked(old[position]))
                markFirst(record);
            ++position;
        }
    }
    while (position < old.size())
        passOld();
    merged.Records = std::move(records);
    return merged;
}

}  // namespace vell
