#include "production/kit/instruments.h"

#include "core/text_conversions.h"

namespace quillmark {

void TypeInstrumentOpening(Typist& type) {
    type.Text("TO ALL PERSONS TO WHOM THESE PRESENTS SHALL COME, KNOW YE THAT ");
}

void TypePremises(const JobValues& job, Typist& type, std::string_view covenants) {
    type.Text(", with ", covenants, ", all that certain real property known as ");
    type.TypeBold(job.Property());
    type.Text(", being more particularly described in ");
    type.TypeItalic("Schedule A");
    type.Text(" attached hereto and made a part hereof.", RepeatReturn(2));
}

void TypeUsualEncumbrances(Typist& type) {
    type.Text("Said Premises are conveyed subject to:", RepeatReturn(2));
    type.NumberedList({
        "Any and all provisions of any municipal, ordinance or regulation or public or private law with "
        "special reference to the provisions of any zoning regulations and regulations governing the said "
        "Premises.",
        "Real property taxes on the current Grand List and any municipal liens or assessments becoming due "
        "and payable on or after the delivery of this Deed.",
        "Such additional encumbrances, if any, as more particularly set forth in Schedule A attached hereto.",
    });
}

}  // namespace quillmark
