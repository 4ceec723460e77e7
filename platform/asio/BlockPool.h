// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "platform/ByteBlock.h"

namespace vell {

// Storage that one connection leaves to the next: FTP makes one for every file.
class BlockPool {
  public:
    [[nodiscard]] ByteBlock take() {
        if (spare_.empty()) return {};
        ByteBlock block = std::move(spare_.back());
        spare_.pop_back();
        return block;
    }
    void give(ByteBlock block) {
        block.filled(0);
        if (block.hasRoom() && spare_.size() < most) spare_.push_back(std::move(block));
    }

  private:
    static constexpr std::size_t most = 4;  // two connections
    std::vector<ByteBlock> spare_;
};

}  // namespace vell
