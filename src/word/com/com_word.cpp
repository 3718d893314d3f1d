#include "word/com/com_word.h"

#ifdef _WIN32

#include <windows.h>
// The automation header needs the one above.
#include <oleauto.h>

#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "word/com/com_text.h"

namespace quillmark::word {
namespace {

// ---- What COM hands out, given back at the end ----

/// The thread's use of COM: it ends with the last object that came through it.
class Apartment {
 public:
    Apartment() : entered_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~Apartment() {
        if (entered_) CoUninitialize();
    }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;

 private:
    bool entered_;
};
using ApartmentPtr = std::shared_ptr<Apartment>;

std::string FromBstr(BSTR text) {
    return text ? FromWide({text, SysStringLen(text)}) : std::string();
}

struct ReleaseDispatch {
    void operator()(IDispatch* object) const { object->Release(); }
};
using DispatchPtr = std::unique_ptr<IDispatch, ReleaseDispatch>;

class Variant {
 public:
    Variant() { VariantInit(&value_); }
    ~Variant() { VariantClear(&value_); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    VARIANT* operator->() { return &value_; }
    VARIANT* get() { return &value_; }

 private:
    VARIANT value_;
};

// ---- Refusals ----

struct Refusal {
    HRESULT result;
    int number;
};

// clang-format off
constexpr Refusal kRefusals[] = {
    {RPC_E_DISCONNECTED,                              error::kServerGone},
    {RPC_E_SERVER_DIED,                               error::kServerGone},
    {RPC_E_SERVER_DIED_DNE,                           error::kServerGone},
    {CO_E_OBJNOTCONNECTED,                            error::kServerGone},
    {HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE),    error::kServerGone},
    {HRESULT_FROM_WIN32(RPC_S_CALL_FAILED),           error::kServerGone},
    {HRESULT_FROM_WIN32(RPC_S_CALL_FAILED_DNE),       error::kServerGone},
    {DISP_E_UNKNOWNNAME,                              error::kNoSuchMember},
    {DISP_E_MEMBERNOTFOUND,                           error::kNoSuchMember},
    {DISP_E_TYPEMISMATCH,                             error::kTypeMismatch},
    {DISP_E_PARAMNOTOPTIONAL,                         error::kArgumentNotOptional},
    {DISP_E_BADINDEX,                                 error::kNoSuchElement},
    {E_ACCESSDENIED,                                  error::kPermissionDenied},
    {HRESULT_FROM_WIN32(ERROR_SHARING_VIOLATION),     error::kPermissionDenied},
};
// clang-format on

/// Word's own number for saving to a file that is open elsewhere.
constexpr int kOpenElsewhere = 5356;

int NumberOf(HRESULT result) {
    for (const auto& refusal : kRefusals) {
        if (refusal.result == result) return refusal.number;
    }
    const int number = HRESULT_CODE(result);
    return number == kOpenElsewhere ? error::kPermissionDenied : number;
}

[[noreturn]] void Refuse(HRESULT result, std::string_view member) {
    throw AutomationError(NumberOf(result), "The request for " + std::string(member) + " was refused");
}

/// Word's own words, where it has some.
[[noreturn]] void Refuse(EXCEPINFO& exception, std::string_view member) {
    if (exception.pfnDeferredFillIn) exception.pfnDeferredFillIn(&exception);
    const std::string description = FromBstr(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    const int number = NumberOf(exception.wCode ? HRESULT{exception.wCode} : exception.scode);
    throw AutomationError(number, description.empty()
                                      ? "The request for " + std::string(member) + " was refused"
                                      : description);
}

/// Repeats an operation while Word says that it is busy.
template <class Operation>
HRESULT WhileBusy(Operation operation) {
    using namespace std::chrono;
    const auto limit = steady_clock::now() + seconds(10);
    while (true) {
        const HRESULT result = operation();
        const bool busy = result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER;
        if (!busy || steady_clock::now() > limit) return result;
        std::this_thread::sleep_for(milliseconds(50));
    }
}

// ---- Objects ----

class ComObject : public Object {
 public:
    ComObject(ApartmentPtr apartment, DispatchPtr dispatch)
        : apartment_(std::move(apartment)), dispatch_(std::move(dispatch)) {}

    /// An element or a member with arguments is a method in some of the model's collections, a property in
    /// others.
    Value Get(std::string_view member, Arguments arguments) override {
        return Invoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, arguments);
    }
    void Put(std::string_view member, const Value& value) override {
        const Argument argument{value};
        Invoke(member, DISPATCH_PROPERTYPUT, Arguments(&argument, 1));
    }
    Value Call(std::string_view member, Arguments arguments) override {
        return Invoke(member, DISPATCH_METHOD, arguments);
    }

 private:
    Value Invoke(std::string_view member, WORD how, Arguments arguments) const;
    std::vector<DISPID> Identify(std::string_view member, Arguments arguments) const;
    static void Fill(VARIANT& variant, const Value& value);
    Value Take(VARIANT& variant) const;

    ApartmentPtr apartment_;
    DispatchPtr dispatch_;
};

/// The ids of the member and of its named arguments.
std::vector<DISPID> ComObject::Identify(std::string_view member, Arguments arguments) const {
    std::vector<std::wstring> names = {ToWide(member)};
    for (const auto& argument : arguments) {
        if (!argument.name.empty()) names.push_back(ToWide(argument.name));
    }
    std::vector<OLECHAR*> pointers;
    for (auto& name : names) pointers.push_back(name.data());
    std::vector<DISPID> ids(names.size());
    const HRESULT result = WhileBusy([&] {
        return dispatch_->GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(pointers.size()),
                                        LOCALE_USER_DEFAULT, ids.data());
    });
    if (FAILED(result)) Refuse(result, member);
    return ids;
}

/// COM takes the arguments from the last to the first, the named ones in front of all others.
Value ComObject::Invoke(std::string_view member, WORD how, Arguments arguments) const {
    std::vector<DISPID> ids = Identify(member, arguments);
    const DISPID id = ids.front();
    ids.erase(ids.begin());
    std::vector<Variant> values(arguments.size());
    std::size_t named = 0;
    std::size_t unnamed = values.size();
    for (const auto& argument : arguments) {
        Fill(*values[argument.name.empty() ? --unnamed : named++].get(), argument.value);
    }
    if (how == DISPATCH_PROPERTYPUT) ids.push_back(DISPID_PROPERTYPUT);

    static_assert(sizeof(Variant) == sizeof(VARIANT));
    DISPPARAMS parameters = {values.empty() ? nullptr : values.front().get(), ids.data(),
                             static_cast<UINT>(values.size()), static_cast<UINT>(ids.size())};
    Variant given;
    EXCEPINFO exception = {};
    const HRESULT result = WhileBusy([&] {
        return dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, how, &parameters, given.get(), &exception,
                                 nullptr);
    });
    if (result == DISP_E_EXCEPTION) Refuse(exception, member);
    if (FAILED(result)) Refuse(result, member);
    return Take(*given.get());
}

