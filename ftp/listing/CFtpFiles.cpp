// SPDX-License-Identifier: MIT
#include "ftp/listing/CFtpFiles.h"

#include <utility>

#include "base/errors.h"

namespace vell {

CFtpFiles::Pointer CFtpFiles::add(Pointer item) {
    return items_.emplace_back(std::move(item));
}

const CFtpFiles::Pointer& CFtpFiles::Item(std::int32_t index) const {
    return items_[position(index)];
}

void CFtpFiles::Remove(std::int32_t index) {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position(index)));
}

std::int32_t CFtpFiles::Count() const {
    return static_cast<std::int32_t>(items_.size());
}

std::size_t CFtpFiles::position(std::int32_t index) const {
    if (index < 1 || index > Count()) throw RunTimeError(error_number::SubscriptOutOfRange, "Subscript out of range");
    return static_cast<std::size_t>(index - 1);
}

}  // namespace vell
