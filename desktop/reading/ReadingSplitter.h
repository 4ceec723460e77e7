// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/splitter.h>

#include "ui/reading/ReadingLayout.h"

namespace vell {

class TextPane;

// The list of clippings and, below or beside it, the pane with the text of one. The user draws the line between them.
class ReadingSplitter : public wxSplitterWindow {
  public:
    explicit ReadingSplitter(wxWindow* parent);

    // The list, which is a child of this window; to be called once.
    void setList(wxWindow* list);
    [[nodiscard]] TextPane& pane() { return *pane_; }
    // `sized`: the user has given the pane another height or width, in twips.
    void onSized(std::function<void(int twips)> sized) { sized_ = std::move(sized); }
    // The pane gets this height or width, in twips; a fair share for 0.
    void place(PanePlace place, int size);

  private:
    void DrawSash(wxDC& dc) override;
    [[nodiscard]] int paneSize() const;

    TextPane* pane_;
    std::function<void(int twips)> sized_;
};

}  // namespace vell
