// SPDX-License-Identifier: MIT
#include "platform/posix/gio/BusWindowName.h"

#include <chrono>
#include <utility>

#include "platform/posix/gio/GlibWait.h"

namespace vell {

namespace {

constexpr const char* object = "/org/vell/Window";
constexpr const char* interface = "org.vell.Window";
constexpr const char* description = "<node><interface name='org.vell.Window'><method name='Raise'/></interface></node>";
constexpr std::chrono::milliseconds patience{2000};

using NodePtr = std::unique_ptr<GDBusNodeInfo, GlibFree<g_dbus_node_info_unref>>;

ObjectPtr<GDBusConnection> sessionBus() {
    GlibWait wait(patience);
    g_bus_get(G_BUS_TYPE_SESSION, wait.cancellable(), GlibWait::done, &wait);
    GError* error = nullptr;
    ObjectPtr<GDBusConnection> bus(g_bus_get_finish(wait.result(), &error));
    const ErrorPtr owned(error);
    if (bus) g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    return bus;
}

}  // namespace

BusWindowName::~BusWindowName() {
    if (owned_ != 0) g_bus_unown_name(owned_);
    if (registered_ != 0) g_dbus_connection_unregister_object(bus_.get(), registered_);
}

void BusWindowName::take(std::function<void()> raise) {
    raise_ = std::move(raise);
    if (owned_ == 0)
        owned_ = g_bus_own_name(G_BUS_TYPE_SESSION, name_.c_str(), G_BUS_NAME_OWNER_FLAGS_NONE, onBus, nullptr, nullptr,
                                this, nullptr);
}

void BusWindowName::onBus(GDBusConnection* bus, const gchar* /*name*/, gpointer self) {
    static const GDBusInterfaceVTable calls{onCall, nullptr, nullptr, {}};
    g_dbus_connection_set_exit_on_close(bus, FALSE);
    const NodePtr node(g_dbus_node_info_new_for_xml(description, nullptr));
    auto& mine = *static_cast<BusWindowName*>(self);
    mine.bus_.reset(G_DBUS_CONNECTION(g_object_ref(bus)));
    mine.registered_ =
        g_dbus_connection_register_object(bus, object, node->interfaces[0], &calls, self, nullptr, nullptr);
}

void BusWindowName::onCall(GDBusConnection* /*bus*/, const gchar* /*sender*/, const gchar* /*path*/,
                           const gchar* /*interface*/, const gchar* /*method*/, GVariant* /*arguments*/,
                           GDBusMethodInvocation* call, gpointer self) {
    g_dbus_method_invocation_return_value(call, nullptr);
    static_cast<BusWindowName*>(self)->raise_();
}

bool BusWindowName::ask() const {
    const ObjectPtr<GDBusConnection> bus = sessionBus();
    if (!bus) return false;
    GlibWait wait(patience);
    g_dbus_connection_call(bus.get(), name_.c_str(), object, interface, "Raise", nullptr, nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, wait.cancellable(), GlibWait::done, &wait);
    GError* error = nullptr;
    const VariantPtr answer(g_dbus_connection_call_finish(bus.get(), wait.result(), &error));
    const ErrorPtr owned(error);
    return answer != nullptr;
}

}  // namespace vell
