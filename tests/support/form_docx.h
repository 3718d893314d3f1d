#pragma once

#include <map>
#include <string>
#include <vector>

#include "word/docx/zip/zip_writer.h"

/// A firm's own form as a file, written by hand the way a word processor does it. For tests of folders that
/// know the word processor.
namespace quillmark::test {

struct FormDocx {
    std::string body;           ///< content of w:body
    std::string header = {};    ///< content of its w:hdr; empty for none
    std::string footer = {};    ///< the same of its w:ftr
    std::string section = {};   ///< further content of the last w:sectPr
    std::string settings = {};  ///< content of w:settings
    /// Further parts by name, and relationships of the main part to them.
    std::map<std::string, std::string> parts = {};
    std::string relationships = {};

    std::string Bytes() const;
};

/// A paragraph of one run.
inline std::string Line(const std::string& text) {
    return R"(<w:p><w:r><w:t xml:space="preserve">)" + text + "</w:t></w:r></w:p>";
}

inline std::string Root(const std::string& tag, const std::string& content) {
    return "<w:" + tag +
           R"( xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main")"
           R"( xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")"
           R"( xmlns:v="urn:schemas-microsoft-com:vml" xmlns:o="urn:schemas-microsoft-com:office:office">)" +
           content + "</w:" + tag + ">";
}

inline std::string FormDocx::Bytes() const {
    const std::string base = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
    const auto link = [&](const std::string& id, const std::string& type, const std::string& target) {
        return "<Relationship Id=\"" + id + "\" Type=\"" + base + type + "\" Target=\"" + target + "\"/>";
    };
    const auto links = [](const std::string& all) {
        return R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)" +
               all + "</Relationships>";
    };
    std::map<std::string, std::string> all = parts;
    std::string own = relationships;
    std::string references;
    const auto story = [&](const std::string& content, const std::string& kind, const std::string& tag) {
        if (content.empty()) return;
        own += link("rId_" + kind, kind, kind + "1.xml");
        references += "<w:" + kind + R"(Reference w:type="default" r:id="rId_)" + kind + "\"/>";
        all["word/" + kind + "1.xml"] = Root(tag, content);
    };
    story(header, "header", "hdr");
    story(footer, "footer", "ftr");
    if (!settings.empty()) own += link("rId_settings", "settings", "settings.xml");
    if (!settings.empty()) all["word/settings.xml"] = Root("settings", settings);
    all["[Content_Types].xml"] =
        R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
        R"(<Default Extension="rels" )"
        R"(ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
        R"(<Default Extension="xml" ContentType="application/xml"/></Types>)";
    all["_rels/.rels"] = links(link("rId1", "officeDocument", "word/document.xml"));
    all["word/document.xml"] =
        Root("document", "<w:body>" + body + "<w:sectPr>" + references + section + "</w:sectPr></w:body>");
    all["word/_rels/document.xml.rels"] = links(own);
    std::vector<word::docx::zip::ZipEntry> entries;
    for (const auto& [name, bytes] : all) entries.push_back({name, bytes});
    return word::docx::zip::WriteZip(entries);
}

}  // namespace quillmark::test
