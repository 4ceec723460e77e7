// SPDX-License-Identifier: MIT
#include "platform/posix/gio/LinkWatch.h"

#include <array>
#include <string_view>

namespace vell {

namespace {

// NMActiveConnectionStateReason, in its order.
constexpr std::array<std::string_view, 15> downReasons{"unknown reason",
                                                       "no reason given",
                                                       "ended by the user",
                                                       "the device was disconnected",
                                                       "the service behind it stopped",
                                                       "the network gave no usable address",
                                                       "the connection attempt timed out",
                                                       "the service behind it took too long to start",
                                                       "the service behind it could not be started",
                                                       "a password or PIN is missing",
                                                       "the login was refused",
                                                       "the profile was deleted",
                                                       "a connection that it needs failed",
                                                       "the device could not be made",
                                                       "the device was removed"};

}  // namespace

LinkWatch::LinkWatch(NetworkManagerBus& manager, const Clock& clock, std::chrono::milliseconds patience,
                     const std::uint64_t& cancels)
    : manager_(manager),
      clock_(clock),
      end_(clock.Steady() + patience),
      nextLook_(clock.Steady()),
      cancels_(cancels),
      cancelsAtStart_(cancels) {
    manager_.watch([this] { lost_ = true; },
                   [this](const char*, const char* member, GVariant* arguments) { hear(member, arguments); });
}

void LinkWatch::hear(const char* member, GVariant* arguments) {
    heard_ = true;
    if (std::string_view(member) != "StateChanged" || !g_variant_is_of_type(arguments, G_VARIANT_TYPE("(uu)"))) return;
    guint32 state = 0;
    guint32 reason = 0;
    g_variant_get(arguments, "(uu)", &state, &reason);
    if (state == NetworkManagerBus::LinkDeactivated) downReason_ = reason;
}

bool LinkWatch::until(const std::function<bool()>& done) {
    bool reached = false;
    manager_.bus().wait(BusConnection::Wait::Yielding, end_, [&] {
        if (isLost() || isCancelled()) return true;
        reached = done();
        return reached;
    });
    return reached;
}

bool LinkWatch::isDue() {
    constexpr std::chrono::seconds between{1};
    if (!heard_ && clock_.Steady() < nextLook_) return false;
    heard_ = false;
    nextLook_ = clock_.Steady() + between;
    return true;
}

std::string LinkWatch::whyNot() const {
    if (isLost()) return "NetworkManager went away";
    if (isCancelled()) return "stopped by the user";
    return "NetworkManager was waited for too long";
}

std::string LinkWatch::downReason() const {
    return std::string(downReasons.at(downReason_ < downReasons.size() ? downReason_ : 0));
}

}  // namespace vell
