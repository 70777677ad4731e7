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

struct Setting {
    char letter;
    double value;
};

// Every evaluation of these tests is held against the plain evaluator too.
double Result(const std::string& text, std::initializer_list<Setting> settings = {}, int code = kRunDone) {
    EquationEvaluator evaluator;
    testing::TextualEvaluator plain;
    EXPECT_EQ(Parse(evaluator, text), 1) << text;
    EXPECT_EQ(plain.Parse(text), 0) << text;
    for (const Setting& s : settings) {
        EXPECT_EQ(evaluator.SetVariable(s.letter, s.value), 1);
        plain.SetVariable(s.letter, s.value);
    }
    const double result = evaluator.Evaluate();
    EXPECT_EQ(evaluator.LastRunCode(), code) << text;
    EXPECT_PRED2(testing::SameNumber, result, plain.Evaluate()) << text;
    EXPECT_EQ(plain.code, code) << text;
    return result;
}

double Failing(const std::string& text, int code) {
    return Result(text, {}, code);
}

int ParseCode(const std::string& text) {
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, text), 0) << text;
    EXPECT_EQ(evaluator.Evaluate(), 0.0);
    return evaluator.LastParseCode();
}

std::string PostfixOf(const std::string& text) {
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, text), 1) << text;
    return evaluator.Postfix() != nullptr ? evaluator.Postfix() : "(none)";
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
    EXPECT_EQ(PostfixOf("(X*0.75)-40"), " X 0.75 * 40 -");
    EXPECT_EQ(PostfixOf("-X+1"), " 0 X - 1 +");
    EXPECT_EQ(PostfixOf("2*-3"), " 2 -3 *");
    EXPECT_EQ(PostfixOf("2**3"), " 2  * 3 *");
    EXPECT_EQ(PostfixOf("1 2"), " 1 2");
    EXPECT_EQ(PostfixOf("+"), " 0 +");
    EXPECT_EQ(PostfixOf("()"), "");
    EXPECT_EQ(PostfixOf("8-4-2"), " 8 4 - 2 -");
    EXPECT_EQ(PostfixOf("2#3#2"), " 2 3 # 2 #");
    EXPECT_EQ(PostfixOf("5*(-(3))"), " 5 - 3 *");
}

// A negated letter in front of another operator counts as a sign without digits, and a zero appears behind it.
TEST(EquationEvaluator, InsertsZeroBehindNegatedLetter) {
    EXPECT_EQ(PostfixOf("2*-X+1"), " 2 -X 0 * 1 +");
    EXPECT_EQ(PostfixOf("2*-3+1"), " 2 -3 * 1 +");
    EXPECT_EQ(PostfixOf("2*-.5+1"), " 2 -.5 0 * 1 +");
    EXPECT_EQ(Result("2*-X+1", {{'X', 3.5}}, kRunLeftOver), 1.0);
}

TEST(EquationEvaluator, KeepsSixDecimalsOfVariable) {
    EXPECT_EQ(Result("X", {{'X', 12.5}}), 12.5);
    EXPECT_EQ(Result("X", {{'X', 0.1234567}}), 0.123457);
    EXPECT_EQ(Result("X*1000000", {{'X', 0.0000004}}), 0.0);
    EXPECT_EQ(Result("X", {{'X', -0.1234567}}), -0.123457);
    EXPECT_TRUE(std::signbit(Result("X", {{'X', -0.0}})));
    EXPECT_TRUE(std::signbit(Result("X", {{'X', -0.0000001}})));
    // Half a millionth: the double is a little above or below the tie, or right on it.
    EXPECT_EQ(Result("X", {{'X', 0.0000005}}), 0.0);
    EXPECT_EQ(Result("X", {{'X', 0.0000015}}), 0.000002);
    EXPECT_EQ(Result("X", {{'X', 0.0078125}}), 0.007812);
    EXPECT_EQ(Result("X", {{'X', 0.0234375}}), 0.023438);
}

TEST(EquationEvaluator, ComputesPowerAndExclusiveOr) {
    EXPECT_EQ(Result("2#10"), 1024.0);
    EXPECT_EQ(Result("2^3"), 1.0);
    EXPECT_EQ(Result("X#Y", {{'X', 9.0}, {'Y', 0.5}}), 3.0);
}

TEST(EquationEvaluator, TruncatesOperandsOfRemainder) {
    EXPECT_EQ(Result("7%3"), 1.0);
    EXPECT_EQ(Result("7.9%3.9"), 1.0);
    EXPECT_EQ(Result("X%3", {{'X', -7.9}}), -1.0);
    EXPECT_EQ(Result("7%X", {{'X', -3.9}}), 1.0);
}

