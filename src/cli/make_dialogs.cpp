#include "cli/make_dialogs.h"

#include "core/text_conversions.h"
#include "session/create_command.h"

namespace quillmark::cli {

namespace {

/// The box's title where it says more than that this is a box.
std::string Headed(const MessageDialog& box) {
    const std::string_view title = Trimmed(box.title);
    const bool saysMore = !title.empty() && title != "ALERT" && title != "FAILED !!!";
    return saysMore ? std::string(title) + ": " + box.text : box.text;
}

}  // namespace

DialogButton MakeDialogs::Show(const MessageDialog& box) {
    last_ = box.text;
    if (box.buttons.size() > 1) {
        Flush();
        if (anyway_ && box.text == kProceedAnyway) return DialogButton::Yes;
        return scripted_.Show(box);
    }
    Flush();
    held_ = Headed(box);
    return box.buttons.front();
}

void MakeDialogs::Flush() {
    if (held_) tell_(*std::exchange(held_, std::nullopt));
}

std::optional<std::string> MakeDialogs::Ask(const InputDialog& box) {
    last_ = box.text;
    return scripted_.Ask(box);
}

}  // namespace quillmark::cli
