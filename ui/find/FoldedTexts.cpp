// SPDX-License-Identifier: MIT
#include "ui/find/FoldedTexts.h"

#include <algorithm>
#include <utility>

#include "ui/find/FindQuery.h"

namespace vell {

void FoldedTexts::beginSearch() {
    close();
    cache_.beginSearch();
    unreadable_ = 0;
}

bool FoldedTexts::lookOn(const std::string& path, FindMatch& match) {
    bool isOver = true;
    try {
        if (source_ == Source::None) source_ = open(path);
        isOver = source_ == Source::Memory ? lookOnInMemory(path, match) : lookOnInFile(path, match);
    } catch (...) {
        log_.LogError(currentError(), "FindInText()");
        pending_.IsUnreadable = true;
        cache_.keep(path, std::move(pending_));
        ++unreadable_;
    }
    if (isOver) close();
    return isOver;
}

FoldedTexts::Source FoldedTexts::open(const std::string& path) {
    pending_ = {.Folded = {}, .Stamp = {}, .Checked = changes_};
    TextCache::Text* text = cache_.find(path);
    if (text && text->Checked == changes_) return Source::Memory;
    pending_.Stamp = disk_.Stamp(path);
    if (text && text->Stamp == pending_.Stamp) {
        text->Checked = changes_;
        return Source::Memory;
    }
    keeps_ = cache_.hasRoom(path, static_cast<std::size_t>(pending_.Stamp ? pending_.Stamp->Size : 0));
    return Source::File;
}

bool FoldedTexts::lookOnInMemory(const std::string& path, FindMatch& match) {
    const TextCache::Text* text = cache_.find(path);
    if (text->IsUnreadable) ++unreadable_;
    if (match.isHit()) return true;
    const std::size_t from = offset_ - std::min(offset_, match.overlap());
    const std::string_view piece = std::string_view(text->Folded).substr(from, offset_ - from + pieceSize);
    offset_ += pieceSize;
    const bool isLast = offset_ >= text->Folded.size();
    match.look(piece, isLast ? FindMatch::Piece::Last : FindMatch::Piece::OneOfSeveral);
    return isLast || match.isHit();
}

bool FoldedTexts::lookOnInFile(const std::string& path, FindMatch& match) {
    if (match.isHit() && !keeps_) return true;
    std::string piece;
    if (pending_.Stamp) piece = disk_.ReadPart(path, static_cast<std::int64_t>(offset_), pieceSize);
    foldForFinding(piece);
    const std::size_t from = read_.size() - std::min(read_.size(), match.overlap());
    read_ += piece;
    offset_ += piece.size();
    const bool isEnd = piece.size() < pieceSize;
    match.look(std::string_view(read_).substr(from), isEnd ? FindMatch::Piece::Last : FindMatch::Piece::OneOfSeveral);
    if (!keeps_) {
        read_.erase(0, read_.size() - std::min(read_.size(), match.overlap()));
        return isEnd || match.isHit();
    }
    if (isEnd) {
        pending_.Folded = std::move(read_);
        cache_.keep(path, std::move(pending_));
    }
    return isEnd;
}

void FoldedTexts::close() {
    source_ = Source::None;
    offset_ = 0;
    read_.clear();
}

}  // namespace vell
