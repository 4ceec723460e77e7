// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "demo/Options.h"
#include "demo/ftp/FtpTree.h"

namespace vell::demo {

// The text that LIST sends: a line for each entry in the form asked for, ended by CR LF. `now` decides which entries
// of the Unix form show a time of day and which, older than half a year, a year.
[[nodiscard]] std::string listing(const std::vector<FtpEntry>& entries, ListForm form, std::time_t now);

// The text that NLST sends.
[[nodiscard]] std::string nameListing(const std::vector<FtpEntry>& entries);

// "*" stands for any characters, "?" for one; case does not count.
[[nodiscard]] bool matchesPattern(std::string_view pattern, std::string_view name);

}  // namespace vell::demo
