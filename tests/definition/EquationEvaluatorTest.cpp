#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "definition/EquationEvaluator.h"
#include "tests/support/EvaluatorComparison.h"

namespace corvex {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

int Parse(EquationEvaluator& evaluator, const std::string& text) {
    return evaluator.Parse(text.c_str(), static_cast<unsigned>(text.size()));
}

struct Evaluation {
    std::string equation;
    std::vector<std::pair<char, double>> variables;
    double result;
    int code = kRunDone;
};

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

const Evaluation kEvaluations[] = {
    // A variable enters with six decimals.
    {"X", {{'X', 12.5}}, 12.5},
    {"X", {{'X', 0.1234567}}, 0.123457},
    {"X*1000000", {{'X', 0.0000004}}, 0.0},
    {"X", {{'X', -0.1234567}}, -0.123457},
    {"X", {{'X', -0.0}}, -0.0},
    {"X", {{'X', -0.0000001}}, -0.0},
    // Half a millionth: the double is a little above or below the tie, or right on it.
    {"X", {{'X', 0.0000005}}, 0.0},
    {"X", {{'X', 0.0000015}}, 0.000002},
    {"X", {{'X', 0.0078125}}, 0.007812},
    {"X", {{'X', 0.0234375}}, 0.023438},
    // Power and exclusive or.
    {"2#10", {}, 1024.0},
    {"2^3", {}, 1.0},
    {"X#Y", {{'X', 9.0}, {'Y', 0.5}}, 3.0},
    // A remainder truncates its operands.
    {"7%3", {}, 1.0},
    {"7.9%3.9", {}, 1.0},
    {"X%3", {{'X', -7.9}}, -1.0},
    {"7%X", {{'X', -3.9}}, 1.0},
    // Operators bind by precedence.
    {"2+3*4", {}, 14.0},
    {"2*3%4", {}, 2.0},
    {"6&3+1", {}, 4.0},
    {"(2+3)*4", {}, 20.0},
    {"8-4-2", {}, 2.0},
    {"2#3#2", {}, 64.0},
    {"12/2*3", {}, 18.0},
    {"5|2<8", {}, 1.0},
    // Comparisons are 1 or 0.
    {"1<2", {}, 1.0},
    {"2<1", {}, 0.0},
    {"1+1>1", {}, 1.0},
    {"2>2", {}, 0.0},
    // Division by zero, or by what truncates to it, reads zero.
    {"5/0", {}, 0.0, kRunZeroDivisor},
    {"5%0", {}, 0.0, kRunZeroDivisor},
    {"5/X", {{'X', -0.0}}, 0.0, kRunZeroDivisor},
    {"1+5/X", {{'X', 0.0000001}}, 0.0, kRunZeroDivisor},
    {"5%0.5", {}, 0.0, kRunZeroDivisor},
    {"5%X", {{'X', -0.999}}, 0.0, kRunZeroDivisor},
    {"5%4294967296", {}, 0.0, kRunZeroDivisor},
    // A minus is read by its place.
    {"-3+2", {}, -1.0},
    {"2*-3", {}, -6.0},
    {"2--3", {}, 5.0},
    {"5*(-3)", {}, -15.0},
    {"-X", {{'X', -3.5}}, 3.5},
    {"2*-X", {{'X', 3.5}}, -7.0},
    // Two minus signs in a row: the first is an operator with one operand. So is a minus in front of a point.
    {"2*-X", {{'X', -3.5}}, 0.0, kRunShortOfOperands},
    {"2*-.5", {}, 0.0, kRunShortOfOperands},
    {"2*-X+1", {{'X', 3.5}}, 1.0, kRunLeftOver},
    // A second operator is short of operands.
    {"2**3", {}, 0.0, kRunShortOfOperands},
    {"+", {}, 0.0, kRunShortOfOperands},
    {"1+", {}, 0.0, kRunShortOfOperands},
    // A letter fuses with digits. The minus ends the first number, so two stand side by side.
    {"2X", {{'X', 3.5}}, 23.5},
    {"2X+1", {{'X', 3.5}}, 24.5},
    {"XY", {{'X', 3.5}, {'Y', 1.0}}, 0.0, kRunBadNumber},
    {"X5", {{'X', 3.5}}, 3.5000005},
    {"2X", {{'X', -3.5}}, -3.5, kRunLeftOver},
    // A letter used twice reads zero; case tells letters apart.
    {"X*X", {{'X', 3.0}}, 0.0},
    {"X+X", {{'X', 3.0}}, 0.0},
    {"X+x", {{'X', 3.0}, {'x', 4.0}}, 7.0},
    // Of numbers that are left over the last is read.
    {"1 2", {}, 2.0, kRunLeftOver},
    {"1 X", {{'X', 7.25}}, 7.25, kRunLeftOver},
    // Malformed numbers fail.
    {"1.2.3", {}, 0.0, kRunBadNumber},
    {".", {}, 0.0, kRunBadNumber},
    {"1+.", {}, 0.0, kRunBadNumber},
    {".5+1.", {}, 1.5},
    // Letters are variables, so there is no exponent and no hexadecimal: a zero and a number fuse.
    {"0x1F", {}, 0.0, kRunBadNumber},
    {"1e5", {{'e', 2.0}}, 12.0000005},
    // The first failure is told.
    {"5/0+1.2.3", {}, 0.0, kRunZeroDivisor},
    {"1.2.3+5/0", {}, 0.0, kRunBadNumber},
    {"5/0**2", {}, 0.0, kRunZeroDivisor},
    // Blanks mean nothing.
    {" ( X * 0.75 )\t-\n40 ", {{'X', 100.0}}, 35.0},
    {"  ", {}, 0.0},
    // Equations of the field.
    {"(X*0.75)-40", {{'X', 200.0}}, 110.0},
    {"X*0.0048828125", {{'X', 1023.0}}, 4.9951171875},
    {"(X/255)*100", {{'X', 51.0}}, 20.0},
    {"((X-40)*1.8)+32", {{'X', 140.0}}, 212.0},
    {"X&15", {{'X', 171.0}}, 11.0},
    // Numbers beyond 32 bits wrap.
    {"X&4294967295", {{'X', 171.0}}, 171.0},
    {"X|0", {{'X', 4294967295.0}}, -1.0},
    {"X|0", {{'X', 2147483648.0}}, -2147483648.0},
    {"X|0", {{'X', -2147483648.9}}, -2147483648.0},
    {"X|0", {{'X', -2147483649.0}}, 2147483647.0},
    {"X^0", {{'X', 4294967298.7}}, 2.0},
    {"X^0", {{'X', 1e30}}, 0.0},
    {"X%10", {{'X', 4294967303.0}}, 7.0},
    {"X%Y", {{'X', -2147483648.0}, {'Y', -1.0}}, 0.0},
    // Infinity, and what is no number.
    {"X+1", {{'X', kInfinity}}, kInfinity},
    {"1-X", {{'X', kInfinity}}, -kInfinity},
    {"X*2", {{'X', kNan}}, kNan},
    {"X*2", {{'X', -kNan}}, kNan},
    {"X|5", {{'X', kInfinity}}, 5.0},
    {"X|5", {{'X', kNan}}, 5.0},
    {"5%X", {{'X', kInfinity}}, 0.0, kRunZeroDivisor},
    {"5%X", {{'X', kNan}}, 0.0, kRunZeroDivisor},
    {"2X", {{'X', kInfinity}}, 0.0, kRunBadNumber},
    {"10#400", {}, kInfinity},
    // Behind its minus stands no digit, so the minus of a negative infinity is an operator.
    {"X+1", {{'X', -kInfinity}}, 0.0, kRunShortOfOperands},
    {"7 2 X", {{'X', -kInfinity}}, kInfinity, kRunLeftOver},
    {"7 2 (X<6)", {{'X', -kInfinity}}, 0.0, kRunLeftOver},
    // A number that fills the text is cut at 199 digits. The position is back at the start, so the rest overwrites the
    // number's beginning, " 2 *00000...", and turns a failure that stood in front of it into another one.
    {"X", {{'X', 1e300}}, 1.0000000000000000525e198},
    {"X", {{'X', 1e191}}, 1e191},
    {"X", {{'X', 1e192}}, 1e192},
    {"X*2", {{'X', 1e300}}, 0.0, kRunBadNumber},
    {"1.2.3-X", {{'X', 1e300}}, 0.0, kRunShortOfOperands},
    // A space, 98 characters, a space, 97 characters: what follows has three bytes.
    {"X+Y", {{'X', 1e90}, {'Y', 1e89}}, 1e90 + 1e89},
    {"X+Y+1", {{'X', 1e90}, {'Y', 1e89}}, 0.0, kRunDoesNotFit},
    // The longest postfix.
    {std::string(196, '1') + " 2", {}, 2.0, kRunLeftOver},
};

// Each is held against the plain evaluator too.
TEST(EquationEvaluator, Evaluates) {
    for (const Evaluation& one : kEvaluations) {
        SCOPED_TRACE(one.equation + " with " + ::testing::PrintToString(one.variables));
        EquationEvaluator evaluator;
        testing::TextualEvaluator plain;
        EXPECT_EQ(Parse(evaluator, one.equation), 1);
        EXPECT_EQ(plain.Parse(one.equation), 0);
        for (const auto& [letter, value] : one.variables) {
            EXPECT_EQ(evaluator.SetVariable(letter, value), 1);
            plain.SetVariable(letter, value);
        }
        const double result = evaluator.Evaluate();
        EXPECT_PRED2(testing::SameNumber, result, one.result);
        EXPECT_PRED2(testing::SameNumber, result, plain.Evaluate());
        EXPECT_EQ(evaluator.LastRunCode(), one.code);
        EXPECT_EQ(plain.code, one.code);
    }
}

TEST(EquationEvaluator, StartsEmpty) {
    EquationEvaluator evaluator;
    char text[4] = "abc";
    EXPECT_EQ(evaluator.GetText(text, sizeof text), 1U);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(evaluator.GetSlotCount(), 0);
    EXPECT_EQ(evaluator.Postfix(), nullptr);
    EXPECT_EQ(evaluator.SetVariable('X', 1.0), 0);
    EXPECT_EQ(evaluator.GetVariable('X'), 0.0);
    EXPECT_EQ(evaluator.Evaluate(), 0.0);
}

TEST(EquationEvaluator, ConvertsToPostfix) {
    const std::pair<const char*, const char*> cases[] = {
        {"(X*0.75)-40", " X 0.75 * 40 -"},
        {" ( X * 0.75 )\t-\n40 ", " X 0.75 * 40 -"},
        {"-X+1", " 0 X - 1 +"},
        {"2*-3", " 2 -3 *"},
        {"2**3", " 2  * 3 *"},
        {"1 2", " 1 2"},
        {"+", " 0 +"},
        {"()", ""},
        {"8-4-2", " 8 4 - 2 -"},
        {"2#3#2", " 2 3 # 2 #"},
        {"5*(-(3))", " 5 - 3 *"},
        // A negated letter in front of another operator is a sign without digits, and a zero appears behind it.
        {"2*-X+1", " 2 -X 0 * 1 +"},
        {"2*-3+1", " 2 -3 * 1 +"},
        {"2*-.5+1", " 2 -.5 0 * 1 +"},
    };
    for (const auto& [infix, postfix] : cases) {
        EquationEvaluator evaluator;
        EXPECT_EQ(Parse(evaluator, infix), 1) << infix;
        EXPECT_STREQ(evaluator.Postfix(), postfix) << infix;
    }
}

TEST(EquationEvaluator, RefusesWhatItCannotConvert) {
    const std::pair<std::string, int> cases[] = {
        {"(1+2", EquationEvaluator::kUnbalanced},
        {"1+2)", EquationEvaluator::kUnbalanced},
        {"((", EquationEvaluator::kUnbalanced},
        {")", EquationEvaluator::kUnbalanced},
        {std::string(100000, '('), EquationEvaluator::kUnbalanced},
        {"$", EquationEvaluator::kUnreadable},
        {"2!", EquationEvaluator::kUnreadable},
        {"2=3", EquationEvaluator::kUnreadable},
        {"2\\3", EquationEvaluator::kUnreadable},
        {"1+$", EquationEvaluator::kUnreadable},
        {"X\xB0", EquationEvaluator::kUnreadable},
        {"2,5", EquationEvaluator::kUnreadable},
        {std::string(197, '1') + " 2", EquationEvaluator::kDoesNotFit},
        {std::string(100000, '-'), EquationEvaluator::kDoesNotFit},
    };
    for (const auto& [infix, code] : cases) {
        EquationEvaluator evaluator;
        EXPECT_EQ(Parse(evaluator, infix), 0) << infix.substr(0, 20);
        EXPECT_EQ(evaluator.LastParseCode(), code) << infix.substr(0, 20);
        EXPECT_EQ(evaluator.Evaluate(), 0.0);
    }
}

TEST(EquationEvaluator, AcceptsThirtyTwoLettersAndNoMore) {
    std::string text = "a";
    for (char c = 'b'; c <= 'z'; ++c)
        text += std::string("+") + c;
    for (char c = 'A'; c <= 'F'; ++c)
        text += std::string("+") + c;
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, text), 1);
    EXPECT_EQ(evaluator.GetSlotCount(), 32);
    EXPECT_EQ(evaluator.SetVariable('F', 2.0), 1);
    EXPECT_EQ(Parse(evaluator, text + "+G"), 0);
    EXPECT_EQ(evaluator.LastParseCode(), EquationEvaluator::kDoesNotFit);
    EXPECT_EQ(evaluator.GetSlotCount(), 32);
    EXPECT_EQ(evaluator.GetVariable('F'), 2.0);
}

