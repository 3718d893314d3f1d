#include "entry/questions.h"

#include <string>
#include <string_view>
#include <utility>

#include "core/field_registry.h"
#include "core/fields.h"
#include "core/text_conversions.h"
#include "entry/note_cells.h"
#include "selection/field_rows.h"

namespace quillmark {

namespace {

constexpr field::Field kLastHyphenTagged = field::MonthlyRent;  ///< above it a hyphen begins a description

std::string TitleOf(int n) {
    const std::string_view marker = FieldMarker(n);
    return std::string(marker.substr(1, marker.size() - 2)) + "  ";
}

/// Nothing is to be known about a zero, however it is written.
bool IsAmount(std::string_view value) {
    const std::string_view text = LeftTrimmed(value);
    if (text.starts_with('$')) return ReadNumber(text.substr(0, text.find_first_of("-=", 1))) != 0.0;
    return LeadingNumber(text) > 0;
}

/// A commission with "=" is asked about; what keeps its question away is the other commission's binder.
bool HoldsTagMark(int n, std::string_view value) {
    if (TagFamilyOf(n) != TagFamily::Commission && value.find('=') != value.npos) return true;
    return n <= kLastHyphenTagged && value.find('-') != value.npos;
}

class Questions {
 public:
    Questions(SelectionState& screen, const Office& office, const EntryPoint& from)
        : screen_(screen), office_(office), from_(from) {}

    bool AreDue(int n, std::string_view value) const {
        if (!IsFirstEntry(n)) return false;
        if (TagFamilyOf(n) == TagFamily::LoanNumber)
            return value != FieldMarker(n) && ReadTag(value, TagFamily::LoanNumber).tag.empty();
        return IsAmount(value) && !HoldsTagMark(n, value);
    }

    /// The tag that the answers give; empty where the family has nothing to ask now.
    std::string TagFor(int n, std::string_view value) const {
        switch (TagFamilyOf(n)) {
            case TagFamily::Commission:
                return AskCommission(n);
            case TagFamily::LoanNumber:
                return AskLoan(n);
            case TagFamily::Payoff:
                return AskPayoff(n, value);
            case TagFamily::Sewer:
                return AskSewer(n);
            case TagFamily::Paid:
                return AskPaid(n);
            case TagFamily::Credit:
                return AskCredit(n);
            case TagFamily::None:
                break;
        }
        return {};
    }

 private:
    bool IsFirstEntry(int n) const {
        if (from_.force) return true;
        const std::string& present = screen_.job.txtField(n).text;
        const bool isOpen =
            present == FieldMarker(n) || (present.empty() && screen_.ScreenMode == screen_mode::kPresets);
        return isOpen && from_.column <= 1;
    }

    bool Ask(std::string title, std::string text) const {
        const StandingQuestion guard(from_.EditRow);
        return office_.dialogs.Confirm(std::move(title), std::move(text));
    }

    std::string AskPaid(int n) const { return Ask(TitleOf(n), "This item paid current ?") ? " - P" : " - U"; }

    std::string AskCredit(int n) const { return Ask(TitleOf(n), "Credit to Buyer(s) ?") ? " = U" : " = P"; }

    std::string AskSewer(int n) const {
        const bool withTaxes = Ask(TitleOf(n),
                                   "Payable with taxes ?\n\n"
                                   "(YES: value entered must be annual assessment)\n"
                                   "(NO:  value entered must be net adjustment)");
        return withTaxes ? AskPaid(n) : AskCredit(n);
    }

    std::string AskPayoff(int n, std::string_view value) const {
        if (!ShowsNotes(n, value, FindRow(n, screen_), screen_)) return {};
        const std::string title = TitleOf(n) + "   " + ShownAmount(value);
        const bool holdsFee = Ask(title, "Does this amount include the charge \nfor recording the release ?");
        const bool byMers = Ask(title, "Is MERS the releasor \nof this mortgage ?");
        return std::string(byMers ? " = " : " - ") + (holdsFee ? 'R' : 'T');
    }

    std::string AskCommission(int n) const {
        if (TakesBinder(screen_.job.D(PairedField(n)))) return {};
        const int realtor = n - 1;
        return Ask(screen_.job.D(realtor) + "  ", "Apply binder deposit\ntoward this realtor's commission ?")
                   ? " - B"
                   : " - N";
    }

    std::string AskLoan(int n) const {
        if (IsEquityLine(screen_.job.D(PairedField(n)))) return {};
        return Ask(TitleOf(n), "Is this loan a Home Equity\nLine of Credit ?") ? " (E)" : " (M)";
    }

    SelectionState& screen_;
    const Office& office_;
    const EntryPoint& from_;
};

/// The stored value with the tag that its row remembers.
std::string Noted(int n, SelectionState& screen) {
    const std::string& value = screen.job.D(n);
    const GridRow* row = FindRow(n, screen);
    if (!screen.job.IsFilled(n) || !ShowsNotes(n, value, row, screen)) return value;
    return NoteValue(n, value, row ? row->lit : LitCells{false, false}, 0, screen.job).value;
}

}  // namespace

StandingQuestion::StandingQuestion(int* EditRow) : EditRow_(EditRow), row_(EditRow ? *EditRow : 0) {
    if (EditRow_) *EditRow_ = -1;
}

StandingQuestion::~StandingQuestion() {
    if (EditRow_) *EditRow_ = row_;
}

FieldDialogue FieldQuestions(SelectionState& screen, const Office& office, EntryPoint from) {
    return [&screen, office, from](int n, std::string value) {
        if (TagFamilyOf(n) == TagFamily::None) return value;
        const Questions questions(screen, office, from);
        const bool due = questions.AreDue(n, value);
        screen.job.SetField(n, value);
        if (due) screen.job.SetField(n, value + questions.TagFor(n, value));
        return Noted(n, screen);
    };
}

}  // namespace quillmark
