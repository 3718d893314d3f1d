#include "production/pdf/pdf.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include "platform/paths.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

/// Puts a program of the test's own in LibreOffice's place.
class Pdf : public ::testing::Test {
 protected:
    Pdf() : path_(std::getenv("PATH")) { WriteBytes(folder / "Hollis.docx", "document"); }
    ~Pdf() override { setenv("PATH", path_.c_str(), 1); }

    void Install(const std::string& script) {
        fs::create_directory(folder / "bin");
        WriteBytes(folder / "bin/soffice", "#!/bin/sh\n" + script);
        fs::permissions(folder / "bin/soffice", fs::perms::owner_all);
        setenv("PATH", (TextOf(folder / "bin") + ":" + path_).c_str(), 1);
    }

    std::string Failure(std::chrono::seconds limit = std::chrono::seconds(60)) {
        try {
            PdfConverter().Convert(folder / "Hollis.docx", folder / "Hollis.pdf", limit);
        } catch (const PdfError& failure) {
            return failure.what();
        }
        return "";
    }

    ScratchFolder folder;

 private:
    std::string path_;
};

TEST_F(Pdf, TheProgramsOutputBecomesTheFile) {
    Install(
        "for last; do :; done\n"
        "while [ \"$1\" != --outdir ]; do case $1 in -env:*) profile=$1;; esac; shift; done\n"
        "mkdir -p \"$2\"; { cat \"$last\"; echo \" $profile\"; } > \"$2/$(basename \"$last\" .docx).pdf\"\n");
    ASSERT_EQ(Failure(), "");
    EXPECT_THAT(ReadBytes(folder / "Hollis.pdf"), HasSubstr("document -env:UserInstallation=file:///"));
}

TEST_F(Pdf, AFailureLeavesTheOldFile) {
    WriteBytes(folder / "Hollis.pdf", "old");
    Install("exit 0\n");
    EXPECT_THAT(Failure(), HasSubstr("Hollis.docx: LibreOffice could not make a PDF"));
    EXPECT_EQ(ReadBytes(folder / "Hollis.pdf"), "old");
}

TEST_F(Pdf, AProgramThatHangsIsEndedWithAllThatItStarted) {
    Install("sleep 30 & sleep 30\n");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THAT(Failure(std::chrono::seconds(1)), HasSubstr("within 1 seconds"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(Pdf, ManyDocumentsCostOneStartAndOneThatTakesTheProgramDownOnlyOneMore) {
    fs::create_directory(folder / "other");
    WriteBytes(folder / "other/Hollis.docx", "the same name");
    WriteBytes(folder / "Bad.docx", "bad");
    WriteBytes(folder / "Deadly.docx", "deadly");
    WriteBytes(folder / "Last.docx", "last");
    Install(
        "while [ \"$1\" != --outdir ]; do shift; done; out=$2; shift 2; mkdir -p \"$out\"\n"
        "echo start >> \"" +
        TextOf(folder / "starts") +
        "\"\n"
        "for f; do case $(cat \"$f\") in bad) ;; deadly) exit 1;;\n"
        "  *) cp \"$f\" \"$out/$(basename \"$f\" .docx).pdf\";; esac; done\n");
    std::vector<PdfOrder> orders;
    for (const char* name : {"Hollis", "other/Hollis", "Bad", "Missing", "Deadly", "Last"})
        orders.push_back({folder / (name + std::string(".docx")), folder / (name + std::string(".pdf"))});
    std::vector<std::string> failed;
    PdfConverter().ConvertAll(orders, [&](const PdfOrder& order, const std::exception_ptr& failure) {
        if (failure) failed.push_back(TextOf(order.document.filename()));
    });
    EXPECT_EQ(ReadBytes(folder / "Hollis.pdf"), "document");
    EXPECT_EQ(ReadBytes(folder / "other/Hollis.pdf"), "the same name");
    EXPECT_EQ(ReadBytes(folder / "Last.pdf"), "last");
    EXPECT_THAT(failed, ::testing::UnorderedElementsAre("Bad.docx", "Missing.docx", "Deadly.docx"));
    EXPECT_EQ(ReadBytes(folder / "starts"), "start\nstart\nstart\n");
}

TEST_F(Pdf, WithoutLibreOfficeThereIsNoConverter) {
    setenv("PATH", "/nowhere", 1);
    EXPECT_THROW(PdfConverter(), PdfError);
}

}  // namespace
}  // namespace quillmark::test
