// What examples say as they are opened, and after some presses.
#include "forms/introduction/infoscherm.h"

#include "tests/support/fake_outside.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

struct pressed {
    std::string_view control;
    int index, times;
};

struct example_row {
    int booklet, number;
    std::vector<pressed> presses;
    std::string_view says;
};

// The second button of a stepper raises.
const std::vector<example_row> example_rows{
    {5, 1, {}, "In € 1,- gaan 5 munten van 20 eurocent. In € 6,- gaan 6 x 5 = 30 munten."},
    {5,
     1,
     {{"stap munt", 1, 9}, {"stap euro's", 2, 9}},
     "In € 1,- gaan 100 munten van 1 eurocent. In € 10,- gaan 10 x 100 = 1.000 munten."},
    {5,
     1,
     {{"stap munt", 2, 9}, {"stap euro's", 1, 9}},
     "In € 1,- gaan 2 munten van 50 eurocent. In € 1,- gaan 1 x 2 = 2 munten."},
    {5, 2, {}, "Een pizza kost € 6,35. Jij geeft € 10,-. Je krijgt € 3,65 terug."},
    {5,
     2,
     {{"opnieuw", 0, 1}, {"geldstuk", 3, 1}, {"geldstuk", 5, 1}, {"geldstuk", 7, 1}},
     "Een pizza kost € 6,35. Jij geeft € 6,20. Er moet nog € 0,15 bij."},
    {5,
     2,
     {{"opnieuw", 0, 1},
      {"geldstuk", 3, 1},
      {"geldstuk", 5, 1},
      {"geldstuk", 7, 1},
      {"geldstuk", 8, 1},
      {"geldstuk", 9, 1}},
     "Een pizza kost € 6,35. Jij geeft € 6,35. Dat is gepast."},
    {5,
     2,
     {{"stap prijs", 2, 9}, {"geldstuk", 1, 9}},
     "Een T-shirt kost € 14,50. Jij geeft € 50,-. Je krijgt € 35,50 terug."},
    {5,
     3,
     {},
     "4 keer € 2,95. Rond: 4 x € 3,- = € 12,-. Te veel: 4 x € 0,05 = € 0,20. Precies: € 12,00 - € 0,20 = € 11,80."},
    {5,
     3,
     {{"stap aantal", 2, 9}, {"stap prijs", 1, 9}},
     "6 keer € 0,99. Rond: 6 x € 1,- = € 6,-. Te veel: 6 x € 0,01 = € 0,06. Precies: € 6,00 - € 0,06 = € 5,94."},
    {6, 1, {}, "De klok staat op vijf voor half vier, 's middags. Digitaal is dat 15:25."},
    {6,
     1,
     {{"stap minuten", 2, 7}, {"stap uur", 2, 8}},
     "De klok staat op twaalf uur, 's nachts. Digitaal is dat 0:00."},
    {6,
     1,
     {{"wijzer", 9, 1}, {"stap uur", 1, 15}},
     "De klok staat op kwart voor één, 's nachts. Digitaal is dat 0:45."},
    {6,
     2,
     {},
     "Van 7:25 uur tot 10:20 uur: 7:25 tot 8:00 is 35 min, 8:00 tot 10:00 is 2 uur, 10:00 tot 10:20 is 20 min, samen 2 uur en 55 min."},
    {6, 2, {{"stap einde", 1, 40}}, "Van 7:25 uur tot 7:30 uur: 7:25 tot 7:30 is 5 min, samen 5 min."},
    {6,
     2,
     {{"stap begin", 1, 9}, {"stap einde", 2, 40}},
     "Van 7:00 uur tot 12:00 uur: 7:00 tot 12:00 is 5 uur, samen 5 uur."},
    {6,
     2,
     {{"stap begin", 2, 6}, {"stap einde", 1, 16}},
     "Van 7:55 uur tot 9:00 uur: 7:55 tot 8:00 is 5 min, 8:00 tot 9:00 is 1 uur, samen 1 uur en 5 min."},
    {6, 3, {}, "Eén week heeft 7 dagen. 3 weken: 3 x 7 = 21 dagen."},
    {6,
     3,
     {{"stap maat", 2, 9}, {"stap aantal", 1, 9}},
     "Eén minuut heeft 60 seconden. 1 minuut: 1 x 60 = 60 seconden."},
    {7, 1, {}, "Een rechthoek van 6 cm bij 4 cm. Omtrek: 6 + 4 + 6 + 4 = 20 cm. Oppervlakte: 6 x 4 = 24 cm²."},
    {8,
     1,
     {{"hokje", 84, 1}},
     "Een rechthoek van 12 cm bij 7 cm. Omtrek: 12 + 7 + 12 + 7 = 38 cm. Oppervlakte: 12 x 7 = 84 cm²."},
    {7,
     1,
     {{"hokje", 13, 1}},
     "Een rechthoek van 1 cm bij 2 cm. Omtrek: 1 + 2 + 1 + 2 = 6 cm. Oppervlakte: 1 x 2 = 2 cm²."},
    {7, 2, {}, "lengte: 2,5 m = 250 cm. 2 treden omlaag, dus x 100."},
    {7, 2, {{"trede", 1, 1}}, "lengte: 2,5 m = 0,0025 km. 3 treden omhoog, dus : 1.000."},
    {7, 2, {{"soort", 2, 1}, {"trede", 3, 1}}, "gewicht: 750 g = 75 dag. 1 trede omhoog, dus : 10."},
    {7, 2, {{"soort", 3, 1}, {"trede", 4, 1}}, "inhoud: 1,5 liter = 1,5 liter."},
    {7, 2, {{"soort", 4, 1}, {"trede", 7, 1}}, "oppervlakte: 4 m² = 4.000.000 mm². 3 treden omlaag, dus x 1.000.000."},
    {7, 3, {}, "Een doos van 4 bij 3 bij 2 dm. Inhoud: 4 x 3 x 2 = 24 dm³. 24 dm³ = 24 liter."},
    {7,
     3,
     {{"stap lengte", 2, 9}, {"stap breedte", 2, 9}, {"stap hoogte", 2, 9}},
     "Een doos van 6 bij 4 bij 5 dm. Inhoud: 6 x 4 x 5 = 120 dm³. 120 dm³ = 120 liter."},
    {9, 1, {}, "7 x 24."},
    {9,
     1,
     {{"stap", 0, 4}},
     "7 x 24. Stap 1: 24 = 20 + 4. Stap 2: 7 x 20 = 140. Stap 3: 7 x 4 = 28. Stap 4: 140 + 28 = 168."},
    {9,
     1,
     {{"stap getal", 2, 5}, {"stap", 0, 9}},
     "7 x 29. Stap 1: 29 = 30 - 1. Stap 2: 7 x 30 = 210. Stap 3: 7 x 1 = 7. Stap 4: 210 - 7 = 203."},
    {9, 1, {{"stap getal", 1, 4}, {"stap keer", 2, 9}, {"stap", 0, 1}}, "9 x 19. Stap 1: 19 = 20 - 1."},
    {9, 1, {{"stap", 0, 5}}, "7 x 24."},
    {9, 2, {}, "58 + 2 = 60, 60 + 25 = 85, dus 58 + 27 = 85."},
    {9, 2, {{"stap begin", 2, 2}, {"stap erbij", 1, 40}}, "60 + 10 = 70, 70 + 1 = 71, dus 60 + 11 = 71."},
    {9, 3, {}, "33,2. Druk op : 10 of op x 10."},
    {9, 3, {{"komma", 2, 9}}, "33,2 x 1.000 = 33.200. De komma schuift 3 plaatsen naar rechts."},
    {9, 3, {{"komma", 1, 9}}, "33,2 : 1.000 = 0,0332. De komma schuift 3 plaatsen naar links."},
    {9, 3, {{"komma", 2, 1}}, "33,2 x 10 = 332. De komma schuift 1 plaats naar rechts."},
    {10, 1, {}, "Tussen 340 en 350. Het ligt het dichtst bij 350. 347 is ongeveer 350."},
    {10, 1, {{"afronden", 2, 1}}, "Tussen 300 en 400. Het ligt het dichtst bij 300. 347 is ongeveer 300."},
    {10, 1, {{"streepje", 5, 1}}, "Tussen 340 en 350. Precies in het midden: rond naar boven af. 345 is ongeveer 350."},
    {10, 1, {{"streepje", 10, 70}}, "Tussen 990 en 1.000. Dat is al een rond getal. 1.000 blijft 1.000."},
    {10, 2, {}, "398 + 205 = 603. Nog niet afgerond."},
    {10, 2, {{"rond", 0, 1}}, "Afgerond: 400 + 200 = 600. Precies is het 603. De schatting is 3 te weinig."},
    {10,
     2,
     {{"stap som", 2, 2}, {"rond", 0, 1}},
     "Afgerond: 50 x 20 = 1.000. Precies is het 1.029. De schatting is 29 te weinig."},
    {10,
     2,
     {{"rond", 0, 1}, {"stap som", 2, 9}},
     "Afgerond: 1.200 : 5 = 240. Precies is het 239. De schatting is 1 te veel."},
    {10, 3, {}, "Kosten, naar boven afgerond: € 17,-. Precies: € 15,40. Je hebt € 17,-. Je hebt zeker genoeg."},
    {10,
     3,
     {{"stap geld", 1, 1}},
     "Kosten, naar boven afgerond: € 17,-. Precies: € 15,40. Je hebt € 16,-. Misschien is het te weinig."},
    {10,
     3,
     {{"manier", 2, 1}},
     "Kosten, naar beneden afgerond: € 13,-. Precies: € 15,40. Je hebt € 17,-. Misschien is het genoeg."},
    {10,
     3,
     {{"manier", 2, 1}, {"stap geld", 1, 5}},
     "Kosten, naar beneden afgerond: € 13,-. Precies: € 15,40. Je hebt € 12,-. Je hebt zeker te weinig."},
    {10,
     3,
     {{"manier", 3, 1}},
     "Kosten, gewoon afgerond: € 15,-. Precies: € 15,40. Je hebt € 17,-. Waarschijnlijk genoeg."},
};

TEST(examples, say_what_was_pressed) {
    for (const example_row& row : example_rows) {
        fake_outside pupil;
        formulieren forms{pupil};
        auto& screen = forms.get<infoscherm>(row.booklet == 8 ? 7 : row.booklet, row.number);
        screen.toon_voor(row.booklet);
        for (const auto& [name, index, times] : row.presses) {
            const auto found = std::ranges::find_if(screen.controls(), [&](const control* each) {
                return each->name == name && each->index.value_or(0) == index;
            });
            ASSERT_NE(found, screen.controls().end()) << name;
            for (int i = 0; i < times; ++i) pupil.click(**found);
        }
        EXPECT_EQ(screen.bij().zin(), row.says);
    }
}

} // namespace
} // namespace cijferwerf