TEST(EquationEvaluator, KeepsEquationWhenTheNextDoesNotParse) {
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, "X*2"), 1);
    EXPECT_EQ(evaluator.SetVariable('X', 4.0), 1);
    EXPECT_EQ(Parse(evaluator, "(Y"), 0);
    char text[8];
    EXPECT_EQ(evaluator.GetText(text, sizeof text), 3U);
    EXPECT_STREQ(text, "(Y");
    EXPECT_STREQ(evaluator.Postfix(), " X 2 *");
    EXPECT_EQ(evaluator.GetSlotCount(), 1);
    EXPECT_EQ(evaluator.Evaluate(), 8.0);
}

TEST(EquationEvaluator, TakesTextUpToItsEndOrItsLengthAndNothingForNone) {
    EquationEvaluator evaluator;
    char text[8];
    const struct {
        const char* text;
        unsigned length;
        int parsed;
        const char* kept;
        double result;
    } cases[] = {{"3+4", 3, 1, "3+4", 7.0},
                 {nullptr, 5, 0, "3+4", 7.0},
                 {"8", 0, 0, "3+4", 7.0},
                 {"1+2\0+3", 6, 1, "1+2", 3.0},
                 {"12345", 2, 1, "12", 12.0}};
    for (const auto& one : cases) {
        EXPECT_EQ(evaluator.Parse(one.text, one.length), one.parsed);
        EXPECT_EQ(evaluator.GetText(text, sizeof text), one.result == 12.0 ? 3U : 4U);
        EXPECT_STREQ(text, one.kept);
        EXPECT_EQ(evaluator.Evaluate(), one.result);
        EXPECT_EQ(evaluator.LastParseCode(), EquationEvaluator::kParsed);
    }
}

