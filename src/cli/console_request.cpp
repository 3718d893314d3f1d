#include "cli/console_request.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "core/job_file.h"
#include "platform/code_page.h"

namespace quillmark::cli {

namespace {

/// Keys that no editor takes; line breaks and tabs can be pasted.
bool CannotBeEntered(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < ' ' && c != '\t' && c != '\r' && c != '\n' && c != '\v') || byte == 0x7F;
}

/// `what` is the value's name in messages.
void CheckText(const std::string& text, std::string_view what) {
    if (text.size() > kLongestValue)
        throw BadRequest(fmt::format("{} is longer than {} KB", what, kLongestValue / 1024));
    if (const auto foreign = FirstUnencodable(text))
        throw BadRequest(fmt::format("{}: {} cannot be kept in a data file", what, foreign->name));
    const auto key = std::find_if(text.begin(), text.end(), CannotBeEntered);
    if (key != text.end())
        throw BadRequest(fmt::format("{}: the control character U+{:04X} cannot be entered", what,
                                     static_cast<unsigned>(static_cast<unsigned char>(*key))));
}

/// Larger numbers are no field, option or column, and would not fit.
bool IsWholeNumber(const Json& value) {
    constexpr std::int64_t kLimit = std::numeric_limits<int>::max();
    if (value.is_number_unsigned()) return value.get<std::uint64_t>() <= kLimit;
    return value.is_number_integer() && value.get<std::int64_t>() >= -kLimit;
}

void CheckKind(const Json& value, const Argument& argument) {
    if (argument.kind == ArgumentKind::Flag) {
        if (!value.is_boolean()) throw BadRequest(fmt::format("{} is neither true nor false", argument.name));
    } else if (argument.kind == ArgumentKind::Any) {
        if (!value.is_boolean() && !value.is_string() && !IsWholeNumber(value))
            throw BadRequest(fmt::format("{} is no text, whole number, true or false", argument.name));
    } else if (argument.kind == ArgumentKind::Number) {
        if (!IsWholeNumber(value)) throw BadRequest(fmt::format("{} is not a whole number", argument.name));
    } else if (argument.kind == ArgumentKind::Texts) {
        if (!value.is_array()) throw BadRequest(fmt::format("{} is not a list of texts", argument.name));
        for (const Json& item : value) CheckKind(item, {argument.name, ArgumentKind::Text});
    } else if (argument.kind != ArgumentKind::Amount || !value.is_number()) {
        if (!value.is_string()) throw BadRequest(fmt::format("{} is not a text", argument.name));
        if (argument.kind != ArgumentKind::Path) CheckText(value.get<std::string>(), argument.name);
    }
}

ScriptedDialogs::Answers AnswersOf(const Json& line) {
    ScriptedDialogs::Answers answers;
    const auto given = line.find("answers");
    if (given == line.end() || given->is_null()) return answers;
    if (!given->is_array()) throw BadRequest("answers is not a list");
    for (const Json& answer : *given) {
        if (!answer.is_string() && !answer.is_null())
            throw BadRequest("answers holds something that is neither a text nor null");
        if (answer.is_string()) CheckText(answer.get<std::string>(), "answers");
        answers.push_back(answer.is_null() ? std::nullopt : std::optional(answer.get<std::string>()));
    }
    return answers;
}

Json Parsed(std::string_view line) {
    try {
        return Json::parse(line);
    } catch (const Json::exception& error) {  // also for a number that no machine holds
        // The library's own text begins with its name for the error, in brackets.
        const std::string_view what = error.what();
        const auto reason = what.find("] ");
        throw BadRequest("not JSON: " + std::string(reason == what.npos ? what : what.substr(reason + 2)));
    }
}

}  // namespace

Request::Request(std::string_view line) : line_(Parsed(line)) {
    if (!line_.is_object()) throw BadRequest("the line is not a JSON object");
    Check(std::array{Argument{"do", ArgumentKind::Path}});
    do_ = Text("do");
    answers_ = AnswersOf(line_);
}

void Request::Check(std::span<const Argument> arguments) const {
    for (const Argument& argument : arguments) {
        if (Has(argument.name))
            CheckKind(line_.at(std::string(argument.name)), argument);
        else if (argument.required)
            throw BadRequest(fmt::format("the argument {} is missing", argument.name));
    }
}

bool Request::Has(std::string_view name) const {
    const auto found = line_.find(std::string(name));
    return found != line_.end() && !found->is_null();
}

std::string Request::Text(std::string_view name) const {
    if (!Has(name)) return {};
    const Json& value = line_.at(std::string(name));
    return value.is_number() ? value.dump() : value.get<std::string>();
}

int Request::Number(std::string_view name) const {
    return line_.at(std::string(name)).get<int>();
}

const Json& Request::Value(std::string_view name) const {
    return line_.at(std::string(name));
}

std::vector<std::string> Request::Texts(std::string_view name) const {
    return line_.at(std::string(name)).get<std::vector<std::string>>();
}

}  // namespace quillmark::cli
