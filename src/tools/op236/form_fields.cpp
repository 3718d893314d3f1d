#include "tools/op236/form_fields.h"

namespace quillmark::pdf {

namespace {

/// Deeper than any form is, and an end for one whose fields stand in a ring.
constexpr int kDeepest = 50;
constexpr int kPushButton = 1 << 16;

FieldKind KindOf(QPDFObjectHandle field) {
    QPDFObjectHandle type = Inherited(field, "/FT");
    if (!type.isName()) return FieldKind::Other;
    if (type.getName() == "/Tx") return FieldKind::Text;
    if (type.getName() == "/Ch") return FieldKind::Choice;
    if (type.getName() != "/Btn") return FieldKind::Other;
    QPDFObjectHandle flags = Inherited(field, "/Ff");
    return flags.isInteger() && (flags.getIntValue() & kPushButton) ? FieldKind::Other : FieldKind::Buttons;
}

void Collect(QPDFObjectHandle node, const std::string& above, int depth, Fields& fields) {
    if (!node.isDictionary() || depth > kDeepest) return;
    std::string name = above;
    QPDFObjectHandle part = node.getKey("/T");
    if (part.isString()) name += (above.empty() ? "" : ".") + part.getUTF8Value();
    QPDFObjectHandle kids = node.getKey("/Kids");
    bool hasParts = false;
    if (kids.isArray())
        for (QPDFObjectHandle kid : kids.aitems())
            hasParts = hasParts || (kid.isDictionary() && kid.hasKey("/T"));
    if (hasParts) {
        for (QPDFObjectHandle kid : kids.aitems()) Collect(kid, name, depth + 1, fields);
        return;
    }
    Field& field = fields[name];
    if (field.widgets.empty()) {
        field.dictionary = node;
        field.kind = KindOf(node);
    }
    if (kids.isArray() && kids.getArrayNItems() > 0) {
        for (QPDFObjectHandle kid : kids.aitems())
            if (kid.isDictionary()) field.widgets.push_back(kid);
    } else {
        field.widgets.push_back(node);
    }
}

}  // namespace

Fields ReadFields(QPDF& pdf) {
    Fields fields;
    QPDFObjectHandle form = pdf.getRoot().getKey("/AcroForm");
    if (!form.isDictionary()) return fields;
    QPDFObjectHandle roots = form.getKey("/Fields");
    if (roots.isArray())
        for (QPDFObjectHandle root : roots.aitems()) Collect(root, {}, 0, fields);
    return fields;
}

QPDFObjectHandle Inherited(QPDFObjectHandle field, const std::string& key) {
    for (int depth = 0; field.isDictionary() && depth <= kDeepest; ++depth) {
        if (field.hasKey(key)) return field.getKey(key);
        field = field.getKey("/Parent");
    }
    return QPDFObjectHandle::newNull();
}

std::string OnStateOf(QPDFObjectHandle widget) {
    QPDFObjectHandle looks = widget.getKey("/AP");
    if (looks.isDictionary()) looks = looks.getKey("/N");
    if (!looks.isDictionary()) return {};
    for (const std::string& state : looks.getKeys())
        if (state != "/Off") return state.substr(1);
    return {};
}

}  // namespace quillmark::pdf
