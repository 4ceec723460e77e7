// SPDX-License-Identifier: MIT
#pragma once

// What the programs end with, for scripts.
namespace vell::exit_code {

inline constexpr int Good = 0;
inline constexpr int Failed = 1;        // a file failed, the list could not be got, or what was asked for was not done
inline constexpr int Usage = 2;         // unknown option, impossible date, wrong value
inline constexpr int NoConnection = 3;  // no internet connection
inline constexpr int AlreadyRunning = 5;
inline constexpr int Interrupted = 130;  // stopped by SIGINT
inline constexpr int Terminated = 143;   // stopped by SIGTERM

}  // namespace vell::exit_code
