#include <algorithm>

#include "cli/console_commands.h"
#include "tools/packages/package_editor.h"

namespace quillmark::cli {

namespace {

/// The package editor over the main screen, which waits for it.
PackageEditor OpenEditor(ConsoleSession& session) {
    const Button& button = session.State().cmdPackages;
    if (!button.enabled || !button.visible) throw NotAllowed("cmdPackages is disabled");
    return PackageEditor(session.State().List1, session.screen().FirmAround().folders,
                         session.screen().Person());
}

Json NamesIn(const PackageEditor& editor) {
    const std::vector<std::string>& lines = editor.State().Combo1;
    return std::vector<std::string>(lines.begin() + 1, lines.end());
}

/// Picks the package of that name; false if there is none.
bool Pick(PackageEditor& editor, std::string_view name) {
    const std::vector<std::string>& lines = editor.State().Combo1;
    const auto line = std::find(lines.begin() + 1, lines.end(), name);
    return editor.PickPackage(static_cast<std::size_t>(line - lines.begin()));
}

void RequirePick(PackageEditor& editor, const std::string& name) {
    if (!Pick(editor, name)) throw NotAllowed("there is no package \"" + name + "\"");
}

void ListDocuments(PackageEditor& editor, const std::vector<std::string>& documents) {
    while (!editor.State().List2.empty()) editor.RemoveDocument(editor.State().List2.size() - 1);
    for (const std::string& document : documents)
        if (!editor.AddDocument(document))
            throw NotAllowed("\"" + document + "\" cannot be added to the package");
    // An empty list counts as changed only after a document has come and gone.
    if (editor.State().cmdSave.enabled) return;
    editor.AddDocument(editor.State().List1.front());
    editor.RemoveDocument(0);
}

Json Leave(ConsoleSession& session, PackageEditor& editor) {
    Json names = NamesIn(editor);
    editor.Leave();
    session.screen().LeavePackages();
    return names;
}

}  // namespace

Json SavePackageAs(ConsoleSession& session, const Request& request) {
    const std::string name = request.Text("name");
    PackageEditor editor = OpenEditor(session);
    if (request.Has("renames")) {
        RequirePick(editor, request.Text("renames"));
        editor.SetRename(true);
        editor.TypeName(name);
    } else if (!Pick(editor, name)) {
        editor.TypeName(name);
    }
    ListDocuments(editor, request.Texts("documents"));
    if (!editor.Save()) throw std::runtime_error(session.dialogs().LastText());
    return Leave(session, editor);
}

Json DeletePackageOf(ConsoleSession& session, const Request& request) {
    PackageEditor editor = OpenEditor(session);
    RequirePick(editor, request.Text("name"));
    if (!editor.Delete()) throw std::runtime_error(session.dialogs().LastText());
    return Leave(session, editor);
}

}  // namespace quillmark::cli
