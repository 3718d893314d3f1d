#include <algorithm>
#include <optional>

#include "cli/console_commands.h"
#include "core/text_conversions.h"

namespace quillmark::cli {

namespace {

/// The address editor over the main screen, closed when the action is over.
class OpenedAddresses {
 public:
    OpenedAddresses(ConsoleSession& session, const Request& request)
        : screen_(session.screen()), editor_(screen_.OpenAddresses(BookOf(request))) {}
    ~OpenedAddresses() { screen_.CloseAddresses(); }
    OpenedAddresses(const OpenedAddresses&) = delete;
    OpenedAddresses& operator=(const OpenedAddresses&) = delete;

    AddressEditor* operator->() { return &editor_; }

 private:
    static AddressBook BookOf(const Request& request) {
        try {
            return BookNamed(request.Text("book"));
        } catch (const std::invalid_argument& failure) {
            throw BadRequest(failure.what());
        }
    }

    MainScreen& screen_;
    AddressEditor& editor_;
};

/// The calculator, closed when the action is over.
class OpenedCalculator {
 public:
    explicit OpenedCalculator(MainScreen& screen) : screen_(screen), calculator_(screen.OpenCalculator()) {}
    ~OpenedCalculator() { screen_.CloseCalculator(); }
    OpenedCalculator(const OpenedCalculator&) = delete;
    OpenedCalculator& operator=(const OpenedCalculator&) = delete;

    ProrationCalculator* operator->() { return &calculator_; }

 private:
    MainScreen& screen_;
    ProrationCalculator& calculator_;
};

std::optional<std::chrono::year_month_day> DateArgument(const Request& request, std::string_view name) {
    if (!request.Has(name)) return std::nullopt;
    const std::string text = request.Text(name);
    const auto date = ReadDate(text);
    if (!date) throw BadRequest(std::string(name) + " is no date: \"" + text + "\"");
    return date;
}

std::optional<CreditTo> SideOf(const Request& request) {
    const std::string side = request.Text("hand");
    if (side.empty()) return std::nullopt;
    if (side != "buyer" && side != "seller") throw BadRequest("hand is neither buyer nor seller");
    return side == "buyer" ? CreditTo::Buyer : CreditTo::Seller;
}

/// What a request enters in the calculator, checked before its window opens.
struct Entries {
    explicit Entries(const Request& request)
        : gross(request.Text("gross")),
          from(DateArgument(request, "from")),
          to(DateArgument(request, "to")),
          date(DateArgument(request, "date")),
          side(SideOf(request)) {
        if (!gross.empty() && !ReadNumber(gross)) throw BadRequest("gross is no amount: \"" + gross + "\"");
    }

    std::string gross;
    std::optional<std::chrono::year_month_day> from, to, date;
    std::optional<CreditTo> side;
};

void Enter(const Entries& entries, OpenedCalculator& calculator) {
    if (entries.from) calculator->SetFrom(*entries.from);
    if (entries.to) calculator->SetTo(*entries.to);
    const ProrationCalculatorState& state = calculator->State();
    if (entries.date && (*entries.date < state.DTPicker1 || *entries.date > state.DTPicker2))
        throw NotAllowed("the date lies outside the period");
    if (entries.date) calculator->SetProrationDate(*entries.date);
    calculator->SetGross({entries.gross, entries.gross.size(), 0});
}

Json FiguresOf(const ProrationCalculatorState& state) {
    return {{"days", state.PeriodDays},        {"perDiem", state.PerDiem},   {"unpaidDays", state.UnpaidDays},
            {"unpaid", AmountOf(state.Text1)}, {"paidDays", state.PaidDays}, {"paid", AmountOf(state.Text2)}};
}

}  // namespace

Json AddAddress(ConsoleSession& session, const Request& request) {
    const std::vector<std::string> items = request.Texts("items");
    OpenedAddresses editor(session, request);
    if (items.size() > editor->State().boxes.size())
        throw BadRequest("a record of " + request.Text("book") + " has " +
                         std::to_string(editor->State().boxes.size()) + " items");
    for (std::size_t box = 0; box < items.size(); ++box) editor->SetBox(box, items[box]);
    if (!editor->State().cmdAdd.enabled) throw NotAllowed("cmdAdd is disabled: all boxes are empty");
    if (!editor->Add() && session.dialogs().LastText() != kEntryExists)
        throw std::runtime_error(session.dialogs().LastText());
    return editor->State().records;
}

Json RemoveAddress(ConsoleSession& session, const Request& request) {
    const std::string record = request.Text("record");
    OpenedAddresses editor(session, request);
    const std::vector<std::string>& records = editor->State().records;
    const auto line = std::find(records.begin(), records.end(), record);
    if (line == records.end())
        throw NotAllowed("the book " + request.Text("book") + " has no record \"" + record + "\"");
    editor->Select(static_cast<std::size_t>(line - records.begin()));
    // A record that is gone all the same was removed by another user at this moment.
    if (!editor->Remove() && std::find(records.begin(), records.end(), record) != records.end())
        throw std::runtime_error(session.dialogs().LastText());
    return editor->State().records;
}

Json UseCalculator(ConsoleSession& session, const Request& request) {
    const Entries entries(request);
    OpenedCalculator calculator(session.screen());
    Enter(entries, calculator);
    Json figures = FiguresOf(calculator->State());
    if (entries.side) session.screen().HandOver(*entries.side);
    return figures;
}

}  // namespace quillmark::cli
