#pragma once

#include <string_view>

/// How the closing statement's figures are read and rounded. All are dollars in double precision.
namespace quillmark {

/// To whole cents, halves away from zero, decided on the figure's decimal digits: 750.005 gives 750.01
/// whichever side of it the binary number lies. Throws std::overflow_error for what is no finite number.
double RoundCents(double figure);

/// An amount, the mark behind it and the letter that ends the text, as in "$1,000.00 - P".
struct TaggedAmount {
    double amount = 0;
    char delimiter = 0;  ///< the first hyphen, or the first equals sign if there is none; 0 for neither
    char tag = 0;        ///< the last character but blanks; 0 for an empty text
};

/// Reads the amount before the first mark. `marks` lists the marks in the order in which they are looked for.
/// A text without any of them has no amount; see `AmountBefore` for fields that need no mark.
TaggedAmount ReadTaggedAmount(std::string_view text, std::string_view marks);

/// The amount before the first of the marks, in the order in which they are looked for, or of the whole text.
double AmountBefore(std::string_view text, std::string_view marks);

}  // namespace quillmark
