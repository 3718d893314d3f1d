#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/powers/passages_power.h"
#include "production/builders/text_bodies.h"

namespace quillmark {

/// The statutory short form of C.G.S. Sec. 1-352, for one agent or for two.
void TypeShortFormPower(const JobValues& job, Typist& type, const Variant& variant) {
    const int agents = variant.number;
    TypePowerHeading(job, type, "POWER OF ATTORNEY - STATUTORY SHORT FORM");
    TypeBody("powers/notice.txt", job, type);

    TypeDesignation(job, type, agents);
    type.Text(RepeatReturn(2));
    TypeBody("powers/subjects.txt", job, type);

    type.PageBreak();  // what follows stands on the page that is signed
    Articles articles(type, 1);
    TypeSuccessors(job, type, articles);
    TypeEffectiveDate(job, type, articles);
    TypeReliance(type, articles);

    TypePrincipalExecution(job, type);
}

}  // namespace quillmark
