#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillmark {

class Job;

/// A value that a field's rule cannot take: in practice a date field that holds no date. The field keeps the
/// text and its derived parts show their markers; what becomes of the field is the caller's decision.
class BadFieldInput : public std::runtime_error {
 public:
    BadFieldInput(int field, const std::string& value);

    int field() const { return field_; }

 private:
    int field_;
};

/// Gives the list of choices of a field, separated by ";"; empty for none.
using ChoiceLists = std::function<std::string(int n)>;

/// What the rules take from the hand. Each may be empty.
struct RuleSurroundings {
    ChoiceLists choices = {};
    /// While a template is being set a value may become one of several choices, so it ends before its first
    /// ";".
    std::function<bool()> templateBeingSet = {};
    /// Told of a value that its field's rule cannot take; the field is then unfilled.
    std::function<void(const BadFieldInput&)> refused = {};
};

/// Installs the change rule that keeps the derived values of the job and the shown form of its values, and
/// brings both up to date for the values that the job has. Gives the fields whose values their rules could
/// not take, in ascending order; those values stay. From then on, without `refused`, `Job::SetField` throws
/// BadFieldInput for such a value.
std::vector<int> AttachSmartFields(Job& job, RuleSurroundings around = {});

/// The smart rule of field n over its present value. May set the field again in its shown form, which runs
/// the rule once more; every rule gives the same when it runs twice. Throws BadFieldInput.
void OnFieldChanged(Job& job, int n);

/// Whether the value of field n is an amount.
bool TakesAmount(int n);

}  // namespace quillmark
