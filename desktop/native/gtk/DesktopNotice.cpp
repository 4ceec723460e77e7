// SPDX-License-Identifier: MIT
#include "desktop/native/DesktopNotice.h"

#include <string_view>
#include <utility>
#include <vector>

#include <gio/gio.h>
#include <wx/translation.h>

#include "platform/posix/gio/GlibPointers.h"

namespace vell {

namespace {

constexpr const char* service = "org.freedesktop.Notifications";
constexpr const char* object = "/org/freedesktop/Notifications";
constexpr int usualPatience = -1;

}  // namespace

// The toolkit's own notice waits for the desktop's answer, which may take half a minute; this one lets the window's
// loop bring it. The steps: the message bus, what its service can do, the notice.
class DesktopNotice::Native {
  public:
    explicit Native(Chosen chosen) : chosen_(std::move(chosen)), cancellable_(g_cancellable_new()) {}
    ~Native() {
        g_cancellable_cancel(cancellable_.get());
        for (const guint id : subscriptions_)
            g_dbus_connection_signal_unsubscribe(bus_.get(), id);
    }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    void show(std::string title, std::string body) {
        title_ = std::move(title);
        body_ = std::move(body);
        if (bus_)
            askForMarkup();
        else
            g_bus_get(G_BUS_TYPE_SESSION, cancellable_.get(), onBus, this);
    }
    void withdraw() {
        if (id_ != 0) call("CloseNotification", g_variant_new("(u)", id_), "()", nullptr);
        id_ = 0;
    }

  private:
    static void onBus(GObject* /*source*/, GAsyncResult* result, gpointer notice) {
        GError* error = nullptr;
        ObjectPtr<GDBusConnection> bus(g_bus_get_finish(result, &error));
        const ErrorPtr owned(error);
        if (bus) static_cast<Native*>(notice)->begin(std::move(bus));
    }
    void begin(ObjectPtr<GDBusConnection> bus) {
        if (!bus_) {
            bus_ = std::move(bus);
            g_dbus_connection_set_exit_on_close(bus_.get(), FALSE);
            for (const char* signal : {"ActionInvoked", "ActivationToken", "NotificationClosed"})
                subscriptions_.push_back(g_dbus_connection_signal_subscribe(bus_.get(), service, service, signal,
                                                                            object, nullptr, G_DBUS_SIGNAL_FLAGS_NONE,
                                                                            onSignal, this, nullptr));
        }
        askForMarkup();
    }

    void askForMarkup() { call("GetCapabilities", nullptr, "(as)", onCapabilities); }
    static void onCapabilities(GObject* source, GAsyncResult* result, gpointer notice) {
        if (const VariantPtr answer = answerOf(source, result)) {
            const VariantPtr list(g_variant_get_child_value(answer.get(), 0));
            gsize count = 0;
            const std::unique_ptr<const gchar*, GlibFree<g_free>> names(g_variant_get_strv(list.get(), &count));
            static_cast<Native*>(notice)->send(g_strv_contains(names.get(), "body-markup") != FALSE);
        }
    }

    // Where the service reads markup, the body must not look like some.
    void send(bool readsMarkup) {
        const CharsPtr escaped(readsMarkup ? g_markup_escape_text(body_.c_str(), -1) : nullptr);
        GVariantBuilder actions, hints;
        g_variant_builder_init(&actions, G_VARIANT_TYPE("as"));
        g_variant_builder_add(&actions, "s", "default");
        g_variant_builder_add(&actions, "s", _("Show").utf8_string().c_str());
        g_variant_builder_init(&hints, G_VARIANT_TYPE("a{sv}"));
        g_variant_builder_add(&hints, "{sv}", "desktop-entry", g_variant_new_string("vell"));
        call("Notify",
             g_variant_new("(susssasa{sv}i)", "Vell", id_, "vell", title_.c_str(),
                           escaped ? escaped.get() : body_.c_str(), &actions, &hints, -1),
             "(u)", onNotified);
    }
    static void onNotified(GObject* source, GAsyncResult* result, gpointer notice) {
        if (const VariantPtr answer = answerOf(source, result))
            g_variant_get(answer.get(), "(u)", &static_cast<Native*>(notice)->id_);
    }

    static void onSignal(GDBusConnection* /*bus*/, const gchar* /*sender*/, const gchar* /*path*/,
                         const gchar* /*interface*/, const gchar* signal, GVariant* arguments, gpointer notice) {
        const bool hasText = g_variant_is_of_type(arguments, G_VARIANT_TYPE("(us)")) != FALSE;
        if (!hasText && g_variant_is_of_type(arguments, G_VARIANT_TYPE("(uu)")) == FALSE) return;
        guint32 id = 0;
        const gchar* text = "";
        g_variant_get_child(arguments, 0, "u", &id);
        if (hasText) g_variant_get_child(arguments, 1, "&s", &text);
        auto& mine = *static_cast<Native*>(notice);
        if (id != 0 && id == mine.id_) mine.hear(signal, text);
    }
    void hear(std::string_view signal, const gchar* text) {
        if (signal == "NotificationClosed") id_ = 0;
        if (signal == "ActivationToken") token_ = text;
        if (signal == "ActionInvoked") chosen_(std::exchange(token_, {}));
    }

    void call(const char* method, GVariant* arguments, const char* replyType, GAsyncReadyCallback done) {
        g_dbus_connection_call(bus_.get(), service, object, service, method, arguments, G_VARIANT_TYPE(replyType),
                               G_DBUS_CALL_FLAGS_NONE, usualPatience, cancellable_.get(), done, this);
    }
    // Null for a failure: there is no notice then, and the status line tells the same. Whoever asked may be gone; GLib
    // makes a failure of that, too.
    static VariantPtr answerOf(GObject* source, GAsyncResult* result) {
        GError* error = nullptr;
        VariantPtr answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(source), result, &error));
        const ErrorPtr owned(error);
        return answer;
    }

    Chosen chosen_;
    ObjectPtr<GCancellable> cancellable_;
    ObjectPtr<GDBusConnection> bus_;
    std::vector<guint> subscriptions_;
    std::string title_, body_, token_;
    guint32 id_ = 0;  // the service's number of the notice that is shown; 0 for none
};

DesktopNotice::DesktopNotice(Chosen chosen) : native_(std::make_unique<Native>(std::move(chosen))) {}

DesktopNotice::~DesktopNotice() = default;

void DesktopNotice::show(const wxString& title, const wxString& body) {
    native_->show(title.utf8_string(), body.utf8_string());
}

void DesktopNotice::withdraw() {
    native_->withdraw();
}

}  // namespace vell
