// SPDX-License-Identifier: MIT
#include "app/run/RunBoxes.h"

#include "app/MainView.h"
#include "app/Session.h"

namespace vell {

Answer RunBoxes::Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) {
    if (session_.StartedByUser || buttons != Buttons::Ok) return boxes_.Show(text, caption, buttons, icon);
    view_.displayInfoMessageBox(text);
    return Answer::Ok;
}

}  // namespace vell
