// SPDX-License-Identifier: MIT
#include "platform/asio/SocketHandles.h"

#ifndef _WIN32
#include <fcntl.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#endif

namespace vell {

void keepFromChildren(asio::ip::tcp::socket::native_handle_type handle) {
#ifdef _WIN32
    SetHandleInformation(reinterpret_cast<HANDLE>(static_cast<SOCKET>(handle)), HANDLE_FLAG_INHERIT, 0);
#else
    fcntl(handle, F_SETFD, FD_CLOEXEC);
#endif
}

void acknowledgeAtOnce([[maybe_unused]] asio::ip::tcp::socket::native_handle_type handle) {
#ifdef TCP_QUICKACK
    const int on = 1;
    setsockopt(handle, IPPROTO_TCP, TCP_QUICKACK, &on, sizeof on);
#endif
}

}  // namespace vell
