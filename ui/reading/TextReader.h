// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ftp/listing/CFtpFiles.h"
#include "log/EventLog.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "ui/reading/ReadingView.h"
#include "ui/reading/TextLines.h"

namespace vell {

class Translations;

// Shows the text form of one clipping under what its companion file says of it. The beginning is there at once; a long
// text is read on piece by piece, so that nobody waits for it, and given up when another clipping is shown. Reading
// marks nothing as opened.
class TextReader {
  public:
    // Of a long text; a piece is read and shown in a fraction of what a person notices.
    static constexpr std::size_t pieceSize = std::size_t{32} << 10;

    TextReader(const Files& disk, EventLoop& loop, const Translations& words, EventLog& log);
    ~TextReader();
    TextReader(const TextReader&) = delete;
    TextReader& operator=(const TextReader&) = delete;

    // Where texts are shown from now on; null for nowhere, and then nothing is read.
    void showIn(ReadingView* view);
    // Another clipping, or null for none. The one that is shown already is read again only when its files are others
    // now, as when they come in the middle of a download.
    void show(CFtpFiles::Pointer clipping);
    // More of the text is to come.
    [[nodiscard]] bool isReading() const { return timer_ != 0; }

    struct WholeText {
        std::string Text;    // as the file holds it
        std::string Notice;  // why there is none; empty when there is one
    };
    [[nodiscard]] WholeText wholeText(const CFtpFile& clipping) const;

  private:
    struct Stamps {
        std::string Path;  // of the text
        std::optional<FileStamp> Text;
        std::optional<FileStamp> Companion;

        bool operator==(const Stamps&) const = default;
    };
    [[nodiscard]] Stamps stampsOf(const CFtpFile& clipping) const;
    void begin();
    void readOn();
    void stop();
    template <class Body>
    void orNotice(Body&& body);
    [[nodiscard]] std::string failure() const;
    [[nodiscard]] std::string noText() const;

    const Files& disk_;
    EventLoop& loop_;
    const Translations& words_;
    EventLog& log_;
    ReadingView* view_ = nullptr;
    CFtpFiles::Pointer clipping_;
    std::optional<Stamps> shown_;
    std::int64_t offset_ = 0;  // of what comes next
    TextLines lines_;
    EventLoop::TimerId timer_ = 0;
};

}  // namespace vell
