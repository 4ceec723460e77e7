// SPDX-License-Identifier: MIT
#include "ui/reading/TextReader.h"

#include <utility>

#include "platform/Translations.h"
#include "ui/reading/ClippingForms.h"

namespace vell {

namespace {
constexpr std::string_view procedure = "ShowText()";
constexpr int betweenPieces = 5;                                 // milliseconds: the window is drawn meanwhile
constexpr std::size_t longestCompanion = std::size_t{64} << 10;  // it has a few lines
}  // namespace

TextReader::TextReader(const Files& disk, EventLoop& loop, const Translations& words, EventLog& log)
    : disk_(disk), loop_(loop), words_(words), log_(log) {}

TextReader::~TextReader() {
    stop();
}

void TextReader::showIn(ReadingView* view) {
    stop();
    view_ = view;
    shown_.reset();
    show(clipping_);
}

void TextReader::show(CFtpFiles::Pointer clipping) {
    clipping_ = std::move(clipping);
    if (!view_) return;
    orNotice([this] {
        if (!clipping_ || !shown_ || shown_->Path != textPath(*clipping_)) {
            stop();
            shown_.reset();
            view_->clearText();
        }
        if (!clipping_) return;
        Stamps stamps = stampsOf(*clipping_);
        if (shown_ == stamps) return;
        stop();
        shown_ = std::move(stamps);
        begin();
    });
}

TextReader::Stamps TextReader::stampsOf(const CFtpFile& clipping) const {
    const std::string path = textPath(clipping);
    return {path, disk_.Stamp(path), disk_.Stamp(companionPath(clipping))};
}

void TextReader::begin() {
    offset_ = 0;
    lines_ = {};
    std::string companion;
    if (shown_->Companion)
        trapStep(log_, procedure, [&] {  // the text can be read without it
            companion = disk_.ReadPart(companionPath(*clipping_), 0, longestCompanion);
        });
    const ClippingHeading heading = headingOf(*clipping_, companion);
    view_->beginText(heading);
    if (!shown_->Text || shown_->Text->Size == 0) {
        view_->showTextNotice(noText());
        return;
    }
    const std::string piece = disk_.ReadPart(shown_->Path, 0, pieceSize);
    offset_ = static_cast<std::int64_t>(piece.size());
    std::string lines = lines_.add(piece);
    const bool isAll = offset_ >= shown_->Text->Size;
    if (isAll) lines += lines_.finish();
    view_->appendText(withoutHeading(lines, heading));
    if (!isAll) timer_ = loop_.SetTimer(betweenPieces, [this] { readOn(); });
}

void TextReader::readOn() {
    orNotice([this] {
        const std::string piece = disk_.ReadPart(shown_->Path, offset_, pieceSize);
        offset_ += static_cast<std::int64_t>(piece.size());
        const bool isEnd = piece.size() < pieceSize;
        if (isEnd) stop();
        std::string lines = lines_.add(piece);
        if (isEnd) lines += lines_.finish();
        view_->appendText(lines);
    });
}

void TextReader::stop() {
    if (timer_ != 0) loop_.KillTimer(std::exchange(timer_, 0));
}

// What goes wrong is told where the text would stand.
template <class Body>
void TextReader::orNotice(Body&& body) {
    try {
        body();
    } catch (...) {
        stop();
        view_->showTextNotice(failure());
    }
}

std::string TextReader::failure() const {
    const RunTimeError error = currentError();
    log_.LogError(error, procedure);
    return words_.translate("The text of this clipping cannot be read.") + " " + error.Description;
}

std::string TextReader::noText() const {
    return words_.translate("This clipping has no text. Open it to see its page.");
}

TextReader::WholeText TextReader::wholeText(const CFtpFile& clipping) const {
    const std::string path = textPath(clipping);
    try {
        if (disk_.FileSize(path).value_or(0) == 0) return {"", noText()};
        return {disk_.ReadFile(path), ""};
    } catch (...) {
        return {"", failure()};
    }
}

}  // namespace vell
