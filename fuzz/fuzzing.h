// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

// The entry that libFuzzer and replay.cpp call.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace vell::fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// A promise of the code under test; a broken one is a finding.
inline void must(bool holds) {
    if (!holds) std::abort();
}

}  // namespace vell::fuzz
