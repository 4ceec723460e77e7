// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace vell {

// A part that takes so many bytes and no more, and none once it is told to stop: whoever fills it gets an error then.
class LimitedPart : public PartFile {
  public:
    LimitedPart(PartFile& part, std::int64_t limit, std::function<bool()> stopped);

    void Write(std::string_view bytes) override;
    void Close() override { part_.Close(); }
    [[nodiscard]] std::int64_t Length() const override { return part_.Length(); }
    [[nodiscard]] std::string Beginning(std::size_t most) const override { return part_.Beginning(most); }
    void StartAt(std::int64_t offset) override { part_.StartAt(offset); }
    void Adopt(std::string_view path) override { part_.Adopt(path); }
    void MoveTo(std::string_view path) override { part_.MoveTo(path); }
    void Discard() override { part_.Discard(); }

  private:
    PartFile& part_;
    std::int64_t limit_;
    std::function<bool()> stopped_;
};

}  // namespace vell
