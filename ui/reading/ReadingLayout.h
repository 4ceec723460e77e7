// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace vell {

class ViewSettings;

enum class PanePlace : std::uint8_t { Off, Below, Beside };

// Where the pane with the text stands about the list, and how much of the window it takes there. Kept for good.
class ReadingLayout {
  public:
    explicit ReadingLayout(ViewSettings& kept) : kept_(kept) {}

    [[nodiscard]] PanePlace place() const;
    void setPlace(PanePlace place);
    // The pane's height below the list, or its width beside it, in twips; 0 when the user has never drawn it there.
    [[nodiscard]] int size() const;
    void setSize(int twips);

  private:
    ViewSettings& kept_;
};

}  // namespace vell
