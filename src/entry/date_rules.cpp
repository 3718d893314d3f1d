#include "entry/date_rules.h"

#include <string>

#include "core/fields.h"
#include "core/text_conversions.h"
#include "entry/rule_helpers.h"
#include "entry/smart_fields.h"

namespace quillmark::rules {

namespace {

PartialDate Markers(int n) {
    const std::string prefix = n == field::DocumentDate ? "[curr " : "[closing ";
    return {prefix + "month]", prefix + "day]", prefix + "year]"};
}

PartialDate WholeDate(std::chrono::year_month_day date) {
    const std::string day = FormatDate(date, DateForm::Day);
    return {FormatDate(date, DateForm::Month), day + OrdinalSuffix(day), FormatDate(date, DateForm::Year)};
}

PartialDate PartsOf(int n, const std::string& value, const PartialDate& markers) {
    if (value.find('_') != value.npos) return SplitPartialDate(value, markers.month, markers.day);
    const auto date = ReadDate(value);
    if (!date) throw BadFieldInput(n, value);
    return WholeDate(*date);
}

void SetParts(Job& job, int n, const PartialDate& parts) {
    job.SetDerived(1, n, parts.month);
    job.SetDerived(2, n, parts.day);
    job.SetDerived(3, n, parts.year);
}

}  // namespace

void Date(Job& job, int n) {
    const PartialDate markers = Markers(n);
    SetParts(job, n, markers);
    if (!job.IsFilled(n)) return;
    const std::string value = job.D(n);
    try {
        SetParts(job, n, PartsOf(n, value, markers));
    } catch (const NotANumber&) {
        throw BadFieldInput(n, value);
    }
}

}  // namespace quillmark::rules
