// SPDX-License-Identifier: MIT
#include "desktop/list/ClippingsList.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include <wx/dataobj.h>
#include <wx/dataview.h>
#include <wx/sizer.h>
#include <wx/translation.h>

#include "desktop/list/ClippingsModel.h"
#include "desktop/list/EmptyPane.h"
#include "desktop/list/clipboard.h"
#include "desktop/native/accessibleName.h"
#include "desktop/native/typedLetter.h"
#include "desktop/screenText.h"

namespace vell {

ClippingsList::ClippingsList(wxWindow* parent, const Clock& clock, Events events)
    : wxPanel(parent),
      events_(std::move(events)),
      model_(new ClippingsModel),
      list_(new wxDataViewCtrl(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxDV_MULTIPLE | wxDV_ROW_LINES)),
      empty_(new EmptyPane(this, *list_, [this](bool isShown) { events_.HintShown(isShown); })),
      columns_(*list_, *model_,
               {[this](GridColumn column) { CallAfter([this, column] { events_.SortWanted(column); }); },
                [this] { CallAfter([this] { events_.ColumnsWanted(); }); }}),
      typeAhead_(clock) {
    list_->AssociateModel(model_);
    setAccessibleName(*list_, _("Clippings"));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(list_, wxSizerFlags(1).Expand());
    sizer->Add(empty_, wxSizerFlags(1).Expand());
    SetSizer(sizer);

    list_->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent& event) {
        if (event.GetItem().IsOk()) events_.DoubleClicked(model_->GetRow(event.GetItem()));
    });
    list_->Bind(wxEVT_DATAVIEW_ITEM_CONTEXT_MENU,
                [this](wxDataViewEvent& /*event*/) { wantMenu(wxGetMousePosition()); });
    list_->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent& /*event*/) { events_.Selected(); });
    list_->EnableDragSource(wxDF_FILENAME);
    list_->Bind(wxEVT_DATAVIEW_ITEM_BEGIN_DRAG, &ClippingsList::onDraw, this);
    list_->Bind(wxEVT_KEY_DOWN, &ClippingsList::onKey, this);
    list_->Bind(wxEVT_MOTION, &ClippingsList::onMotion, this);
    list_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        CallAfter([this] { columns_.fit(); });  // GTK forgets what is asked for while it lays out
    });
}

ClippingsList::~ClippingsList() {
    model_->DecRef();
}

void ClippingsList::show(const std::vector<ClippingRow>& rows) {
    const auto pathOf = [this](std::size_t row) { return model_->at(row).path(); };
    const auto current = currentRow();
    const std::string currentPath = current ? pathOf(*current) : std::string();
    std::set<std::string> selected;
    for (const std::size_t row : selectedRows())
        selected.insert(pathOf(row));
    if (!rows.empty()) empty_->hide();  // first: GTK takes rows only in a list that is seen
    if (!model_->setRows(rows) || !list_->HasSelection()) restoreSelection(currentPath, selected);
    columns_.showArrow(order_);  // which GTK takes away with the rows
    columns_.measure();
    events_.Selected();
}

void ClippingsList::restoreSelection(const std::string& current, const std::set<std::string>& selected) {
    if (model_->size() == 0) return;
    selectRow(model_->rowOf(current).value_or(0));
    if (selected.size() < 2) return;
    for (std::size_t row = 0; row < model_->size(); ++row)
        if (selected.contains(model_->at(row).path())) list_->Select(itemOf(row));
}

wxDataViewItem ClippingsList::itemOf(std::size_t row) const {
    return model_->GetItem(static_cast<unsigned int>(row));
}

void ClippingsList::showMarks(std::size_t row, const ClippingRow& marked) {
    model_->setMarks(row, marked);
}

std::optional<std::size_t> ClippingsList::currentRow() const {
    const wxDataViewItem item = list_->GetCurrentItem();
    if (item.IsOk()) return model_->GetRow(item);
    if (model_->size() == 0) return std::nullopt;
    return 0;
}

std::vector<std::size_t> ClippingsList::selectedRows() const {
    wxDataViewItemArray items;
    list_->GetSelections(items);
    std::vector<std::size_t> rows;
    rows.reserve(items.size());
    for (const wxDataViewItem& item : items)
        rows.push_back(model_->GetRow(item));
    std::ranges::sort(rows);
    return rows;
}

