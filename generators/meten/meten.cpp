#include "generators/meten/meten.h"

namespace cijferwerf {

bool maatsom::geschikt() const {
    const bool naar_groter = macht_tussen(om().maat, gevraagd()) < 0;
    return eerste.getal != tweede.getal && !(naar_groter && om().getal % 10 == 0);
}

std::string maatsom::opgave() const {
    return regel(kaal(eerste.getal), " ", eerste.maat.teken, " +", tweede.getal, " ", tweede.maat.teken, " = ");
}

std::vector<keuze<kommagetal>> maatsom::vergissingen() const {
    const int stap = macht_tussen(om().maat, gevraagd());
    const kommagetal a{om().getal}, b{blijft().getal}, goed = omgezet();
    const auto verzet = [stap](kommagetal k, int keer) { return k.verschoven(keer * stap); };
    const bool omlaag = stap > 0;
    return {
        {a + b, {"Je hebt de getallen zomaar opgeteld, maar de", "eenheden zijn verschillend."}},
        {verzet(a, 2) + b,
         {"Je hebt een verkeerde factor gebruikt:",
          regel("van ", om().maat.teken, " naar ", gevraagd().teken,
                omlaag ? " is het x 10, niet x 100." : " is het : 10, niet : 100.")}},
        {a + verzet(b, 1),
         {eerste_om ? "Je hebt het tweede getal omgerekend." : "Je hebt het eerste getal omgerekend.",
          eerste_om ? "Reken het eerste getal om." : "Reken het tweede getal om."}},
        {verzet(a + b, 1), {"Je hebt beide getallen omgerekend.", "Eén ervan heeft al de juiste eenheid."}},
        {goed > b ? goed - b : b - goed, {"Je hebt de maten van elkaar afgetrokken,", "maar je moet ze optellen."}},
        {verzet(a, -1) + b,
         {omlaag ? "Je hebt gedeeld door 10 in plaats van" : "Je hebt vermenigvuldigd met 10 in plaats van",
          omlaag ? "vermenigvuldigd met 10." : "gedeeld door 10."}},
    };
}

std::array<plakregel, 4> maatsom::uitleg() const {
    const bool omlaag = macht_tussen(om().maat, gevraagd()) > 0;
    const eenheid &groot = omlaag ? om().maat : gevraagd(), &klein = omlaag ? gevraagd() : om().maat;
    const number_text links = komma_kort(eerste_om ? omgezet() : kommagetal{eerste.getal}),
                      rechts = komma_kort(eerste_om ? kommagetal{tweede.getal} : omgezet());
    return {plak_even({eerste_om ? "Het eerste getal moet je eerst omrekenen naar "
                                 : "Het tweede getal moet je eerst omrekenen naar ",
                       gevraagd().teken, "."}),
            plak_even({"1 ", groot.teken, " = 10 ", klein.teken, ", dus", om().getal, " ", om().maat.teken, " =",
                       komma_kort(omgezet()), " ", gevraagd().teken, "."}),
            plak_even({"Nu kun je optellen:", links, " +", rechts, " =", komma_kort(totaal()), "."}),
            plak_even({"Op de stippen moet dus", komma_kort(totaal()), " staan."})};
}

maatsom trek_maatsom(random_draws& toeval, const eenheid& van, const eenheid& naar, bool eerste_om) {
    const int om = toeval.below(98) + 2;
    const int blijft = toeval.below(98) + 2;
    const maatsom::lid veranderd{om, van}, gelijk{blijft, naar};
    return eerste_om ? maatsom{veranderd, gelijk, true} : maatsom{gelijk, veranderd, false};
}

melding verkeerde_soort(grootheid gekozen, grootheid gevraagd) {
    switch (gekozen) {
    case grootheid::lengte:
        return {"Je hebt een lengtemaat gekozen in plaats van een", gevraagd == grootheid::inhoud ? "inhoudsmaat."
                                                                    : gevraagd == grootheid::gewicht
                                                                        ? "maat voor gewicht."
                                                                        : "oppervlaktemaat."};
    case grootheid::oppervlakte: return {"Jouw antwoord bevat een oppervlaktemaat."};
    case grootheid::inhoud: return {"Jouw antwoord bevat een inhoudsmaat."};
    case grootheid::gewicht: return {"Jouw antwoord bevat een maat voor gewicht."};
    }
    return {};
}

std::array<keuze<>, 4> aanvullingen(random_draws& toeval, const gemeten_ding& ding) {
    const auto [getal, maat] = ding.maten[static_cast<std::size_t>(toeval.below(4))];
    const auto met = [getal](const eenheid& e) {
        return regel(kaal(duizend(getal)), " ", e.teken == "g" ? "gram" : e.teken);
    };
    std::array<keuze<>, 4> opties{{{met(maat)}, {}, {}, {}}};
    for (std::size_t i = 0; i < ding.andere.size(); ++i) {
        const eenheid& andere = ding.andere[i][static_cast<std::size_t>(toeval.below(2))];
        opties[i + 1] = {met(andere), verkeerde_soort(andere.soort, maat.soort)};
    }
    return opties;
}

} // namespace cijferwerf
