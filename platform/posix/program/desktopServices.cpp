// SPDX-License-Identifier: MIT
#include "platform/posix/program/desktopServices.h"

#include <filesystem>
#include <system_error>

#include <dlfcn.h>

#include "base/text.h"

namespace vell {

namespace {

LoadedServices failed() {
    const char* why = dlerror();
    return {nullptr, "Desktop services cannot be loaded: " + codePageFromUtf8Lossy(why == nullptr ? "" : why)};
}

LoadedServices load() {
    std::error_code unknown;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", unknown);
    const auto path = executable.parent_path().parent_path() / "libexec/vell/vell-gio.so";
    void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr) return failed();
    using Services = DesktopServices*();
    auto* const services = reinterpret_cast<Services*>(dlsym(module, "vellDesktopServices"));
    return services == nullptr ? failed() : LoadedServices{services(), {}};
}

}  // namespace

const LoadedServices& desktopServices() {
    static const LoadedServices loaded = load();
    return loaded;
}

}  // namespace vell
