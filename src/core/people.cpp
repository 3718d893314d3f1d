#include "core/people.h"

#include <algorithm>
#include <array>

#include "core/text_conversions.h"

namespace quillmark {

namespace {

/// Whether a part of the list is no name of its own.
bool IsSuffix(std::string_view part) {
    static constexpr auto kSuffixes = std::to_array<std::string_view>(
        {"jr", "jr.", "sr", "sr.", "ii", "iii", "iv", "v", "esq", "esq.", "m.d.", "md", "ph.d.", "trustee"});
    return std::ranges::find(kSuffixes, Lowered(part)) != kSuffixes.end();
}

void AddPerson(std::vector<std::string>& people, std::string_view part) {
    const std::string name(Trimmed(part));
    if (name.empty()) return;
    if (IsSuffix(name) && !people.empty()) {
        people.back() += ", " + name;
    } else {
        people.push_back(name);
    }
}

/// "Ann Poe and Lee Moe" or "and Lee Moe" between two commas.
void AddPeople(std::vector<std::string>& people, std::string_view part) {
    constexpr std::string_view kAnd = " and ";
    const std::string text = " " + std::string(Trimmed(part));
    std::size_t from = 0;
    for (std::size_t at; (at = text.find(kAnd, from)) != std::string::npos; from = at + kAnd.size() - 1)
        AddPerson(people, std::string_view(text).substr(from, at - from));
    AddPerson(people, std::string_view(text).substr(from));
}

}  // namespace

std::vector<std::string> PeopleIn(std::string_view list) {
    std::vector<std::string> people;
    while (true) {
        const std::size_t comma = std::min(list.find_first_of(",;\r\n"), list.size());
        AddPeople(people, list.substr(0, comma));
        if (comma == list.size()) break;
        list.remove_prefix(comma + 1);
    }
    if (people.empty()) people.emplace_back();
    return people;
}

}  // namespace quillmark
