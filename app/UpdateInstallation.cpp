// SPDX-License-Identifier: MIT
#include "app/UpdateInstallation.h"

#include "config/modIni.h"
#include "platform/MessageBoxes.h"

namespace vell {

bool takePendingUpdate(modIni& ini, MessageBoxes& boxes) {
    std::string update;
    ini.VellIniReadString("General", "Update", update);
    if (update != "1") return false;
    boxes.Show("An update file is ready to be installed...", programCaption, Buttons::Ok, BoxIcon::None);
    ini.VellIniWriteString("General", "Update", "0");
    return true;
}

void tellFinishedUpdate(modIni& ini, MessageBoxes& boxes, const std::string& version) {
    std::string updateVersion;
    ini.VellIniReadString("Update", "UpdateVersion", updateVersion);
    if (updateVersion != version) return;
    boxes.Show("Installation completed succesfully", programCaption, Buttons::Ok, BoxIcon::None);
    ini.VellIniWriteString("Update", "UpdateVersion", "");
}

}  // namespace vell
