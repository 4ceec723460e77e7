// SPDX-License-Identifier: MIT
#include "desktop/list/ClippingsList.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include <wx/dataview.h>
#include <wx/sizer.h>

#include "desktop/list/ClippingsModel.h"
#include "desktop/native/accessibleName.h"
#include "desktop/native/columnTricks.h"
#include "desktop/pictures.h"
#include "desktop/screenText.h"
#include "desktop/twips.h"

namespace vell {

namespace {

// DIP
constexpr int narrowestTitle = 150;
constexpr int cellMargins = 12;

}  // namespace

ClippingsList::ClippingsList(wxWindow* parent, const Clock& clock, Events events)
    : wxPanel(parent),
      events_(std::move(events)),
      model_(new ClippingsModel),
      list_(new wxDataViewCtrl(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxDV_SINGLE | wxDV_ROW_LINES)),
      typeAhead_(clock) {
    list_->AssociateModel(model_);
    setAccessibleName(*list_, "Clippings");
    addColumns();
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(list_, wxSizerFlags(1).Expand());
    SetSizer(sizer);

    list_->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent& event) {
        if (event.GetItem().IsOk()) events_.DoubleClicked(model_->order().rowAt(model_->GetRow(event.GetItem())));
    });
    list_->Bind(wxEVT_DATAVIEW_ITEM_CONTEXT_MENU, [this](wxDataViewEvent& /*event*/) { events_.MenuWanted(); });
    list_->Bind(wxEVT_DATAVIEW_COLUMN_HEADER_CLICK, [this](wxDataViewEvent& event) {
        if (event.GetDataViewColumn()) sortBy(static_cast<GridColumn>(event.GetDataViewColumn()->GetModelColumn()));
    });
    list_->Bind(wxEVT_KEY_DOWN, &ClippingsList::onKey, this);
    list_->Bind(wxEVT_CHAR, &ClippingsList::onCharacter, this);
    list_->Bind(wxEVT_MOTION, &ClippingsList::onMotion, this);
    list_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        CallAfter(&ClippingsList::fitColumns);  // GTK forgets what is asked for while it lays out
    });
}

ClippingsList::~ClippingsList() {
    model_->DecRef();
}

void ClippingsList::addColumns() {
    for (const GridColumnLayout& layout : gridColumns) {
        if (layout.Width == 0) continue;
        const auto index = static_cast<unsigned int>(layout.Column);
        const int width = pixelsFromTwips(*this, layout.Width);
        givenWidths_[layout.Column] = width;
        if (layout.Column == GridColumn::Marks) {
            auto* marks = new wxDataViewIconTextRenderer;
            marks->DisableEllipsize();
            list_->AppendColumn(new wxDataViewColumn("", marks, index, width, wxALIGN_LEFT, 0));
            continue;
        }
        auto* text = new wxDataViewTextRenderer;
        text->EnableEllipsize(wxELLIPSIZE_END);
        const int flags = layout.Column == GridColumn::Title ? 0 : wxDATAVIEW_COL_RESIZABLE;  // it takes the rest
        auto* column = new wxDataViewColumn(shownLine(layout.Header), text, index, width, wxALIGN_LEFT, flags);
        list_->AppendColumn(column);
        whenResized(*column, [this] { CallAfter(&ClippingsList::fitColumns); });
    }
    showPictureOnly(columnOf(GridColumn::Marks), rowPictureSize);
}

void ClippingsList::show(const std::vector<ClippingRow>& rows) {
    const auto current = currentRow();
    const std::string path = current ? model_->at(*current).path() : std::string();
    if (!model_->setRows(rows) || !list_->GetSelection().IsOk()) restoreSelection(path);
    wantedWidths_ = {wantedWidth(GridColumn::Newspaper), wantedWidth(GridColumn::Type)};
    fitColumns();
}

void ClippingsList::restoreSelection(const std::string& path) {
    if (model_->size() > 0) selectRow(model_->rowOf(path).value_or(model_->order().rowAt(0)));
}

void ClippingsList::showMarks(std::size_t row, const ClippingRow& marked) {
    model_->setMarks(row, marked);
}

std::optional<std::size_t> ClippingsList::currentRow() const {
    const wxDataViewItem item = list_->GetSelection();
    if (item.IsOk()) return model_->order().rowAt(model_->GetRow(item));
    if (model_->size() == 0) return std::nullopt;
    return model_->order().rowAt(0);
}

void ClippingsList::selectRow(std::size_t row) {
    const wxDataViewItem item = model_->GetItem(static_cast<unsigned int>(model_->order().placeOf(row)));
    list_->SetCurrentItem(item);
    list_->Select(item);
    list_->EnsureVisible(item);
}

