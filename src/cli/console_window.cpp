#include "cli/console_commands.h"
#include "platform/paths.h"

/// The window of a side tool.
namespace quillmark::cli {

namespace {

SideWindow& OpenWindow(ConsoleSession& session) {
    if (SideWindow* window = session.screen().Window()) return *window;
    throw NotAllowed("no side tool's window is open");
}

std::size_t EntryOf(const Json& value) {
    if (value.get<int>() < 0) throw BadRequest("value is no entry: they are counted from 0");
    return value.get<std::size_t>();
}

Json ControlOf(const WindowControl& control) {
    Json json = Json::object();
    const bool isChoice = control.kind == ControlKind::Check || control.kind == ControlKind::Option;
    const bool isList = control.kind == ControlKind::List;
    if (isList) {
        json["items"] = control.items;
        json["index"] = control.index ? Json(*control.index) : Json(-1);
    }
    if (isChoice || control.kind == ControlKind::Button) json["caption"] = control.text;
    if (!isChoice) json["text"] = control.text;
    if (isChoice) json["checked"] = control.checked;
    json["enabled"] = control.enabled;
    json["visible"] = control.visible;
    json["tooltip"] = control.tooltip;
    return json;
}

Json ItemOf(const PageItem& item) {
    return {{"across", item.across}, {"down", item.down}, {"text", item.text},
            {"font", item.font},     {"size", item.size}, {"bold", item.bold}};
}

std::string_view NameOf(SheetSize size) {
    switch (size) {
        case SheetSize::Legal:
            return "legal";
        case SheetSize::Envelope10:
            return "#10";
        case SheetSize::Letter:
            break;
    }
    return "letter";
}

Json PageOf(const PrintedPage& page) {
    Json items = Json::array();
    for (const PageItem& item : page.items) items.push_back(ItemOf(item));
    return {{"printer", page.printer},
            {"bin", page.bin},
            {"paper", NameOf(page.paper)},
            {"landscape", page.landscape},
            {"items", std::move(items)}};
}

Json WindowOf(const SideWindow& window) {
    Json controls = Json::object();
    for (const WindowControl& control : window.Controls()) controls[control.name] = ControlOf(control);
    Json printed = Json::array();
    for (const PrintedPage& page : window.Printed()) printed.push_back(PageOf(page));
    return {{"title", window.Title()},
            {"controls", std::move(controls)},
            {"document", window.Document() ? Json(TextOf(*window.Document())) : Json()},
            {"printed", std::move(printed)}};
}

}  // namespace

Json WindowOrNull(ConsoleSession& session) {
    const SideWindow* window = session.screen().Window();
    return window ? WindowOf(*window) : Json();
}

Json ShowWindow(ConsoleSession& session, const Request&) {
    return WindowOrNull(session);
}

Json SetInWindow(ConsoleSession& session, const Request& request) {
    SideWindow& window = OpenWindow(session);
    const std::string name = request.Text("control");
    const Json& value = request.Value("value");
    const bool isList = window.Control(name).kind == ControlKind::List;
    if (value.is_boolean())
        window.Tick(name, value.get<bool>());
    else if (isList && value.is_number())
        window.Pick(name, EntryOf(value));
    else if (isList)
        window.Pick(name, request.Text("value"));
    else
        window.SetText(name, request.Text("value"));
    session.screen().WindowHasActed();
    return WindowOrNull(session);
}

Json ClickInWindow(ConsoleSession& session, const Request& request) {
    SideWindow& window = OpenWindow(session);
    const bool twice = request.Has("double") && request.Value("double").get<bool>();
    const std::string to = request.Text("to");
    window.Click(request.Text("control"), twice,
                 to.empty() ? std::filesystem::path() : std::filesystem::absolute(PathOf(to)));
    session.screen().WindowHasActed();
    return WindowOrNull(session);
}

Json CloseWindow(ConsoleSession& session, const Request&) {
    OpenWindow(session).Close();
    session.screen().WindowHasActed();
    return WindowOrNull(session);
}

}  // namespace quillmark::cli
