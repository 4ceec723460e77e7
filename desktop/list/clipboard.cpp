// SPDX-License-Identifier: MIT
#include "desktop/list/clipboard.h"

#include <memory>

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/filesys.h>

#include "desktop/screenText.h"

namespace vell {

namespace {

void copy(std::unique_ptr<wxDataObject> data) {
    const wxClipboardLocker clipboard;
    if (!clipboard) return;                   // another program holds it; the user tries again
    wxTheClipboard->SetData(data.release());  // which deletes it
}

// What some file managers ask for instead of the plain list of files: it says that they are copied, not moved.
std::unique_ptr<wxDataObjectSimple> fileManagersList(const std::vector<std::string>& paths) {
    std::string list = "copy";
    for (const std::string& path : paths)
        list += "\n" + wxFileSystem::FileNameToURL(wxFileName(wxString::FromUTF8(path))).utf8_string();
    auto data = std::make_unique<wxCustomDataObject>(wxDataFormat("x-special/gnome-copied-files"));
    data->SetData(list.size(), list.data());
    return data;
}

}  // namespace

void copyText(std::string_view text) {
    copy(std::make_unique<wxTextDataObject>(shownText(text)));
}

void copyLines(const std::vector<std::string>& lines) {
    wxString text;
    for (const std::string& line : lines)
        text += (text.empty() ? "" : "\n") + wxString::FromUTF8(line);
    copy(std::make_unique<wxTextDataObject>(text));
}

std::unique_ptr<wxFileDataObject> filesToDraw(const std::vector<std::string>& paths) {
    auto files = std::make_unique<wxFileDataObject>();
    for (const std::string& path : paths)
        files->AddFile(wxString::FromUTF8(path));
    return files;
}

void copyFiles(const std::vector<std::string>& paths, std::string_view text) {
    auto all = std::make_unique<wxDataObjectComposite>();
    all->Add(filesToDraw(paths).release(), true);
    all->Add(fileManagersList(paths).release());
    all->Add(std::make_unique<wxTextDataObject>(shownText(text)).release());
    copy(std::move(all));
}

}  // namespace vell
