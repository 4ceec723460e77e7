// SPDX-License-Identifier: MIT
#include "desktop/windowPlace.h"

#include <algorithm>

#include <wx/display.h>
#include <wx/toplevel.h>

#include "desktop/native/insistOnPlace.h"
#include "desktop/twips.h"

namespace vell {

namespace {

wxRect screenAt(int display) {
    return wxDisplay(display == wxNOT_FOUND ? 0U : static_cast<unsigned>(display)).GetClientArea();
}

// A window that was left on a display which is gone would never be found again, and one larger than its display never
// be seen whole.
wxRect reachable(wxRect window) {
    constexpr int seizable = 40;  // enough of the title bar for the mouse
    const int display =
        wxDisplay::GetFromPoint({window.GetLeft() + window.GetWidth() / 2, window.GetTop() + seizable / 2});
    const wxRect screen = screenAt(display);
    if (display == wxNOT_FOUND) window.SetPosition(screen.GetPosition());
    if (window.GetWidth() > screen.GetWidth()) window.SetLeft(screen.GetLeft()), window.SetWidth(screen.GetWidth());
    if (window.GetHeight() > screen.GetHeight()) window.SetTop(screen.GetTop()), window.SetHeight(screen.GetHeight());
    return window;
}

}  // namespace

void keepLargerThan(wxTopLevelWindow& window, const wxSize& least) {
    wxSize size = window.FromDIP(least);
    size.DecTo(screenAt(wxNOT_FOUND).GetSize());
    window.SetMinSize(size);
}

void placeWindow(wxTopLevelWindow& window, const WindowPlace& place) {
    const auto pixels = [&](int twips) { return pixelsFromTwips(window, twips); };
    wxRect wanted(pixels(place.Left), pixels(place.Top), pixels(place.Width), pixels(place.Height));
    wanted.SetSize(
        {std::max(wanted.GetWidth(), window.GetMinWidth()), std::max(wanted.GetHeight(), window.GetMinHeight())});
    wanted = reachable(wanted);
    window.SetSize(wanted);
    insistOnPlace(window, wanted.GetPosition());
}

std::optional<WindowPlace> placeOfWindow(const wxTopLevelWindow& window) {
    if (window.IsIconized() || window.IsMaximized() || window.IsFullScreen()) return std::nullopt;
    const auto twips = [&](int pixels) { return twipsFromPixels(window, pixels); };
    const wxRect place = window.GetRect();
    return WindowPlace{twips(place.GetTop()), twips(place.GetLeft()), twips(place.GetWidth()),
                       twips(place.GetHeight())};
}

}  // namespace vell
