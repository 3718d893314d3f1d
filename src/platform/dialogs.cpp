#include "platform/dialogs.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/code_page.h"

namespace quillmark {
namespace {

std::optional<DialogButton> ButtonOf(std::string_view caption, const std::vector<DialogButton>& buttons) {
    const auto matches = [&](DialogButton b) { return UpperCase(CaptionOf(b)) == UpperCase(caption); };
    const auto found = std::find_if(buttons.begin(), buttons.end(), matches);
    return found == buttons.end() ? std::nullopt : std::optional(*found);
}

DialogButton CancelButtonOf(const MessageDialog& box) {
    return ButtonOf("Cancel", box.buttons).value_or(box.defaultButton);
}

std::string Captions(const std::vector<DialogButton>& buttons) {
    std::string captions;
    for (const DialogButton button : buttons) {
        captions += fmt::format("{}{}", captions.empty() ? "" : ", ", CaptionOf(button));
    }
    return captions;
}

}  // namespace

std::string_view CaptionOf(DialogButton button) {
    constexpr std::array<std::string_view, 4> kCaptions = {"OK", "Cancel", "Yes", "No"};
    return kCaptions[static_cast<std::size_t>(button)];
}

void Dialogs::Tell(std::string title, std::string text, DialogIcon icon) {
    Show({std::move(title), std::move(text), {DialogButton::OK}, DialogButton::OK, icon});
}

bool Dialogs::Confirm(std::string title, std::string text, DialogButton defaultButton, DialogIcon icon) {
    return Show({std::move(title),
                 std::move(text),
                 {DialogButton::Yes, DialogButton::No},
                 defaultButton,
                 icon}) == DialogButton::Yes;
}

ScriptedDialogs::ScriptedDialogs(Answers answers, WhenUnanswered mode)
    : answers_(std::move(answers)), mode_(mode) {}

bool ScriptedDialogs::HasAnswerFor(std::string_view title, std::string_view text) const {
    if (next_ < answers_.size()) return true;
    if (mode_ == WhenUnanswered::TakeDefault) return false;
    throw DialogError(fmt::format("unexpected box \"{}\": {}", title, text));
}

DialogButton ScriptedDialogs::Show(const MessageDialog& box) {
    shown_.push_back({Record::Kind::Message,
                      box.title,
                      box.text,
                      box.buttons,
                      std::string(CaptionOf(box.defaultButton)),
                      box.icon,
                      {}});
    DialogButton pressed = box.defaultButton;
    if (HasAnswerFor(box.title, box.text)) {
        const std::optional<std::string>& answer = answers_[next_];
        const auto button = answer ? ButtonOf(*answer, box.buttons) : CancelButtonOf(box);
        const bool onlyAcknowledged = box.buttons.size() == 1;
        if (button) {
            pressed = *button;
            ++next_;
        } else if (!onlyAcknowledged || mode_ == WhenUnanswered::Fail) {
            throw DialogError(fmt::format("the box \"{}\" ({}) has no button \"{}\", only {}", box.title,
                                          box.text, *answer, Captions(box.buttons)));
        }
    }
    shown_.back().answer = CaptionOf(pressed);
    return pressed;
}

std::optional<std::string> ScriptedDialogs::Ask(const InputDialog& box) {
    shown_.push_back({Record::Kind::Input,
                      box.title,
                      box.text,
                      {DialogButton::OK, DialogButton::Cancel},
                      box.proposed,
                      DialogIcon::None,
                      {}});
    shown_.back().answer = HasAnswerFor(box.title, box.text) ? answers_[next_++] : box.proposed;
    return shown_.back().answer;
}

void ScriptedDialogs::SetAnswers(Answers answers) {
    answers_ = std::move(answers);
    next_ = 0;
}

std::vector<ScriptedDialogs::Record> ScriptedDialogs::TakeShown() {
    return std::exchange(shown_, {});
}

}  // namespace quillmark
