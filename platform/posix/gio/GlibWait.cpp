// SPDX-License-Identifier: MIT
#include "platform/posix/gio/GlibWait.h"

namespace vell {

namespace {

gboolean giveUp(gpointer cancellable) {
    g_cancellable_cancel(G_CANCELLABLE(cancellable));
    return G_SOURCE_REMOVE;
}

}  // namespace

GlibWait::GlibWait(std::chrono::milliseconds patience)
    : context_(g_main_context_new()),
      cancellable_(g_cancellable_new()),
      timer_(g_timeout_source_new(static_cast<guint>(patience.count()))) {
    g_main_context_push_thread_default(context_.get());
    g_source_set_callback(timer_.get(), giveUp, cancellable_.get(), nullptr);
    g_source_attach(timer_.get(), context_.get());
}

GlibWait::~GlibWait() {
    g_source_destroy(timer_.get());
    g_main_context_pop_thread_default(context_.get());
}

void GlibWait::done(GObject* /*source*/, GAsyncResult* result, gpointer wait) {
    static_cast<GlibWait*>(wait)->result_.reset(G_ASYNC_RESULT(g_object_ref(result)));
}

GAsyncResult* GlibWait::result() {
    while (!result_)
        g_main_context_iteration(context_.get(), TRUE);
    return result_.get();
}

}  // namespace vell
