// SPDX-License-Identifier: MIT
#include "desktop/list/ClippingsModel.h"

#include <algorithm>
#include <utility>

#include <wx/translation.h>
#include <wx/variant.h>

#include "desktop/pictures.h"
#include "desktop/screenText.h"
#include "ui/list/RowOrder.h"

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
    return sameTexts && a.Opened == b.Opened && a.Printed == b.Printed && a.New == b.New;
}

// The marks as a screen reader says them. The blanks in front push the words out of sight behind the picture, which
// fills the column.
wxString spokenMarks(const ClippingRow& row) {
    if (!row.Opened && !row.Printed) return {};
    const wxString words = row.Opened && row.Printed ? _("Opened, printed") : row.Opened ? _("Opened") : _("Printed");
    return wxString(12, ' ') + words;
}

}  // namespace

ClippingsModel::ClippingsModel()
    : imgOpenPrinter_{rowPicture(Picture::Opened), rowPicture(Picture::Printed), rowPicture(Picture::Both)} {}

bool ClippingsModel::setRows(const std::vector<ClippingRow>& rows) {
    const std::vector<ClippingRow> before = std::exchange(rows_, rows);
    // By the numbers of rows first: of another day's the paths need not be put together.
    const bool areFew = rows_.size() >= before.size() && rows_.size() - before.size() <= mostInsertedOneByOne;
    if (const auto inserted = areFew ? insertedPlaces(pathsOf(before), pathsOf(rows_)) : std::nullopt) {
        tellChanges(before, *inserted);
        return true;
    }
    Reset(static_cast<unsigned int>(rows_.size()));
    return false;
}

void ClippingsModel::tellChanges(const std::vector<ClippingRow>& before, const std::vector<std::size_t>& inserted) {
    auto next = inserted.begin();
    auto old = before.begin();
    for (std::size_t place = 0; place < rows_.size(); ++place) {
        if (next != inserted.end() && *next == place) {
            RowInserted(static_cast<unsigned int>(place));
            ++next;
        } else if (!looksSame(*old++, rows_[place])) {
            RowChanged(static_cast<unsigned int>(place));
        }
    }
}

void ClippingsModel::setMarks(std::size_t row, const ClippingRow& marked) {
    rows_.at(row) = marked;
    RowChanged(static_cast<unsigned int>(row));
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

bool ClippingsModel::hasBold() const {
    return std::ranges::any_of(rows_, &ClippingRow::New);
}

unsigned int ClippingsModel::GetColumnCount() const {
    return gridColumns.size();
}

wxString ClippingsModel::GetColumnType(unsigned int column) const {
    return static_cast<GridColumn>(column) == GridColumn::Marks ? "wxDataViewIconText" : "string";
}

void ClippingsModel::GetValueByRow(wxVariant& value, unsigned int number, unsigned int column) const {
    const ClippingRow& row = rows_.at(number);
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

bool ClippingsModel::SetValueByRow(const wxVariant& /*value*/, unsigned int /*row*/, unsigned int /*column*/) {
    return false;
}

bool ClippingsModel::GetAttrByRow(unsigned int row, unsigned int /*column*/, wxDataViewItemAttr& looks) const {
    if (!rows_.at(row).New) return false;
    looks.SetBold(true);
    return true;
}

}  // namespace vell
