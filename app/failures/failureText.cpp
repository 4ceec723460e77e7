// SPDX-License-Identifier: MIT
#include "app/failures/failureText.h"

#include "base/text.h"
#include "platform/Translations.h"

namespace vell {

namespace {

// "%s" stands for the detail.
std::string sentenceOf(Cause cause, const Translations& words, std::size_t files) {
    switch (cause) {
        case Cause::Unknown:
            return words.translate("An unexpected error: %s");
        case Cause::Offline:
            return words.translate("There is no internet connection.");
        case Cause::NoHost:
            return words.translate("No service is set.");
        case Cause::NameNotFound:
            return words.translate("The name %s was not found on the internet.");
        case Cause::NoAnswer:
            return words.translate("The service at %s did not answer.");
        case Cause::ProxyUnreached:
            return words.translate("The proxy at %s did not answer.");
        case Cause::ConnectionLost:
            return words.translate("The connection to %s broke off.");
        case Cause::BadAnswer:
            return words.translate("The service at %s gave an answer that cannot be used.");
        case Cause::LoginRefused:
            return words.translate("The login was refused.");
        case Cause::ServiceStatus:
            return words.translate("The service answered with a failure: %s");
        case Cause::NotThere:
            return words.translate("The service does not have it.", "The service does not have them.", files);
        case Cause::NoList:
            return words.translate("The list of clippings was damaged.");
        case Cause::WebPage:
            return words.translate("A web page came in its place.", "Web pages came in their place.", files);
        case Cause::WrongLength:
            return words.translate("It came with another length than the list says: %s bytes.");
        case Cause::TakenByOther:
            return words.translate("Another program is fetching it.", "Another program is fetching them.", files);
        case Cause::DiskFull:
            return words.translate("The disk is full.");
        case Cause::NoFolder:
            return words.translate("No download folder is set.");
        case Cause::FolderMissing:
            return words.translate("The folder %s does not exist.");
        case Cause::FolderUnwritable:
            return words.translate("The folder %s cannot be written.");
        case Cause::FileUnwritable:
            return words.translate("A file cannot be written. %s");
    }
    return {};
}

}  // namespace

std::string failureText(const Failure& failure, const Translations& words, std::size_t files) {
    if (failure.Why == Cause::Unknown && failure.Detail.empty())
        return words.translate("It failed for an unknown reason.");
    const std::string sentence = sentenceOf(failure.Why, words, files);
    if (failure.Why == Cause::Offline && !failure.Detail.empty()) return sentence + " " + failure.Detail;
    return Replace(sentence, "%s", failure.Detail);
}

}  // namespace vell
