// SPDX-License-Identifier: MIT
#pragma once

// The implementations for the system that is built for, by names that hold for every system: for what puts single ones
// together, as tests do. Programs take all of them from SystemPlatform.

#ifdef _WIN32
#include "platform/windows/files/WindowsFiles.h"
#include "platform/windows/files/ini/WindowsIniFile.h"
#include "platform/windows/internet/WinInetInternet.h"
#include "platform/windows/program/SystemClock.h"
#include "platform/windows/update/CngSignatures.h"
#else
#include "platform/posix/files/PosixFiles.h"
#include "platform/posix/files/ini/PosixIniFile.h"
#include "platform/posix/internet/CurlInternet.h"
#include "platform/posix/program/SystemClock.h"
#include "platform/posix/update/OpenSslSignatures.h"
#endif

namespace vell {

#ifdef _WIN32
using SystemFiles = WindowsFiles;
using SystemIniFile = WindowsIniFile;
using SystemInternet = WinInetInternet;
using SystemSignatures = CngSignatures;
#else
using SystemFiles = PosixFiles;
using SystemIniFile = PosixIniFile;
using SystemInternet = CurlInternet;
using SystemSignatures = OpenSslSignatures;
#endif

}  // namespace vell
