// SPDX-License-Identifier: MIT
#include "desktop/pictures.h"

#include "desktop/pictureTexts.h"

namespace vell {

namespace {

const wxSize toolSize(24, 24);
const wxSize programSize(64, 64);

const char* textOf(Picture picture) {
    switch (picture) {
        case Picture::Opened:
            return svg::opened;
        case Picture::Printed:
            return svg::printed;
        case Picture::Both:
            return svg::both;
        case Picture::Start:
            return svg::start;
        case Picture::Stop:
            return svg::stop;
        case Picture::Open:
            return svg::open;
        case Picture::OpenNext:
            return svg::opennext;
        case Picture::Print:
            return svg::print;
        case Picture::Filter:
            return svg::filter;
        case Picture::AutoView:
            return svg::autoview;
        case Picture::Setup:
            return svg::setup;
        case Picture::Schedule:
            return svg::schedule;
    }
    return "";
}

}  // namespace

wxBitmapBundle rowPicture(Picture picture) {
    return wxBitmapBundle::FromSVG(textOf(picture), rowPictureSize);
}

wxBitmapBundle toolPicture(Picture picture) {
    return wxBitmapBundle::FromSVG(textOf(picture), toolSize);
}

wxIconBundle programIcons() {
    wxIconBundle icons;
    for (const int side : {16, 32, 64})
        icons.AddIcon(wxBitmapBundle::FromSVG(svg::vell, {side, side}).GetIcon({side, side}));
    return icons;
}

wxBitmapBundle programPicture() {
    return wxBitmapBundle::FromSVG(svg::vell, programSize);
}

}  // namespace vell
