// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>

#include "ftp/CFtpConnectionEvents.h"

namespace vell {

// Hands events on one after the other: what happens while the owner handles one comes when that handler has returned.
// So a reply that arrives in a handler's yield is never told before the command it answers.
class OrderedEvents final : public CFtpConnectionEvents {
  public:
    explicit OrderedEvents(CFtpConnectionEvents& owner) : owner_(owner) {}

    void StateChanged(FtpState state) override;
    void DownloadProgress(std::int32_t bytes) override;
    void UploadProgress(std::int32_t bytes) override;
    void ReplyMessage(std::string_view text) override;
    // Several states at once, from `first` to `last`: nothing that happens meanwhile comes between them.
    void StatesChanged(FtpState first, FtpState last);

  private:
    void raise(std::function<void()> event);
    void tell();

    CFtpConnectionEvents& owner_;
    std::deque<std::function<void()>> due_;
    bool raising_ = false;
};

}  // namespace vell
