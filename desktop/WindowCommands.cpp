// SPDX-License-Identifier: MIT
#include "desktop/WindowCommands.h"

#include <memory>
#include <utility>

#include "app/frmMain.h"
#include "desktop/MainWindow.h"
#include "desktop/commandIds.h"
#include "desktop/dialogs/AboutDialog.h"
#include "desktop/dialogs/FilterDialog.h"
#include "desktop/dialogs/PrintDialog.h"
#include "desktop/dialogs/ScheduleDialog.h"
#include "desktop/dialogs/setup/SetupDialog.h"
#include "desktop/list/ClippingsList.h"

namespace vell {

WindowCommands::WindowCommands(frmMain& program, MainWindow& window, MessageBoxes& boxes, std::function<void()> end)
    : program_(program), window_(window), boxes_(boxes), end_(std::move(end)), onList_(program, window, dialogs_) {
    onList_.addTo(table_);
    addClippingCommands();
    addDayCommands();
    addProgramCommands();
    addFailureCommands();
    addViewCommands();
    addFindCommands();
    addReadingCommands();
    listen();
}

WindowCommands::~WindowCommands() {
    program_.reading().Text.showIn(nullptr);
    program_.reading().Find.showIn(nullptr);
    window_.listenTo({});
}

void WindowCommands::welcome() {
    if (program_.isFirstStart()) commandChosen(command::Setup);
}

void WindowCommands::listen() {
    window_.listenTo({
        .CommandChosen = [this](int id) { commandChosen(id); },
        .IsEnabled = [this](int id) { return isEnabled(id); },
        .IsOn = [this](int id) { return isOn(id); },
        .DayChosen = [this](const Date& day) { program_.reading().Browser.chooseDay(day); },
        .RowDoubleClicked = [this](std::size_t row) { program_.reading().Opening.grdLocalFiles_DblClick(row); },
        .RowsEntered = [this] { commandChosen(command::Open); },
        .RowSelected = [this] { showText(); },
        .BlankPressed = [this] { return readOn(); },
        .SortChosen = [this](GridColumn column) { onList_.sortBy(column); },
        .FilesWanted = [this](const auto& rows) { return program_.reading().Copies.paths(rows); },
        .RangeChosen = [this](bool onlyToday) { program_.downloads().chooseOnlyToday(onlyToday); },
        .FromDateChanged = [this](const Date& from) { program_.downloads().dtFromDate_Change(from); },
        .ToDateChanged = [this](const Date& to) { program_.downloads().dtToDate_Change(to); },
        .DayMistyped = [this](const std::string& text) { program_.downloads().typedNoDay(text); },
        .NoticeChosen =
            [this] {
                if (const auto row = program_.news().goToNews()) window_.list().selectRow(*row);
            },
        .AlertSeen = [this] { program_.reading().Browser.alertSeen(); },
        .AddressChosen = [this](const std::string& address) { program_.reading().Links.open(address); },
        .SettingInQuestion = [this](const auto& setting) { setUp(setting); },
        .SetupWanted = [this] { setUpAndWait(); },
        .Closing = [this](bool mayBeRefused) { closing(mayBeRefused); },
    });
}

void WindowCommands::addClippingCommands() {
    const auto hasRows = [this] { return !program_.reading().Browser.rows().empty(); };
    const auto canPrint = [this, hasRows] { return hasRows() && !program_.reading().Printing.isPrinting(); };
    table_[command::OpenNext20] = {[this] { program_.reading().Opening.openNext20(); }, hasRows};
    table_[command::PrintAll] = {[this] { program_.reading().Printing.mnuPrintAll_Click(); }, canPrint};
    table_[command::StopPrinting] = {[this] { program_.reading().Printing.stop(); },
                                     [this] { return program_.reading().Printing.isPrinting(); }};
    table_[command::PrintByCategory] = {[this] { printByCategory(); }, canPrint};
    table_[command::AutoView] = {[this] { showAutoView(); }, hasRows};
}

void WindowCommands::addDayCommands() {
    const auto hasDay = [this] { return program_.reading().Browser.chosenDay().has_value(); };
    table_[command::OpenDayFolder] = {[this] { program_.reading().Opening.openDayFolder(); }, hasDay};
    table_[command::DeleteDay] = {
        [this] { program_.reading().Days.mnuDeleteDay_Click(window_.selectedDays()); },
        [this] { return program_.reading().Days.canDelete() && !window_.selectedDays().empty(); }};
    table_[command::NewerDay] = {[this] { program_.reading().Days.chooseNewer(); }, hasDay};
    table_[command::OlderDay] = {[this] { program_.reading().Days.chooseOlder(); }, hasDay};
    table_[command::Filter] = {[this] { chooseFilter(); }, hasDay};
}

void WindowCommands::addProgramCommands() {
    const auto always = [] { return true; };
    table_[command::Start] = {[this] { download(); }, [this] { return !program_.downloads().isBusy(); }};
    table_[command::Stop] = {[this] { program_.downloads().cmdStopDownload_Click(); },
                             [this] { return program_.downloads().isBusy() || window_.offersStop(); }};
    table_[command::Setup] = {[this] { setUp(std::nullopt); }, always};
    table_[command::Schedule] = {[this] {
                                     dialogs_.open(new ScheduleDialog(&window_, program_.scheduleDialog()),
                                                   [this] { program_.news().showNextRun(); });
                                 },
                                 always};
    table_[command::Refresh] = {[this] { program_.reading().Days.reload(); }, always};
    table_[command::GoToList] = {[this] { window_.list().focusList(); }, always};
    table_[command::Help] = {[this] { program_.reading().Opening.openHelp(); }, always};
    table_[command::CheckUpdate] = {[this] { (void)program_.update().mnuCheckUpdate_Click(); },
                                    [this] { return !program_.downloads().isBusy(); }};
    table_[command::About] = {[this] { showAbout(); }, always};
    table_[command::Exit] = {[this] { window_.Close(); }, always};
}

void WindowCommands::printByCategory() {
    static constexpr std::string_view splitKey = "PrintSplit";
    ViewSettings& looks = program_.viewSettings();
    frmPrint rules = program_.reading().Printing.mnuPrintByCategory_Click();
    rules.splitCategories(looks.flag(splitKey, false));
    dialogs_.open(
        new PrintDialog(&window_, std::move(rules), [&looks](bool split) { looks.keepFlag(splitKey, split); }));
}

void WindowCommands::chooseFilter() {
    dialogs_.open(new FilterDialog(&window_, frmFilter(program_.reading().Browser)));
}

void WindowCommands::showAutoView() {
    if (!autoView_)
        autoView_ = new AutoViewWindow(&window_, program_.reading().AutoView,
                                       {[this] {
                                            if (const auto row = window_.list().currentRow())
                                                program_.reading().AutoView.start(*row);
                                        },
                                        [this](const std::string& path) {
                                            if (const auto row = program_.reading().Browser.rowOf(path))
                                                window_.list().selectRow(*row);
                                        }});
    autoView_->Show();
    autoView_->Raise();
}

SetupDialog* WindowCommands::setupDialog() {
    return new SetupDialog(&window_, program_.setupDialog(), boxes_, program_.dialUpNames());
}

void WindowCommands::setUp(const std::optional<SettingField>& setting) {
    SetupDialog* dialog = setupDialog();
    if (setting) dialog->goTo(*setting);
    dialogs_.open(dialog, [this] { program_.settingsSaved(); });
}

// For a run whose login was refused.
void WindowCommands::setUpAndWait() {
    const std::unique_ptr<SetupDialog> dialog(setupDialog());
    dialog->goTo(&Settings::Pwd);
    if (dialog->ShowModal() == wxID_OK) program_.settingsSaved();
}

void WindowCommands::showAbout() {
    const std::string address = program_.settings().Host.empty() ? "" : "http://" + program_.settings().Host + "/";
    dialogs_.open(new AboutDialog(&window_, program_.version(), address,
                                  [this, address] { program_.reading().Opening.openAddress(address); }));
}

// A key or a tool takes the keyboard from no entry: a day that was typed is not yet known. Other days than the typed
// ones are not fetched.
void WindowCommands::download() {
    if (window_.takeTypedDays()) program_.downloads().mnuForceDownload_Click();
}

void WindowCommands::commandChosen(int id) {
    if (isEnabled(id)) table_.at(id).Run();
}

bool WindowCommands::isEnabled(int id) const {
    const auto entry = table_.find(id);
    return entry != table_.end() && entry->second.CanRun();
}

bool WindowCommands::isOn(int id) const {
    const auto entry = table_.find(id);
    return entry != table_.end() && entry->second.IsOn && entry->second.IsOn();
}

void WindowCommands::closing(bool mayBeRefused) {
    if (mayBeRefused && dialogs_.raise()) return;
    if (std::exchange(closing_, true)) return;  // the end may ask the user something, who may close once more
    onList_.keepLooks();
    program_.Form_Unload();
    end_();
}

}  // namespace vell
