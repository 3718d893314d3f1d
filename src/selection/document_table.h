#pragma once

#include <span>
#include <string_view>
#include <vector>

/// Which fields each document needs and which option buttons make sense for it: the knowledge behind the
/// grid of relevant fields.
namespace quillmark {

/// When an addition to a document's fields applies.
enum class When {
    Option,     ///< its option is set
    NotOption,  ///< its option is not set
    Principal,  ///< its option is set; field 156 besides: asked for only where there is a second seller
};

struct Addition {
    When when;
    int option;
    std::vector<int> fields;
};

struct DocumentFields {
    std::string_view document;
    std::vector<int> fields;
    std::vector<int> options;  ///< option buttons that it enables
    std::vector<Addition> additions;
    std::string_view capacity = {};  ///< of the fiduciary that the deed itself implies
    bool mailingAddress = false;     ///< asks for the seller's address after closing
};

/// All rows, in the order of the table.
std::span<const DocumentFields> DocumentTable();

/// The row of a document, null for one that needs no fields.
const DocumentFields* FieldsOfDocument(std::string_view document);

}  // namespace quillmark
