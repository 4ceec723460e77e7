// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

// A flag that is set while the object lives.
class ScopedFlag {
  public:
    explicit ScopedFlag(bool& flag) : flag_(flag) { flag_ = true; }
    ~ScopedFlag() { flag_ = false; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

  private:
    bool& flag_;
};

}  // namespace vell
