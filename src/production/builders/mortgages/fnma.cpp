#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/mortgages/passages_mortgage.h"
#include "production/builders/text_bodies.h"
#include "production/kit/passages.h"
#include "production/kit/production.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;

namespace {

/// The clerk's stamps go above the line. What is below it runs over the whole width.
void TypeRecordingSpace(Typist& type) {
    type.Indents(0);
    const std::string rule = RepeatUnderscore(22);
    type.Align(word::AlignCentre);
    type.Font("Arial", 10);
    type.Text(RepeatReturn(4), rule, " [Space Above This Line For Recording Data] ", rule, RepeatReturn(2));
}

void TypeRider(Typist& type, bool isAttached, std::string_view caption) {
    type.CheckBox(isAttached);
    type.Text(" ", caption);
}

void TypeRiderBoxes(const JobValues& job, Typist& type, bool isBalloon) {
    type.AtTabs({2.125, 4.5}, [&] {
        TypeRider(type, false, "Adjustable Rate Rider\t");
        TypeRider(type, job.Has(Condo), "Condominium Rider\t");
        TypeRider(type, false, "Second Home Rider\r");
        TypeRider(type, isBalloon, "Balloon Rider\t");
        TypeRider(type, false, "Planned Unit Development Rider\t");
        TypeRider(type, false, "Other(s) [specify] _____________\r");
        TypeRider(type, false, "1-4 Family Rider\t");
        TypeRider(type, false, "Biweekly Payment Rider\r\r");
    });
}

void TypeExecution(const JobValues& job, Typist& type) {
    type.AtTab(kSignatureTab, [&] {
        TypeSignatures(type, BuyerSigners(job, "Borrower"));
        TypeWitnesses(job, type, WitnessReturns(job));
        TypeVenue(job, type);
        TypeAcknowledgment(job, type, job.BuyerNames(), job.Has(TwoBuyers));
        TypeNotary(job, type);
    });
}

}  // namespace

/// The uniform instrument for Connecticut in order and substance, open-end under C.G.S. Sec. 49-2(c): that
/// section wants the words in the title, the full amount authorized, the terms of repayment and the
/// permission of advances.
void TypeFnmaMortgage(const Production& production, Typist& type, const Variant&) {
    const JobValues job(production.job);

    TypeReturnTo(job, type, kSellerAtty);
    TypeRecordingSpace(type);
    TypeTitle(type, "OPEN-END MORTGAGE DEED");

    TypeBody("mortgages/fnma_definitions.txt", job, type);
    TypeRiderBoxes(job, type, production.Makes("Note / Fixed Rate Balloon"));
    TypeBody("mortgages/fnma_covenants.txt", job, type);

    TypeExecution(job, type);
}

}  // namespace quillmark
