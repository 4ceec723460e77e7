// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/posix/gio/GlibPointers.h"
#include "platform/posix/program/WindowName.h"

namespace vell {

class BusWindowName : public WindowName {
  public:
    // `folder` tells program folders apart, whatever path leads to them; letters, digits and "_".
    explicit BusWindowName(const std::string& folder) : name_("org.vell.Window.of" + folder) {}
    ~BusWindowName() override;
    BusWindowName(const BusWindowName&) = delete;
    BusWindowName& operator=(const BusWindowName&) = delete;

    void take(std::function<void()> raise) override;
    bool ask() const override;

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
