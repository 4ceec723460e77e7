// SPDX-License-Identifier: MIT
// The way of a list from the service to the rows that are shown: answer, merge with the old index, index, rows. The
// input is the answer, and behind its first NUL the old index.
#include <algorithm>
#include <set>
#include <string>

#include "fuzz/fuzzing.h"
#include "service/ListAnswer.h"
#include "service/ListMerge.h"
#include "store/ClippingName.h"
#include "store/IndexFile.h"
#include "store/IndexLine.h"

namespace {

using vell::fuzz::must;

std::set<std::string_view> namesOf(const std::vector<std::string>& records) {
    std::set<std::string_view> names;
    for (const std::string& record : records) {
        if (record.empty()) continue;
        must(vell::isClippingName(vell::indexKey(record)));
        must(vell::indexFields(record).size() >= vell::fewestIndexFields);
        must(names.insert(vell::indexKey(record)).second);
    }
    return names;
}

// Nothing is said to have come that the old index did not say of the same version.
void mustBeMarkedBefore(std::string_view line, std::string_view oldIndex) {
    const auto old = vell::indexLines(oldIndex);
    must(std::ranges::any_of(old, [&](std::string_view before) {
        return vell::indexKey(before) == vell::indexKey(line) && vell::isMarked(before) &&
               vell::indexChange(before) == vell::indexChange(line);
    }));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto input = vell::fuzz::textOf(data, size);
    const auto nul = std::min(input.find('\0'), input.size());
    const std::string_view oldIndex = input.substr(std::min(nul + 1, input.size()));

    const vell::ListAnswer answer = vell::readListAnswer(input.substr(0, nul));
    const auto names = namesOf(answer.Records);
    if (answer.What != vell::ListAnswer::Kind::List) return 0;
    must(!names.empty());

    const vell::Merged merged = vell::mergeWithIndex(answer.Records, oldIndex);
    for (const std::string& name : merged.GoneFiles) {
        must(vell::isClippingName(name));
        must(!names.contains(name));
    }
    const auto lines = vell::indexLines(merged.Index);
    must(lines.size() == names.size());
    for (const std::string_view line : lines)
        if (vell::isMarked(line)) mustBeMarkedBefore(line, oldIndex);

    const auto rows = vell::readIndex(merged.Index + "\r\n");
    must(rows.size() == answer.Records.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        must(rows[i].FileName == vell::indexKey(answer.Records[i]));

    const vell::Merged again = vell::mergeWithIndex(answer.Records, merged.Index);
    must(again.GoneFiles.empty());
    must(again.ChangedFiles == merged.ChangedFiles);
    return 0;
}
