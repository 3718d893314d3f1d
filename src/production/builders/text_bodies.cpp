#include "production/builders/text_bodies.h"

#include <array>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillmark {

#define DOCUMENT(entry, builder, notices)
#define VARIANT(entry, builder, tag, number, again, notices)
#define COMPUTED(entry, builder, tag, again, notices)
#define TEXT(entry, file, passages, notices) Passages passages();
#define BODY(file, passages) Passages passages();
#include "production/builders/builders.inc"
#undef TEXT
#undef BODY

namespace {

#define TEXT(entry, file, passages, notices) TextBody{file, passages},
#define BODY(file, passages) TextBody{file, passages},
constexpr TextBody kBodies[] = {
#include "production/builders/builders.inc"
    {},
};
#undef DOCUMENT
#undef VARIANT
#undef COMPUTED
#undef TEXT
#undef BODY

std::string_view FolderOf(std::string_view file) {
    return file.substr(0, file.find('/') + 1);
}

std::map<std::string_view, TextDocument> ReadBodies() {
    std::map<std::string_view, TextDocument> documents;
    for (const TextBody& body : TextBodies()) documents.emplace(body.file, ReadBody(body));
    return documents;
}

}  // namespace

std::span<const TextBody> TextBodies() {
    return std::span(kBodies).first(std::size(kBodies) - 1);
}

TextDocument ReadBody(const TextBody& body) {
    TextSource own{body.file, {}};
    std::vector<TextSource> family;
    for (const TextSource& source : TextSources()) {
        if (source.file == body.file) own = source;
        if (FolderOf(source.file) == FolderOf(body.file)) family.push_back(source);
    }
    if (own.text.empty()) throw std::logic_error("there is no text " + std::string(body.file));
    return TextDocument(own, body.passages(), family);
}

void TypeBody(std::string_view file, const JobValues& job, Typist& type) {
    static const std::map<std::string_view, TextDocument> documents = ReadBodies();
    const auto found = documents.find(file);
    if (found == documents.end())
        throw std::logic_error("no document is made of the text " + std::string(file));
    if (!found->second.Errors().empty()) throw std::logic_error(found->second.Errors().front());
    found->second.Type(job, type);
}

}  // namespace quillmark
