// SPDX-License-Identifier: MIT
#include "ui/list/PageReader.h"

#include <chrono>
#include <utility>

#include "ui/ClippingsBrowser.h"
#include "ui/reading/ClippingForms.h"

namespace vell {

namespace {
constexpr int pause = 15;  // milliseconds between two steps
constexpr std::chrono::milliseconds longestStep{8};
}  // namespace

PageReader::PageReader(const Parts& parts) : p_(parts) {
    p_.Browser.onListing([this](std::vector<ClippingRow>& rows) { complete(rows); });
}

PageReader::~PageReader() {
    end();
}

void PageReader::want(bool wanted) {
    if (std::exchange(wanted_, wanted) == wanted) return;
    if (wanted)
        begin();
    else
        end();
}

// What is known stands in the rows before they are shown, so that none of it flickers.
void PageReader::complete(std::vector<ClippingRow>& rows) {
    if (!wanted_) return;
    for (ClippingRow& row : rows)
        if (const auto known = known_.find(row.path()); known != known_.end()) row.Page = known->second.Page;
    begin();
}

void PageReader::begin() {
    next_ = 0;
    hasNews_ = false;
    if (timer_ == 0) timer_ = p_.Loop.SetTimer(pause, [this] { readOn(); });
}

void PageReader::end() {
    if (timer_ != 0) p_.Loop.KillTimer(std::exchange(timer_, 0));
}

void PageReader::readOn() {
    const SteadyTime deadline = p_.Time.Steady() + longestStep;
    while (next_ < p_.Browser.rows().size() && p_.Time.Steady() < deadline)
        read(next_++);
    if (next_ < p_.Browser.rows().size()) return;
    end();
    if (hasNews_ && p_.Browser.order().Column == GridColumn::Page) p_.Browser.setOrder(p_.Browser.order());
}

void PageReader::read(std::size_t row) {
    trapStep(p_.Log, "PageReader()", [&] {
        const ClippingRow& clipping = p_.Browser.rows().at(row);
        const std::string companion = companionPath(*clipping.File);
        Known& known = known_[clipping.path()];
        const std::optional<FileStamp> stamp = p_.Disk.Stamp(companion);
        if (known.Companion != stamp) {
            const std::string text = stamp ? p_.Disk.ReadFile(companion) : std::string();
            known = {stamp, companionField(text, "PAGE")};
        }
        if (clipping.Page == known.Page) return;
        hasNews_ = true;
        p_.Browser.showPage(row, known.Page);
    });
}

}  // namespace vell
