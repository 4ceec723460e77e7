// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "log/EventLog.h"
#include "platform/InternetApi.h"

namespace vell {

class Files;
class MessageBoxes;
class PartFile;
class RunFeedback;

// Takes the body of an answer to a part as it comes, so that memory does not grow with the file. It is read and
// reported in steps of 2048 bytes and written in large blocks.
class FileReceiver {
  public:
    FileReceiver(InternetApi& internet, Files& files, MessageBoxes& boxes, RunFeedback& feedback, EventLog& log);

    enum class End { Whole, Cut, NoRoom };
    // The part begins anew. `localPath` names the file that it is to become: where the disk has no room for it the user
    // is asked to make some, and the transfer goes on from there. Raises RunTimeError when the part cannot be written.
    [[nodiscard]] End receive(InternetApi::Object& answer, const std::string& localPath, PartFile& part,
                              std::int32_t& bytesReceived);

  private:
    [[nodiscard]] bool write(const std::string& localPath, PartFile& part, std::string_view bytes, bool isAnnounced);
    [[nodiscard]] bool makeSureOfSpace(const std::string& localPath, std::int64_t bytes);
    [[nodiscard]] bool HasFreeSpace(std::string_view localPath, std::int64_t bytes) const;
    [[nodiscard]] bool wantsRetry(const std::string& localPath, std::int64_t bytes);

    InternetApi& internet_;
    Files& files_;
    MessageBoxes& boxes_;
    RunFeedback& feedback_;
    EventLog& log_;
    std::vector<char> block_;  // kept from file to file
};

}  // namespace vell
