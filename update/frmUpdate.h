// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "config/Settings.h"
#include "log/EventLog.h"
#include "update/ProgramVersion.h"
#include "update/UpdateFolder.h"
#include "update/UpdateKeys.h"
#include "update/UpdateManifest.h"
#include "update/UpdateTexts.h"

namespace vell {

class UpdateView;
class modHTTP;
class modIni;
struct Platform;

// The search for a newer version and its way to this machine: from the folder that several computers share, else from
// the service. It is put beside the program, checked, and installed at the next start.
class frmUpdate {
  public:
    struct Parts {
        const Platform& Os;
        UpdateView& View;
        modHTTP& Http;
        modIni& Ini;
        EventLog& Log;
        const Settings& Setup;
        const std::string& Version;  // the running one
        std::string Key;             // DER; empty for a program that cannot check who made an update
    };
    explicit frmUpdate(Parts parts);

    // Where the program keeps what is to be installed: backslash at the end of `programFolder`.
    void setProgramFolder(const std::string& programFolder);

    enum class End {
        Nothing,  // there is no newer version
        Told,     // there is one, which the user has been told of
        Ready,    // it is here, and is installed at the next start
        Failed,
    };
    // With the flag of somebody who waits for the answer: then there is one in any case. Without it only a newer
    // version is worth a word, and nobody is kept waiting who is not there.
    End CheckUpdate(bool isAsked);
    // Says only what there is.
    End lookForUpdate();
    // Fetches it without a question.
    End fetchUpdate();

  private:
    enum class Wish { Look, Ask, Fetch };
    struct Offer {
        UpdateManifest Manifest;
        bool IsShared = false;  // it lies in the shared folder
    };

    End check(bool isAsked, Wish wish);
    [[nodiscard]] End take(const Offer& offer, bool isAsked, Wish wish);
    [[nodiscard]] std::optional<Offer> findShared();
    [[nodiscard]] std::optional<Offer> findAtService();
    [[nodiscard]] bool isTaken(const UpdateManifest& manifest);
    [[nodiscard]] bool isWanted(const UpdateManifest& manifest, bool isAsked, Wish wish);
    [[nodiscard]] bool isRefusedVersion(const UpdateManifest& manifest) const;
    [[nodiscard]] bool isReady(const UpdateManifest& manifest) const;
    [[nodiscard]] bool canInstall() const;

    [[nodiscard]] bool fetch(const Offer& offer);
    [[nodiscard]] bool receive(const Offer& offer);
    void copy(const std::string& from, PartFile& part, std::int64_t size);
    void announce(const UpdateManifest& manifest);
    void fillShared(const UpdateManifest& manifest);
    [[nodiscard]] std::optional<UpdateFolder> sharedFolder() const;

    void refuse(const std::string& why, std::string_view detail);
    void answer(const std::string& text, bool isAsked);

    Parts p_;
    UpdateTexts texts_;
    ProgramVersion running_;
    std::optional<UpdateFolder> own_;
    std::optional<UpdateKeys> keys_;
    std::string fault_;  // why the last step failed, for people
};

}  // namespace vell
