// SPDX-License-Identifier: MIT
#include "desktop/WxTranslations.h"

#include <memory>

#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/translation.h>

#include "desktop/screenText.h"

namespace vell {

// A catalogue beside the program is that of a folder that was unpacked somewhere; installed ones the toolkit finds
// itself. wxLocale, which would open catalogues too, changes how the C library reads and writes numbers.
void WxTranslations::open() {
    const wxFileName program(wxStandardPaths::Get().GetExecutablePath());
    wxFileTranslationsLoader::AddCatalogLookupPathPrefix(program.GetPathWithSep() + "locale");
    auto catalogues = std::make_unique<wxTranslations>();
    catalogues->AddStdCatalog();
    catalogues->AddCatalog("vell");
    wxTranslations::Set(catalogues.release());  // the toolkit's now
}

std::string WxTranslations::translate(std::string_view english) const {
    return typedText(wxGetTranslation(shownText(english)));
}

std::string WxTranslations::translate(std::string_view one, std::string_view many, std::size_t number) const {
    return typedText(wxGetTranslation(shownText(one), shownText(many), static_cast<unsigned>(number)));
}

}  // namespace vell
