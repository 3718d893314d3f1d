#include <windows.h>
// The automation headers need the one above.
#include <ole2.h>

#include <utility>

#include "word/docx/objects/engine.h"
#include "word_server/served_object.h"
#include "word_server/word_server.h"

using namespace quillmark;

namespace {

DWORD mainThread = 0;

/// The answer in hand still goes out.
void EndServer() {
    PostThreadMessageW(mainThread, WM_QUIT, 0, 0);
}

/// Makes one word processor, as Word does: a second one gets a process of its own.
struct Factory final : IClassFactory {
    HRESULT WINAPI QueryInterface(REFIID id, void** out) override {
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IClassFactory);
        *out = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG WINAPI AddRef() override { return 2; }
    ULONG WINAPI Release() override { return 1; }
    HRESULT WINAPI CreateInstance(IUnknown* outer, REFIID id, void** out) override {
        if (outer) return CLASS_E_NOAGGREGATION;
        word::docx::objects::EngineOptions options;
        options.clipboard = test::State().clipboard;
        IDispatch* const served = test::Serve(word::docx::objects::StartEngine(std::move(options)));
        const HRESULT result = served->QueryInterface(id, out);
        served->Release();
        return result;
    }
    HRESULT WINAPI LockServer(BOOL) override { return S_OK; }
};

}  // namespace

/// Ends when its client lets go or says Quit; after two minutes without a call, when the client has died.
int wmain() {
    mainThread = GetCurrentThreadId();
    test::State().end = EndServer;
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    CLSID id = {};
    CLSIDFromString(test::kWordServerClass, &id);
    Factory factory;
    DWORD registration = 0;
    if (FAILED(CoRegisterClassObject(id, &factory, CLSCTX_LOCAL_SERVER, REGCLS_SINGLEUSE, &registration)))
        return 1;
    SetTimer(nullptr, 0, 120'000, [](HWND, UINT, UINT_PTR, DWORD) {
        static int former = -1;
        if (test::State().calls == std::exchange(former, test::State().calls)) EndServer();
    });
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    CoRevokeClassObject(registration);
    CoUninitialize();
    // What the client may still hold is gone with the process, as with any program that ends.
    ExitProcess(0);
}
