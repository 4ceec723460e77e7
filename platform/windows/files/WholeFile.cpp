// SPDX-License-Identifier: MIT
#include "platform/windows/files/WholeFile.h"

#include "platform/common/partNames.h"
#include "platform/windows/files/paths.h"
#include "platform/windows/files/replacing.h"
#include "platform/windows/systemText.h"

namespace vell {

WholeFile::WholeFile(const FilePlace& target)
    : target_(target),
      part_{target.Text, joined(folderOf(target.System), wideFromUtf8(newPartName()))},
      // Open to no other writer, it is not taken for left over.
      file_(part_, {GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE, CREATE_NEW}) {
    try {
        prepareToReplace(target_, part_);
    } catch (const RunTimeError&) {
        file_.markDeleted(part_);
        throw;
    }
}

WholeFile::~WholeFile() {
    if (inPlace_) return;
    file_.close();
    DeleteFileW(part_.System.c_str());
}

void WholeFile::write(std::string_view bytes) {
    file_.writeAt(length_, bytes, target_);
    length_ += static_cast<std::int64_t>(bytes.size());
}

void WholeFile::takePlace(Durability durability) {
    if (durability == Durability::Flushed) file_.flushToDisk(target_);
    file_.moveTo(target_);
    inPlace_ = true;
    if (durability == Durability::Flushed) file_.flushToDisk(target_);  // its new name, too
}

}  // namespace vell
