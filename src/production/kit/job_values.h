#pragma once

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "core/fields.h"
#include "core/job.h"

namespace quillmark {

using field::Field;

/// A party to the instrument: where its name and its address stand among the fields.
struct Party {
    Field name;
    Field addr1;
    Field cityStateZip;
};
inline constexpr Party kSeller1 = {field::Seller1Name, field::Seller1Addr1, field::Seller1CityStateZip};
inline constexpr Party kSeller2 = {field::Seller2Name, field::Seller2Addr1, field::Seller2CityStateZip};
inline constexpr Party kBuyer1 = {field::Buyer1Name, field::Buyer1Addr1, field::Buyer1CityStateZip};
inline constexpr Party kBuyer2 = {field::Buyer2Name, field::Buyer2Addr1, field::Buyer2CityStateZip};
inline constexpr Party kDecedent = {field::Decedent, field::DecedentAddr1, field::DecedentCityStateZip};
inline constexpr Party kPrincipal = {field::PrincipalOfPower, field::PrincipalAddr1,
                                     field::PrincipalCityStateZip};
inline constexpr Party kAttyInFact = {field::AttyInFact, field::AttyInFactAddr1,
                                      field::AttyInFactCityStateZip};
inline constexpr Party kAttyInFact2 = {field::AttyInFact2, field::AttyInFact2Addr1,
                                       field::AttyInFact2CityStateZip};

/// The party of this name field; null for other fields.
const Party* FindParty(Field name);

/// The job as a builder reads it: plain values and the forms derived from them. Whatever is unfilled reads as
/// its bracketed marker, so that the finished document shows the hole.
class JobValues {
 public:
    explicit JobValues(const Job& job, std::span<const std::string> documents = {})
        : job_(job), documents_(documents) {}

    const std::string& operator[](Field n) const { return job_.D(n); }
    /// A field's value, or a derived one by its number k*1000+n.
    const std::string& Numbered(int number) const { return job_.D(number); }
    bool Has(Option option) const { return job_.optConf(option); }
    /// Whether the run makes this document too; false where the job list is not known.
    bool Makes(std::string_view document) const {
        return std::ranges::find(documents_, document) != documents_.end();
    }
    /// The spare text of the field's holder, by which rules of selection leave word for builders.
    const std::string& Tag(Field n) const { return job_.txtField(n).tag; }
    bool IsFilled(Field n) const { return job_.IsFilled(n); }
    /// The picture that the field holds in place of a text, as the bytes of a Windows bitmap; empty for none.
    const std::string& Picture(Field n) const { return job_.FieldPictures.at(static_cast<std::size_t>(n)); }

    /// Line 1 and, if it is filled, ", " and line 2, which is always the field behind line 1.
    const std::string& OneLine(Field addr1) const { return Derived(1, addr1); }
    /// Line 1 and, if it is filled, line 2 as a paragraph of its own.
    std::string TwoLines(Field addr1) const;
    /// "102 Any Street, Unit 1-A, Anytown, CT 06123".
    std::string Address(const Party& party) const;
    /// "1001 Park Place, Unit 10, Anytown, CT 06123".
    std::string Property() const;

    /// "John J. Doe and Jane E. Doe" with two of them, otherwise the first name alone.
    const std::string& SellerNames() const { return Derived(1, field::Seller1Name); }
    const std::string& BuyerNames() const { return Derived(1, field::Buyer1Name); }
    /// The real estate agencies, both when there is a second.
    const std::string& BrokerNames() const { return Derived(1, field::Realtor1Name); }
    const std::string& FirstName(Field name) const { return Derived(2, name); }
    const std::string& LastName(Field name) const { return Derived(3, name); }

    /// The amount in words, in capitals.
    const std::string& Words(Field amount) const { return Derived(1, amount); }
    /// "April", "16th" and "2005".
    const std::string& Month(Field date) const { return Derived(1, date); }
    const std::string& OrdinalDay(Field date) const { return Derived(2, date); }
    const std::string& Year(Field date) const { return Derived(3, date); }
    /// "16th day of April, 2005".
    std::string DayMonthYear(Field date) const;

    /// The town of a city line, the villages of a town under the town's name.
    const std::string& Town(Field cityStateZip) const { return Derived(1, cityStateZip); }
    const std::string& CountyOfProperty() const { return Derived(2, field::PropertyCityStateZip); }
    const std::string& CountyOfExecution() const { return Derived(1, field::TownOfExecution); }

 private:
    const std::string& Derived(int part, Field n) const { return job_.D(part * 1000 + n); }

    const Job& job_;
    std::span<const std::string> documents_;
};

}  // namespace quillmark
