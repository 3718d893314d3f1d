#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

TEST(CodePage, EveryByteComesBackUnchanged) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    const std::string text = FromWindows1252(bytes);
    EXPECT_EQ(ToWindows1252(text), bytes);
    EXPECT_FALSE(FirstUnencodable(text));
}

TEST(CodePage, TypographicCharactersHaveTheirWindowsBytes) {
    EXPECT_EQ(ToWindows1252("Secretary’s “€” – Café Ÿ"), "Secretary\x92s \x93\x80\x94 \x96 Caf\xE9 \x9F");
    EXPECT_EQ(FromWindows1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(CodePage, TheCharacterThatIsMissingIsNamed) {
    const auto where = FirstUnencodable("Café Wałęsa");
    ASSERT_TRUE(where);
    EXPECT_EQ(where->offset, 8u);
    EXPECT_EQ(where->character, "ł");
    EXPECT_EQ(where->name, "the character \"ł\" (U+0142)");
    EXPECT_THROW(ToWindows1252("😀"), UnencodableError);
}

TEST(CodePage, BytesThatAreNoUtf8AreRefused) {
    for (const char* text : {"\xFF", "\x80", "A\xC3", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80",
                             "\xF4\x90\x80\x80", "\xE2\x82", "\xC3("}) {
        const auto where = FirstUnencodable(text);
        ASSERT_TRUE(where) << text;
        EXPECT_TRUE(where->character.empty()) << text;
        EXPECT_EQ(UpperCase(text), text);
    }
}

TEST(CodePage, CapitalsStayWithinTheCodePage) {
    EXPECT_EQ(UpperCase("Regency café ÷ ÿ ß œ š ž µ ƒ"), "REGENCY CAFÉ ÷ Ÿ ß Œ Š Ž µ ƒ");
}

}  // namespace
}  // namespace quillmark
