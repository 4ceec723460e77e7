// SPDX-License-Identifier: MIT
#include "update/UpdateTexts.h"

#include "base/text.h"
#include "platform/Translations.h"

namespace vell {

std::string UpdateTexts::isNewest(const std::string& version) const {
    return Replace(words_.translate("There is no newer version than this one, %s."), "%s", version);
}

std::string UpdateTexts::notAsked(const std::string& why) const {
    const std::string text = words_.translate("The service could not be asked for a newer version.");
    return why.empty() ? text : text + ' ' + why;
}

std::string UpdateTexts::refused(const std::string& why) const {
    return words_.translate("What the service offers as a newer version is not taken.") + ' ' + why;
}

std::string UpdateTexts::available(const UpdateManifest& manifest) const {
    return Replace(words_.translate("Version %s is available."), "%s", manifest.Version.text());
}

std::string UpdateTexts::question(const UpdateManifest& manifest) const {
    const std::string about = manifest.Notes.empty() ? "" : "\r\n\r\n" + manifest.Notes;
    return available(manifest) + about + "\r\n\r\n" +
           words_.translate("Fetch it now? It is installed when the program starts the next time.");
}

std::string UpdateTexts::elsewhere(const UpdateManifest& manifest, const std::string& command,
                                   const std::string& host) const {
    const std::string how =
        command.empty() ? Replace(words_.translate("This program does not install it by itself. You find it at %s"),
                                  "%s", "http://" + host + "/")
                        : Replace(words_.translate("This command installs it: %s"), "%s", command);
    return available(manifest) + ' ' + how;
}

std::string UpdateTexts::ready(const UpdateManifest& manifest) const {
    return Replace(words_.translate("Version %s is ready. It is installed when the program starts the next time."),
                   "%s", manifest.Version.text());
}

std::string UpdateTexts::notFetched(const UpdateManifest& manifest, const std::string& why) const {
    const std::string text =
        Replace(words_.translate("Version %s could not be fetched."), "%s", manifest.Version.text());
    return why.empty() ? text : text + ' ' + why;
}

std::string UpdateTexts::notInstalled(const std::string& why) const {
    return words_.translate("The newer version could not be installed. The program stays as it is.") + ' ' + why;
}

std::string UpdateTexts::putBack(const std::string& version) const {
    return Replace(words_.translate("Version %s did not start. The version before it is back."), "%s", version);
}

std::string UpdateTexts::notSigned() const {
    return words_.translate("Its maker has not signed it.");
}

std::string UpdateTexts::doesNotFit(Fitness fitness) const {
    switch (fitness) {
        case Fitness::ForOthers:
            return words_.translate("It is for another system.");
        case Fitness::NotNewer:
            return words_.translate("It is not newer than this one.");
        case Fitness::StepsMissing:
            return words_.translate("This version is too old for it. Install it by hand.");
        case Fitness::Newer:
            break;
    }
    return {};
}

std::string UpdateTexts::damaged() const {
    return words_.translate("The file is not the one that its maker has signed.");
}

std::string UpdateTexts::beingFetched() const {
    return words_.translate("Another program fetches it just now.");
}

}  // namespace vell
