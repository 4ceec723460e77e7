// SPDX-License-Identifier: MIT
#pragma once

#include "platform/RasApi.h"

namespace vell {

class NetworkManager;

// NetworkManager's dial-up profiles as a phone book. Handles are the numbers of its links plus one.
class PosixRas : public RasApi {
  public:
    explicit PosixRas(NetworkManager& manager) : manager_(manager) {}

    [[nodiscard]] bool isInstalled() const override;
    std::uint32_t RasEnumEntries(std::string_view phoneBook, std::span<std::byte> records, std::uint32_t& bytes,
                                 std::uint32_t& count) override;
    std::uint32_t RasEnumConnections(std::span<std::byte> records, std::uint32_t& bytes, std::uint32_t& count) override;
    std::uint32_t RasHangUp(std::uint32_t connection) override;
    std::uint32_t RasGetErrorString(std::uint32_t code, std::span<char> text) override;

  private:
    NetworkManager& manager_;
};

}  // namespace vell
