#include "tools/window/control_set.h"

#include <algorithm>
#include <utility>

namespace quillmark {

const WindowControl& ControlSet::operator[](std::string_view name) const {
    const auto found = std::ranges::find(controls_, name, &WindowControl::name);
    if (found == controls_.end())
        throw WindowRefusal("the window has no control \"" + std::string(name) + "\"");
    return *found;
}

WindowControl& ControlSet::operator[](std::string_view name) {
    return const_cast<WindowControl&>(std::as_const(*this)[name]);
}

void ControlSet::Show(std::initializer_list<std::string_view> names, bool visible) {
    for (const std::string_view name : names) (*this)[name].visible = visible;
}

void ControlSet::Choose(std::string_view option) {
    for (WindowControl& control : controls_)
        if (control.kind == ControlKind::Option) control.checked = control.name == option;
}

void SetItems(WindowControl& list, std::vector<std::string> items) {
    list.items = std::move(items);
    ChooseEntry(list, {});
}

void ChooseEntry(WindowControl& list, std::optional<std::size_t> entry) {
    list.index = entry;
    list.text = entry ? list.items.at(*entry) : std::string();
}

std::optional<std::size_t> FindEntry(const WindowControl& list, std::string_view text) {
    const auto found = std::ranges::find(list.items, text);
    if (found == list.items.end()) return {};
    return static_cast<std::size_t>(found - list.items.begin());
}

}  // namespace quillmark
