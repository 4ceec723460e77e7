// SPDX-License-Identifier: MIT
#pragma once

// The system's headers, without the macros that would give our procedures of the same names another one: whatever
// includes them, itself or by way of a library, is compiled with this header in front.

// Before the next one, which has an older version of it.
#include <windows.h>
#include <winsock2.h>

#undef CopyFile
#undef DeleteFile
#undef FormatMessage
#undef GetMessage
#undef MoveFile
#undef Yield
