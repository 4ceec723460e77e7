// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "app/failures/FailedFile.h"
#include "base/Date.h"
#include "service/Failure.h"

namespace vell {

// How the download of one day went.
struct DaySummary {
    Date Day;
    std::size_t Listed = 0;          // clippings that the service listed
    std::vector<std::string> New{};  // PDF names of the clippings that are complete now and were not before the run, in
                                     // the service's order; one of which a new version has come is among them
    std::vector<FailedFile> FailedFiles{};
    std::optional<Failure> BrokenOff{};  // why the day's files had no turn, or not all: no folder, list or FTP session
};

// What a run brought, for whoever tells people about it. Whole as soon as the run has ended.
struct RunSummary {
    std::vector<DaySummary> Days;     // in the order in which they were fetched; those that had no turn are missing
    std::optional<Failure> NotBegun;  // why no day had its turn
    LocalTime Ended;

    [[nodiscard]] std::size_t newClippings() const { return sum(&DaySummary::New); }
    [[nodiscard]] std::size_t failedFiles() const { return sum(&DaySummary::FailedFiles); }

  private:
    template <class Member>
    [[nodiscard]] std::size_t sum(Member member) const {
        std::size_t all = 0;
        for (const DaySummary& day : Days)
            all += (day.*member).size();
        return all;
    }
};

}  // namespace vell
