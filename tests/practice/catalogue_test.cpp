#include "forms/practice/catalogue.h"

#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace cijferwerf {
namespace {

// A line a list; of a review task its groups, each of three choices.
constexpr std::string_view written = R"(
boekje01 BOEKJE 1 - PROCENTEN: alcohol, grasveld, bevolking, computer, examen, snel!, voetbal, blessures, hele procenten, rente, kommaprocenten
boekje02 BOEKJE 2 - VERHOUDINGEN: huis, maatbeker, vakantie, cirkels, fietspad (1), museum, fietspad (2), tandwielen, brandstofverbruik, tuinman, uitgaven
boekje03 BOEKJE 3 - BREUKEN: chocolade, helen, maatbeker, vlakjes, helen maken, marathon, optellen, prijzen, procenten, stukken, aanvullen (1), aanvullen (2), aftrekken, getallenlijn, grootste/kleinste, olievat, snel!, tussen in, vereenvoudigen, delen, vermenigvuldigen
boekje04 BOEKJE 4 - GRAFIEKEN: inwoners, rusthuis, hardlopen (1), hardlopen (2), inkomen, regenval, vakanties, bevolking, dollars, roken, verkiezingen
boekje05 BOEKJE 5 - GELD: spaarpot, wisselen, bijbetalen, krantenwijk, snel!, terugbetalen, vreemd geld (1), vreemd geld (2), boodschap, brandstof, CD's, computer, niet gepast, rente, brandstofverbruik, huren
boekje06 BOEKJE 6 - TIJD: datum, wedstrijd, boeken, huren, wachten, kilometers, naar school, snel!, trein, wereldtijden
boekje07 BOEKJE 7 - METEN EN MEETKUNDE (1): oppervlakte, rechthoek, doos, fietsen, optellen (1), optellen (2), schilder, snel! (1), snel! (2), vakantie, bedrijfsruimte, behangen, draad, figuren, L-vorm, tuin, vliegtuig, tegels
boekje08 BOEKJE 8 - METEN EN MEETKUNDE (2): inhoud, schatten, doos, gewichten, optellen, watertank, opbrengst, worst
boekje09 BOEKJE 9 - HOOFDREKENEN: tafels, aftrekken, delen (1), keer, delen (2), nullen, komma
boekje10 BOEKJE 10 - SCHATTEN: gestreept, schatten (1), betegelen, bezoekers, schaal, schatten (2), erfenis, seconden
boekje11 BOEKJE 11 - GETALKENNIS: getallenlijn, letters, onder elkaar, pijl (1), pijl (2), schatten, waarde, na de komma, optellen, pijlverwijzing, samenstellen, schoolbord, dichtst bij, grootste/kleinste, tabel
boekje12 BOEKJE 12 - CIJFEREN: inwoners (1), inwoners (2), anders, door elkaar, haakjes, na elkaar, onder elkaar, controle, flesjes, maal, snel!, BTW, lenen, memory, sponsorloop
taak01 TAAK 1 - GETALLEN: getallenlijn, inwoners (1), inwoners (2), letters, onder elkaar, schatten, waarde, aftrekken, na elkaar, optellen, grootste/kleinste, tabel
taak02 TAAK 2 - VERMENIGVULDIGEN EN DELEN: tafels, anders, door elkaar, haakjes, keer, controle, flesjes, maal, memory
taak03 TAAK 3 - BREUKEN (1): chocolade, gestreept, helen, maatbeker, vlakjes, helen maken, marathon, prijzen, getallenlijn, grootste/kleinste, snel!
taak04 TAAK 4 - TIJD: datum, wedstrijd, boeken, huren, wachten, kilometers, naar school, snel!, trein, wereldtijden
taak05 HERHALING TAAK 1 t/m 4: na elkaar, optellen, grootste/kleinste, tabel | onder elkaar, schatten, waarde, aftrekken | getallenlijn, inwoners (1), inwoners (2), letters / flesjes, maal, memory | haakjes, keer, controle | tafels, anders, door elkaar / getallenlijn, grootste/kleinste | vlakjes, helen maken, marathon, prijzen | chocolade, gestreept, helen, maatbeker / trein, wereldtijden | wachten, kilometers, naar school | datum, wedstrijd, boeken, huren
taak06 TAAK 6 - KOMMAGETALLEN: pijl (1), pijl (2), delen (1), na de komma, onder elkaar, pijlverwijzing, samenstellen, schoolbord, delen (2), dichtst bij, nullen, olievat, seconden, snel, komma
taak07 TAAK 7 - GELD: spaarpot, wisselen, bijbetalen, krantenwijk, snel!, terugbetalen, vreemd geld (1), vreemd geld (2), boodschap, brandstof, CD's, computer, erfenis, niet gepast, rente, brandstofverbruik, huren, lenen, sponsorloop
taak08 TAAK 8 - PROCENTEN: alcohol, grasveld, bevolking, computer, examen, snel!, voetbal, blessures, hele procenten, rente, BTW, kommaprocenten
taak09 TAAK 9 - LENGTEMATEN: schatten (1), fietsen, optellen (1), optellen (2), schatten (2), snel! (1), snel! (2), vakantie, behangen, tuin, vliegtuig
taak10 HERHALING TAAK 6 t/m 9: pijlverwijzing, samenstellen, schoolbord, dichtst bij, onder elkaar | nullen, olievat, seconden, komma | pijl (1), pijl (2), delen (1), delen (2), na de komma / vreemd geld (1), vreemd geld (2), boodschap, brandstof, CD's, computer | erfenis, niet gepast, rente, brandstofverbruik, huren, lenen, sponsorloop | spaarpot, wisselen, bijbetalen, krantenwijk, terugbetalen / examen, voetbal, blessures | hele procenten, rente, BTW, kommaprocenten | alcohol, grasveld, bevolking, computer / vakantie, optellen (1), optellen (2) | behangen, tuin, vliegtuig | schatten (1), schatten (2), fietsen
taak11 TAAK 11 - MACHTSVERHEFFEN: snel!, berekenen, in woorden, korter, volgorde, bacterie, bloembollen, fabriekshal, stroopwafels, spaargeld
taak12 TAAK 12 - OMTREK EN OPPERVLAKTE: oppervlakte, rechthoek, betegelen, doos, schilder, bedrijfsruimte, draad, figuren, L-vorm, opbrengst, tegels
taak13 TAAK 13 - DE CIRKEL: cirkel (1), cirkel (2), blikjes, huls, in elkaar, pizza, skelterbaan, vijver, fietswiel, terras
taak14 TAAK 14 - BREUKEN (2): optellen, procenten, stukken, aanvullen (1), aanvullen (2), aftrekken, tussen in, vereenvoudigen, delen, vermenigvuldigen
taak15 HERHALING TAAK 11 t/m 14: volgorde, bacterie, bloembollen | fabriekshal, stroopwafels, spaargeld | berekenen, in woorden, korter / schilder, bedrijfsruimte, draad, figuren | L-vorm, opbrengst, tegels | oppervlakte, rechthoek, betegelen, doos / huls, in elkaar, pizza, skelterbaan | vijver, fietswiel, terras | cirkel (1), cirkel (2), blikjes / aanvullen (1), aanvullen (2), aftrekken | tussen in, vereenvoudigen, delen, vermenigvuldigen | optellen, procenten, stukken
taak16 TAAK 16 - VERHOUDINGEN: huis, maatbeker, vakantie, cirkels, fietspad (1), museum, schaal, fietspad (2), tandwielen, brandstofverbruik, tuinman, uitgaven
taak17 TAAK 17 - INHOUD EN GEWICHT: inhoud, schatten, doos, gewichten, optellen, watertank, cilinder, worst, dichtheid, volumeprocent
taak18 TAAK 18 - GETALLEN IN BEELD: inwoners, rusthuis, hardlopen (1), hardlopen (2), inkomen, regenval, vakanties, bevolking, dollars, roken, verkiezingen
taak19 TAAK 19 - MATEN EN METEN: energie, gas (1), elektriciteit (1), elektriciteit (2), voeding (1), voeding (2), water (1), water (2), elektriciteit (3), gas (2)
taak20 HERHALING TAAK 16 t/m 19: fietspad (1), museum, schaal, fietspad (2) | tandwielen, brandstofverbruik, tuinman, uitgaven | huis, maatbeker, vakantie, cirkels / optellen, watertank, cilinder | worst, dichtheid, volumeprocent | inhoud, schatten, doos, gewichten / voeding (1), voeding (2), water (1), water (2) | elektriciteit (1), elektriciteit (2), elektriciteit (3) | energie, gas (1), gas (2)
)";

