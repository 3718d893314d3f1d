#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/window/side_window.h"

namespace quillmark {

/// The controls of a window that keeps its state in them, in the order in which a person comes to them.
class ControlSet {
 public:
    explicit ControlSet(std::vector<WindowControl> controls) : controls_(std::move(controls)) {}

    const std::vector<WindowControl>& All() const { return controls_; }
    /// Throws WindowRefusal when there is no control of this name.
    const WindowControl& operator[](std::string_view name) const;
    WindowControl& operator[](std::string_view name);

    void Show(std::initializer_list<std::string_view> names, bool visible);
    /// Chooses one of the option buttons, and so leaves the others; a window has one group of them.
    void Choose(std::string_view option);

 private:
    std::vector<WindowControl> controls_;
};

/// The entries of a list, none of them chosen.
void SetItems(WindowControl& list, std::vector<std::string> items);
/// Chooses an entry that is there; nothing chooses none.
void ChooseEntry(WindowControl& list, std::optional<std::size_t> entry);
/// The entry of this text; nothing where it is not listed.
std::optional<std::size_t> FindEntry(const WindowControl& list, std::string_view text);

}  // namespace quillmark
