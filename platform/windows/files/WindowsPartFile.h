// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/Files.h"
#include "platform/windows/files/FileHandle.h"
#include "platform/windows/files/fileErrors.h"

namespace vell {

// A part that is open for writing to this object alone; others may read, and see it go.
class WindowsPartFile : public PartFile {
  public:
    // Null when another writer has the part.
    [[nodiscard]] static std::unique_ptr<WindowsPartFile> open(const FilePlace& place);  // raises

    WindowsPartFile(FileHandle file, FilePlace place);
    ~WindowsPartFile() override;
    WindowsPartFile(const WindowsPartFile&) = delete;
    WindowsPartFile& operator=(const WindowsPartFile&) = delete;

    [[nodiscard]] std::int64_t Length() const override { return length_; }
    [[nodiscard]] std::string Beginning(std::size_t most) const override;
    void StartAt(std::int64_t offset) override;
    void Write(std::string_view bytes) override;
    void Close() override;
    void Adopt(std::string_view path) override;
    // The disk has it then, which nobody can see to later: a reader may hold it.
    void MoveTo(std::string_view path) override;
    void Discard() override;

  private:
    void cutTo(std::int64_t length);

    FileHandle file_;
    FilePlace place_;
    std::int64_t length_ = 0;
};

}  // namespace vell
