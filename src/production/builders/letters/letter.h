#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// What letters share, in the order of the page. All of them are typed in Arial between the same indents.
namespace quillmark {

inline constexpr double kLetterIndent = kDeedIndent;

/// Sets the indents and the type of a letter, Arial 11 at the left.
void BeginLetter(Typist& type);
/// The indents off, for the builder behind this one.
void EndLetter(Typist& type);

/// How many returns stand in the place of the firm's head on printed paper: more in a letter of few lines.
enum class LetterheadRoom : std::uint16_t { Long = 8, Short = 10 };
/// The firm's name, address and telephone, or with `Letterhead` the room for the paper's own; then the
/// document date.
void TypeLetterHead(const JobValues& job, Typist& type, LetterheadRoom room = LetterheadRoom::Short);

/// The head lines of a form, or of a part of it, bold over the page, with a blank line behind them. What
/// follows is at the left.
void TypeHeadLines(Typist& type, std::initializer_list<std::string_view> lines,
                   word::Role role = word::Role::Title);

/// "Attorney Tobias Lang", the firm unless its name says no more than that, and the address, each line ended.
void TypeBuyersAttorney(const JobValues& job, Typist& type);

/// "Re:  Hollis, et al  To  Castellan" over the property, with three returns.
void TypeReferenceLine(const JobValues& job, Typist& type);

/// "Dear Attorney Lang:".
void TypeDearAttorney(const JobValues& job, Typist& type);

/// A paragraph of the letter, justified, with a blank line behind it.
template <class... Parts>
void TypeParagraph(Typist& type, const Parts&... parts) {
    type.Text(parts..., "\r\r");
}

/// A numbered list further in than the text, whose indent this is. At the left also within justified text, as
/// a line break would spread the last words of an item over the line.
template <class Items>
void TypeList(Typist& type, double indent, Items items) {
    type.Align(word::AlignLeft);
    type.BeginList();
    type.WordSel.Paragraphs.LeftIndent = word::InchesToPoints(indent + 0.375);
    items();
    type.EndList();
    type.Align(word::AlignJustified);
}
void TypeList(Typist& type, double indent, std::initializer_list<std::string_view> items);

/// "Very truly yours," or the like, so many returns for the signature, and the seller's attorney.
void TypeClosing(const JobValues& job, Typist& type, std::string_view closing, std::uint16_t returns = 4);

/// The firm by its attorney: its name, room to sign, "By:  ____" and the attorney's name.
void TypeFirmSignature(const JobValues& job, Typist& type);

/// "client" or "clients", of either side's attorney.
inline std::string_view ClientWord(bool several) {
    return several ? "clients" : "client";
}

}  // namespace quillmark
