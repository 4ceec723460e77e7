// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "ftp/CTimeout.h"

namespace vell {

class FtpErrors;
struct FtpServices;
struct FtpSettings;

// How a connection waits: it lets events happen until a condition holds, the connection is gone, or the allowance of
// seconds runs out. A wait may begin inside another one (Stop is pressed); the outer one then has its allowance anew.
class FtpWait {
  public:
    using Condition = std::function<bool()>;
    enum class Limit { Asking, Silent, None };

    FtpWait(const FtpServices& services, const FtpSettings& settings, FtpErrors& errors);

    // True once `met` holds; false when `gone` does, or when time ran out (error 58). With Limit::Asking the user may
    // grant more time, where the settings allow the question.
    [[nodiscard]] bool until(const Condition& met, const Condition& gone, Limit limit = Limit::Asking);
    // Something arrived: the allowance begins anew.
    void reset() { timeout_.Reset(); }
    void stop() { timeout_.StopTimer(); }

  private:
    class Turn;
    [[nodiscard]] bool AskToKeepWaiting();
    [[nodiscard]] bool ranOut(Limit limit);

    const FtpServices& services_;
    const FtpSettings& settings_;
    FtpErrors& errors_;
    CTimeout timeout_;
    int depth_ = 0;
};

}  // namespace vell
