// SPDX-License-Identifier: MIT
#include <vector>

#include "ftp/control/FtpReplyReader.h"
#include "fuzz/fuzzing.h"

namespace {

struct Reading {
    std::vector<std::string> Texts;
    bool Overlong = false;
    std::string Pending;

    bool operator==(const Reading&) const = default;
};

Reading readInPieces(std::string_view bytes, std::size_t piece) {
    vell::FtpReplyReader reader;
    Reading reading;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size()))) {
        reader.feed(bytes.substr(0, piece));
        while (auto reply = reader.next()) {
            vell::fuzz::must(reply->Code >= 0 && reply->Code <= 999);
            vell::fuzz::must(reply->Text.size() <= vell::FtpReplyReader::longest);
            reading.Texts.push_back(std::move(reply->Text));
        }
    }
    vell::fuzz::must(reader.pending().size() <= vell::FtpReplyReader::longest);
    reading.Overlong = reader.overlong();
    reading.Pending = reader.pending();
    return reading;
}

}  // namespace

// However the bytes are cut, the replies are the same.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes = vell::fuzz::textOf(data, size);
    const Reading whole = readInPieces(bytes, bytes.size());
    vell::fuzz::must(whole == readInPieces(bytes, 1));
    vell::fuzz::must(whole == readInPieces(bytes, 7));
    return 0;
}
