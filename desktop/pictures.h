// SPDX-License-Identifier: MIT
#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>

namespace vell {

// The pictures that were drawn for this program. They are part of the executable and sharp at every scale.
enum class Picture { Opened, Printed, Both, Start, Stop, Open, OpenNext, Print, Filter, AutoView, Setup, Schedule };

inline const wxSize rowPictureSize(34, 16);
// For a row's first cell.
[[nodiscard]] wxBitmapBundle rowPicture(Picture picture);
// For the toolbar.
[[nodiscard]] wxBitmapBundle toolPicture(Picture picture);
// The program's own.
[[nodiscard]] wxIconBundle programIcons();
[[nodiscard]] wxBitmapBundle programPicture();

}  // namespace vell
