// SPDX-License-Identifier: MIT
#include "update/UpdateManifest.h"

#include <algorithm>
#include <charconv>
#include <map>

#include "base/Date.h"
#include "base/base64.h"
#include "base/text.h"

namespace vell {

namespace {

using Values = std::map<std::string_view, std::string_view>;

constexpr std::int64_t largestFile = 1LL << 30;
constexpr std::size_t longestName = 100;
constexpr std::size_t longestNotes = 2000;

ManifestText unreadable(std::string fault) {
    return {ManifestText::Kind::Unreadable, {}, std::move(fault)};
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

// Where the line begins that the signature stands in, which is the last one.
std::size_t signatureAt(std::string_view text) {
    const auto end = text.ends_with("\r\n") ? text.size() - 2 : text.ends_with('\n') ? text.size() - 1 : text.size();
    const auto before = text.substr(0, end).rfind('\n');
    const auto begin = before == std::string_view::npos ? 0 : before + 1;
    return text.substr(begin).starts_with("signature=") ? begin : std::string_view::npos;
}

// What is wrong with the lines; nothing otherwise.
std::string readLines(std::string_view text, Values& values) {
    for (std::string_view line : Split(text, "\n")) {
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.empty()) continue;
        const auto equals = line.find('=');
        if (equals == std::string_view::npos || equals == 0) return "a line is no 'key=value'";
        if (std::ranges::any_of(line, isControl)) return "it holds control characters";
        if (values.empty() && line != "format=1") return "it does not begin with 'format=1'";
        if (!values.emplace(line.substr(0, equals), line.substr(equals + 1)).second)
            return "'" + std::string(line.substr(0, equals)) + "' stands there twice";
    }
    return {};
}

// Two devices of a system without such names, and whatever else a name can do, begin otherwise.
bool isArchiveName(std::string_view name) {
    const auto isPlain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '_' ||
               c == '-';
    };
    return name.starts_with("vell-") && name.size() <= longestName && std::ranges::all_of(name, isPlain) &&
           name.find("..") == std::string_view::npos && !name.ends_with('.');
}

bool isSha256(std::string_view text) {
    const auto isDigit = [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
    return text.size() == 64 && std::ranges::all_of(text, isDigit);
}

std::int64_t sizeOf(std::string_view digits) {
    std::int64_t size = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), size);
    const bool isWhole = error == std::errc() && end == digits.data() + digits.size();
    return isWhole && size <= largestFile ? size : 0;
}

std::string_view valueOf(const Values& values, std::string_view key) {
    const auto found = values.find(key);
    return found == values.end() ? std::string_view() : found->second;
}

// The key whose value is none; nothing when all are good.
std::string_view fill(UpdateManifest& manifest, const Values& values) {
    const auto version = ProgramVersion::fromText(valueOf(values, "version"));
    if (!version) return "version";
    manifest.Version = *version;
    manifest.Platform = valueOf(values, "platform");
    if (manifest.Platform.empty()) return "platform";
    manifest.File = valueOf(values, "file");
    if (!isArchiveName(manifest.File)) return "file";
    manifest.Size = sizeOf(valueOf(values, "size"));
    if (manifest.Size <= 0) return "size";
    manifest.Sha256 = valueOf(values, "sha256");
    if (!isSha256(manifest.Sha256)) return "sha256";
    manifest.Date = valueOf(values, "date");
    if (!Date::fromDayName(manifest.Date)) return "date";
    manifest.Notes = valueOf(values, "notes");
    if (manifest.Notes.size() > longestNotes) return "notes";
    if (const auto minimum = valueOf(values, "minimum"); !minimum.empty()) {
        manifest.Minimum = ProgramVersion::fromText(minimum);
        if (!manifest.Minimum) return "minimum";
    }
    const auto nextKey = bytesFromBase64(valueOf(values, "nextkey"));
    if (!nextKey) return "nextkey";
    manifest.NextKey = *nextKey;
    const auto signature = bytesFromBase64(valueOf(values, "signature"));
    if (!signature || signature->empty()) return "signature";
    manifest.Signature = *signature;
    return {};
}

}  // namespace

ManifestText readManifest(std::string_view text) {
    if (text.size() > longestManifest) return unreadable("it is too long");
    const auto begin = text.find_first_not_of(" \r\n");
    if (begin == std::string_view::npos || equalNoCase(text.substr(begin, 9), "No update"))
        return {ManifestText::Kind::NoUpdate, {}, {}};
    const auto signature = signatureAt(text);
    if (signature == std::string_view::npos) return unreadable("it is not signed");
    Values values;
    if (std::string fault = readLines(text, values); !fault.empty()) return unreadable(std::move(fault));
    ManifestText read{ManifestText::Kind::Manifest, {}, {}};
    if (const auto key = fill(read.Manifest, values); !key.empty())
        return unreadable("its '" + std::string(key) + "' is missing or wrong");
    read.Manifest.Text = text;
    read.Manifest.Signed = text.substr(0, signature);
    return read;
}

Fitness fitnessOf(const UpdateManifest& manifest, const ProgramVersion& running, std::string_view platform) {
    if (manifest.Platform != platform) return Fitness::ForOthers;
    if (manifest.Version <= running) return Fitness::NotNewer;
    if (manifest.Minimum && running < *manifest.Minimum) return Fitness::StepsMissing;
    return Fitness::Newer;
}

}  // namespace vell
