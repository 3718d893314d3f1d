#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

enum class DialogButton { OK, Cancel, Yes, No };
enum class DialogIcon { None, Question, Information, Warning, Stop };

/// "OK", "Cancel", "Yes", "No".
std::string_view CaptionOf(DialogButton button);

/// A message box. Texts are UTF-8 with "\n" for a line break.
struct MessageDialog {
    std::string title;
    std::string text;
    std::vector<DialogButton> buttons = {DialogButton::OK};
    DialogButton defaultButton = DialogButton::OK;
    DialogIcon icon = DialogIcon::None;
};

/// A box that asks for one line of text.
struct InputDialog {
    std::string title;
    std::string text;
    std::string proposed;  ///< what stands in the box when it opens
};

/// The person at the screen. Calls return when the box has been answered.
class Dialogs {
 public:
    virtual ~Dialogs() = default;

    /// The button pressed. Closing the box gives Cancel where there is one, else the default button.
    virtual DialogButton Show(const MessageDialog& box) = 0;
    /// The text entered; nothing when the box was cancelled.
    virtual std::optional<std::string> Ask(const InputDialog& box) = 0;

    /// A box with OK alone.
    void Tell(std::string title, std::string text, DialogIcon icon = DialogIcon::None);
    /// A question with Yes and No; whether Yes was pressed.
    bool Confirm(std::string title, std::string text, DialogButton defaultButton = DialogButton::Yes,
                 DialogIcon icon = DialogIcon::Question);
};

/// A prepared answer does not fit the box that came, or a box came for which none was prepared.
class DialogError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Answers from a list, in the order in which boxes come, and records every box.
///
/// An answer is a button's caption in any case, the text for an input box, or nothing to cancel the box. A
/// box that can only be acknowledged takes an answer from the list only when that is "OK", so a list may hold
/// the answers to questions alone. Throws DialogError for an answer that the box has no button for.
class ScriptedDialogs final : public Dialogs {
 public:
    using Answers = std::vector<std::optional<std::string>>;
    enum class WhenUnanswered {
        TakeDefault,  ///< the default button, the proposed text
        Fail,         ///< throw DialogError: no box may come that was not expected
    };

    struct Record {
        enum class Kind { Message, Input } kind;
        std::string title;
        std::string text;
        std::vector<DialogButton> buttons;  ///< OK and Cancel for an input box
        std::string defaultAnswer;          ///< the default button's caption, or the proposed text
        DialogIcon icon;
        std::optional<std::string> answer;  ///< the caption pressed, or the text; nothing when cancelled
    };

    explicit ScriptedDialogs(Answers answers = {}, WhenUnanswered mode = WhenUnanswered::TakeDefault);

    DialogButton Show(const MessageDialog& box) override;
    std::optional<std::string> Ask(const InputDialog& box) override;

    /// Replaces the answers that are left.
    void SetAnswers(Answers answers);
    /// How many answers have not been taken.
    std::size_t AnswersLeft() const { return answers_.size() - next_; }

    const std::vector<Record>& Shown() const { return shown_; }
    /// The boxes since the last call.
    std::vector<Record> TakeShown();

 private:
    bool HasAnswerFor(std::string_view title, std::string_view text) const;

    Answers answers_;
    std::size_t next_ = 0;
    WhenUnanswered mode_;
    std::vector<Record> shown_;
};

}  // namespace quillmark
