// SPDX-License-Identifier: MIT
#include "desktop/sidebar/Advertisement.h"

#include <algorithm>
#include <memory>

#include <wx/dcclient.h>
#include <wx/graphics.h>
#include <wx/image.h>
#include <wx/log.h>
#include <wx/mstream.h>
#include <wx/sizer.h>
#include <wx/translation.h>

#include "desktop/native/accessibleName.h"
#include "platform/Files.h"
#include "ui/PictureSize.h"

namespace vell {

namespace {
// Heights in DIP.
constexpr int highest = 140;
constexpr int lowest = 60;   // below that the picture gives way
constexpr int others = 475;  // what stands above it needs at least
}  // namespace

Advertisement::Advertisement(wxWindow* parent, const Files& files) : wxPanel(parent), files_(files) {
    setAccessibleName(*this, _("Advertisement"));
    m_container.DisableSelfFocus();  // there is nothing to do here with the keyboard
    Bind(wxEVT_PAINT, &Advertisement::paint, this);
    GetParent()->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        fit();
    });
    Hide();
}

void Advertisement::show(const std::string& path) {
    picture_ = load(path);
    fit();
    GetParent()->Layout();
    Refresh();
}

void Advertisement::offer(bool wanted) {
    isWanted_ = wanted;
    fit();
    GetParent()->Layout();
}

wxImage Advertisement::load(const std::string& path) const {
    try {
        const auto length = files_.FileSize(path);
        if (!length || *length > longestPicture) return {};
        const std::string bytes = files_.ReadFile(path);
        if (!isDecentPicture(bytes)) return {};
        const wxLogNull quiet;  // a broken picture is no matter for the user
        wxMemoryInputStream stream(bytes.data(), bytes.size());
        return wxImage(stream);
    } catch (const std::exception&) {
        return {};
    }
}

wxSize Advertisement::fittedSize() const {
    const int height = std::min(GetParent()->GetClientSize().GetHeight() - FromDIP(others), FromDIP(highest));
    if (!isWanted_ || !picture_.IsOk() || height < FromDIP(lowest)) return {};
    const wxSize natural = FromDIP(picture_.GetSize());
    const double width = GetContainingSizer()->GetMinSize().GetWidth();
    const double scale = std::min({1.0, width / natural.GetWidth(), static_cast<double>(height) / natural.GetHeight()});
    return {static_cast<int>(natural.GetWidth() * scale), static_cast<int>(natural.GetHeight() * scale)};
}

void Advertisement::fit() {
    const wxSize size = fittedSize();
    Show(size != wxSize());
    if (size != GetMinSize()) SetMinSize(size);
}

void Advertisement::paint(wxPaintEvent& /*event*/) {
    wxPaintDC dc(this);
    if (!picture_.IsOk()) return;
    const std::unique_ptr<wxGraphicsContext> canvas(wxGraphicsContext::Create(dc));
    const wxSize size = fittedSize();
    const int left = (GetClientSize().GetWidth() - size.GetWidth()) / 2;
    canvas->SetInterpolationQuality(wxINTERPOLATION_BEST);
    canvas->DrawBitmap(canvas->CreateBitmapFromImage(picture_), left, 0, size.GetWidth(), size.GetHeight());
}

}  // namespace vell
