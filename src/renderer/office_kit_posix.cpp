#ifndef _WIN32

#include <dlfcn.h>

#include <array>

#include "platform/paths.h"
#include "production/pdf/pdf.h"
#include "production/pdf/pdf_program.h"
#include "renderer/office_kit.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

// The stable beginning of LibreOffice's C interface: each object is a pointer to a table of functions, which
// begins with its own size and only ever grows at its end.
struct KitDocument;
struct KitDocumentFunctions {
    std::size_t size;
    void (*destroy)(KitDocument*);
    int (*saveAs)(KitDocument*, const char* address, const char* format, const char* options);
};
struct KitDocument {
    const KitDocumentFunctions* functions;
};

struct Kit;
struct KitFunctions {
    std::size_t size;
    void (*destroy)(Kit*);
    KitDocument* (*documentLoad)(Kit*, const char* address);
    char* (*getError)(Kit*);
    KitDocument* (*documentLoadWithOptions)(Kit*, const char* address, const char* options);
    void (*freeError)(char*);
};
struct Kit {
    const KitFunctions* functions;
};
using Start = Kit*(const char* programs, const char* profileAddress);

constexpr std::array kLibraries = {"libmergedlo.so", "libsofficeapp.so"};
constexpr const char* kStart = "libreofficekit_hook_2";

struct DestroyDocument {
    void operator()(KitDocument* document) const { document->functions->destroy(document); }
};

}  // namespace

struct OfficeKit::Loaded {
    Kit* kit;

    [[noreturn]] void Fail(const std::string& otherwise) const {
        char* told = kit->functions->getError(kit);
        std::string words = told && *told ? told : otherwise;
        if (told) kit->functions->freeError(told);
        throw PdfError(words);
    }
};

std::optional<fs::path> OfficeKit::Find() {
    const auto program = FindProgram({"soffice", "libreoffice"});
    if (!program) return {};
    std::error_code none;
    const fs::path folder = fs::canonical(*program, none).parent_path();
    for (const char* library : kLibraries)
        if (fs::exists(folder / library, none)) return folder;
    return {};
}

OfficeKit::OfficeKit(const fs::path& programs, const fs::path& profile) {
    void* start = nullptr;
    for (const char* library : kLibraries) {
        void* opened = dlopen((programs / library).c_str(), RTLD_LAZY);
        if (opened) start = dlsym(opened, kStart);
        if (start) break;
    }
    if (!start) {
        const char* why = dlerror();
        throw PdfError("LibreOffice cannot be loaded: " + std::string(why ? why : "it has no kit"));
    }
    Kit* kit = reinterpret_cast<Start*>(start)(programs.c_str(), FileAddress(profile).c_str());
    if (!kit) throw PdfError("LibreOffice does not start");
    loaded_ = std::make_unique<Loaded>(Loaded{kit});
}

OfficeKit::~OfficeKit() = default;

void OfficeKit::MakePdf(const fs::path& document, const fs::path& pdf) {
    Kit* kit = loaded_->kit;
    const std::unique_ptr<KitDocument, DestroyDocument> open(
        kit->functions->documentLoad(kit, FileAddress(document).c_str()));
    if (!open) loaded_->Fail("the document cannot be opened");
    if (!open->functions->saveAs(open.get(), FileAddress(pdf).c_str(), "pdf", nullptr))
        loaded_->Fail("the document has no pages");
}

}  // namespace quillmark

#endif
