// SPDX-License-Identifier: MIT
#include "ui/reading/ClippingForms.h"

#include "base/text.h"
#include "ftp/listing/CFtpFile.h"
#include "store/ClippingName.h"
#include "ui/dayOf.h"
#include "ui/list/RowOrder.h"

namespace vell {

namespace {

constexpr std::string_view blanks = " \t\r\n\f";

std::string_view stripped(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// Takes the first line off, without its end.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

std::string formPath(const CFtpFile& clipping, std::size_t form, std::string_view ending) {
    const std::string& name = clipping.FileName;
    if (name.ends_with(".PDF")) return clipping.FilePath + clippingForms(name).at(form);
    return clipping.FilePath + name.substr(0, name.rfind('.')) + std::string(ending);
}

// "Page 12", in whatever language: one word and the number.
bool saysPage(std::string_view line, std::string_view page) {
    const std::size_t blank = line.find_first_of(blanks);
    return !page.empty() && blank != std::string_view::npos && line.substr(blank + 1) == page;
}

bool repeats(std::string_view line, const ClippingHeading& heading) {
    const std::string key = lookUpKey(line);
    return key == lookUpKey(heading.Newspaper) || key == lookUpKey(heading.Title) || saysPage(line, heading.Page);
}

}  // namespace

std::string textPath(const CFtpFile& clipping) {
    return formPath(clipping, 1, ".TXT");
}

std::string companionPath(const CFtpFile& clipping) {
    return formPath(clipping, 2, ".MT");
}

std::string companionField(std::string_view companion, std::string_view key) {
    while (!companion.empty()) {
        const std::string_view line = takeLine(companion);
        const std::size_t colon = line.find(':');
        if (colon != std::string_view::npos && equalNoCase(stripped(line.substr(0, colon)), key))
            return std::string(stripped(line.substr(colon + 1)));
    }
    return {};
}

ClippingHeading headingOf(const CFtpFile& clipping, std::string_view companion) {
    const auto first = [&](std::string_view key, std::string_view otherwise) {
        std::string value = companionField(companion, key);
        return value.empty() ? std::string(stripped(otherwise)) : value;
    };
    const auto day = dayOf(clipping);
    return {first("TITLE", clipping.Description), first("NEWSPAPER", clipping.NewspaperName), first("PAGE", ""),
            first("DATE", day ? day->dayName() : std::string())};
}

std::string_view withoutHeading(std::string_view text, const ClippingHeading& heading) {
    std::string_view rest = text;
    while (!rest.empty()) {
        std::string_view behind = rest;
        const std::string_view line = stripped(takeLine(behind));
        if (!line.empty() && !repeats(line, heading)) return rest;
        rest = behind;
    }
    return text;  // all of it: better twice than not at all
}

}  // namespace vell
