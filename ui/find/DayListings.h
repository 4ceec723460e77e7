// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <optional>

#include "base/Date.h"
#include "ftp/listing/CFtpFiles.h"
#include "platform/Files.h"

namespace vell {

class modGlobal;

// The clippings of days, read when they are first asked for and again when a day's folder has changed. So many
// clippings are kept; the rest is read each time.
class DayListings {
  public:
    DayListings(modGlobal& store, const Files& disk, std::size_t mostClippings)
        : store_(store), disk_(disk), most_(mostClippings) {}

    // Raises RunTimeError when there is no download folder.
    [[nodiscard]] CFtpFiles of(const Date& day);

  private:
    struct Listing {
        std::optional<FileStamp> Folder;
        CFtpFiles Clippings;
    };
    modGlobal& store_;
    const Files& disk_;
    std::size_t most_;
    std::size_t kept_ = 0;  // clippings
    std::map<Date, Listing> listings_;
};

}  // namespace vell
