#include <gtest/gtest.h>

#include "core/job.h"
#include "entry/smart_fields.h"

namespace quillmark {
namespace {

class PlaceRules : public ::testing::Test {
 protected:
    PlaceRules() { AttachSmartFields(job); }
    Job job;
};

TEST_F(PlaceRules, AddressPairsMakeOneLine) {
    EXPECT_EQ(job.D(1023), "[seller 1 addr 1, addr 2]");
    job.SetField(23, "12 Oak St");
    EXPECT_EQ(job.D(1023), "12 Oak St");
    EXPECT_EQ(job.D(2023), "12 Oak St");
    job.SetField(24, "Apt 4");
    EXPECT_EQ(job.D(1023), "12 Oak St, Apt 4");
    EXPECT_EQ(job.D(2023), "12 Oak St - Apt 4");
    job.ClearField(24);
    EXPECT_EQ(job.D(1023), "12 Oak St");
    job.SetField(23, "Rear Building, 9 Elm St, Floor 2");
    EXPECT_EQ(job.D(2023), "Rear Building - 9 Elm St, Floor 2") << "the first comma alone";
    job.ClearField(23);
    EXPECT_EQ(job.D(1023), "[seller 1 addr 1, addr 2]");
}

TEST_F(PlaceRules, AVillageGivesItsTown) {
    job.SetField(72, "Rowayton, CT 06853");
    EXPECT_EQ(job.D(3072), "Rowayton");
    EXPECT_EQ(job.D(1072), "Norwalk");
    EXPECT_EQ(job.D(2072), "Fairfield");
    EXPECT_EQ(job.D(4072), "Norwalk, CT 06853");
    job.SetField(72, " west hartford, CT 06107");
    EXPECT_EQ(job.D(1072), "West Hartford");
    EXPECT_EQ(job.D(4072), "West Hartford, CT 06107");
}

TEST_F(PlaceRules, WithoutACommaOrATownNothingIsDerived) {
    for (const char* unknown : {"Stamford CT 06901", "Atlantis, CT 06000", ", CT 06000"}) {
        job.SetField(72, unknown);
        EXPECT_EQ(job.D(1072), "") << unknown;
        EXPECT_EQ(job.D(2072), "") << unknown;
        EXPECT_EQ(job.D(4072), "") << unknown;
        EXPECT_EQ(job.D(72), unknown);
    }
    job.SetField(72, "Atlantis, CT 06000");
    EXPECT_EQ(job.D(3072), "Atlantis");
    job.ClearField(72);
    EXPECT_EQ(job.D(1072), "[property city]");
    EXPECT_EQ(job.D(2072), "[property county]");
    EXPECT_EQ(job.D(3072), "[property village]");
    EXPECT_EQ(job.D(4072), "[prop municipal csz]");
}

TEST_F(PlaceRules, ThePropertysZipCodeSettlesTheAttorneysPlaceInAnyOrder) {
    job.SetField(6, "Goshen, CT 06756");
    job.SetField(72, "Goshen, CT 06756");
    EXPECT_EQ(job.D(1072), "Goshen");
    EXPECT_EQ(job.D(1006), "Goshen");
    job.ClearField(72);
    EXPECT_EQ(job.D(1006), "");
    job.ClearField(6);
    EXPECT_EQ(job.D(1006), "[seller atty city]");
    EXPECT_EQ(job.D(1015), "[buyer atty city]");
}

TEST_F(PlaceRules, TownOfExecutionGivesItsCounty) {
    job.SetField(187, "new britain");
    EXPECT_EQ(job.D(1187), "Hartford");
    job.SetField(187, "Rowayton");
    EXPECT_EQ(job.D(1187), "") << "villages execute nothing";
    job.ClearField(187);
    EXPECT_EQ(job.D(1187), "[county of execution]");
}

TEST_F(PlaceRules, TelephonesOfTenDigitsTakeTheirForm) {
    job.SetField(27, "2035550123");
    EXPECT_EQ(job.D(27), "(203) 555-0123");
    for (const char* other : {"203555012", "203-555-01", "+1 203 555 0123"}) {
        job.SetField(27, other);
        EXPECT_EQ(job.D(27), other);
    }
}

}  // namespace
}  // namespace quillmark
