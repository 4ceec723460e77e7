// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/posix/PosixFiles.h"

namespace vell::test {

// The real files, until a path holds `Trouble`: then it can be neither written nor deleted.
class TroubledFiles : public PosixFiles {
  public:
    void WriteWhole(std::string_view path, std::string_view bytes, Durability durability) override {
        fail(path);
        PosixFiles::WriteWhole(path, bytes, durability);
    }
    void ReplaceByte(std::string_view path, std::int64_t offset, char byte) override {
        fail(path);
        PosixFiles::ReplaceByte(path, offset, byte);
    }
    void DeleteFile(std::string_view path) override {
        fail(path);
        PosixFiles::DeleteFile(path);
    }
    [[nodiscard]] std::string ReadFile(std::string_view path) const override {
        ++Reads;
        return PosixFiles::ReadFile(path);
    }
    [[nodiscard]] std::optional<std::uint64_t> FreeBytes(std::string_view path) const override {
        return Free ? Free() : PosixFiles::FreeBytes(path);
    }

    std::string Trouble;
    std::function<std::optional<std::uint64_t>()> Free;
    mutable int Reads = 0;

  private:
    void fail(std::string_view path) const {
        if (!Trouble.empty() && path.find(Trouble) != std::string_view::npos)
            throw RunTimeError(error_number::PermissionDenied, "Permission denied: " + std::string(path), "Vell", 13);
    }
};

}  // namespace vell::test
