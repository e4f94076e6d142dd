// The LOD8 cell of a latitude and longitude.
#include "georef/cell_calculator.h"

#include <gtest/gtest.h>

#include "fakes/recording_messages.h"

namespace tidemark {
namespace {

TEST(CellCalculatorTest, PositionsAndTheirCells) {
    struct Case {
        CalculatorTexts Texts;
        int X, Y;
    };
    for (auto [texts, x, y] : {
             Case{{"51:30:00.0", "N", "000:07:00.0", "W"}, 383, 109},
             Case{{"00:00:00.0", "N", "000:00:00.0", "E"}, 384, 256},
             Case{{"90:00:00.0", "N", "180:00:00.0", "W"}, 0, 0},
             Case{{"90:00:00.0", "S", "180:00:00.0", "E"}, 768, 512},
             Case{{"0:0:0", "N", "000:28:07.5", "E"}, 384, 256},  // just short of the cell's edge
             Case{{"12:60:60", "s", "0:0:0", "w"}, 384, 218},     // other letters are N and E
             Case{{" 1 2 : 3 0:0:99", "N", "1e1:0x:1.5e1", "E"}, 405, 220},
         }) {
        RecordingMessages messages;
        EXPECT_EQ(Calculate_cell(texts, messages), (LOD8Cell{x, y})) << texts.Latitude;
        EXPECT_TRUE(messages.Shown.empty());
    }
}

TEST(CellCalculatorTest, BadTextsAreToldAndReset) {
    struct Case {
        std::string Latitude, Longitude, Warning;
        bool ResetsLatitude, ResetsLongitude;
    };
    const std::string format =
        "Both latitude and longitude must be given in the appropriate format "
        "degrees:minutes:seconds";
    const std::string latitude = "Latitude value given is incorrect";
    const std::string longitude = "Longitude value given is incorrect";
    for (const Case& c : {Case{"", "12:", format, true, true},
                          {"12:30", "0:0:0", format, true, false},
                          {"0:0:0", "12:30:", format, false, true},
                          {"12", "12:30", format, true, false},  // second ":" not looked for yet
                          {"12:61:00", "181:0:0", latitude, true, false},
                          {"-5:00:00", "0:0:0", latitude, true, false},
                          {"90.1:00:00", "0:0:0", latitude, true, false},
                          {"90:0:60.1", "0:0:0", latitude, true, false},
                          {"0:0:0", "180.1:0:0", longitude, false, true},
                          {"0:0:0", "0:-1:0", longitude, false, true}}) {
        RecordingMessages messages;
        CalculatorTexts texts{c.Latitude, "S", c.Longitude, "W"};
        EXPECT_FALSE(Calculate_cell(texts, messages));
        EXPECT_EQ(messages.Texts(), std::vector{c.Warning}) << c.Latitude;
        EXPECT_EQ(texts.Latitude, c.ResetsLatitude ? "00:00:00.0" : c.Latitude);
        EXPECT_EQ(texts.Longitude, c.ResetsLongitude ? "000:00:00.0" : c.Longitude);
    }
}

}  // namespace
}  // namespace tidemark
