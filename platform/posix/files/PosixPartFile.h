// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/Files.h"
#include "platform/posix/files/FileHandle.h"
#include "platform/posix/files/fileErrors.h"

namespace vell {

class PosixFiles;

class PosixPartFile : public PartFile {
  public:
    // Null when another writer has the part. `files` must outlive the object.
    [[nodiscard]] static std::unique_ptr<PosixPartFile> open(PosixFiles& files, const FilePlace& place);  // raises

    PosixPartFile(PosixFiles& files, FileHandle file, FilePlace place, std::int64_t length);
    ~PosixPartFile() override;
    PosixPartFile(const PosixPartFile&) = delete;
    PosixPartFile& operator=(const PosixPartFile&) = delete;

    [[nodiscard]] std::int64_t Length() const override { return length_; }
    [[nodiscard]] std::string Beginning(std::size_t most) const override;
    void StartAt(std::int64_t offset) override;
    void Write(std::string_view bytes) override;
    void Close() override;
    void Adopt(std::string_view path) override;
    void MoveTo(std::string_view path) override;
    void Discard() override;

  private:
    void cutTo(std::int64_t length);

    PosixFiles& files_;
    FileHandle file_;
    FilePlace place_;
    std::int64_t length_ = 0;
};

}  // namespace vell
