#include "canvas/view_layout.h"

#include <algorithm>

#include "model/int16.h"

namespace tidemark {

ViewLayout Lay_out_map(ViewSize client, ViewSize map, int bar_thickness) {
    const int width = std::max(client.Width - bar_thickness, 0);
    const int height = std::max(client.Height - bar_thickness, 0);
    const bool wide = width < map.Width;
    const bool high = height < map.Height;
    return {{0, 0, width, height},
            {{0, high ? height : map.Height, width, bar_thickness}, map.Width - width, wide},
            {{wide ? width : map.Width, 0, bar_thickness, height}, map.Height - height, high}};
}

std::optional<ViewLayout> Lay_out_view(ViewSize client, ViewSize image, int bar_thickness) {
    const ViewLayout layout = Lay_out_map(client, image, bar_thickness);
    if (!Int16::Fits(layout.Horizontal.Maximum) || !Int16::Fits(layout.Vertical.Maximum))
        return std::nullopt;
    return layout;
}

}  // namespace tidemark
