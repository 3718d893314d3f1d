#include "word/docx/paste/import_relations.h"

#include <fmt/format.h>

#include <algorithm>

namespace quillmark::word::docx::paste {

namespace {

bool IsSame(const Relation& a, const Relation& b) {
    return a.type == b.type && a.external == b.external && a.contentType == b.contentType &&
           a.bytes == b.bytes && (!a.external || a.target == b.target) && a.relations.empty() &&
           b.relations.empty();
}

}  // namespace

std::string NewRelationId(const std::map<std::string, Relation>& relations) {
    std::size_t number = relations.size() + 1;
    while (relations.contains(fmt::format("rIdK{}", number))) ++number;
    return fmt::format("rIdK{}", number);
}

std::string FindRelation(const Document& document, std::string_view type) {
    const auto found = std::ranges::find_if(document.relations, [&](const auto& entry) {
        const std::string_view whole = entry.second.type;
        return whole.size() > type.size() && whole.ends_with(type) &&
               whole[whole.size() - type.size() - 1] == '/';
    });
    return found == document.relations.end() ? std::string() : found->first;
}

std::optional<std::string> RelationImport::Map(std::string_view id) {
    const auto known = ids_.find(id);
    if (known != ids_.end()) return known->second;
    const auto relation = source_.relations.find(std::string(id));
    if (relation == source_.relations.end()) return {};
    const auto same = std::ranges::find_if(
        target_.relations, [&](const auto& entry) { return IsSame(entry.second, relation->second); });
    std::string newId = same == target_.relations.end() ? NewRelationId(target_.relations) : same->first;
    if (same == target_.relations.end()) target_.relations.emplace(newId, relation->second);
    return ids_[std::string(id)] = std::move(newId);
}

void RelationImport::TakeSole(std::string_view type) {
    const std::string id = FindRelation(source_, type);
    if (id.empty() || !FindRelation(target_, type).empty()) return;
    target_.relations.emplace(NewRelationId(target_.relations), source_.relations.at(id));
}

}  // namespace quillmark::word::docx::paste
