#include "tools/op236/pdf_form.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFWriter.hh>

#include <memory>

#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "tools/op236/form_fields.h"
#include "tools/op236/form_text.h"

namespace quillmark {

using namespace pdf;

namespace {

constexpr std::size_t kLargestForm = 50'000'000;

/// A form in hand, from its file to the filled copy.
class Form {
 public:
    explicit Form(const std::filesystem::path& file) : file_(file), bytes_(Read()) {
        pdf_.setSuppressWarnings(true);
        try {
            pdf_.processMemoryFile(TextOf(file.filename()).c_str(), bytes_.data(), bytes_.size());
        } catch (const QPDFExc& failure) {
            if (failure.getErrorCode() == qpdf_e_password)
                Refuse(FormError::Kind::Encrypted, "asks for a password");
            Refuse(FormError::Kind::Damaged, "is no PDF, or a damaged one");
        }
        if (pdf_.isEncrypted() && !pdf_.allowModifyForm())
            Refuse(FormError::Kind::Encrypted, "does not allow its fields to be filled");
        fields_ = ReadFields(pdf_);
        if (!fields_.empty()) return;
        QPDFObjectHandle form = pdf_.getRoot().getKey("/AcroForm");
        const bool isXfa = form.isDictionary() && form.hasKey("/XFA");
        Refuse(FormError::Kind::NoFields, isXfa
                                              ? "is an XFA form, which only its maker's own program can fill"
                                              : "has no fields to fill");
    }

    void Empty() {
        for (auto& [name, field] : fields_) {
            QPDFObjectHandle value = Inherited(field.dictionary, "/DV");
            field.dictionary.removeKey("/V");
            if (field.kind == FieldKind::Text || field.kind == FieldKind::Choice)
                SetText(field, value.isString() ? value.getUTF8Value() : std::string());
            if (field.kind == FieldKind::Buttons)
                SetState(field, value.isName() ? value.getName().substr(1) : "Off");
        }
    }

    bool Has(const std::string& field) const { return fields_.contains(field); }

    /// False where the form has no such field, or no such button.
    bool Put(const FieldValue& value) {
        const auto found = fields_.find(value.field);
        if (found == fields_.end()) return false;
        Field& field = found->second;
        switch (field.kind) {
            case FieldKind::Text:
            case FieldKind::Choice:
                if (value.tick) return false;
                SetText(field, value.text);
                return true;
            case FieldKind::Buttons:
                return SetButton(field, value);
            case FieldKind::Other:
                return false;
        }
        return false;
    }

    std::string Write() {
        QPDFObjectHandle form = pdf_.getRoot().getKey("/AcroForm");
        form.removeKey("/XFA");
        form.removeKey("/NeedAppearances");
        // The rights that a maker grants to one viewer end with the first change.
        pdf_.getRoot().removeKey("/Perms");
        CalculateOnOpening();
        QPDFWriter writer(pdf_);
        writer.setOutputMemory();
        if (!pdf_.isEncrypted()) writer.setDeterministicID(true);
        writer.write();
        const std::shared_ptr<Buffer> bytes = writer.getBufferSharedPointer();
        return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
    }

 private:
    std::string Read() const {
        try {
            return ReadFile(file_, kLargestForm);
        } catch (const FileError& failure) {
            throw FormError(FormError::Kind::NotThere, failure.what());
        }
    }

    [[noreturn]] void Refuse(FormError::Kind kind, const std::string& what) const {
        throw FormError(kind, "The form " + TextOf(file_.filename()) + " " + what + ".");
    }

    void SetText(Field& field, const std::string& text) {
        if (text.empty())
            field.dictionary.removeKey("/V");
        else
            field.dictionary.replaceKey("/V", QPDFObjectHandle::newUnicodeString(text));
        for (QPDFObjectHandle& widget : field.widgets) ShowText(pdf_, field.dictionary, widget, text);
    }

    void SetState(Field& field, const std::string& state) {
        field.dictionary.replaceKey("/V", QPDFObjectHandle::newName("/" + state));
        for (QPDFObjectHandle& widget : field.widgets) {
            const bool isOn = state != "Off" && OnStateOf(widget) == state;
            widget.replaceKey("/AS", QPDFObjectHandle::newName(isOn ? "/" + state : "/Off"));
        }
    }

    bool SetButton(Field& field, const FieldValue& value) {
        QPDFObjectHandle exported = Inherited(field.dictionary, "/Opt");
        for (std::size_t i = 0; i < field.widgets.size(); ++i) {
            const std::string state = OnStateOf(field.widgets[i]);
            if (state.empty()) continue;
            const int n = static_cast<int>(i);
            const bool isNamed = exported.isArray() && n < exported.getArrayNItems() &&
                                 exported.getArrayItem(n).isString() &&
                                 exported.getArrayItem(n).getUTF8Value() == value.text;
            if (!value.tick && state != value.text && !isNamed) continue;
            SetState(field, state);
            return true;
        }
        return false;
    }

    void CalculateOnOpening() {
        QPDFObjectHandle root = pdf_.getRoot();
        QPDFObjectHandle form = root.getKey("/AcroForm");
        if (!form.hasKey("/CO")) return;  // nothing is calculated
        QPDFObjectHandle names = root.getKey("/Names");
        if (!names.isDictionary())
            names = root.replaceKeyAndGetNew("/Names", QPDFObjectHandle::newDictionary());
        if (names.hasKey("/JavaScript")) return;  // the form has scripts of its own for its opening
        names.replaceKey("/JavaScript",
                         QPDFObjectHandle::parse("<< /Names [ (Calculate) << /S /JavaScript /JS "
                                                 "(this.calculateNow\\(\\);) >> ] >>"));
    }

    const std::filesystem::path file_;
    const std::string bytes_;
    QPDF pdf_;
    Fields fields_;
};

}  // namespace

FilledForm FillPdfForm(const std::filesystem::path& file, std::span<const FieldValue> values) {
    Form form(file);
    FilledForm filled;
    try {
        form.Empty();
        for (const FieldValue& value : values) {
            if (form.Put(value)) continue;
            const bool lacksButton = form.Has(value.field) && !value.text.empty();
            filled.missing.push_back(value.field + (lacksButton ? " = " + value.text : ""));
        }
        filled.bytes = form.Write();
    } catch (const std::exception& failure) {
        // What a torn file lacks may come to light only when it is asked for.
        throw FormError(FormError::Kind::Damaged,
                        "The form " + TextOf(file.filename()) + " is damaged: " + failure.what());
    }
    return filled;
}

}  // namespace quillmark
