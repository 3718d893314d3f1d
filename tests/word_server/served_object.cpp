#include "word_server/served_object.h"

#include <map>
#include <set>
#include <utility>
#include <vector>

#include "word/com/com_text.h"

namespace quillmark::test {
namespace {

using word::Argument;
using word::ObjectPtr;
using word::Value;

// ---- Names and their ids, one list for all objects ----

std::vector<std::string>& Names() {
    static std::vector<std::string> names;
    return names;
}

DISPID IdOf(const std::string& name) {
    auto& names = Names();
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (lstrcmpiA(names[i].c_str(), name.c_str()) == 0) return static_cast<DISPID>(i + 1);
    }
    names.push_back(name);
    return static_cast<DISPID>(names.size());
}

const std::string& NameOf(DISPID id) {
    return Names().at(static_cast<std::size_t>(id - 1));
}

// ---- Values ----

struct Served;
std::set<IDispatch*>& AllServed() {
    static std::set<IDispatch*> all;
    return all;
}

BSTR Text(const std::string& utf8) {
    const std::wstring wide = word::ToWide(utf8);
    return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

Value ValueOf(const VARIANT& variant);
void Give(VARIANT* variant, const Value& value);

HRESULT Tell(EXCEPINFO* exception, int number, const std::string& description) {
    if (exception) {
        *exception = {};
        exception->scode = static_cast<SCODE>(0x800A0000u | static_cast<unsigned>(number));
        exception->bstrDescription = Text(description);
    }
    return DISP_E_EXCEPTION;
}

HRESULT CALLBACK FillInLate(EXCEPINFO* exception) {
    exception->bstrDescription = Text("told late");
    return S_OK;
}

/// Word's `Content` ends with the main text; here it takes in the other stories too, and there are none
/// beside it.
class NoStories final : public word::Object {
 public:
    Value Get(std::string_view, word::Arguments) override {
        throw word::AutomationError(word::error::kNoSuchElement, "There is no such story.");
    }
    void Put(std::string_view, const Value&) override {}
    Value Call(std::string_view, word::Arguments) override { return {}; }
};

// ---- The object ----

struct Served final : IDispatch {
    explicit Served(ObjectPtr served) : object(std::move(served)) {
        AllServed().insert(this);
        ++State().objects;
    }
    ~Served() {
        AllServed().erase(this);
        if (--State().objects == 0) State().end();
    }

    HRESULT WINAPI QueryInterface(REFIID id, void** out) override {
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch);
        *out = known ? this : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG WINAPI AddRef() override { return ++references; }
    ULONG WINAPI Release() override {
        const ULONG left = --references;
        if (left == 0) delete this;
        return left;
    }
    HRESULT WINAPI GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT WINAPI GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT WINAPI GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        ++State().questions;
        for (UINT i = 0; i < count; ++i) ids[i] = IdOf(word::FromWide(names[i]));
        return S_OK;
    }
    HRESULT WINAPI Invoke(DISPID id, REFIID, LCID, WORD how, DISPPARAMS* parameters, VARIANT* result,
                          EXCEPINFO* exception, UINT*) override;

    Value Do(const std::string& member, WORD how, const std::vector<Argument>& arguments);

    ObjectPtr object;
    ULONG references = 1;
};

/// The bytes on the system's clipboard in this format; empty when there are none.
std::string OnClipboard(UINT format) {
    const HANDLE data = GetClipboardData(format);
    const void* const bytes = data ? GlobalLock(data) : nullptr;
    if (!bytes) return {};
    std::string copy(static_cast<const char*>(bytes), GlobalSize(data));
    GlobalUnlock(data);
    return copy;
}

/// What the client has put there since the last time, for the word processor within to paste.
void TakeOverClipboard() {
    const DWORD present = GetClipboardSequenceNumber();
    if (present == std::exchange(State().clipboardSeen, present) || !OpenClipboard(nullptr)) return;
    word::Clipboard& clipboard = *State().clipboard;
    const std::string text = OnClipboard(CF_UNICODETEXT);
    const std::string picture = OnClipboard(RegisterClipboardFormatW(L"PNG"));
    CloseClipboard();
    if (!picture.empty()) return clipboard.SetPicture(picture);
    if (text.empty()) return clipboard.Clear();
    std::string narrow = word::FromWide(reinterpret_cast<const wchar_t*>(text.data()));
    std::erase(narrow, '\n');
    clipboard.SetText(narrow);
}

/// What is given instead of an answer; S_OK when there is to be one.
HRESULT Misbehave(EXCEPINFO* exception) {
    using Kind = Misbehaviour::Kind;
    Misbehaviour& plan = State().plan;
    if (plan.kind == Kind::None || --plan.at > 0) return S_OK;
    if (plan.times-- <= 0) return S_OK;
    switch (plan.kind) {
        case Kind::Reject:
            return RPC_E_CALL_REJECTED;
        case Kind::Refuse:
            return Tell(exception, 4605, "This command is not available – “today”.");
        case Kind::RefuseLate:
            Tell(exception, 4605, {});
            exception->pfnDeferredFillIn = FillInLate;
            return DISP_E_EXCEPTION;
        case Kind::Pause:
            Sleep(2000);
            return S_OK;
        case Kind::Hang:
            Sleep(INFINITE);
            return S_OK;
        case Kind::Die:
            TerminateProcess(GetCurrentProcess(), 1);
            return S_OK;
        case Kind::None:
            break;
    }
    return S_OK;
}

Value Served::Do(const std::string& member, WORD how, const std::vector<Argument>& arguments) {
    if (member == "QuestionsAsked") return State().questions;
    if (member == "CallsServed") return State().calls;
    if (member == "Misbehave") {
        State().plan = {static_cast<Misbehaviour::Kind>(std::get<std::int32_t>(arguments.at(0).value)),
                        std::get<std::int32_t>(arguments.at(1).value),
                        std::get<std::int32_t>(arguments.at(2).value)};
        return {};
    }
    if (member == "StoryRanges") return ObjectPtr(std::make_shared<NoStories>());
    if (member.starts_with("Paste") || member == "Execute") TakeOverClipboard();
    if (how & DISPATCH_PROPERTYPUT) return object->Put(member, arguments.at(0).value), Value();
    if (how & DISPATCH_PROPERTYGET) return object->Get(member, arguments);
    const Value given = object->Call(member, arguments);
    if (member == "Quit") State().end();
    return given;
}

HRESULT WINAPI Served::Invoke(DISPID id, REFIID, LCID, WORD how, DISPPARAMS* parameters, VARIANT* result,
                              EXCEPINFO* exception, UINT*) {
    ++State().calls;
    if (const HRESULT instead = Misbehave(exception); FAILED(instead)) return instead;
    try {
        std::vector<Argument> arguments;
        const bool isPut = (how & DISPATCH_PROPERTYPUT) != 0;
        const UINT named = isPut ? 0 : parameters->cNamedArgs;
        for (UINT i = parameters->cArgs; i-- > named;) arguments.push_back({ValueOf(parameters->rgvarg[i])});
        for (UINT i = 0; i < named; ++i) {
            arguments.push_back({ValueOf(parameters->rgvarg[i]), NameOf(parameters->rgdispidNamedArgs[i])});
        }
        const Value given = Do(NameOf(id), how, arguments);
        if (result) Give(result, given);
        return S_OK;
    } catch (const word::AutomationError& refusal) {
        if (refusal.number() == word::error::kNoSuchMember) return DISP_E_MEMBERNOTFOUND;
        return Tell(exception, refusal.number(), refusal.what());
    } catch (const std::exception& failure) {
        return Tell(exception, 51, failure.what());
    }
}

Value ValueOf(const VARIANT& variant) {
    switch (variant.vt) {
        case VT_BOOL:
            return variant.boolVal != VARIANT_FALSE;
        case VT_I4:
            return std::int32_t{variant.lVal};
        case VT_R8:
            return variant.dblVal;
        case VT_BSTR:
            return word::FromWide({variant.bstrVal, SysStringLen(variant.bstrVal)});
        case VT_DISPATCH:
            if (!AllServed().contains(variant.pdispVal))
                throw word::AutomationError(word::error::kTypeMismatch, "not an object of this server");
            return static_cast<Served*>(variant.pdispVal)->object;
        default:
            return {};
    }
}

void Give(VARIANT* variant, const Value& value) {
    VariantInit(variant);
    if (const auto* flag = std::get_if<bool>(&value)) {
        variant->vt = VT_BOOL;
        variant->boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (const auto* whole = std::get_if<std::int32_t>(&value)) {
        variant->vt = VT_I4;
        variant->lVal = *whole;
    } else if (const auto* real = std::get_if<double>(&value)) {
        // Word's own measures are of this size.
        variant->vt = VT_R4;
        variant->fltVal = static_cast<float>(*real);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        variant->vt = VT_BSTR;
        variant->bstrVal = Text(*text);
    } else if (const auto* object = std::get_if<ObjectPtr>(&value)) {
        variant->vt = VT_DISPATCH;
        variant->pdispVal = *object ? Serve(*object) : nullptr;
    }
}

}  // namespace

ServerState& State() {
    static ServerState state;
    return state;
}

IDispatch* Serve(ObjectPtr object) {
    return new Served(std::move(object));
}

}  // namespace quillmark::test
