// SPDX-License-Identifier: MIT
#include "platform/posix/gio/BusConnection.h"

#include <limits>
#include <utility>

#include "base/text.h"
#include "platform/EventLoop.h"

namespace vell {

namespace {

// How often a wait looks at the clock.
constexpr std::chrono::milliseconds quietStep{10};
constexpr int yieldingStep = 10;

std::string codePageText(const GError& error) {
    return codePageFromUtf8Lossy(error.message);
}

}  // namespace

// What one of GLib's callbacks fills. It belongs to the callback, which may come after everybody stopped waiting.
struct BusConnection::Pending {
    ReplyPtr Answer;
    std::shared_ptr<int> Unanswered;
    std::shared_ptr<ObjectPtr<GDBusConnection>> Opened;

    void fail(ErrorPtr error) const {
        if (const CharsPtr name{g_dbus_error_get_remote_error(error.get())}) Answer->ErrorName = name.get();
        g_dbus_error_strip_remote_error(error.get());
        Answer->ErrorText = codePageText(*error);
    }
    void arrive() const {
        Answer->Arrived = true;
        --*Unanswered;
    }
};

// GLib calls back in the context that was current when a call was made.
class BusConnection::ContextScope {
  public:
    explicit ContextScope(GMainContext* context) : context_(context) { g_main_context_push_thread_default(context_); }
    ~ContextScope() { g_main_context_pop_thread_default(context_); }
    ContextScope(const ContextScope&) = delete;
    ContextScope& operator=(const ContextScope&) = delete;

  private:
    GMainContext* context_;
};

BusConnection::BusConnection(EventLoop& loop, Clock& clock)
    : loop_(loop),
      clock_(clock),
      context_(g_main_context_new()),
      cancellable_(g_cancellable_new()),
      unanswered_(std::make_shared<int>(0)) {}

BusConnection::~BusConnection() {
    for (const Subscription& one : subscriptions_)
        g_dbus_connection_signal_unsubscribe(connection_.get(), one.Id);
    g_cancellable_cancel(cancellable_.get());
    wait(Wait::Quiet, quietEnd(), [this] { return *unanswered_ == 0; });
}

BusConnection::Opened BusConnection::open(const std::string& address) {
    const auto opened = std::make_shared<ObjectPtr<GDBusConnection>>();
    const auto answer = std::make_shared<Reply>();
    {
        const ContextScope scope(context_.get());
        constexpr int flags =
            G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION;
        ++*unanswered_;
        g_dbus_connection_new_for_address(address.c_str(), static_cast<GDBusConnectionFlags>(flags), nullptr,
                                          cancellable_.get(), onOpened, new Pending{answer, unanswered_, opened});
    }
    if (!wait(Wait::Quiet, quietEnd(), [&] { return answer->Arrived; })) return Opened::Silent;
    connection_ = std::move(*opened);
    if (!connection_) return Opened::NoBus;
    g_dbus_connection_set_exit_on_close(connection_.get(), FALSE);
    return Opened::Yes;
}

void BusConnection::onOpened(GObject* /*source*/, GAsyncResult* result, gpointer pending) {
    const std::unique_ptr<Pending> mine(static_cast<Pending*>(pending));
    GError* error = nullptr;
    mine->Opened->reset(g_dbus_connection_new_for_address_finish(result, &error));
    if (error != nullptr) mine->fail(ErrorPtr(error));
    mine->arrive();
}

bool BusConnection::isClosed() const {
    return !connection_ || g_dbus_connection_is_closed(connection_.get()) != FALSE;
}

BusConnection::ReplyPtr BusConnection::start(const Target& target, const char* method, GVariant* arguments,
                                             const char* replyType) {
    const ContextScope scope(context_.get());
    auto reply = std::make_shared<Reply>();
    ++*unanswered_;
    // No time limit of GLib's: the wait has one, by the program's clock.
    g_dbus_connection_call(connection_.get(), target.Service, target.Path, target.Interface, method, arguments,
                           G_VARIANT_TYPE(replyType), G_DBUS_CALL_FLAGS_NO_AUTO_START, std::numeric_limits<int>::max(),
                           cancellable_.get(), onReply, new Pending{reply, unanswered_, nullptr});
    return reply;
}

BusConnection::ReplyPtr BusConnection::call(const Target& target, const char* method, GVariant* arguments,
                                            const char* replyType) {
    auto reply = start(target, method, arguments, replyType);
    if (!wait(Wait::Quiet, quietEnd(), [&] { return reply->Arrived; })) reply->ErrorText = "no answer";
    return reply;
}

void BusConnection::onReply(GObject* source, GAsyncResult* result, gpointer pending) {
    const std::unique_ptr<Pending> mine(static_cast<Pending*>(pending));
    GError* error = nullptr;
    mine->Answer->Value.reset(g_dbus_connection_call_finish(G_DBUS_CONNECTION(source), result, &error));
    if (error != nullptr) mine->fail(ErrorPtr(error));
    mine->arrive();
}

void BusConnection::subscribe(const char* sender, const char* member, const char* path, const char* firstArgument,
                              SignalHandler handler) {
    const ContextScope scope(context_.get());
    auto owned = std::make_unique<SignalHandler>(std::move(handler));
    const guint id = g_dbus_connection_signal_subscribe(connection_.get(), sender, nullptr, member, path, firstArgument,
                                                        G_DBUS_SIGNAL_FLAGS_NONE, onSignal, owned.get(), nullptr);
    subscriptions_.push_back({id, std::move(owned)});
}

void BusConnection::onSignal(GDBusConnection* /*connection*/, const gchar* /*sender*/, const gchar* path,
                             const gchar* /*interface*/, const gchar* member, GVariant* arguments, gpointer handler) {
    (*static_cast<SignalHandler*>(handler))(path, member, arguments);
}

bool BusConnection::wait(Wait how, SteadyTime end, const std::function<bool()>& done) {
    while (true) {
        iterate();
        if (done()) return true;
        if (clock_.Steady() >= end) return false;
        if (how == Wait::Quiet)
            nap();
        else
            loop_.WaitForEvents(yieldingStep);
    }
}

// Ends as soon as the bus has said something.
void BusConnection::nap() {
    const auto length = clock_.realLength(quietStep);
    bool isOver = false;
    const SourcePtr alarm(g_timeout_source_new(static_cast<guint>(length.count())));
    const auto ring = [](gpointer over) -> gboolean {
        *static_cast<bool*>(over) = true;
        return G_SOURCE_REMOVE;
    };
    g_source_set_callback(alarm.get(), ring, &isOver, nullptr);
    g_source_attach(alarm.get(), context_.get());
    g_main_context_iteration(context_.get(), TRUE);
    g_source_destroy(alarm.get());
    if (isOver) clock_.passed(quietStep);
}

void BusConnection::iterate() {
    // A bus that talks without end must not keep the wait from its clock.
    constexpr int mostSteps = 1000;
    for (int i = 0; i < mostSteps && g_main_context_iteration(context_.get(), FALSE) != FALSE; ++i) {
    }
}

}  // namespace vell
