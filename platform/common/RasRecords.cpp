// SPDX-License-Identifier: MIT
#include "platform/common/RasRecords.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace vell {

namespace {

// RASENTRYNAME in its three generations, and RASCONN.
constexpr std::array<RasLayout, 3> entryLayouts{{{532, 4, 257}, {264, 4, 257}, {28, 4, 21}}};
constexpr std::array<RasLayout, 1> connectionLayouts{{{412, 8, 257}}};
constexpr std::size_t handleOffset = 4;

const RasLayout* layoutOf(std::span<const std::byte> records, std::span<const RasLayout> known) {
    std::uint32_t size = 0;
    if (records.size() < sizeof size) return nullptr;
    std::memcpy(&size, records.data(), sizeof size);
    const auto found = std::ranges::find(known, size, &RasLayout::RecordSize);
    return found == known.end() ? nullptr : &*found;
}

void put(std::span<std::byte> record, const RasLayout& layout, const RasNamed& item) {
    std::ranges::fill(record, std::byte{0});
    std::memcpy(record.data(), &layout.RecordSize, sizeof layout.RecordSize);
    if (layout.NameOffset > handleOffset) std::memcpy(record.data() + handleOffset, &item.Handle, sizeof item.Handle);
    const std::string_view name = std::string_view(item.Name).substr(0, layout.NameLength - 1);
    std::ranges::transform(name, record.begin() + static_cast<std::ptrdiff_t>(layout.NameOffset),
                           [](char c) { return static_cast<std::byte>(c); });
}

}  // namespace

const RasLayout* rasEntryLayout(std::span<const std::byte> records) {
    return layoutOf(records, entryLayouts);
}

const RasLayout* rasConnectionLayout(std::span<const std::byte> records) {
    return layoutOf(records, connectionLayouts);
}

std::uint32_t writeRasRecords(const std::vector<RasNamed>& items, std::span<std::byte> records, const RasLayout& layout,
                              std::uint32_t& bytes, std::uint32_t& count) {
    count = static_cast<std::uint32_t>(items.size());
    bytes = count * layout.RecordSize;
    if (bytes > records.size()) return RasApi::BufferTooSmall;
    for (std::size_t i = 0; i < items.size(); ++i)
        put(records.subspan(i * layout.RecordSize, layout.RecordSize), layout, items[i]);
    return RasApi::Success;
}

}  // namespace vell
