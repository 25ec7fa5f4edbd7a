#include "generators/gedeeld/kommasom.h"

#include "runtime/number_text.h"

#include <algorithm>

namespace cijferwerf {

namespace {

struct patroonrij {
    std::array<int, 4> tekens;       // of the four numbers
    std::array<const char*, 2> slot; // one of these closes the explanation
};

constexpr std::array<patroonrij, tekenpatronen> patronen{
    {{{1, -1, -1, -1}, {"De uitkomst van deze som is dus", "Het goede antwoord is dus"}},
     {{1, 1, 1, 1}, {"Alles opgeteld komt er dus uit: ", "Bij elkaar is dat dus:"}},
     {{1, -1, -1, 1}, {"De uitkomst is dus", "De uitkomst van deze som is dus"}},
     {{1, -1, 1, -1}, {"De uitkomst is dus:", "Het goede antwoord is dus"}}}};

} // namespace

kommasom trek_kommasom(random_draws& toeval, int patroon) {
    const auto [tekens, slot] = patronen.at(static_cast<std::size_t>(patroon - 1));
    const auto trek_van = [&toeval](int first, int last) { return first + toeval.below(last - first + 1); };

    // The first number goes with one of the same sign, and where there is none with any that is taken off from it.
    std::vector<std::size_t> kandidaten;
    for (std::size_t i = 1; i < 4; ++i)
        if (tekens[i] == 1) kandidaten.push_back(i);
    const bool verschil = kandidaten.empty();
    if (verschil) kandidaten = {1, 2, 3};
    const std::size_t maat = kandidaten[static_cast<std::size_t>(toeval.below(static_cast<int>(kandidaten.size())))];
    const std::size_t derde = maat == 1 ? 2 : 1, vierde = maat == 3 ? 2 : 3;
    const bool erbij = tekens[derde] == 1;

    // In tenths: of each pair the tenths make a whole, and the pair with the first number makes the most.
    const int tienden_eerste = trek_van(1, 9);
    const int tienden_andere = trek_van(1, 9);
    const int samen_andere = trek_van(4, 9);
    const int samen_eerste = samen_andere + trek_van(3, 9);
    const int stuk_andere = trek_van(1, samen_andere - 2);
    // Small enough that no step on the way is below 0.
    const int stuk_eerste = trek_van(1, std::min(5, samen_eerste - samen_andere - 1));
    std::array<int, 4> getallen{};
    getallen[maat] = 10 * stuk_eerste + (verschil ? tienden_eerste : 10 - tienden_eerste);
    getallen[0] = 10 * samen_eerste + (verschil ? getallen[maat] : -getallen[maat]);
    getallen[derde] = 10 * stuk_andere + tienden_andere;
    getallen[vierde] = 10 * samen_andere - getallen[derde];

    kommasom som;
    som.opgave = regel(kaal(komma_kort(getallen[0], 1)));
    for (std::size_t i = 1; i < 4; ++i) som.opgave += regel(tekens[i] == 1 ? " +" : " -", komma_kort(getallen[i], 1));
    som.uitkomst = samen_eerste + (erbij ? samen_andere : -samen_andere);
    // A pair forgotten or counted the wrong way, and miscounts.
    som.vergissingen = {{erbij ? samen_eerste : samen_eerste + samen_andere},
                        {som.uitkomst - 3},
                        {som.uitkomst - 2},
                        {som.uitkomst - 1},
                        {som.uitkomst + 1},
                        {som.uitkomst + 2},
                        {som.uitkomst + 3}};
    const auto paar = [&](std::size_t i, std::size_t j) {
        return regel(kaal(komma_kort(getallen[i], 1)), " en", komma_kort(getallen[j], 1));
    };
    som.uitleg = {
        "Als je goed naar de getallen kijkt, zie je dat je", "sommige getallen makkelijk kunt optellen tot een",
        "mooi geheel getal. Hier zijn dat niet alleen",
        regel(paar(derde, vierde), " (samen", samen_andere, "), maar ook ", paar(0, maat),
              verschil ? " (verschil" : " (samen", samen_eerste, ")."),
        regel(slot[toeval.coin() ? 0 : 1], samen_eerste, erbij ? " +" : " -", samen_andere, " =", som.uitkomst, ".")};
    return som;
}

void teken_kommasom(drawing& on, std::string_view vraag, const kommasom& som) {
    constexpr int links = 500;
    on.print_at(links, 100, vraag);
    on.print_at(links, 540, som.opgave);
}

} // namespace cijferwerf
