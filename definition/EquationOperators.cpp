#include "definition/EquationOperators.h"

#include <array>
#include <cmath>

namespace corvex {
namespace {

enum Row : int {
    kPower = 1,
    kTimes,
    kDivide,
    kRemainder,
    kMinus,
    kPlus,
    kExclusiveOr,
    kAnd,
    kOr,
    kLess,
    kGreater,
};

struct Operator {
    char text;
    int precedence;
};

// Indexed by row; row 0 never matches.
constexpr std::array<Operator, 12> kOperators{{{'\0', -1},
                                               {'#', 19},
                                               {'*', 19},
                                               {'/', 19},
                                               {'%', 18},
                                               {'-', 16},
                                               {'+', 16},
                                               {'^', 15},
                                               {'&', 15},
                                               {'|', 15},
                                               {'<', 13},
                                               {'>', 13}}};

constexpr std::string_view kOperatorCharacters = "!<>=*/%+-^&|\\";

// Bit operations are done unsigned, where every pattern is defined, and read back as signed numbers.
double FromBits(std::uint32_t bits) {
    return static_cast<double>(static_cast<std::int32_t>(bits));
}

std::uint32_t ToBits(double value) {
    return static_cast<std::uint32_t>(ToInt32(value));
}

RunCode Remainder(double& a, double b) {
    const std::int32_t divisor = ToInt32(b);
    if (divisor == 0) return kRunZeroDivisor;
    // INT32_MIN % -1 traps on x86, and the answer for -1 is 0 whatever the dividend.
    a = divisor == -1 ? 0.0 : static_cast<double>(ToInt32(a) % divisor);
    return kRunDone;
}

}  // namespace

int MatchOperator(char c) {
    for (std::size_t row = 1; row < kOperators.size(); ++row) {
        if (kOperators[row].text == c) return static_cast<int>(row);
    }
    return -1;
}

int OperatorPrecedence(int row) {
    return kOperators[static_cast<std::size_t>(row)].precedence;
}

bool IsOperatorCharacter(char c) {
    return kOperatorCharacters.find(c) != std::string_view::npos;
}

std::size_t TokenLength(std::string_view s) {
    std::size_t n = 0;
    while (n < s.size() &&
           (IsEquationLetter(s[n]) || IsEquationDigit(s[n]) || s[n] == '.' || (n == 0 && s[n] == '-'))) {
        ++n;
    }
    return n;
}

std::int32_t ToInt32(double value) {
    constexpr double kTwo31 = 2147483648.0;
    constexpr double kTwo32 = 4294967296.0;
    if (value > -kTwo31 - 1.0 && value < kTwo31) return static_cast<std::int32_t>(value);
    if (!std::isfinite(value)) return 0;
    double wrapped = std::fmod(std::trunc(value), kTwo32);
    if (wrapped < 0.0) wrapped += kTwo32;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(wrapped));
}

RunCode ApplyOperator(int row, double& a, double b) {
    switch (row) {
        case kPower:
            a = std::pow(a, b);
            break;
        case kTimes:
            a *= b;
            break;
        case kDivide:
            if (b == 0.0) return kRunZeroDivisor;
            a /= b;
            break;
        case kRemainder:
            return Remainder(a, b);
        case kMinus:
            a -= b;
            break;
        case kPlus:
            a += b;
            break;
        case kExclusiveOr:
            a = FromBits(ToBits(a) ^ ToBits(b));
            break;
        case kAnd:
            a = FromBits(ToBits(a) & ToBits(b));
            break;
        case kOr:
            a = FromBits(ToBits(a) | ToBits(b));
            break;
        case kLess:
            a = a < b ? 1.0 : 0.0;
            break;
        case kGreater:
            a = a > b ? 1.0 : 0.0;
            break;
        default:
            break;
    }
    return kRunDone;
}

}  // namespace corvex