TEST(EquationEvaluator, CopiesTextIntoSmallBuffers) {
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, "X+10"), 1);
    char text[4] = "???";
    EXPECT_EQ(evaluator.GetText(text, 3), 5U);
    EXPECT_STREQ(text, "X+");
    EXPECT_EQ(evaluator.GetText(nullptr, 10), 5U);
    EXPECT_EQ(evaluator.GetText(text, 0), 5U);
    EXPECT_STREQ(text, "X+");
}

// The stored variable keeps all its digits; only the evaluation sees six decimals.
TEST(EquationEvaluator, KeepsVariablesAsTheyWereSetUntilTheNextParse) {
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, "X-Y"), 1);
    for (const double x : {10.0, 11.0, 0.1234567}) {
        EXPECT_EQ(evaluator.SetVariable('X', x), 1);
        EXPECT_EQ(evaluator.GetVariable('X'), x);
    }
    EXPECT_EQ(evaluator.Evaluate(), 0.123457);
    evaluator.SetVariable('Y', -1.0);
    EXPECT_EQ(evaluator.Evaluate(), 1.123457);
    EXPECT_EQ(evaluator.SetVariable('Z', 1.0), 0);
    EXPECT_EQ(evaluator.GetVariable('Z'), 0.0);
    EXPECT_EQ(Parse(evaluator, "X-X"), 1);
    EXPECT_EQ(evaluator.Evaluate(), 0.0);
    EXPECT_EQ(evaluator.GetSlotCount(), 2);
    EXPECT_EQ(evaluator.SetVariable('X', 3.0), 1);
    EXPECT_EQ(evaluator.GetVariable('X'), 0.0) << "a letter used twice";
}

TEST(EquationEvaluator, MovesWithEverythingItHolds) {
    EquationEvaluator first;
    EXPECT_EQ(Parse(first, "X*2"), 1);
    first.SetVariable('X', 21.0);
    EquationEvaluator second(std::move(first));
    EXPECT_EQ(second.Evaluate(), 42.0);
    EXPECT_STREQ(second.Postfix(), " X 2 *");
}

}  // namespace
}  // namespace corvex
