// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

#include "base/errors.h"
#include "platform/Files.h"

namespace vell::test {

// Files of which the n-th operation fails. Counted is whatever can raise, the writes and the closing of an open file
// included. To try every place of a procedure at which the disk can fail, let n rise until nothing fails any more.
class FaultyFiles : public Files {
  public:
    explicit FaultyFiles(Files& real) : real_(real) {}

    // 1 is the next operation.
    void failAt(int n, RunTimeError error = {error_number::DiskFull, "Disk full"}) {
        faults_->Left = n;
        faults_->Error = std::move(error);
    }
    // True when the failure has come.
    [[nodiscard]] bool hasFailed() const { return faults_->Left <= 0; }

    bool PathExists(std::string_view path) const override { return real_.PathExists(path); }
    std::optional<std::int64_t> FileSize(std::string_view path) const override { return real_.FileSize(path); }
    std::optional<FileStamp> Stamp(std::string_view path) const override { return real_.Stamp(path); }
    std::optional<std::uint64_t> FreeBytes(std::string_view path) const override { return real_.FreeBytes(path); }

    std::vector<Entry> Enumerate(std::string_view folder, std::string_view pattern, Kind kind) const override {
        faults_->count();
        return real_.Enumerate(folder, pattern, kind);
    }
    std::string ReadFile(std::string_view path) const override {
        faults_->count();
        return real_.ReadFile(path);
    }
    void WriteWhole(std::string_view path, std::string_view bytes, Durability durability) override {
        faults_->count();
        real_.WriteWhole(path, bytes, durability);
    }
    void ReplaceByte(std::string_view path, std::int64_t offset, char byte) override {
        faults_->count();
        real_.ReplaceByte(path, offset, byte);
    }
    void Append(std::string_view path, std::string_view bytes) override {
        faults_->count();
        real_.Append(path, bytes);
    }
    std::unique_ptr<OutputFile> OpenForWriting(std::string_view path, std::int64_t offset) override {
        faults_->count();
        return std::make_unique<Output>(real_.OpenForWriting(path, offset), faults_);
    }
    std::unique_ptr<PartFile> OpenPart(std::string_view path) override {
        faults_->count();
        auto real = real_.OpenPart(path);
        return real ? std::make_unique<Part>(std::move(real), faults_) : nullptr;
    }
    void Flush(std::string_view folder) override {
        faults_->count();
        real_.Flush(folder);
    }
    void MakePrivateFile(std::string_view path) override {
        faults_->count();
        real_.MakePrivateFile(path);
    }
    void DeleteFile(std::string_view path) override {
        faults_->count();
        real_.DeleteFile(path);
    }
    void MakeFolder(std::string_view path) override {
        faults_->count();
        real_.MakeFolder(path);
    }
    void RemoveFolder(std::string_view path) override {
        faults_->count();
        real_.RemoveFolder(path);
    }

  private:
    struct Faults {
        int Left = 1'000'000'000;
        RunTimeError Error{0, ""};
        void count() {
            if (--Left == 0) throw Error;
        }
    };
    class Output : public OutputFile {
      public:
        Output(std::unique_ptr<OutputFile> real, std::shared_ptr<Faults> faults)
            : real_(std::move(real)), faults_(std::move(faults)) {}
        void Write(std::string_view bytes) override {
            faults_->count();
            real_->Write(bytes);
        }
        void Close() override {
            faults_->count();
            real_->Close();
        }

      private:
        std::unique_ptr<OutputFile> real_;
        std::shared_ptr<Faults> faults_;
    };

    class Part : public PartFile {
      public:
        Part(std::unique_ptr<PartFile> real, std::shared_ptr<Faults> faults)
            : real_(std::move(real)), faults_(std::move(faults)) {}
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
            faults_->count();
            return *real_;
        }

        std::unique_ptr<PartFile> real_;
        std::shared_ptr<Faults> faults_;
    };

    Files& real_;
    std::shared_ptr<Faults> faults_ = std::make_shared<Faults>();
};

}  // namespace vell::test
