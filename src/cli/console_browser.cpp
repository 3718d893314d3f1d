#include "cli/console_commands.h"

namespace quillmark::cli {

namespace {

/// Lets an action use the browser, and closes it afterwards if it was opened for this action alone.
class BrowserUse {
 public:
    explicit BrowserUse(ConsoleSession& session)
        : session_(session), stoodOpen_(session.browser() != nullptr), browser_(session.OpenBrowser()) {}
    ~BrowserUse() {
        session_.ForgetClosedBrowser();
        if (!stoodOpen_) session_.CloseBrowser();
    }
    BrowserUse(const BrowserUse&) = delete;
    BrowserUse& operator=(const BrowserUse&) = delete;

    FileBrowser* operator->() { return &browser_; }

 private:
    ConsoleSession& session_;
    bool stoodOpen_;
    FileBrowser& browser_;
};

}  // namespace

Json Browse(ConsoleSession& session, const Request& request) {
    FileBrowser& browser = session.OpenBrowser();
    browser.SearchFiles(request.Text("text"));
    Json entries = browser.State().List1;
    session.EscapeBrowser();
    return entries;
}

Json Load(ConsoleSession& session, const Request& request) {
    const std::string name = request.Text("name");
    BrowserUse browser(session);
    session.SelectEntry(name);
    session.screen().LoadJob(name, browser->ListsTemplates());
    return nullptr;
}

Json SpawnJob(ConsoleSession& session, const Request& request) {
    const std::string name = request.Text("name");
    if (session.State().mode != ScreenMode::Presets || !session.State().templateBeingSet)
        throw NotAllowed("no template is being set; cmdTemplate leads there");
    BrowserUse browser(session);
    session.SelectEntry(name);
    if (!browser->State().cmdSpawn.enabled) throw NotAllowed("no job can be spawned from this entry");
    session.screen().Spawn(name);
    return nullptr;
}

Json DeleteEntry(ConsoleSession& session, const Request& request) {
    const std::string name = request.Text("name");
    BrowserUse browser(session);
    session.SelectEntry(name);
    if (name == FileBrowser::kNewTemplate) throw NotAllowed("this entry cannot be deleted");
    if (!browser->DeleteSelected()) throw std::runtime_error(session.dialogs().LastText());
    return nullptr;
}

}  // namespace quillmark::cli
