// SPDX-License-Identifier: MIT
#include "update/frmUpdate.h"

#include <algorithm>
#include <utility>

#include "config/modIni.h"
#include "platform/Files.h"
#include "platform/Installation.h"
#include "platform/MessageBoxes.h"
#include "platform/Platform.h"
#include "service/modHTTP.h"
#include "update/LimitedPart.h"
#include "update/UpdateView.h"

namespace vell {

namespace {

constexpr std::string_view updateScript = "/vell/vellUpdate.asp";
constexpr std::string_view updateAddress = "/vell/update/";
constexpr std::size_t copyStep{262'144};

// A part that has not become a file goes with what has come of it.
class Arrival {
  public:
    explicit Arrival(PartFile& part) : part_(part) {}
    ~Arrival() {
        if (!isTaken_) part_.Discard();
    }
    Arrival(const Arrival&) = delete;
    Arrival& operator=(const Arrival&) = delete;
    void taken() { isTaken_ = true; }

  private:
    PartFile& part_;
    bool isTaken_ = false;
};

// What goes wrong is logged, and is the reason that people are told.
class FaultLog : public ErrorLog {
  public:
    FaultLog(ErrorLog& log, std::string& fault) : log_(log), fault_(fault) {}
    void LogError(const RunTimeError& error, std::string_view procedure) noexcept override {
        log_.LogError(error, procedure);
        try {
            if (fault_.empty()) fault_ = error.Description;
        } catch (const std::exception&) {
            return;  // it is in the log
        }
    }

  private:
    ErrorLog& log_;
    std::string& fault_;
};

}  // namespace

frmUpdate::frmUpdate(Parts parts)
    : p_(std::move(parts)),
      texts_(p_.Os.Words),
      running_(ProgramVersion::fromText(p_.Version).value_or(ProgramVersion{})) {}

void frmUpdate::setProgramFolder(const std::string& programFolder) {
    own_.emplace(programFolder + "UPDATE", p_.Os.Own.PlatformName(), p_.Os.Disk, p_.Os.Signing);
    keys_.emplace(p_.Key, programFolder, p_.Os.Disk, p_.Os.Signing);
}

frmUpdate::End frmUpdate::CheckUpdate(bool isAsked) {
    return check(isAsked, Wish::Ask);
}

frmUpdate::End frmUpdate::lookForUpdate() {
    return check(true, Wish::Look);
}

frmUpdate::End frmUpdate::fetchUpdate() {
    return check(true, Wish::Fetch);
}

frmUpdate::End frmUpdate::check(bool isAsked, Wish wish) {
    return trap(p_.Log, "CheckUpdate()", End::Failed, [&] {
        p_.Log.WriteLog("Looking for a newer version than " + p_.Version);
        fault_.clear();
        if (const auto shared = findShared()) {
            const End end = take(*shared, isAsked, wish);
            if (end != End::Failed) return end;
            if (wish == Wish::Ask) wish = Wish::Fetch;  // the question has had its answer
        }
        fault_.clear();
        if (const auto offer = findAtService()) return take(*offer, isAsked, wish);
        answer(fault_.empty() ? texts_.isNewest(p_.Version) : fault_, isAsked);
        return fault_.empty() ? End::Nothing : End::Failed;
    });
}

std::optional<UpdateFolder> frmUpdate::sharedFolder() const {
    if (!p_.Setup.AutoUpdateServer || p_.Setup.LocalDir.empty() || keys_->isNone()) return std::nullopt;
    UpdateFolder shared(p_.Setup.LocalDir + "\\UPDATE", p_.Os.Own.PlatformName(), p_.Os.Disk, p_.Os.Signing);
    if (p_.Os.Disk.SystemPath(shared.path()) == p_.Os.Disk.SystemPath(own_->path())) return std::nullopt;
    return shared;
}

std::optional<frmUpdate::Offer> frmUpdate::findShared() {
    const auto shared = sharedFolder();
    if (!shared) return std::nullopt;
    auto manifest = shared->manifest();
    if (!manifest || !isTaken(*manifest) || !shared->hasFile(*manifest)) return std::nullopt;
    return Offer{std::move(*manifest), true};
}

std::optional<frmUpdate::Offer> frmUpdate::findAtService() {
    std::string body, headers;
    const std::string form = "vellVersion=" + p_.Version + "&platform=" + p_.Os.Own.PlatformName();
    if (!p_.Http.OpenUrl("POST", p_.Setup.Host, updateScript, form, body, headers)) {
        fault_ = texts_.notAsked(p_.View.exchangeFault());
        return std::nullopt;
    }
    ManifestText answer = readManifest(body);
    if (answer.What == ManifestText::Kind::Unreadable) refuse(texts_.damaged(), answer.Fault);
    if (answer.What != ManifestText::Kind::Manifest || !isTaken(answer.Manifest)) return std::nullopt;
    return Offer{std::move(answer.Manifest), false};
}

bool frmUpdate::isTaken(const UpdateManifest& manifest) {
    if (!keys_->isNone() && !keys_->hasSigned(manifest)) {
        refuse(texts_.notSigned(), "the signature is not its maker's");
        return false;
    }
    const Fitness fitness = fitnessOf(manifest, running_, p_.Os.Own.PlatformName());
    if (fitness == Fitness::NotNewer) p_.Log.WriteLog("\t\tVersion " + manifest.Version.text() + " is not newer");
    if (fitness == Fitness::ForOthers || fitness == Fitness::StepsMissing)
        refuse(texts_.doesNotFit(fitness), manifest.Version.text() + " for " + manifest.Platform);
    return fitness == Fitness::Newer;
}

void frmUpdate::refuse(const std::string& why, std::string_view detail) {
    p_.Log.WriteLog("\t\tThe update is refused: " + std::string(detail));
    fault_ = texts_.refused(why);
}

// Who waits for an answer gets a box; to others only what has happened is worth a word.
void frmUpdate::answer(const std::string& text, bool isAsked) {
    p_.Log.WriteLog("\t\t" + text);
    if (isAsked) p_.Os.Boxes.Show(text, programCaption, Buttons::Ok, BoxIcon::None);
}

bool frmUpdate::canInstall() const {
    return !keys_->isNone() && p_.Os.Own.IsOwn();
}

frmUpdate::End frmUpdate::take(const Offer& offer, bool isAsked, Wish wish) {
    const UpdateManifest& manifest = offer.Manifest;
    const auto say = [&](const std::string& text) {
        answer(text, isAsked);
        if (!isAsked) p_.View.tell(text);
    };
    if (!canInstall()) {
        say(texts_.elsewhere(manifest, p_.Os.Own.UpgradeCommand(), p_.Setup.Host));
        return End::Told;
    }
    if (isReady(manifest)) {
        answer(texts_.ready(manifest), isAsked);
        return End::Ready;
    }
    if (!isWanted(manifest, isAsked, wish)) return End::Told;
    if (fetch(offer)) {
        say(texts_.ready(manifest));
        return End::Ready;
    }
    if (!offer.IsShared && !p_.View.isStopped()) answer(texts_.notFetched(manifest, fault_), isAsked);
    return End::Failed;
}

bool frmUpdate::isWanted(const UpdateManifest& manifest, bool isAsked, Wish wish) {
    if (wish == Wish::Fetch) return true;
    if (wish == Wish::Look) {
        answer(texts_.available(manifest), isAsked);
        return false;
    }
    if (!isAsked && isRefusedVersion(manifest)) {
        p_.Log.WriteLog("\t\tVersion " + manifest.Version.text() + " could not be installed before");
        return false;
    }
    if (!isAsked && !p_.Setup.AutoUpdateNotify) return true;
    if (!isAsked && !p_.View.mayAsk()) {
        p_.View.tell(texts_.available(manifest));
        return false;
    }
    return p_.Os.Boxes.Show(texts_.question(manifest), programCaption, Buttons::YesNo, BoxIcon::Question) ==
           Answer::Yes;
}

bool frmUpdate::isRefusedVersion(const UpdateManifest& manifest) const {
    std::string version;
    return p_.Ini.VellIniReadString("Update", "FailedVersion", version) && version == manifest.Version.text();
}

bool frmUpdate::isReady(const UpdateManifest& manifest) const {
    std::string update, version;
    p_.Ini.VellIniReadString("General", "Update", update);
    p_.Ini.VellIniReadString("Update", "UpdateVersion", version);
    const auto here = own_->manifest();
    return update == "1" && version == manifest.Version.text() && here && here->Sha256 == manifest.Sha256 &&
           own_->hasFile(*here);
}

bool frmUpdate::fetch(const Offer& offer) {
    fault_.clear();
    p_.View.fetchBegins(offer.Manifest);
    FaultLog log(p_.Log, fault_);
    const bool isHere = trap(log, "FetchUpdate()", false, [&] { return receive(offer); });
    p_.View.fetchEnds();
    own_->tidy();
    return isHere;
}

bool frmUpdate::receive(const Offer& offer) {
    const UpdateManifest& manifest = offer.Manifest;
    const auto part = own_->openPart(manifest);
    if (!part) {
        fault_ = texts_.beingFetched();
        return false;
    }
    Arrival arrival(*part);
    LimitedPart limited(*part, manifest.Size, [this] { return p_.View.isStopped(); });
    limited.StartAt(0);
    std::int32_t bytes = 0;
    if (offer.IsShared) {
        copy(p_.Setup.LocalDir + "\\UPDATE\\" + manifest.File, limited, manifest.Size);
    } else if (!p_.Http.HttpDownloadAddress(std::string(updateAddress) + manifest.File, own_->pathOf(manifest.File),
                                            limited, bytes)) {
        fault_ = p_.View.exchangeFault();
        return false;
    }
    if (!own_->isArchive(own_->partPath(manifest), manifest)) {
        refuse(texts_.damaged(), "size or digest of " + manifest.File + " are not the signed ones");
        fault_ = texts_.damaged();
        return false;
    }
    keys_->learn(manifest);
    own_->take(*part, manifest);
    arrival.taken();
    announce(manifest);
    if (!offer.IsShared) fillShared(manifest);
    return true;
}

void frmUpdate::copy(const std::string& from, PartFile& part, std::int64_t size) {
    std::int64_t copied = 0;
    while (copied < size) {
        const std::string piece = p_.Os.Disk.ReadPart(from, copied, copyStep);
        if (piece.empty()) return;
        part.Write(piece);
        copied += static_cast<std::int64_t>(piece.size());
        p_.View.fetched(static_cast<std::int32_t>(copied));
    }
}

// In one step, and last: a start of the program finds all of it or nothing.
void frmUpdate::announce(const UpdateManifest& manifest) {
    const bool isWritten = p_.Ini.VellIniWriteStrings([&] {
        return std::vector<IniEdit>{{"Update", "UpdateVersion", manifest.Version.text()}, {"General", "Update", "1"}};
    });
    if (!isWritten) throw RunTimeError(error_number::PathAccess, "The settings file could not be written");
}

// Others look here first. That they cannot is no matter of this program's own update.
void frmUpdate::fillShared(const UpdateManifest& manifest) {
    trapStep(p_.Log, "ShareUpdate()", [&] {
        auto shared = sharedFolder();
        if (!shared) return;
        const auto there = shared->manifest();
        if (there && keys_->hasSigned(*there) && there->Version >= manifest.Version && shared->hasFile(*there)) return;
        const auto part = shared->openPart(manifest);
        if (!part) return;
        Arrival arrival(*part);
        part->StartAt(0);
        copy(own_->pathOf(manifest.File), *part, manifest.Size);
        if (!shared->isArchive(shared->partPath(manifest), manifest)) return;
        shared->take(*part, manifest);
        arrival.taken();
    });
}

}  // namespace vell