bool ClippingsList::hasSelection() const {
    return list_->HasSelection();
}

void ClippingsList::selectRow(std::size_t row) {
    const wxDataViewItem item = itemOf(row);
    list_->UnselectAll();
    list_->SetCurrentItem(item);
    list_->Select(item);
    list_->EnsureVisible(item);
    events_.Selected();
}

void ClippingsList::selectAll() {
    list_->SelectAll();
}

void ClippingsList::showOrder(const RowOrder& order) {
    order_ = order;
    columns_.showArrow(order_);
}

void ClippingsList::showHint(const EmptyHint& hint) {
    empty_->show(hint);
}

void ClippingsList::hideHint() {
    empty_->hide();
}

void ClippingsList::focusList() {
    empty_->focus();
}

void ClippingsList::onKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const bool isEnter = key == WXK_RETURN || key == WXK_NUMPAD_ENTER;
    const bool isBlank = key == WXK_SPACE && !event.HasAnyModifiers();
    const bool isMenu = key == WXK_WINDOWS_MENU || key == WXK_MENU;
    if (isEnter && !event.HasAnyModifiers())
        events_.Entered();
    else if (isMenu || (key == WXK_F10 && event.GetModifiers() == wxMOD_SHIFT))
        wantMenu(belowCurrentRow());
    else if (isBlank && !typeAhead_.isUnderWay() && events_.BlankPressed())
        return;
    else if (!type(event))
        event.Skip();
}

// A letter of any layout, by which the list is searched. The toolkit's own event for letters knows Latin ones only.
bool ClippingsList::type(const wxKeyEvent& event) {
    const wxUniChar letter = typedLetter(event);
    const std::string typed = letter < WXK_SPACE || event.HasModifiers() ? std::string() : typedText(wxString(letter));
    if (typed.empty()) return false;
    const GridColumn column = order_.Column.value_or(GridColumn::Title);
    const GridColumn searched = column == GridColumn::Marks ? GridColumn::Title : column;
    const auto row = typeAhead_.type(typed.front(), model_->size(), currentRow(),
                                     [&](std::size_t at) { return cellText(model_->at(at), searched); });
    if (row) selectRow(*row);
    return true;
}

void ClippingsList::wantMenu(const wxPoint& place) {
    list_->UnsetToolTip();  // it would come up over the menu
    events_.MenuWanted(place);
}

wxPoint ClippingsList::belowCurrentRow() const {
    const wxRect row = list_->GetItemRect(list_->GetCurrentItem());
    return list_->ClientToScreen(row.IsEmpty() ? wxPoint() : wxPoint(row.GetLeft(), row.GetBottom()));
}

// A row is drawn out of the window: with all that are selected when it is one of them.
void ClippingsList::onDraw(wxDataViewEvent& event) {
    if (!event.GetItem().IsOk()) return;
    const std::size_t row = model_->GetRow(event.GetItem());
    std::vector<std::size_t> rows = selectedRows();
    if (std::ranges::find(rows, row) == rows.end()) rows = {row};
    event.SetDataObject(filesToDraw(events_.FilesWanted(rows)).release());  // the control's now
}

// Columns cut long titles: the tip shows all of the row under the mouse. The event's own place would not do: on GTK it
// is counted from below the header, where HitTest counts from above it.
void ClippingsList::onMotion(wxMouseEvent& event) {
    event.Skip();
    wxDataViewItem item;
    wxDataViewColumn* column = nullptr;
    list_->HitTest(list_->ScreenToClient(wxGetMousePosition()), item, column);
    wxString tip;
    if (item.IsOk()) {
        const CFtpFile& clipping = *model_->at(model_->GetRow(item)).File;
        for (const std::string& text :
             {clipping.Description, clipping.NewspaperName, clipping.ArticleType, clipping.Category})
            if (!text.empty()) tip += (tip.empty() ? "" : "\n") + shownLine(text);
    }
    if (list_->GetToolTipText() != tip) list_->SetToolTip(tip);
}

}  // namespace vell
