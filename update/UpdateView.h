// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vell {

struct UpdateManifest;

// What an update has to do with the program around it. Texts in code page 1253.
class UpdateView {
  public:
    virtual ~UpdateView() = default;

    // Somebody is there to answer a question.
    [[nodiscard]] virtual bool mayAsk() const = 0;
    // The user has asked to stop, or the program ends.
    [[nodiscard]] virtual bool isStopped() const = 0;
    // A message that stays until the user has seen it, and holds nothing up.
    virtual void tell(std::string_view text) = 0;
    // The archive is being fetched.
    virtual void fetchBegins(const UpdateManifest& manifest) = 0;
    // Bytes of it so far.
    virtual void fetched(std::int32_t bytes) = 0;
    virtual void fetchEnds() = 0;
    // Why the last exchange with the service has failed, as a sentence; empty when it has not.
    [[nodiscard]] virtual std::string exchangeFault() const = 0;
};

}  // namespace vell
