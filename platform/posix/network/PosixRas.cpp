// SPDX-License-Identifier: MIT
#include "platform/posix/network/PosixRas.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "platform/posix/network/NetworkManager.h"

namespace vell {

namespace {

constexpr std::uint32_t cannotOpenPhoneBook = 621;
constexpr std::uint32_t noConnection = 668;
constexpr std::uint32_t invalidParameter = 87;

// Where a name stands in a record, and how long its field is.
struct Layout {
    std::uint32_t RecordSize;
    std::size_t NameOffset;
    std::size_t NameLength;  // the closing NUL included
};
// RASENTRYNAME in its three generations, and RASCONN.
constexpr std::array<Layout, 3> entryLayouts{{{532, 4, 257}, {264, 4, 257}, {28, 4, 21}}};
constexpr std::array<Layout, 1> connectionLayouts{{{412, 8, 257}}};
constexpr std::size_t handleOffset = 4;

struct ErrorText {
    std::uint32_t Code;
    std::string_view Text;
};
constexpr std::array<ErrorText, 4> errorTexts{{
    {RasApi::BufferTooSmall, "The buffer is too small."},
    {cannotOpenPhoneBook, "The phone book could not be opened."},
    {RasApi::InvalidSize, "The structure size is incorrect."},
    {noConnection, "The connection dropped."},
}};

// The layout whose size stands at the start of the first record; null when there is none such.
const Layout* layoutOf(std::span<const std::byte> records, std::span<const Layout> known) {
    std::uint32_t size = 0;
    if (records.size() < sizeof size) return nullptr;
    std::memcpy(&size, records.data(), sizeof size);
    const auto found = std::ranges::find(known, size, &Layout::RecordSize);
    return found == known.end() ? nullptr : &*found;
}

void put(std::span<std::byte> record, const Layout& layout, std::string_view name) {
    std::ranges::fill(record, std::byte{0});
    std::memcpy(record.data(), &layout.RecordSize, sizeof layout.RecordSize);
    name = name.substr(0, layout.NameLength - 1);
    std::ranges::transform(name, record.begin() + static_cast<std::ptrdiff_t>(layout.NameOffset),
                           [](char c) { return static_cast<std::byte>(c); });
}

// Tells how much is needed, and writes the names when there is room for all of them.
template <class Item>
std::uint32_t enumerate(const std::vector<Item>& items, std::span<std::byte> records, const Layout& layout,
                        std::uint32_t& bytes, std::uint32_t& count) {
    count = static_cast<std::uint32_t>(items.size());
    bytes = count * layout.RecordSize;
    if (bytes > records.size()) return RasApi::BufferTooSmall;
    for (std::size_t i = 0; i < items.size(); ++i)
        put(records.subspan(i * layout.RecordSize, layout.RecordSize), layout, items[i].Name);
    return RasApi::Success;
}

}  // namespace

bool PosixRas::isInstalled() const {
    return manager_.state().has_value();
}

std::uint32_t PosixRas::RasEnumEntries(std::string_view phoneBook, std::span<std::byte> records, std::uint32_t& bytes,
                                       std::uint32_t& count) {
    const Layout* layout = layoutOf(records, entryLayouts);
    if (layout == nullptr) return InvalidSize;
    if (!phoneBook.empty()) return cannotOpenPhoneBook;
    auto profiles = manager_.profiles();
    std::erase_if(profiles, [](const NetworkProfile& one) { return !one.IsDialUp; });
    return enumerate(profiles, records, *layout, bytes, count);
}

std::uint32_t PosixRas::RasEnumConnections(std::span<std::byte> records, std::uint32_t& bytes, std::uint32_t& count) {
    const Layout* layout = layoutOf(records, connectionLayouts);
    if (layout == nullptr) return InvalidSize;
    auto links = manager_.links();
    std::erase_if(links, [](const NetworkLink& one) { return !one.IsDialUp; });
    const std::uint32_t result = enumerate(links, records, *layout, bytes, count);
    for (std::size_t i = 0; i < links.size() && result == Success; ++i) {
        const std::uint32_t handle = links[i].Number + 1;
        std::memcpy(records.data() + i * layout->RecordSize + handleOffset, &handle, sizeof handle);
    }
    return result;
}

std::uint32_t PosixRas::RasHangUp(std::uint32_t connection) {
    if (connection == 0) return Success;  // no link has this handle
    return manager_.deactivate(connection - 1) ? Success : noConnection;
}

std::uint32_t PosixRas::RasGetErrorString(std::uint32_t code, std::span<char> text) {
    const auto known = std::ranges::find(errorTexts, code, &ErrorText::Code);
    if (known == errorTexts.end()) return invalidParameter;
    if (text.size() <= known->Text.size()) return BufferTooSmall;
    std::ranges::copy(known->Text, text.begin());
    text[known->Text.size()] = '\0';
    return Success;
}

}  // namespace vell
