#include <gtest/gtest.h>

#include <optional>

#include "word/engine_session.h"
#include "word/scripted_object.h"
#include "word/word.h"

namespace quillmark::word {
namespace {

std::string TextIn(const test::ScriptedPtr& object) {
    return std::get<std::string>(object->Last("Text"));
}

TEST(Face, AKeptObjectCanBeAssignedAndItsMembersFollow) {
    const auto first = std::make_shared<test::ScriptedObject>();
    const auto second = std::make_shared<test::ScriptedObject>();
    Range range{first};
    range.Text = "one";
    range = Range{second};
    range.Text = "two";
    range.Font.Size = 9;
    EXPECT_EQ(TextIn(first), "one");
    EXPECT_EQ(TextIn(second), "two");
    EXPECT_EQ(std::get<double>(second->Child("Font")->Last("Size")), 9);

    Document document;
    EXPECT_FALSE(document);
    document = Document{first};
    document.Content.ParagraphFormat.Alignment = AlignCentre;
    EXPECT_TRUE(document.Content);
    EXPECT_EQ(std::get<std::int32_t>(first->Child("Content")->Child("ParagraphFormat")->Last("Alignment")),
              1);
}

TEST(Face, ACopyOfAMemberHoldsItsObjectWhenTheOwnerIsGone) {
    const auto table = std::make_shared<test::ScriptedObject>();
    const auto cell = table->Child("Cell");
    table->Answers("Cell", [cell](Arguments) { return Value(ObjectPtr(cell)); });
    const Range kept = Table{table}.Cell(1, 2).Range;
    kept.Text = "kept";
    EXPECT_EQ(TextIn(cell->Child("Range")), "kept");

    const auto application = std::make_shared<test::ScriptedObject>();
    std::optional<Application> word{Application{application}};
    const Selection selection = word->Selection;
    word.reset();
    selection.Font.Bold = true;
    EXPECT_TRUE(std::get<bool>(application->Child("Selection")->Child("Font")->Last("Bold")));
}

TEST(Face, AHandleWithoutAnObjectSaysSo) {
    EXPECT_EQ(test::ErrorOf([] { Range().Text = "x"; }), error::kObjectNotSet);
    EXPECT_EQ(test::ErrorOf([] { Document().PageSetup.TextColumns.SetCount(2); }), error::kObjectNotSet);
    const auto document = std::make_shared<test::ScriptedObject>();
    document->Child("Tables")->Answers("Add", [](Arguments) { return Value{}; });
    const Document handle{document};
    EXPECT_EQ(test::ErrorOf([&] { handle.Tables.Add(handle.Content, 1, 1); }), error::kObjectNotSet);
    const Range copyOfNone = Range();
    EXPECT_FALSE(copyOfNone);
}

TEST(Face, ValuesPassForEachOtherAsTheModelAllows) {
    EXPECT_TRUE(ToFlag(std::int32_t{-1}));
    EXPECT_FALSE(ToFlag(std::int32_t{0}));
    EXPECT_TRUE(ToFlag(true));
    EXPECT_EQ(ToWhole(11.6), 12);
    EXPECT_EQ(ToWhole(-0.6), -1);
    EXPECT_EQ(ToWhole(true), -1);
    EXPECT_EQ(ToNumber(std::int32_t{7}), 7);
    EXPECT_EQ(ToNumber(std::string("15.5")), 15.5);
    EXPECT_EQ(ToNumber(std::string("16.0 beta")), 16);
    for (const Value& none : {Value{}, Value{std::string("none")}, Value{ObjectPtr{}}}) {
        EXPECT_EQ(test::ErrorOf([&] { ToWhole(none); }), error::kTypeMismatch);
        EXPECT_EQ(test::ErrorOf([&] { ToFlag(none); }), error::kTypeMismatch);
    }
    EXPECT_EQ(test::ErrorOf([] { ToWhole(3e10); }), error::kTypeMismatch);
    EXPECT_EQ(test::ErrorOf([] { ToText(std::int32_t{1}); }), error::kTypeMismatch);
}

}  // namespace
}  // namespace quillmark::word
