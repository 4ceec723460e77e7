// SPDX-License-Identifier: MIT
#include "platform/posix/gio/NetworkManagerBus.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "base/text.h"

namespace vell {

namespace {

// The names are those of NetworkManager's D-Bus interface, version 1.
constexpr const char* service = "org.freedesktop.NetworkManager";
constexpr const char* managerPath = "/org/freedesktop/NetworkManager";
constexpr const char* settingsPath = "/org/freedesktop/NetworkManager/Settings";
constexpr const char* settingsInterface = "org.freedesktop.NetworkManager.Settings";
constexpr const char* profileInterface = "org.freedesktop.NetworkManager.Settings.Connection";
constexpr const char* linkInterface = "org.freedesktop.NetworkManager.Connection.Active";
constexpr const char* linkFolder = "/org/freedesktop/NetworkManager/ActiveConnection/";
constexpr BusConnection::Target manager{service, managerPath, service};

constexpr std::uint32_t stateAsleep = 10;
// The least state with a default route. "Global" would also ask that a probe of NetworkManager's own went through,
// which many a company's firewall stops.
constexpr std::uint32_t stateConnectedSite = 60;
constexpr std::uint32_t connectivityNone = 1;
constexpr std::uint32_t connectivityPortal = 2;

bool isDialUpType(std::string_view type) {
    constexpr std::array<std::string_view, 5> types{"ppp", "pppoe", "gsm", "cdma", "bluetooth"};
    return std::ranges::find(types, type) != types.end();
}

VariantPtr entry(const VariantPtr& dictionary, const char* key, const char* type) {
    return VariantPtr(dictionary ? g_variant_lookup_value(dictionary.get(), key, G_VARIANT_TYPE(type)) : nullptr);
}

std::string text(const VariantPtr& dictionary, const char* key, const char* type = "s") {
    const VariantPtr value = entry(dictionary, key, type);
    return value ? g_variant_get_string(value.get(), nullptr) : "";
}

std::uint32_t number(const VariantPtr& dictionary, const char* key) {
    const VariantPtr value = entry(dictionary, key, "u");
    return value ? g_variant_get_uint32(value.get()) : 0;
}

std::vector<std::string> paths(const VariantPtr& array) {
    std::vector<std::string> all;
    for (gsize i = 0; array && i < g_variant_n_children(array.get()); ++i)
        all.emplace_back(g_variant_get_string(VariantPtr(g_variant_get_child_value(array.get(), i)).get(), nullptr));
    return all;
}

VariantPtr firstOf(const BusConnection::ReplyPtr& reply) {
    return VariantPtr(reply->Value ? g_variant_get_child_value(reply->Value.get(), 0) : nullptr);
}

std::uint32_t lastPart(std::string_view path) {
    std::uint32_t value = 0;
    path.remove_prefix(path.rfind('/') + 1);
    std::from_chars(path.data(), path.data() + path.size(), value);
    return value;
}

bool isAbsent(const BusConnection::Reply& reply) {
    return reply.ErrorName == "org.freedesktop.DBus.Error.ServiceUnknown" ||
           reply.ErrorName == "org.freedesktop.DBus.Error.NameHasNoOwner";
}

NetworkState stateOf(const VariantPtr& properties) {
    const std::uint32_t state = number(properties, "State");
    const std::uint32_t connectivity = number(properties, "Connectivity");
    const VariantPtr enabled = entry(properties, "NetworkingEnabled", "b");
    NetworkState result;
    result.Online =
        state >= stateConnectedSite && connectivity != connectivityNone && connectivity != connectivityPortal;
    result.NetworkingOff = state == stateAsleep || (enabled && g_variant_get_boolean(enabled.get()) == FALSE);
    result.OnDialUp = isDialUpType(text(properties, "PrimaryConnectionType"));
    return result;
}

}  // namespace

bool NetworkManagerBus::open(const std::string& address, std::string& reason) {
    const auto opened = bus_.open(address);
    if (opened == BusConnection::Opened::Silent) reason = "the message bus does not answer";
    return opened == BusConnection::Opened::Yes;
}

BusConnection::ReplyPtr NetworkManagerBus::startGetAll(const std::string& path, const char* interface) {
    return bus_.start({service, path.c_str(), "org.freedesktop.DBus.Properties"}, "GetAll",
                      g_variant_new("(s)", interface), "(a{sv})");
}

VariantPtr NetworkManagerBus::properties(const std::string& path, const char* interface) {
    return firstOf(waitForAll({startGetAll(path, interface)}).front());
}

std::vector<BusConnection::ReplyPtr> NetworkManagerBus::waitForAll(std::vector<BusConnection::ReplyPtr> replies) {
    bus_.wait(BusConnection::Wait::Quiet, bus_.quietEnd(),
              [&] { return std::ranges::all_of(replies, [](const auto& one) { return one->Arrived; }); });
    return replies;
}

std::optional<NetworkState> NetworkManagerBus::state(std::string& reason) {
    const auto reply = waitForAll({startGetAll(managerPath, service)}).front();
    if (reply->Value) return stateOf(firstOf(reply));
    if (!isAbsent(*reply)) reason = refusal(*reply);
    return std::nullopt;
}

std::vector<NetworkProfile> NetworkManagerBus::profiles() {
    const auto list = bus_.call({service, settingsPath, settingsInterface}, "ListConnections", nullptr, "(ao)");
    const std::vector<std::string> all = paths(firstOf(list));
    std::vector<BusConnection::ReplyPtr> replies;
    replies.reserve(all.size());
    for (const std::string& path : all)
        replies.push_back(bus_.start({service, path.c_str(), profileInterface}, "GetSettings", nullptr, "(a{sa{sv}})"));
    replies = waitForAll(std::move(replies));

    std::vector<NetworkProfile> found;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const VariantPtr connection = entry(firstOf(replies[i]), "connection", "a{sv}");
        if (connection)  // else it is another user's, or was deleted meanwhile
            found.push_back(
                {all[i], codePageFromUtf8Lossy(text(connection, "id")), isDialUpType(text(connection, "type"))});
    }
    return found;
}

