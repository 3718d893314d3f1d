#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine.h"

/// A side tool's window without a toolkit: its controls as plain values under their own names. A window of
/// the desktop shows them and passes clicks and texts on; the command line does the same with its requests.
namespace quillmark {

enum class ControlKind {
    Box,     ///< takes a text
    List,    ///< of which one entry is chosen; also a combination box
    Check,   ///< ticked or not
    Option,  ///< one of several
    Button,  ///< also a label that takes a click
    Label,
    Timer,  ///< a click on it is one tick; nobody sees it
};

struct WindowControl {
    std::string name;  ///< its caption where it has no name of its own
    ControlKind kind = ControlKind::Label;
    std::string text = {};  ///< in the box, of the chosen entry, or the caption
    std::vector<std::string> items = {};
    std::optional<std::size_t> index = {};  ///< the chosen entry
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    std::string tooltip = {};
};

/// What the window would not allow in its present state. Nothing has changed.
class WindowRefusal : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

class SideWindow {
 public:
    SideWindow() = default;
    virtual ~SideWindow() = default;
    SideWindow(const SideWindow&) = delete;
    SideWindow& operator=(const SideWindow&) = delete;

    virtual std::string Title() const = 0;
    /// Every control, in the order in which a person comes to them.
    virtual std::vector<WindowControl> Controls() const = 0;
    WindowControl Control(std::string_view name) const;

    // What a person does. Each throws WindowRefusal for a control that is not there, disabled, hidden or of
    // another kind, and for an entry that is not listed.
    void SetText(std::string_view name, std::string_view text);
    void Pick(std::string_view name, std::size_t entry);
    /// The entry of this whole text, else what the text stands for in this window, else the entry of this
    /// number.
    void Pick(std::string_view name, std::string_view entry);
    void Tick(std::string_view name, bool on);
    /// `to` is where a file that the click makes goes (a path or an existing folder); empty for the usual
    /// place.
    void Click(std::string_view name, bool twice = false, const std::filesystem::path& to = {});
    /// As its own way out does.
    void Close();

    bool IsOpen() const { return open_; }
    /// The file that the last click made; nothing when it made none.
    const std::optional<std::filesystem::path>& Document() const { return document_; }
    /// The sheets that the last click printed.
    const std::vector<PrintedPage>& Printed() const { return printed_; }

 protected:
    virtual void OnText(std::string_view name, std::string_view text);
    virtual void OnPick(std::string_view name, std::size_t entry);
    /// A text that stands for an entry of a list in the tool's own way, or for none of them; false where it
    /// does not, and nothing has changed then.
    virtual bool OnEntryText(std::string_view name, std::string_view text);
    virtual void OnTick(std::string_view name, bool on);
    virtual void OnClick(std::string_view name, bool twice, const std::filesystem::path& to) = 0;
    /// Before the window closes; false keeps it open.
    virtual bool OnClose() { return true; }

    std::optional<std::filesystem::path> document_;
    std::vector<PrintedPage> printed_;

 private:
    WindowControl Usable(std::string_view name, std::string_view act) const;

    bool open_ = true;
};

}  // namespace quillmark
