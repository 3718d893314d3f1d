#include "entry/questions.h"
#include "entry/smart_fields.h"
#include "selection/field_listing.h"
#include "session/main_screen.h"

namespace quillmark {

AddressEditor& MainScreen::OpenAddresses(AddressBook book) {
    Require(!choosingClient_, "no client has been chosen yet");
    Require(!browserOpen_ || !screen_.templateBeingSet, "the template browser leads to no address book");
    LoseFocus(ScreenFocus::Elsewhere);
    addresses_ = std::make_unique<AddressEditor>(book, Books(), machine_.dialogs);
    return *addresses_;
}

ProrationCalculator& MainScreen::OpenCalculator() {
    Require(!choosingClient_, "no client has been chosen yet");
    Require(!browserOpen_, "the browser is open");
    Require(!SettingsListShown(), "the settings are being edited");
    LoseFocus(ScreenFocus::Elsewhere);
    calculator_ = std::make_unique<ProrationCalculator>(screen_.job, machine_.clock);
    return *calculator_;
}

void MainScreen::HandOver(CreditTo side) {
    Require(calculator_ != nullptr, "the proration calculator is not open");
    const int row = screen_.currentRow;
    const int rows = static_cast<int>(screen_.grid.size());
    Require(row >= 0 && row < rows, "no field is current in the grid");
    const GridRow& target = screen_.grid[static_cast<std::size_t>(row)];
    const int n = target.n;
    Require(target.kind == RowKind::User || TakesAmount(n),
            "the current row, " + target.label + ", takes no amount");
    OpenRow(row);
    EscapeEditor();
    const std::string amount = HandOverValue(*calculator_, side, n);
    CloseCalculator();
    const auto value = [&] { return screen_.grid[static_cast<std::size_t>(row)].value; };
    const std::string before = value();
    UpdateListing(n, amount, screen_, office_,
                  FieldQuestions(screen_, office_, {.column = NoteColumnOf(side)}));
    if (value() != before) FieldChanged(n);
}

}  // namespace quillmark
