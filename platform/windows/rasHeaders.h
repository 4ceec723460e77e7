// SPDX-License-Identifier: MIT
#pragma once

// The headers of the remote access service, as systemHeaders.h has the others.

#include <ras.h>
#include <raserror.h>

#undef RasEnumConnections
#undef RasEnumEntries
#undef RasGetErrorString
#undef RasHangUp
