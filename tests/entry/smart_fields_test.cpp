#include "entry/smart_fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <random>

#include "core/job.h"

namespace quillmark {
namespace {

std::map<int, std::string> AllValues(const Job& job) {
    std::map<int, std::string> values;
    for (int k = 0; k <= 4; ++k)
        for (int n = 1; n <= kFields; ++n) values[k * 1000 + n] = job.D(k * 1000 + n);
    return values;
}

/// What users type, and what they should not.
const std::vector<std::string> kEntries = {
    "Mary Ann Jones",
    "Acme Realty LLC",
    "Sr",
    "12 Oak St",
    "Unit 5, Rear",
    "Goshen, CT 06756",
    "Rowayton, CT 06853",
    "Stamford CT 06901",
    "2035550123",
    "043123456",
    "500000",
    "$1,000.00 - D",
    "1000 - p",
    "450 - Title -x",
    "250 = u",
    "-100",
    "1000 -",
    "- -",
    "=",
    "abc - def",
    "POC - P",
    "a / b/c",
    "/",
    "   ",
    "March 5, 2025",
    "3/__/25",
    "12-31-1999",
    "4.50 - café é",
    "99999999999",
    "a \"b\" c",
};

std::vector<std::pair<int, std::string>> RandomEntries(std::mt19937& random) {
    std::vector<std::pair<int, std::string>> entries;
    for (int n = 1; n <= 213; ++n)
        if (n != 172 && random() % 3 == 0) entries.emplace_back(n, kEntries[random() % kEntries.size()]);
    return entries;
}

void SetRandomOptions(Job& job, std::mt19937& random) {
    for (int option = 1; option <= kOptions; ++option) job.SetOption(option, random() % 2 == 0);
}

/// A value that a date field refuses stays in it, as after the loading of a file.
void Enter(Job& job, int n, const std::string& text) {
    try {
        job.SetField(n, text);
    } catch (const BadFieldInput& fault) {
        EXPECT_EQ(fault.field(), n);
    }
}

TEST(SmartFields, RunningAllRulesAgainChangesNothing) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        Job job;
        SetRandomOptions(job, random);
        AttachSmartFields(job);
        for (const auto& [n, text] : RandomEntries(random)) Enter(job, n, text);
        const auto before = AllValues(job);
        for (int n = kFields; n > 0; --n) {
            try {
                job.RunChangeRule(n);
            } catch (const BadFieldInput&) {
            }
        }
        ASSERT_EQ(AllValues(job), before) << "round " << round;
    }
}

TEST(SmartFields, EntryInAnyOrderAndLoadingGiveTheSame) {
    std::mt19937 random(11);
    for (int round = 0; round < 100; ++round) {
        auto entries = RandomEntries(random);
        std::array<Job, 3> jobs;
        for (Job& job : jobs)
            for (int option : {TwoSellers, Entity, TwoBuyers})
                job.SetOption(option, round >> (option % 3) & 1);
        for (const auto& [n, text] : entries) jobs[0].SetField(n, text);
        AttachSmartFields(jobs[0]);
        for (Job& job : {std::ref(jobs[1]), std::ref(jobs[2])}) {
            AttachSmartFields(job);
            std::shuffle(entries.begin(), entries.end(), random);
            for (const auto& [n, text] : entries) Enter(job, n, text);
        }
        ASSERT_EQ(AllValues(jobs[0]), AllValues(jobs[1])) << "round " << round;
        ASSERT_EQ(AllValues(jobs[1]), AllValues(jobs[2])) << "round " << round;
    }
}

TEST(SmartFields, BlankingEveryFieldLeavesANewJob) {
    Job fresh;
    AttachSmartFields(fresh);
    Job job;
    AttachSmartFields(job);
    std::mt19937 random(13);
    for (const auto& [n, text] : RandomEntries(random)) Enter(job, n, text);
    for (int n = 1; n <= kFields; ++n) job.ClearField(n);
    EXPECT_EQ(AllValues(job), AllValues(fresh));
}

TEST(SmartFields, DatesAreTakenApart) {
    Job job;
    AttachSmartFields(job);
    EXPECT_EQ(job.D(1001), "[curr month]");
    EXPECT_EQ(job.D(2079), "[closing day]");
    job.SetField(1, "3/5/2025");
    EXPECT_EQ(job.D(1001), "March");
    EXPECT_EQ(job.D(2001), "5th");
    EXPECT_EQ(job.D(3001), "2025");
    EXPECT_EQ(job.D(1), "3/5/2025") << "the text stays as typed";
    job.SetField(79, "March ___, 2025");
    EXPECT_EQ(job.D(1079), "March");
    EXPECT_EQ(job.D(2079), "___");
    EXPECT_EQ(job.D(3079), "2025");
}

TEST(SmartFields, WhatIsNoDateIsRefusedAndLeavesMarkers) {
    Job job;
    AttachSmartFields(job);
    job.SetField(79, "March 5, 2025");
    for (const char* text : {"soon", "February 30, 2025", "Room 5"}) {
        EXPECT_THROW(job.SetField(79, text), BadFieldInput) << text;
        EXPECT_EQ(job.D(79), text) << "the caller decides what becomes of it";
        EXPECT_EQ(job.D(1079), "[closing month]");
        EXPECT_EQ(job.D(3079), "[closing year]");
    }
    Job loaded;
    loaded.SetField(79, "soon");
    EXPECT_EQ(AttachSmartFields(loaded), std::vector<int>{79});
    EXPECT_EQ(loaded.D(79), "soon");
    EXPECT_EQ(loaded.D(2079), "[closing day]");
}

}  // namespace
}  // namespace quillmark
