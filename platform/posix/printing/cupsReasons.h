// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vell {

// Why nothing can be printed, and the remedy, as users read it.
namespace cups_reason {
inline constexpr std::string_view NotInstalled =
    "The printers are not known: CUPS is not installed. Install the package cups-client.";
inline constexpr std::string_view NoAnswer = "The print server does not answer. Make sure that CUPS is running.";
inline constexpr std::string_view NoDefault =
    "There is no default printer. Choose one in the system's printer settings, or with 'lpoptions -d NAME'.";
inline constexpr std::string_view Refused =
    "CUPS did not take the document. Look at the printers in the system's printer settings, or with 'lpstat -t'.";
}  // namespace cups_reason

}  // namespace vell
