// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/posix/program/GlibPointers.h"

namespace vell {

// A name on the message bus of the desktop session, one for each program folder. Whoever has it can be asked to show
// its window. A session without a bus has no names, and nobody is asked.
class WindowName {
  public:
    // `folder` tells program folders apart, whatever path leads to them; letters, digits and "_".
    explicit WindowName(const std::string& folder) : name_("org.vell.Window.of" + folder) {}
    ~WindowName();
    WindowName(const WindowName&) = delete;
    WindowName& operator=(const WindowName&) = delete;

    // Takes the name. `raise` is called from GLib's main loop, which a window of this system's has.
    void take(std::function<void()> raise);
    // Asks whoever has the name, and waits a moment for the answer. False when nobody answers.
    bool ask() const;

  private:
    static void onBus(GDBusConnection* bus, const gchar* name, gpointer self);
    static void onCall(GDBusConnection* bus, const gchar* sender, const gchar* path, const gchar* interface,
                       const gchar* method, GVariant* arguments, GDBusMethodInvocation* call, gpointer self);

    std::string name_;
    std::function<void()> raise_;
    guint owned_ = 0;
    ObjectPtr<GDBusConnection> bus_;
    guint registered_ = 0;
};

}  // namespace vell
