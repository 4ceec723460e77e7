// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>

namespace vell {

// Storage for bytes on their way from a socket to whoever takes them. Exchanged instead of copied, and used again.
class ByteBlock {
  public:
    static constexpr std::size_t capacity = 256UL * 1024;

    // Room for `capacity` bytes; made when it is first asked for, never filled with zeros.
    [[nodiscard]] char* room() {
        if (!room_) room_ = std::make_unique_for_overwrite<char[]>(capacity);
        return room_.get();
    }
    [[nodiscard]] bool hasRoom() const { return room_ != nullptr; }
    void filled(std::size_t bytes) { size_ = bytes; }
    [[nodiscard]] std::string_view bytes() const { return {room_.get(), size_}; }
    [[nodiscard]] std::size_t size() const { return size_; }

  private:
    std::unique_ptr<char[]> room_;
    std::size_t size_ = 0;
};

}  // namespace vell
