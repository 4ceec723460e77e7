// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace vell {

class AsioEventLoop;

// Makes an event of the system's wish that the program ends: SIGINT (Ctrl-C) and SIGTERM.
class StopSignals {
  public:
    // `stop` is called from the loop's yields, with the signal's number.
    StopSignals(AsioEventLoop& loop, std::function<void(int)> stop);
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

  private:
    struct Watch;
    std::shared_ptr<Watch> watch_;
};

}  // namespace vell
