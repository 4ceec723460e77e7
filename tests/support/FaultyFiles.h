// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

#include "base/errors.h"
#include "platform/posix/files/PosixFiles.h"

namespace vell::test {

// The real files, of which the n-th operation fails; the operations of an open part count, too. To try every place of a
// procedure at which the disk can fail, let n rise until nothing fails any more.
class FaultyFiles : public PosixFiles {
  public:
    // 1 is the next operation.
    void failAt(int n) { *left_ = n; }
    // True when the failure has come.
    [[nodiscard]] bool hasFailed() const { return *left_ <= 0; }

    std::string ReadFile(std::string_view path) const override {
        count(*left_);
        return PosixFiles::ReadFile(path);
    }
    void WriteWhole(std::string_view path, std::string_view bytes, Durability durability) override {
        count(*left_);
        PosixFiles::WriteWhole(path, bytes, durability);
    }
    std::unique_ptr<PartFile> OpenPart(std::string_view path) override {
        count(*left_);
        auto real = PosixFiles::OpenPart(path);
        return real ? std::make_unique<Part>(std::move(real), left_) : nullptr;
    }

  private:
    class Part : public PartFile {
      public:
        Part(std::unique_ptr<PartFile> real, std::shared_ptr<int> left)
            : real_(std::move(real)), left_(std::move(left)) {}
        std::int64_t Length() const override { return real_->Length(); }
        std::string Beginning(std::size_t most) const override { return counted().Beginning(most); }
        void StartAt(std::int64_t offset) override { counted().StartAt(offset); }
        void Write(std::string_view bytes) override { counted().Write(bytes); }
        void Close() override { counted().Close(); }
        void Adopt(std::string_view path) override { counted().Adopt(path); }
        void MoveTo(std::string_view path) override { counted().MoveTo(path); }
        void Discard() override { counted().Discard(); }

      private:
        [[nodiscard]] PartFile& counted() const {
            count(*left_);
            return *real_;
        }

        std::unique_ptr<PartFile> real_;
        std::shared_ptr<int> left_;
    };

    static void count(int& left) {
        if (--left == 0) throw RunTimeError(error_number::DiskFull, "Disk full");
    }

    std::shared_ptr<int> left_ = std::make_shared<int>(1'000'000'000);
};

}  // namespace vell::test
