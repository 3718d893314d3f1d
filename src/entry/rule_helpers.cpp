#include "entry/rule_helpers.h"

namespace quillmark::rules {

void Reshape(Job& job, int n, std::string_view shown) {
    job.SetField(n, std::string(shown));
}

void SetPart(Job& job, int k, int n, std::string_view value, std::string_view marker) {
    job.SetDerived(k, n, job.IsFilled(n) ? value : marker);
}

}  // namespace quillmark::rules