TEST(EquationEvaluator, BindsByPrecedence) {
    EXPECT_EQ(Result("2+3*4"), 14.0);
    EXPECT_EQ(Result("2*3%4"), 2.0);
    EXPECT_EQ(Result("6&3+1"), 4.0);
    EXPECT_EQ(Result("(2+3)*4"), 20.0);
    EXPECT_EQ(Result("8-4-2"), 2.0);
    EXPECT_EQ(Result("2#3#2"), 64.0);
    EXPECT_EQ(Result("12/2*3"), 18.0);
    EXPECT_EQ(Result("5|2<8"), 1.0);
}

TEST(EquationEvaluator, Compares) {
    EXPECT_EQ(Result("1<2"), 1.0);
    EXPECT_EQ(Result("2<1"), 0.0);
    EXPECT_EQ(Result("1+1>1"), 1.0);
    EXPECT_EQ(Result("2>2"), 0.0);
}

TEST(EquationEvaluator, ReadsZeroOnDivisionByZero) {
    EXPECT_EQ(Failing("5/0", kRunZeroDivisor), 0.0);
    EXPECT_EQ(Failing("5%0", kRunZeroDivisor), 0.0);
    EXPECT_EQ(Result("5/X", {{'X', -0.0}}, kRunZeroDivisor), 0.0);
    EXPECT_EQ(Result("1+5/X", {{'X', 0.0000001}}, kRunZeroDivisor), 0.0);
}

TEST(EquationEvaluator, FailsWhenDivisorTruncatesToZero) {
    EXPECT_EQ(Failing("5%0.5", kRunZeroDivisor), 0.0);
    EXPECT_EQ(Result("5%X", {{'X', -0.999}}, kRunZeroDivisor), 0.0);
    EXPECT_EQ(Failing("5%4294967296", kRunZeroDivisor), 0.0);
}

TEST(EquationEvaluator, ReadsMinusByItsPlace) {
    EXPECT_EQ(Result("-3+2"), -1.0);
    EXPECT_EQ(Result("2*-3"), -6.0);
    EXPECT_EQ(Result("2--3"), 5.0);
    EXPECT_EQ(Result("5*(-3)"), -15.0);
    EXPECT_EQ(Result("-X", {{'X', -3.5}}), 3.5);
    EXPECT_EQ(Result("2*-X", {{'X', 3.5}}), -7.0);
    // Two minus signs in a row: the first is an operator with one operand.
    EXPECT_EQ(Result("2*-X", {{'X', -3.5}}, kRunShortOfOperands), 0.0);
    // A minus in front of a point is an operator as well.
    EXPECT_EQ(Failing("2*-.5", kRunShortOfOperands), 0.0);
}

TEST(EquationEvaluator, LeavesSecondOperatorShortOfOperands) {
    EXPECT_EQ(Failing("2**3", kRunShortOfOperands), 0.0);
    EXPECT_EQ(Failing("+", kRunShortOfOperands), 0.0);
    EXPECT_EQ(Failing("1+", kRunShortOfOperands), 0.0);
}

TEST(EquationEvaluator, FusesLetterWithDigits) {
    EXPECT_EQ(Result("2X", {{'X', 3.5}}), 23.5);
    EXPECT_EQ(Result("2X+1", {{'X', 3.5}}), 24.5);
    EXPECT_EQ(Result("XY", {{'X', 3.5}, {'Y', 1.0}}, kRunBadNumber), 0.0);
    EXPECT_EQ(Result("X5", {{'X', 3.5}}), 3.5000005);
    // The minus ends the first number, so two stand side by side.
    EXPECT_EQ(Result("2X", {{'X', -3.5}}, kRunLeftOver), -3.5);
}

TEST(EquationEvaluator, ReadsZeroForLetterUsedTwice) {
    EXPECT_EQ(Result("X*X", {{'X', 3.0}}), 0.0);
    EXPECT_EQ(Result("X+X", {{'X', 3.0}}), 0.0);
    EXPECT_EQ(Result("X+x", {{'X', 3.0}, {'x', 4.0}}), 7.0);
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, "X*X"), 1);
    EXPECT_EQ(evaluator.GetSlotCount(), 2);
    EXPECT_EQ(evaluator.SetVariable('X', 3.0), 1);
    EXPECT_EQ(evaluator.GetVariable('X'), 0.0);
}

TEST(EquationEvaluator, RefusesUnbalancedParentheses) {
    EXPECT_EQ(ParseCode("(1+2"), EquationEvaluator::kUnbalanced);
    EXPECT_EQ(ParseCode("1+2)"), EquationEvaluator::kUnbalanced);
    EXPECT_EQ(ParseCode("(("), EquationEvaluator::kUnbalanced);
    EXPECT_EQ(ParseCode(")"), EquationEvaluator::kUnbalanced);
}

