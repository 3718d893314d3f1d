#include <fmt/format.h>
#include <libdeflate.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "word/docx/objects/engine.h"
#include "word/word.h"

/// How long a long document takes, from the start of the embedded word processor to the closed file: 2,400
/// paragraphs of three runs in 60 sections with a footer each. Beside it stands the floor: the same texts put
/// into XML by hand, packed and written, without any model of a document between.
namespace {

namespace fs = std::filesystem;
namespace word = quillmark::word;

constexpr int kSections = 60;
constexpr int kParagraphsInSection = 40;
constexpr int kRuns = 3;
constexpr std::size_t kCharactersInRun = 116;
constexpr int kRounds = 21;

/// The runs of all paragraphs, one after the other.
std::vector<std::string> MakeTexts() {
    constexpr std::string_view kWords[] = {
        "the",        "grantor",   "and",     "grantee",  "of",     "premises", "said",        "to",
        "with",       "town",      "county",  "recorded", "volume", "page",     "mortgage",    "release",
        "warranty",   "covenants", "whereof", "hereunto", "dated",  "in",       "Connecticut", "its",
        "successors", "assigns",   "forever", "subject",  "taxes",  "easement", "boundary",    "feet"};
    std::mt19937 random(3);
    std::vector<std::string> texts(static_cast<std::size_t>(kSections) * kParagraphsInSection * kRuns);
    for (std::string& text : texts) {
        while (text.size() < kCharactersInRun) {
            text += kWords[random() % std::size(kWords)];
            text += random() % 8 == 0 ? fmt::format(" {} ", random() % 1000) : " ";
        }
    }
    return texts;
}

// ---- Through the word processor's objects ----------------------------------------------------------------

void TypeSection(const word::Application& app, const std::string* texts) {
    const word::Selection& selection = app.Selection;
    selection.Font.Name = "Times New Roman";
    selection.Font.Size = 11;
    selection.ParagraphFormat.Alignment = word::AlignJustified;
    for (int paragraph = 0; paragraph < kParagraphsInSection; ++paragraph, texts += kRuns) {
        selection.TypeText(texts[0]);
        selection.Font.Bold = true;
        selection.TypeText(texts[1]);
        selection.Font.Bold = false;
        selection.TypeText(texts[2]);
        selection.TypeText("\r");
    }
}

void SetFooters(const word::Document& document) {
    for (int section = 1; section <= kSections; ++section) {
        const word::Footer footer = document.Sections(section).Footers(1);
        footer.LinkToPrevious = false;
        footer.PageNumbers.RestartNumberingAtSection = true;
        footer.PageNumbers.StartingNumber = 1;
        footer.Range().Text = fmt::format("Document {}", section);
        footer.Range().Font.Name = "Courier New";
        footer.Range().Font.Size = 8;
    }
}

void RunEngine(const std::vector<std::string>& texts, const fs::path& file) {
    const word::Application app(word::docx::objects::StartEngine());
    const word::Document document = app.Documents.Add();
    for (int section = 0; section < kSections; ++section) {
        TypeSection(app, &texts[static_cast<std::size_t>(section) * kParagraphsInSection * kRuns]);
        if (section + 1 < kSections) app.Selection.InsertBreak(word::SectionBreakNextPage);
    }
    SetFooters(document);
    document.SaveAs(file.string());
    document.Close(false);
    app.Quit();
}

// ---- By hand ---------------------------------------------------------------------------------------------

constexpr std::string_view kSpace = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";

std::string Look(std::string_view bold) {
    return fmt::format(
        "<w:rPr><w:rFonts w:ascii=\"{0}\" w:eastAsia=\"{0}\" w:hAnsi=\"{0}\" w:cs=\"{0}\"/>{1}"
        "<w:sz w:val=\"22\"/><w:szCs w:val=\"22\"/></w:rPr>",
        "Times New Roman", bold);
}

void AppendRun(std::string& xml, std::string_view text, std::string_view look) {
    xml += "<w:r>";
    xml += look;
    xml += "<w:t xml:space=\"preserve\">";
    xml += text;
    xml += "</w:t></w:r>";
}

std::string DocumentXml(const std::vector<std::string>& texts) {
    const std::string bold = Look("<w:b/>"), notBold = Look("<w:b w:val=\"0\"/>");
    std::string xml = fmt::format("<w:document xmlns:w=\"{}\"><w:body>", kSpace);
    for (std::size_t run = 0; run < texts.size(); run += kRuns) {
        xml += "<w:p><w:pPr><w:jc w:val=\"both\"/>";
        xml += notBold;
        xml += "</w:pPr>";
        AppendRun(xml, texts[run], notBold);
        AppendRun(xml, texts[run + 1], bold);
        AppendRun(xml, texts[run + 2], notBold);
        xml += "</w:p>";
    }
    return xml + "</w:body></w:document>";
}

std::string FooterXml(int section) {
    return fmt::format("<w:ftr xmlns:w=\"{}\"><w:p><w:r><w:t>Document {}</w:t></w:r></w:p></w:ftr>", kSpace,
                       section);
}

/// Packs the parts one behind the other; the few bytes of a directory are not worth the trouble here.
void RunBare(const std::vector<std::string>& texts, const fs::path& file) {
    std::vector<std::string> parts = {DocumentXml(texts)};
    for (int section = 1; section <= kSections; ++section) parts.push_back(FooterXml(section));
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(6);
    std::string packed, room;
    for (const std::string& part : parts) {
        room.resize(libdeflate_deflate_compress_bound(compressor, part.size()));
        const std::uint32_t crc = libdeflate_crc32(0, part.data(), part.size());
        packed.append(reinterpret_cast<const char*>(&crc), sizeof crc);
        packed.append(
            room, 0,
            libdeflate_deflate_compress(compressor, part.data(), part.size(), room.data(), room.size()));
    }
    libdeflate_free_compressor(compressor);
    std::ofstream(file, std::ios::binary) << packed;
}

// ---- Measuring -------------------------------------------------------------------------------------------

template <class Work>
double Milliseconds(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> figures) {
    std::ranges::sort(figures);
    return figures[figures.size() / 2];
}

void Print(std::string_view what, const std::vector<double>& figures, const fs::path& file) {
    fmt::print("{:<44} {:7.1f} ms median, {:7.1f} ms best, {:>9} bytes\n", what, Median(figures),
               *std::ranges::min_element(figures), fs::file_size(file));
}

}  // namespace

int main() {
    const fs::path folder =
        fs::temp_directory_path() / fmt::format("quillmark-bench-{}", std::random_device()());
    fs::create_directory(folder);
    const fs::path byEngine = folder / "engine.docx", byHand = folder / "bare.bin";
    const std::vector<std::string> texts = MakeTexts();
    std::vector<double> engine, bare;
    for (int round = 0; round < kRounds; ++round) {
        engine.push_back(Milliseconds([&] { RunEngine(texts, byEngine); }));
        bare.push_back(Milliseconds([&] { RunBare(texts, byHand); }));
    }
    Print("2,400 paragraphs, 60 sections, by the engine", engine, byEngine);
    Print("the same texts packed and written by hand", bare, byHand);
    fmt::print("{:<44} {:7.2f}\n", "ratio of the medians", Median(engine) / Median(bare));
    fs::remove_all(folder);
}
