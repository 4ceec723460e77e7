// SPDX-License-Identifier: MIT
#include "platform/posix/gio/GioServices.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/posix/gio/BusWindowName.h"
#include "platform/posix/gio/NetworkManagerTalk.h"
#include "platform/posix/gio/applications.h"
#include "platform/posix/gio/desktopProxy.h"
#include "platform/posix/gio/runToEnd.h"

namespace vell {

std::unique_ptr<NetworkManager> GioServices::networkManager(EventLoop& loop, Clock& clock, std::string busAddress,
                                                            std::chrono::milliseconds patience) {
    return std::make_unique<NetworkManagerTalk>(loop, clock, std::move(busAddress), patience);
}

std::unique_ptr<WindowName> GioServices::windowName(const std::string& folder) {
    return std::make_unique<BusWindowName>(folder);
}

std::string GioServices::proxyOf(const std::string& address) {
    return vell::proxyOf(g_proxy_resolver_get_default(), address);
}

std::string GioServices::documentsFolder() {
    const char* const documents = g_get_user_special_dir(G_USER_DIRECTORY_DOCUMENTS);
    std::error_code unknown;
    const bool isThere = documents != nullptr && std::filesystem::is_directory(documents, unknown);
    return isThere ? documents : g_get_home_dir();
}

int GioServices::openWithApplication(const std::string& systemPath) {
    return startForDocument(systemPath);
}

int GioServices::openAddress(const std::string& address) {
    return startForAddress(address);
}

std::optional<ProgramEnd> GioServices::runProgram(const std::string& systemPath,
                                                  const std::vector<std::string>& arguments,
                                                  std::chrono::milliseconds patience) {
    return runToEnd(systemPath, arguments, patience);
}

}  // namespace vell
