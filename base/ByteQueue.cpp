// SPDX-License-Identifier: MIT
#include "base/ByteQueue.h"

#include <algorithm>
#include <utility>

namespace vell {

void ByteQueue::append(std::string_view bytes) {
    if (taken_ > bytes_.size() / 2) {
        bytes_.erase(0, taken_);
        taken_ = 0;
    }
    bytes_.append(bytes);
}

std::string ByteQueue::take(std::size_t most) {
    if (taken_ == 0 && most >= bytes_.size()) return std::exchange(bytes_, {});
    std::string front = bytes_.substr(taken_, most);
    drop(front.size());
    return front;
}

std::size_t ByteQueue::take(std::span<char> target) {
    const std::size_t count = std::min(target.size(), size());
    std::copy_n(bytes_.data() + taken_, count, target.data());
    drop(count);
    return count;
}

void ByteQueue::drop(std::size_t count) {
    taken_ += count;
    if (taken_ < bytes_.size()) return;
    bytes_.clear();
    taken_ = 0;
}

}  // namespace vell
