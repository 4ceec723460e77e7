// SPDX-License-Identifier: MIT
#include "platform/posix/network/PosixRas.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "platform/common/RasRecords.h"
#include "platform/posix/network/NetworkManager.h"

namespace vell {

namespace {

constexpr std::uint32_t cannotOpenPhoneBook = 621;
constexpr std::uint32_t noConnection = 668;
constexpr std::uint32_t invalidParameter = 87;

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

// Those of one kind, the dial-up ones alone.
template <class Item, class Name>
std::vector<RasNamed> dialUp(const std::vector<Item>& items, Name&& name) {
    std::vector<RasNamed> found;
    for (const Item& one : items)
        if (one.IsDialUp) found.push_back(name(one));
    return found;
}

}  // namespace

bool PosixRas::isInstalled() const {
    return manager_.state().has_value();
}

std::uint32_t PosixRas::RasEnumEntries(std::string_view phoneBook, std::span<std::byte> records, std::uint32_t& bytes,
                                       std::uint32_t& count) {
    const RasLayout* layout = rasEntryLayout(records);
    if (layout == nullptr) return InvalidSize;
    if (!phoneBook.empty()) return cannotOpenPhoneBook;
    const auto profiles = dialUp(manager_.profiles(), [](const NetworkProfile& one) { return RasNamed{one.Name}; });
    return writeRasRecords(profiles, records, *layout, bytes, count);
}

std::uint32_t PosixRas::RasEnumConnections(std::span<std::byte> records, std::uint32_t& bytes, std::uint32_t& count) {
    const RasLayout* layout = rasConnectionLayout(records);
    if (layout == nullptr) return InvalidSize;
    const auto links = dialUp(manager_.links(), [](const NetworkLink& one) {
        return RasNamed{one.Name, one.Number + 1};
    });
    return writeRasRecords(links, records, *layout, bytes, count);
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
