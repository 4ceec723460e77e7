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
    // While there is no clipping whose text could stand in it, the list has the pane's room, too.
    void showPane(bool wanted);

  private:
    void DrawSash(wxDC& dc) override;
    void arrange();
    [[nodiscard]] int paneSize() const;

    TextPane* pane_;
    PanePlace place_ = PanePlace::Off;
    int size_ = 0;  // the pane's, in pixels; 0 for a fair share
    bool isWanted_ = true;
    bool isDrawn_ = false;  // by the user, at this moment
    std::function<void(int twips)> sized_;
};

}  // namespace vell
