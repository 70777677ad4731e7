// The equation language done the plain way: text is printed into text, and the text is scanned with a stack.
// Slow and obvious on purpose; EquationEvaluator is held against it bit for bit, and raced against it in bench/.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stack>
#include <string>
#include <utility>
#include <vector>

namespace corvex::testing {

class TextualEvaluator {
public:
    // 0, 1 unbalanced, 2 does not fit, 3 unreadable.
    int Parse(const std::string& infix) {
        std::string out;
        const int code = Convert(infix, out);
        if (code != 0) return code;
        std::string letters;
        for (char c : out) {
            if (IsLetter(c)) letters += c;
        }
        if (letters.size() > 32 || out.size() > 199) return 2;
        postfix = out;
        slots.clear();
        for (char c : letters)
            slots.emplace_back(c, 0.0);
        return 0;
    }

    int SetVariable(char varid, double value) {
        for (auto& slot : slots) {
            if (slot.first != varid) continue;
            slot.second = value;
            return 1;
        }
        return 0;
    }

    double GetVariable(char varid) const {
        double value = 0.0;
        for (const auto& slot : slots) {
            if (slot.first == varid) value = slot.second;
        }
        return value;
    }

    double Evaluate() {
        double result = 0.0;
        std::string text;
        code = Substitute(text) ? Run(text, result) : 2;
        return code == 0 || code == 4 ? result : 0.0;
    }

    std::string postfix;
    std::vector<std::pair<char, double>> slots;
    int code = 0;  // of the last evaluation

private:
    static bool IsDigit(char c) { return c >= '0' && c <= '9'; }
    static bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
    static bool IsSpace(char c) { return c != '\0' && std::strchr(" \t\n\v\f\r", c) != nullptr; }
    static bool IsOperator(char c) { return c != '\0' && std::strchr("#*/%-+^&|<>", c) != nullptr; }

    static int Precedence(char c) {
        if (std::strchr("#*/", c) != nullptr) return 19;
        if (c == '%') return 18;
        if (c == '-' || c == '+') return 16;
        return std::strchr("^&|", c) != nullptr ? 15 : 13;
    }

    static std::string Token(const std::string& text, std::size_t i) {
        std::string token;
        for (; i < text.size(); ++i) {
            const char c = text[i];
            if (!IsLetter(c) && !IsDigit(c) && c != '.' && !(c == '-' && token.empty())) break;
            token += c;
        }
        return token;
    }

    static int Convert(const std::string& in, std::string& out) {
        std::string last;
        std::stack<char> operators;
        bool afteroperator = false;
        const auto pop = [&] {
            out += std::string(" ") + operators.top();
            operators.pop();
        };
        std::size_t i = 0;
        while (i < in.size()) {
            const char c = in[i];
            if (IsSpace(c)) {
                ++i;
            } else if (c == '(') {
                operators.push(c);
                ++i;
            } else if (c == ')') {
                while (!operators.empty() && operators.top() != '(')
                    pop();
                if (operators.empty()) return 1;
                operators.pop();
                ++i;
            } else if (IsOperator(c) && !afteroperator) {
                afteroperator = true;
                const bool sign = !last.empty() && std::strchr("!<>=*/%+-^&|\\", last[0]) != nullptr &&
                                  (last.size() < 2 || !IsDigit(last[1]));
                if (out.empty() || sign) out += " 0";
                last = c;
                while (!operators.empty() && operators.top() != '(' && Precedence(c) <= Precedence(operators.top())) {
                    pop();
                }
                operators.push(c);
                ++i;
            } else {
                const std::string token = Token(in, i);
                if (token.empty() && !afteroperator) return 3;
                last = token;
                out += " " + token;
                i += token.size();
                afteroperator = false;
            }
        }
        while (!operators.empty()) {
            if (operators.top() == '(') return 1;
            pop();
        }
        return 0;
    }

    // The sign of a NaN differs between processors and C libraries, so it is left out.
    static std::string Printed(double value) {
        if (std::isnan(value)) return "nan";
        char text[400];
        std::snprintf(text, sizeof text, "%f", value);
        return text;
    }

    // Writes into 200 bytes: a number is cut at their end and sends the position back to the start.
    bool Substitute(std::string& text) const {
        char work[201] = {};
        std::size_t at = 0;
        for (char c : postfix) {
            if (!IsLetter(c)) {
                if (at >= 200) return false;
                work[at++] = c;
                continue;
            }
            for (char digit : Printed(GetVariable(c)) + '\0') {
                if (at < 200) work[at++] = digit;
            }
            at = std::strlen(work) == 200 ? 0 : std::strlen(work);
        }
        text = work;
        return true;
    }

    static int Run(const std::string& text, double& result) {
        std::stack<double> stack;
        std::size_t i = 0;
        while (i < text.size()) {
            if (IsSpace(text[i])) {
                ++i;
            } else if (!IsOperator(text[i]) || (i + 1 < text.size() && IsDigit(text[i + 1]))) {
                const std::string token = Token(text, i);
                char* end = nullptr;
                const double number = std::strtod(token.c_str(), &end);
                if (token.empty() || *end != '\0') return 3;
                stack.push(number);
                i += token.size();
            } else {
                if (stack.size() < 2) return 1;
                const double b = stack.top();
                stack.pop();
                const double a = stack.top();
                stack.pop();
                double r = 0.0;
                const int failure = Apply(text[i], a, b, r);
                if (failure != 0) return failure;
                stack.push(r);
                ++i;
            }
        }
        if (!stack.empty()) result = stack.top();
        return stack.size() > 1 ? 4 : 0;
    }

    // The lowest 32 bits of the whole part, as a signed number.
    static int Whole(double value) {
        if (!std::isfinite(value)) return 0;
        auto rest = static_cast<long long>(std::fmod(std::trunc(value), 4294967296.0));
        if (rest > 2147483647LL) rest -= 4294967296LL;
        if (rest < -2147483648LL) rest += 4294967296LL;
        return static_cast<int>(rest);
    }

    static int Apply(char c, double a, double b, double& r) {
        if ((c == '/' && b == 0.0) || (c == '%' && Whole(b) == 0)) return 5;
        if (c == '#') r = std::pow(a, b);
        if (c == '*') r = a * b;
        if (c == '/') r = a / b;
        if (c == '%') r = static_cast<double>(static_cast<long long>(Whole(a)) % Whole(b));
        if (c == '-') r = a - b;
        if (c == '+') r = a + b;
        if (c == '^') r = Whole(a) ^ Whole(b);
        if (c == '&') r = Whole(a) & Whole(b);
        if (c == '|') r = Whole(a) | Whole(b);
        if (c == '<') r = a < b ? 1.0 : 0.0;
        if (c == '>') r = a > b ? 1.0 : 0.0;
        return 0;
    }
};

}  // namespace corvex::testing
