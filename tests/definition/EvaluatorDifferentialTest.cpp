#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "definition/EquationText.h"
#include "tests/support/EvaluatorComparison.h"

namespace corvex {
namespace {

class Source {
public:
    explicit Source(unsigned seed) : random_(seed) {}

    std::size_t Below(std::size_t n) { return static_cast<std::size_t>(random_() % n); }

    // What packets and links give, and what they should not.
    double Value() {
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        const std::size_t kind = Below(12);
        if (kind == 0) return 0.0;
        if (kind == 1) return static_cast<double>(Below(256));
        if (kind == 2) return static_cast<double>(Below(65536));
        if (kind == 3) return static_cast<double>(random_() >> 32);
        if (kind == 4) return -static_cast<double>(Below(40000));
        if (kind == 5) return static_cast<double>(Below(4000000000)) / 1e7 + 5e-8;
        if (kind == 6) return -static_cast<double>(Below(1000000)) / 128.0;
        if (kind == 7) return std::bit_cast<double>(random_());
        if (kind == 8) return std::ldexp(1.0 + static_cast<double>(Below(1000)) / 997.0, static_cast<int>(Below(700)));
        if (kind == 9) return Below(2) == 0 ? kInfinity : -kInfinity;
        if (kind == 10) return Below(2) == 0 ? std::nan("") : -0.0;
        return static_cast<double>(Below(100)) * 0.1;
    }

    std::string Number() {
        std::string text = std::to_string(Below(Below(2) == 0 ? 10 : 100000));
        if (Below(2) == 0) {
            text += '.';
            text += std::to_string(Below(10000));
        }
        return text;
    }

    std::string Operand() {
        const char letter = "XYZABxyznaif"[Below(12)];
        const std::size_t kind = Below(16);
        std::string text;
        if (kind == 0 || kind == 2) text += '-';
        if (kind >= 1 && kind <= 5) text += Number();
        if (kind <= 1 || kind > 5) text += letter;
        return text;
    }

    std::string Expression(int depth) {
        if (depth == 0) return Operand();
        std::string text = Expression(depth - 1);
        text += "#*/%-+^&|<>"[Below(11)];
        text += Expression(static_cast<int>(Below(2)));
        if (Below(3) == 0) {
            text.insert(text.begin(), '(');
            text += ')';
        }
        if (Below(8) == 0) text.insert(Below(text.size()), " ");
        return text;
    }

    // Mostly not an equation at all.
    std::string Soup() {
        static const std::string kAlphabet = "XYZeinaf0123456789..--+-*/%#^&|<>() \t";
        static const std::string kRare = "!=\\$\x80_,";
        std::string text;
        for (std::size_t n = Below(24) + 1; n > 0; --n) {
            text += Below(50) == 0 ? kRare[Below(kRare.size())] : kAlphabet[Below(kAlphabet.size())];
        }
        return text;
    }

    std::vector<double> Values() {
        std::vector<double> values(8);
        const bool plain = Below(2) == 0;
        for (double& value : values)
            value = plain ? static_cast<double>(Below(100000)) * 0.37 : Value();
        return values;
    }

private:
    std::mt19937_64 random_;
};

TEST(EvaluatorDifferential, AgreesOnRandomEquationsAndCharacters) {
    Source source(1);
    for (int i = 0; i < 100000; ++i) {
        ASSERT_EQ(testing::DifferenceFromTextual(source.Expression(1 + i % 6), source.Values()), "");
        ASSERT_EQ(testing::DifferenceFromTextual(source.Soup(), source.Values()), "");
    }
}

// Long equations and huge values: the text fills its bytes, starts over, and runs out of them.
TEST(EvaluatorDifferential, AgreesAroundTheEndOfTheText) {
    Source source(3);
    for (int i = 0; i < 60000; ++i) {
        std::string equation;
        while (equation.size() < source.Below(150)) {
            equation += source.Operand();
            equation += " +-*<"[source.Below(5)];
        }
        equation += source.Operand();
        std::vector<double> values = source.Values();
        for (double& value : values) {
            if (source.Below(2) == 0) value = std::ldexp(1.0 / 3.0, static_cast<int>(source.Below(900)));
        }
        ASSERT_EQ(testing::DifferenceFromTextual(equation, values), "");
    }
}

// The length at which a lone variable stops fitting, digit by digit, for equations of every length.
TEST(EvaluatorDifferential, AgreesOnEveryLengthOfTextAndNumber) {
    for (std::size_t length = 1; length < 200; ++length) {
        const std::string equation = "X<" + std::string(length, '7');
        // Rounding up adds a digit to these.
        for (int digits = 1; digits <= 8; ++digits) {
            ASSERT_EQ(testing::DifferenceFromTextual(equation, {std::pow(10.0, digits) - 1e-7}), "");
            ASSERT_EQ(testing::DifferenceFromTextual(equation, {1e-7 - std::pow(10.0, digits)}), "");
        }
        for (int digits = 1; digits <= 200; digits += length % 7 == 0 ? 1 : 5) {
            ASSERT_EQ(testing::DifferenceFromTextual(equation, {std::pow(10.0, digits)}), "");
            ASSERT_EQ(testing::DifferenceFromTextual(equation, {-9.9999999 * std::pow(10.0, digits - 1)}), "");
        }
    }
}

// Texts that no substitution makes are run safely as well.
TEST(EvaluatorDifferential, RunsTextsWithOperatorsInFrontOfDigits) {
    double result = 8.0;
    EXPECT_EQ(EquationText::Run(" 1 *5", result), kRunBadNumber);
    EXPECT_EQ(EquationText::Run(" 1 -5 +", result), kRunDone);
    EXPECT_EQ(result, -4.0);
    EXPECT_EQ(EquationText::Run(std::string(200, '1'), result), kRunDone);
    EXPECT_EQ(EquationText::Run("", result), kRunDone);
}

}  // namespace
}  // namespace corvex
