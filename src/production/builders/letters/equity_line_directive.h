#pragma once

#include "production/builders/letters/payoff.h"

namespace quillmark {

/// The borrower's order to close a home equity line of credit once it is paid, without which its holder may
/// go on making advances on it.
void TypeEquityLineDirective(const JobValues& job, Typist& type, const Payoff& payoff);

}  // namespace quillmark
