// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "update/UpdateManifest.h"

namespace vell {

class Translations;

// What people are told of updates, in their language.
class UpdateTexts {
  public:
    explicit UpdateTexts(const Translations& words) : words_(words) {}

    [[nodiscard]] std::string isNewest(const std::string& version) const;
    [[nodiscard]] std::string notAsked(const std::string& why) const;
    [[nodiscard]] std::string refused(const std::string& why) const;
    [[nodiscard]] std::string question(const UpdateManifest& manifest) const;
    [[nodiscard]] std::string available(const UpdateManifest& manifest) const;
    // Of a program that does not update itself. `command` upgrades it; where there is none, `host` has the new one.
    [[nodiscard]] std::string elsewhere(const UpdateManifest& manifest, const std::string& command,
                                        const std::string& host) const;
    [[nodiscard]] std::string ready(const UpdateManifest& manifest) const;
    [[nodiscard]] std::string notFetched(const UpdateManifest& manifest, const std::string& why) const;
    [[nodiscard]] std::string notInstalled(const std::string& why) const;
    [[nodiscard]] std::string putBack(const std::string& version) const;

    // Why a manifest is not taken.
    [[nodiscard]] std::string notSigned() const;
    [[nodiscard]] std::string doesNotFit(Fitness fitness) const;
    [[nodiscard]] std::string damaged() const;
    [[nodiscard]] std::string beingFetched() const;

  private:
    const Translations& words_;
};

}  // namespace vell
