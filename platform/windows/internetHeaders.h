// SPDX-License-Identifier: MIT
#pragma once

// WinINet's header, as systemHeaders.h has the others.

#include <wininet.h>

#undef HttpAddRequestHeaders
#undef HttpOpenRequest
#undef HttpSendRequest
#undef InternetConnect
#undef InternetDial
#undef InternetGoOnline
#undef InternetOpen
#undef InternetOpenUrl
