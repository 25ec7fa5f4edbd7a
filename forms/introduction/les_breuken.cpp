// Fractions: a bar in pieces, fractions of equal value, and adding with equal denominators.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"

#include <tuple>

namespace cijferwerf {

namespace {

// A pizza in equal pieces of which the first ones are coloured, clockwise from twelve o'clock.
void teken_pizza(drawing& on, point midden, int straal, breuk b) {
    const zelfde_stand bewaard(on, 3);
    const double stuk = 360.0 / b.noemer;
    on.filled_circle(midden.x, midden.y, straal, wit);
    on.sector(midden.x, midden.y, straal, 90 - b.teller * stuk, b.teller * stuk, half, true);
    for (int i = 0; i < b.noemer; ++i) {
        const point rand = op_cirkel(midden, straal, 90 - i * stuk);
        on.line(midden.x, midden.y, rand.x, rand.y, donker);
    }
    on.circle(midden.x, midden.y, straal, donker);
}

class strook_in_stukken : public voorbeeld {
public:
    strook_in_stukken() {
        teller_stappen_ = &stappen(links_onder, "teller", deel_.teller, 1, deel_.noemer);
        stappen(rechts_onder, "noemer", deel_.noemer, 2, 10);
    }

protected:
    std::string toon() override {
        teller_stappen_->tot = deel_.noemer;
        deel_.teller = std::min(deel_.teller, deel_.noemer);

        teken_strook(blad, {60, 120, 5260, 700}, deel_);
        const int end = schrijf_breuk(blad, {25, donker}, {1300, 1500}, deel_);
        std::string komma;
        if (deel_.teller * 1'000 % deel_.noemer == 0) {
            komma = regel("= ", kaal(komma_kort(deel_.teller * 1'000 / deel_.noemer, 3)));
            schrijf_naast(blad, {26, inkt}, {end + 250, 1500}, komma);
        }

        // The simplest form, where it is another one, and larger ones.
        const breuk kort = deel_.vereenvoudigd();
        const bool simpler = kort.noemer != deel_.noemer;
        const breuk even[]{simpler ? kort : deel_.maal(2), simpler ? deel_.maal(2) : deel_.maal(3)};
        schrijf(blad, {14, inkt}, {60, 2300}, "Deze breuken zijn evenveel:");
        for (int y = 2830; const breuk b : even) {
            schrijf_naast(blad, {20, donker}, {60, y + 250}, streepbreuk(b));
            teken_strook(blad, {1320, y, 4000, 500}, b);
            y += 720;
        }
        return regel(streepbreuk(deel_), komma.empty() ? "" : " ", komma, ": ", kaal(deel_.teller), " van de ",
                     kaal(deel_.noemer), " stukken. Evenveel zijn ", streepbreuk(even[0]), " en ", streepbreuk(even[1]),
                     ".");
    }

private:
    breuk deel_{3, 4};
    stapper* teller_stappen_;
};

class evenveel_pizza : public voorbeeld {
public:
    evenveel_pizza() {
        for (int i = 0; const breuk b : {breuk{3, 4}, breuk{1, 2}, breuk{2, 3}})
            keuze("breuk", bovenaan(i++), streepbreuk(b), [this, b] { deel_ = b; });
        stappen(midden_onder, "keer", keer_, 2, 5);
    }

protected:
    std::string toon() override {
        const breuk fijner = deel_.maal(keer_);
        const std::pair<breuk, int> pizzas[]{{deel_, 1340}, {fijner, 4040}};
        for (const auto& [b, x] : pizzas) {
            teken_pizza(blad, {x, 1640}, 1000, b);
            // Upper and lower part of the fraction, with the arrows in between.
            const int breed = text_width(std::to_string(b.noemer), 26);
            schrijf_breuk(blad, {26, donker}, {x - breed / 2, 3400}, b);
        }
        for (const int y : {3160, 3720}) {
            teken_pijl(blad, {1750, y}, {3500, y}, half);
            const int tekst_y = y < 3400 ? y - 230 : y + 230;
            schrijf_midden(blad, {16, inkt}, {2600, tekst_y}, regel("x ", kaal(keer_)));
        }
        return regel(streepbreuk(deel_), " is evenveel als ", streepbreuk(fijner),
                     ": teller en noemer zijn allebei vermenigvuldigd met ", kaal(keer_), ".");
    }

private:
    breuk deel_{3, 4};
    int keer_ = 2;
};

// Two fractions cut in equally large pieces, and their sum.
class stroken_samen : public voorbeeld {
public:
    stroken_samen() {
        for (int i = 0; const std::pair<breuk, breuk>& som :
                        {std::pair{breuk{1, 2}, breuk{1, 3}}, {breuk{1, 2}, breuk{1, 4}}, {breuk{1, 4}, breuk{2, 3}}})
            keuze("som", bovenaan(i++), regel(streepbreuk(som.first), " + ", streepbreuk(som.second)),
                  [this, som] { som_ = som; });
    }

protected:
    std::string toon() override {
        const auto [a, b] = som_;
        const breuk samen = a + b;
        const auto gelijk = [&](breuk van) { return van.maal(samen.noemer / van.noemer); };

        const std::tuple<breuk, int, kleur> rijen[]{{a, 730, half}, {b, 1560, geel}};
        for (const auto& [van, y, vulling] : rijen) {
            teken_delen(y, samen.noemer, {{gelijk(van).teller, vulling}}, van.noemer);
            const int midden = y + hoog / 2;
            int x = schrijf_breuk(blad, {16, donker}, {3660, midden}, van);
            x = schrijf_naast(blad, {16, inkt}, {x + 130, midden}, "=");
            schrijf_breuk(blad, {16, donker}, {x + 130, midden}, gelijk(van));
        }
        schrijf(blad, {14, inkt}, {60, 2240}, "samen");
        teken_delen(2610, samen.noemer, {{gelijk(a).teller, half}, {gelijk(b).teller, geel}}, samen.noemer);

        int x = 60;
        for (const auto& [deel, teken] : {std::pair{gelijk(a), "+"}, {gelijk(b), "="}, {samen, ""}}) {
            x = schrijf_breuk(blad, {22, donker}, {x, 3760}, deel) + 150;
            x = schrijf_naast(blad, {22, inkt}, {x, 3760}, teken) + 150;
        }
        return regel(streepbreuk(a), " + ", streepbreuk(b), " = ", streepbreuk(gelijk(a)), " + ",
                     streepbreuk(gelijk(b)), " = ", streepbreuk(samen), ".");
    }

private:
    static constexpr int hoog = 560;

    // A bar in so many parts, some of them coloured one after the other; its own pieces have thicker borders.
    void teken_delen(int y, int delen, const std::vector<std::pair<int, kleur>>& gekleurd, int stukken) {
        constexpr int links = 60, breed = 3360;
        const auto rand = [&](int deel, int van) { return links + breed * deel / van; };
        teken_vak(blad, {links, y, breed, hoog}, wit, donker, 3);
        int deel = 0;
        for (const auto& [aantal, vulling] : gekleurd) {
            blad.filled_box(rand(deel, delen), y, rand(deel + aantal, delen) - rand(deel, delen), hoog, vulling);
            deel += aantal;
        }
        blad.line_width = 1;
        for (int i = 1; i < delen; ++i) blad.line(rand(i, delen), y, rand(i, delen), y + hoog, donker);
        blad.line_width = 4;
        for (int i = 1; i < stukken; ++i) blad.line(rand(i, stukken), y, rand(i, stukken), y + hoog, donker);
        blad.box(links, y, breed, hoog, donker);
        blad.line_width = 1;
    }

    std::pair<breuk, breuk> som_{{1, 2}, {1, 3}};
};

} // namespace

const lesreeks les_breuken{{
    {"Wat is een breuk?",
     {"Een breuk is een deel van een geheel.",
      "Het getal onder de streep heet de noemer: in hoeveel stukken is er verdeeld?",
      "Het getal boven de streep heet de teller: hoeveel van die stukken neem je?"},
     {probeer, "Druk op - en + en kijk hoe de strook en de breuk veranderen."},
     nieuw<strook_in_stukken>},
    {"Evenveel pizza",
     {"Snijd elk stuk pizza in kleinere stukken. Je hebt dan meer stukken, maar niet meer pizza.",
      "Doe teller en noemer keer hetzelfde getal. Terug mag ook: dan deel je ze allebei. Dat heet vereenvoudigen."},
     {probeer, "Kies een breuk. Kies daarna hoeveel keer."},
     nieuw<evenveel_pizza>},
    {"Breuken optellen",
     {"Halven en derden kun je niet zomaar optellen. Maak de stukken eerst even groot.",
      "Zoek een noemer die bij allebei past. Tel daarna alleen de tellers op. De noemer blijft hetzelfde."},
     {probeer, "Kies een som. In hoeveel stukken wordt elke strook verdeeld?"},
     nieuw<stroken_samen>},
}};

} // namespace cijferwerf
