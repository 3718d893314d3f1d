#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs.h"

namespace quillmark::cli {

/// Keys stand in the order in which they were put in.
using Json = nlohmann::ordered_json;

/// A line that is no request: not JSON, an unknown command, an argument that is missing or of the wrong kind.
class BadRequest : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

enum class ArgumentKind {
    Text,    ///< what a user types or picks: nothing that data files cannot hold
    Path,    ///< a file or folder of this computer: any text
    Number,  ///< a whole number
    Amount,  ///< a text as for Text, or a number
    Texts,   ///< a list of texts
    Flag,    ///< true or false
    Any,     ///< a text as for Path, a whole number, true or false
};

struct Argument {
    std::string_view name;
    ArgumentKind kind;
    bool required = true;
};

/// One line of input: a command, its arguments and the answers to the boxes that it raises.
class Request {
 public:
    /// Throws BadRequest unless the line is a JSON object with `do` and proper `answers`.
    explicit Request(std::string_view line);

    const std::string& Do() const { return do_; }
    const ScriptedDialogs::Answers& Answers() const { return answers_; }

    /// Throws BadRequest for the first argument that is missing or of the wrong kind. `null` counts as
    /// missing.
    void Check(std::span<const Argument> arguments) const;

    /// Of arguments that have been checked.
    bool Has(std::string_view name) const;
    std::string Text(std::string_view name) const;  ///< empty if it was not given; a number as it is written
    int Number(std::string_view name) const;
    /// The argument as it was given; it must be there.
    const Json& Value(std::string_view name) const;
    std::vector<std::string> Texts(std::string_view name) const;

 private:
    Json line_;
    std::string do_;
    ScriptedDialogs::Answers answers_;
};

}  // namespace quillmark::cli
