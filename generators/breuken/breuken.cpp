#include "generators/breuken/breuken.h"

namespace cijferwerf {

breuk trek_breuk(random_draws& toeval, int least, int most) {
    const int noemer = least + toeval.below(most - least + 1);
    std::vector<int> tellers;
    tellers.reserve(static_cast<std::size_t>(noemer));
    for (int teller = 1; teller < noemer; ++teller)
        if (std::gcd(teller, noemer) == 1) tellers.push_back(teller);
    return {tellers[static_cast<std::size_t>(toeval.below(static_cast<int>(tellers.size())))], noemer};
}

std::vector<breuk> breuken_onder_1(int grootste_noemer) {
    std::vector<breuk> all;
    for (int noemer = 2; noemer <= grootste_noemer; ++noemer)
        for (int teller = 1; teller < noemer; ++teller)
            if (!breuk{teller, noemer}.vereenvoudigbaar()) all.push_back({teller, noemer});
    return all;
}

} // namespace cijferwerf
