// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ftp/listing/CFtpFiles.h"
#include "ui/find/FindQuery.h"

namespace vell {

class FoldedTexts;

// One search: goes through clippings, and through the text of each where that is wanted, in steps.
class FindPass {
  public:
    FindPass(FindQuery query, bool textsToo, FoldedTexts& texts);

    // To be gone through, too.
    void add(const CFtpFiles& clippings);
    // Goes on for as long as it may: asked after every piece of work, each some tenths of a millisecond. True when all
    // are gone through.
    bool step(const std::function<bool()>& mayGoOn);

    [[nodiscard]] const FindQuery& query() const { return query_; }
    [[nodiscard]] const std::vector<CFtpFiles::Pointer>& hits() const { return hits_; }
    [[nodiscard]] std::size_t done() const { return next_; }
    [[nodiscard]] std::size_t all() const { return clippings_.size(); }

  private:
    void look();

    FindQuery query_;
    bool textsToo_;
    FoldedTexts& texts_;
    std::vector<CFtpFiles::Pointer> clippings_;
    std::vector<CFtpFiles::Pointer> hits_;
    std::size_t next_ = 0;            // to be judged, or under way
    std::optional<FindMatch> match_;  // of the one under way
    std::string path_;                // of its text
};

}  // namespace vell