void ComObject::Fill(VARIANT& variant, const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) {
        variant.vt = VT_BOOL;
        variant.boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (const auto* whole = std::get_if<std::int32_t>(&value)) {
        variant.vt = VT_I4;
        variant.lVal = *whole;
    } else if (const auto* real = std::get_if<double>(&value)) {
        variant.vt = VT_R8;
        variant.dblVal = *real;
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        const std::wstring wide = ToWide(*text);
        variant.vt = VT_BSTR;
        variant.bstrVal = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    } else if (const auto* object = std::get_if<ObjectPtr>(&value)) {
        const auto own = std::dynamic_pointer_cast<ComObject>(*object);
        if (!own) throw AutomationError(error::kTypeMismatch, "An object of another kind was given to Word");
        variant.vt = VT_DISPATCH;
        variant.pdispVal = own->dispatch_.get();
        variant.pdispVal->AddRef();
    }
}

Value ComObject::Take(VARIANT& variant) const {
    switch (variant.vt) {
        case VT_EMPTY:
        case VT_NULL:
        case VT_ERROR:
            return {};
        case VT_BOOL:
            return variant.boolVal != VARIANT_FALSE;
        case VT_BSTR:
            return FromBstr(variant.bstrVal);
        case VT_R4:
        case VT_R8:
        case VT_CY:
        case VT_DATE:
            if (FAILED(VariantChangeType(&variant, &variant, 0, VT_R8))) break;
            return variant.dblVal;
        case VT_DISPATCH: {
            DispatchPtr object(std::exchange(variant.pdispVal, nullptr));
            if (!object) return ObjectPtr{};
            return ObjectPtr(std::make_shared<ComObject>(apartment_, std::move(object)));
        }
        default:
            if (FAILED(VariantChangeType(&variant, &variant, 0, VT_I4))) break;
            return std::int32_t{variant.lVal};
    }
    throw AutomationError(error::kTypeMismatch, "Word gave a value of an unknown kind");
}

}  // namespace

ObjectPtr CreateComObject(std::string_view className) {
    auto apartment = std::make_shared<Apartment>();
    CLSID id = {};
    IDispatch* object = nullptr;
    HRESULT result = CLSIDFromProgID(ToWide(className).c_str(), &id);
    if (SUCCEEDED(result)) {
        result = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch,
                                  reinterpret_cast<void**>(&object));
    }
    if (FAILED(result)) {
        throw AutomationError(error::kCannotCreate,
                              std::string(className) + " cannot be started on this machine");
    }
    return std::make_shared<ComObject>(std::move(apartment), DispatchPtr(object));
}

}  // namespace quillmark::word

#endif
