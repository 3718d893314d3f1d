#include "entry/filter_keys.h"

#include <gtest/gtest.h>

#include "core/field_registry.h"

namespace quillmark {
namespace {

class FilterKeys : public ::testing::Test {
 protected:
    /// Types the text key by key into the editor, whose text is selected as it opens; "<" stands for
    /// backspace.
    std::string Type(int n, std::string_view keys, std::string_view opened = {}) {
        EditorText editor{std::string(opened), 0, opened.size()};
        effect = KeyEffect::None;
        for (std::size_t at = 0; at < keys.size();) {
            std::size_t end = at + 1;
            while (end < keys.size() && (keys[end] & 0xC0) == 0x80) ++end;
            const std::string_view key = keys[at] == '<' ? kBackspace : keys.substr(at, end - at);
            const KeyPlace place{n, job};
            const TypedKey typed = TypeKey(editor, key, place, FieldMarker(n), true);
            editor = typed.editor;
            if (typed.effect != KeyEffect::None) effect = typed.effect;
            EXPECT_LE(editor.caret + editor.selection, editor.text.size());
            at = end;
        }
        return editor.text;
    }

    Job job;
    KeyEffect effect = KeyEffect::None;
};

TEST_F(FilterKeys, WordsComeBehindAHyphen) {
    const KeyPlace place{185, job};
    const EditorText beforeHyphen{"45 - Oil", 1, 0};
    EXPECT_EQ(FilterEditKey(beforeHyphen, "x", place).character, "") << "the hyphen stands behind the caret";
    EXPECT_EQ(FilterEditKey(beforeHyphen, "-", place).character, "");
    const EditorText selected{"45 - Oil", 0, 8};
    EXPECT_EQ(FilterEditKey(selected, "-", place).character, "-") << "the first hyphen is about to go";
}

TEST_F(FilterKeys, CommissionsComeFromAPercentage) {
    EXPECT_EQ(Type(86, "6%"), "6");
    EXPECT_EQ(effect, KeyEffect::MoveToSalePrice);
    job.SetField(76, "$333,333.33");
    Type(86, "6%");
    EXPECT_EQ(effect, KeyEffect::None);
}

TEST_F(FilterKeys, FixedListsAreOnlyPickedFrom) {
    EXPECT_EQ(Type(209, "Executor"), kPickFromList);
    EXPECT_EQ(effect, KeyEffect::OpenChoices);
    EXPECT_EQ(Type(191, "<", "Stewart Title Guaranty Company"), kPickFromList);
}

TEST_F(FilterKeys, PlaceholdersGiveWayToTheFirstKey) {
    for (const char* placeholder : {"[buyer lawfirm]", "(None)", "(enter check #)"}) {
        const EditorText editor{placeholder, 3, 0};
        const FilteredKey key = FilterEditKey(editor, "a", {11, job});
        EXPECT_EQ(key.editor, EditorText{}) << placeholder;
        EXPECT_EQ(key.character, "a");
        EXPECT_EQ(FilterEditKey(editor, "x", {76, job}).editor, EditorText{}) << "also for a dropped key";
        EXPECT_EQ(FilterEditKey(editor, "\"", {11, job}).editor, editor) << "a quote does nothing at all";
    }
    EXPECT_EQ(Type(11, "x", "(None) so far"), "X") << "selected, so replaced";
}

TEST_F(FilterKeys, EveryFieldTakesEveryKeyWithoutHarm) {
    job.SetField(76, "500000");
    for (int n = 0; n <= kFields; ++n) {
        std::string keys;
        for (char c = ' '; c < 0x7F; ++c) keys += c;
        const std::string text = Type(n, keys + "é€<<<");
        EXPECT_EQ(text.find('"'), std::string::npos) << n;
    }
}

}  // namespace
}  // namespace quillmark
