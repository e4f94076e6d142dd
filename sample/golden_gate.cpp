#include "golden_gate.h"

#include "model/drawing_modes.h"

namespace tidemark {

namespace {

struct CoastArea {
    double West, South, East, North;
    int Mode;
};

// The first area that holds a point decides; elsewhere the coast is the open ocean's. There is no
// ice at the Golden Gate: one headland has it so that the sample shows every drawing mode.
constexpr CoastArea Areas[] = {
    {-122.404, 37.763, -122.375, 37.810, PlainSegment},  // seawall of the city's waterfront
    {-122.51, 37.922, -122.49, 37.943, RiverCoast},      // mouth of Corte Madera Creek
    {-122.44, 37.955, -122.39, 37.97, IceWithWaves},     // north of Point San Pablo
    {-122.4786, 37.61, -122.34, 37.97, SandNoWaves},     // San Francisco Bay
    {-122.51, 37.835, -122.47, 37.97, SandNoWaves},      // its west shore in Marin County
};

// Rows of cells from north to south, each from west to east.
constexpr PolygonClick Clicks[] = {
    {LandPolygon, {-122.4831, 37.8315}},  {LandPolygon, {-122.4724, 37.8346}},
    {WaterPolygon, {-122.4661, 37.8328}}, {WaterPolygon, {-122.4538, 37.8315}},

    {LandPolygon, {-122.5282, 37.8214}},  {WaterPolygon, {-122.5253, 37.8188}},
    {LandPolygon, {-122.5164, 37.8236}},  {WaterPolygon, {-122.5130, 37.8201}},
    {LandPolygon, {-122.4994, 37.8227}},  {WaterPolygon, {-122.4972, 37.8201}},
    {LandPolygon, {-122.4877, 37.8249}},  {WaterPolygon, {-122.4831, 37.8206}},
    {WaterPolygon, {-122.4684, 37.8206}}, {WaterPolygon, {-122.4538, 37.8206}},

    {WaterPolygon, {-122.5270, 37.8096}}, {WaterPolygon, {-122.5124, 37.8096}},
    {WaterPolygon, {-122.4977, 37.8096}}, {WaterPolygon, {-122.4831, 37.8096}},
    {LandPolygon, {-122.4779, 37.8057}},  {WaterPolygon, {-122.4684, 37.8100}},
    {LandPolygon, {-122.4696, 37.8083}},  {WaterPolygon, {-122.4538, 37.8096}},
    {LandPolygon, {-122.4515, 37.8074}},
};

}  // namespace

int Coast_mode(GeoPoint point) {
    for (const CoastArea& area : Areas)
        if (area.West <= point.Longitude && point.Longitude <= area.East &&
            area.South <= point.Latitude && point.Latitude <= area.North)
            return area.Mode;
    return SandWithWaves;
}

const std::vector<GeoLine>& Islands() {
    static const std::vector<GeoLine> islands{
        // Angel Island
        {{-122.4405, 37.8675},
         {-122.4330, 37.8720},
         {-122.4245, 37.8695},
         {-122.4190, 37.8615},
         {-122.4225, 37.8545},
         {-122.4320, 37.8550},
         {-122.4425, 37.8580},
         {-122.4465, 37.8620},
         {-122.4405, 37.8675}},
        // Alcatraz
        {{-122.4262, 37.8282},
         {-122.4235, 37.8284},
         {-122.4204, 37.8262},
         {-122.4200, 37.8248},
         {-122.4222, 37.8250},
         {-122.4252, 37.8268},
         {-122.4262, 37.8282}},
        // Treasure Island and Yerba Buena Island
        {{-122.3785, 37.8275},
         {-122.3715, 37.8335},
         {-122.3650, 37.8240},
         {-122.3625, 37.8155},
         {-122.3595, 37.8105},
         {-122.3640, 37.8065},
         {-122.3705, 37.8085},
         {-122.3720, 37.8145},
         {-122.3785, 37.8275}},
    };
    return islands;
}

const std::vector<DrawnLine>& Roads_and_streams() {
    static const std::vector<DrawnLine> lines{
        // Highway 101, from the airport over the Golden Gate Bridge to San Rafael
        {TwoLanes, 8, {{-122.3990, 37.61719}, {-122.4010, 37.6290}, {-122.4045, 37.6420},
                       {-122.4040, 37.6530},  {-122.3965, 37.6650}, {-122.3965, 37.6800},
                       {-122.3990, 37.6960},  {-122.3985, 37.7120}, {-122.4050, 37.7210},
                       {-122.4055, 37.7350},  {-122.4070, 37.7500}, {-122.4055, 37.7640},
                       {-122.4190, 37.7705},  {-122.4215, 37.7770}, {-122.4245, 37.8000},
                       {-122.4465, 37.7985},  {-122.4600, 37.8025}, {-122.4700, 37.8055},
                       {-122.4757, 37.8090},  {-122.4790, 37.8265}, {-122.4835, 37.8335},
                       {-122.4880, 37.8420},  {-122.4930, 37.8520}, {-122.5010, 37.8620},
                       {-122.5100, 37.8740},  {-122.5120, 37.8830}, {-122.5150, 37.8930},
                       {-122.5165, 37.9080},  {-122.5155, 37.9250}, {-122.5125, 37.9420},
                       {-122.5175, 37.9560},  {-122.5230, 37.96875}}},
        // Interstate 280, from San Bruno to the city
        {TwoLanes,
         8,
         {{-122.4340, 37.61719},
          {-122.4450, 37.6300},
          {-122.4530, 37.6420},
          {-122.4630, 37.6560},
          {-122.4705, 37.6700},
          {-122.4710, 37.6890},
          {-122.4640, 37.7060},
          {-122.4500, 37.7195},
          {-122.4310, 37.7320},
          {-122.4130, 37.7340},
          {-122.4000, 37.7410},
          {-122.3945, 37.7530},
          {-122.3945, 37.7690},
          {-122.3975, 37.7760}}},
        // Interstate 80 over the Bay Bridge and Yerba Buena Island
        {TwoLanes,
         8,
         {{-122.4055, 37.7640},
          {-122.3985, 37.7795},
          {-122.3905, 37.7870},
          {-122.3680, 37.8100},
          {-122.3625, 37.8130},
          {-122.34375, 37.8175}}},
        // Highway 1 through Pacifica, and along Nineteenth Avenue to the bridge
        {OneLane,
         5,
         {{-122.4885, 37.61719},
          {-122.4880, 37.6300},
          {-122.4860, 37.6430},
          {-122.4820, 37.6560},
          {-122.4705, 37.6700}}},
        {OneLane,
         5,
         {{-122.4640, 37.7060},
          {-122.4715, 37.7130},
          {-122.4750, 37.7340},
          {-122.4770, 37.7640},
          {-122.4725, 37.7860},
          {-122.4710, 37.7960},
          {-122.4700, 37.8055}}},
        // The Shoreline Highway over Muir Beach and Stinson Beach
        {OneLane,
         5,
         {{-122.5120, 37.8830},
          {-122.5270, 37.8830},
          {-122.5400, 37.8790},
          {-122.5560, 37.8740},
          {-122.5705, 37.8650},
          {-122.5830, 37.8640},
          {-122.5960, 37.8750},
          {-122.6150, 37.8820},
          {-122.6290, 37.8920},
          {-122.6430, 37.9040},
          {-122.6640, 37.9140},
          {-122.6790, 37.9250},
          {-122.6960, 37.9430},
          {-122.7110, 37.96875}}},
        // Conzelman Road to Point Bonita, and the fire roads of Mount Tamalpais
        {DirtRoad,
         4,
         {{-122.4835, 37.8335},
          {-122.4930, 37.8290},
          {-122.5030, 37.8270},
          {-122.5125, 37.8295},
          {-122.5215, 37.8260},
          {-122.5275, 37.8200}}},
        {DirtRoad,
         4,
         {{-122.5400, 37.8790},
          {-122.5520, 37.8960},
          {-122.5600, 37.9110},
          {-122.5780, 37.9250},
          {-122.5970, 37.9210},
          {-122.6150, 37.9300},
          {-122.6330, 37.9420},
          {-122.6520, 37.9560},
          {-122.6640, 37.96875}}},
        // Redwood Creek, from Muir Woods to Muir Beach
        {Stream,
         3,
         {{-122.5900, 37.9130},
          {-122.5830, 37.9020},
          {-122.5720, 37.8920},
          {-122.5650, 37.8800},
          {-122.5690, 37.8690},
          {-122.5765, 37.8590}}},
        // Corte Madera Creek, into the bay
        {Stream,
         5,
         {{-122.5690, 37.9620},
          {-122.5500, 37.9560},
          {-122.5330, 37.9480},
          {-122.5200, 37.9420},
          {-122.5120, 37.9390},
          {-122.5038, 37.9370}}},
        // Colma Creek, into the bay at South San Francisco
        {Stream,
         3,
         {{-122.4610, 37.6790},
          {-122.4470, 37.6660},
          {-122.4270, 37.6540},
          {-122.4100, 37.6440},
          {-122.3960, 37.6420},
          {-122.3840, 37.6410}}},
    };
    return lines;
}

std::span<const PolygonClick> Polygon_clicks() {
    return Clicks;
}

}  // namespace tidemark
