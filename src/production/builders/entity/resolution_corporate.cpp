#include "production/builders/entity/passages_entity.h"

namespace quillmark {

using namespace field;

/// The consent of all directors in place of a meeting, C.G.S. Sec. 33-749.
void TypeCorporateResolution(const JobValues& job, Typist& type) {
    BeginEntityPaper(type);
    TypeCaption(type, {"CERTIFICATE OF CORPORATE RESOLUTION BY CONSENT", "CLOSELY-HELD CORPORATION"});

    type.Text("  The undersigned, being all of the directors of ");
    type.TypeBold(job[Seller1Name]);
    type.Text(", a closely-held corporation (the \"Corporation\"), hereby certify:\r\r");

    type.Text(
        "  1.\tThat in lieu of a special meeting of the Board of Directors, and waiving all notice of one, they "
        "consent in writing to the following resolution and adopt it as the act of the Board, with the same "
        "effect as if they had voted for it unanimously at a meeting duly called and held:\r\r");
    type.Text("The Corporation");
    TypeConveyanceBySale(job, type);
    type.Text("; and ", job[Seller1Agent]);
    TypeAuthority(type);
    type.Text("\r\r");
    type.Text(
        "  2.\tThat said resolution is hereby ratified with all of its terms, has been neither amended nor "
        "rescinded, and is in full force; and that whatever ",
        job[Seller1Agent],
        " has already done toward the sale on behalf of the Corporation is approved as its act.\r");

    TypeDatedSignatures(type, job[NamesOfDirectors], "Director", job[DocumentDate]);
    type.Indents(0);
}

}  // namespace quillmark
