#include "production/kit/instruments.h"
#include "production/kit/passages.h"
#include "production/kit/phrases.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;

namespace {

/// The buyers as mortgagors and the debt that they secure.
void TypeMortgagorsAndDebt(const JobValues& job, Typist& type) {
    TypeGranteePhrase(job, type, Names::Bold);
    type.Text(", to secure payment of ", job.Words(BuyersMtgAmount), " DOLLARS (");
    type.TypeBold(job[BuyersMtgAmount]);
    type.Text(") with interest payable as provided in a certain promissory note dated ", job[DocumentDate],
              " with final maturity on ", job[NoteMaturityDate]);
    type.Text(job.Has(TwoBuyers) ? ", grant to " : ", grants to ");
}

void TypeExecution(const JobValues& job, Typist& type) {
    const Signers mortgagors = BuyerSigners(job, "Mortgagor");
    TypeExecutionDate(job, type, job.Has(TwoBuyers) ? "Mortgagors have" : "Mortgagor has", 1);
    type.AtTab(kSignatureTab, [&] {
        TypeSignatures(type, mortgagors);
        TypeWitnesses(job, type, WitnessReturns(job));
        TypeVenue(job, type);
        TypeAcknowledgment(job, type, job.BuyerNames(), job.Has(TwoBuyers));
        TypeNotary(job, type);
    });
}

}  // namespace

/// The statutory form of C.G.S. Sec. 49-2 and 47-36c, with the statutory condition of Sec. 47-36j.
void TypeStatutoryMortgage(const JobValues& job, Typist& type) {
    TypeReturnTo(job, type, kSellerAtty);
    TypeTitle(type, "MORTGAGE DEED - STATUTORY FORM");

    TypeInstrumentOpening(type);
    TypeMortgagorsAndDebt(job, type);
    TypeGrantorPhrase(job, type, Names::Bold);
    TypePremises(job, type, "MORTGAGE COVENANTS");
    TypeUsualEncumbrances(type);
    TypeGenderParagraph(type, "  This mortgage is made upon the STATUTORY CONDITION.");

    TypeExecution(job, type);
    type.Indents(0);
}

}  // namespace quillmark
