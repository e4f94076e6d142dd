// Where something stands in a coast file, and what is wrong with a position there.
#pragma once

#include <cstddef>
#include <string>

namespace tidemark {

// "line 12, feature 3", "record 3", as messages say it.
struct CoastPlace {
    const char* Unit;
    std::size_t Number;
    std::size_t Feature = 0;  // 0: in none

    std::string Text() const;
};

// Within +/-180 and 90 degrees, but for a rounding.
bool Is_in_degrees(double longitude, double latitude);

// What is wrong with those that are not.
std::string Beyond_degrees_text(double longitude, double latitude);

}  // namespace tidemark
