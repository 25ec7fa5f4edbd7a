// What the examples of the introductions show, read back: sentences worked out by hand, and shapes that are counted.
#include "forms/introduction/infoscherm.h"

#include "tests/support/practising.h"
#include "tests/support/seen.h"

#include <sstream>

namespace cijferwerf {
namespace {

infoscherm& page(formulieren& forms, int booklet, int number) {
    auto& shown = forms.get<infoscherm>(zoek_inleiding(booklet)->boekje, number);
    shown.toon_voor(booklet);
    return shown;
}

// Clicks what is spoken of so, or has this name and number ("hokje#7"), as often as is said ("hoger*3").
void press(fake_outside& pupil, infoscherm& on, const std::string& text) {
    const std::size_t star = std::min(text.find('*'), text.size());
    const std::string spoken = text.substr(0, star);
    const auto found = std::ranges::find_if(on.controls(), [&](const control* each) {
        return each->takes_clicks() &&
               ((each->accessible_name.empty() ? each->caption : each->accessible_name) == spoken ||
                each->name + "#" + std::to_string(each->index.value_or(0)) == spoken);
    });
    ASSERT_NE(found, on.controls().end()) << "nothing is called " << spoken;
    for (int times = star < text.size() ? std::stoi(text.substr(star + 1)) : 1; times > 0; --times)
        pupil.click(**found);
}

// Booklet and screen, what is clicked on it as it is opened, and the sentence.
constexpr std::string_view said = R"(
1.1 | | 25 van de 100 hokjes: 25 %, de breuk 1/4, het kommagetal 0,25.
1.1 | 7 procent*2, per tien hoger*4, hokjes hoger*2 | 48 van de 100 hokjes: 48 %, de breuk 12/25, het kommagetal 0,48.
1.1 | 100 procent | 100 van de 100 hokjes: 100 %, de breuk 1, het kommagetal 1.
1.2 | bedrag hoger*5, procent hoger*8 | 1 % van € 800,- is € 8,-. 15 % is € 120,-.
2.1 | eieren hoger*2 | 8 eieren en 12 bekers melk: van allebei 4 keer zoveel.
2.2 | liter hoger*3 | Op 1 liter rijdt de auto 15 km, op 9 liter 135 km.
2.3 | 1 : 40.000, cm hoger | Schaal 1 : 40.000: 5 cm op de kaart is in het echt 200.000 cm, dat is 2.000 m.
3.1 | noemer lager | 3/3 = 1: 3 van de 3 stukken. Evenveel zijn 1/1 en 6/6.
3.1 | noemer hoger*5, teller hoger*3 | 6/9: 6 van de 9 stukken. Evenveel zijn 2/3 en 12/18.
3.2 | 2/3, keer hoger*2 | 2/3 is evenveel als 8/12: teller en noemer zijn allebei vermenigvuldigd met 4.
3.3 | 1/4 + 2/3 | 1/4 + 2/3 = 3/12 + 8/12 = 11/12.
4.2 | mei, maand hoger | In juni viel er 30 mm regen.
4.3 | leerlingen hoger*4 | bus 1/8 van 72 = 9, lopen 1/4 van 72 = 18, fiets 1/2 van 72 = 36, auto 1/8 van 72 = 9.
5.1 | munt lager*9, euro's hoger*9 | In € 1,- gaan 100 munten van 1 eurocent. In € 10,- gaan 10 x 100 = 1.000 munten.
5.2 | | Een pizza kost € 6,35. Jij geeft € 10,-. Je krijgt € 3,65 terug.
5.2 | geld terugnemen, geldstuk#3, geldstuk#5, geldstuk#7 | Een pizza kost € 6,35. Jij geeft € 6,20. Er moet nog € 0,15 bij.
5.2 | prijs hoger*9, geldstuk#1*9 | Een T-shirt kost € 14,50. Jij geeft € 50,-. Je krijgt € 35,50 terug.
5.3 | aantal hoger*9, prijs lager*9 | 6 keer € 0,99. Rond: 6 x € 1,- = € 6,-. Te veel: 6 x € 0,01 = € 0,06. Precies: € 6,00 - € 0,06 = € 5,94.
6.1 | minuut hoger*7, uur hoger*8 | De klok staat op twaalf uur, 's nachts. Digitaal is dat 0:00.
6.1 | grote wijzer op 9, uur lager*15 | De klok staat op kwart voor één, 's nachts. Digitaal is dat 0:45.
6.2 | | Van 7:25 uur tot 10:20 uur: 7:25 tot 8:00 is 35 min, 8:00 tot 10:00 is 2 uur, 10:00 tot 10:20 is 20 min, samen 2 uur en 55 min.
6.2 | einde lager*40 | Van 7:25 uur tot 7:30 uur: 7:25 tot 7:30 is 5 min, samen 5 min.
6.2 | begin hoger*6, einde lager*16 | Van 7:55 uur tot 9:00 uur: 7:55 tot 8:00 is 5 min, 8:00 tot 9:00 is 1 uur, samen 1 uur en 5 min.
6.3 | maat hoger*9, aantal lager*9 | Eén minuut heeft 60 seconden. 1 minuut: 1 x 60 = 60 seconden.
8.1 | hokje#13 | Een rechthoek van 1 cm bij 2 cm. Omtrek: 1 + 2 + 1 + 2 = 6 cm. Oppervlakte: 1 x 2 = 2 cm².
7.2 | trede#1 | lengte: 2,5 m = 0,0025 km. 3 treden omhoog, dus : 1.000.
7.2 | soort#2, trede#3 | gewicht: 750 g = 75 dag. 1 trede omhoog, dus : 10.
7.2 | soort#3, trede#4 | inhoud: 1,5 liter.
7.2 | soort#4, trede#7 | oppervlakte: 4 m² = 4.000.000 mm². 3 treden omlaag, dus x 1.000.000.
7.3 | lengte hoger*9, breedte hoger*9, hoogte hoger*9 | Een doos van 6 bij 4 bij 5 dm. Inhoud: 6 x 4 x 5 = 120 dm³. 120 dm³ = 120 liter.
9.1 | stap#0*4 | 7 x 24. Stap 1: 24 = 20 + 4. Stap 2: 7 x 20 = 140. Stap 3: 7 x 4 = 28. Stap 4: 140 + 28 = 168.
9.1 | getal hoger*5, stap#0*9 | 7 x 29. Stap 1: 29 = 30 - 1. Stap 2: 7 x 30 = 210. Stap 3: 7 x 1 = 7. Stap 4: 210 - 7 = 203.
9.1 | getal lager*4, keer hoger*9, volgende stap | 9 x 19. Stap 1: 19 = 20 - 1.
9.2 | begin hoger*2, erbij lager*40 | 60 + 10 = 70, 70 + 1 = 71, dus 60 + 11 = 71.
9.3 | komma#2*9 | 33,2 x 1.000 = 33.200. De komma schuift 3 plaatsen naar rechts.
9.3 | komma#1*9 | 33,2 : 1.000 = 0,0332. De komma schuift 3 plaatsen naar links.
9.3 | komma#2 | 33,2 x 10 = 332. De komma schuift 1 plaats naar rechts.
10.1 | afronden#2 | Tussen 300 en 400. Het ligt het dichtst bij 300. 347 is ongeveer 300.
10.1 | streepje#5 | Tussen 340 en 350. Precies in het midden: rond naar boven af. 345 is ongeveer 350.
10.1 | streepje#10*70 | Tussen 990 en 1.000. Dat is al een rond getal. 1.000 blijft 1.000.
10.2 | rond af | Afgerond: 400 + 200 = 600. Precies is het 603. De schatting is 3 te weinig.
10.2 | rond af, som hoger*9 | Afgerond: 1.200 : 5 = 240. Precies is het 239. De schatting is 1 te veel.
10.3 | | Kosten, naar boven afgerond: € 17,-. Precies: € 15,40. Je hebt € 17,-. Je hebt zeker genoeg.
10.3 | geld lager | Kosten, naar boven afgerond: € 17,-. Precies: € 15,40. Je hebt € 16,-. Misschien is het te weinig.
10.3 | manier#2 | Kosten, naar beneden afgerond: € 13,-. Precies: € 15,40. Je hebt € 17,-. Misschien is het genoeg.
10.3 | manier#2, geld lager*5 | Kosten, naar beneden afgerond: € 13,-. Precies: € 15,40. Je hebt € 12,-. Je hebt zeker te weinig.
10.3 | manier#3 | Kosten, gewoon afgerond: € 15,-. Precies: € 15,40. Je hebt € 17,-. Waarschijnlijk genoeg.
10.3 | manier#3, geld lager*2 | Kosten, gewoon afgerond: € 15,-. Precies: € 15,40. Je hebt € 15,-. Dat weet je niet zeker.
10.3 | manier#3, geld lager*3 | Kosten, gewoon afgerond: € 15,-. Precies: € 15,40. Je hebt € 14,-. Waarschijnlijk te weinig.
11.1 | tienduizendtallen lager*6, honderdtallen hoger*7, eenheden lager | 3.960: drieduizend negenhonderdzestig.
11.2 | tienden lager*3 | Het getal is 4,075 = 4 + 0,07 + 0,005.
11.2 | tienden lager*3, honderdsten lager*7, duizendsten lager*5 | Het getal is 4.
11.3 | 0 tot 100, pijl hoger | Eén stukje is 25. De pijl wijst naar 100.
11.3 | 0 tot 100, pijl hoger, 8 tot 9, pijl lager | Eén stukje is 0,1. De pijl wijst naar 8,3.
12.1 | | 478 + 256. Begin rechts, bij de eenheden.
12.1 | stap hoger*3 | Stap 3: 1 + 4 + 2 = 7. Schrijf 7 op. 478 + 256 = 734.
12.1 | 326 + 491, stap hoger*2 | Stap 2: 2 + 9 = 11. Schrijf 1 op en onthoud 1.
12.2 | stap hoger*2 | Stap 2: De 3 is door het lenen 2 geworden. 2 - 7 kan niet. Leen 10 van links. 12 - 7 = 5.
12.2 | 713 - 458, stap hoger*3 | Stap 3: De 7 is door het lenen 6 geworden. 6 - 4 = 2. 713 - 458 = 255.
)";

TEST(examples, say_what_was_set) {
    std::istringstream rows{std::string(said.substr(1))};
    for (std::string number, clicks, sentence; rows >> number && std::getline(rows >> std::ws, clicks, '|') &&
                                               std::getline(rows >> std::ws, clicks, '|') &&
                                               std::getline(rows >> std::ws, sentence);) {
        fake_outside pupil;
        formulieren forms{pupil};
        const std::size_t point = number.find('.');
        infoscherm& shown = page(forms, std::stoi(number), std::stoi(number.substr(point + 1)));
        std::istringstream list(clicks);
        for (std::string click; std::getline(list >> std::ws, click, ',');)
            press(pupil, shown, click.substr(0, click.find_last_not_of(' ') + 1));
        EXPECT_EQ(shown.bij().zin(), sentence) << number << clicks;
    }
}

using example = practising;

// Filled shapes of a kind in a colour.
template<class Operation>
std::vector<Operation> filled(infoscherm& on, kleur with) {
    std::vector<Operation> found = all<Operation>(on.bij().getekend());
    std::erase_if(found, [with](const Operation& shape) { return !shape.filled || shape.pen.colour != with; });
    return found;
}

TEST_F(example, fills_as_many_squares_as_per_cents) {
    infoscherm& shown = page(forms, 1, 1);
    const std::pair<const char*, std::size_t> rows[]{
        {"100 procent", 100}, {"51 procent", 51}, {"1 procent", 1}, {"1 procent", 0}};
    for (const auto& [pressed, squares] : rows) {
        press(pupil, shown, pressed);
        EXPECT_EQ(filled<box_op>(shown, half).size(), squares);
    }
}

TEST_F(example, draws_as_many_eggs_and_cups_as_it_says) {
    infoscherm& shown = page(forms, 2, 1);
    press(pupil, shown, "melk lager");
    for (std::size_t times = 1; times <= 5; ++times) {
        EXPECT_EQ(filled<circle_op>(shown, half).size(), 2 * times);
        EXPECT_EQ(filled<polygon_op>(shown, half).size(), 3 * times);
        press(pupil, shown, times % 2 == 0 ? "melk hoger" : "eieren hoger");
    }
}

TEST_F(example, colours_the_same_part_in_fractions_of_equal_value) {
    infoscherm& strips = page(forms, 3, 1);
    for (const char* pressed : {"teller lager", "noemer hoger", "teller lager", "noemer hoger"}) {
        press(pupil, strips, pressed);
        const auto parts = filled<box_op>(strips, half);
        ASSERT_EQ(parts.size(), 3U);
        EXPECT_NEAR(1.0 * parts[1].width / 4000, 1.0 * parts[0].width / 5260, 0.001);
        EXPECT_EQ(parts[1].width, parts[2].width);
    }
    infoscherm& pizzas = page(forms, 3, 2);
    for (const char* pressed : {"keer hoger", "1/2", "2/3"}) {
        press(pupil, pizzas, pressed);
        const auto parts = filled<circle_op>(pizzas, half);
        ASSERT_EQ(parts.size(), 2U);
        EXPECT_DOUBLE_EQ(parts[0].sweep, parts[1].sweep) << pressed;
    }
}

// Columns, dots and sectors of one table: 10, 20, 40 and 10.
TEST_F(example, draws_one_table_in_three_shapes) {
    infoscherm& shown = page(forms, 4, 1);
    std::vector<int> columns, dots;
    for (const box_op& each : filled<box_op>(shown, half)) columns.push_back(each.height);
    EXPECT_EQ(columns, (std::vector<int>{500, 1000, 2000, 500}));
    press(pupil, shown, "lijngrafiek");
    for (const circle_op& each : filled<circle_op>(shown, donker)) dots.push_back(3750 - each.centre.y);
    EXPECT_EQ(dots, columns);
    press(pupil, shown, "cirkelgrafiek");
    const std::pair<kleur, double> sectors[]{{geel, 45}, {half, 90}, {donker, 180}, {lichtgrijs, 45}};
    for (const auto& [colour, sweep] : sectors) EXPECT_EQ(filled<circle_op>(shown, colour).at(0).sweep, sweep);
}

} // namespace
} // namespace cijferwerf
