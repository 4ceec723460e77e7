// SPDX-License-Identifier: MIT
#include "platform/posix/gio/NetworkManagerTalk.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "platform/posix/gio/LinkWatch.h"
#include "platform/posix/gio/NetworkManagerBus.h"

namespace vell {

namespace {

// The link of a profile; empty when it has none.
std::string linkOf(NetworkManagerBus& manager, const std::string& profilePath) {
    const auto links = manager.links();
    const auto link = std::ranges::find(links, profilePath, &NetworkLink::ProfilePath);
    return link == links.end() ? "" : link->Path;
}

// Waits for the answer to a request that may take long. Empty when it was granted, else the reason.
std::string problemOf(LinkWatch& watch, const BusConnection::ReplyPtr& reply) {
    if (!watch.until([&] { return reply->Arrived; })) return watch.whyNot();
    return reply->Value ? "" : NetworkManagerBus::refusal(*reply);
}

// A failed dial must not leave a line behind that comes up later, unnoticed and perhaps paid by the minute.
void dropLink(NetworkManagerBus& manager, const std::string& profilePath) {
    const std::string path = linkOf(manager, profilePath);
    if (path.empty()) return;
    const auto reply = manager.deactivate(path);
    manager.bus().wait(BusConnection::Wait::Quiet, manager.bus().quietEnd(), [&] { return reply->Arrived; });
}

}  // namespace

NetworkManagerTalk::NetworkManagerTalk(EventLoop& loop, Clock& clock, std::string busAddress,
                                       std::chrono::milliseconds patience)
    : loop_(loop), clock_(clock), busAddress_(std::move(busAddress)), patience_(patience) {}

bool NetworkManagerTalk::failed(std::string reason) {
    lastReason_ = std::move(reason);
    return false;
}

std::optional<NetworkState> NetworkManagerTalk::state() {
    lastReason_.clear();
    NetworkManagerBus manager(loop_, clock_);
    if (!manager.open(busAddress_, lastReason_)) return std::nullopt;
    return manager.state(lastReason_);
}

std::vector<NetworkProfile> NetworkManagerTalk::profiles() {
    lastReason_.clear();
    NetworkManagerBus manager(loop_, clock_);
    if (!manager.open(busAddress_, lastReason_)) return {};
    return manager.profiles();
}

std::vector<NetworkLink> NetworkManagerTalk::links() {
    lastReason_.clear();
    NetworkManagerBus manager(loop_, clock_);
    if (!manager.open(busAddress_, lastReason_)) return {};
    return manager.links();
}

bool NetworkManagerTalk::activate(std::string_view profileName) {
    lastReason_.clear();
    NetworkManagerBus manager(loop_, clock_);
    if (!manager.open(busAddress_, lastReason_)) return failed(std::string(unreachable));
    const auto profiles = manager.profiles();
    const auto profile = std::ranges::find_if(
        profiles, [&](const NetworkProfile& one) { return one.IsDialUp && Trim(one.Name) == Trim(profileName); });
    if (profile == profiles.end()) return failed("there is no dial-up profile '" + std::string(profileName) + "'");
    LinkWatch watch(manager, clock_, patience_, cancels_);
    if (bringUp(manager, watch, profile->Path)) return true;
    dropLink(manager, profile->Path);
    return false;
}

bool NetworkManagerTalk::bringUp(NetworkManagerBus& manager, LinkWatch& watch, const std::string& profilePath) {
    std::string link = linkOf(manager, profilePath);
    if (link.empty()) {
        const auto reply = manager.activate(profilePath);
        if (auto problem = problemOf(watch, reply); !problem.empty()) return failed(std::move(problem));
        link = NetworkManagerBus::pathIn(*reply);
    }
    std::uint32_t state = NetworkManagerBus::LinkUnknown;
    const bool settled = watch.until([&] {
        if (watch.isDue()) state = manager.linkState(link);
        return state != NetworkManagerBus::LinkUnknown && state != NetworkManagerBus::LinkActivating;
    });
    if (!settled) return failed(watch.whyNot());
    return state == NetworkManagerBus::LinkActivated || failed("the link did not come up: " + watch.downReason());
}

bool NetworkManagerTalk::deactivate(std::uint32_t linkNumber) {
    lastReason_.clear();
    NetworkManagerBus manager(loop_, clock_);
    if (!manager.open(busAddress_, lastReason_)) return failed(std::string(unreachable));
    const std::string link = NetworkManagerBus::linkPathOf(linkNumber);
    LinkWatch watch(manager, clock_, patience_, cancels_);
    const auto isUp = manager.hasLink(link);
    if (!isUp) return failed(std::string(unreachable));
    if (!*isUp) return true;
    if (auto problem = problemOf(watch, manager.deactivate(link)); !problem.empty()) return failed(std::move(problem));
    return watch.until([&] { return watch.isDue() && manager.hasLink(link) == false; }) || failed(watch.whyNot());
}

bool NetworkManagerTalk::setNetworking(bool on) {
    lastReason_.clear();
    NetworkManagerBus manager(loop_, clock_);
    if (!manager.open(busAddress_, lastReason_)) return failed(std::string(unreachable));
    LinkWatch watch(manager, clock_, patience_, cancels_);
    auto problem = problemOf(watch, manager.enable(on));
    return problem.empty() || failed(std::move(problem));
}

}  // namespace vell
