// SPDX-License-Identifier: MIT
#include "app/run/LiveUpdate.h"

#include <algorithm>

#include "app/BuildFacts.h"
#include "app/MainView.h"
#include "app/Session.h"
#include "app/failures/failureText.h"
#include "app/progress/TransferProgress.h"
#include "base/base64.h"
#include "base/text.h"
#include "platform/EventLoop.h"
#include "platform/Platform.h"
#include "platform/Translations.h"

namespace vell {

LiveUpdate::LiveUpdate(const Parts& parts)
    : p_(parts),
      http_(p_.Os.Internet, p_.Os.Disk, p_.Os.Boxes, *this, p_.Log, p_.State.Run.Setup),
      update_({p_.Os, *this, http_, p_.Ini, p_.Log, p_.State.Run.Setup, p_.Facts.Version,
               bytesFromBase64(p_.Facts.UpdateKey).value_or("")}),
      pacer_(p_.Os.Time, usualPaintInterval) {}

void LiveUpdate::afterRun() {
    RunContext& run = p_.State.Run;
    if (!run.Setup.AutoUpdateCheck || run.HasAskedForUpdate || isStopped()) return;
    run.HasAskedForUpdate = true;
    fault_ = {};
    (void)update_.CheckUpdate(false);
}

template <class Work>
frmUpdate::End LiveUpdate::asked(Work&& work) {
    if (!p_.State.isIdle() || p_.State.IsEnding) return frmUpdate::End::Failed;
    const ActivityScope updating(p_.State, Activity::Updating);
    p_.State.gStopRequested = false;
    p_.State.Run.Setup = p_.State.Setup;
    fault_ = {};
    return work();
}

frmUpdate::End LiveUpdate::mnuCheckUpdate_Click() {
    return asked([this] { return update_.CheckUpdate(true); });
}

frmUpdate::End LiveUpdate::look() {
    return asked([this] { return update_.lookForUpdate(); });
}

frmUpdate::End LiveUpdate::fetch() {
    return asked([this] { return update_.fetchUpdate(); });
}

bool LiveUpdate::mayAsk() const {
    return !p_.State.isAlone();
}

bool LiveUpdate::isStopped() const {
    return p_.State.gStopRequested || p_.State.IsEnding;
}

void LiveUpdate::tell(std::string_view text) {
    p_.View.displayInfoMessageBox(text);
}

std::string LiveUpdate::exchangeFault() const {
    return fault_ == Failure{} ? std::string() : failureText(fault_, p_.Os.Words);
}

void LiveUpdate::fetchBegins(const UpdateManifest& manifest) {
    fetched_ = manifest;
    bytes_ = -1;
    status_ = p_.Progress.statusText();
}

void LiveUpdate::fetchEnds() {
    p_.View.showProgress(0, 0);
    p_.Progress.StatusBar(status_);
}

void LiveUpdate::HTTPDownloadProgress(std::int32_t bytes) {
    const bool ended = bytes == bytes_;
    bytes_ = bytes;
    if (ended || pacer_.isDue()) pacer_.run([&] { show(bytes); });
    p_.Os.Loop.DoEventsNowAndThen();
}

void LiveUpdate::show(std::int32_t bytes) {
    constexpr std::int64_t kilobyte = 1024, all = 100;
    const int percent =
        static_cast<int>(std::clamp<std::int64_t>(bytes * all / std::max<std::int64_t>(fetched_.Size, 1), 0, all));
    p_.View.showProgress(percent, percent);
    const std::string text = Replace(p_.Os.Words.translate("Fetching version %s"), "%s", fetched_.Version.text()) +
                             " (" + std::to_string(bytes / kilobyte) + "/" + std::to_string(fetched_.Size / kilobyte) +
                             "kb)";
    p_.Progress.StatusBar(text);
    p_.Log.WriteLog("HTTP-->" + text);
}

}  // namespace vell
