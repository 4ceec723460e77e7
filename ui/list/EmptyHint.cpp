// SPDX-License-Identifier: MIT
#include "ui/list/EmptyHint.h"

#include <array>

#include "config/Settings.h"
#include "platform/Translations.h"
#include "ui/numberedText.h"

namespace vell {

namespace {

struct Need {
    std::string Settings::*Field;
    const char* Name;
};

// Only the person knows these.
constexpr std::array personal{Need{&Settings::Host, translatable("host name")},
                              Need{&Settings::Uid, translatable("user name")},
                              Need{&Settings::Pwd, translatable("password")}};

// The names of what a download cannot do without; empty when all is there. Setup proposes a folder by itself: it is
// told of only when nothing else is missing.
std::string missing(const Settings& settings, const Translations& words) {
    std::string names;
    for (const Need& need : personal)
        if ((settings.*need.Field).empty()) names.append(names.empty() ? "" : ", ").append(words.translate(need.Name));
    return names.empty() && settings.LocalDir.empty() ? words.translate("download folder") : names;
}

bool isUntouched(const Settings& settings) {
    return settings.Host.empty() && settings.Uid.empty() && settings.Pwd.empty();
}

EmptyHint setupHint(const std::string& names, bool isNew, const Translations& words) {
    return {isNew ? words.translate("Welcome to Vell") : words.translate("Setup is not complete"),
            Replace(words.translate("To fetch clippings, Vell needs to know:\n%s."), "%s", names),
            EmptyHint::Remedy::Setup};
}

EmptyHint filterHint(std::size_t hidden, const Translations& words) {
    return {words.translate("Nothing passes the filter"),
            numberedText(words, "%d clipping of this day is hidden.", "%d clippings of this day are hidden.", hidden),
            EmptyHint::Remedy::ShowAll};
}

}  // namespace

EmptyHint emptyHint(const Settings& settings, bool hasDays, const std::optional<Date>& chosen, std::size_t dayClippings,
                    const Translations& words) {
    if (dayClippings > 0) return filterHint(dayClippings, words);
    if (const std::string names = missing(settings, words); !names.empty())
        return setupHint(names, isUntouched(settings), words);
    if (!hasDays)
        return {words.translate("No clippings yet"),
                words.translate("Fetch those of today now, or choose other days first."), EmptyHint::Remedy::Download};
    if (!chosen) return {words.translate("No day is chosen"), words.translate("Choose one on the left."), {}};
    return {words.translate("No clippings of this day"),
            Replace(words.translate("Nothing has been fetched for %s."), "%s", chosen->dayName()),
            {}};
}

EmptyHint foundAreHiddenHint(std::size_t found, const Translations& words) {
    return {
        words.translate("Nothing passes the filter"),
        numberedText(words, "%d clipping that was found is hidden.", "%d clippings that were found are hidden.", found),
        EmptyHint::Remedy::ShowAll};
}

EmptyHint findHint(bool isOver, const Translations& words) {
    if (!isOver) return {words.translate("Searching ..."), words.translate("Nothing found so far."), {}};
    return {words.translate("Nothing found"), words.translate("No clipping has all these words."),
            EmptyHint::Remedy::ShowAll};
}

}  // namespace vell
