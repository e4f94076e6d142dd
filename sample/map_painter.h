// The sample's background picture: a map of the whole LOD8 cell.
#pragma once

#include <QImage>

#include "geography.h"

namespace tidemark {

// `coast` holds the mainland's coastlines, from map edge to map edge with the land on the right.
// Needs a QGuiApplication, for the fonts.
QImage Painted_map(const std::vector<GeoLine>& coast);

}  // namespace tidemark
