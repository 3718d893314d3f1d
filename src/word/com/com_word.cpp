#include "word/com/com_word.h"

#ifdef _WIN32

#include <windows.h>
// The automation header needs the one above.
#include <oleauto.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "word/com/com_refusal.h"
#include "word/com/com_text.h"
#include "word/com/com_watch.h"

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

/// What all objects of one started server share.
struct Server {
    Apartment apartment;  // the first, since everything else lives in it
    ComPatience patience;
    std::unique_ptr<ServerWatch> watch;
};
using ServerPtr = std::shared_ptr<Server>;

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

// ---- Objects ----

/// What was learnt of the objects that were reached in one way: the ids of their members, each asked for only
/// once, and the kinds of the objects that these give. A member of one kind gives objects of one kind.
struct Kind {
    std::map<std::string, std::vector<DISPID>> ids = {};  ///< by the member and the names of its arguments
    std::map<std::string, std::shared_ptr<Kind>, std::less<>> given = {};

    std::shared_ptr<Kind> GivenBy(std::string_view member) {
        const auto known = given.find(member);
        if (known != given.end()) return known->second;
        return given.emplace(member, std::make_shared<Kind>()).first->second;
    }
};

class ComObject : public Object {
 public:
    ComObject(ServerPtr server, std::shared_ptr<Kind> kind, DispatchPtr dispatch)
        : server_(std::move(server)), kind_(std::move(kind)), dispatch_(std::move(dispatch)) {}

    /// An element or a member with arguments is a method in some of the model's collections, a property in
    /// others.
    Value Get(std::string_view member, Arguments arguments) override {
        return Invoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, arguments);
    }
    void Put(std::string_view member, const Value& value) override {
        const Argument argument{value};
        Invoke(member, DISPATCH_PROPERTYPUT, Arguments(&argument, 1));
        if (member == "Visible" && value == Value(true) && server_->watch) server_->watch->LetGo();
    }
    Value Call(std::string_view member, Arguments arguments) override {
        return Invoke(member, DISPATCH_METHOD, arguments);
    }

 private:
    Value Invoke(std::string_view member, WORD how, Arguments arguments) const;
    const std::vector<DISPID>& Identify(std::string_view member, Arguments arguments) const;
    std::vector<DISPID> AskForIds(std::string_view member, Arguments arguments) const;
    static void Fill(VARIANT& variant, const Value& value);
    Value Take(VARIANT& variant, std::string_view member) const;
    /// A call to the server: repeated while it is busy, and watched.
    template <class Operation>
    HRESULT Attempt(Operation operation) const {
        return WhileBusy(server_->patience.busy, [&] {
            if (!server_->watch) return operation();
            const ServerWatch::Call call(*server_->watch);
            return operation();
        });
    }

    ServerPtr server_;
    std::shared_ptr<Kind> kind_;
    DispatchPtr dispatch_;
};

/// The ids of the member and of its named arguments.
const std::vector<DISPID>& ComObject::Identify(std::string_view member, Arguments arguments) const {
    std::string key(member);
    for (const auto& argument : arguments) {
        if (!argument.name.empty()) key.append(1, ' ').append(argument.name);
    }
    const auto known = kind_->ids.find(key);
    if (known != kind_->ids.end()) return known->second;
    return kind_->ids.emplace(key, AskForIds(member, arguments)).first->second;
}

std::vector<DISPID> ComObject::AskForIds(std::string_view member, Arguments arguments) const {
    std::vector<std::wstring> names = {ToWide(member)};
    for (const auto& argument : arguments) {
        if (!argument.name.empty()) names.push_back(ToWide(argument.name));
    }
    std::vector<OLECHAR*> pointers;
    for (auto& name : names) pointers.push_back(name.data());
    std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
    const HRESULT result = Attempt([&] {
        return dispatch_->GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(pointers.size()),
                                        LOCALE_USER_DEFAULT, ids.data());
    });
    const bool isArgument = result == DISP_E_UNKNOWNNAME && ids.front() != DISPID_UNKNOWN;
    if (FAILED(result)) Refuse(isArgument ? DISP_E_PARAMNOTFOUND : result, member);
    return ids;
}

/// COM takes the arguments from the last to the first, the named ones in front of all others.
Value ComObject::Invoke(std::string_view member, WORD how, Arguments arguments) const {
    const std::vector<DISPID>& all = Identify(member, arguments);
    const DISPID id = all.front();
    std::vector<DISPID> ids(all.begin() + 1, all.end());
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
    const HRESULT result = Attempt([&] {
        return dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, how, &parameters, given.get(), &exception,
                                 nullptr);
    });
    if (result == DISP_E_EXCEPTION) Refuse(exception, *dispatch_, member);
    if (FAILED(result)) Refuse(result, member);
    return Take(*given.get(), member);
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

Value ComObject::Take(VARIANT& variant, std::string_view member) const {
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
            return ObjectPtr(std::make_shared<ComObject>(server_, kind_->GivenBy(member), std::move(object)));
        }
        default:
            if (FAILED(VariantChangeType(&variant, &variant, 0, VT_I4))) break;
            return std::int32_t{variant.lVal};
    }
    throw AutomationError(error::kTypeMismatch, "Word gave a value of an unknown kind");
}

}  // namespace

ObjectPtr CreateComObject(std::string_view className, ComPatience patience) {
    auto server = std::make_shared<Server>();
    server->patience = patience;
    CLSID id = {};
    IDispatch* object = nullptr;
    HRESULT result = CLSIDFromProgID(ToWide(className).c_str(), &id);
    if (SUCCEEDED(result)) {
        const auto former = ProcessesOf(id);
        result = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch,
                                  reinterpret_cast<void**>(&object));
        server->watch = std::make_unique<ServerWatch>(former, ProcessesOf(id), patience.call);
    }
    if (FAILED(result)) {
        throw AutomationError(error::kCannotCreate,
                              std::string(className) + " cannot be started on this machine");
    }
    return std::make_shared<ComObject>(std::move(server), std::make_shared<Kind>(), DispatchPtr(object));
}

}  // namespace quillmark::word

#endif
