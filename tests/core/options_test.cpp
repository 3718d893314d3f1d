#include "core/options.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace quillmark {
namespace {

TEST(Options, OneLeavesNoRoomForAnother) {
    const std::set<std::pair<int, int>> excludedBy = {{TwoSellers, EstateTrust}, {TwoSellers, Entity},
                                                      {Entity, EstateTrust},     {Entity, PowerOfAttorney},
                                                      {Entity, TwoSellers},      {PowerOfAttorney, Entity},
                                                      {EstateTrust, Entity},     {EstateTrust, TwoSellers}};
    for (int option = 1; option <= kOptions; ++option) {
        for (int other = 1; other <= kOptions; ++other) {
            Job job;
            for (int n = 1; n <= kOptions; ++n) job.SetOption(n, n == other);
            EXPECT_EQ(IsExcluded(option, job), excludedBy.contains({option, other}))
                << OptionCaption(option) << " while " << OptionCaption(other) << " is set";
        }
    }
}

}  // namespace
}  // namespace quillmark
