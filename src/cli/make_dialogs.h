#pragma once

#include <functional>
#include <string>

#include "platform/dialogs.h"

namespace quillmark::cli {

/// The person of a run without one: questions are answered from a list, and what can only be acknowledged is
/// told.
class MakeDialogs final : public Dialogs {
 public:
    /// `anyway`: the question about open fields is answered with Yes and uses up no answer. `tell` takes the
    /// text of a notice.
    MakeDialogs(ScriptedDialogs::Answers answers, bool anyway, std::function<void(const std::string&)> tell)
        : scripted_(std::move(answers)), anyway_(anyway), tell_(std::move(tell)) {}

    DialogButton Show(const MessageDialog& box) override;
    std::optional<std::string> Ask(const InputDialog& box) override;

    /// Begins another job.
    void Forget() {
        last_.clear();
        held_.reset();
    }
    /// The text of the last box; empty for none.
    const std::string& Last() const { return last_; }
    /// The last notice is held back until another one comes, as it may be what ended the run: `Flush` tells
    /// it.
    void Flush();

 private:
    ScriptedDialogs scripted_;
    bool anyway_;
    std::function<void(const std::string&)> tell_;
    std::string last_;
    std::optional<std::string> held_;
};

}  // namespace quillmark::cli
