#include "core/job_file.h"
#include "core/job_folder.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/record_file.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::ScratchFolder;
using test::WriteBytes;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

constexpr std::size_t kScheduleA = 201;
const std::string kBitmap("BM\0\0picture", 11);

std::string OptionRecords(std::initializer_list<int> set) {
    std::string records;
    for (int n = 1; n <= kOptions; ++n) {
        const bool on = std::find(set.begin(), set.end(), n) != set.end();
        records += fmt::format("\"C{:02}\",{}\r\n", n, on ? "#TRUE#" : "#FALSE#");
    }
    return records;
}

const std::string kStartOptions = OptionRecords({1, 3, 5, 7, 12});

Job JobOf(std::string_view bytes) {
    Job job;
    ApplyJobFile(JobFileContentsOf("Smith.dat", bytes), job, false);
    return job;
}

std::string ErrorOf(std::string_view bytes) {
    try {
        JobOf(bytes);
    } catch (const RecordError& error) {
        return error.what();
    } catch (const JobFileError& error) {
        return error.what();
    }
    return "read";
}

struct JobFileOnDisk : testing::Test {
    const ScratchFolder folder;
    Folders folders = FoldersOf(folder.path(), {});
    Job job;

    JobFileOnDisk() {
        fs::create_directories(folders.JobFolder);
        job.name = "Smith - 1 Any Street";
        job.SetField(kScheduleA, kImageLiteral);
        job.FieldPictures[kScheduleA] = kBitmap;
    }
    fs::path Picture(std::string_view name) const { return folders.ImagesFolder / name; }
};

TEST(JobFile, HasExactlyTheseBytes) {
    Job job;
    job.JobDocuments = "Deed / Warranty:Agreement Re: Mortgage Release:Secretary’s Certificate / Corporate:";
    job.SetOption(OneSeller, false);
    job.SetOption(TwoSellers, true);
    job.SetField(1, "April 16, 2005");
    job.SetField(21, "John J. Doe");
    job.SetField(23, "");
    job.SetField(59, "[buyer 1 name]");
    job.SetField(76, "$500,000.00");
    job.SetField(202, "1. Taxes, \"if any\".\r\n2. Café easement.");
    job.SetField(3, "Jane Roe");
    job.txtField(3).top = 0;
    job.userFields = {{"[lot fee]", "250"}, {"[open]", ""}, {"[road fee]", "9"}};
    EXPECT_EQ(JobFileRecords(job),
              "\"000\",\"Deed / Warranty\"\r\n"
              "\"000\",\"Agreement Re\"\r\n"
              "\"000\",\" Mortgage Release\"\r\n"
              "\"000\",\"Secretary\x92s Certificate / Corporate\"\r\n" +
                  OptionRecords({2, 3, 5, 7, 12}) +
                  "\"021\",\"John J. Doe\"\r\n"
                  "\"076\",\"$500,000.00\"\r\n"
                  "\"202\",\"1. Taxes, 'if any'.\r\n2. Caf\xE9 easement.\"\r\n"
                  "\"[road fee]\",\"9\"\r\n"
                  "\"[lot fee]\",\"250\"\r\n");
}

TEST(JobFile, AnEmptyJobIsFifteenOptions) {
    EXPECT_EQ(JobFileRecords(Job()), kStartOptions);
    EXPECT_EQ(JobFileRecords(JobOf("")), kStartOptions);
}

TEST(JobFile, RandomJobsComeBackAsTheyWere) {
    std::mt19937 random(20050416);
    const auto text = [&] {
        std::string bytes(1 + random() % 60, ' ');
        for (char& c : bytes) {
            do c = random() % 4 ? "a,\r\n'#:_ "[random() % 9] : static_cast<char>(random());
            while (c == '"' || c == '\0');
        }
        return FromWindows1252(bytes);
    };
    for (int round = 0; round < 200; ++round) {
        Job job;
        for (auto i = random() % 5; i > 0; --i) job.JobDocuments += text() + ':';
        for (auto i = random() % 40; i > 0; --i) {
            const int n = static_cast<int>(random() % 212) + 2;
            if (n != 172) job.SetField(n, text());
        }
        for (auto i = random() % 8; i > 0; --i) job.userFields.emplace_back(fmt::format("[f{}]", i), text());

        const Job loaded = JobOf(JobFileRecords(job));
        EXPECT_EQ(loaded.JobDocuments, job.JobDocuments);
        for (int n = 1; n <= kFields; ++n)
            EXPECT_EQ(loaded.D(n), job.D(n)) << "field " << n << ", round " << round;
        for (int n = 1; n <= kOptions; ++n) EXPECT_EQ(loaded.optConf(n), job.optConf(n));
        EXPECT_THAT(job.userFields, testing::UnorderedElementsAreArray(loaded.userFields));
    }
}

