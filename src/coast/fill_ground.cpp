#include "coast/fill_ground.h"

#include "coast/check.h"
#include "coast/project_places.h"

namespace tidemark {

namespace {

// An error of a coastline, because of which the pieces of its cell are wrong or are none.
bool Spoils_pieces(const Finding& finding) {
    switch (finding.Kind) {
        case FindingKind::SkippedCell:
        case FindingKind::LooseEnd:
        case FindingKind::TooMuch:
        case FindingKind::SeveralInside:
            return finding.IsError;
        case FindingKind::Segment:
            return finding.Other > 0;  // two crossings at one place
        case FindingKind::Neighbours:
            return finding.Point > 0;
        case FindingKind::Polygon:
        case FindingKind::Limits:
            break;
    }
    return false;
}

}  // namespace

FillGround::FillGround(const Project& p, const FillOptions& options)
    : p_(p), options_(options), survey_(p), polygons_(Polygons_by_cell(p)) {
    for (const Finding& finding : Check_coast(p))
        if (finding.Cell && Spoils_pieces(finding)) errors_.emplace(*finding.Cell, finding.Text);
}

bool FillGround::Is_wanted(LOD13Cell cell) const {
    const CellRange map{{p_.BGLOD13tlX, p_.BGLOD13tlY}, {p_.BGLOD13brX, p_.BGLOD13brY}};
    return Is_in_LOD8_cell(cell) && map.Contains(cell) &&
           (!options_.Within || options_.Within->Contains(cell));
}

const std::string* FillGround::Error_in(LOD13Cell cell) const {
    const auto error = errors_.find(cell);
    return error == errors_.end() ? nullptr : &error->second;
}

bool FillGround::Is_crossed(LOD13Cell cell) const {
    const SurveyedCell* const surveyed = survey_.At(cell);
    return surveyed != nullptr && !surveyed->Crossings.empty();
}

bool FillGround::Has_inner(LOD13Cell cell) const {
    const SurveyedCell* const surveyed = survey_.At(cell);
    return surveyed != nullptr && surveyed->Crossings.empty() && !surveyed->Inner.empty() &&
           surveyed->Inner.front().second - surveyed->Inner.front().first > 1;
}

CellPieces FillGround::Pieces_of(LOD13Cell cell) const {
    if (Is_crossed(cell)) return CellPieces(*survey_.At(cell));
    return CellPieces(Distinct_pieces(survey_.Candidates(cell)));
}

std::vector<int> FillGround::Cuts(LOD13Cell cell, EdgeType side) const {
    std::vector<int> cuts{0};
    if (const SurveyedCell* const surveyed = survey_.At(cell))
        for (const BoundaryPoint& point : Crossings_on(*surveyed, side))
            cuts.push_back(Along(point));
    cuts.push_back(LastCellUnit);
    return cuts;
}

const std::vector<int>& FillGround::Polygons_in(LOD13Cell cell) const {
    const auto found = polygons_.find(cell);
    return found == polygons_.end() ? none_ : found->second;
}

}  // namespace tidemark
