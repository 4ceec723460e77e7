// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <gio/gio.h>

namespace vell {

// The proxy for an address as `resolver` tells it and curl names it; empty for none. A setting that cannot be had
// within three seconds (a script that is fetched, say) counts as none.
[[nodiscard]] std::string proxyOf(GProxyResolver* resolver, const std::string& address);

}  // namespace vell
