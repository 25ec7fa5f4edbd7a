#include "runtime/random_draws.h"

#include <algorithm>
#include <bit>

namespace cijferwerf {

namespace {

// Every input bit changes about half of the output bits (finalizer of MurmurHash3, public domain).
std::uint32_t scrambled(std::uint32_t bits) {
    bits ^= bits >> 16;
    bits *= 0x85EBCA6BU;
    bits ^= bits >> 13;
    bits *= 0xC2B2AE35U;
    return bits ^ (bits >> 16);
}

} // namespace

// Reseeding the engine itself costs 624 words of state each time; a mixed-in word gives as many different
// sequences and leaves the engine where it is.
void random_draws::seed() { mix_ = scrambled(mix_ + 0x9E3779B9U) ^ std::bit_cast<std::uint32_t>(clock_()); }

void random_draws::restart(std::uint32_t state) {
    engine_.seed(state);
    mix_ = 0;
    put_in_.clear();
}

float random_draws::fraction() {
    if (!put_in_.empty()) {
        const float next = put_in_.back();
        put_in_.pop_back();
        return next;
    }
    const std::uint32_t bits = scrambled(engine_() ^ mix_);
    return static_cast<float>(bits >> 8) * 0x1p-24F;
}

void random_draws::put_in(std::vector<float> fractions) {
    put_in_ = std::move(fractions);
    std::reverse(put_in_.begin(), put_in_.end());
}

} // namespace cijferwerf
