// Random draws as the exercises use them: fractions, whole numbers, coin flips, all from one generator.
// What is drawn, and until when a draw is repeated, is left to the exercise.
#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <vector>

namespace cijferwerf {

class random_draws {
public:
    // The clock gives the seconds since midnight each time seed() asks for them.
    explicit random_draws(std::function<float()> clock) : clock_(std::move(clock)) {}

    // Mixes the clock into the state that is there: a second seeding within one clock tick goes on and repeats nothing.
    void seed();
    // Starts all over from a fixed state, whatever the clock says: for tools and tests that must be reproducible.
    void restart(std::uint32_t state);

    // A fraction in [0, 1) with 24 bits, so that single precision holds it exactly.
    float fraction();
    // Int(fraction x n): 0 to n - 1.
    int below(int n) { return static_cast<int>(static_cast<double>(fraction()) * n); }
    bool coin() { return fraction() > 0.5F; }

    // The next draws give these fractions, in this order, before anything random comes again.
    void put_in(std::vector<float> fractions);

private:
    // std::mt19937 with words of 32 bits where the library may take wider ones: the same numbers, three times as fast.
    using twister = std::mersenne_twister_engine<std::uint32_t, 32, 624, 397, 31, 0x9908B0DF, 11, 0xFFFFFFFF, 7,
                                                 0x9D2C5680, 15, 0xEFC60000, 18, 1'812'433'253>;

    std::function<float()> clock_;
    twister engine_;
    std::uint32_t mix_ = 0;     // what the seedings have mixed in so far
    std::vector<float> put_in_; // in reverse, the next one last
};

} // namespace cijferwerf
