// SPDX-License-Identifier: MIT
#include "desktop/list/ClippingsModel.h"

#include <algorithm>

#include <wx/variant.h>

#include "desktop/pictures.h"
#include "desktop/screenText.h"

namespace vell {

namespace {

// More rows than that are shown faster all at once than one by one.
constexpr std::size_t mostInsertedOneByOne = 64;

std::vector<std::string> pathsOf(const std::vector<ClippingRow>& rows) {
    std::vector<std::string> paths;
    paths.reserve(rows.size());
    for (const ClippingRow& row : rows)
        paths.push_back(row.path());
    return paths;
}

bool looksSame(const ClippingRow& a, const ClippingRow& b) {
    const bool sameTexts = std::ranges::all_of(
        gridColumns, [&](const auto& layout) { return cellText(a, layout.Column) == cellText(b, layout.Column); });
    return sameTexts && a.Opened == b.Opened && a.Printed == b.Printed;
}

// The marks as a screen reader says them. The blanks in front push the words out of sight behind the picture, which
// fills the column.
wxString spokenMarks(const ClippingRow& row) {
    if (!row.Opened && !row.Printed) return {};
    const wxString words = row.Opened && row.Printed ? "Opened, printed" : row.Opened ? "Opened" : "Printed";
    return wxString(12, ' ') + words;
}

}  // namespace

ClippingsModel::ClippingsModel()
    : imgOpenPrinter_{rowPicture(Picture::Opened), rowPicture(Picture::Printed), rowPicture(Picture::Both)} {}

bool ClippingsModel::setRows(const std::vector<ClippingRow>& rows) {
    const std::vector<ClippingRow> before = shownRows();
    rows_ = rows;
    order_.rebuild(rows_);
    const auto inserted = insertedPlaces(pathsOf(before), pathsOf(shownRows()));
    if (!inserted || inserted->size() > mostInsertedOneByOne) {
        Reset(static_cast<unsigned int>(rows_.size()));
        return false;
    }
    tellChanges(before, *inserted);
    return true;
}

void ClippingsModel::tellChanges(const std::vector<ClippingRow>& before, const std::vector<std::size_t>& inserted) {
    auto next = inserted.begin();
    auto old = before.begin();
    for (std::size_t place = 0; place < rows_.size(); ++place) {
        if (next != inserted.end() && *next == place) {
            RowInserted(static_cast<unsigned int>(place));
            ++next;
        } else if (!looksSame(*old++, rows_[order_.rowAt(place)])) {
            RowChanged(static_cast<unsigned int>(place));
        }
    }
}

void ClippingsModel::setMarks(std::size_t row, const ClippingRow& marked) {
    rows_.at(row) = marked;
    RowChanged(static_cast<unsigned int>(order_.placeOf(row)));
}

void ClippingsModel::sortBy(GridColumn column) {
    order_.sortBy(column, rows_);
    Reset(static_cast<unsigned int>(rows_.size()));
}

std::string ClippingsModel::textAt(std::size_t place, GridColumn column) const {
    return cellText(rows_.at(order_.rowAt(place)), column);
}

std::set<std::string> ClippingsModel::texts(GridColumn column, std::size_t most) const {
    std::set<std::string> found;
    for (std::size_t row = 0; row < rows_.size() && found.size() < most; ++row)
        found.insert(cellText(rows_[row], column));
    return found;
}

std::optional<std::size_t> ClippingsModel::rowOf(const std::string& path) const {
    const auto found = std::ranges::find_if(rows_, [&](const ClippingRow& row) { return row.path() == path; });
    if (found == rows_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - rows_.begin());
}

unsigned int ClippingsModel::GetColumnCount() const {
    return gridColumns.size();
}

wxString ClippingsModel::GetColumnType(unsigned int column) const {
    return static_cast<GridColumn>(column) == GridColumn::Marks ? "wxDataViewIconText" : "string";
}

void ClippingsModel::GetValueByRow(wxVariant& value, unsigned int place, unsigned int column) const {
    const ClippingRow& row = rows_.at(order_.rowAt(place));
    const auto asked = static_cast<GridColumn>(column);
    if (asked != GridColumn::Marks) {
        value = shownLine(cellText(row, asked));
        return;
    }
    wxDataViewIconText marks(spokenMarks(row));
    if (row.Opened || row.Printed)
        marks.SetBitmapBundle(imgOpenPrinter_.at(row.Opened && row.Printed ? 2 : row.Opened ? 0 : 1));
    value << marks;
}

bool ClippingsModel::SetValueByRow(const wxVariant& /*value*/, unsigned int /*place*/, unsigned int /*column*/) {
    return false;
}

std::vector<ClippingRow> ClippingsModel::shownRows() const {
    std::vector<ClippingRow> shown;
    shown.reserve(rows_.size());
    for (std::size_t place = 0; place < order_.size(); ++place)
        shown.push_back(rows_[order_.rowAt(place)]);
    return shown;
}

}  // namespace vell
