#include "production/builders/affidavits/passages_affidavit.h"

#include "production/kit/passages.h"

namespace quillmark {

void TypeSworn(const JobValues& job, Typist& type, const Signers& signers) {
    type.AtTab(kSignatureTab, [&] {
        TypeSignatures(type, signers);
        TypeVenue(job, type);
        TypeJurat(job, type);
        TypeNotary(job, type);
    });
    type.Indents(0);
}

}  // namespace quillmark
