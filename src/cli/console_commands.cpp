#include "cli/console_commands.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <map>

#include "cli/console_state.h"
#include "core/field_registry.h"
#include "platform/paths.h"

namespace quillmark::cli {

namespace {

Json Name(ConsoleSession& session, const Request& request) {
    session.screen().TypeName(request.Text("text"));
    if (session.screen().Window()) return WindowOrNull(session);
    return session.State().txtJobName.text;
}

Json Enter(ConsoleSession& session, const Request&) {
    session.screen().EnterName();
    return nullptr;
}

Json Pick(ConsoleSession& session, const Request& request) {
    session.screen().PickDocument(request.Text("text"));
    return JobListOf(session.State());
}

Json Drop(ConsoleSession& session, const Request& request) {
    session.screen().DropDocument(request.Text("text"));
    return JobListOf(session.State());
}

Json Legal(ConsoleSession& session, const Request& request) {
    session.screen().SelectLegal(request.Texts("lines"));
    return nullptr;
}

Json ClickOption(ConsoleSession& session, const Request& request) {
    session.screen().ClickOption(request.Number("n"));
    return OptionsOf(session.State());
}

Json ClearOption(ConsoleSession& session, const Request& request) {
    session.screen().DoubleClickOption(request.Number("n"));
    return OptionsOf(session.State());
}

EntryWay WayOf(const std::string& how) {
    static const std::map<std::string_view, EntryWay> kWays = {
        {"type", EntryWay::Type}, {"paste", EntryWay::Paste}, {"pick", EntryWay::Pick}};
    if (how.empty()) return EntryWay::Type;
    const auto way = kWays.find(how);
    if (way == kWays.end()) throw BadRequest("how is none of type, paste and pick");
    return way->second;
}

Json EnterField(ConsoleSession& session, const Request& request) {
    const EntryWay way = WayOf(request.Text("how"));
    const std::string text = request.Text("text");
    if (request.Has("n")) return session.screen().EnterField(request.Number("n"), text, way);
    if (!request.Has("marker")) throw BadRequest("the argument n or marker is missing");
    const std::string marker = request.Text("marker");
    const int n = FieldOfMarker(marker);
    return n > 0 ? session.screen().EnterField(n, text, way)
                 : session.screen().EnterUserField(marker, text, way);
}

Json TypeInEditor(ConsoleSession& session, const Request& request) {
    return session.screen().TypeInEditor(request.Number("n"), request.Text("text"));
}

Json Unlock(ConsoleSession& session, const Request& request) {
    session.screen().UnlockRow(request.Number("n"));
    return nullptr;
}

Json ClickNote(ConsoleSession& session, const Request& request) {
    return session.screen().ClickNote(request.Number("n"), request.Number("column"));
}

Json Jump(ConsoleSession& session, const Request& request) {
    session.screen().ClickJumpLabel(request.Number("group"));
    return nullptr;
}

Json ClickButton(ConsoleSession& session, const Request& request) {
    session.Click(request.Text("button"));
    return WindowOrNull(session);
}

Json ValueOf(ConsoleSession& session, const Request& request) {
    const int n = request.Number("n");
    const int field = n % 1000;
    if (n < 1 || n / 1000 > 4 || field < 1 || field > kFields)
        throw BadRequest(
            fmt::format("{} is no value: they run from 1 to {}, and from k*1000+1 for k to 4", n, kFields));
    return session.State().job.D(n);
}

Json EditSetting(ConsoleSession& session, const Request& request) {
    const std::string text = request.Text("row");
    const std::vector<SettingsRow>& rows = session.screen().List3();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const SettingsRow& r) { return r.text.starts_with(text); });
    if (row == rows.end()) throw NotAllowed("the settings list has no row \"" + text + "\"");
    const auto index = static_cast<std::size_t>(row - rows.begin());
    session.screen().EditSetting(index);
    return session.screen().List3().at(index).text;
}

Json SelectClient(ConsoleSession& session, const Request& request) {
    session.screen().SelectClient(request.Text("name"));
    return session.screen().Clients();
}

Json DeleteClient(ConsoleSession& session, const Request& request) {
    session.screen().DeleteClient(request.Text("name"));
    return session.screen().Clients();
}

/// A path of this computer, complete, as the run may change folders under it.
std::filesystem::path PathArgument(const Request& request, std::string_view name) {
    const std::string text = request.Text(name);
    if (std::any_of(text.begin(), text.end(), [](unsigned char c) { return c < ' '; }))
        throw BadRequest(std::string(name) + " holds a control character, which no path may hold");
    return text.empty() ? std::filesystem::path() : std::filesystem::absolute(PathOf(text));
}

Json Create(ConsoleSession& session, const Request& request) {
    const std::filesystem::path to = PathArgument(request, "to");
    if (!to.empty() && to.extension() != ".docx" && !std::filesystem::is_directory(to))
        throw BadRequest("to is neither a .docx file nor an existing folder: " + TextOf(to));
    MainScreen& screen = session.screen();
    screen.SetCreateTarget({.to = to, .trace = PathArgument(request, "trace")});
    try {
        screen.Click("cmdCreate");
    } catch (...) {
        screen.SetCreateTarget({});
        throw;
    }
    screen.SetCreateTarget({});
    if (!screen.LastDocument()) return nullptr;
    return {{"document", TextOf(*screen.LastDocument())}};
}

