// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "log/EventLog.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"

namespace vell {

class ClippingsBrowser;
struct ClippingRow;

// Finds out on which page of its newspaper each clipping of the list stood, while somebody wants to see it. That is
// told by the clippings' companion files alone: they are read in short steps in the event loop, and what they say is
// remembered for the session.
class PageReader {
  public:
    struct Parts {
        ClippingsBrowser& Browser;
        const Files& Disk;
        EventLoop& Loop;
        const Clock& Time;
        EventLog& Log;
    };
    explicit PageReader(const Parts& parts);
    ~PageReader();
    PageReader(const PageReader&) = delete;
    PageReader& operator=(const PageReader&) = delete;

    void want(bool wanted);

  private:
    struct Known {
        std::optional<FileStamp> Companion;
        std::string Page;
    };
    void complete(std::vector<ClippingRow>& rows);
    void begin();
    void readOn();
    void read(std::size_t row);
    void end();

    Parts p_;
    bool wanted_ = false;
    std::unordered_map<std::string, Known> known_;  // by the clipping's path
    std::size_t next_ = 0;                          // row of the list
    bool hasNews_ = false;
    EventLoop::TimerId timer_ = 0;
};

}  // namespace vell
