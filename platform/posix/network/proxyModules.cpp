// SPDX-License-Identifier: MIT
#include "platform/posix/network/proxyModules.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include <unistd.h>

namespace vell {

namespace {

namespace fs = std::filesystem;

// Other modules, another choice among them, or a sandbox.
bool isOutOfTheOrdinary() {
    constexpr std::array variables{"GIO_USE_PROXY_RESOLVER", "GIO_MODULE_DIR", "GIO_EXTRA_MODULES", "GTK_USE_PORTAL",
                                   "SNAP"};
    return std::ranges::any_of(variables, [](const char* name) { return std::getenv(name) != nullptr; }) ||
           access("/.flatpak-info", F_OK) == 0;
}

// What the folder's file says of a module: "libone.so: gio-tls-backend,gio-proxy-resolver" on a line of its own. One
// that is not listed may be for anything.
bool mayNameProxies(const std::string& list, const std::string& module) {
    const auto begin = ("\n" + list).find("\n" + module + ":");
    if (begin == std::string::npos) return true;
    return list.substr(begin, list.find('\n', begin) - begin).find("gio-proxy-resolver") != std::string::npos;
}

}  // namespace

bool canGioNameProxies(const std::string& moduleFolder) {
    if (isOutOfTheOrdinary()) return true;
    std::ifstream file(moduleFolder + "/giomodule.cache");
    const std::string list{std::istreambuf_iterator<char>(file), {}};
    std::error_code error;
    fs::directory_iterator entry(moduleFolder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        if (entry->path().extension() == ".so" && mayNameProxies(list, entry->path().filename())) return true;
    return static_cast<bool>(error);  // another system's GIO keeps them elsewhere
}

}  // namespace vell
