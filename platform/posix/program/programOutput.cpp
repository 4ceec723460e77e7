// SPDX-License-Identifier: MIT
#include "platform/posix/program/programOutput.h"

#include "platform/posix/program/GlibPointers.h"

namespace vell {

namespace {

using BytesPtr = std::unique_ptr<GBytes, GlibFree<g_bytes_unref>>;
using SourcePtr = std::unique_ptr<GSource, GlibFree<g_source_unref>>;

// What GLib reports here comes in this wait, and nothing else does: the window's events stay where they are.
class ContextOfOurOwn {
  public:
    ContextOfOurOwn() : context_(g_main_context_new()) { g_main_context_push_thread_default(context_.get()); }
    ~ContextOfOurOwn() { g_main_context_pop_thread_default(context_.get()); }
    ContextOfOurOwn(const ContextOfOurOwn&) = delete;
    ContextOfOurOwn& operator=(const ContextOfOurOwn&) = delete;

    [[nodiscard]] GMainContext* get() const { return context_.get(); }

  private:
    ContextPtr context_;
};

ObjectPtr<GSubprocess> started(const std::string& systemPath, const std::vector<std::string>& arguments) {
    const ObjectPtr<GSubprocessLauncher> launcher(g_subprocess_launcher_new(
        static_cast<GSubprocessFlags>(G_SUBPROCESS_FLAGS_STDOUT_PIPE | G_SUBPROCESS_FLAGS_STDERR_SILENCE)));
    g_subprocess_launcher_setenv(launcher.get(), "LC_ALL", "C", TRUE);
    std::vector<const char*> argv{systemPath.c_str()};
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    argv.push_back(nullptr);
    return ObjectPtr<GSubprocess>(g_subprocess_launcher_spawnv(launcher.get(), argv.data(), nullptr));
}

gboolean giveUp(gpointer cancellable) {
    g_cancellable_cancel(G_CANCELLABLE(cancellable));
    return G_SOURCE_REMOVE;
}

void keepResult(GObject* /*source*/, GAsyncResult* result, gpointer place) {
    static_cast<ObjectPtr<GAsyncResult>*>(place)->reset(G_ASYNC_RESULT(g_object_ref(result)));
}

}  // namespace

std::optional<std::string> programOutput(const std::string& systemPath, const std::vector<std::string>& arguments,
                                         std::chrono::milliseconds patience) {
    const ContextOfOurOwn context;
    const auto program = started(systemPath, arguments);
    if (!program) return std::nullopt;
    const ObjectPtr<GCancellable> cancellable(g_cancellable_new());
    const SourcePtr timer(g_timeout_source_new(static_cast<guint>(patience.count())));
    g_source_set_callback(timer.get(), giveUp, cancellable.get(), nullptr);
    g_source_attach(timer.get(), context.get());
    ObjectPtr<GAsyncResult> result;
    g_subprocess_communicate_async(program.get(), nullptr, cancellable.get(), keepResult, &result);
    while (!result)
        g_main_context_iteration(context.get(), TRUE);
    g_source_destroy(timer.get());
    GBytes* output = nullptr;
    const bool ended = g_subprocess_communicate_finish(program.get(), result.get(), &output, nullptr, nullptr) != FALSE;
    const BytesPtr owned(output);
    if (!ended) {
        g_subprocess_force_exit(program.get());
        return std::nullopt;
    }
    gsize size = 0;
    const auto* bytes = static_cast<const char*>(g_bytes_get_data(output, &size));
    return size == 0 ? std::string() : std::string(bytes, size);
}

}  // namespace vell
