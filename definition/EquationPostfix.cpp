#include "definition/EquationPostfix.h"

#include <cstddef>

#include "definition/EquationOperators.h"

namespace corvex {
namespace {

class Converter {
public:
    Converter(std::string_view infix, std::string& out) : infix_(infix), out_(out) {}

    PostfixResult Run();

private:
    void Append(std::string_view token) {
        out_ += ' ';
        out_ += token;
    }
    void PopToOutput() {
        Append({&stack_.back(), 1});
        stack_.pop_back();
    }
    bool CloseParenthesis();
    void TakeOperator(int row, char c);
    bool TakeOperand();

    std::string_view infix_;
    std::string& out_;
    std::size_t i_ = 0;
    std::string_view last_;
    std::string stack_;  // operators and opening parentheses, one character each
    bool afteroperator_ = false;
};

bool Converter::CloseParenthesis() {
    while (!stack_.empty() && stack_.back() != '(')
        PopToOutput();
    if (stack_.empty()) return false;
    stack_.pop_back();
    return true;
}

void Converter::TakeOperator(int row, char c) {
    afteroperator_ = true;
    const bool lastIsSign =
        !last_.empty() && IsOperatorCharacter(last_[0]) && !(last_.size() > 1 && IsEquationDigit(last_[1]));
    if (out_.empty() || lastIsSign) Append("0");
    last_ = infix_.substr(i_, 1);
    while (!stack_.empty() && stack_.back() != '(' &&
           OperatorPrecedence(row) <= OperatorPrecedence(MatchOperator(stack_.back()))) {
        PopToOutput();
    }
    stack_ += c;
    ++i_;
}

bool Converter::TakeOperand() {
    const std::size_t n = TokenLength(infix_.substr(i_));
    if (n == 0 && !afteroperator_) return false;
    last_ = infix_.substr(i_, n);
    Append(last_);
    i_ += n;
    afteroperator_ = false;
    return true;
}

PostfixResult Converter::Run() {
    while (i_ < infix_.size()) {
        const char c = infix_[i_];
        if (IsEquationSpace(c)) {
            ++i_;
        } else if (c == '(') {
            stack_ += c;
            ++i_;
        } else if (c == ')') {
            if (!CloseParenthesis()) return PostfixResult::kUnbalanced;
            ++i_;
        } else if (const int row = MatchOperator(c); row > 0 && !afteroperator_) {
            TakeOperator(row, c);
        } else if (!TakeOperand()) {
            return PostfixResult::kUnreadable;
        }
    }
    while (!stack_.empty()) {
        if (stack_.back() == '(') return PostfixResult::kUnbalanced;
        PopToOutput();
    }
    return PostfixResult::kDone;
}

}  // namespace

PostfixResult ConvertToPostfix(std::string_view infix, std::string& postfix) {
    return Converter(infix, postfix).Run();
}

}  // namespace corvex
