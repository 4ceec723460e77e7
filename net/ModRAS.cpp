// SPDX-License-Identifier: MIT
#include "net/ModRAS.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <span>

#include "base/text.h"
#include "platform/RasApi.h"

namespace vell {

namespace {

// The three generations of the entry-name record (RASENTRYNAME), newest first.
constexpr std::array<std::uint32_t, 3> entrySizes{532, 264, 28};
constexpr std::uint32_t oldestEntrySize = 28;
constexpr std::size_t entryNameOffset = 4;

// The active-connection record (RASCONN).
constexpr std::uint32_t connectionSize = 412;
constexpr std::size_t mostConnections = 256;
constexpr std::size_t handleOffset = 4;
constexpr std::size_t connectionNameOffset = 8;

constexpr std::size_t longName = 257;
constexpr std::size_t shortName = 21;

using Bytes = std::vector<std::byte>;

Bytes recordsOf(std::uint32_t size, std::size_t count) {
    Bytes records(size * count);
    std::memcpy(records.data(), &size, sizeof size);
    return records;
}

std::string textAt(const Bytes& records, std::size_t offset, std::size_t length) {
    const std::string field(reinterpret_cast<const char*>(records.data()) + offset, length);
    return field.substr(0, field.find('\0'));
}

}  // namespace

ModRAS::ModRAS(RasApi& ras, ErrorLog& log) : ras_(ras), log_(log) {}

std::int32_t ModRAS::VBRasGetAllEntries(std::string_view phoneBook, std::vector<std::string>& names) {
    names = trap(log_, "VBRasGetAllEntries()", std::vector<std::string>{}, [&] { return allEntries(phoneBook); });
    return static_cast<std::int32_t>(names.size());
}

std::vector<std::string> ModRAS::allEntries(std::string_view phoneBook) {
    if (!ras_.isInstalled()) return {};
    std::uint32_t size = 0;
    std::uint32_t count = 0;
    for (const std::uint32_t candidate : entrySizes) {
        size = candidate;
        count = 0;
        Bytes one = recordsOf(size, 1);
        std::uint32_t bytes = size;
        if (ras_.RasEnumEntries(phoneBook, one, bytes, count) != RasApi::InvalidSize) break;
    }
    if (count == 0) return {};

    Bytes records = recordsOf(size, count);
    auto bytes = static_cast<std::uint32_t>(records.size());
    std::uint32_t found = 0;
    if (ras_.RasEnumEntries(phoneBook, records, bytes, found) != RasApi::Success) return {};
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::min(found, count); ++i)
        names.push_back(textAt(records, i * size + entryNameOffset, size == oldestEntrySize ? shortName : longName));
    return names;
}

std::vector<std::string> ModRAS::GetDialUpConnections() {
    return trap(log_, "GetDialUpConnections()", std::vector<std::string>{}, [&] {
        std::vector<std::string> names;
        for (auto& connection : connections().value_or(std::vector<Connection>{}))
            names.push_back(std::move(connection.Name));
        return names;
    });
}

std::optional<std::vector<ModRAS::Connection>> ModRAS::connections() {
    if (!ras_.isInstalled()) return std::nullopt;
    Bytes records = recordsOf(connectionSize, mostConnections);
    auto bytes = static_cast<std::uint32_t>(records.size());
    std::uint32_t count = 0;
    if (ras_.RasEnumConnections(records, bytes, count) != RasApi::Success) return std::nullopt;
    std::vector<Connection> found;
    for (std::size_t i = 0; i < std::min<std::size_t>(count, mostConnections); ++i) {
        const std::size_t at = i * connectionSize;
        std::uint32_t handle = 0;
        std::memcpy(&handle, records.data() + at + handleOffset, sizeof handle);
        found.push_back({handle, textAt(records, at + connectionNameOffset, longName)});
    }
    return found;
}

bool ModRAS::hangUp(std::string_view name) {
    return hangUpWhere("hangUp()", [&](const Connection& one) { return Trim(one.Name) == Trim(name); });
}

bool ModRAS::hangUpAll() {
    return hangUpWhere("hangUpAll()", [](const Connection&) { return true; });
}

bool ModRAS::hangUpWhere(std::string_view procedure, const std::function<bool(const Connection&)>& wanted) {
    return trap(log_, procedure, false, [&] {
        const auto found = connections();
        if (!found) return false;
        std::uint32_t last = RasApi::Success;
        for (const Connection& one : *found)
            if (wanted(one)) last = ras_.RasHangUp(one.Handle);
        return last == RasApi::Success;
    });
}

std::string ModRAS::errorText(std::uint32_t code) {
    constexpr std::uint32_t firstCode = 601;
    constexpr std::size_t longest = 512;
    return trap(log_, "errorText()", std::string{}, [&]() -> std::string {
        if (code < firstCode || !ras_.isInstalled()) return {};
        std::array<char, longest> text{};
        if (ras_.RasGetErrorString(code, text) != RasApi::Success) return {};
        return {text.begin(), std::find(text.begin(), text.end(), '\0')};
    });
}

}  // namespace vell
