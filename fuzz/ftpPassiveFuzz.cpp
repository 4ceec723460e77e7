// SPDX-License-Identifier: MIT
#include <algorithm>

#include "ftp/control/PassiveReply.h"
#include "fuzz/fuzzing.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto address = vell::parsePassiveReply(vell::fuzz::textOf(data, size));
    if (!address) return 0;
    vell::fuzz::must(address->Port != 0);
    vell::fuzz::must(address->Host.size() >= 7 && address->Host.size() <= 15);
    vell::fuzz::must(std::count(address->Host.begin(), address->Host.end(), '.') == 3);
    vell::fuzz::must(address->Host.find_first_not_of("0123456789.") == std::string::npos);
    return 0;
}
