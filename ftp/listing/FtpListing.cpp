// SPDX-License-Identifier: MIT
#include "ftp/listing/FtpListing.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/text.h"

namespace vell {

namespace {

using Fields = std::vector<std::string_view>;

template <class Number>
std::optional<Number> numberIn(std::string_view text) {
    Number value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end) return std::nullopt;
    return value;
}

// Empty when the line has no such field.
std::string_view field(const Fields& fields, std::size_t index) {
    return index < fields.size() ? fields[index] : std::string_view{};
}

// What fifteen passes leave of a run of blanks, each replacing n blanks by one, for n from 15 down to 2. One blank for
// every run that a listing has; some longer than a few hundred keep more.
std::size_t collapsed(std::size_t run) {
    for (std::size_t n = 15; n >= 2; --n)
        run = run / n + run % n;
    return run;
}

void collapseBlanks(std::string_view line, std::string& result) {
    result.clear();
    while (!line.empty()) {
        const std::size_t word = std::min(line.find(' '), line.size());
        result += line.substr(0, word);
        line.remove_prefix(word);
        const std::size_t run = std::min(line.find_first_not_of(' '), line.size());
        result.append(collapsed(run), ' ');
        line.remove_prefix(run);
    }
}

// "10:30AM", "10:30PM" or "22:30".
std::optional<LocalTime> dosTime(Date day, std::string_view time) {
    const std::string half = Upper(Right(time, 2));
    const bool twelveHours = half == "AM" || half == "PM";
    if (twelveHours) time.remove_suffix(2);
    const auto parts = Split(time, ":");
    if (parts.size() != 2) return std::nullopt;
    auto hour = numberIn<std::int16_t>(parts[0]);
    const auto minute = numberIn<std::int16_t>(parts[1]);
    if (!hour || !minute || *hour < 0 || *hour > (twelveHours ? 12 : 23) || *minute < 0 || *minute > 59)
        return std::nullopt;
    if (twelveHours) hour = static_cast<std::int16_t>(*hour % 12 + (half == "PM" ? 12 : 0));
    return LocalTime{day, *hour, *minute, 0};
}

// Month, day and a year of two or four digits; two digits mean 1930 to 2029.
std::optional<LocalTime> dosDateTime(std::string_view date, std::string_view time) {
    const auto parts = Split(date, "-");
    if (parts.size() != 3) return std::nullopt;
    const auto month = numberIn<std::int16_t>(parts[0]);
    const auto day = numberIn<std::int16_t>(parts[1]);
    const auto year = numberIn<std::int16_t>(parts[2]);
    if (!month || !day || !year) return std::nullopt;
    const int century = parts[2].size() > 2 ? 0 : (*year < 30 ? 2000 : 1900);
    const Date read{*year + century, *month, *day};
    if (!read.isReal()) return std::nullopt;
    return dosTime(read, time);
}

void readDosLine(const Fields& fields, std::string_view line, CFtpFile& file) {
    if (field(fields, 2) == "<DIR>")
        file.IsDirectory = true;
    else
        file.FileSize = numberIn<std::int32_t>(field(fields, 2)).value_or(0);
    if (fields.size() > 3) file.FileName = line.substr(static_cast<std::size_t>(fields[3].data() - line.data()));
    file.LastWriteTime = dosDateTime(field(fields, 0), field(fields, 1)).value_or(LocalTime{});
}

// A target whose last part has no dot is taken for a directory.
bool looksLikeDirectory(std::string_view target) {
    return target.substr(target.rfind('/') + 1).find('.') == std::string_view::npos;
}

void readUnixLine(const Fields& fields, std::string_view line, int currentYear, CFtpFile& file) {
    if (fields[0].starts_with('d')) {
        file.IsDirectory = true;
    } else if (line.starts_with('l')) {
        file.FilePath = field(fields, 10);
        file.IsDirectory = looksLikeDirectory(file.FilePath);
    }
    file.Permissions = fields[0];
    file.owner = fields[2];
    file.Group = fields[3];
    file.FileSize = numberIn<std::int32_t>(fields[4]).value_or(0);
    file.FileName = fields[8];
    file.LastWriteTime.Day = ParseListDate(fields[6], fields[5], fields[7], currentYear).value_or(Date{});
}

}  // namespace

CFtpFiles ParseListing(std::string_view listing, int currentYear) {
    CFtpFiles files;
    std::string line;
    for (const auto raw : Split(listing, "\r\n")) {
        collapseBlanks(raw, line);
        if (line.empty() || equalNoCase(Left(line, 5), "total")) continue;
        const Fields fields = Split(line, " ");
        auto file = std::make_shared<CFtpFile>();
        const bool unixForm = fields.size() > 8;
        if (unixForm)
            readUnixLine(fields, line, currentYear, *file);
        else
            readDosLine(fields, line, *file);
        if (!unixForm || (file->FileName != "." && file->FileName != "..")) files.add(std::move(file));
    }
    return files;
}

std::optional<Date> ParseListDate(std::string_view day, std::string_view month, std::string_view yearOrTime,
                                  int currentYear) {
    constexpr std::array<std::string_view, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const auto* const found = std::ranges::find(months, month);
    const auto dayNumber = numberIn<std::int16_t>(day);
    const bool isTime = yearOrTime.find(':') != std::string_view::npos;
    const std::optional<int> year = isTime ? currentYear : numberIn<std::int16_t>(yearOrTime);
    if (found == months.end() || !dayNumber || !year) return std::nullopt;
    const Date date{*year, static_cast<int>(found - months.begin()) + 1, *dayNumber};
    if (!date.isReal()) return std::nullopt;
    return date;
}

}  // namespace vell
