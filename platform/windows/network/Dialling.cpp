// SPDX-License-Identifier: MIT
#include "platform/windows/network/Dialling.h"

#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "platform/EventLoop.h"

namespace vell {

namespace {

constexpr int step = 10;  // milliseconds

// Between the caller and the thread, whichever is the last to go.
struct Outcome {
    std::mutex Guard;
    std::optional<std::uint32_t> Result;
    bool IsWaitedFor = true;
};

}  // namespace

std::uint32_t Dialling::wait(std::function<std::uint32_t()> call, std::uint32_t cancelled,
                             std::function<void(std::uint32_t)> tooLate) {
    const auto outcome = std::make_shared<Outcome>();
    std::thread([outcome, make = std::move(call), undo = std::move(tooLate)] {
        const std::uint32_t result = make();
        const std::lock_guard hold(outcome->Guard);
        outcome->Result = result;
        if (!outcome->IsWaitedFor && undo) undo(result);
    }).detach();
    const std::uint64_t before = cancels_;
    while (true) {
        loop_.WaitForEvents(step);
        const std::lock_guard hold(outcome->Guard);
        if (outcome->Result) return *outcome->Result;
        if (cancels_ == before) continue;
        outcome->IsWaitedFor = false;
        return cancelled;
    }
}

void Dialling::cancel() {
    ++cancels_;
}

}  // namespace vell
