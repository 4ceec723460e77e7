// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/ConnectionApi.h"

namespace vell::test {

// Answers as it is told and writes down what it was asked to change.
class ScriptedConnection : public ConnectionApi {
  public:
    bool InternetGetConnectedState(std::uint32_t& out) override {
        if (onState) onState();
        out = flags;
        return connected;
    }
    bool SetConnectedState(std::uint32_t state, std::uint32_t how) override { return note("state", {state, how}); }
    bool InternetGoOnline(std::string_view url, std::uintptr_t window) override { return note(url, {window}); }
    std::uint32_t InternetDial(std::uintptr_t window, std::string_view name, std::uint32_t how,
                               std::uint32_t& connection) override {
        connection = 77;
        return note("dial " + std::string(name), {window, how}) ? 0 : 668;
    }
    std::uint32_t InternetHangUp(std::uint32_t connection) override { return note("hangup", {connection}) ? 0 : 668; }
    bool InternetAutodial(std::uint32_t how, std::uintptr_t window) override { return note("auto", {how, window}); }
    bool InternetAutodialHangup() override { return note("autodial hangup", {}); }
    void CancelWaits() override {}
    [[nodiscard]] std::int32_t LastError() const override { return error; }
    [[nodiscard]] std::string LastReason() const override { return reason; }
    [[nodiscard]] std::string SystemErrorText(std::int32_t) const override { return "system's text\r\n"; }
    [[nodiscard]] std::string InternetErrorText(std::int32_t) const override { return "library's text\r\n"; }

    bool connected = false;
    std::uint32_t flags = 0;
    std::function<void()> onState;
    bool works = true;  // all that changes something
    std::int32_t error = 0;
    std::string reason;
    std::vector<std::string> calls;

  private:
    bool note(std::string_view call, const std::vector<std::uintptr_t>& numbers) {
        calls.emplace_back(call);
        for (const auto number : numbers)
            calls.back() += " " + std::to_string(number);
        return works;
    }
};

}  // namespace vell::test
