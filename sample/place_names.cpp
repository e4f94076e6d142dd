#include "place_names.h"

namespace tidemark {

namespace {

using enum PlaceKind;

constexpr PlaceName Names[] = {
    {City, "San Francisco", {-122.4405, 37.7400}, Side::Centre},
    {Town, "Daly City", {-122.4590, 37.7010}, Side::Right},
    {Town, "Pacifica", {-122.4850, 37.6300}, Side::Right},
    {Town, "Brisbane", {-122.4010, 37.6820}, Side::Left},
    {Town, "South San\nFrancisco", {-122.4080, 37.6640}, Side::Left},
    {Town, "San Bruno", {-122.4130, 37.6290}, Side::Left},
    {Town, "Sausalito", {-122.4802, 37.8565}, Side::Right},
    {Town, "Mill Valley", {-122.5450, 37.9060}, Side::Right},
    {Town, "Corte Madera", {-122.5230, 37.9255}, Side::Left},
    {Town, "Tiburon", {-122.4560, 37.8790}, Side::Above},
    {Town, "San Rafael", {-122.5300, 37.9620}, Side::Left},
    {Town, "Muir Beach", {-122.5735, 37.8600}, Side::Right},
    {Town, "Stinson Beach", {-122.6350, 37.9055}, Side::Right},
    {Town, "Bolinas", {-122.6900, 37.9110}, Side::Above},
    {Town, "Richmond", {-122.3530, 37.9350}, Side::Left},
    {Region, "Marin Headlands", {-122.5230, 37.8440}, Side::Centre},
    {Park, "Golden Gate Park", {-122.4830, 37.7685}, Side::Centre},
    {Park, "Presidio", {-122.4660, 37.7960}, Side::Centre},
    {Landmark, "Point Bonita", {-122.5300, 37.8150}, Side::Left},
    {Landmark, "Duxbury Point", {-122.7018, 37.8915}, Side::Below},
    {Landmark, "Hunters Point", {-122.3625, 37.7300}, Side::Left},
    {Landmark, "Point San Quentin", {-122.4775, 37.9412}, Side::Right},
    {Landmark, "Golden Gate Bridge", {-122.4765, 37.8175}, Side::Right},
    {Landmark, "Angel Island", {-122.4180, 37.8610}, Side::Right},
    {Landmark, "Alcatraz", {-122.4270, 37.8275}, Side::Left},
    {Landmark, "Treasure Island", {-122.3780, 37.8310}, Side::Left},
    {Peak, "Mount Tamalpais\n784 m", {-122.5777, 37.9292}, Side::Above},
    {Peak, "San Bruno Mountain\n401 m", {-122.4355, 37.6866}, Side::Above},
    {Peak, "Twin Peaks\n282 m", {-122.4475, 37.7525}, Side::Right},
    {Ocean, "PACIFIC OCEAN", {-122.6600, 37.7600}, Side::Centre},
    {Bay, "San Francisco\nBay", {-122.3900, 37.8880}, Side::Centre},
    {Bay, "Gulf of the\nFarallones", {-122.7300, 37.8150}, Side::Centre},
    {Bay, "Bolinas Bay", {-122.6550, 37.8820}, Side::Centre},
    {Strait, "Golden Gate", {-122.5050, 37.8080}, Side::Centre},
    {Cove, "Richardson\nBay", {-122.4856, 37.8842}, Side::Centre},
    {Beyond, "Berkeley →", {-122.3450, 37.8716}, Side::Left},
    {Beyond, "Oakland →", {-122.3450, 37.8044}, Side::Left},
};

constexpr RoadNumber Numbers[] = {
    {"101", {-122.3990, 37.6960}}, {"101", {-122.5160, 37.9160}}, {"101", {-122.4240, 37.7930}},
    {"280", {-122.4710, 37.6830}}, {"280", {-122.4405, 37.7258}}, {"80", {-122.3790, 37.7988}},
    {"1", {-122.4870, 37.6400}},   {"1", {-122.4760, 37.7500}},   {"1", {-122.6560, 37.9102}},
    {"1", {-122.5630, 37.8697}},
};

}  // namespace

std::span<const PlaceName> PlaceNames() {
    return Names;
}

std::span<const RoadNumber> RoadNumbers() {
    return Numbers;
}

}  // namespace tidemark
