#include "cli/console_dialogs.h"

#include <array>
#include <utility>

namespace quillmark::cli {

namespace {

std::string_view NameOf(DialogIcon icon) {
    constexpr std::array<std::string_view, 5> kNames = {"", "question", "information", "warning", "stop"};
    return kNames[static_cast<std::size_t>(icon)];
}

Json BoxOf(const ScriptedDialogs::Record& record) {
    const bool isMessage = record.kind == ScriptedDialogs::Record::Kind::Message;
    Json buttons = Json::array();
    for (const DialogButton button : record.buttons) buttons.push_back(CaptionOf(button));
    Json box = {{"kind", isMessage ? "message" : "input"},
                {"title", record.title},
                {"text", record.text},
                {"buttons", std::move(buttons)},
                {"default", record.defaultAnswer},
                {"icon", NameOf(record.icon)},
                {"answer", nullptr}};
    if (record.answer) box["answer"] = *record.answer;
    if (isMessage && !record.answer) box["answer"] = record.defaultAnswer;
    return box;
}

}  // namespace

void ConsoleDialogs::Prepare(ScriptedDialogs::Answers answers) {
    scripted_.SetAnswers(std::move(answers));
    fault_.clear();
}

DialogButton ConsoleDialogs::Show(const MessageDialog& box) {
    try {
        return scripted_.Show(box);
    } catch (const DialogError& misfit) {
        if (fault_.empty()) fault_ = std::string(misfit.what()) + "; the rest took the default answers";
        scripted_.SetAnswers({});
        return box.defaultButton;
    }
}

std::optional<std::string> ConsoleDialogs::Ask(const InputDialog& box) {
    return scripted_.Ask(box);
}

Json ConsoleDialogs::TakeShown() {
    Json boxes = Json::array();
    for (const ScriptedDialogs::Record& record : scripted_.TakeShown()) boxes.push_back(BoxOf(record));
    return boxes;
}

std::string ConsoleDialogs::LastText() const {
    return scripted_.Shown().empty() ? std::string() : scripted_.Shown().back().text;
}

}  // namespace quillmark::cli
