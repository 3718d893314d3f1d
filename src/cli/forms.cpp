#include "cli/forms.h"

#include <ostream>

#include "core/custom_forms.h"
#include "core/folders.h"
#include "core/settings.h"
#include "platform/atomic_file.h"
#include "platform/fonts.h"
#include "platform/paths.h"
#include "tools/custom_forms/form_check.h"

namespace quillmark::cli {

namespace fs = std::filesystem;

namespace {

class FormsRun {
 public:
    FormsRun(const FormsOrder& order, const Streams& streams) : order_(order), streams_(streams) {}

    int Run() {
        if (!fs::is_directory(order_.folder))
            throw FileError(order_.folder, FileError::Kind::NotFound, "there is no such folder");
        folder_ = FoldersOf(fs::absolute(order_.folder), ReadSettings(order_.folder)).CustomFormsFolder;
        order_.check ? CheckAll() : ListAll();
        return failed_ ? kFailed : kDone;
    }

 private:
    template <class Step>
    void ForForms(const Step& step) {
        for (const std::string& file : FormFiles(folder_)) {
            try {
                step(file);
            } catch (const std::exception& failure) {
                streams_.err << "quillmark-cli: " << FormName(file) << ": " << failure.what() << std::endl;
                failed_ = true;
            }
        }
    }

    void ListAll() {
        ForForms([this](const std::string& file) {
            streams_.out << FormName(file) << '\n';
            for (const FormMarker& marker : ReadFormMarkers(MarkerFile(folder_, FormName(file))))
                streams_.out << "  " << marker.marker << '\n';
        });
    }

    void CheckAll() {
        const MarkerJudge judge(MarkerRows(folder_));
        const std::set<std::string> fonts = InstalledFonts();
        ForForms([&](const std::string& file) {
            for (const FormFinding& finding : CheckForm(folder_ / PathOf(file), judge, fonts)) {
                streams_.out << FormName(file) << ": " << finding.place << ": " << finding.what << '\n';
                failed_ |= finding.isMarkerFault;
            }
            if (!fs::exists(MarkerFile(folder_, FormName(file))))
                streams_.err << "quillmark-cli: " << FormName(file)
                             << ": its markers are not listed yet; import it in the custom forms manager"
                             << std::endl;
        });
    }

    const FormsOrder& order_;
    const Streams& streams_;
    fs::path folder_;
    bool failed_ = false;
};

}  // namespace

int Forms(const FormsOrder& order, const Streams& streams) {
    try {
        return FormsRun(order, streams).Run();
    } catch (const std::exception& failure) {
        streams.err << "quillmark-cli: " << failure.what() << std::endl;
        return kFailed;
    }
}

}  // namespace quillmark::cli
