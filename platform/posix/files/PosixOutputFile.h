// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Files.h"
#include "platform/posix/files/FileHandle.h"

namespace vell {

// Collects small writes: a transfer hands on 2 KB at a time, and a system call for each costs more than the transfer.
class PosixOutputFile : public OutputFile {
  public:
    PosixOutputFile(FileHandle file, FilePlace place);
    ~PosixOutputFile() override;
    PosixOutputFile(const PosixOutputFile&) = delete;
    PosixOutputFile& operator=(const PosixOutputFile&) = delete;

    void Write(std::string_view bytes) override;
    void Close() override;

  private:
    void writeCollected();

    FileHandle file_;
    FilePlace place_;
    std::string collected_;
};

}  // namespace vell
