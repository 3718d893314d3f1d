#include "selection/job_list_lines.h"

#include <algorithm>

namespace quillmark {

std::optional<std::size_t> FindLine(std::string_view name, const JobInHand& hand) {
    for (std::size_t i = 0; i < hand.List2.size(); ++i)
        if (hand.List2[i].name == name) return i;
    return std::nullopt;
}

bool HoldsLine(std::string_view name, const JobInHand& hand) {
    return FindLine(name, hand).has_value();
}

bool HoldsContract(const JobInHand& hand) {
    return std::any_of(hand.List2.begin(), hand.List2.end(),
                       [](const JobListLine& line) { return IsContract(line.name); });
}

void AppendLine(std::string_view name, JobInHand& hand) {
    hand.List2.push_back({std::string(name), false});
}

void TakeOff(const std::function<bool(std::string_view)>& test, JobInHand& hand) {
    std::erase_if(hand.List2, [&](const JobListLine& line) { return test(line.name); });
}

void TakeOff(DocumentTrait any, JobInHand& hand) {
    TakeOff([any](std::string_view name) { return HasTrait(name, any); }, hand);
}

void CollectLegalSize(JobInHand& hand) {
    hand.LegalList.clear();
    for (const JobListLine& line : hand.List2)
        if (line.selected) hand.LegalList += line.name + ",";
}

bool AsksPropertyType(const JobInHand& hand, std::string_view added) {
    bool statement = added.starts_with(kClosingStatement);
    bool contract = added == kBridgeportContract || added == kValleyContract;
    for (const JobListLine& line : hand.List2) {
        statement |= line.name.starts_with(kClosingStatement);
        contract |= line.name == kBridgeportContract || line.name == kValleyContract;
    }
    return statement && contract;
}

bool HoldsClosingStatement(const JobInHand& hand) {
    return std::any_of(hand.List2.begin(), hand.List2.end(),
                       [](const JobListLine& line) { return line.name.starts_with(kClosingStatement); });
}

bool IsExcludedBy(std::string_view line, std::string_view picked) {
    using enum DocumentTrait;
    if (picked.starts_with(kDeedPrefix)) return line.starts_with(kDeedPrefix) || line == kTrusteesAffidavit;
    if (HasTrait(picked, SmsPayoff)) return HasTrait(line, DirectPayoff);
    if (HasTrait(picked, DirectPayoff)) return HasTrait(line, SmsPayoff);
    return false;
}

}  // namespace quillmark
