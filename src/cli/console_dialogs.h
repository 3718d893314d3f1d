#pragma once

#include <string>

#include "cli/console_request.h"
#include "platform/dialogs.h"

namespace quillmark::cli {

/// Answers boxes from the list that came with a request. An answer that a box has no button for must not stop
/// an action half way: the box and all after it take their defaults, and the fault is told afterwards.
class ConsoleDialogs final : public Dialogs {
 public:
    /// Begins a request: its answers replace what was left of the former ones.
    void Prepare(ScriptedDialogs::Answers answers);

    DialogButton Show(const MessageDialog& box) override;
    std::optional<std::string> Ask(const InputDialog& box) override;

    /// The boxes since the last call, as replies show them.
    Json TakeShown();
    /// What did not fit, empty if everything did.
    const std::string& Fault() const { return fault_; }
    /// The text of the last box since the last `TakeShown`; empty if there was none.
    std::string LastText() const;

 private:
    ScriptedDialogs scripted_;
    std::string fault_;
};

}  // namespace quillmark::cli
