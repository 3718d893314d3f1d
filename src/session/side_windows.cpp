#include "session/side_windows.h"

#include "entry/field_listing.h"
#include "entry/smart_fields.h"
#include "platform/fonts.h"
#include "session/state/ready.h"
#include "tools/backup/backup_window.h"
#include "tools/custom_forms/custom_forms_window.h"
#include "tools/envelopes/envelope_window.h"
#include "tools/op236/op236_window.h"

namespace quillmark {

AddressEditor& SideWindows::OpenAddresses(AddressBook book) {
    RequireReady(screen_);
    Require(!around_.isClosed(), "no client has been chosen yet");
    Require(!screen_.browserOpen || !screen_.templateBeingSet,
            "the template browser leads to no address book");
    editor_.LoseFocus(ScreenFocus::Elsewhere);
    addresses_ = std::make_unique<AddressEditor>(book, firm_.Books(), machine_.dialogs);
    return *addresses_;
}

ProrationCalculator& SideWindows::OpenCalculator() {
    RequireReady(screen_);
    Require(!around_.isClosed(), "no client has been chosen yet");
    Require(!screen_.browserOpen, "the browser is open");
    Require(!around_.settingsShown(), "the settings are being edited");
    editor_.LoseFocus(ScreenFocus::Elsewhere);
    calculator_ = std::make_unique<ProrationCalculator>(screen_.job, machine_.clock);
    return *calculator_;
}

void SideWindows::HandOver(CreditTo side) {
    RequireReady(screen_);
    Require(calculator_ != nullptr, "the proration calculator is not open");
    const int row = screen_.currentRow;
    const int rows = static_cast<int>(screen_.grid.size());
    Require(row >= 0 && row < rows, "no field is current in the grid");
    const GridRow& target = screen_.grid[static_cast<std::size_t>(row)];
    const int n = target.n;
    Require(target.kind == RowKind::User || TakesAmount(n),
            "the current row, " + target.label + ", takes no amount");
    around_.openRow(row);
    const std::string amount = HandOverValue(*calculator_, side, n);
    CloseCalculator();
    const auto value = [&] { return screen_.grid[static_cast<std::size_t>(row)].value; };
    const std::string before = value();
    UpdateListing(n, amount, screen_, {.row = row});
    if (value() != before) around_.fieldChanged(n);
}

void SideWindows::OpenCustomForms() {
    const MessageDialog box{" Confirm",
                            "Leaving main program, entering Custom Forms Manager",
                            {DialogButton::OK, DialogButton::Cancel},
                            DialogButton::OK,
                            DialogIcon::Question};
    if (machine_.dialogs.Show(box) != DialogButton::OK) return;
    window_ = std::make_unique<CustomFormsWindow>(CustomFormsOffice{firm_.folders().CustomFormsFolder,
                                                                    machine_.dialogs, machine_.shell,
                                                                    machine_.startWord, InstalledFonts()});
}

void SideWindows::OpenReturn() {
    std::vector<std::string> jobList;
    for (const JobListLine& line : screen_.List2) jobList.push_back(line.name);
    window_ = std::make_unique<op236::OP236Window>(
        op236::ReturnOffice{.job = screen_.job,
                            .jobList = std::move(jobList),
                            .jobName = screen_.txtJobName.IsSaveable() ? screen_.txtJobName.text : "",
                            .programFolder = firm_.ProgramFolder(),
                            .clock = machine_.clock,
                            .dialogs = machine_.dialogs,
                            .shell = machine_.shell,
                            .printers = machine_.printers,
                            .printer = machine_.sheets});
}

void SideWindows::OpenEnvelopes() {
    window_ = std::make_unique<envelopes::EnvelopeWindow>(
        envelopes::EnvelopeOffice{.job = screen_.job,
                                  .programFolder = firm_.ProgramFolder(),
                                  .fonts = machine_.fonts,
                                  .dialogs = machine_.dialogs,
                                  .printers = machine_.printers,
                                  .printer = machine_.sheets});
}

void SideWindows::OpenBackup() {
    auto window = std::make_unique<BackupWindow>(
        BackupOffice{firm_.folders(), machine_.dialogs, machine_.clock, machine_.drives});
    if (window->EndsProgram())
        screen_.ended = true;
    else
        window_ = std::move(window);
}

void SideWindows::WindowHasActed() {
    if (!window_ || window_->IsOpen()) return;
    const std::unique_ptr<SideWindow> closed = std::move(window_);
    const auto* backup = dynamic_cast<const BackupWindow*>(closed.get());
    if (backup && backup->HasRestored()) around_.readFirm();
    const auto* forms = dynamic_cast<const CustomFormsWindow*>(closed.get());
    if (!forms) return;
    around_.offerDocuments();
    if (forms->LeftForTest()) around_.startTestMode();
}

void SideWindows::CloseAll() {
    addresses_.reset();
    calculator_.reset();
}

}  // namespace quillmark
