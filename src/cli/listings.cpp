#include "cli/listings.h"

#include <fmt/format.h>

#include <ostream>

#include "core/field_registry.h"
#include "core/job.h"
#include "selection/document_catalogue.h"

namespace quillmark::cli {

void ListDocuments(std::ostream& out) {
    for (std::string_view name : DocumentCatalogue()) out << name << '\n';
}

void ListFields(std::ostream& out) {
    const Job job;
    for (int n = 1; n <= kFields; ++n) {
        const std::string_view marker = FieldMarker(n);
        if (marker.empty() || marker == "[]") continue;
        out << fmt::format("{}\t{}\t{}\t{}\n", n, marker, FieldSortKey(n), FieldDescription(n, job));
    }
}

}  // namespace quillmark::cli
