// What editing does to the VTP points: add, insert, delete, reverse, change the width. Points are
// numbered from 1; list positions count from 0 and -1 stands for nothing selected. The end flags
// are right again after the next Repair_segments, which every list refresh runs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/project.h"
#include "model/session.h"
#include "platform/messages.h"

namespace tidemark {

inline constexpr std::string_view DefaultVTPWidthText = "80";

struct WidthResult {
    std::string Text;            // what the width box holds afterwards
    std::optional<Int16> Width;  // nothing when it was refused
};

// Makes the width text a whole number (halves to the even neighbour; 0 without a leading number). A
// width outside 0..300 is refused with a warning, and the text becomes the default.
WidthResult Take_width(std::string_view text, Messages& messages);

// The number of the next point: behind the last point when that one or none is selected or a new
// segment is to start, otherwise the number of the selected point, which moves down by one.
int Next_point(const Project& project, const PanelState& panel);

// Adds a point of this width at the cursor, in the drawing mode of the last click, as Next_point.
// It becomes the selected one, and no new segment starts with the one after it. In a full project
// it warns, changes nothing and returns false.
bool Add_VTP_Point(Project& project, Session& session, Int16 width, Messages& messages);

// Where a segment's first point goes, the next point starts the segment with the mode and width
// stored on itself.
void Delete_VTP_Point(Project& project, int point);

// The width of the segment that holds the point, which is the one stored on its first point.
void Change_segment_width(Project& project, int point, Int16 width);

// Turns round the points of the segment that holds the point; mode and width stay with it.
void Reverse_segment(Project& project, int point);

}  // namespace tidemark
