// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

#include "log/EventLog.h"
#include "ui/StatusText.h"

namespace vell {

class EventLoop;
class Files;
class MessageBoxes;
class Translations;

// Puts copies of clippings where people want them. Clippings are meant by their full paths; places elsewhere are in the
// system's own form, UTF-8.
class ClippingSaving {
  public:
    struct Parts {
        Files& Disk;
        EventLoop& Loop;
        MessageBoxes& Boxes;
        EventLog& Log;
        const Translations& Words;
    };
    // `message` says what somebody has to know beyond the status line.
    ClippingSaving(const Parts& parts, StatusText status, StatusText message);

    // The name that a clipping's copy gets unless somebody wants another one.
    [[nodiscard]] static std::string proposedName(const std::string& clipping);
    // Replaces what lies there: the user has agreed to that when he chose the name.
    void saveAs(const std::string& clipping, const std::string& place);
    // Under their own names. What is there already is replaced after a question only. Events happen meanwhile.
    void saveAll(const std::vector<std::string>& clippings, const std::string& folder);

  private:
    struct Copy {
        std::string Clipping;
        std::string Place;
    };
    void save(const std::vector<Copy>& copies);

    Parts p_;
    StatusText status_;
    StatusText message_;
};

}  // namespace vell
