// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ftp/listing/CFtpFile.h"

namespace vell {

// An ordered collection of file records. Positions are one-based. An item that a caller keeps outlives the collection.
class CFtpFiles {
  public:
    using Pointer = std::shared_ptr<CFtpFile>;

    // Appends the item and gives it back. Equal names are allowed.
    Pointer add(Pointer item);
    // Raise RunTimeError 9 "Subscript out of range" outside 1 to Count.
    [[nodiscard]] const Pointer& Item(std::int32_t index) const;
    void Remove(std::int32_t index);
    [[nodiscard]] std::int32_t Count() const;

    // In the order of insertion.
    [[nodiscard]] auto begin() const { return items_.begin(); }
    [[nodiscard]] auto end() const { return items_.end(); }

  private:
    [[nodiscard]] std::size_t position(std::int32_t index) const;

    std::vector<Pointer> items_;
};

}  // namespace vell