TEST(JobFile, LoadedFieldsRunTheirRulesAndAreLocked) {
    const auto contents = JobFileContentsOf("f", "\"000\",\"Deed / Warranty\"\r\n\"021\",\"Doe\"\r\n");
    Job job;
    job.JobDocuments = "Closing Statement:";
    int changed = 0;
    job.SetChangeRule([&](Job& changing, int n) {
        changed = n;
        if (n == 21) changing.SetDerived(3, 21, "DOE");
    });
    ApplyJobFile(contents, job, false);
    EXPECT_EQ(job.JobDocuments, "Closing Statement:Deed / Warranty:");
    EXPECT_EQ(job.D(3021), "DOE");
    EXPECT_EQ(changed, 21);
    EXPECT_TRUE(job.txtField(21).locked);
    EXPECT_FALSE(job.txtField(22).locked);

    Job fromTemplate;
    ApplyJobFile(contents, fromTemplate, true);
    EXPECT_EQ(fromTemplate.D(21), "Doe");
    EXPECT_FALSE(fromTemplate.txtField(21).locked);
    EXPECT_EQ(fromTemplate.JobDocuments, "") << "a template has no documents";
}

TEST(JobFile, OneOptionOfAGroupIsSet) {
    const Job job = JobOf("\"C02\",#TRUE#\r\n\"C09\",#FALSE#\r\n\"C13\",#TRUE#\r\n\"C07\",#FALSE#\r\n");
    EXPECT_EQ(JobFileRecords(job), OptionRecords({2, 3, 5, 12, 13}));
}

TEST(JobFile, OtherVersionsFilesAreRead) {
    const Job job = JobOf(
        "\"C16\",#TRUE#\r\n\"21\",\"Doe\"\r\n\"172\",\"retired\"\r\n\"001\",\"May 1, 2004\"\r\n\"[fee]\",\"\"\r\n");
    EXPECT_EQ(job.D(21), "Doe");
    EXPECT_EQ(JobFileRecords(job), kStartOptions + "\"021\",\"Doe\"\r\n");
}

TEST(JobFile, AFileOfANewerVersionAndOneInUtf8AreToldOf) {
    using testing::ElementsAre;
    using testing::IsEmpty;
    const auto noticesOf = [](std::string_view bytes) {
        return JobFileContentsOf("Smith.dat", bytes).notices;
    };
    EXPECT_THAT(
        noticesOf("\"C16\",#TRUE#\r\n"),
        ElementsAre("Smith.dat was saved by a newer version of Quillmark: option C16 is not known here "
                    "and is left out."));
    const std::string utf8 = "\"021\",\"Ren\xC3\xA9 \xE2\x80\x93 Roe\"\r\n";
    EXPECT_THAT(noticesOf(utf8),
                ElementsAre("Smith.dat is UTF-8 text and was read as such; job files are windows-1252."));
    EXPECT_EQ(JobOf(utf8).D(21), "Ren\xC3\xA9 \xE2\x80\x93 Roe");
    EXPECT_EQ(JobOf("\xEF\xBB\xBF\"021\",\"Doe\"\r\n").D(21), "Doe") << "a mark at the beginning";
    EXPECT_THAT(noticesOf("\"021\",\"Ren\xE9 Roe\"\r\n"), IsEmpty());
    EXPECT_EQ(JobOf("\"021\",\"\xC3\xA9 \xE9\"\r\n").D(21), "\xC3\x83\xC2\xA9 \xC3\xA9")
        << "what is not UTF-8 throughout is windows-1252";
    EXPECT_THAT(ErrorOf("\"021\",\"\xC5\x81ukasz\"\r\n"), HasSubstr("is UTF-8 text and holds the character"));
}

TEST(JobFile, OptionsOfOneGroupThatAreBothSetAreRefused) {
    EXPECT_EQ(ErrorOf("\"C01\",#TRUE#\r\n\"C02\",#TRUE#\r\n"),
              "Smith.dat: the options \"1 Seller\" and \"2 Sellers\" contradict each other");
    EXPECT_THAT(ErrorOf("\"C09\",#TRUE#\r\n\"C13\",#TRUE#\r\n"),
                HasSubstr("\"Condo\" and \"Land / Multi-Fam\""));
    EXPECT_EQ(ErrorOf("\"C02\",#TRUE#\r\n"), "read") << "takes the place of the option of a new job";
}

