#include "core/job_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include "core/job_file.h"
#include "core/job_ledger.h"
#include "core/job_saves.h"
#include "support/file_faults.h"
#include "support/scratch.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::WriteBytes;
using testing::IsEmpty;

constexpr std::string_view kOldPicture = "BM old picture", kNewPicture = "BM new picture";

/// Every file of the folder that a person would know of.
using Contents = std::map<std::string, std::string>;

class JobFolderTest : public ::testing::Test {
 protected:
    JobFolderTest() {
        folders.JobFolder = scratch / "data";
        folders.ImagesFolder = scratch / "data/images";
    }

    static Job JobOf(std::string name, std::string_view seller, std::string_view picture) {
        Job job;
        job.name = std::move(name);
        job.SetField(21, seller);
        if (picture.empty()) return job;
        job.SetField(201, kImageLiteral);
        job.FieldPictures[201] = picture;
        return job;
    }
    void Begin() {
        fs::remove_all(folders.JobFolder);
        fs::create_directories(folders.ImagesFolder);
        SaveJobFiles(folders, JobOf("Abbott", "Anna Abbott", kOldPicture));
    }
    Contents Known() const {
        Contents contents;
        for (const auto& entry : fs::recursive_directory_iterator(folders.JobFolder)) {
            const std::string name = entry.path().filename().string();
            if (entry.is_regular_file() && !name.starts_with('.')) contents[name] = ReadBytes(entry.path());
        }
        return contents;
    }

    /// The action leaves all as before or all as after, at a kill and at a failure of any of its operations.
    void ExpectAllOrNothing(const std::string& what, const std::function<void()>& action) {
        SCOPED_TRACE(what);
        Begin();
        const Contents before = Known();
        action();
        const Contents after = Known();
        ASSERT_NE(before, after);
        const int kills = test::KillBeforeEveryStep(
            [&] { Begin(); }, action,
            [&](int step) {
                MendJobFolder(folders);
                const Contents now = Known();
                EXPECT_TRUE(now == before || now == after) << "killed before operation " << step;
                EXPECT_EQ(fs::exists(folders.JobFolder / ".quillmark-change"), false);
            });
        EXPECT_GE(kills, 3);
        for (const test::Failing failing : {test::Failing::Once, test::Failing::FromThenOn}) {
            test::FailAtEveryStep(
                failing, FileError::Kind::DiskFull, [&] { Begin(); }, action,
                [&](int step, bool threw) {
                    MendJobFolder(folders);
                    EXPECT_EQ(Known() == before, threw) << "operation " << step << " failed";
                    EXPECT_TRUE(threw || Known() == after) << "operation " << step << " failed";
                });
        }
    }

    test::ScratchFolder scratch;
    Folders folders;
};

TEST_F(JobFolderTest, AJobAndItsPicturesAreOneThroughKillsAndFailures) {
    ExpectAllOrNothing("save", [&] { SaveJobFiles(folders, JobOf("Abbott", "Ann Pell", kNewPicture)); });
    ExpectAllOrNothing("drop the picture", [&] { SaveJobFiles(folders, JobOf("Abbott", "Ann Pell", {})); });
    ExpectAllOrNothing("rename", [&] { RenameJobFiles(folders, "Abbott", "Pell"); });
    ExpectAllOrNothing("delete", [&] { DeleteJobFiles(folders, "Abbott"); });
    ExpectAllOrNothing("new job", [&] { SaveJobFiles(folders, JobOf("Whitcomb", "W", kNewPicture)); });
}

TEST_F(JobFolderTest, OnlyWhatWasSeenIsReplacedAndAPictureThatCameBackStays) {
    Begin();
    Job job;
    job.name = "Abbott";
    JobOnDisk seen = ReadJobFile(folders, JobFilePath(folders, "Abbott"), job, false).onDisk;
    WriteBytes(folders.ImagesFolder / "Abbott_201.bmp", kNewPicture);
    EXPECT_FALSE(SaveJobFiles(folders, job, {&seen})) << "another has changed the picture";
    EXPECT_EQ(ReadBytes(folders.ImagesFolder / "Abbott_201.bmp"), kNewPicture);
    EXPECT_EQ(LastSaveOf(folders, "Abbott").substr(0, 9), "saved by ");

    fs::remove(folders.ImagesFolder / "Abbott_201.bmp");
    Job without;
    without.name = "Abbott";
    ReadJobFile(folders, JobFilePath(folders, "Abbott"), without, false);
    WriteBytes(folders.ImagesFolder / "Abbott_201.bmp", kOldPicture);
    SaveJobFiles(folders, without);
    EXPECT_EQ(ReadBytes(folders.ImagesFolder / "Abbott_201.bmp"), kOldPicture);
}

/// A record of changes that came from elsewhere makes the program touch nothing beyond its folder.
TEST_F(JobFolderTest, ARecordOfChangesThatIsNotOursIsSetAside) {
    Begin();
    WriteBytes(scratch / "important.txt", "mine");
    WriteBytes(folders.JobFolder / ".quillmark-change", "quillmark change 1\nP16:../important.txt1:x0:=1.0");
    MendJobFolder(folders);
    EXPECT_EQ(ReadBytes(scratch / "important.txt"), "mine");
    EXPECT_TRUE(fs::exists(folders.JobFolder / ".quillmark-change.damaged"));
}

TEST_F(JobFolderTest, WhatAReaderWouldRefuseIsNotWritten) {
    Begin();
    Job job = JobOf("Abbott", std::string(kLongestValue + 1, 'x'), {});
    EXPECT_THROW(SaveJobFiles(folders, job), JobFileError);
    job = JobOf("Abbott", "A", {});
    for (std::size_t i = 0; i <= kMostDocuments; ++i) job.JobDocuments += "Deed:";
    EXPECT_THROW(SaveJobFiles(folders, job), JobFileError);
    EXPECT_EQ(ReadBytes(folders.ImagesFolder / "Abbott_201.bmp"), kOldPicture);
}

/// With its share away a folder is not built anew on the local disk, and serves again when it is back.
TEST_F(JobFolderTest, AFolderThatWentAwayIsToldAndServesAgainWhenItReturns) {
    Begin();
    const fs::path away = scratch / "away";
    fs::rename(folders.JobFolder, away);
    const Job job = JobOf("Pell", "Pia Pell", kNewPicture);
    EXPECT_THROW(SaveJobFiles(folders, job), FileError);
    EXPECT_THROW(DeleteJobFiles(folders, "Abbott"), FileError);
    EXPECT_THROW(RenameJobFiles(folders, "Abbott", "Pell"), FileError);
    EXPECT_FALSE(fs::exists(folders.JobFolder));
    fs::rename(away, folders.JobFolder);
    SaveJobFiles(folders, job);
    EXPECT_EQ(ReadBytes(folders.ImagesFolder / "Pell_201.bmp"), kNewPicture);
}

TEST_F(JobFolderTest, WhatSeveralProgramsWereToldIsSavedIsThere) {
    const test::LedgerResult result = test::JobLedger(scratch.path(), {}).Run();
    EXPECT_EQ(result.failed, 0);
    EXPECT_GT(result.saved, 20);
    EXPECT_THAT(result.lost, IsEmpty());
    EXPECT_THAT(result.revived, IsEmpty());
    EXPECT_THAT(result.mismatch, IsEmpty());
}

}  // namespace
}  // namespace quillmark