// Whether a generator is named after a title: level, title, home booklet, home task. Where several are, it is the one
// that is at home in this list.
bool is_named_after(std::string_view title, const std::string& key, std::string_view generator) {
    const std::string named =
        std::regex_replace(std::regex_replace(std::string(title), std::regex("[()!']"), ""), std::regex("[ /-]"), "_");
    const std::string number = key.substr(key.size() - 2);
    const std::regex anywhere("._" + named + R"(_\d\d_.*)");
    const std::regex here("._" + named + '_' + (key.starts_with("boekje") ? number + "_.*" : ".._" + number + ".*"));
    const auto of_title = std::ranges::count_if(alle_oefeningen(), [&](const oefening_soort& each) {
        return std::regex_match(std::string(each.name), anywhere);
    });
    return std::regex_match(std::string(generator), of_title == 1 ? anywhere : here);
}

template<class Titles>
std::string joined(const Titles& titles) {
    std::string text;
    for (const std::string_view title : titles) text.append(text.empty() ? "" : ", ").append(title);
    return text;
}

TEST(catalogue, a_list_has_its_titles_in_order_and_each_runs_the_generator_that_is_named_after_it) {
    std::string text = "\n";
    std::set<oefening_id> offered;
    random_draws toeval([] { return 0.0F; });
    for (const catalogue_list& list : catalogue()) {
        text.append(list.key).append(" ").append(list.heading).append(":");
        if (!list.drawn()) text += " " + joined(titels(list, toeval));
        for (int i = 0; const catalogue_entry& entry : list.entries) {
            EXPECT_TRUE(is_named_after(entry.title, std::string(list.key), naam(entry.generator))) << entry.title;
            EXPECT_EQ(zoek_generator(list, i++, "another title"), entry.generator);
            EXPECT_LE(text_width(entry.title, 9.75, 1.0), 1590) << entry.title << " has no room beside its mark";
            offered.insert(entry.generator);
        }
        for (const auto& [a, b, c] : list.groups) {
            text.append(&a == &list.groups[0].a ? " " : " / ")
                .append(joined(a) + " | " + joined(b) + " | " + joined(c));
            for (const titles& choice : {a, b, c})
                for (const std::string_view title : choice)
                    EXPECT_TRUE(zoek_generator(list, 0, title)) << title << " leaves the pupil with a blank screen";
        }
        text += "\n";
        EXPECT_EQ(zoek_lijst(list.set, list.key), &list);
        EXPECT_EQ(list.set, list.key.starts_with("boekje") ? booklet_set : task_set);
    }
    EXPECT_EQ(text, written);
    EXPECT_EQ(offered.size(), alle_oefeningen().size()) << "an exercise that nobody can pick";
}

