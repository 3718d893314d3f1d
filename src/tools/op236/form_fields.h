#pragma once

#include <map>
#include <qpdf/QPDF.hh>
#include <string>
#include <vector>

/// The fields of a PDF form as its tree has them.
namespace quillmark::pdf {

enum class FieldKind { Text, Choice, Buttons, Other };

/// A field that has a value, with the places on the pages where it shows.
struct Field {
    QPDFObjectHandle dictionary;
    std::vector<QPDFObjectHandle> widgets;
    FieldKind kind = FieldKind::Other;
};

/// By full name: the partial names from the root, joined by dots. Where a form says a name twice both are one
/// field.
using Fields = std::map<std::string, Field>;
Fields ReadFields(QPDF& pdf);

/// A value that a field may take over from those above it in the tree; null where nobody has it.
QPDFObjectHandle Inherited(QPDFObjectHandle field, const std::string& key);

/// The name of a button's state that is not off; empty where the form gives none.
std::string OnStateOf(QPDFObjectHandle widget);

}  // namespace quillmark::pdf
