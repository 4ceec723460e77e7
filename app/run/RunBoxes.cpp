// SPDX-License-Identifier: MIT
#include "app/run/RunBoxes.h"

#include <string>

#include "app/MainView.h"
#include "app/Session.h"
#include "log/EventLog.h"

namespace vell {

namespace {

struct Negative {
    Answer Means;
    std::string_view Label;
};

Negative negativeOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::Ok:
            return {Answer::Ok, ""};
        case Buttons::YesNo:
        case Buttons::NoYes:
            return {Answer::No, "No"};
        case Buttons::OkCancel:
        case Buttons::RetryCancel:
            return {Answer::Cancel, "Cancel"};
        case Buttons::AbortRetryIgnore:
            return {Answer::Abort, "Abort"};
    }
    return {Answer::Cancel, "Cancel"};
}

}  // namespace

Answer RunBoxes::Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) {
    if (!session_.isAlone()) return boxes_.Show(text, caption, buttons, icon);
    const Negative answer = negativeOf(buttons);
    std::string told(text);
    if (!answer.Label.empty()) told.append(" -> ").append(answer.Label);
    log_.WriteLog(told);
    view_.displayInfoMessageBox(told);
    return answer.Means;
}

}  // namespace vell
