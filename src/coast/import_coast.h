// Brings a laid coast into a project: its points, the cells that are cleared for it, and its
// polygons.
#pragma once

#include <optional>
#include <string>

#include "coast/fill.h"
#include "coast/finding.h"
#include "coast/lay_coast.h"
#include "model/drawing_modes.h"

namespace tidemark {

struct ImportOptions {
    int Mode = SandWithWaves;  // a drawing mode that adds points
    int Width = 80;            // VTP units, 0..300
    bool ClearCells = false;   // clear the old scenery of this kind from the cells
    bool FillWater = false, FillLand = false;
    // On which side lines have the land that do not say so themselves, as they now run; nothing:
    // they are not filled from.
    std::optional<bool> LandOnLeft = true;
};

struct ImportResult {
    std::string Refusal;  // why the project is as it was; empty: it is not
    int Cleared = 0;      // cells
    FillPlan Filled;      // polygons that were added; with Fits() false none was
    Findings Errors;      // of the coast check, which the project did not have before
};

// Appends the lines as segments, then does what the options ask for. Refused, with the project as
// it was, when there is no room for the points or for the cleared cells. When there is none for the
// polygons, everything else is done. The caller refreshes the lists.
ImportResult Import_coast(Project& project, const LaidCoast& coast, const ImportOptions& options);

}  // namespace tidemark
