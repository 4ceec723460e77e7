// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/RasApi.h"

namespace vell {

// The records in which RasApi tells names, as callers of every age lay them out.

struct RasNamed {
    std::string Name;
    std::uint32_t Handle = 0;  // of a connection; entries have none
};

// Where a name stands in a record, and how long its field is.
struct RasLayout {
    std::uint32_t RecordSize;
    std::size_t NameOffset;
    std::size_t NameLength;  // the closing NUL included
};
// The layout whose size stands at the start of the first record; null when there is none such.
[[nodiscard]] const RasLayout* rasEntryLayout(std::span<const std::byte> records);
[[nodiscard]] const RasLayout* rasConnectionLayout(std::span<const std::byte> records);

// Tells how much is needed, and writes the items when there is room for all of them.
std::uint32_t writeRasRecords(const std::vector<RasNamed>& items, std::span<std::byte> records, const RasLayout& layout,
                              std::uint32_t& bytes, std::uint32_t& count);

}  // namespace vell
