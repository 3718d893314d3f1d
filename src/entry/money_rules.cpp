#include "entry/money_rules.h"

#include <algorithm>
#include <cctype>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "entry/rule_helpers.h"

namespace quillmark::rules {

namespace {

/// An amount's value in three pieces; without a mark, or with one that stands first, `mark` is 0.
struct TaggedText {
    std::string_view amount;
    char mark = 0;
    std::string_view behind;
};

TaggedText ReadTagged(std::string_view value) {
    auto at = value.find('-');
    if (at == value.npos) at = value.find('=');
    if (at == value.npos || at == 0) return {value, 0, {}};
    return {Trimmed(value.substr(0, at)), value[at], Trimmed(value.substr(at + 1))};
}

/// The last character, in capitals. A mark with nothing behind it is its own tag.
std::string TagLetter(const TaggedText& text) {
    if (text.behind.empty()) return std::string(1, text.mark);
    auto begin = text.behind.size() - 1;
    while (begin > 0 && (text.behind[begin] & 0xC0) == 0x80) --begin;
    std::string letter(text.behind.substr(begin));
    if (letter.size() == 1)
        letter[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(letter[0])));
    return letter;
}

std::string Joined(const TaggedText& text, char mark, std::string_view behind) {
    return ShownAmount(text.amount) + " " + mark + " " + std::string(behind);
}

bool IsPoc(std::string_view value) {
    constexpr std::string_view kPoc = "poc";
    return std::equal(value.begin(), value.end(), kPoc.begin(), kPoc.end(),
                      [](unsigned char a, char b) { return std::tolower(a) == b; });
}

}  // namespace

void AmountInWords(Job& job, int n) {
    SetPart(job, 1, n, AmountToWords(job.D(n)),
            n == field::SalePriceNumeric ? "[sale price words]" : "[mtg amount words]");
    if (job.IsFilled(n)) Reshape(job, n, ShownAmount(job.D(n)));
}

void Money(Job& job, int n) {
    if (!job.IsFilled(n)) return;
    const TaggedText text = ReadTagged(job.D(n));
    Reshape(job, n, text.mark ? Joined(text, text.mark, TagLetter(text)) : ShownAmount(text.amount));
}

void MoneyOrPoc(Job& job, int n) {
    if (IsPoc(job.D(n))) return Reshape(job, n, "POC");
    Money(job, n);
}

void Disbursement(Job& job, int n) {
    if (!job.IsFilled(n)) return;
    const TaggedText text = ReadTagged(job.D(n));
    Reshape(job, n, text.mark ? Joined(text, '-', text.behind) : ShownAmount(text.amount));
}

void OtherAdjustment(Job& job, int n) {
    if (!job.IsFilled(n)) return;
    const TaggedText text = ReadTagged(job.D(n));
    if (text.mark == '-') return Reshape(job, n, Joined(text, '-', text.behind));
    Money(job, n);
}

void SellerTaxId(Job& job, int n) {
    Reshape(job, n, job.optConf(Entity) ? EntityTaxIdForm(job.D(n)) : PersonTaxIdForm(job.D(n)));
}

void BuyerTaxId(Job& job, int n) {
    Reshape(job, n, PersonTaxIdForm(job.D(n)));
}

}  // namespace quillmark::rules
