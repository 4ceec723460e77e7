// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "ui/reading/ReadingView.h"

namespace vell {

struct CFtpFile;

// Full paths of the two forms that come with a clipping's page.
[[nodiscard]] std::string textPath(const CFtpFile& clipping);
[[nodiscard]] std::string companionPath(const CFtpFile& clipping);

// The value of a line "KEY: value" of a companion file; empty when there is none. The key in any case.
[[nodiscard]] std::string companionField(std::string_view companion, std::string_view key);
// What the companion file says of the clipping; where it says nothing, what the day's index and folder do.
[[nodiscard]] ClippingHeading headingOf(const CFtpFile& clipping, std::string_view companion);

// Takes off the lines at the front of a text that say again what the heading says: newspaper, page and title.
[[nodiscard]] std::string_view withoutHeading(std::string_view text, const ClippingHeading& heading);

}  // namespace vell
