#include "export/LogTime.h"

#include <chrono>

#include "export/text/TextFormat.h"

namespace corvex {

namespace {

using std::chrono::milliseconds;

std::chrono::year_month_day DayOf(const LocalTime& time) {
    return {std::chrono::year(time.year), std::chrono::month(time.month), std::chrono::day(time.day)};
}

}  // namespace

bool IsDate(const LocalTime& time) {
    return time.year != 0 && time.year <= 9999 && DayOf(time).ok() && time.hour < 24 && time.minute < 60 &&
           time.second < 60 && time.milliseconds < 1000;
}

std::string AbsoluteTimeText(const LocalTime& start, std::uint32_t more) {
    const auto begin = std::chrono::sys_days(DayOf(start)) + std::chrono::hours(start.hour) +
                       std::chrono::minutes(start.minute) + std::chrono::seconds(start.second);
    const auto when = begin + milliseconds(std::uint64_t{start.milliseconds} + more);
    const auto midnight = std::chrono::floor<std::chrono::days>(when);
    const std::chrono::year_month_day day(midnight);
    const std::chrono::hh_mm_ss time(when - midnight);
    return Printf("%04d-%02u-%02uT%02d:%02d:%02d.%03d", static_cast<int>(day.year()),
                  static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()), static_cast<int>(time.subseconds().count()));
}

}  // namespace corvex
