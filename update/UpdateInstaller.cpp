// SPDX-License-Identifier: MIT
#include "update/UpdateInstaller.h"

#include <vector>

#include "config/modIni.h"
#include "platform/Installation.h"
#include "platform/MessageBoxes.h"
#include "platform/Platform.h"

namespace vell {

UpdateInstaller::UpdateInstaller(const Platform& os, modIni& ini, EventLog& log, const std::string& version,
                                 const std::string& key, const std::string& programFolder)
    : os_(os),
      ini_(ini),
      log_(log),
      texts_(os.Words),
      running_(ProgramVersion::fromText(version).value_or(ProgramVersion{})),
      ready_(programFolder + "UPDATE", os.Own.PlatformName(), os.Disk, os.Signing),
      keys_(key, programFolder, os.Disk, os.Signing) {}

bool UpdateInstaller::install(std::string& fault) {
    fault.clear();
    ini_.VellIniWriteString("General", "Update", "0");
    bool isInstalled = false;
    try {
        isInstalled = replaceProgram(fault);
    } catch (...) {
        const RunTimeError error = currentError();
        log_.LogError(error, "InstallUpdate()");
        fault = error.Description;
    }
    if (!isInstalled) rememberFailure(version_);
    if (!isInstalled) fault = texts_.notInstalled(fault);
    ready_.clear();
    return isInstalled;
}

bool UpdateInstaller::replaceProgram(std::string& fault) {
    const auto manifest = ready_.manifest();
    if (manifest) version_ = manifest->Version.text();
    const auto refuse = [&](const std::string& why) {
        fault = why;
        return false;
    };
    if (!manifest || !ready_.isArchive(ready_.pathOf(manifest->File), *manifest)) return refuse(texts_.damaged());
    if (!keys_.hasSigned(*manifest)) return refuse(texts_.notSigned());
    const Fitness fitness = fitnessOf(*manifest, running_, os_.Own.PlatformName());
    if (fitness != Fitness::Newer) return refuse(texts_.doesNotFit(fitness));
    log_.WriteLog("Installing version " + version_);
    os_.Own.Install(ready_.pathOf(manifest->File), version_);
    return true;
}

void UpdateInstaller::rememberFailure(const std::string& version) {
    ini_.VellIniWriteStrings([&] {
        return std::vector<IniEdit>{{"Update", "UpdateVersion", ""}, {"Update", "FailedVersion", version}};
    });
}

void UpdateInstaller::tellPutBack() {
    const auto version = os_.Own.TakePutBack();
    if (!version) return;
    rememberFailure(*version);
    os_.Boxes.Show(texts_.putBack(*version), programCaption, Buttons::Ok, BoxIcon::Warning);
}

}  // namespace vell
