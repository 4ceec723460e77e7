// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"

namespace vell {

class RasApi;

// The entries of the phone book and the dial-up connections that are up. Failures are empty results or false; a
// machine without the service has nothing.
class ModRAS {
  public:
    ModRAS(RasApi& ras, ErrorLog& log);

    // The number of entries of a phone book (empty: the default one), and their names.
    [[nodiscard]] std::int32_t VBRasGetAllEntries(std::string_view phoneBook, std::vector<std::string>& names);
    // The names of the connections that are up.
    [[nodiscard]] std::vector<std::string> GetDialUpConnections();

    // Hangs up every connection of that name, blanks around it apart. True also when there is none.
    bool hangUp(std::string_view name);
    bool hangUpAll();

    // The service's text for one of its codes; empty below 601.
    [[nodiscard]] std::string errorText(std::uint32_t code);

  private:
    struct Connection {
        std::uint32_t Handle;
        std::string Name;
    };
    [[nodiscard]] std::vector<std::string> allEntries(std::string_view phoneBook);
    [[nodiscard]] std::optional<std::vector<Connection>> connections();
    bool hangUpWhere(std::string_view procedure, const std::function<bool(const Connection&)>& wanted);

    RasApi& ras_;
    ErrorLog& log_;
};

}  // namespace vell
