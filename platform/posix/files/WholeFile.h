// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <sys/types.h>

#include "platform/Files.h"
#include "platform/posix/files/FileHandle.h"

namespace vell {

// A file being written beside the one that it shall become. Unless it took that one's place it is removed.
class WholeFile {
  public:
    explicit WholeFile(const FilePlace& target);  // raises
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void write(std::string_view bytes, Durability durability);
    void takePlace(Durability durability);

  private:
    const FilePlace& target_;
    FilePlace part_;
    FileHandle file_;
    bool inPlace_ = false;
};

}  // namespace vell
