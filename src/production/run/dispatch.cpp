#include "production/run/dispatch.h"

#include <algorithm>
#include <stdexcept>

#include "production/builders/builder_list.h"
#include "production/run/custom_form.h"
#include "selection/document_catalogue.h"

namespace quillmark {

bool IsKnownDocument(std::string_view entry) {
    const auto holds = [entry](auto names) { return std::ranges::find(names, entry) != names.end(); };
    return holds(DocumentCatalogue()) || holds(OlderDocuments()) || entry == kNewDocument ||
           IsCustomDocument(entry);
}

bool StaysEmpty(std::string_view entry) {
    return entry != kNewDocument && !FindBuilder(entry);
}

std::string TypeEntry(std::string_view entry, const Production& production, WordSession& session) {
    if (const Builder* builder = FindBuilder(entry)) {
        TypeDocument(*builder, production, session);
        return NoticesOf(*builder, production.job);
    }
    if (IsCustomDocument(entry)) {
        TypeCustomForm(entry, production, session);
        return {};
    }
    if (!IsKnownDocument(entry))
        throw std::invalid_argument("no document has the name \"" + std::string(entry) + "\"");
    return {};
}

}  // namespace quillmark
