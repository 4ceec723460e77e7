// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <iostream>
#include <string_view>

namespace vell::demo {

// What the service tells its owner: requests, commands and replies when asked to, never a password.
class Journal {
  public:
    explicit Journal(bool verbose) : verbose_(verbose) {}

    void tell(std::string_view side, std::string_view what) const {
        if (verbose_) std::cout << side << "  " << what << std::endl;
    }
    // For the end of a coroutine that nobody waits for.
    static void failure(const std::exception_ptr& problem) {
        if (!problem) return;
        try {
            std::rethrow_exception(problem);
        } catch (const std::exception& error) {
            std::cerr << "A session ended early: " << error.what() << std::endl;
        }
    }

  private:
    bool verbose_;
};

}  // namespace vell::demo
