#include "tools/window/side_window.h"

#include <algorithm>
#include <charconv>

namespace quillmark {

namespace {

[[noreturn]] void Refuse(std::string_view control, const std::string& why) {
    throw WindowRefusal(std::string(control) + " " + why);
}

bool IsAmong(ControlKind kind, std::initializer_list<ControlKind> kinds) {
    return std::ranges::find(kinds, kind) != kinds.end();
}

std::optional<std::size_t> EntryNumber(std::string_view text) {
    std::size_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, failed] = std::from_chars(text.data(), end, number);
    if (failed != std::errc{} || stop != end) return {};
    return number;
}

}  // namespace

WindowControl SideWindow::Control(std::string_view name) const {
    for (WindowControl& control : Controls())
        if (control.name == name) return control;
    throw WindowRefusal("the window has no control \"" + std::string(name) + "\"");
}

WindowControl SideWindow::Usable(std::string_view name, std::string_view act) const {
    if (!open_) throw WindowRefusal("the window is closed");
    WindowControl control = Control(name);
    const bool isSeen = control.visible || control.kind == ControlKind::Timer;
    if (!isSeen || !control.enabled)
        Refuse(name,
               std::string(isSeen ? "is disabled" : "is hidden") + " and cannot be " + std::string(act));
    return control;
}

void SideWindow::SetText(std::string_view name, std::string_view text) {
    if (Usable(name, "filled").kind != ControlKind::Box) Refuse(name, "takes no text");
    OnText(name, text);
}

void SideWindow::Pick(std::string_view name, std::size_t entry) {
    const WindowControl control = Usable(name, "chosen from");
    if (control.kind != ControlKind::List) Refuse(name, "is no list");
    if (entry >= control.items.size()) Refuse(name, "has no entry " + std::to_string(entry));
    OnPick(name, entry);
}

void SideWindow::Pick(std::string_view name, std::string_view entry) {
    const WindowControl control = Usable(name, "chosen from");
    if (control.kind != ControlKind::List) Refuse(name, "is no list");
    const auto found = std::ranges::find(control.items, entry);
    if (found != control.items.end())
        return OnPick(name, static_cast<std::size_t>(found - control.items.begin()));
    if (OnEntryText(name, entry)) return;
    const std::optional<std::size_t> number = EntryNumber(entry);
    if (!number || *number >= control.items.size())
        Refuse(name, "has no entry \"" + std::string(entry) + "\"");
    OnPick(name, *number);
}

void SideWindow::Tick(std::string_view name, bool on) {
    const WindowControl control = Usable(name, "ticked");
    if (!IsAmong(control.kind, {ControlKind::Check, ControlKind::Option})) Refuse(name, "cannot be ticked");
    if (control.kind == ControlKind::Option && !on) Refuse(name, "is left by choosing another");
    OnTick(name, on);
}

void SideWindow::Click(std::string_view name, bool twice, const std::filesystem::path& to) {
    const WindowControl control = Usable(name, "clicked");
    if (!IsAmong(control.kind, {ControlKind::Button, ControlKind::List, ControlKind::Timer}))
        Refuse(name, "does nothing on a click");
    document_.reset();
    printed_.clear();
    OnClick(name, twice, to);
}

void SideWindow::Close() {
    if (open_ && OnClose()) open_ = false;
}

void SideWindow::OnText(std::string_view name, std::string_view) {
    Refuse(name, "takes no text");
}
void SideWindow::OnPick(std::string_view name, std::size_t) {
    Refuse(name, "is no list");
}
bool SideWindow::OnEntryText(std::string_view, std::string_view) {
    return false;
}
void SideWindow::OnTick(std::string_view name, bool) {
    Refuse(name, "cannot be ticked");
}

}  // namespace quillmark
