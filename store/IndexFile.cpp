// SPDX-License-Identifier: MIT
#include "store/IndexFile.h"

#include "base/text.h"
#include "store/IndexLine.h"

namespace vell {

namespace {

// What a field shows. "|." arises when the field before it ends with a "|".
std::string_view shown(std::string_view field) {
    return field == "." || field == "|." ? std::string_view{} : field;
}

IndexRecord recordOf(std::string_view line) {
    const auto fields = indexFields(line);
    const auto has = [&](IndexField field) { return static_cast<std::size_t>(field) < fields.size(); };
    const auto raw = [&](IndexField field) {
        return has(field) ? fields[static_cast<std::size_t>(field)] : std::string_view{};
    };
    const std::string_view type = raw(IndexField::ArticleType);
    const bool hasType = has(IndexField::ArticleType) && shown(type) == type;
    return {.FileName = std::string(raw(IndexField::FileName)),
            .NewspaperName = std::string(shown(raw(IndexField::Newspaper))),
            .Description = std::string(shown(raw(IndexField::Description))),
            .Category = Replace(shown(raw(IndexField::Category)), "|", ","),
            .ArticleType = hasType ? Replace(type, "|", ",") : " "};
}

}  // namespace

std::vector<IndexRecord> readIndex(std::string_view text) {
    std::vector<IndexRecord> records;
    // The line end of the last line opens no further line: the reader is then already at the end of the file.
    if (text.ends_with(indexLineEnd)) text.remove_suffix(indexLineEnd.size());
    for (auto at = text.find(indexLineEnd); at != std::string_view::npos; at = text.find(indexLineEnd)) {
        records.push_back(recordOf(text.substr(0, at)));
        text.remove_prefix(at + indexLineEnd.size());
    }
    return records;
}

}  // namespace vell
