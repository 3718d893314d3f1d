#include "tools/custom_forms/form_package.h"

#include <deque>
#include <utility>
#include <vector>

#include "core/custom_forms.h"
#include "word/docx/find/in_xml.h"
#include "word/docx/xml/xml_tree.h"
#include "word/docx/zip/zip_reader.h"
#include "word/docx/zip/zip_writer.h"

namespace quillmark {

namespace docx = word::docx;

namespace {

constexpr std::pair<std::string_view, std::string_view> kTemplates[] = {{".dotx", ".docx"},
                                                                        {".dotm", ".docm"}};
constexpr std::pair<std::string_view, std::string_view> kTemplateTypes[] = {
    {"wordprocessingml.template.main+xml", "wordprocessingml.document.main+xml"},
    {"ms-word.template.macroEnabledTemplate.main+xml", "ms-word.document.macroEnabled.main+xml"},
};

/// The package with each part as `change` leaves it.
template <class Change>
std::string Repacked(std::string_view bytes, const std::string& file, const Change& change) {
    docx::zip::ZipReader reader(std::string(bytes), file);
    std::deque<std::string> contents;
    std::vector<docx::zip::ZipEntry> entries;
    for (const std::string& name : reader.Names()) {
        if (name.ends_with('/')) continue;
        std::string& content = contents.emplace_back(reader.Read(name));
        change(name, content);
        entries.push_back({name, content});
    }
    return docx::zip::WriteZip(entries);
}

bool HoldsText(std::string_view part) {
    return part.starts_with("word/") && part.ends_with(".xml") && part.substr(5).find('/') == part.npos;
}

}  // namespace

std::string DocumentExtension(std::string_view extension) {
    const std::string small = FormExtension(extension);
    for (const auto& [from, to] : kTemplates)
        if (small == from) return std::string(to);
    return std::string(extension);
}

std::string AsDocument(std::string_view bytes, const std::string& file) {
    return Repacked(bytes, file, [](std::string_view name, std::string& content) {
        if (name != "[Content_Types].xml") return;
        for (const auto& [from, to] : kTemplateTypes)
            if (const std::size_t at = content.find(from); at != content.npos)
                content.replace(at, from.size(), to);
    });
}

std::string Mended(std::string_view bytes, const std::string& file, const Mend& mend, int& count) {
    const auto pattern = docx::find::ParsePattern(mend.wrong);
    const std::vector<docx::find::ReplacementPiece> right = {
        {docx::find::ReplacementPiece::Kind::Text, mend.right}};
    const docx::find::XmlFinder finder(pattern, right, {mend.unlessBehind, mend.unlessBefore});
    count = 0;
    return Repacked(bytes, file, [&](std::string_view name, std::string& content) {
        if (!HoldsText(name)) return;
        try {
            count += finder.Replace(content, true);
        } catch (const docx::xml::XmlDamage& damage) {
            throw word::AutomationError(word::error::kFileDamaged,
                                        file + ": " + std::string(name) + " " + damage.what());
        }
    });
}

}  // namespace quillmark