TEST(catalogue, a_title_of_a_review_task_runs_the_first_that_has_it_in_the_tasks_reviewed) {
    const std::tuple<std::string_view, std::string_view, std::string_view> rows[]{
        {"taak05", "grootste/kleinste", "M_grootste_kleinste_11_01_click"},
        {"taak10", "computer", "L_computer_01_08_click"}};
    for (const auto& [key, title, generator] : rows)
        EXPECT_EQ(naam(zoek_generator(*zoek_lijst(task_set, key), 0, title).value()), generator);
    for (const int nowhere : {-1, 15}) EXPECT_FALSE(zoek_generator(*zoek_lijst(task_set, "taak06"), nowhere, "snel"));
    EXPECT_FALSE(zoek_generator(*zoek_lijst(task_set, "taak05"), 0, "rente"));
    EXPECT_EQ(zoek_lijst(booklet_set, "taak01"), nullptr);
}

TEST(catalogue, the_narrow_band_from_033_to_034_falls_to_choice_b) {
    const std::pair<float, std::string_view> rows[]{{0.0F, "C"},  {0.32999F, "C"}, {0.33F, "B"},    {0.33999F, "B"},
                                                    {0.34F, "A"}, {0.67F, "A"},    {0.67001F, "B"}, {0.99999F, "B"}};
    for (const auto& [fraction, title] : rows) EXPECT_EQ(joined(geloot({"A", "B", "C"}, fraction)), title) << fraction;
    random_draws toeval([] { return 0.0F; });
    toeval.put_in({0.5F, 0.335F, 0.1F, 0.9F});
    EXPECT_EQ(joined(titels(*zoek_lijst(task_set, "taak05"), toeval)),
              "na elkaar, optellen, grootste/kleinste, tabel, haakjes, keer, controle, chocolade, gestreept, helen, "
              "maatbeker, wachten, kilometers, naar school");
}

} // namespace
} // namespace cijferwerf
