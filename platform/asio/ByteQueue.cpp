// SPDX-License-Identifier: MIT
#include "platform/asio/ByteQueue.h"

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
    taken_ += front.size();
    if (taken_ == bytes_.size()) {
        bytes_.clear();
        taken_ = 0;
    }
    return front;
}

}  // namespace vell
