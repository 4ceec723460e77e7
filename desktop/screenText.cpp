// SPDX-License-Identifier: MIT
#include "desktop/screenText.h"

#include <algorithm>

#include <wx/control.h>
#include <wx/datetime.h>

#include "base/text.h"

namespace vell {

wxString shownText(std::string_view text) {
    std::string lines = Replace(text, "\r\n", "\n");
    std::replace_if(
        lines.begin(), lines.end(), [](char c) { return static_cast<unsigned char>(c) < 32 && c != '\n' && c != '\t'; },
        ' ');
    const std::string utf8 = utf8FromCodePage(lines);
    return wxString::FromUTF8(utf8.data(), utf8.size());
}

wxString shownLine(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 32; }, ' ');
    return shownText(line);
}

wxString shownLabel(std::string_view text) {
    return wxControl::EscapeMnemonics(shownLine(text));
}

std::string typedText(const wxString& text) {
    return codePageFromUtf8Lossy(text.utf8_string());
}

wxDateTime pickerDate(const Date& date) {
    return {static_cast<wxDateTime::wxDateTime_t>(date.Day), static_cast<wxDateTime::Month>(date.Month - 1), date.Year};
}

Date programDate(const wxDateTime& date) {
    return {date.GetYear(), static_cast<int>(date.GetMonth()) + 1, date.GetDay()};
}

}  // namespace vell
