// SPDX-License-Identifier: MIT
#include "platform/posix/printing/CupsOptions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "base/text.h"

namespace vell {

namespace {

constexpr int notKnown = 0;
constexpr int sizeOfItsOwn = 256;  // DMPAPER_USER
constexpr int portrait = 1, landscape = 2;
constexpr int wholeSize = 100;

struct Paper {
    std::string_view Name;  // in small letters
    int Number;             // DMPAPER_...
};
// The names are those of PPD files, of CUPS before 1.6 and of PWG 5101.1 (without the size behind it). DEVMODE's B4
// and B5 are the Japanese ones, and so are those of PPD files.
constexpr auto papers =
    std::to_array<Paper>({{"letter", 1},       {"na_letter", 1}, {"lettersmall", 2}, {"tabloid", 3},
                          {"na_ledger", 3},    {"11x17", 3},     {"ledger", 4},      {"legal", 5},
                          {"na_legal", 5},     {"statement", 6}, {"na_invoice", 6},  {"executive", 7},
                          {"na_executive", 7}, {"a3", 8},        {"iso_a3", 8},      {"a4", 9},
                          {"iso_a4", 9},       {"a4small", 10},  {"a5", 11},         {"iso_a5", 11},
                          {"b4", 12},          {"jis_b4", 12},   {"b5", 13},         {"jis_b5", 13},
                          {"folio", 14},       {"quarto", 15},   {"na_quarto", 15},  {"env9", 19},
                          {"na_number-9", 19}, {"env10", 20},    {"com10", 20},      {"na_number-10", 20},
                          {"envdl", 27},       {"dl", 27},       {"iso_dl", 27},     {"envc5", 28},
                          {"iso_c5", 28},      {"envc4", 30},    {"iso_c4", 30},     {"envc6", 31},
                          {"iso_c6", 31},      {"envisob5", 34}, {"isob5", 34},      {"iso_b5", 34},
                          {"envmonarch", 37},  {"monarch", 37},  {"na_monarch", 37}, {"isob4", 42},
                          {"iso_b4", 42},      {"postcard", 43}, {"jpn_hagaki", 43}, {"a2", 66},
                          {"iso_a2", 66},      {"a6", 70},       {"iso_a6", 70},     {"japanesepostcard", 43}});

// What stands in front of the separator, or all.
std::string_view before(std::string_view text, char separator) {
    return text.substr(0, text.find(separator));
}

// "a4,upper" gives "a4", "a4.borderless" the same, "iso_a4_210x297mm" gives "iso_a4".
std::string_view paperName(std::string_view media) {
    media = before(media, ',');
    const auto name = media.find('_');
    return name == std::string_view::npos ? before(media, '.') : media.substr(0, media.find('_', name + 1));
}

int leadingNumber(std::string_view text, int otherwise) {
    int number = otherwise;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

// Takes a word off the front: up to a blank, or, behind the first "='", up to a quotation mark with a blank behind it.
// CUPS masks no quotation mark inside.
std::pair<std::string_view, std::string_view> takeOption(std::string_view& line) {
    const auto keyEnd = std::min(line.find_first_of(" ="), line.size());
    const auto key = line.substr(0, keyEnd);
    line.remove_prefix(keyEnd);
    std::string_view end = " ";
    if (line.starts_with("='")) end = "' ";
    line.remove_prefix(std::min(end.size(), line.size()));
    const auto value = line.substr(0, line.find(end));
    line.remove_prefix(std::min(value.size() + end.size(), line.size()));
    return {key, value};
}

}  // namespace

CupsOptions::CupsOptions(std::string_view options, std::string_view driver) {
    readOptions(before(options, '\n'));
    readDriver(driver);
}

void CupsOptions::readOptions(std::string_view line) {
    while (!line.empty()) {
        const auto [key, value] = takeOption(line);
        if (!value.empty()) values_.emplace(Lower(key), Lower(value));
    }
}

void CupsOptions::readDriver(std::string_view lines) {
    for (const std::string_view line : Split(lines, "\n"))
        for (const std::string_view choice : Split(line, " "))
            if (choice.starts_with('*')) values_.emplace(Lower(before(line, '/')), Lower(choice.substr(1)));
}

std::string CupsOptions::valueOf(std::initializer_list<const char*> keys) const {
    for (const char* key : keys)
        if (const auto entry = values_.find(key); entry != values_.end()) return entry->second;
    return {};
}

int CupsOptions::paperSize() const {
    const std::string media = valueOf({"media", "pagesize"});
    if (media.empty()) return notKnown;
    const auto paper = std::ranges::find(papers, paperName(media), &Paper::Name);
    return paper == papers.end() ? sizeOfItsOwn : paper->Number;
}

// lp(1): 4 and 5 are landscape, 3 and 6 portrait.
int CupsOptions::orientation() const {
    const std::string requested = valueOf({"orientation-requested", "landscape"});
    return requested == "4" || requested == "5" || requested == "true" ? landscape : portrait;
}

// lp(1): 3 draft, 4 normal, 5 best. DEVMODE has a low quality between draft and normal.
int CupsOptions::printQuality() const {
    constexpr int draft = -1, medium = -3, high = -4;
    const std::string quality = valueOf({"print-quality", "cupsprintquality"});
    if (quality == "3" || quality == "draft") return draft;
    if (quality == "4" || quality == "normal") return medium;
    if (quality == "5" || quality == "high") return high;
    return leadingNumber(valueOf({"printer-resolution", "resolution"}), notKnown);
}

// "print-scaling" is no percentage: it says whether a document is fitted into the page.
int CupsOptions::zoom() const {
    return leadingNumber(valueOf({"natural-scaling", "scaling"}), wholeSize);
}

}  // namespace vell
