// Checked numbers, roundings and the text forms of numbers.
#include <limits>

#include <gtest/gtest.h>

#include "model/rounding.h"
#include "model/table.h"
#include "model/text_forms.h"

namespace tidemark {
namespace {

TEST(Int16Test, ArithmeticIsCheckedAndNeverWraps) {
    EXPECT_EQ(Int16(300) * 100 + 2767, 32767);
    EXPECT_THROW(Int16(32767) + 1, Overflow);
    EXPECT_THROW(Int16(-32768) - Int16(1), Overflow);
    EXPECT_THROW(256 * Int16(128), Overflow);
    EXPECT_THROW(-Int16(-32768), Overflow);
    EXPECT_THROW(Int16(40000), Overflow);
    EXPECT_THROW(Int16(1) + 65536, Overflow);
    Int16 count = 32767;
    EXPECT_THROW(++count, Overflow);
    EXPECT_EQ(count, 32767);
    EXPECT_EQ(Int16(3) * 0.5, 1.5);  // a fraction makes a fraction
}

TEST(TableTest, AnIndexOutsideThrows) {
    Table<int, 2, 1> table;
    table(2, 1) = 7;
    EXPECT_EQ(table(2, 1), 7);
    EXPECT_THROW(table(3, 0), std::out_of_range);
    EXPECT_THROW(table(0, 2), std::out_of_range);
    EXPECT_THROW(table(-1, 0), std::out_of_range);
}

TEST(RoundingTest, HalvesGoUpOrToTheEvenNeighbour) {
    struct Case {
        double X;
        int Up, Even;
    };
    for (const auto& [x, up, even] : {Case{0.5, 1, 0},
                                      {1.5, 2, 2},
                                      {2.5, 3, 2},
                                      {-0.5, 0, 0},
                                      {-1.5, -1, -2},
                                      {-22.5, -22, -22},
                                      {2.4999, 2, 2},
                                      {67.5, 68, 68},
                                      {-3.7, -4, -4},
                                      {32767.25, 32767, 32767}}) {
        EXPECT_EQ(Round_half_up(static_cast<float>(x)), up) << x;
        EXPECT_EQ(Round_half_even(x), even) << x;
    }
    EXPECT_THROW(Round_half_up(32767.5F), Overflow);
    EXPECT_EQ(Round_half_even(-32768.5), -32768);
    EXPECT_THROW(Round_half_even(32767.5), Overflow);
    EXPECT_THROW(Round_half_even(std::numeric_limits<double>::quiet_NaN()), Overflow);
    EXPECT_EQ(Round_half_even_to(-179.53125, 2), -179.53);
    EXPECT_EQ(Round_half_even_to(0.125, 2), 0.12);
}

TEST(TextFormsTest, NumbersAsText) {
    EXPECT_EQ(Int_text(-32768), "-32768");
    EXPECT_EQ(Blank_text(Int16(12)), " 12");
    EXPECT_EQ(Blank_text(Int16(-3)), "-3");
    EXPECT_EQ(Blank_text(true) + Blank_text(false), " True False");
    struct Case {
        float Value;
        const char* Text;
    };
    for (const auto& [value, text] : {Case{0.8333333F, " .8333333"},
                                      {2, " 2"},
                                      {0, " 0"},
                                      {-0.25F, "-.25"},
                                      {1234567.0F, " 1234567"},
                                      {0.1F, " .1"},
                                      {1.0F / 3, " .3333333"},
                                      {100, " 100"}})
        EXPECT_EQ(Blank_text(value), text);
    EXPECT_EQ(Blank_text(89.65), " 89.65");
    EXPECT_EQ(Blank_text(1.0 / 3), " .333333333333333");
}

TEST(TextFormsTest, EveryFloatComesBackToSevenDigits) {
    for (const float value : {1.17549435e-38F, 3.4028235e38F, 1e-5F, 0.0001234567F, 7.654321e9F}) {
        const double back = Numeric_value(Blank_text(value));
        EXPECT_NEAR(back / static_cast<double>(value), 1, 5e-7) << value;
    }
}

TEST(TextFormsTest, TheNumericValueIsTheLongestLeadingNumber) {
    const double infinity = std::numeric_limits<double>::infinity();
    struct Case {
        const char* Text;
        double Value;
    };
    for (const auto& [text, value] : {Case{"", 0},   {" 12", 12},         {"   -3.5e2x", -350},
                                      {"+7", 7},     {"--7", 0},          {"+-7", 0},
                                      {".5", .5},    {"5.", 5},           {".", 0},
                                      {"1e", 1},     {"1e+", 1},          {"1.2.3", 1.2},
                                      {"0x10", 0},   {"inf", 0},          {"nan", 0},
                                      {"1,5", 1},    {"1 2", 1},          {"-", 0},
                                      {"- 5", 0},    {"1e999", infinity}, {"-1e999", -infinity},
                                      {"1e-999", 0}, {"\t5", 0},          {"abc", 0}})
        EXPECT_EQ(Numeric_value(text), value) << text;
}

TEST(TextFormsTest, AWholeNumberIsRoundedHalfToEvenAndChecked) {
    struct Case {
        const char* Text;
        int Value;
    };
    for (const auto& [text, value] : {Case{" 42", 42},
                                      {"80.5", 80},
                                      {"81.5", 82},
                                      {"-0.4", 0},
                                      {"1e2", 100},
                                      {"7 lines", 7},
                                      {"", 0},
                                      {"-32768.5", -32768}})
        EXPECT_EQ(Int_value(text), value) << text;
    for (const char* text : {"32768", "99999999999999999999", "-32769", "1e999", "32767.5"})
        EXPECT_THROW(Int_value(text), Overflow) << text;
}

TEST(TextFormsTest, AFlagIsTrueOnlyWithItsBlank) {
    EXPECT_TRUE(Flag_value(" True"));
    for (const char* text : {"True", " true", " True ", " False", ""})
        EXPECT_FALSE(Flag_value(text)) << text;
}

}  // namespace
}  // namespace tidemark
