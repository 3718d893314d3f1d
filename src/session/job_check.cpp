#include "session/job_check.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

#include "core/field_registry.h"
#include "core/fields.h"
#include "core/text_conversions.h"
#include "entry/smart_fields.h"
#include "entry/tagged_values.h"
#include "production/kit/field_pictures.h"
#include "production/run/dispatch.h"

namespace quillmark {

namespace {

using namespace field;

/// The amount of a value, without its tag and its description.
std::string_view AmountIn(int n, std::string_view value) {
    const std::string_view text = ReadTag(value, TagFamilyOf(n)).text;
    const std::size_t mark = text.find('-', 1);
    return Trimmed(mark == text.npos ? text : text.substr(0, mark));
}

bool MayBePaidOutside(int n) {
    constexpr Field kFields[] = {SewerAdjustment, WaterAdjustment, OilAdjustment, SecurityDeposit};
    return std::find(std::begin(kFields), std::end(kFields), n) != std::end(kFields);
}

bool IsNoAmount(int n, const std::string& value) {
    if (!TakesAmount(n) || (value == "POC" && MayBePaidOutside(n))) return false;
    return !ReadNumber(AmountIn(n, value));
}

/// Places whose town or county the documents name.
bool IsNoPlace(int n, const Job& job) {
    const bool isPlace = n == PropertyCityStateZip || n == TownOfExecution;
    return isPlace && job.D(Part(n == PropertyCityStateZip ? 2 : 1, static_cast<Field>(n))).empty();
}

}  // namespace

std::vector<std::string> DoubtfulValues(const JobInHand& hand) {
    std::vector<std::string> doubts;
    const Job& job = hand.job;
    for (int n = 1; n <= kFields; ++n) {
        if (!job.txtField(n).relevant || !job.IsFilled(n)) continue;
        const std::string& value = job.D(n);
        const auto doubt = [&](std::string_view what) {
            doubts.push_back(fmt::format("{} holds \"{}\", {}", FieldMarker(n), value, what));
        };
        if (IsNoAmount(n, value)) doubt("which is no amount");
        if (IsNoPlace(n, job)) doubt("which is in no county");
    }
    std::ranges::move(PictureFaults(hand), std::back_inserter(doubts));
    return doubts;
}

std::vector<std::string> PictureFaults(const JobInHand& hand) {
    std::vector<std::string> faults;
    const Job& job = hand.job;
    for (int n = 1; n <= kFields; ++n) {
        if (!job.txtField(n).relevant || job.D(n) != kImageLiteral) continue;
        const std::string fault = FaultOfPicture(job.FieldPictures[static_cast<std::size_t>(n)]);
        if (!fault.empty())
            faults.push_back(
                fmt::format("{} is a picture, but {} (\"{}_{}.bmp\")", FieldMarker(n), fault, job.name, n));
    }
    return faults;
}

std::vector<std::string> UnknownDocuments(const JobInHand& hand) {
    std::vector<std::string> unknown;
    for (const JobListLine& line : hand.List2)
        if (!IsKnownDocument(line.name)) unknown.push_back(line.name);
    return unknown;
}

}  // namespace quillmark
