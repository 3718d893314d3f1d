#include "word/docx/model/default_styles.h"

namespace quillmark::word::docx::inline model {
namespace {

// clang-format off
constexpr const char* kDocDefaults =
    R"(<w:docDefaults><w:rPrDefault><w:rPr>)"
    R"(<w:rFonts w:ascii="Times New Roman" w:eastAsia="Times New Roman" w:hAnsi="Times New Roman" w:cs="Times New Roman"/>)"
    R"(<w:sz w:val="20"/><w:szCs w:val="20"/><w:lang w:val="en-US"/>)"
    R"(</w:rPr></w:rPrDefault><w:pPrDefault/></w:docDefaults>)";

constexpr const char* kNormal =
    R"(<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/><w:qFormat/>)"
    R"(<w:pPr><w:spacing w:after="0" w:line="240" w:lineRule="auto"/></w:pPr>)"
    R"(<w:rPr><w:sz w:val="24"/><w:szCs w:val="24"/></w:rPr></w:style>)";

constexpr const char* kDefaultFont =
    R"(<w:style w:type="character" w:default="1" w:styleId="DefaultParagraphFont">)"
    R"(<w:name w:val="Default Paragraph Font"/><w:uiPriority w:val="1"/><w:semiHidden/></w:style>)";

constexpr const char* kNormalTable =
    R"(<w:style w:type="table" w:default="1" w:styleId="TableNormal"><w:name w:val="Normal Table"/>)"
    R"(<w:uiPriority w:val="99"/><w:semiHidden/><w:tblPr><w:tblInd w:w="0" w:type="dxa"/><w:tblCellMar>)"
    R"(<w:top w:w="0" w:type="dxa"/><w:left w:w="108" w:type="dxa"/>)"
    R"(<w:bottom w:w="0" w:type="dxa"/><w:right w:w="108" w:type="dxa"/></w:tblCellMar></w:tblPr></w:style>)";

constexpr const char* kNoList =
    R"(<w:style w:type="numbering" w:default="1" w:styleId="NoList"><w:name w:val="No List"/>)"
    R"(<w:uiPriority w:val="99"/><w:semiHidden/></w:style>)";

constexpr const char* kListParagraph =
    R"(<w:style w:type="paragraph" w:styleId="ListParagraph"><w:name w:val="List Paragraph"/>)"
    R"(<w:basedOn w:val="Normal"/><w:uiPriority w:val="34"/><w:qFormat/>)"
    R"(<w:pPr><w:ind w:left="720"/><w:contextualSpacing/></w:pPr></w:style>)";

constexpr const char* kHeader =
    R"(<w:style w:type="paragraph" w:styleId="Header"><w:name w:val="header"/><w:basedOn w:val="Normal"/>)"
    R"(<w:uiPriority w:val="99"/><w:pPr><w:tabs><w:tab w:val="center" w:pos="4680"/>)"
    R"(<w:tab w:val="right" w:pos="9360"/></w:tabs></w:pPr></w:style>)";

constexpr const char* kFooter =
    R"(<w:style w:type="paragraph" w:styleId="Footer"><w:name w:val="footer"/><w:basedOn w:val="Normal"/>)"
    R"(<w:uiPriority w:val="99"/><w:pPr><w:tabs><w:tab w:val="center" w:pos="4680"/>)"
    R"(<w:tab w:val="right" w:pos="9360"/></w:tabs></w:pPr></w:style>)";
// clang-format on

}  // namespace

std::vector<StyleDefinition> DefaultStyles() {
    // clang-format off
    return {
        {"Normal",               "Normal",                 "paragraph", kNormal},
        {"DefaultParagraphFont", "Default Paragraph Font", "character", kDefaultFont},
        {"TableNormal",          "Normal Table",           "table",     kNormalTable},
        {"NoList",               "No List",                "numbering", kNoList},
        {kListParagraphStyle,    "List Paragraph",         "paragraph", kListParagraph},
        {"Header",               "header",                 "paragraph", kHeader},
        {kFooterStyle,           "footer",                 "paragraph", kFooter},
    };
    // clang-format on
}

std::string DefaultFormats() {
    return kDocDefaults;
}

}  // namespace quillmark::word::docx::inline model