TEST(JobFile, WhatCannotBeReadIsNamedByRecordFieldAndValue) {
    EXPECT_EQ(
        ErrorOf("\"021\",\"Doe\"\r\n\"241\",\"x\"\r\n"),
        "Smith.dat, record 2: there is no field 241 yet: the job was saved by a newer version of Quillmark");
    for (const char* key : {"0", "-21", "+21", "2 1", "0021", "2147483648", "x", "", "Deed", " 021"}) {
        EXPECT_THAT(ErrorOf(fmt::format("\"{}\",\"x\"\r\n", key)), HasSubstr("is no field")) << key;
    }
    EXPECT_THAT(ErrorOf("\"214\",\"kept\""), HasSubstr("field 214 (\"kept\") is not known to this version"));
    for (const char* key : {"C", "C00", "C1", "CXX", "C-1", "C001"}) {
        EXPECT_THAT(ErrorOf(fmt::format("\"{}\",#TRUE#\r\n", key)), HasSubstr("is no option")) << key;
    }
    EXPECT_THAT(ErrorOf("\"C01\",\"TRUE\""), HasSubstr("item 2 is not #TRUE# or #FALSE#"));
    EXPECT_THAT(ErrorOf("\"021\",21"), HasSubstr("item 2 is not a quoted text"));
    EXPECT_THAT(ErrorOf("\"000\",#TRUE#"), HasSubstr("item 2 is not a quoted text"));
    EXPECT_THAT(ErrorOf("21,\"x\""), HasSubstr("item 1 is not a quoted text"));
    EXPECT_THAT(ErrorOf("\"021\"\r\n\"Doe\"\r\n"), HasSubstr("\"021\" has 1 items instead of two"));
    EXPECT_THAT(ErrorOf("\"021\",\"Doe\",\"x\"\r\n"), HasSubstr("has 3 items"));
    EXPECT_THAT(ErrorOf("\"021\",\"Doe"), HasSubstr("never ends"));
    std::string many;
    for (int i = 0; i <= 500; ++i) many += fmt::format("\"[f{}]\",\"x\"\r\n", i);
    EXPECT_THAT(ErrorOf(many), HasSubstr("record 501: [f500] is more than the 500 user-defined fields"));
}

TEST(JobFile, AFailureChangesNothingInTheOpenJob) {
    Job job;
    job.SetField(21, "Open");
    job.userFields.resize(kUserFields, {"[f]", "x"});
    const std::string before = JobFileRecords(job);
    const auto overfull = JobFileContentsOf("f", "\"021\",\"Doe\"\r\n\"[g]\",\"x\"\r\n");
    EXPECT_THROW(ApplyJobFile(overfull, job, false), JobFileError);
    job.SetChangeRule([](Job&, int n) {
        if (n == 76) throw std::runtime_error("a rule failed");
    });
    const auto failing = JobFileContentsOf("f", "\"C02\",#TRUE#\r\n\"021\",\"Doe\"\r\n\"076\",\"x\"\r\n");
    EXPECT_THROW(ApplyJobFile(failing, job, false), std::runtime_error);
    EXPECT_EQ(JobFileRecords(job), before);
}

TEST(JobFile, WhatCannotBeWrittenIsNamed) {
    Job job;
    job.SetField(21, "Wałęsa");
    try {
        JobFileRecords(job);
        FAIL();
    } catch (const JobFileError& error) {
        EXPECT_STREQ(error.what(),
                     "[seller 1 name]: the character \"ł\" (U+0142) cannot be kept in a data file");
    }
}

TEST(JobFile, AUserFieldThatWouldNotBeReadBackIsNotWritten) {
    Job job;
    job.userFields = {{"C01", "x"}};
    EXPECT_THROW(JobFileRecords(job), JobFileError);
}

TEST(JobFile, NamesAreCheckedAndTemplatesKnown) {
    for (const char c : std::string_view("\\/:*?<>|{}\""))
        EXPECT_TRUE(HoldsIllegalNameCharacter({&c, 1})) << c;
    EXPECT_FALSE(HoldsIllegalNameCharacter("Smith & O'Hara - #1 (50%), Café"));
    EXPECT_EQ(TemplateName("Regency"), "{ REGENCY_template }");
    EXPECT_TRUE(IsTemplateName(TemplateName("x")));
    EXPECT_FALSE(IsTemplateName("Smith"));
}

