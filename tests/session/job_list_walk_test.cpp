#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <random>

#include "selection/job_list_parking.h"
#include "session/job_list_desk.h"

namespace quillmark::test {
namespace {

/// Documents that rules add. The walk never picks one that is there, so no rule may double it.
constexpr std::string_view kAccompanying[] = {kPrivacyPolicy, kCfpbAddendum, kBridgeportClosingLetter,
                                              kTrusteesAffidavit, kChroNotice};

/// A user without a plan: picks, drops, option clicks and double-clicks, sometimes in an opened job.
class Walk {
 public:
    explicit Walk(unsigned seed) : random_(seed), seed_(seed) {
        SavePackage(desk_.scratch.path(), {"ANY", {"Deed / Quitclaim", "SMS Cover Letter", "CFPB Addendum"}},
                    {});
        Restart();
    }

    void Step() {
        before_ = desk_.List();
        parkedBefore_ = Parked();
        switch (Below(20)) {
            case 0:
                return Restart();
            case 1:
                return Edit();
            case 2:
            case 3:
            case 4:
                return Drop();
            case 5:
            case 6:
            case 7:
            case 8:
                return Click();
            case 9:
            case 10:
                return DoubleClick();
            default:
                return Pick();
        }
    }

 private:
    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_); }

    Names Parked() const {
        Names all;
        for (const auto& list : desk_.screen.ParkedDocuments) all.insert(all.end(), list.begin(), list.end());
        return all;
    }

    void Restart() {
        const char* names[] = {"", "Smith", "regency - "};
        action_ = "restart";
        desk_.StartAnew(names[Below(3)]);
        Check();
    }
    void Edit() {
        if (desk_.screen.List2.empty()) return;
        action_ = "edit";
        desk_.Edit();
        Check();
    }

    void Pick() {
        const auto& offered = desk_.screen.List1;
        const std::string line = offered[Below(offered.size())];
        const bool doubled = std::count(std::begin(kAccompanying), std::end(kAccompanying), line) > 0;
        if (doubled && HoldsLine(line, desk_.screen)) return;
        action_ = "pick " + line;
        const bool open = desk_.screen.List1Enabled;
        EXPECT_EQ(desk_.Pick(line).empty(), open);
        Check();
        EXPECT_EQ(Parked(), parkedBefore_) << Where();
    }
    void Drop() {
        const std::size_t line = Below(before_.size() + 1);
        const std::string name = line < before_.size() ? before_[line] : "none of them";
        action_ = "drop " + name;
        const bool goes = desk_.Drop(name).empty();
        EXPECT_EQ(desk_.List().size() + (goes ? 1 : 0), before_.size()) << Where();
        Check();
    }
    void Click() {
        const int n = static_cast<int>(Below(15)) + 1;
        action_ = "click " + std::to_string(n);
        desk_.dialogs.SetAnswers({Below(2) == 0 ? "Yes" : "No"});
        Attempt(n, [&] { return desk_.Click(n); });
        desk_.Boxes();
        if (n != PowerOfAttorney && n != EstateTrust) ExpectNothingLost();
    }
    void DoubleClick() {
        const int n = static_cast<int>(Below(15)) + 1;
        action_ = "double-click " + std::to_string(n);
        Attempt(n, [&] { return desk_.DoubleClick(n); });
        if (n != EstateTrust && n != LandMultiFamily) ExpectNothingLost();
    }

    template <typename Action>
    void Attempt(int n, Action action) {
        const bool allowed = desk_.IsVisible(n) && desk_.IsEnabled(n);
        try {
            EXPECT_EQ(action().empty(), allowed) << Where();
        } catch (const ParkingFull&) {
            EXPECT_EQ(desk_.List(), before_) << Where();
        }
        Check();
    }

    /// Every document is on the list or parked, as often as before.
    void ExpectNothingLost() {
        Names now = desk_.List();
        const Names parked = Parked();
        now.insert(now.end(), parked.begin(), parked.end());
        std::erase(now, "CHRO Fair Housing Notice");
        Names were = before_;
        were.insert(were.end(), parkedBefore_.begin(), parkedBefore_.end());
        std::erase(were, "CHRO Fair Housing Notice");
        std::sort(now.begin(), now.end());
        std::sort(were.begin(), were.end());
        EXPECT_EQ(now, were) << Where();
    }

    void Check() {
        const ScreenState& screen = desk_.screen;
        for (const std::initializer_list<int> group :
             {std::initializer_list<int>{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10, 13}, {11, 12}, {14, 15}})
            EXPECT_LE(std::count_if(group.begin(), group.end(), [&](int n) { return screen.job.optConf(n); }),
                      1)
                << Where();
        for (const auto& list : screen.ParkedDocuments) EXPECT_LE(list.size(), kParkingSlots) << Where();
        ExpectDocumentsAgree();
    }

    /// One deed at most, direct payoffs never beside the secondary market service's, none that accompanies
    /// another twice.
    void ExpectDocumentsAgree() {
        using enum DocumentTrait;
        const Names list = desk_.List();
        const auto count = [&](DocumentTrait any) {
            return std::count_if(list.begin(), list.end(),
                                 [any](const auto& name) { return HasTrait(name, any); });
        };
        EXPECT_LE(count(PlainDeed | FiduciaryDeed), 1) << Where();
        EXPECT_TRUE(count(SmsPayoff) == 0 || count(DirectPayoff) == 0) << Where();
        for (const std::string_view name : kAccompanying)
            EXPECT_LE(std::count(list.begin(), list.end(), name), 1) << Where() << ": " << name;
    }

    std::string Where() const { return "seed " + std::to_string(seed_) + " after " + action_; }

    Desk desk_;
    std::mt19937 random_;
    unsigned seed_;
    std::string action_;
    Names before_;
    Names parkedBefore_;
};

TEST(JobListWalk, AnySequenceKeepsTheRules) {
    for (unsigned seed = 1; seed <= 40 && !::testing::Test::HasFailure(); ++seed) {
        Walk walk(seed);
        for (int step = 0; step < 300 && !::testing::Test::HasFailure(); ++step) walk.Step();
    }
}

}  // namespace
}  // namespace quillmark::test
