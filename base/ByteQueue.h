// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace vell {

// Bytes that have come and wait to be taken, in order. Taking a little at a time costs no more than taking all.
class ByteQueue {
  public:
    void append(std::string_view bytes);
    [[nodiscard]] std::string take(std::size_t most);
    // The same into memory that is there; gives how many came.
    [[nodiscard]] std::size_t take(std::span<char> target);
    // Keeps the memory.
    void clear() { drop(size()); }
    [[nodiscard]] bool isEmpty() const { return size() == 0; }
    [[nodiscard]] std::size_t size() const { return bytes_.size() - taken_; }

  private:
    void drop(std::size_t count);

    std::string bytes_;
    std::size_t taken_ = 0;  // of them, at the front
};

}  // namespace vell