TEST_F(JobFileOnDisk, ASavedJobIsReadWithItsPicture) {
    SaveJobFiles(folders, job);
    EXPECT_EQ(ReadBytes(folder / "data/Smith - 1 Any Street.dat"), JobFileRecords(job));
    EXPECT_EQ(ReadBytes(Picture("Smith - 1 Any Street_201.bmp")), kBitmap);

    Job loaded;
    ReadJobFile(folders, JobFilePath(folders, "SMITH - 1 any street"), loaded, false);
    EXPECT_EQ(loaded.FieldPictures[kScheduleA], kBitmap);

    const Job withPicture = job;
    job.FieldPictures[kScheduleA].clear();
    job.SetField(kScheduleA, "Lot 1");
    WriteBytes(Picture("Smith - 1 Any Street_241.bmp"), "no field's");
    WriteBytes(Picture("Smith - 1 Any Street_0201.bmp"), "no field's");
    WriteBytes(Picture("Smith - 1 Any Street_x_201.bmp"), "another job's");
    SaveJobFiles(folders, job);
    EXPECT_FALSE(fs::exists(Picture("Smith - 1 Any Street_201.bmp"))) << "a picture removed from its field";
    EXPECT_TRUE(fs::exists(Picture("Smith - 1 Any Street_241.bmp")));
    EXPECT_TRUE(fs::exists(Picture("Smith - 1 Any Street_0201.bmp")));
    EXPECT_TRUE(fs::exists(Picture("Smith - 1 Any Street_x_201.bmp")));

    Job without;
    SaveJobFiles(folders, withPicture);
    fs::remove(Picture("Smith - 1 Any Street_201.bmp"));
    ReadJobFile(folders, JobFilePath(folders, job.name), without, false);
    EXPECT_EQ(without.D(kScheduleA), kImageLiteral);
    EXPECT_EQ(without.FieldPictures[kScheduleA], "");
}

TEST_F(JobFileOnDisk, AnotherCaseOfANameIsTheSameJob) {
    SaveJobFiles(folders, job);
    job.name = "SMITH - 1 ANY STREET";
    job.SetField(21, "Doe");
    SaveJobFiles(folders, job);
    EXPECT_THAT(ReadBytes(folder / "data/Smith - 1 Any Street.dat"), HasSubstr("Doe"));
    EXPECT_FALSE(fs::exists(folder / "data/SMITH - 1 ANY STREET.dat"));
    EXPECT_FALSE(fs::exists(Picture("SMITH - 1 ANY STREET_201.bmp")));
}

TEST_F(JobFileOnDisk, AFailedSaveLeavesTheOldFile) {
    SaveJobFiles(folders, job);
    const std::string before = ReadBytes(JobFilePath(folders, job.name));
    job.SetField(21, "Wałęsa");
    job.FieldPictures[kScheduleA].clear();
    EXPECT_THROW(SaveJobFiles(folders, job), JobFileError);
    EXPECT_EQ(ReadBytes(JobFilePath(folders, job.name)), before);
    EXPECT_TRUE(fs::exists(Picture("Smith - 1 Any Street_201.bmp")));
    for (const char* name : {"", "a/b", "..\\x", "{}", "{ a:b }", "a\"b", "{", "a{b}", "a\nb"}) {
        Job unnamed;
        unnamed.name = name;
        EXPECT_THROW(SaveJobFiles(folders, unnamed), JobFileError) << name;
    }
    job = Job();
    job.name = TemplateName("Regency");
    SaveJobFiles(folders, job);
    EXPECT_TRUE(fs::exists(folder / "data/{ REGENCY_template }.dat"));
}

TEST_F(JobFileOnDisk, FilesThatAreNoJobsAreRefusedWhole) {
    WriteBytes(folder / "data/big.dat", std::string(kJobFileLimit + 1, ' '));
    EXPECT_THROW(ReadJobFile(folders, JobFilePath(folders, "big"), job, false), FileError);
    EXPECT_THROW(ReadJobFile(folders, JobFilePath(folders, "none"), job, false), FileError);
    SaveJobFiles(folders, job);
    const std::string whole = ReadBytes(JobFilePath(folders, job.name));
    for (std::size_t cut = whole.size() - 46; cut < whole.size() - 2; ++cut) {
        const std::string torn = whole.substr(0, cut);
        EXPECT_THROW(JobOf(torn), RecordError) << torn;
    }
}

TEST_F(JobFileOnDisk, RenamingTakesThePicturesAlong) {
    SaveJobFiles(folders, job);
    WriteBytes(folder / "data/Taken.dat", "");
    EXPECT_FALSE(RenameJobFiles(folders, job.name, "taken"));
    EXPECT_TRUE(RenameJobFiles(folders, job.name, "Jones"));
    EXPECT_TRUE(fs::exists(folder / "data/Jones.dat"));
    EXPECT_FALSE(fs::exists(folder / "data/Smith - 1 Any Street.dat"));
    EXPECT_EQ(ReadBytes(Picture("Jones_201.bmp")), kBitmap);
    EXPECT_TRUE(RenameJobFiles(folders, "Jones", "JONES")) << "only the case";
    EXPECT_THROW(RenameJobFiles(folders, "JONES", "a:b"), JobFileError);
    EXPECT_THROW(RenameJobFiles(folders, "gone", "b"), FileError);

    DeleteJobFiles(folders, "jones");
    EXPECT_FALSE(fs::exists(folder / "data/JONES.dat"));
    EXPECT_TRUE(fs::is_empty(folders.ImagesFolder));
}

}  // namespace
}  // namespace quillmark