std::vector<NetworkLink> NetworkManagerBus::links() {
    const VariantPtr ofManager = properties(managerPath, service);
    const std::string primary = text(ofManager, "PrimaryConnection", "o");
    const std::vector<std::string> all = paths(entry(ofManager, "ActiveConnections", "ao"));
    std::vector<BusConnection::ReplyPtr> replies;
    replies.reserve(all.size());
    for (const std::string& path : all)
        replies.push_back(startGetAll(path, linkInterface));
    replies = waitForAll(std::move(replies));

    std::vector<NetworkLink> found;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const VariantPtr link = firstOf(replies[i]);
        const std::uint32_t state = number(link, "State");
        if (state == LinkActivating || state == LinkActivated)
            found.push_back({all[i], text(link, "Connection", "o"), codePageFromUtf8Lossy(text(link, "Id")),
                             lastPart(all[i]), isDialUpType(text(link, "Type")), all[i] == primary});
    }
    return found;
}

std::optional<bool> NetworkManagerBus::hasLink(const std::string& linkPath) {
    const VariantPtr ofManager = properties(managerPath, service);
    if (!ofManager) return std::nullopt;
    const auto all = paths(entry(ofManager, "ActiveConnections", "ao"));
    return std::ranges::find(all, linkPath) != all.end() || text(ofManager, "PrimaryConnection", "o") == linkPath;
}

std::uint32_t NetworkManagerBus::linkState(const std::string& linkPath) {
    const auto reply = waitForAll({startGetAll(linkPath, linkInterface)}).front();
    if (reply->Value) return number(firstOf(reply), "State");
    return reply->ErrorName.empty() || isAbsent(*reply) ? LinkUnknown : LinkDeactivated;
}

std::string NetworkManagerBus::linkPathOf(std::uint32_t number) {
    return linkFolder + std::to_string(number);
}

BusConnection::ReplyPtr NetworkManagerBus::activate(const std::string& profilePath) {
    // "/" leaves the choice of the device to NetworkManager.
    return bus_.start(manager, "ActivateConnection", g_variant_new("(ooo)", profilePath.c_str(), "/", "/"), "(o)");
}

BusConnection::ReplyPtr NetworkManagerBus::deactivate(const std::string& linkPath) {
    return bus_.start(manager, "DeactivateConnection", g_variant_new("(o)", linkPath.c_str()), "()");
}

BusConnection::ReplyPtr NetworkManagerBus::enable(bool on) {
    return bus_.start(manager, "Enable", g_variant_new("(b)", on ? TRUE : FALSE), "()");
}

std::string NetworkManagerBus::pathIn(const BusConnection::Reply& reply) {
    return g_variant_get_string(VariantPtr(g_variant_get_child_value(reply.Value.get(), 0)).get(), nullptr);
}

std::string NetworkManagerBus::refusal(const BusConnection::Reply& reply) {
    if (!reply.Arrived) return "NetworkManager does not answer";
    const std::string_view name = reply.ErrorName;
    const bool notAuthorised = name.ends_with(".PermissionDenied") || name.ends_with(".AccessDenied") ||
                               name.ends_with(".InteractiveAuthorizationRequired");
    return "NetworkManager refused, " + (notAuthorised ? std::string("not authorised: ") : reply.ErrorName + ": ") +
           reply.ErrorText;
}

void NetworkManagerBus::watch(std::function<void()> lost, BusConnection::SignalHandler heard) {
    bus_.subscribe("org.freedesktop.DBus", "NameOwnerChanged", "/org/freedesktop/DBus", service,
                   [lost = std::move(lost)](const char*, const char*, GVariant*) { lost(); });
    bus_.subscribe(service, nullptr, nullptr, nullptr, std::move(heard));
}

}  // namespace vell
