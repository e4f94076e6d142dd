// What goes on around the project while it is edited and is no part of it: nothing of this is kept
// in the project file.
#pragma once

#include <string>

#include "model/int16.h"

namespace tidemark {

// What the next click on the map or in a list depends on, and with it what the Output menu can
// save. List positions count from 0; -1 stands for no line.
struct PanelState {
    bool NewSegment = true;  // the next point starts a new segment
    int SelectedPoint = -1;
    int SelectedPolygon = -1;
    int SelectedCell = -1;  // of the list of cleared cells
    bool LWMsave = false;   // the two save entries of the Output menu are enabled
    bool VTPsave = false;

    bool operator==(const PanelState&) const = default;
};

// Under which name the project is worked on, and over which picture.
struct OpenedState {
    int Opening = 0;        // counts the projects that were opened; another number, another project
    std::string Path;       // that it was opened or saved under, which the title shows; empty: none
    std::string Folder;     // that the opened project lies in, with its last separator
    std::string Picture;    // path of the background image that is on the screen; empty: none
    bool FileSave = false;  // the entry Save Project is enabled

    bool operator==(const OpenedState&) const = default;
};

// The three lists of the Status panel.
enum class ListKind { Points, Polygons, ClearedCells };

struct Session {
    bool DataChanged = false;           // there are changes that are not saved
    Int16 DrawMode;                     // code of the last left click's drawing mode
    bool CalcFromBGproperties = false;  // the calculator was opened from Background Properties
    bool VTPWriteFailed = false;        // the last write of the VTP file was refused or failed

    // Where the mouse last was on the map.
    Int16 CursorOffsetX, CursorOffsetY;  // VTP units from the image's top-left corner
    Int16 CursorVTPX, CursorVTPY;        // VTP units
    Int16 CursorCellX, CursorCellY;      // LOD13 column and row
    Int16 CursorInCellX, CursorInCellY;  // cell units, limited to 0..255

    std::string ChosenPath;  // that the user chose last to save the project to; empty: none

    ListKind LastChosen = ListKind::Points;  // the list in which a line was chosen last

    PanelState Panel;
    OpenedState Opened;
};

}  // namespace tidemark
