// SPDX-License-Identifier: MIT
#include "ui/find/FindPass.h"

#include <utility>

#include "ui/find/FoldedTexts.h"
#include "ui/reading/ClippingForms.h"

namespace vell {

namespace {

// What the list says of a clipping, each on a line of its own: no word goes over two of them.
std::string fieldsOf(const CFtpFile& clipping) {
    std::string fields;
    for (const std::string* field :
         {&clipping.NewspaperName, &clipping.Description, &clipping.Category, &clipping.ArticleType})
        (fields += *field) += '\n';
    foldForFinding(fields);
    return fields;
}

}  // namespace

FindPass::FindPass(FindQuery query, bool textsToo, FoldedTexts& texts)
    : query_(std::move(query)), textsToo_(textsToo), texts_(texts) {
    texts_.beginSearch();
}

void FindPass::add(const CFtpFiles& clippings) {
    clippings_.insert(clippings_.end(), clippings.begin(), clippings.end());
}

bool FindPass::step(const std::function<bool()>& mayGoOn) {
    while (next_ < clippings_.size() && mayGoOn())
        look();
    return next_ == clippings_.size();
}

void FindPass::look() {
    const auto& clipping = clippings_[next_];
    if (!match_) {
        match_.emplace(query_);
        match_->look(fieldsOf(*clipping), textsToo_ ? FindMatch::Piece::OneOfSeveral : FindMatch::Piece::Last);
        if (textsToo_) path_ = textPath(*clipping);
    }
    if (textsToo_ && !texts_.lookOn(path_, *match_)) return;
    if (match_->isHit()) hits_.push_back(clipping);
    match_.reset();
    ++next_;
}

}  // namespace vell
