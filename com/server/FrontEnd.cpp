#include "com/server/FrontEnd.h"

#include <mutex>

#include <wx/init.h>
#include <wx/module.h>
#include <wx/msw/private.h>
#include <wx/wx.h>

#include "com/edge/DispatchObject.h"
#include "com/server/Identity.h"
#include "desktop/HtmlHelp.h"

namespace tsln::com {
namespace {

constexpr int manifestResource = 2;  // ISOLATIONAWARE_MANIFEST_RESOURCE_ID

/// The wxWidgets application object. The process and its message loop belong to the host.
class GuestApp : public wxApp {
  public:
    bool OnInit() override {
        SetExitOnFrameDelete(false);
        SetAppDisplayName("Tessaline");
        return true;
    }
    void OnUnhandledException() override {}
    bool OnExceptionInMainLoop() override {
        return true;
    }  // an exception in one window must not end the host
};

/// Keeps the toolkit's generic renderer for the life of the process. Its native renderer, which delegates to the generic
/// one, lives that long, but the end of the toolkit deletes the generic one: after a second start, the lists would be
/// drawn with a deleted object.
class RendererKeeper : public wxModule {
  public:
    /// Must be called after each start of the toolkit.
    static void keep() {
        for (wxModule* module : ms_modules) {
            if (module->GetClassInfo()->GetClassName() != wxString("wxGenericRendererModule")) continue;
            UnregisterModule(module);  // so that its OnExit() is not called
            return;
        }
    }
};

HANDLE createLook() {
    ACTCTXW context{};
    context.cbSize = sizeof context;
    context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    wchar_t path[MAX_PATH * 4];
    if (!GetModuleFileNameW(thisModule(), path, static_cast<DWORD>(std::size(path))))
        return INVALID_HANDLE_VALUE;
    context.lpSource = path;
    context.hModule = thisModule();
    context.lpResourceName = MAKEINTRESOURCEW(manifestResource);
    return CreateActCtxW(&context);
}

}  // namespace

std::shared_ptr<FrontEnd> FrontEnd::shared() {
    static std::mutex mutex;
    static std::weak_ptr<FrontEnd> current;
    const std::lock_guard lock(mutex);
    std::shared_ptr<FrontEnd> frontEnd = current.lock();
    if (!frontEnd) {
        frontEnd.reset(new FrontEnd);
        current = frontEnd;
    }
    return frontEnd;
}

FrontEnd::FrontEnd()
    : desktop_([](std::string_view id) { return createComponent(id); }, {}), look_(INVALID_HANDLE_VALUE) {}

FrontEnd::~FrontEnd() {
    if (thread_) {
        desktop::closeHtmlHelp();
        if (wxTheApp) wxTheApp->OnExit();
        wxEntryCleanup();
    }
    if (look_ != INVALID_HANDLE_VALUE) ReleaseActCtx(look_);
}

void FrontEnd::start() {
    const unsigned long here = GetCurrentThreadId();
    if (thread_ == here) return;
    if (thread_) {
        throw HostError(RPC_E_WRONG_THREAD, "tslnmaint5",
                        "The maintenance screens of one program open on one thread only.");
    }
    wxDISABLE_DEBUG_SUPPORT();
    wxApp::SetInstance(new GuestApp);
    if (!wxEntryStart(thisModule(), nullptr, nullptr, SW_SHOWNORMAL) || !wxTheApp->CallOnInit()) {
        wxEntryCleanup();
        throw HostError(code::fail, "tslnmaint5", "The maintenance screens cannot be opened.");
    }
    RendererKeeper::keep();
    if (look_ == INVALID_HANDLE_VALUE) look_ = createLook();
    thread_ = here;
}

FrontEnd::Look::Look(const FrontEnd& frontEnd) noexcept {
    if (frontEnd.look_ == INVALID_HANDLE_VALUE) return;
    ULONG_PTR cookie = 0;
    active_ = ActivateActCtx(frontEnd.look_, &cookie);
    cookie_ = cookie;
}

FrontEnd::Look::~Look() {
    if (active_) DeactivateActCtx(0, cookie_);
}

}  // namespace tsln::com
