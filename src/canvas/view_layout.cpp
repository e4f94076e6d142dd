#include "canvas/view_layout.h"

#include <algorithm>

namespace tidemark {

std::optional<ViewLayout> Lay_out_view(ViewSize client, ViewSize image, int bar_thickness) {
    const int width = std::max(client.Width - bar_thickness, 0);
    const int height = std::max(client.Height - bar_thickness, 0);
    if (!Int16::Fits(image.Width - width) || !Int16::Fits(image.Height - height))
        return std::nullopt;

    const bool wide = width < image.Width;
    const bool high = height < image.Height;
    return ViewLayout{
        {0, 0, width, height},
        {{0, high ? height : image.Height, width, bar_thickness}, image.Width - width, wide},
        {{wide ? width : image.Width, 0, bar_thickness, height}, image.Height - height, high}};
}

}  // namespace tidemark
