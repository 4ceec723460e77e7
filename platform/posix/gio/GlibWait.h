// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "platform/posix/gio/GlibPointers.h"

namespace vell {

// A wait for one asynchronous operation of GLib's, in which nothing else happens: the window's events stay where they
// are. To be made before the operation is begun, which gets `cancellable`, `done` and this object.
class GlibWait {
  public:
    // The operation is cancelled when it takes longer.
    explicit GlibWait(std::chrono::milliseconds patience);
    ~GlibWait();
    GlibWait(const GlibWait&) = delete;
    GlibWait& operator=(const GlibWait&) = delete;

    [[nodiscard]] GCancellable* cancellable() const { return cancellable_.get(); }
    static void done(GObject* source, GAsyncResult* result, gpointer wait);

    // Waits. The result is for the operation's "finish" call and lives as long as this object.
    [[nodiscard]] GAsyncResult* result();

  private:
    ContextPtr context_;
    ObjectPtr<GCancellable> cancellable_;
    SourcePtr timer_;
    ObjectPtr<GAsyncResult> result_;
};

}  // namespace vell
