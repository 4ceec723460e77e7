// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Clock.h"
#include "platform/posix/gio/GlibPointers.h"

namespace vell {

class EventLoop;

// One connection to a message bus, for one conversation. It works on a main context of its own, which is looked at
// only inside `wait` and never blocks; how long a wait lasts is the program's clock's matter. For platform/posix/gio
// alone: it shows GLib's types.
class BusConnection {
  public:
    struct Reply {
        bool Arrived = false;
        VariantPtr Value;       // null when the call failed
        std::string ErrorName;  // of a failure that the other side named
        std::string ErrorText;  // in code page 1253
    };
    using ReplyPtr = std::shared_ptr<Reply>;

    struct Target {
        const char* Service;
        const char* Path;
        const char* Interface;
    };

    enum class Wait {
        Quiet,     // nothing else happens meanwhile; for answers that come at once
        Yielding,  // events happen meanwhile
    };
    // How long an answer that should come at once is waited for.
    static constexpr std::chrono::milliseconds quietPatience{2000};

    BusConnection(EventLoop& loop, Clock& clock);
    ~BusConnection();
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;

    enum class Opened { Yes, NoBus, Silent };
    [[nodiscard]] Opened open(const std::string& address);
    // True also when the bus has gone away.
    [[nodiscard]] bool isClosed() const;

    // Sends a call; the reply fills itself while somebody waits. Takes floating arguments; a reply of another type
    // than `replyType` is a failure. Never starts a service.
    [[nodiscard]] ReplyPtr start(const Target& target, const char* method, GVariant* arguments, const char* replyType);
    // The same with a quiet wait for the reply.
    [[nodiscard]] ReplyPtr call(const Target& target, const char* method, GVariant* arguments, const char* replyType);

    using SignalHandler = std::function<void(const char* path, const char* member, GVariant* arguments)>;
    // Signals of one sender, while somebody waits. A null member, path or first argument means any.
    void subscribe(const char* sender, const char* member, const char* path, const char* firstArgument,
                   SignalHandler handler);

    // Until `done`, or until `end`; false when the time ran out.
    bool wait(Wait how, SteadyTime end, const std::function<bool()>& done);
    [[nodiscard]] SteadyTime quietEnd() const { return clock_.Steady() + quietPatience; }

  private:
    struct Pending;
    class ContextScope;
    struct Subscription {
        guint Id;
        std::unique_ptr<SignalHandler> Handler;
    };

    static void onOpened(GObject* source, GAsyncResult* result, gpointer pending);
    static void onReply(GObject* source, GAsyncResult* result, gpointer pending);
    static void onSignal(GDBusConnection* connection, const gchar* sender, const gchar* path, const gchar* interface,
                         const gchar* member, GVariant* arguments, gpointer handler);
    void iterate();
    void nap();

    EventLoop& loop_;
    Clock& clock_;
    ContextPtr context_;
    ObjectPtr<GCancellable> cancellable_;
    std::shared_ptr<int> unanswered_;  // callbacks that GLib still owes
    std::vector<Subscription> subscriptions_;
    ObjectPtr<GDBusConnection> connection_;
};

}  // namespace vell
