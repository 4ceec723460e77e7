// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vell {

// The program's own files, which an update replaces. What is installed is the old program or the new one, whole: who is
// killed while it changes leaves what the next start of any program of this installation brings to its end.
class Installation {
  public:
    virtual ~Installation() = default;

    // What the service calls this system, such as "linux-x86_64".
    [[nodiscard]] virtual std::string PlatformName() const = 0;
    // False for a program that a package manager keeps, or whose files this user cannot replace.
    [[nodiscard]] virtual bool IsOwn() const = 0;
    // The command that upgrades one that is not its own; empty when it is not known.
    [[nodiscard]] virtual std::string UpgradeCommand() const = 0;

    // Puts the programs of an archive in the place of these, once they have proved to be of that version. The old ones
    // are kept until one of the new ones has come up. Raises RunTimeError: then the old ones are in place. Takes a
    // moment, in which nothing else happens.
    virtual void Install(std::string_view archive, std::string_view version) = 0;
    // The running program has come up: what it replaced is not needed any more.
    virtual void CameUp() = 0;
    // A version that was installed and did not come up, and so has given way to the old one. Told once.
    [[nodiscard]] virtual std::optional<std::string> TakePutBack() = 0;
    // Becomes the program as it is installed now, with the arguments of this one. Returns only when it cannot.
    virtual void Restart() = 0;
};

}  // namespace vell
