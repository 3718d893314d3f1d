#include "platform/record_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "platform/code_page.h"

namespace quillmark {
namespace {

using testing::HasSubstr;

std::string ErrorOf(std::string_view bytes) {
    try {
        RecordReader reader("Smith.dat", bytes);
        while (reader.Next()) {
        }
    } catch (const RecordError& error) {
        return error.what();
    }
    return "read";
}

TEST(RecordFile, WritesAndReadsEveryKindOfItem) {
    RecordWriter writer;
    writer.Write({"021", "John, J. Doe\r\nof", true});
    writer.Write({false, 255, -2.75, ""});
    EXPECT_EQ(writer.Bytes(), "\"021\",\"John, J. Doe\r\nof\",#TRUE#\r\n#FALSE#,255,-2.75,\"\"\r\n");

    RecordReader reader("f", writer.Bytes());
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Text(1), "John, J. Doe\r\nof");
    EXPECT_TRUE(reader.Boolean(2));
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.RecordNumber(), 2u);
    EXPECT_FALSE(reader.Boolean(0));
    EXPECT_EQ(reader.Number(1), 255);
    EXPECT_EQ(reader.Number(2), -2.75);
    EXPECT_EQ(reader.Text(3), "");
    EXPECT_FALSE(reader.Next());
}

TEST(RecordFile, AnyTextWithoutQuoteOrZeroSurvives) {
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        std::string bytes(random() % 40, ' ');
        for (char& c : bytes) {
            do c = static_cast<char>(random());
            while (c == '"' || c == '\0');
        }
        const std::string text = FromWindows1252(bytes);
        RecordWriter writer;
        writer.Write({text, text});
        EXPECT_EQ(writer.Bytes(), '"' + bytes + "\",\"" + bytes + "\"\r\n");
        RecordReader reader("f", writer.Bytes());
        ASSERT_TRUE(reader.Next());
        EXPECT_EQ(reader.Text(0), text);
        EXPECT_EQ(reader.Text(1), text);
        EXPECT_FALSE(reader.Next());
    }
}

TEST(RecordFile, LineEndsAndBlanksOfOtherProgramsAreRead) {
    RecordReader reader("f", "\r\n \"a\" , 1 \n\r\"b\"\t,.5\r\n\n  ");
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Text(0), "a");
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Number(1), 0.5);
    EXPECT_EQ(reader.RecordNumber(), 2u);
    EXPECT_FALSE(reader.Next());
}

TEST(RecordFile, BadRecordsAreNamedByNumber) {
    EXPECT_EQ(ErrorOf("\"a\"\r\n\"b\",\"c\r\n"), "Smith.dat, record 2: the quote of item 2 never ends");
    EXPECT_THAT(ErrorOf("\"a\"b\r\n"), HasSubstr("record 1: something follows item 1"));
    EXPECT_THAT(ErrorOf("\"a\",\r\n"), HasSubstr("item 2 is neither"));
    for (const char* bare : {"word", "#true#", "inf", "nan(7)", "1e999", "0x10", "--1", "\x1A"}) {
        EXPECT_THAT(ErrorOf(bare), HasSubstr("record 1: item 1 is neither")) << bare;
    }
    EXPECT_THAT(ErrorOf(std::string_view("\"a\0b\"", 5)), HasSubstr("zero character"));
    EXPECT_THAT(ErrorOf(std::string_view("\0", 1)), HasSubstr("item 1"));
    EXPECT_THAT(ErrorOf(std::string(200, ',')), HasSubstr("item 1"));
    std::string many = "1";
    for (int i = 0; i < 100; ++i) many += ",1";
    EXPECT_THAT(ErrorOf(many), HasSubstr("more than 64 items"));
}

TEST(RecordFile, AnItemOfAnotherKindIsNamed) {
    RecordReader reader("f", "\"a\",1");
    reader.Next();
    EXPECT_THROW(reader.Number(0), RecordError);
    EXPECT_THROW(reader.Boolean(1), RecordError);
    EXPECT_THROW(reader.Text(2), RecordError);
}

TEST(RecordFile, AnUnwritableTextLeavesNothingOfItsRecord) {
    RecordWriter writer;
    EXPECT_THROW(writer.Write({"a", "say \"b\""}), UnencodableError);
    EXPECT_THROW(writer.Write({"a", std::string_view("\0", 1)}), UnencodableError);
    EXPECT_THROW(writer.Write({"a", "ł"}), UnencodableError);
    EXPECT_EQ(writer.Bytes(), "");
}

}  // namespace
}  // namespace quillmark
