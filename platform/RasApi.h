// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vell {

// The remote access service with its raw records, as rasapi32 has them: which sizes are tried is the caller's matter.
// Results are the service's error numbers, 0 for success.
class RasApi {
  public:
    static constexpr std::uint32_t Success = 0;
    static constexpr std::uint32_t BufferTooSmall = 603;
    static constexpr std::uint32_t InvalidSize = 632;

    virtual ~RasApi() = default;

    // False when the machine has no such service; every call then fails.
    [[nodiscard]] virtual bool isInstalled() const = 0;
    // Entry-name records. The size of one stands in the first four bytes of the first. `bytes` comes back as what is
    // needed, `count` as the number of entries. An empty phone book name means the default one.
    virtual std::uint32_t RasEnumEntries(std::string_view phoneBook, std::span<std::byte> records, std::uint32_t& bytes,
                                         std::uint32_t& count) = 0;
    // Active-connection records: size (4 bytes), handle (4 bytes), entry name.
    virtual std::uint32_t RasEnumConnections(std::span<std::byte> records, std::uint32_t& bytes,
                                             std::uint32_t& count) = 0;
    virtual std::uint32_t RasHangUp(std::uint32_t connection) = 0;
    // Fills the buffer with a text ended by NUL.
    virtual std::uint32_t RasGetErrorString(std::uint32_t code, std::span<char> text) = 0;
};

}  // namespace vell