Json Undo(ConsoleSession& session, const Request&) {
    return session.screen().Undo();
}

Json Redo(ConsoleSession& session, const Request&) {
    return session.screen().Redo();
}

Json Recent(ConsoleSession& session, const Request&) {
    Json names = Json::array();
    for (const RecentJob& job : session.screen().RecentJobs()) names.push_back(job.name);
    return names;
}

Json State(ConsoleSession& session, const Request&) {
    return StateOf(session.screen());
}

constexpr bool kOptional = false;
constexpr bool kWhileBrowsing = true;
constexpr bool kWhileWindowOpen = true;
using enum ArgumentKind;

const std::vector<Command>& Table() {
    // clang-format off
    static const std::vector<Command> kCommands = {
        {"name",           {{"text", Text}},                                         Name},
        {"enter",          {},                                                       Enter},
        {"pick",           {{"text", Text}},                                         Pick},
        {"drop",           {{"text", Text}},                                         Drop},
        {"legal",          {{"lines", Texts}},                                       Legal},
        {"option",         {{"n", Number}},                                          ClickOption},
        {"clear",          {{"n", Number}},                                          ClearOption},
        {"field",          {{"n", Number, kOptional}, {"marker", Text, kOptional}, {"text", Text},
                            {"how", Text, kOptional}},                               EnterField},
        {"key",            {{"n", Number}, {"text", Text}},                          TypeInEditor},
        {"unlock",         {{"n", Number}},                                          Unlock},
        {"note",           {{"n", Number}, {"column", Number}},                      ClickNote},
        {"jump",           {{"group", Number}},                                      Jump},
        {"click",          {{"button", Text}},                                       ClickButton},
        {"browse",         {{"text", Text}},                                         Browse,       kWhileBrowsing},
        {"load",           {{"name", Text}},                                         Load,         kWhileBrowsing},
        {"spawn",          {{"name", Text}},                                         SpawnJob,     kWhileBrowsing},
        {"delete",         {{"name", Text}},                                         DeleteEntry,  kWhileBrowsing},
        {"value",          {{"n", Number}},                                          ValueOf,      kWhileBrowsing},
        {"statement",      {{"mode", Text, kOptional}},                              FiguresOfStatement},
        {"setting",        {{"row", Text}},                                          EditSetting},
        {"client",         {{"name", Text}},                                         SelectClient},
        {"client-delete",  {{"name", Text}},                                         DeleteClient},
        {"package-save",   {{"name", Text}, {"documents", Texts}, {"renames", Text, kOptional}},
                                                                                     SavePackageAs},
        {"package-delete", {{"name", Text}},                                         DeletePackageOf},
        {"address-add",    {{"book", Text}, {"items", Texts}},                       AddAddress,   kWhileBrowsing},
        {"address-remove", {{"book", Text}, {"record", Text}},                       RemoveAddress, kWhileBrowsing},
        {"calculator",     {{"gross", Amount, kOptional}, {"from", Text, kOptional}, {"to", Text, kOptional},
                            {"date", Text, kOptional}, {"hand", Text, kOptional}},   UseCalculator},
        {"create",         {{"to", Path, kOptional}, {"trace", Path, kOptional}},    Create},
        {"blanks",         {},                                                       Blanks},
        {"undo",           {},                                                       Undo},
        {"redo",           {},                                                       Redo},
        {"recent",         {},                                                       Recent,       kWhileBrowsing},
        {"preview",        {{"to", Path}, {"document", Text, kOptional}},            MakePreviewAt},
        {"window",         {},                                                       ShowWindow,   kWhileBrowsing, kWhileWindowOpen},
        {"window-set",     {{"control", Path}, {"value", Any}},                      SetInWindow,  kWhileBrowsing, kWhileWindowOpen},
        {"window-click",   {{"control", Path}, {"double", Flag, kOptional}, {"to", Path, kOptional}},
                                                                                     ClickInWindow, kWhileBrowsing, kWhileWindowOpen},
        {"window-close",   {},                                                       CloseWindow,  kWhileBrowsing, kWhileWindowOpen},
        {"state",          {},                                                       State,        kWhileBrowsing, kWhileWindowOpen},
    };
    // clang-format on
    return kCommands;
}

}  // namespace

std::span<const Command> Commands() {
    return Table();
}

Json RunCommand(ConsoleSession& session, const Request& request) {
    const auto commands = Commands();
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [&](const Command& c) { return c.name == request.Do(); });
    if (command == commands.end()) throw BadRequest("there is no command \"" + request.Do() + "\"");
    request.Check(command->arguments);
    if (session.browser() && !command->whileBrowsing)
        throw NotAllowed("the browser is open: load, spawn or delete an entry, or browse to close it");
    if (session.screen().Window() && !command->whileWindowOpen)
        throw NotAllowed("the window \"" + session.screen().Window()->Title() + "\" is open");
    return command->run(session, request);
}

}  // namespace quillmark::cli
