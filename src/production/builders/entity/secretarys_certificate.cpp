#include "production/builders/entity/passages_entity.h"

namespace quillmark {

using namespace field;

void TypeSecretarysCertificate(const JobValues& job, Typist& type) {
    BeginEntityPaper(type);

    type.Text("  The undersigned hereby certifies that he/she is the Secretary of ");
    TypeEntity(job, type, "corporation", "Corporation");
    type.Text(", and as such keeps its minutes and its seal; and further certifies:\r\r");

    type.Text(
        "  1.\tThat by consent of the Board of Directors of the Corporation, the following resolution was duly "
        "adopted by oral/written vote of all directors, has been neither amended nor rescinded, and is in full "
        "force on this day:\r\r");
    type.Text("RESOLVED that the Corporation");
    TypeConveyanceBySale(job, type);
    type.Text("; and that ", job[Seller1Agent], ", ", job[Seller1AgentTitle], ",");
    TypeAuthority(type);
    type.Text("\r\r");
    type.Text(
        "  2.\tThat said consent was obtained pursuant to the Certificate of Incorporation and the By-Laws of the "
        "Corporation, and conflicts with neither of them nor with any agreement by which the Corporation is "
        "bound.\r\r");
    type.Text("  3.\tThat ", job[Seller1Agent],
              " holds the office named above on this day and signs for the Corporation by right of it.\r\r");

    type.Text("IN WITNESS WHEREOF, I have hereunto set my hand and affixed the seal of the Corporation this ",
              job.DayMonthYear(DocumentDate), ".\r");
    TypeSecretarySignature(job, type);
    type.Indents(0);
}

}  // namespace quillmark
