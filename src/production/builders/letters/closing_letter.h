#pragma once

#include <array>

#include "production/builders/letters/payoff.h"

/// What the closing letters of the bar associations share.
namespace quillmark {

/// The date of the closing, and the buyer's attorney.
void TypeClosingLetterAddress(const JobValues& job, Typist& type);

/// "This law firm represents ...": both sides, the property and the closing, in one sentence.
void TypeRepresentation(const JobValues& job, Typist& type);

/// The papers that go to the holder of the mortgage, as a list; the words of its last item are the form's
/// own.
void TypePayoffPapers(const JobValues& job, Typist& type, const Payoff& payoff,
                      const std::array<std::string_view, 2>& letterOfTransmittal);

/// "Very truly yours," and the firm by its attorney.
void TypeFirmClosing(const JobValues& job, Typist& type);

}  // namespace quillmark
