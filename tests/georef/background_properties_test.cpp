// The background's place in the world and the LOD8 cell of a position, without their dialogs.
#include "georef/background_properties.h"

#include "fakes/rules_test.h"
#include "georef/cell_calculator.h"

namespace tidemark {

TEST(BackgroundPropertiesTest, LatitudesAndLongitudesOfCells) {
    Expect_cases("georef/data/places.txt", [&](const Given& given) {
        const CellPlace place = Place_of_cell(given[0], given[1]);
        return place.LatLabel + place.LonLabel + place.HiddenLat + "," + place.HiddenLon;
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
        return kept + "(" + messages.Said() + ")";
    });
    Expect_cases("georef/data/normalised.txt",
                 [](const Given& given) { return Normalised_field(given[0]); });
}

TEST(CellCalculatorTest, PositionsGiveTheirCellAndBadTextsAreToldAndReset) {
    Expect_cases("georef/data/calculations.txt", [](const Given& given) {
        RecordingMessages messages;
        const auto [texts, cell] =
            Calculate_cell({given.at(0), given.at(1), given.at(2), given.at(3)}, messages);
        if (cell) Report_cell(*cell, false, messages);
        return messages.Said() + (cell ? "" : "\n" + texts.Latitude + ", " + texts.Longitude);
    });
}

}  // namespace tidemark
