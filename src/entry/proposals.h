#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/address_book.h"
#include "selection/firm_context.h"
#include "selection/job_in_hand.h"

/// What an editor starts with, so that often Enter is all that a field takes.
namespace quillmark {

/// The value of an earlier field that an unfilled field is likely to repeat; several separated by "; " where
/// either seller may be meant. Empty where there is none. A property is taken to be its sellers' home only
/// where they are persons.
std::string Proposal(int n, const Job& job);

/// The choices of a list separated by ";", trimmed; none for a text that is no list.
std::vector<std::string> ChoicesOf(std::string_view list);

struct OpenedEditor {
    std::string text;  ///< all of it selected
    std::vector<std::string> choices;
    std::size_t currentChoice = 0;
    std::optional<AddressBook> book;                      ///< that the field is picked from
    std::optional<std::chrono::year_month_day> calendar;  ///< shown beside the cell, set to this day
};

/// What opens over a row, and what stands in it: the row's value; in an unfilled row its default, the first
/// of its choices or the proposal. The e-mail address follows the attorney's place among the choices.
OpenedEditor OpenEditor(const GridRow& row, const JobInHand& hand, const FirmContext& firm);

}  // namespace quillmark
