#include "word/com/com_refusal.h"

#ifdef _WIN32

#include <fmt/format.h>

#include "word/com/com_text.h"
#include "word/seam/automation.h"

namespace quillmark::word {
namespace {

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
    {DISP_E_NONAMEDARGS,                              error::kNoSuchArgument},
    {DISP_E_PARAMNOTFOUND,                            error::kNoSuchArgument},
    {DISP_E_TYPEMISMATCH,                             error::kTypeMismatch},
    {DISP_E_PARAMNOTOPTIONAL,                         error::kArgumentNotOptional},
    {DISP_E_BADPARAMCOUNT,                            error::kWrongArgumentCount},
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

std::string DescriptionOf(HRESULT result, std::string_view member) {
    if (result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER)
        return "Word is busy. If it shows a message or a dialog, close it and try again.";
    if (NumberOf(result) == error::kServerGone) return "Word was closed, or has stopped working.";
    return fmt::format("The request for {} was refused", member);
}

/// A stand-in for an object elsewhere can be asked how its calls are secured; an object here cannot.
bool IsElsewhere(IDispatch& object) {
    IUnknown* standIn = nullptr;
    if (FAILED(object.QueryInterface(IID_IClientSecurity, reinterpret_cast<void**>(&standIn)))) return false;
    standIn->Release();
    return true;
}

std::string Taken(BSTR text) {
    const std::string taken = text ? FromWide({text, SysStringLen(text)}) : std::string();
    SysFreeString(text);
    return taken;
}

}  // namespace

void Refuse(HRESULT result, std::string_view member) {
    throw AutomationError(NumberOf(result), DescriptionOf(result, member));
}

void Refuse(EXCEPINFO& exception, IDispatch& object, std::string_view member) {
    if (exception.pfnDeferredFillIn && !IsElsewhere(object)) exception.pfnDeferredFillIn(&exception);
    Taken(exception.bstrSource);
    Taken(exception.bstrHelpFile);
    const std::string description = Taken(exception.bstrDescription);
    const HRESULT result = exception.wCode ? HRESULT{exception.wCode} : exception.scode;
    throw AutomationError(NumberOf(result),
                          description.empty() ? DescriptionOf(result, member) : description);
}

}  // namespace quillmark::word

#endif