TEST(EquationEvaluator, RefusesUnknownCharacters) {
    for (const char* text : {"$", "2!", "2=3", "2\\3", "1+$", "X\xB0", "2,5"}) {
        EXPECT_EQ(ParseCode(text), EquationEvaluator::kUnreadable) << text;
    }
}

TEST(EquationEvaluator, ReadsTopWhenNumbersAreLeftOver) {
    EXPECT_EQ(Result("1 2", {}, kRunLeftOver), 2.0);
    EXPECT_EQ(Result("1 X", {{'X', 7.25}}, kRunLeftOver), 7.25);
}

TEST(EquationEvaluator, FailsOnMalformedNumber) {
    EXPECT_EQ(Failing("1.2.3", kRunBadNumber), 0.0);
    EXPECT_EQ(Failing(".", kRunBadNumber), 0.0);
    EXPECT_EQ(Failing("1+.", kRunBadNumber), 0.0);
    EXPECT_EQ(Result(".5+1."), 1.5);
    // Letters are variables, so there is no exponent and no hexadecimal: a zero and a number fuse.
    EXPECT_EQ(Result("0x1F", {}, kRunBadNumber), 0.0);
    EXPECT_EQ(Result("1e5", {{'e', 2.0}}), 12.0000005);
}

// Whichever failure the text meets first ends the run.
TEST(EquationEvaluator, StopsAtFirstFailure) {
    EXPECT_EQ(Failing("5/0+1.2.3", kRunZeroDivisor), 0.0);
    EXPECT_EQ(Failing("1.2.3+5/0", kRunBadNumber), 0.0);
    EXPECT_EQ(Failing("5/0**2", kRunZeroDivisor), 0.0);
}

TEST(EquationEvaluator, IgnoresSpaces) {
    EXPECT_EQ(Result(" ( X * 0.75 )\t-\n40 ", {{'X', 100.0}}), 35.0);
    EXPECT_EQ(PostfixOf(" ( X * 0.75 )\t-\n40 "), PostfixOf("(X*0.75)-40"));
    EXPECT_EQ(Result("  "), 0.0);
}

TEST(EquationEvaluator, EvaluatesEquationsOfTheField) {
    EXPECT_EQ(Result("(X*0.75)-40", {{'X', 200.0}}), 110.0);
    EXPECT_EQ(Result("X*0.0048828125", {{'X', 1023.0}}), 4.9951171875);
    EXPECT_EQ(Result("(X/255)*100", {{'X', 51.0}}), 20.0);
    EXPECT_EQ(Result("((X-40)*1.8)+32", {{'X', 140.0}}), 212.0);
    EXPECT_EQ(Result("X&15", {{'X', 171.0}}), 11.0);
}

TEST(EquationEvaluator, WrapsNumbersBeyond32Bits) {
    EXPECT_EQ(Result("X&4294967295", {{'X', 171.0}}), 171.0);
    EXPECT_EQ(Result("X|0", {{'X', 4294967295.0}}), -1.0);
    EXPECT_EQ(Result("X|0", {{'X', 2147483648.0}}), -2147483648.0);
    EXPECT_EQ(Result("X|0", {{'X', -2147483648.9}}), -2147483648.0);
    EXPECT_EQ(Result("X|0", {{'X', -2147483649.0}}), 2147483647.0);
    EXPECT_EQ(Result("X^0", {{'X', 4294967298.7}}), 2.0);
    EXPECT_EQ(Result("X^0", {{'X', 1e30}}), 0.0);
    EXPECT_EQ(Result("X%10", {{'X', 4294967303.0}}), 7.0);
    EXPECT_EQ(Result("X%Y", {{'X', -2147483648.0}, {'Y', -1.0}}), 0.0);
}

TEST(EquationEvaluator, ReadsInfinityAndNan) {
    EXPECT_EQ(Result("X+1", {{'X', kInfinity}}), kInfinity);
    EXPECT_EQ(Result("1-X", {{'X', kInfinity}}), -kInfinity);
    EXPECT_TRUE(std::isnan(Result("X*2", {{'X', std::nan("")}})));
    EXPECT_TRUE(std::isnan(Result("X*2", {{'X', -std::nan("")}})));
    EXPECT_EQ(Result("X|5", {{'X', kInfinity}}), 5.0);
    EXPECT_EQ(Result("X|5", {{'X', std::nan("")}}), 5.0);
    EXPECT_EQ(Result("5%X", {{'X', kInfinity}}, kRunZeroDivisor), 0.0);
    EXPECT_EQ(Result("5%X", {{'X', std::nan("")}}, kRunZeroDivisor), 0.0);
    EXPECT_EQ(Result("2X", {{'X', kInfinity}}, kRunBadNumber), 0.0);
    EXPECT_EQ(Result("10#400"), kInfinity);
}

