// The sample, which is as it should be, and mending when points of its coast are missing.
#include <cstdlib>

#include "coast/check.h"
#include "coast/mend.h"
#include "fakes/rules_test.h"
#include "model/records.h"

namespace tidemark {

class MendGoldenGate : public testing::Test {
  protected:
    MendGoldenGate() {
        EXPECT_FALSE(Read_project(Source_file("sample/golden-gate.TDM"), project).Error);
    }

    // Without some of the points, but with the first and the last two of each segment.
    std::unique_ptr<Project> Thinned(RandomNumbers& random) const {
        auto thinned = std::make_unique<Project>(project);
        const int percent = random.Number(5, 85);
        int count = 0;
        for (const Segment& segment : Segments(project))
            for (int i = segment.First; i <= segment.Last; ++i) {
                const bool is_near_end = i < segment.First + 2 || i > segment.Last - 2;
                if (is_near_end || random.Number(1, 100) > percent)
                    PointTable::Set(*thinned, ++count, PointTable::Get(project, i));
            }
        PointTable::Set_count(*thinned, count);
        Repair_segments(*thinned);
        return thinned;
    }

    Project project;
};

TEST_F(MendGoldenGate, TheSampleIsAsItShouldBe) {
    EXPECT_TRUE(Check_coast(project).empty());
}

// TIDEMARK_THINNED_SAMPLES asks for another number than 100.
TEST_F(MendGoldenGate, WhatCanBeMendedOfAThinnedCoastIsMendedAtOnce) {
    const char* const asked = std::getenv("TIDEMARK_THINNED_SAMPLES");
    int spoilt = 0;
    for (unsigned seed = 1; seed <= static_cast<unsigned>(asked ? std::atoi(asked) : 100); ++seed) {
        SCOPED_TRACE(seed);
        RandomNumbers random(seed);
        const auto thinned = Thinned(random);
        spoilt += Has_remedy(Check_coast(*thinned));
        EXPECT_EQ(Mend_all(*thinned).Refusal, "");
        EXPECT_FALSE(Has_remedy(Check_coast(*thinned)));
    }
    EXPECT_GT(spoilt, 0);
}

}  // namespace tidemark
