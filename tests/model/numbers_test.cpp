// Checked numbers, roundings, and the text forms of numbers and paths.
#include "fakes/rules_test.h"
#include "model/path_text.h"
#include "model/rounding.h"
#include "model/table.h"

namespace tidemark {

TEST(NumbersTest, ArithmeticAndIndexesAreCheckedAndNeverWrap) {
    EXPECT_EQ(Int16(300) * 100 + 2767, 32767);
    EXPECT_THROW(Int16(32767) + 1, Overflow);
    EXPECT_THROW(Int16(-32768) - Int16(1), Overflow);
    EXPECT_THROW(256 * Int16(128), Overflow);
    EXPECT_THROW(-Int16(-32768), Overflow);
    EXPECT_THROW(Int16(1) + 65536, Overflow);
    EXPECT_EQ(Int16(3) * 0.5, 1.5);  // a fraction makes a fraction
    Table<int, 2, 1> table;
    for (const auto& [i, j] : {std::pair{3, 0}, {0, 2}, {-1, 0}, {0, -1}})
        EXPECT_THROW(table(i, j), std::out_of_range);
}

static std::string Shown(double value) {
    std::ostringstream text;
    text << value + 0.0;  // which makes a positive zero of a negative one
    return text.str();
}

TEST(NumbersTest, RoundingsAndTextForms) {
    using Form = std::string (*)(const std::string&);
    const std::map<std::string, Form> forms{
        {"Round_half_up", [](auto& x) { return Shown(Round_half_up(std::stof(x))); }},
        {"Round_half_even", [](auto& x) { return Shown(Round_half_even(std::stod(x))); }},
        {"Round_half_even_to 2",
         [](auto& x) { return Shown(Round_half_even_to(std::stod(x), 2)); }},
        {"Int_text", [](auto& x) { return Int_text(std::stoi(x)); }},
        {"Counted", [](auto& x) { return Counted(std::stoi(x), "cell"); }},
        {"Blank_text", [](auto& x) { return Blank_text(Int16(std::stoi(x))); }},
        {"Blank_text 32 bits", [](auto& x) { return Blank_text(std::stof(x)); }},
        {"Blank_text 64 bits", [](auto& x) { return Blank_text(std::stod(x)); }},
        {"Numeric_value", [](auto& x) { return Shown(Numeric_value(x)); }},
        {"Int_value", [](auto& x) { return Shown(Int_value(x)); }},
        {"Folder_part", [](auto& x) { return Folder_part(x); }},
        {"Last_part", [](auto& x) { return Last_part(x); }},
    };
    Expect_cases("model/data/numbers.txt",
                 [&](const Given& given) { return forms.at(given[0])(given[1]); });
    for (const float value : {1.17549435e-38F, 3.4028235e38F, 1e-5F, 7.654321e9F})
        EXPECT_NEAR(Numeric_value(Blank_text(value)) / static_cast<double>(value), 1, 5e-7);
}

}  // namespace tidemark
