// SPDX-License-Identifier: MIT
#include "platform/windows/internet/InternetHandle.h"

#include <utility>

#include "platform/windows/internetHeaders.h"

namespace vell {

namespace {

void closeHandle(void* handle) {
    if (handle != nullptr) InternetCloseHandle(handle);
}

}  // namespace

InternetHandle::~InternetHandle() {
    closeHandle(handle_);
}

void InternetHandle::hold(void* handle) {
    void* unwanted = nullptr;
    {
        const std::lock_guard hold(guard_);
        unwanted = ended_ ? handle : std::exchange(handle_, handle);
    }
    closeHandle(unwanted);
}

void InternetHandle::end() {
    void* unwanted = nullptr;
    {
        const std::lock_guard hold(guard_);
        ended_ = true;
        unwanted = std::exchange(handle_, nullptr);
    }
    closeHandle(unwanted);
}

void* InternetHandle::get() const {
    const std::lock_guard hold(guard_);
    return handle_;
}

}  // namespace vell
