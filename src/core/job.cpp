#include "core/job.h"

#include "core/fields.h"

#include <algorithm>
#include <stdexcept>

namespace quillmark {

namespace {

constexpr int kParts = 4;

const std::string kNoText;

std::string WithApostrophes(std::string_view text) {
    std::string out(text);
    std::replace(out.begin(), out.end(), '"', '\'');
    return out;
}

bool IsField(int n) {
    return n >= 1 && n <= kFields;
}

std::size_t FieldIndex(int n) {
    if (!IsField(n)) throw std::out_of_range("no field has the number " + std::to_string(n));
    return static_cast<std::size_t>(n);
}

}  // namespace

Job::Job() {
    Reset();
}

void Job::Reset() {
    name.clear();
    JobDocuments.clear();
    FieldPictures.fill({});
    userFields.clear();
    holders_.fill({});
    for (auto& row : values_) row.fill({});
    for (int n = 1; n <= kFields; ++n) {
        const auto i = static_cast<std::size_t>(n);
        holders_[i].text = FieldMarker(n);
        values_[0][i] = FieldMarker(n);
    }
    options_.fill(false);
    for (const int n : {OneSeller, Person, OneBuyer, OnePayoff, DefaultLetterhead}) SetOption(n, true);
    StartDerivedValues();
}

void Job::StartDerivedValues() {
    for (const DerivedField& derived : DerivedFields())
        SetDerived(derived.number / 1000, derived.number % 1000, derived.marker);
    for (const int n : AddressFields()) {
        const std::string_view marker = FieldMarker(n);
        const std::string label(marker.substr(0, marker.size() - 1));
        SetDerived(1, n, label + ", addr 2]");
        SetDerived(2, n, label + " - addr 2]");
    }
    // Names joined from two fields: sellers, buyers, realtors.
    for (const int n : {field::Seller1Name, field::Buyer1Name, field::Realtor1Name})
        SetDerived(1, n, FieldMarker(n));
}

const std::string& Job::D(int n) const {
    const int part = n / 1000;
    const int field = n % 1000;
    if (part < 0 || part > kParts || !IsField(field)) return kNoText;
    return values_[static_cast<std::size_t>(part)][static_cast<std::size_t>(field)];
}

void Job::SetField(int n, std::string_view text) {
    FieldHolder& holder = txtField(n);
    if (holder.text == text && (n == 0 || D(n) == text)) return;
    holder.text = text;
    holder.forShow = false;
    RunChangeRule(n);
}

void Job::ClearField(int n) {
    SetField(n, FieldMarker(n));
}

void Job::RunChangeRule(int n) {
    FieldHolder& holder = txtField(n);
    if (holder.text.find('"') != std::string::npos) {
        SetField(n, WithApostrophes(holder.text));
        return;
    }
    if (n > 0) SetValue(n, holder.text);
    holder.colour = holder.text == FieldMarker(n) ? FieldColour::Unfilled : FieldColour::Filled;
    if (changeRule_) changeRule_(*this, n);
}

void Job::SetValue(int n, std::string_view text) {
    values_[0][FieldIndex(n)] = text;
}

void Job::SetDerived(int k, int n, std::string_view text) {
    if (k < 1 || k > kParts) throw std::out_of_range("no derived value has the part " + std::to_string(k));
    values_[static_cast<std::size_t>(k)][FieldIndex(n)] = text;
}

bool Job::IsFilled(int n) const {
    return IsField(n) && !D(n).empty() && D(n) != FieldMarker(n);
}

std::string_view Job::UserField(std::string_view marker) const {
    for (const auto& [key, value] : userFields)
        if (key == marker) return value;
    return {};
}

bool Job::SetUserField(std::string_view marker, std::string_view text) {
    const auto pair = std::find_if(userFields.begin(), userFields.end(),
                                   [&](const auto& entry) { return entry.first == marker; });
    if (text.empty()) {
        if (pair != userFields.end()) userFields.erase(pair);
        return true;
    }
    if (pair != userFields.end()) {
        pair->second = WithApostrophes(text);
        return true;
    }
    if (userFields.size() >= kUserFields) return false;
    userFields.emplace_back(marker, WithApostrophes(text));
    return true;
}

}  // namespace quillmark
