// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "log/EventLog.h"
#include "platform/Clock.h"
#include "store/DayIndex.h"

namespace vell {

class Articles;
class Files;
class News;
class modGlobal;
class TransferProgress;
struct DownloadEntry;
struct Session;

// What a run does with a file once its attempts have ended: it marks a clipping whose three files have all come, and
// prints what is new where that is wished. A mark is written when the disk has the files that it speaks of; making
// sure of that costs a wait, so it is done at most every ten seconds, for all that has come, and at the end.
class ClippingBooks {
  public:
    struct Parts {
        Session& State;
        const Clock& Time;
        Files& Disk;
        EventLog& Log;
        modGlobal& Store;
        Articles& Article;
        TransferProgress& Progress;
        News& Brought;
    };
    explicit ClippingBooks(const Parts& parts) : p_(parts), index_(parts.Disk) {}

    // A run begins.
    void open();
    // It ends. What could not be marked counts as failed.
    void close();
    // The attempts at a file have ended. The files of a clipping come as PDF, TXT, MT; the last one closes it.
    void enter(const DownloadEntry& entry, bool ok);
    // A file has come that is what the list says. `before`: the length that the file had before its turn. One that has
    // it still is no news.
    void printWhenNew(const std::string& name, std::int64_t before);

  private:
    void markArrived();
    void say(const std::string& text);

    Parts p_;
    DayIndex index_;
    bool pdfOk_ = false;
    bool textOk_ = false;
    std::vector<ArrivedClipping> arrived_;  // without their mark yet
    std::vector<std::string> new_;          // of those, the ones that are news
    SteadyTime markedAt_{};
};

}  // namespace vell
