#include "apps/sim/RawCurve.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "apps/sim/FieldWriter.h"
#include "definition/ADXLookupTable.h"
#include "definition/EquationEvaluator.h"

namespace corvex {

namespace {

struct Domain {
    double low, high;
};

Domain DomainOf(const ADXValue& value) {
    const int bits = static_cast<int>(FieldBytes(value.sizeinbits) * 8);
    const double span = std::ldexp(1.0, bits);
    if (value.IsSigned() && bits != 24) return {-span / 2, span / 2 - 1};
    return {0.0, span - 1};
}

// The value's number for a native number.
class Response {
public:
    explicit Response(const ADXValue& value) : value_(value) {
        std::vector<char> text(value.GetEquation(nullptr, 0) + 1U);
        value.GetEquation(text.data(), static_cast<std::uint32_t>(text.size()));
        parsed_ = evaluator_.Parse(text.data(), static_cast<unsigned>(text.size())) != 0;
        // A table of texts has no numbers to sweep; the equation's output is what then moves.
        table_ = value.lookup != nullptr && value.lookup->GetOutputType() != ADXLookupTable::kText;
    }

    bool Usable() const { return parsed_; }

    double operator()(double native) {
        for (const ADXVar& var : value_.Vars())
            evaluator_.SetVariable(var.varid, native);
        const double number = evaluator_.Evaluate();
        return table_ ? static_cast<double>(value_.lookup->Convert(static_cast<float>(number))) : number;
    }

private:
    const ADXValue& value_;
    EquationEvaluator evaluator_;
    bool parsed_ = false, table_ = false;
};

// +1 rising, -1 falling, 0 neither, over some 256 places of the domain.
int Direction(Response& response, Domain domain) {
    constexpr int kPlaces = 256;
    bool rises = false, falls = false;
    double last = response(domain.low);
    for (int i = 1; i <= kPlaces; ++i) {
        const double number = response(std::floor(domain.low + (domain.high - domain.low) * i / kPlaces));
        if (!std::isfinite(number) || !std::isfinite(last)) return 0;
        rises = rises || number > last;
        falls = falls || number < last;
        last = number;
    }
    if (rises == falls) return 0;
    return rises ? 1 : -1;
}

bool IsStraight(Response& response, Domain domain) {
    constexpr int kPlaces = 32;
    const double first = response(domain.low), last = response(domain.high);
    for (int i = 1; i < kPlaces; ++i) {
        const double native = std::floor(domain.low + (domain.high - domain.low) * i / kPlaces);
        const double line = first + (last - first) * (native - domain.low) / (domain.high - domain.low);
        if (std::abs(response(native) - line) > 1e-4 * std::abs(last - first)) return false;
    }
    return true;
}

// The native number whose response comes nearest to the target.
double Find(Response& response, Domain domain, int direction, double target) {
    double low = domain.low, high = domain.high;  // the response at `high` is at or past the target, if any is
    while (high - low > 1.0) {
        const double middle = std::floor((low + high) / 2);
        const bool reached = direction > 0 ? response(middle) >= target : response(middle) <= target;
        (reached ? high : low) = middle;
    }
    return std::abs(response(low) - target) < std::abs(response(high) - target) ? low : high;
}

}  // namespace

bool RawCurve::Applies(const ADXValue& value) {
    const std::uint32_t bytes = FieldBytes(value.sizeinbits);
    return bytes >= 1 && bytes <= 4 && value.ReadsField();
}

void RawCurve::Straight(double from, double to) {
    for (std::size_t i = 0; i <= kSteps; ++i) {
        numbers_[i] = from + (to - from) * static_cast<double>(i) / static_cast<double>(kSteps);
    }
}

RawCurve::RawCurve(const ADXValue& value)
    : RawCurve(value, static_cast<double>(std::min(value.rangelow, value.rangehigh)),
               static_cast<double>(std::max(value.rangelow, value.rangehigh))) {}

RawCurve::RawCurve(const ADXValue& value, double low, double high) : low_(low), high_(high) {
    const Domain whole = DomainOf(value);
    Straight(whole.low, whole.high);
    Response response(value);
    if (!response.Usable() || value.HasLinks()) return;

    // A reciprocal is 0 at raw 0 for want of a result, and falls everywhere else.
    Domain domain = whole;
    int direction = Direction(response, domain);
    if (direction == 0 && domain.low == 0.0) {
        domain.low = 1.0;
        direction = Direction(response, domain);
    }
    if (direction == 0) return;
    const double first = response(domain.low), last = response(domain.high);
    if (IsStraight(response, domain)) {
        const double slope = (last - first) / (domain.high - domain.low);
        line_ = Line{first - slope * domain.low, slope, domain.low, domain.high};
    }
    if (!(low < high) || low >= std::max(first, last) || high <= std::min(first, last)) return;

    for (std::size_t i = 0; i <= kSteps; ++i) {
        const double target = low + (high - low) * static_cast<double>(i) / static_cast<double>(kSteps);
        numbers_[i] = Find(response, domain, direction, target);
    }
    const auto [least, most] = std::minmax(numbers_.front(), numbers_.back());
    whole_ = least == whole.low && most == whole.high;
}

void RawCurve::Join(const RawCurve& other) {
    const bool falls = numbers_.front() > numbers_.back();
    const double low = std::min({numbers_.front(), numbers_.back(), other.numbers_.front(), other.numbers_.back()});
    const double high = std::max({numbers_.front(), numbers_.back(), other.numbers_.front(), other.numbers_.back()});
    const auto [least, most] = std::minmax(numbers_.front(), numbers_.back());
    if (least == low && most == high) return;
    Straight(falls ? high : low, falls ? low : high);
    whole_ = whole_ || other.whole_;
}

std::uint32_t RawCurve::WordAt(double level) const {
    const double place = std::clamp(level, 0.0, 1.0) * static_cast<double>(kSteps);
    const std::size_t step = std::min(static_cast<std::size_t>(place), kSteps - 1);
    const double number = numbers_[step] + (numbers_[step + 1] - numbers_[step]) * (place - static_cast<double>(step));
    return static_cast<std::uint32_t>(std::llround(number));
}

std::uint32_t RawCurve::WordFor(double number) const {
    if (!line_) return WordAt(low_ < high_ ? (number - low_) / (high_ - low_) : 0.5);
    const double native = std::clamp((number - line_->zero) / line_->slope, line_->least, line_->most);
    return static_cast<std::uint32_t>(std::llround(native));
}

}  // namespace corvex
