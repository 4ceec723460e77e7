// SPDX-License-Identifier: MIT
#include "platform/posix/files/ini/IniText.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace vell {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view withoutQuotes(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string nameKey(std::string_view name) {
    return Upper(trimmed(name));
}

}  // namespace

IniText::IniText(std::string bytes) : bytes_(std::move(bytes)) {
    parse();
}

std::optional<std::string_view> IniText::value(std::string_view section, std::string_view key) const {
    const auto* found = find(section);
    if (found == nullptr) return std::nullopt;
    const auto entry = found->Keys.find(nameKey(key));
    if (entry == found->Keys.end()) return std::nullopt;
    return withoutQuotes(trimmed(textOf(entry->second.Value)));
}

void IniText::set(std::string_view section, std::string_view key, std::string_view value) {
    const auto line = std::string(key) + '=' + std::string(value);
    if (const auto* found = find(section); found == nullptr) {
        insertLine(bytes_.size(), '[' + std::string(section) + ']');
        insertLine(bytes_.size(), line);
    } else if (const auto entry = found->Keys.find(nameKey(key)); entry == found->Keys.end()) {
        insertLine(found->UsedEnd, line);
    } else {
        const auto old = entry->second.Value;
        bytes_.replace(old.Begin, old.End - old.Begin, value);
    }
    parse();
}

void IniText::removeKey(std::string_view section, std::string_view key) {
    // A key that stands there twice must not come back with its second value.
    for (const auto* found = find(section); found != nullptr; found = find(section)) {
        const auto entry = found->Keys.find(nameKey(key));
        if (entry == found->Keys.end()) return;
        const auto line = entry->second.Line;
        bytes_.erase(line.Begin, line.End - line.Begin);
        parse();
    }
}

void IniText::removeSection(std::string_view section) {
    for (const auto* found = find(section); found != nullptr; found = find(section)) {
        const auto all = found->All;
        bytes_.erase(all.Begin, all.End - all.Begin);
        parse();
    }
}

void IniText::parse() {
    sections_.clear();
    Section* current = nullptr;
    Section ignored;  // before the first header, and under the header of a section that was there before
    std::size_t begin = bytes_.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    while (begin < bytes_.size()) {
        const auto lineFeed = bytes_.find('\n', begin);
        const Range line{begin, lineFeed == std::string::npos ? bytes_.size() : lineFeed + 1};
        Range content{begin, lineFeed == std::string::npos ? bytes_.size() : lineFeed};
        if (content.End > content.Begin && bytes_[content.End - 1] == '\r') --content.End;
        const auto text = trimmed(textOf(content));
        begin = line.End;

        if (text.starts_with('[') && text.find(']') != std::string_view::npos)
            current = parseHeader(line, text);
        else if (!text.starts_with(';'))
            parseKey(current != nullptr ? *current : ignored, line, content);
        if (current == nullptr) continue;
        current->All.End = line.End;
        if (!text.empty()) current->UsedEnd = line.End;
    }
}

// Null when there was a section of that name before.
IniText::Section* IniText::parseHeader(Range line, std::string_view content) {
    const auto name = nameKey(content.substr(1, content.find(']') - 1));
    const auto [section, isNew] = sections_.try_emplace(name);
    if (!isNew) return nullptr;
    section->second.All = line;
    return &section->second;
}

void IniText::parseKey(Section& section, Range line, Range content) {
    const auto text = textOf(content);
    const auto equals = text.find('=');
    if (equals == std::string_view::npos) return;
    const auto value = std::min(text.find_first_not_of(blanks, equals + 1), text.size());
    section.Keys.try_emplace(nameKey(text.substr(0, equals)), Key{line, {content.Begin + value, content.End}});
}

const IniText::Section* IniText::find(std::string_view section) const {
    const auto found = sections_.find(nameKey(section));
    return found == sections_.end() ? nullptr : &found->second;
}

std::string_view IniText::textOf(Range range) const {
    return std::string_view(bytes_).substr(range.Begin, range.End - range.Begin);
}

// As the first line has it.
std::string IniText::lineEnd() const {
    const auto lineFeed = bytes_.find('\n');
    return lineFeed != std::string::npos && (lineFeed == 0 || bytes_[lineFeed - 1] != '\r') ? "\n" : "\r\n";
}

void IniText::insertLine(std::size_t at, std::string_view line) {
    const auto end = lineEnd();
    std::string whole(line);
    whole += end;
    // The line before may be the file's last, without a line end of its own.
    if (at > 0 && bytes_[at - 1] != '\n' && bytes_ != byteOrderMark) whole.insert(0, end);
    bytes_.insert(at, whole);
}

}  // namespace vell
