// Checked numbers, roundings, and the text forms of numbers and paths.
#include <limits>
#include <tuple>

#include <gtest/gtest.h>

#include "model/path_text.h"
#include "model/rounding.h"
#include "model/table.h"
#include "model/text_forms.h"

namespace tidemark {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

constexpr std::tuple<double, int, int> up_and_even[] = {{0.5, 1, 0},
                                                        {1.5, 2, 2},
                                                        {-0.5, 0, 0},
                                                        {-1.5, -1, -2},
                                                        {2.4999, 2, 2},
                                                        {-3.7, -4, -4},
                                                        {32767.25, 32767, 32767}};
constexpr std::pair<const char*, double> leading_numbers[] = {
    {"", 0},       {" -3.5e2x", -350}, {"+7", 7},  {"+-7", 0},     {".5", .5},
    {"5.", 5},     {".", 0},           {"1e+", 1}, {"1.2.3", 1.2}, {"0x10", 0},
    {"inf", 0},    {"nan", 0},         {"1,5", 1}, {"- 5", 0},     {"-1e999", -infinity},
    {"1e-999", 0}, {"\t5", 0}};
constexpr std::pair<const char*, int> whole_numbers[] = {
    {" 42", 42}, {"80.5", 80}, {"81.5", 82}, {"-0.4", 0}, {"1e2", 100}, {"-32768.5", -32768}};

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

TEST(NumbersTest, HalvesGoUpOrToTheEvenNeighbour) {
    for (const auto& [x, up, even] : up_and_even) {
        EXPECT_EQ(Round_half_up(static_cast<float>(x)), up) << x;
        EXPECT_EQ(Round_half_even(x), even) << x;
    }
    EXPECT_THROW(Round_half_up(32767.5F), Overflow);
    EXPECT_THROW(Round_half_even(32767.5), Overflow);
    EXPECT_THROW(Round_half_even(std::numeric_limits<double>::quiet_NaN()), Overflow);
    EXPECT_EQ(Round_half_even_to(-179.53125, 2), -179.53);
    EXPECT_EQ(Round_half_even_to(0.125, 2), 0.12);
}

TEST(TextFormsTest, NumbersAsText) {
    EXPECT_EQ(Int_text(-32768) + Blank_text(Int16(12)) + Blank_text(Int16(-3)), "-32768 12-3");
    for (const auto& [value, text] : {std::pair{0.8333333F, " .8333333"},
                                      {0.0F, " 0"},
                                      {-0.25F, "-.25"},
                                      {1234567.0F, " 1234567"}})
        EXPECT_EQ(Blank_text(value), text);
    EXPECT_EQ(Blank_text(1.0 / 3), " .333333333333333");
    for (const float value : {1.17549435e-38F, 3.4028235e38F, 1e-5F, 7.654321e9F})
        EXPECT_NEAR(Numeric_value(Blank_text(value)) / static_cast<double>(value), 1, 5e-7);
}

TEST(TextFormsTest, TheLongestLeadingNumberCountsRoundedHalfToEvenAndChecked) {
    for (const auto& [text, value] : leading_numbers) EXPECT_EQ(Numeric_value(text), value) << text;
    for (const auto& [text, value] : whole_numbers) EXPECT_EQ(Int_value(text), value) << text;
    for (const char* text : {"32768", "99999999999999999999", "-32769", "1e999", "32767.5"})
        EXPECT_THROW(Int_value(text), Overflow) << text;
}

TEST(TextFormsTest, BothSeparatorsCutAPath) {
    for (const auto& [path, folder, last] :
         {std::tuple{R"(C:\Scenery\a.asm)", R"(C:\Scenery\)", "a.asm"},
          {R"(/home\x/b\a.asm)", R"(/home\x/b\)", "a.asm"},
          {"/home/a.asm", "/home/", "a.asm"},
          {"a.asm", "", "a.asm"}}) {
        EXPECT_EQ(Folder_part(path), folder) << path;
        EXPECT_EQ(Last_part(path), last) << path;
    }
}

}  // namespace
}  // namespace tidemark
