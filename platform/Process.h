// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace vell {

class Process {
  public:
    virtual ~Process() = default;

    // The program's folder, with or without a backslash at its end: where settings, log and advertisement lie.
    [[nodiscard]] virtual std::string ProgramFolder() const = 0;
    // The folder that holds the user's documents, without a backslash at its end; empty when there is none, or its name
    // has characters that code page 1253 has not.
    [[nodiscard]] virtual std::string DocumentsFolder() const = 0;
    // True when another process works in the same program folder; else this one holds the place until it ends.
    [[nodiscard]] virtual bool IsPreviousInstance() = 0;
    // Of the other one: asks it to show its window, where it has one.
    virtual void RaisePrevious() = 0;
    // Of this one, once it holds the place: what to do when another asks for its window. Called from the loop of the
    // window's toolkit.
    virtual void OnRaise(std::function<void()> raise) = 0;
};

}  // namespace vell
