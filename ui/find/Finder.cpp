// SPDX-License-Identifier: MIT
#include "ui/find/Finder.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "platform/Translations.h"
#include "ui/ClippingsBrowser.h"
#include "ui/find/FindView.h"
#include "ui/find/FoundClippings.h"
#include "ui/numberedText.h"

namespace vell {

namespace {

constexpr std::string_view procedure = "Find()";
constexpr int betweenSteps = 1;  // milliseconds
// Who types sees one new list for a letter, not several.
constexpr std::chrono::milliseconds firstList{120};
constexpr std::chrono::milliseconds betweenLists{500};

std::size_t daysOf(const std::vector<CFtpFiles::Pointer>& clippings) {
    std::size_t days = 0;
    const std::string* last = nullptr;
    for (const auto& clipping : clippings) {
        if (!last || *last != clipping->FilePath) ++days;
        last = &clipping->FilePath;
    }
    return days;
}

}  // namespace

Finder::Finder(const Parts& parts)
    : p_(parts), texts_(parts.Disk, parts.Log, textMemory), listings_(parts.Store, parts.Disk, listingMemory) {
    p_.Browser.onDayRead([this] { dayWasRead(); });
}

Finder::~Finder() {
    stop();
    p_.Browser.onDayRead(nullptr);
}

void Finder::setTyped(std::string_view typed) {
    typed_ = typed;
    FindQuery query(typed);
    if (query == query_) return;
    query_ = std::move(query);
    search(Shows::AsItGoes);
}

void Finder::setInTexts(bool inTexts) {
    inTexts_ = inTexts;
    search(Shows::AsItGoes);
}

void Finder::setInAllDays(bool inAllDays) {
    inAllDays_ = inAllDays;
    search(Shows::AsItGoes);
}

void Finder::clear() {
    inAllDays_ = false;
    if (view_) view_->showFindChoice("", false);
    setTyped("");
}

// Whoever chooses another day wants to see that one. A day that was read again, as in a download, is searched again
// behind the list that is shown.
void Finder::dayWasRead() {
    texts_.filesMayHaveChanged();
    const bool isOther = std::exchange(day_, p_.Browser.chosenDay()) != p_.Browser.chosenDay();
    if (isOther && inAllDays_) {
        inAllDays_ = false;
        if (view_) view_->showFindChoice(typed_, false);
        search(Shows::AsItGoes);
    } else if (isOther) {
        search(Shows::AsItGoes);
    } else if (pass_) {
        readAgain_ = true;
    } else {
        search(Shows::AtTheEnd);
    }
}

void Finder::search(Shows shows) {
    stop();
    if (query_.isEmpty()) {
        p_.Browser.setFound(nullptr);
        if (view_) view_->showFindStatus("");
        return;
    }
    shows_ = shows;
    isOver_ = false;
    nextList_ = p_.Time.Steady() + firstList;
    pass_.emplace(query_, inTexts_, texts_);
    if (inAllDays_)
        daysLeft_.assign(p_.Browser.days().begin(), p_.Browser.days().end());
    else
        pass_->add(p_.Browser.dayFiles());
    dayCount_ = daysLeft_.size();
    timer_ = p_.Loop.SetTimer(betweenSteps, [this] { work(); });
    work();
}

void Finder::stop() {
    if (timer_ != 0) p_.Loop.KillTimer(std::exchange(timer_, 0));
    pass_.reset();
    daysLeft_.clear();
    readAgain_ = false;
}

template <class Step>
void Finder::attempt(Step&& step) {
    const bool isDone = trap(p_.Log, procedure, false, [&] {
        std::forward<Step>(step)();
        return true;
    });
    if (!isDone) giveUp();
}

// What was found so far stays listed.
void Finder::giveUp() {
    stop();
    trapStep(p_.Log, procedure, [this] {
        if (view_) view_->showFindStatus(p_.Words.translate("The search broke off"));
    });
}

void Finder::work() {
    attempt([this] {
        const SteadyTime now = p_.Time.Steady();
        if (isOver_) {
            end();
        } else if (searchUntil(now + longestStep)) {
            isOver_ = true;  // a long list takes a step of its own to be shown
        } else if (now >= nextList_) {
            if (shows_ == Shows::AsItGoes) list(false);
            tellStatus();
            nextList_ = p_.Time.Steady() + betweenLists;
        }
    });
}

bool Finder::searchUntil(SteadyTime deadline) {
    const auto mayGoOn = [&] { return p_.Time.Steady() < deadline; };
    while (pass_->step(mayGoOn)) {
        if (daysLeft_.empty() || isEnough()) return true;
        if (!mayGoOn()) return false;
        const Date day = daysLeft_.front();
        daysLeft_.pop_front();
        pass_->add(listings_.of(day));
    }
    return false;
}

bool Finder::isEnough() const {
    return inAllDays_ && pass_->hits().size() >= mostInAllDays;
}

void Finder::list(bool isComplete) {
    auto found = std::make_shared<FoundClippings>();
    found->Clippings = pass_->hits();
    found->Searched = pass_->all();
    found->IsComplete = isComplete;
    if (!inAllDays_) {
        found->OfDay = p_.Browser.chosenDay();
        for (const auto& clipping : found->Clippings)
            found->Names.insert(clipping->FileName);
    } else if (found->Clippings.size() > mostInAllDays) {
        found->Clippings.resize(mostInAllDays);
    }
    p_.Browser.setFound(std::move(found));
}

void Finder::end() {
    list(true);
    if (view_) view_->showFindStatus(outcome());
    const bool again = readAgain_;
    stop();
    if (again) search(Shows::AtTheEnd);
}

void Finder::finish() {
    while (pass_)
        attempt([this] {
            if (searchUntil(SteadyTime::max())) end();
        });
}

void Finder::tellStatus() {
    if (view_) view_->showFindStatus(progress());
}

std::string Finder::progress() const {
    if (inAllDays_)
        return filledText(p_.Words.translate("Searching: day %1$s of %2$s"),
                          {std::to_string(dayCount_ - daysLeft_.size()), std::to_string(dayCount_)});
    return filledText(p_.Words.translate("Searching: %1$s of %2$s"),
                      {std::to_string(pass_->done()), std::to_string(pass_->all())});
}

std::string Finder::outcome() const {
    const auto& hits = pass_->hits();
    const std::string count = std::to_string(std::min(hits.size(), mostInAllDays));
    std::string text;
    if (inAllDays_ && isEnough()) {
        text = Replace(p_.Words.translate("The newest are listed: %s"), "%s", count);
    } else if (inAllDays_ && !hits.empty()) {
        const std::size_t days = daysOf(hits);
        text = filledText(p_.Words.translate("%1$s found in %2$s day", "%1$s found in %2$s days", days),
                          {count, std::to_string(days)});
    }
    if (const std::size_t unreadable = texts_.unreadable(); unreadable > 0)
        text += (text.empty() ? "" : "; ") +
                numberedText(p_.Words, "%d text could not be read", "%d texts could not be read", unreadable);
    return text;
}

}  // namespace vell
