// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "ui/Message.h"

namespace vell {

// The messages that nobody has dismissed yet, and which of them is shown: the newest, unless the user turns back.
class MessageList {
  public:
    // One that says the same as an earlier one takes its place, as one about a run takes the place of the last run's.
    // The oldest ones go when there are too many.
    void add(Message message);
    // What the last run had to tell is out of date.
    void forgetRun();

    // Null when there is none.
    [[nodiscard]] const Message* shown() const { return messages_.empty() ? nullptr : &messages_[place_]; }
    // How many there are, and which of them is shown, from 1 for the oldest on.
    [[nodiscard]] std::size_t count() const { return messages_.size(); }
    [[nodiscard]] std::size_t number() const { return messages_.empty() ? 0 : place_ + 1; }
    [[nodiscard]] bool hasOlder() const { return number() > 1; }
    [[nodiscard]] bool hasNewer() const { return number() < count(); }

    void showOlder() { place_ -= hasOlder() ? 1 : 0; }
    void showNewer() { place_ += hasNewer() ? 1 : 0; }
    // The one that is shown goes, and the one before it is shown.
    void dismiss();

  private:
    template <class Predicate>
    void drop(Predicate predicate);

    std::vector<Message> messages_;  // the oldest first
    std::size_t place_ = 0;
};

}  // namespace vell
