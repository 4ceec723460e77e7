// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/Files.h"
#include "platform/windows/files/FileHandle.h"

namespace vell {

// A file being written beside the one that it shall become. Unless it took that one's place it is removed.
class WholeFile {
  public:
    explicit WholeFile(const FilePlace& target);  // raises
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void write(std::string_view bytes);
    void takePlace(Durability durability);

  private:
    const FilePlace& target_;
    FilePlace part_;
    FileHandle file_;
    std::int64_t length_ = 0;
    bool inPlace_ = false;
};

}  // namespace vell
