// SPDX-License-Identifier: MIT
#include "platform/posix/network/NetworkManagerClient.h"

#include <cstdlib>
#include <utility>

#include <unistd.h>

#include "platform/posix/network/NoNetworkManager.h"
#include "platform/posix/program/desktopServices.h"

namespace vell {

namespace {

// As every client of it finds it.
std::string systemBus() {
    const char* const named = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
    return named == nullptr ? "unix:path=/var/run/dbus/system_bus_socket" : named;
}

// Where no bus runs, its socket is missing.
bool hasSocket(std::string_view address) {
    constexpr std::string_view path = "unix:path=";
    const bool isPlain = address.starts_with(path) && address.find_first_of(",;%") == std::string_view::npos;
    return !isPlain || access(std::string(address.substr(path.size())).c_str(), F_OK) == 0;
}

}  // namespace

NetworkManagerClient::NetworkManagerClient(EventLoop& loop, Clock& clock, std::string busAddress,
                                           std::chrono::milliseconds patience)
    : loop_(loop),
      clock_(clock),
      busAddress_(busAddress.empty() ? systemBus() : std::move(busAddress)),
      patience_(patience),
      nobody_(std::make_unique<NoNetworkManager>("")),
      asked_(nobody_.get()) {}

NetworkManager& NetworkManagerClient::asked() {
    const bool hasBus = hasSocket(busAddress_);
    if (hasBus && !talk_) load();
    asked_ = hasBus ? talk_.get() : nobody_.get();
    return *asked_;
}

void NetworkManagerClient::load() {
    const LoadedServices& desktop = desktopServices();
    if (desktop.Services != nullptr)
        talk_ = desktop.Services->networkManager(loop_, clock_, busAddress_, patience_);
    else
        talk_ = std::make_unique<NoNetworkManager>(desktop.Problem);
}

void NetworkManagerClient::cancelWaits() {
    if (talk_) talk_->cancelWaits();
}

}  // namespace vell
