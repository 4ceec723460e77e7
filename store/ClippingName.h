// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vell {

// May this name, given by the service, be that of a clipping's PDF file in the day's folder? No separators, no "..", no
// drive, no control characters, none that a file system reserves, none too long for one.
[[nodiscard]] bool isClippingName(std::string_view name);

// A clipping's three files, in the order in which they are fetched: the page, named as the clipping is, its text and
// its companion, which closes it.
[[nodiscard]] std::array<std::string, 3> clippingForms(std::string_view pdfName);

}  // namespace vell
