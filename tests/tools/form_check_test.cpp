#include "tools/custom_forms/form_check.h"

#include <gmock/gmock.h>

#include "tools/custom_forms_desk.h"

namespace quillmark::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class FormChecks : public ::testing::Test, protected FormsDesk {
 protected:
    std::vector<std::string> Found(const FormDocx& form, const std::set<std::string>& fonts = {}) {
        std::vector<std::string> lines;
        for (const FormFinding& finding : CheckForm(Source("form.docx", form.Bytes()), Judge(), fonts))
            lines.push_back(finding.place + ": " + finding.what);
        return lines;
    }
    MarkerJudge Judge() { return MarkerJudge(MarkerRows(forms)); }
    std::vector<MarkerFault> Faults(const std::string& text) { return Judge().Faults(text); }
};

TEST_F(FormChecks, WhatAFormSaysForItselfIsNoFault) {
    for (const char* text :
         {"[seller 1 name]", "[SELLER 1 NAME]", "[sic]", "[1]", "[L.S.]", "[SEAL]",
          "[signature page follows]", "see [Exhibit A] and [the remainder of this page is left blank]",
          "f(x) = {x}", "[", "]", "a ] b [ c", "(the seller)", "[]", "[ ]", "name] of the ship"})
        EXPECT_THAT(Faults(text), IsEmpty()) << text;
}

TEST_F(FormChecks, MarkersThatAreNearlyRightAreToldWithTheRightOne) {
    const std::pair<const char*, const char*> kCases[] = {
        {"[seler 1 name]", "[seller 1 name]"},           {"[seller  1 name]", "[seller 1 name]"},
        {"[ seller 1 name ]", "[seller 1 name]"},        {"[seller\u00a01 name]", "[seller 1 name]"},
        {"{seller 1 name}", "[seller 1 name]"},          {"[sellre 1 name]", "[seller 1 name]"},
        {"[seller 1 name", "[seller 1 name]"},           {"the seller 1 name], of", "[seller 1 name]"},
        {"[prop municpal csz]", "[prop municipal csz]"},
    };
    for (const auto& [text, right] : kCases) {
        const auto faults = Faults(text);
        ASSERT_EQ(faults.size(), 1u) << text;
        EXPECT_EQ(faults[0].mend.right, right) << text;
    }
}

TEST_F(FormChecks, AMarkerOfNoFieldIsTold) {
    for (const char* text : {"[seller 3 name]", "[buyer 9 addr 1]", "[name of seller]"}) {
        const auto faults = Faults(text);
        ASSERT_EQ(faults.size(), 1u) << text;
        EXPECT_EQ(faults[0].mend.right, "") << text;
        EXPECT_THAT(faults[0].what, HasSubstr("no field has it"));
    }
}

TEST_F(FormChecks, ThePlaceIsSaid) {
    FormDocx form;
    form.body = R"(<w:p><w:ins w:id="1"><w:r><w:t>new</w:t></w:r></w:ins></w:p>)" +
                Line("hereinafter called the [seler 1 name], of") +
                R"(<w:tbl><w:tblPr/><w:tblGrid><w:gridCol w:w="900"/></w:tblGrid><w:tr><w:tc>)" +
                Line("[seller 3 name]") + "</w:tc></w:tr></w:tbl>" +
                R"(<w:p><w:r><w:pict><v:shape><v:textbox><w:txbxContent>)" + Line("[sellar 1 name]") +
                R"(</w:txbxContent></v:textbox></v:shape></w:pict></w:r></w:p>)" +
                R"(<w:p><w:pPr><w:sectPr/></w:pPr></w:p>)" +
                R"(<w:p><w:r><w:rPr><w:rFonts w:ascii="Nobody Sans"/></w:rPr><w:t>text</w:t></w:r></w:p>)";
    form.header = Line("[seller 1 name");
    form.footer = Line("[buyer  1 name]");
    EXPECT_THAT(
        Found(form, {"times new roman"}),
        UnorderedElementsAre(
            "paragraph 1: a tracked change stands here; a job's document shows it too",
            "paragraph 2: after 'hereinafter called the': [seler 1 name] is nearly the marker [seller 1 name]",
            "table 1, row 1, column 1: [seller 3 name] looks like a marker, but no field has it",
            "a text box at paragraph 3: [sellar 1 name] is nearly the marker [seller 1 name]",
            "paragraph 4: a section break ends here; a job has a page break in its place",
            "paragraph 5: the font Nobody Sans is not installed",
            "the header: [seller 1 name has lost its closing bracket: [seller 1 name]",
            "the footer: [buyer  1 name] is nearly the marker [buyer 1 name]"));
}

TEST_F(FormChecks, AMarkerIsMendedInItsPlaceAndNothingElseChanges) {
    Import(
        "Rider.docx",
        R"(<w:p w:rsidR="00A1"><w:ins w:id="1" w:author="a"><w:r><w:rPr><w:b/></w:rPr><w:t>[sel</w:t></w:r></w:ins>)"
        R"(<w:r><w:t>er 1 name] and [seller 1 name</w:t></w:r><w:r><w:t xml:space="preserve">, then [seller 1 name]</w:t></w:r></w:p>)");
    ShowDatabase();
    window->Pick("File1", "Rider.docx");
    window->Click("cmdCheck");
    ASSERT_EQ(Listed("lstFindings").size(), 3u);
    window->Pick("lstFindings", 0);
    window->Click("cmdMend");
    ASSERT_EQ(Listed("lstFindings").size(), 2u);
    window->Pick("lstFindings", 0);
    window->Click("cmdMend");
    EXPECT_THAT(Listed("lstFindings"), ElementsAre(HasSubstr("a tracked change")));
    EXPECT_THAT(MarkersOf("Rider"), HasSubstr("seller 1 name"));
    const OpenedForm form(forms / "Rider.docx", Office().startWord);
    EXPECT_EQ(std::string(form.document().Content.Text),
              "[seller 1 name] and [seller 1 name], then [seller 1 name]\r");
}

}  // namespace
}  // namespace quillmark::test
