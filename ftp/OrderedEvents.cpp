// SPDX-License-Identifier: MIT
#include "ftp/OrderedEvents.h"

#include <string>
#include <utility>

#include "base/ScopedFlag.h"

namespace vell {

void OrderedEvents::StateChanged(FtpState state) {
    raise([this, state] { owner_.StateChanged(state); });
}

void OrderedEvents::StatesChanged(FtpState first, FtpState last) {
    for (auto state = static_cast<std::int32_t>(first); state <= static_cast<std::int32_t>(last); ++state)
        due_.push_back([this, state] { owner_.StateChanged(static_cast<FtpState>(state)); });
    tell();
}

void OrderedEvents::DownloadProgress(std::int32_t bytes) {
    raise([this, bytes] { owner_.DownloadProgress(bytes); });
}

void OrderedEvents::UploadProgress(std::int32_t bytes) {
    raise([this, bytes] { owner_.UploadProgress(bytes); });
}

void OrderedEvents::ReplyMessage(std::string_view text) {
    raise([this, message = std::string(text)] { owner_.ReplyMessage(message); });
}

void OrderedEvents::raise(std::function<void()> event) {
    due_.push_back(std::move(event));
    tell();
}

void OrderedEvents::tell() {
    if (raising_) return;
    const ScopedFlag raising(raising_);
    while (!due_.empty()) {
        const auto next = std::move(due_.front());
        due_.pop_front();
        next();
    }
}

}  // namespace vell