// Behind its minus stands no digit, so the minus of a negative infinity is an operator.
TEST(EquationEvaluator, ReadsMinusOfNegativeInfinityAsOperator) {
    EXPECT_EQ(Result("X+1", {{'X', -kInfinity}}, kRunShortOfOperands), 0.0);
    EXPECT_EQ(Result("7 2 X", {{'X', -kInfinity}}, kRunLeftOver), kInfinity);
    EXPECT_EQ(Result("7 2 (X<6)", {{'X', -kInfinity}}, kRunLeftOver), 0.0);
}

TEST(EquationEvaluator, CutsNumberThatFillsTheText) {
    const double digits199 = 1.0000000000000000525e198;
    EXPECT_EQ(Result("X", {{'X', 1e300}}), digits199);
    EXPECT_EQ(Result("X", {{'X', 1e191}}), 1e191);
    EXPECT_EQ(Result("X", {{'X', 1e192}}), 1e192);
    // The position is back at the start, so the rest overwrites the number's beginning: " 2 *00000...".
    EXPECT_EQ(Result("X*2", {{'X', 1e300}}, kRunBadNumber), 0.0);
    // " -.2.3 1000...": the number that is cut turns a failure that stood in front of it into another one.
    EXPECT_EQ(Result("1.2.3-X", {{'X', 1e300}}, kRunShortOfOperands), 0.0);
}

TEST(EquationEvaluator, RunsNothingWhenTextLeavesItsBytes) {
    // A space, 98 characters, a space, 97 characters: what follows has three bytes.
    EXPECT_EQ(Result("X+Y", {{'X', 1e90}, {'Y', 1e89}}), 1e90 + 1e89);
    EXPECT_EQ(Result("X+Y+1", {{'X', 1e90}, {'Y', 1e89}}, kRunDoesNotFit), 0.0);
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

TEST(EquationEvaluator, RefusesPostfixLongerThanItsBuffer) {
    const std::string fits = std::string(197, '1') + " 2";
    EXPECT_EQ(PostfixOf(fits.substr(1)).size(), 199U);
    EXPECT_EQ(Result(fits.substr(1), {}, kRunLeftOver), 2.0);
    EXPECT_EQ(ParseCode(fits), EquationEvaluator::kDoesNotFit);
    EXPECT_EQ(ParseCode(std::string(100000, '-')), EquationEvaluator::kDoesNotFit);
    EXPECT_EQ(ParseCode(std::string(100000, '(')), EquationEvaluator::kUnbalanced);
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

TEST(EquationEvaluator, ChangesNothingForNullOrZeroLength) {
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, "3+4"), 1);
    EXPECT_EQ(evaluator.Parse(nullptr, 5), 0);
    EXPECT_EQ(evaluator.Parse("8", 0), 0);
    char text[8];
    EXPECT_EQ(evaluator.GetText(text, sizeof text), 4U);
    EXPECT_STREQ(text, "3+4");
    EXPECT_EQ(evaluator.Evaluate(), 7.0);
    EXPECT_EQ(evaluator.LastParseCode(), EquationEvaluator::kParsed);
}

TEST(EquationEvaluator, TakesTextUpToItsEndOrItsLength) {
    EquationEvaluator evaluator;
    EXPECT_EQ(evaluator.Parse("1+2\0+3", 6), 1);
    EXPECT_EQ(evaluator.Evaluate(), 3.0);
    EXPECT_EQ(evaluator.Parse("12345", 2), 1);
    EXPECT_EQ(evaluator.Evaluate(), 12.0);
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

TEST(EquationEvaluator, KeepsVariablesBetweenEvaluationsAndClearsThemOnParse) {
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, "X-Y"), 1);
    evaluator.SetVariable('X', 10.0);
    evaluator.SetVariable('Y', 4.0);
    EXPECT_EQ(evaluator.Evaluate(), 6.0);
    evaluator.SetVariable('X', 11.0);
    EXPECT_EQ(evaluator.Evaluate(), 7.0);
    EXPECT_EQ(Parse(evaluator, "X-Y"), 1);
    EXPECT_EQ(evaluator.Evaluate(), 0.0);
}

// The stored variable keeps all its digits; only the evaluation sees six decimals.
TEST(EquationEvaluator, ReturnsVariableAsItWasSet) {
    EquationEvaluator evaluator;
    EXPECT_EQ(Parse(evaluator, "X"), 1);
    EXPECT_EQ(evaluator.SetVariable('X', 0.1234567), 1);
    EXPECT_EQ(evaluator.GetVariable('X'), 0.1234567);
    EXPECT_EQ(evaluator.SetVariable('Y', 1.0), 0);
    EXPECT_EQ(evaluator.GetVariable('Y'), 0.0);
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
