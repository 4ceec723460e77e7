// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/errors.h"

namespace asio {
class io_context;
}

namespace vell {

// Gives a host's numeric IPv4 addresses, the best first, or raises RunTimeError. Blocks; called on a thread of its own.
using HostResolver = std::function<std::vector<std::string>(const std::string& host)>;
[[nodiscard]] std::vector<std::string> resolveBySystem(const std::string& host);

struct HostAddresses {
    std::vector<std::string> Numeric;
    std::optional<RunTimeError> Problem;
};

// Looks up a host's name. The system's resolver cannot be interrupted, so it works on a detached thread: whoever loses
// interest destroys the lookup and goes on, or ends the program, while the thread is still waiting for its answer.
class HostLookup {
  public:
    using Done = std::function<void(const HostAddresses&)>;

    // `done` is called once, from the context; never after the lookup is destroyed.
    HostLookup(asio::io_context& context, std::string host, HostResolver resolver, Done done);
    ~HostLookup();
    HostLookup(const HostLookup&) = delete;
    HostLookup& operator=(const HostLookup&) = delete;

  private:
    struct Shared;
    std::shared_ptr<Shared> shared_;
};

}  // namespace vell
