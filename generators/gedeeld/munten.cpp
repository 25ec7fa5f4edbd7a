#include "generators/gedeeld/munten.h"

#include <algorithm>

namespace cijferwerf {

plakregel geldstuk(int cent, int aantal) {
    const bool is_briefje = cent >= briefwaarden.back();
    const std::string_view soort =
        aantal == 1 ? (is_briefje ? "briefje" : "munt") : (is_briefje ? "briefjes" : "munten");
    return cent < 100 ? plak_even({soort, " van", cent, " eurocent"}) : plak_even({soort, " van", euro(cent)});
}

bedragen gepast_te_betalen(std::span<const stapel> geld) {
    bedragen kan;
    kan.set(0);
    // A pile of n is taken as piles of 1, 2, 4, ... and a rest, of which some together make every number up to n.
    for (const auto [cent, aantal] : geld)
        for (int over = aantal, deel = 1; over > 0; over -= deel, deel *= 2)
            kan |= kan << static_cast<std::size_t>(cent * std::min(deel, over));
    return kan;
}

namespace {

// Tries the piles from this one on, the largest values first, and keeps the payment with the fewest pieces.
class zoeker {
public:
    explicit zoeker(std::vector<stapel> geld) : geld_(std::move(geld)) {}

    std::vector<stapel> beste(int bedrag) {
        zoek(0, bedrag, 0);
        return beste_;
    }

private:
    void zoek(std::size_t soort, int rest, int gebruikt) {
        if (rest == 0) {
            beste_ = gekozen_;
            minste_ = gebruikt;
            return;
        }
        if (soort == geld_.size()) return;
        const auto [cent, aantal] = geld_[soort];
        // Even if all of the rest could be paid with this value, the largest left, no fewer pieces would come out.
        if (gebruikt + (rest + cent - 1) / cent >= minste_) return;
        for (int n = std::min(aantal, rest / cent); n >= 0; --n) {
            if (n > 0) gekozen_.push_back({cent, n});
            zoek(soort + 1, rest - n * cent, gebruikt + n);
            if (n > 0) gekozen_.pop_back();
        }
    }

    std::vector<stapel> geld_, gekozen_, beste_;
    int minste_ = 10'000;
};

} // namespace

std::vector<stapel> betaling(std::span<const stapel> geld, int bedrag) {
    std::vector<stapel> gesorteerd(geld.begin(), geld.end());
    std::ranges::sort(gesorteerd, std::ranges::greater{}, &stapel::cent);
    return zoeker(std::move(gesorteerd)).beste(bedrag);
}

} // namespace cijferwerf
