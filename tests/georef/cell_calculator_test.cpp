// The LOD8 cell of a latitude and longitude.
#include "georef/cell_calculator.h"

#include "fakes/cases.h"
#include "fakes/recording_messages.h"
#include "model/text_forms.h"

namespace tidemark {
namespace {

TEST(CellCalculatorTest, PositionsGiveTheirCellAndBadTextsAreToldAndReset) {
    Expect_cases("georef/data/calculations.txt", [](const Given& given) {
        RecordingMessages messages;
        CalculatorTexts texts{given.at(0), given.at(1), given.at(2), given.at(3)};
        const auto cell = Calculate_cell(texts, messages);
        if (cell) return messages.Said() + Int_text(cell->X) + ", " + Int_text(cell->Y);
        return messages.Said() + "\n" + texts.Latitude + ", " + texts.Longitude;
    });
}

}  // namespace
}  // namespace tidemark
