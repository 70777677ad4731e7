// What the driver and the world do to the simulated car: the one course that it is driven.
#pragma once

namespace corvex {

// A function of time alone.
struct DriveCourse {
    // Up to the first lap, key on at 0.
    static constexpr double kCrankFrom = 1.6, kFiresAt = 2.4;

    // Seconds since the beginning of a lap; below 0 before the first.
    static double Pedal(double lap);        // 0 to 1
    static double Brake(double lap);        // 0 to 1
    static bool InDrive(double lap);        // else in park
    static bool CruiseControl(double lap);  // set
    static bool AirConditioning(double lap);
    static double LeanBy(double lap);  // part of fuel that the left bank wants more, and its oxygen sensor tells
    static bool Knocks(double lap);
    static bool Lamp(double lap);
    static double Corner(double lap);  // g at 100 km/h
};

}  // namespace corvex
