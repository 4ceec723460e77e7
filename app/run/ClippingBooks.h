// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "log/EventLog.h"
#include "store/DayIndex.h"

namespace vell {

class Articles;
class Files;
class modGlobal;
class TransferProgress;
struct Session;

// What a run does with a file once its attempts have ended: it marks a clipping whose three files have all come, and
// prints what is new where that is wished.
class ClippingBooks {
  public:
    struct Parts {
        Session& State;
        Files& Disk;
        EventLog& Log;
        modGlobal& Store;
        Articles& Article;
        TransferProgress& Progress;
    };
    explicit ClippingBooks(const Parts& parts) : p_(parts), index_(parts.Disk) {}

    // A run begins.
    void open();
    // The attempts at a file have ended. The files of a clipping come as PDF, TXT, MT; the last one closes it.
    void enter(const std::string& name, bool ok);
    // `before`: the length that the file had before its turn. One that has it still is no news.
    void printWhenNew(const std::string& name, std::int64_t before);

  private:
    void markDownloaded(const std::string& pdfName);
    void say(const std::string& text);

    Parts p_;
    DayIndex index_;
    bool pdfOk_ = false;
    bool textOk_ = false;
};

}  // namespace vell
