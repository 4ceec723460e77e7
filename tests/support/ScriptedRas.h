// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "platform/RasApi.h"

namespace vell::test {

// A phone book that knows entry records of one size only.
class ScriptedRas : public RasApi {
  public:
    [[nodiscard]] bool isInstalled() const override { return installed; }

    std::uint32_t RasEnumEntries(std::string_view, std::span<std::byte> records, std::uint32_t& bytes,
                                 std::uint32_t& count) override {
        calls.push_back("entries " + std::to_string(sizeIn(records)) + " " + std::to_string(bytes));
        if (sizeIn(records) != entrySize) return InvalidSize;
        count = static_cast<std::uint32_t>(entries.size());
        if (records.size() < entrySize * entries.size()) return BufferTooSmall;
        for (std::size_t i = 0; i < entries.size(); ++i)
            std::memcpy(&records[i * entrySize + 4], entries[i].data(), entries[i].size());
        return Success;
    }
    std::uint32_t RasEnumConnections(std::span<std::byte> records, std::uint32_t& bytes,
                                     std::uint32_t& count) override {
        if (sizeIn(records) != 412 || bytes != 412 * 256) return InvalidSize;
        for (count = 0; count < connections.size(); ++count) {
            const std::uint32_t handle = 100 + count;
            std::memcpy(&records[count * 412 + 4], &handle, sizeof handle);
            std::memcpy(&records[count * 412 + 8], connections[count].data(), connections[count].size());
        }
        return enumResult;
    }
    std::uint32_t RasHangUp(std::uint32_t connection) override {
        calls.push_back("hangup " + std::to_string(connection));
        return connection == refused ? 668 : Success;
    }
    std::uint32_t RasGetErrorString(std::uint32_t code, std::span<char> text) override {
        std::ranges::copy("text " + std::to_string(code), text.begin());
        return text.size() == 512 ? Success : BufferTooSmall;
    }

    bool installed = true;
    std::uint32_t entrySize = 532;
    std::vector<std::string> entries;
    std::vector<std::string> connections;  // with the handles 100, 101 and so on
    std::uint32_t enumResult = Success;
    std::uint32_t refused = 0;
    std::vector<std::string> calls;

  private:
    static std::uint32_t sizeIn(std::span<const std::byte> records) {
        std::uint32_t size = 0;
        std::memcpy(&size, records.data(), sizeof size);
        return size;
    }
};

}  // namespace vell::test
