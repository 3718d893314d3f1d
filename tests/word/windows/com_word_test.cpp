#include "word/com/com_word.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "word/com/com_clipboard.h"
#include "word/com/com_text.h"
#include "word/engine_session.h"
#include "word/start.h"
#include "word/word.h"

namespace quillmark::word {
namespace {

// The automation of Windows is tried on the servers that every Windows has.

Value Call(const ObjectPtr& object, std::string_view member, std::initializer_list<Argument> arguments) {
    return object->Call(member, Arguments(arguments.begin(), arguments.size()));
}

Value Text(std::string_view text) {
    return std::string(text);
}

TEST(ComObject, ValuesGoInAndComeBack) {
    const ObjectPtr dictionary = CreateComObject("Scripting.Dictionary");
    const Value values[] = {true, std::int32_t{-7}, 50.4, Text("§ 47-36a – Müller\r\v"), Text("")};
    for (const Value& value : values) {
        dictionary->Call("RemoveAll");
        Call(dictionary, "Add", {{Text("key")}, {value}});
        const Argument key{Text("key")};
        EXPECT_EQ(dictionary->Get("Item", Arguments(&key, 1)), value);
    }
    EXPECT_EQ(ToWhole(dictionary->Get("Count")), 1);
    EXPECT_TRUE(ToFlag(Call(dictionary, "Exists", {{Text("key")}})));
    dictionary->Call("RemoveAll");
    dictionary->Put("CompareMode", std::int32_t{1});
    Call(dictionary, "Add", {{Text("key")}, {true}});
    EXPECT_TRUE(ToFlag(Call(dictionary, "Exists", {{Text("KEY")}})));
}

TEST(ComObject, ObjectsArePassedOn) {
    const ObjectPtr outer = CreateComObject("Scripting.Dictionary");
    const ObjectPtr inner = CreateComObject("Scripting.Dictionary");
    Call(inner, "Add", {{std::int32_t{1}}, {Text("one")}});
    Call(outer, "Add", {{Text("inner")}, {inner}});
    const Argument key{Text("inner")};
    const Value back = outer->Get("Item", Arguments(&key, 1));
    EXPECT_EQ(ToWhole(std::get<ObjectPtr>(back)->Get("Count")), 1);
    const auto engine = docx::objects::StartEngine();
    EXPECT_EQ(test::ErrorOf([&] {
                  Call(outer, "Add", {{Text("foreign")}, {engine}});
              }),
              error::kTypeMismatch);
}

TEST(ComObject, ArgumentsKeepTheirOrderAndTheirNames) {
    const ObjectPtr files = CreateComObject("Scripting.FileSystemObject");
    EXPECT_EQ(ToText(Call(files, "BuildPath", {{Text("C:\\jobs")}, {Text("a.dat")}})), "C:\\jobs\\a.dat");
    EXPECT_EQ(ToText(Call(files, "BuildPath", {{Text("a.dat"), "Name"}, {Text("C:\\jobs"), "Path"}})),
              "C:\\jobs\\a.dat");
    EXPECT_EQ(ToText(Call(files, "BuildPath", {{Text("C:\\jobs")}, {Text("a.dat"), "Name"}})),
              "C:\\jobs\\a.dat");
}

TEST(ComObject, RefusalsBearTheirNumbers) {
    const ObjectPtr dictionary = CreateComObject("Scripting.Dictionary");
    const auto add = [&] { Call(dictionary, "Add", {{Text("key")}, {true}}); };
    add();
    EXPECT_EQ(test::ErrorOf(add), 457);
    EXPECT_EQ(test::ErrorOf([&] { dictionary->Call("NoSuchThing"); }), error::kNoSuchMember);
    EXPECT_EQ(test::ErrorOf([&] { dictionary->Get("NoSuchThing"); }), error::kNoSuchMember);
    EXPECT_EQ(test::ErrorOf([] { CreateComObject("No.Such.Class"); }), error::kCannotCreate);
}

TEST(SystemClipboard, HoldsTextsAndRefusesWhatIsNoPicture) {
    SystemClipboard clipboard;
    clipboard.SetText("one\rtwo");
    ASSERT_TRUE(OpenClipboard(nullptr));
    const auto* text = static_cast<const wchar_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
    EXPECT_EQ(FromWide(text), "one\r\ntwo");
    CloseClipboard();
    clipboard.Clear();
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_UNICODETEXT));
    clipboard.SetPicture(std::string("\x89PNG\r\n\x1a\n", 8), {});
    EXPECT_TRUE(IsClipboardFormatAvailable(RegisterClipboardFormatW(L"PNG")));
    EXPECT_EQ(test::ErrorOf([&] { clipboard.SetPicture("GIF89a", {}); }), error::kBadValue);
}

}  // namespace
}  // namespace quillmark::word
