// SPDX-License-Identifier: MIT
#include "desktop/dialogs/WxMessageBoxes.h"

#include <wx/msgdlg.h>
#include <wx/translation.h>

#include "desktop/dialogs/LongMessage.h"
#include "desktop/dialogs/buttonTexts.h"
#include "desktop/screenText.h"

namespace vell {

namespace {

long styleOf(Buttons buttons, BoxIcon icon) {
    long style = wxCENTRE;
    switch (buttons) {
        case Buttons::Ok:
            style |= wxOK;
            break;
        case Buttons::OkCancel:
        case Buttons::RetryCancel:
            style |= wxOK | wxCANCEL;
            break;
        case Buttons::YesNo:
            style |= wxYES_NO;
            break;
        case Buttons::NoYes:
            style |= wxYES_NO | wxNO_DEFAULT;
            break;
        case Buttons::AbortRetryIgnore:
            style |= wxYES_NO | wxCANCEL;
            break;
    }
    switch (icon) {
        case BoxIcon::None:
            return style | wxICON_NONE;
        case BoxIcon::Information:
            return style | wxICON_INFORMATION;
        case BoxIcon::Question:
            return style | wxICON_QUESTION;
        case BoxIcon::Warning:
            return style | wxICON_WARNING;
        case BoxIcon::Error:
            return style | wxICON_ERROR;
    }
    return style;
}

Answer answerOf(Buttons buttons, int result) {
    switch (buttons) {
        case Buttons::Ok:
            return Answer::Ok;
        case Buttons::OkCancel:
            return result == wxID_OK ? Answer::Ok : Answer::Cancel;
        case Buttons::RetryCancel:
            return result == wxID_OK ? Answer::Retry : Answer::Cancel;
        case Buttons::YesNo:
        case Buttons::NoYes:
            return result == wxID_YES ? Answer::Yes : Answer::No;
        case Buttons::AbortRetryIgnore:
            if (result == wxID_YES) return Answer::Abort;
            return result == wxID_NO ? Answer::Retry : Answer::Ignore;
    }
    return Answer::Cancel;
}

}  // namespace

Answer WxMessageBoxes::Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) {
    return ShowWithDetail(text, "", caption, buttons, icon);
}

Answer WxMessageBoxes::ShowWithDetail(std::string_view text, std::string_view detail, std::string_view caption,
                                      Buttons buttons, BoxIcon icon) {
    if (buttons == Buttons::Ok && LongMessage::isNeededFor(shownText(text))) {
        LongMessage(shownText(text), shownLine(caption)).ShowModal();
        return Answer::Ok;
    }
    wxMessageDialog box(nullptr, shownText(text), shownLine(caption), styleOf(buttons, icon));
    nameButtons(box);
    if (!detail.empty()) box.SetExtendedMessage(shownText(detail));
    if (buttons == Buttons::RetryCancel) box.SetOKCancelLabels(_("&Retry"), _("&Cancel"));
    if (buttons == Buttons::AbortRetryIgnore) box.SetYesNoCancelLabels(_("&Abort"), _("&Retry"), _("&Ignore"));
    return answerOf(buttons, box.ShowModal());
}

}  // namespace vell
