// The background's place in the world, without its dialog.
#include "georef/background_properties.h"

#include <gmock/gmock.h>

#include "fakes/cases.h"
#include "fakes/recording_messages.h"

namespace tidemark {
namespace {

TEST(BackgroundPropertiesTest, LatitudesAndLongitudesOfCells) {
    const auto place_in = [](const std::string& label, const std::string& quantity) {
        const std::string begin = "( Appoximate " + quantity + " of this cell is ", end = " )";
        EXPECT_TRUE(label.starts_with(begin) && label.ends_with(end)) << label;
        return label.substr(begin.size(), label.size() - begin.size() - end.size());
    };
    Expect_cases("georef/data/places.txt", [&](const Given& given) {
        const CellPlace place = Place_of_cell(given[0], given[1]);
        return place_in(place.LatLabel, "Latitude") + ", " + place_in(place.LonLabel, "Longitude") +
               "; " + place.HiddenLat + "," + place.HiddenLon;
    });
}

TEST(BackgroundPropertiesTest, FieldsInRangeAreStoredEvenBesideOthersThatAreNot) {
    Expect_cases("georef/data/georeferences.txt", [](const Given& given) {
        Project p;
        RecordingMessages messages;
        EXPECT_TRUE(Take_georeference(p, {"5", "6", "1", "2", "3", "4"}, messages));
        GeoreferenceTexts typed;
        std::ranges::copy(given, typed.begin());
        const bool is_taken = Take_georeference(p, typed, messages);
        EXPECT_EQ(is_taken, messages.Shown.empty());
        std::string kept;
        for (const std::string& value : Georeference_texts(p)) kept += value + " ";
        return is_taken ? kept.substr(0, kept.size() - 1) : kept + messages.Said();
    });
    Expect_cases("georef/data/normalised.txt",
                 [](const Given& given) { return Normalised_field(given[0]); });
}

TEST(BackgroundPropertiesTest, TheAreaAndTheScaleFollowFromTheCorners) {
    Project p;
    p.BGLOD13tlX = 3;
    p.BGLOD13tlY = p.BGLOD13brY = 4;
    p.BGLOD13brX = 5;
    Derive_area(p, 1536, 100);
    const auto values = {p.AreaLeftVTP,   p.AreaTopVTP, p.AreaRightVTP,
                         p.AreaBottomVTP, p.AreaWidth,  p.AreaHeight};
    EXPECT_THAT(values, testing::ElementsAre(4848, 5104, 5616, 5360, 768, 256));
    EXPECT_EQ(p.ScaleX, 2);
    EXPECT_EQ(p.ScaleY, 100 / 256.0F);
}

}  // namespace
}  // namespace tidemark
