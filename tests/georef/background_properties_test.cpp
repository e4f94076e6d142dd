// The background's place in the world, without its dialog.
#include "georef/background_properties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"

namespace tidemark {
namespace {

TEST(BackgroundPropertiesTest, LatitudesAndLongitudesOfCells) {
    struct Case {
        const char *X, *Y, *Latitude, *Longitude, *HiddenLat, *HiddenLon;
    };
    for (const Case& c : {Case{"0", "0", "N 89.65", "W 179.53", " 90", "-180"},
                          {"383", "255", "N 0", "E 0", " 0", " 0"},
                          {"767", "511", "S 90", "E 180", "-90", " 180"},
                          {"15", "191", "N 22.5", "W 172.5", " 22", "-172"},
                          {"384", "63", "N 67.5", "E .47", " 68", " 0"},
                          {"382.5", "256", "S .35", "W .47", " 0", " 0"},
                          {"", "12x", "N 85.43", "W 179.53", " 85", "-180"},
                          {"1e9", "0", "N 89.65", "E 468749820.47", " 90", " 468749820"}}) {
        const CellPlace place = Place_of_cell(c.X, c.Y);
        const auto label = [](const char* quantity, const char* value) {
            return "( Appoximate " + std::string(quantity) + " of this cell is " + value + " )";
        };
        EXPECT_EQ(place.LatLabel, label("Latitude", c.Latitude)) << c.Y;
        EXPECT_EQ(place.LonLabel, label("Longitude", c.Longitude)) << c.X;
        EXPECT_EQ(place.HiddenLat, c.HiddenLat) << c.Y;
        EXPECT_EQ(place.HiddenLon, c.HiddenLon) << c.X;
    }
}

TEST(BackgroundPropertiesTest, FieldsInRangeAreStoredEvenBesideOthersThatAreNot) {
    struct Case {
        GeoreferenceTexts Texts, Stored;
        std::vector<std::string> Warnings = {};
    };
    const std::string range =
        "LOD 8 cell X value must be in the range 0-767\nLOD 8 cell Y value must be in the range "
        "0-511\nAll LOD 13 cell values must be in the range 0-31";
    const std::string corners = "LOD13 values are not correct for top left / bottom right cells";
    const GeoreferenceTexts before{"5", "6", "1", "2", "3", "4"};
    for (const Case& c :
         {Case{{"767", "511", "0", "0", "31", "31"}, {"767", "511", "0", "0", "31", "31"}},
          {{"0", "0", "9", "8", "9", "8"}, {"0", "0", "9", "8", "9", "8"}},
          {{"800", "9", "7", "8", "9", "9"}, {"5", "9", "7", "8", "9", "9"}, {range}},
          {{"-1", "512", "32", "-.6", "70000", "1e999"}, before, {range}},
          {{"0", "0", "9", "2", "8", "4"}, {"0", "0", "9", "2", "8", "4"}, {corners}},
          {{"768", "0", "0", "9", "0", "8"}, {"5", "0", "0", "9", "0", "8"}, {range, corners}}}) {
        Project p;
        RecordingMessages messages;
        ASSERT_TRUE(Take_georeference(p, before, messages));
        EXPECT_EQ(Take_georeference(p, c.Texts, messages), c.Warnings.empty());
        EXPECT_EQ(Georeference_texts(p), c.Stored);
        EXPECT_EQ(messages.Texts(), c.Warnings);
    }
    for (const auto& [typed, shown] : std::vector<std::pair<const char*, const char*>>{
             {"12.6", " 13"}, {"2.5", " 2"}, {"-3", "-3"}, {" 7 cells", " 7"}, {"x", " 0"}})
        EXPECT_EQ(Normalised_field(typed), shown);
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
