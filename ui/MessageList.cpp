// SPDX-License-Identifier: MIT
#include "ui/MessageList.h"

#include <utility>

namespace vell {

namespace {
constexpr std::size_t most = 50;
}

template <class Predicate>
void MessageList::drop(Predicate predicate) {
    std::erase_if(messages_, predicate);
    place_ = messages_.empty() ? 0 : messages_.size() - 1;
}

void MessageList::add(Message message) {
    if (message.About == Message::Topic::Run) forgetRun();
    drop([&](const Message& earlier) { return earlier.Text == message.Text; });
    if (messages_.size() == most) messages_.erase(messages_.begin());
    messages_.push_back(std::move(message));
    place_ = messages_.size() - 1;
}

void MessageList::forgetRun() {
    drop([](const Message& message) { return message.About == Message::Topic::Run; });
}

void MessageList::dismiss() {
    if (messages_.empty()) return;
    messages_.erase(messages_.begin() + static_cast<std::ptrdiff_t>(place_));
    if (place_ > 0) --place_;
}

}  // namespace vell
