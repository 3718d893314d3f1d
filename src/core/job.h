#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/field_registry.h"

namespace quillmark {

/// The fifteen configuration options of a job, by the numbers that job files carry.
enum Option : int {
    OneSeller = 1,
    TwoSellers = 2,
    Person = 3,
    Entity = 4,
    OneBuyer = 5,
    TwoBuyers = 6,
    OnePayoff = 7,
    TwoPayoffs = 8,
    Condo = 9,
    Commercial = 10,
    Letterhead = 11,
    DefaultLetterhead = 12,
    LandMultiFamily = 13,
    PowerOfAttorney = 14,
    EstateTrust = 15,
};
inline constexpr int kOptions = 15;

/// A holder's background: other rules ask it whether a field has a value.
enum class FieldColour : std::uint32_t { Unfilled = 0x80FFFF, Filled = 0xE0E0E0 };

/// What a field holds in place of its text when its value is a picture.
inline constexpr std::string_view kImageLiteral = "IMAGE -> (Select & R-Click for options)";

/// The hidden holder of one field.
struct FieldHolder {
    std::string text;
    bool relevant = false;
    bool locked = false;
    FieldColour colour = FieldColour::Unfilled;
    std::string tag;
    int top = 1;           ///< 0: silently filled from a firm default, takes no row and is not saved
    bool forShow = false;  ///< filled from the firm's details though nothing asks for it; not saved
};

/// The most user-defined fields that one job keeps.
inline constexpr std::size_t kUserFields = 500;

/// One job in memory: name, options, field values, pictures, user-defined values, document history.
class Job {
 public:
    /// Runs after a holder's text changed and `D(n)` took it: the smart rules of the field.
    using ChangeRule = std::function<void(Job&, int n)>;

    /// Every holder and value stands at its marker, derived values too, and the options have their start
    /// state: one seller, a person, one buyer, one payoff, the default letterhead.
    Job();

    /// Back to the state of a new job. The change rule stays, and does not run.
    void Reset();

    /// The value of field n (1 to 240), or derived value k*1000+n (k from 1 to 4). Empty for other numbers.
    const std::string& D(int n) const;

    /// Puts a text into holder n (0 to 240) and runs the change rule: double quotes become apostrophes,
    /// `D(n)` takes the text, the colour state follows, then the smart rule runs. A text that holder and
    /// value have already is no change and runs nothing, so a rule may put its own field into its final form.
    /// Out of range: throws std::out_of_range. What a smart rule throws reaches the caller.
    void SetField(int n, std::string_view text);
    /// Puts field n back to its marker.
    void ClearField(int n);
    /// Runs the change rule of field n on its present text, for rules that depend on more than the field.
    void RunChangeRule(int n);
    /// Sets `D(n)` alone, n from 1 to 240, without the holder and without rules: for values normalised for
    /// typing.
    void SetValue(int n, std::string_view text);
    /// Sets part k (1 to 4) of field n.
    void SetDerived(int k, int n, std::string_view text);

    /// Neither empty nor the field's marker.
    bool IsFilled(int n) const;

    /// The value of a user-defined field; empty if it has none.
    std::string_view UserField(std::string_view marker) const;
    /// Puts a value beside a user-defined marker, double quotes turned into apostrophes; the empty text takes
    /// the pair out. False, with nothing changed, when all pairs are taken.
    bool SetUserField(std::string_view marker, std::string_view text);

    const FieldHolder& txtField(int n) const { return holders_.at(static_cast<std::size_t>(n)); }
    FieldHolder& txtField(int n) { return holders_.at(static_cast<std::size_t>(n)); }

    bool optConf(int n) const { return options_.at(static_cast<std::size_t>(n)); }
    void SetOption(int n, bool on) { options_.at(static_cast<std::size_t>(n)) = on; }

    void SetChangeRule(ChangeRule rule) { changeRule_ = std::move(rule); }

    std::string name;
    std::string JobDocuments;  ///< every document ever made, each name followed by ":"
    /// Pictures of fields as the bytes of a Windows bitmap; empty for none.
    std::array<std::string, kFields + 1> FieldPictures;
    /// Marker and value of user-defined fields, in grid order.
    std::vector<std::pair<std::string, std::string>> userFields;

 private:
    void StartDerivedValues();

    std::array<FieldHolder, kFields + 1> holders_;
    std::array<std::array<std::string, kFields + 1>, 5> values_;  ///< row 0: D(n); rows 1 to 4 derived
    std::array<bool, kOptions + 1> options_ = {};
    ChangeRule changeRule_;
};

}  // namespace quillmark