void ClippingsList::sortBy(GridColumn column) {
    const auto current = currentRow();
    model_->sortBy(column);
    showSortArrow();
    if (current) selectRow(*current);
}

void ClippingsList::showSortArrow() {
    const auto sorted = model_->order().column();
    for (unsigned int i = 0; i < list_->GetColumnCount(); ++i) {
        wxDataViewColumn* column = list_->GetColumn(i);
        if (sorted == static_cast<GridColumn>(column->GetModelColumn()))
            column->SetSortOrder(model_->order().isAscending());
        else if (column->IsSortKey())
            column->UnsetAsSortKey();
    }
}

void ClippingsList::focusList() {
    list_->SetFocus();
}

void ClippingsList::setColumnWidth(GridColumn column, int width) {
    columnOf(column).SetWidth(width);
}

std::optional<int> ClippingsList::chosenWidth(GridColumn column) const {
    const int width = givenWidth(columnOf(column));
    return width == givenWidths_.at(column) ? std::nullopt : std::optional(width);
}

void ClippingsList::fitColumns() {
    const auto tableWidth = [this](GridColumn column) { return pixelsFromTwips(*this, gridColumnWidth(column)); };
    const auto newspaper = chosenWidth(GridColumn::Newspaper);
    const auto type = chosenWidth(GridColumn::Type);
    const int all = roomForColumns(*list_);
    const int room = std::min(all / 2, all - tableWidth(GridColumn::Marks) - tableWidth(GridColumn::Title));
    const auto widths = fittedWidths(
        {newspaper.value_or(tableWidth(GridColumn::Newspaper)), type.value_or(tableWidth(GridColumn::Type))},
        {newspaper.value_or(wantedWidths_.Newspaper), type.value_or(wantedWidths_.Type)}, room);
    giveWidth(GridColumn::Newspaper, widths.Newspaper);
    giveWidth(GridColumn::Type, widths.Type);
    const int rest = all - tableWidth(GridColumn::Marks) - widths.Newspaper - widths.Type;
    giveWidth(GridColumn::Title, std::max(rest, FromDIP(narrowestTitle)));
}

int ClippingsList::wantedWidth(GridColumn column) const {
    constexpr std::size_t mostMeasured = 200;
    int widest = 0;
    for (const std::string& text : model_->texts(column, mostMeasured))
        widest = std::max(widest, list_->GetTextExtent(shownLine(text)).GetWidth());
    return widest + FromDIP(cellMargins);
}

void ClippingsList::giveWidth(GridColumn column, int width) {
    if (chosenWidth(column) || width == givenWidths_.at(column)) return;
    columnOf(column).SetWidth(width);
    givenWidths_[column] = width;
}

wxDataViewColumn& ClippingsList::columnOf(GridColumn column) const {
    for (unsigned int i = 0; i < list_->GetColumnCount(); ++i)
        if (static_cast<GridColumn>(list_->GetColumn(i)->GetModelColumn()) == column) return *list_->GetColumn(i);
    throw std::out_of_range("a column that is not shown");
}

void ClippingsList::onKey(wxKeyEvent& event) {
    const auto row = currentRow();
    const bool isEnter = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
    if (isEnter && !event.HasAnyModifiers() && row)
        events_.Entered(*row);
    else
        event.Skip();
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
        const CFtpFile& clipping = *model_->at(model_->order().rowAt(model_->GetRow(item))).File;
        for (const std::string& text :
             {clipping.Description, clipping.NewspaperName, clipping.ArticleType, clipping.Category})
            if (!text.empty()) tip += (tip.empty() ? "" : "\n") + shownLine(text);
    }
    if (list_->GetToolTipText() != tip) list_->SetToolTip(tip);
}

void ClippingsList::onCharacter(wxKeyEvent& event) {
    const wxChar letter = event.GetUnicodeKey();
    const std::string typed = letter < WXK_SPACE || event.HasModifiers() ? std::string() : typedText(wxString(letter));
    if (typed.empty()) {
        event.Skip();
        return;
    }
    const auto current = currentRow();
    const GridColumn column = model_->order().column().value_or(GridColumn::Title);
    const GridColumn searched = column == GridColumn::Marks ? GridColumn::Title : column;
    const auto place = typeAhead_.type(typed.front(), model_->size(),
                                       current ? std::optional(model_->order().placeOf(*current)) : std::nullopt,
                                       [&](std::size_t at) { return model_->textAt(at, searched); });
    if (place) selectRow(model_->order().rowAt(*place));
}

}  // namespace vell
