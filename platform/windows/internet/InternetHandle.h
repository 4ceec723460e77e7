// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>

namespace vell {

// Any handle of WinINet's. It may be closed by another thread while a call works on it, which ends that call.
class InternetHandle {
  public:
    InternetHandle() = default;
    explicit InternetHandle(void* handle) : handle_(handle) {}
    ~InternetHandle();
    InternetHandle(const InternetHandle&) = delete;
    InternetHandle& operator=(const InternetHandle&) = delete;

    // Closes what was held. Once `end` was called nothing is held any more.
    void hold(void* handle);
    void end();

    [[nodiscard]] void* get() const;

  private:
    mutable std::mutex guard_;
    void* handle_ = nullptr;
    bool ended_ = false;
};

}  // namespace vell
