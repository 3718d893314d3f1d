#include "entry/questions.h"

#include <string>
#include <string_view>

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

QuestionStep Ask(std::string title, std::string text) {
    return {Question{std::move(title), std::move(text)}, {}};
}

QuestionStep Tagged(std::string tag) {
    return {std::nullopt, std::move(tag)};
}

/// The answers of one entry, as far as they go.
using Answers = std::vector<bool>;

QuestionStep AskOnce(const Answers& answers, std::size_t at, std::string title, std::string text,
                     std::string_view yes, std::string_view no) {
    if (answers.size() <= at) return Ask(std::move(title), std::move(text));
    return Tagged(std::string(answers[at] ? yes : no));
}

QuestionStep AskPaid(int n, const Answers& answers, std::size_t at = 0) {
    return AskOnce(answers, at, TitleOf(n), "This item paid current ?", " - P", " - U");
}

QuestionStep AskCredit(int n, const Answers& answers, std::size_t at = 0) {
    return AskOnce(answers, at, TitleOf(n), "Credit to Buyer(s) ?", " = U", " = P");
}

QuestionStep AskSewer(int n, const Answers& answers) {
    if (answers.empty())
        return Ask(TitleOf(n),
                   "Payable with taxes ?\n\n"
                   "(YES: value entered must be annual assessment)\n"
                   "(NO:  value entered must be net adjustment)");
    return answers[0] ? AskPaid(n, answers, 1) : AskCredit(n, answers, 1);
}

QuestionStep AskPayoff(int n, std::string_view value, const Answers& answers, const JobInHand& hand) {
    if (!ShowsNotes(n, value, FindRow(n, hand), hand)) return {};
    const std::string title = TitleOf(n) + "   " + ShownAmount(value);
    if (answers.empty())
        return Ask(title, "Does this amount include the charge \nfor recording the release ?");
    if (answers.size() == 1) return Ask(title, "Is MERS the releasor \nof this mortgage ?");
    return Tagged(std::string(answers[1] ? " = " : " - ") + (answers[0] ? 'R' : 'T'));
}

QuestionStep AskCommission(int n, const Answers& answers, const Job& job) {
    if (TakesBinder(job.D(PairedField(n)))) return {};
    const int realtor = n - 1;
    return AskOnce(answers, 0, job.D(realtor) + "  ",
                   "Apply binder deposit\ntoward this realtor's commission ?", " - B", " - N");
}

QuestionStep AskLoan(int n, const Answers& answers, const Job& job) {
    if (IsEquityLine(job.D(PairedField(n)))) return {};
    return AskOnce(answers, 0, TitleOf(n), "Is this loan a Home Equity\nLine of Credit ?", " (E)", " (M)");
}

bool IsFirstEntry(int n, const JobInHand& hand) {
    const std::string& present = hand.job.txtField(n).text;
    return present == FieldMarker(n) || (present.empty() && hand.mode == ScreenMode::Presets);
}

bool AreDue(int n, std::string_view value, const JobInHand& hand) {
    if (value.empty() || !IsFirstEntry(n, hand)) return false;
    if (TagFamilyOf(n) == TagFamily::LoanNumber)
        return value != FieldMarker(n) && ReadTag(value, TagFamily::LoanNumber).tag.empty();
    return IsAmount(value) && !HoldsTagMark(n, value);
}

}  // namespace

QuestionStep NextQuestion(int n, std::string_view value, const std::vector<bool>& answers,
                          const JobInHand& hand) {
    if (TagFamilyOf(n) == TagFamily::None || !AreDue(n, value, hand)) return {};
    switch (TagFamilyOf(n)) {
        case TagFamily::Commission:
            return AskCommission(n, answers, hand.job);
        case TagFamily::LoanNumber:
            return AskLoan(n, answers, hand.job);
        case TagFamily::Payoff:
            return AskPayoff(n, value, answers, hand);
        case TagFamily::Sewer:
            return AskSewer(n, answers);
        case TagFamily::Paid:
            return AskPaid(n, answers);
        case TagFamily::Credit:
            return AskCredit(n, answers);
        case TagFamily::None:
            break;
    }
    return {};
}

}  // namespace quillmark
