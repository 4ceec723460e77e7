// SPDX-License-Identifier: MIT
#pragma once

#include "base/errors.h"
#include "service/Failure.h"
#include "service/RunFeedback.h"

namespace vell {

// Logs the errors that a procedure traps, and tells each as the reason why nothing comes.
class FailureLog : public ErrorLog {
  public:
    FailureLog(ErrorLog& log, RunFeedback& feedback) : log_(log), feedback_(feedback) {}

    void LogError(const RunTimeError& error, std::string_view procedure) noexcept override {
        log_.LogError(error, procedure);
        feedback_.failed(failureOf(error));
    }

  private:
    ErrorLog& log_;
    RunFeedback& feedback_;
};

}  // namespace vell
