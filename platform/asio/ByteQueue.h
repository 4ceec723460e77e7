// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// Bytes that have come and wait to be taken, in order. Taking a little at a time costs no more than taking all.
class ByteQueue {
  public:
    void append(std::string_view bytes);
    [[nodiscard]] std::string take(std::size_t most);
    [[nodiscard]] std::size_t size() const { return bytes_.size() - taken_; }

  private:
    std::string bytes_;
    std::size_t taken_ = 0;  // of them, at the front
};

}  // namespace vell
