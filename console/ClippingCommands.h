// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Date.h"

namespace vell {

class ConsoleView;
class EventLoop;
class Screen;
class Terminal;
class frmMain;
struct ClippingRow;
struct CommandLine;

// The commands for the clippings of one day: lists, shows, opens, marks, prints or deletes them. Each gives the exit
// code.
class ClippingCommands {
  public:
    ClippingCommands(frmMain& program, EventLoop& loop, const ConsoleView& view, const Terminal& terminal,
                     Screen& screen);

    [[nodiscard]] int list(const CommandLine& line);
    [[nodiscard]] int open(const CommandLine& line);
    [[nodiscard]] int show(const CommandLine& line);
    [[nodiscard]] int mark(const CommandLine& line);
    [[nodiscard]] int print(const CommandLine& line);
    [[nodiscard]] int deleteDay(const CommandLine& line);

  private:
    // The newest day without a day of the user's. False, and told, when there is none.
    [[nodiscard]] bool chooseDay(const std::optional<Date>& day);
    // Those of the chosen day that the command line asks for.
    [[nodiscard]] std::vector<ClippingRow> wantedRows(const CommandLine& line);
    [[nodiscard]] int printAll(const CommandLine& line);
    [[nodiscard]] int printCategories(const CommandLine& line);
    [[nodiscard]] int printFiles(const CommandLine& line);
    // What `act` does with each of the files that the user has named, by their row in the list.
    [[nodiscard]] int forEachFile(const CommandLine& line, const std::function<bool(std::size_t)>& act);
    [[nodiscard]] std::optional<std::size_t> rowOf(const std::string& utf8Name) const;
    void tellUnlisted(std::string_view kind, const std::string& utf8Name, const std::string& options);
    // After a question that was answered with no: says so when nobody was there to answer it.
    void tellUnasked(const CommandLine& line);

    frmMain& program_;
    EventLoop& loop_;
    const ConsoleView& view_;
    const Terminal& terminal_;
    Screen& screen_;
};

}  // namespace vell
