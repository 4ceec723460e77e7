// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "platform/RasApi.h"

namespace vell {

// The remote access service, whose library is loaded when it is first asked for: not every machine has it. Its handles
// are pointers, its callers' 32 bits; each gets a number of our own.
class WindowsRas : public RasApi {
  public:
    WindowsRas();
    ~WindowsRas() override;
    WindowsRas(const WindowsRas&) = delete;
    WindowsRas& operator=(const WindowsRas&) = delete;

    [[nodiscard]] bool isInstalled() const override;
    std::uint32_t RasEnumEntries(std::string_view phoneBook, std::span<std::byte> records, std::uint32_t& bytes,
                                 std::uint32_t& count) override;
    std::uint32_t RasEnumConnections(std::span<std::byte> records, std::uint32_t& bytes, std::uint32_t& count) override;
    // Returns when the line is free again, as the service wants it: a program that ends before leaves the port broken.
    std::uint32_t RasHangUp(std::uint32_t connection) override;
    std::uint32_t RasGetErrorString(std::uint32_t code, std::span<char> text) override;

  private:
    struct Library;
    // Null when there is none.
    [[nodiscard]] const Library* library() const;
    [[nodiscard]] std::uint32_t numberOf(void* handle);

    mutable std::unique_ptr<Library> library_;
    mutable bool isLoaded_ = false;
    std::map<std::uint32_t, void*> handles_;
};

}  // namespace vell
