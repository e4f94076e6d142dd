// Where places lie in the world, and what Go To makes of what is typed.
#include "georef/geo_position.h"

#include "fakes/rules_test.h"
#include "georef/go_to.h"

namespace tidemark {

// The Golden Gate's cell.
static Project Golden_gate_cell() {
    Project p;
    Place_area(p, 0, 0, 31, 31);
    p.BGLOD8X = 122;
    p.BGLOD8Y = 148;
    return p;
}

TEST(GeoPositionTest, PlacesAndWaysHaveTheirTexts) {
    const Project p = Golden_gate_cell();
    EXPECT_EQ(Position_text(Position_of(p, {4080, 4080})), "37° 58.13' N  122° 48.75' W");
    EXPECT_EQ(Position_text({-0.99999, 179.99999}), "1° 00.00' S  180° 00.00' E");
    EXPECT_EQ(Latitude_text(-59.999999), "60:00:00.0 S");
    const auto way = [](GeoPosition from, GeoPosition to) {
        return Leg_text(Leg_between(from, to));
    };
    // A quarter of the equator, just short of a kilometre south, and across the date line.
    EXPECT_EQ(way({0, 0}, {0, 90}), "10007.56 km  090°");
    EXPECT_EQ(way({10, 20}, {9.99101, 20}), "1.00 km  180°");
    EXPECT_EQ(way({0, 179.996}, {0, -179.996}), "890 m  090°");
}

TEST(GeoPositionTest, EveryUnitIsFoundAgainFromItsDegrees) {
    const Project p = Golden_gate_cell();
    RandomNumbers random(1);
    for (int i = 0; i < 1000; ++i) {
        const VTPPlace place{random.Number(4080, 12272), random.Number(4080, 12272)};
        EXPECT_EQ(Place_at(p, Position_of(p, place)), place);
        const GoToTexts texts = Texts_of_place(p, place);
        EXPECT_EQ(Place_told(p, texts, GoToWay::VTP), place);
        const auto degrees = Place_told(p, texts, GoToWay::Degrees).value();  // to 0.1 second
        EXPECT_LE(std::abs(degrees.X - place.X) + std::abs(degrees.Y - place.Y), 2);
    }
}

TEST(GeoPositionTest, WhatIsTypedTellsAPlaceOrIsRefused) {
    const Project p = Golden_gate_cell();
    Expect_cases("georef/data/go-to.txt", [&](const Given& given) {
        GoToTexts texts{given[1], given[2], given[1], given[2], given[1], given[2]};
        const GoToWay way = given[0] == "cell"  ? GoToWay::Cell
                            : given[0] == "VTP" ? GoToWay::VTP
                                                : GoToWay::Degrees;
        const auto place = Place_told(p, texts, way);
        const std::string refusal = Not_on_map(p, place);
        return refusal.empty() ? Int_text(place->X) + ", " + Int_text(place->Y) : refusal;
    });
}

}  // namespace tidemark
