// What the examples of the introductions show, read back: sentences worked out by hand, and shapes that are counted.
#include "forms/introduction/infoscherm.h"

#include "tests/support/practising.h"

#include <numeric>

namespace cijferwerf {
namespace {

class example : public practising {
protected:
    infoscherm& page(int booklet, int number) {
        auto& shown = forms.get<infoscherm>(booklet, number);
        shown.toon_voor(booklet);
        return shown;
    }
    // Presses the control that is spoken of so, or whose number (of the cells) this is.
    void press(infoscherm& on, std::string_view spoken) {
        const auto& controls = on.bij().controls();
        const auto found = std::ranges::find_if(controls, [&](const control* each) {
            return each->takes_clicks() &&
                   (each->accessible_name.empty() ? each->caption : each->accessible_name) == spoken;
        });
        ASSERT_NE(found, controls.end()) << "nothing is called " << spoken;
        EXPECT_TRUE(pupil.click(**found)) << spoken;
    }
};

// Filled shapes of a kind in a colour.
template<class Operation>
std::vector<Operation> filled(infoscherm& on, kleur with) {
    std::vector<Operation> found;
    for (const drawing_op& op : on.bij().getekend().operations())
        if (const auto* shape = std::get_if<Operation>(&op);
            shape != nullptr && shape->filled && shape->pen.colour == with)
            found.push_back(*shape);
    return found;
}

TEST_F(example, says_what_was_set) {
    const struct {
        int booklet, number;
        std::vector<std::pair<const char*, int>> presses; // what is pressed, and how often
        const char* sentence;
    } rows[]{
        {1, 1, {}, "25 van de 100 hokjes: 25 %, de breuk 1/4, het kommagetal 0,25."},
        {1, 1, {{"7 procent", 1}}, "7 van de 100 hokjes: 7 %, de breuk 7/100, het kommagetal 0,07."},
        {1, 1, {{"7 procent", 1}}, "6 van de 100 hokjes: 6 %, de breuk 3/50, het kommagetal 0,06."},
        {1,
         1,
         {{"per tien hoger", 4}, {"hokjes hoger", 2}},
         "48 van de 100 hokjes: 48 %, de breuk 12/25, het kommagetal 0,48."},
        {1, 1, {{"100 procent", 1}}, "100 van de 100 hokjes: 100 %, de breuk 1, het kommagetal 1."},
        {1, 2, {{"bedrag hoger", 5}, {"procent hoger", 8}}, "1 % van € 800,- is € 8,-. 15 % is € 120,-."},
        {1, 3, {}, "50 % is 1/2. 25 % is 1/4. 20 % is 1/5. 10 % is 1/10."},
        {2, 1, {{"eieren hoger", 2}}, "8 eieren en 12 bekers melk: van allebei 4 keer zoveel."},
        {2, 1, {{"melk lager", 3}}, "2 eieren en 3 bekers melk: van allebei 1 keer zoveel."},
        {2, 2, {{"liter hoger", 3}}, "Op 1 liter rijdt de auto 15 km, op 9 liter 135 km."},
        {2, 3, {}, "Schaal 1 : 1.000: 4 cm op de kaart is in het echt 4.000 cm, dat is 40 m."},
        {2,
         3,
         {{"1 : 40.000", 1}, {"cm hoger", 1}},
         "Schaal 1 : 40.000: 5 cm op de kaart is in het echt 200.000 cm, dat is 2.000 m."},
        {3, 1, {}, "3/4 = 0,75: 3 van de 4 stukken. Evenveel zijn 6/8 en 9/12."},
        {3, 1, {{"noemer lager", 1}}, "3/3 = 1: 3 van de 3 stukken. Evenveel zijn 1/1 en 6/6."},
        {3, 1, {{"noemer hoger", 6}, {"teller hoger", 3}}, "6/9: 6 van de 9 stukken. Evenveel zijn 2/3 en 12/18."},
        {3,
         2,
         {{"2/3", 1}, {"keer hoger", 2}},
         "2/3 is evenveel als 8/12: teller en noemer zijn allebei vermenigvuldigd met 4."},
        {3, 3, {}, "1/2 + 1/3 = 3/6 + 2/6 = 5/6."},
        {3, 3, {{"1/4 + 2/3", 1}}, "1/4 + 2/3 = 3/12 + 8/12 = 11/12."},
        {4, 2, {}, "In februari viel er 60 mm regen."},
        {4, 2, {{"mei", 1}, {"maand hoger", 1}}, "In juni viel er 30 mm regen."},
        {4,
         3,
         {{"leerlingen hoger", 4}},
         "bus 1/8 van 72 = 9, lopen 1/4 van 72 = 18, fiets 1/2 van 72 = 36, auto 1/8 van 72 = 9."},
        {11, 1, {}, "63.261: drieënzestigduizend tweehonderdeenenzestig."},
        {11,
         1,
         {{"tienduizendtallen lager", 6}, {"honderdtallen hoger", 7}, {"eenheden lager", 1}},
         "3.960: drieduizend negenhonderdzestig."},
        {11, 2, {{"tienden lager", 3}}, "Het getal is 4,075 = 4 + 0,07 + 0,005."},
        {11, 2, {{"honderdsten lager", 7}, {"duizendsten lager", 5}}, "Het getal is 4."},
        {11, 3, {}, "Eén stukje is 2. De pijl wijst naar 736."},
        {11, 3, {{"0 tot 100", 1}, {"pijl hoger", 1}}, "Eén stukje is 25. De pijl wijst naar 100."},
        {11, 3, {{"8 tot 9", 1}, {"pijl lager", 1}}, "Eén stukje is 0,1. De pijl wijst naar 8,3."},
        {12, 1, {}, "478 + 256. Begin rechts, bij de eenheden."},
        {12, 1, {{"stap hoger", 1}}, "Stap 1: 8 + 6 = 14. Schrijf 4 op en onthoud 1."},
        {12, 1, {{"stap hoger", 2}}, "Stap 3: 1 + 4 + 2 = 7. Schrijf 7 op. 478 + 256 = 734."},
        {12, 1, {{"326 + 491", 1}, {"stap hoger", 2}}, "Stap 2: 2 + 9 = 11. Schrijf 1 op en onthoud 1."},
        {12,
         2,
         {{"stap hoger", 2}},
         "Stap 2: De 3 is door het lenen 2 geworden. 2 - 7 kan niet. Leen 10 van links. 12 - 7 = 5."},
        {12,
         2,
         {{"713 - 458", 1}, {"stap hoger", 3}},
         "Stap 3: De 7 is door het lenen 6 geworden. 6 - 4 = 2. 713 - 458 = 255."},
    };
    for (const auto& row : rows) {
        infoscherm& shown = page(row.booklet, row.number);
        for (const auto& [what, times] : row.presses)
            for (int i = 0; i < times; ++i) press(shown, what);
        EXPECT_EQ(shown.bij().zin(), row.sentence);
    }
}

TEST_F(example, fills_as_many_squares_as_per_cents) {
    infoscherm& shown = page(1, 1);
    for (const int n : {100, 51, 10, 1}) {
        press(shown, std::to_string(n) + " procent");
        EXPECT_EQ(filled<box_op>(shown, half).size(), static_cast<std::size_t>(n));
    }
    press(shown, "1 procent");
    EXPECT_TRUE(filled<box_op>(shown, half).empty()) << "the last one cannot be taken away";
}

TEST_F(example, draws_as_many_eggs_and_cups_as_it_says) {
    infoscherm& shown = page(2, 1);
    for (std::size_t times = 1; times <= 5; ++times) {
        if (times == 1)
            press(shown, "eieren lager");
        else
            press(shown, times % 2 == 0 ? "melk hoger" : "eieren hoger");
        EXPECT_EQ(filled<circle_op>(shown, half).size(), 2 * times);
        EXPECT_EQ(filled<polygon_op>(shown, half).size(), 3 * times);
    }
}

TEST_F(example, colours_the_same_part_in_fractions_of_equal_value) {
    infoscherm& strips = page(3, 1);
    for (const char* pressed : {"teller lager", "noemer hoger", "teller lager", "noemer hoger"}) {
        press(strips, pressed);
        const auto parts = filled<box_op>(strips, half);
        ASSERT_EQ(parts.size(), 3U);
        EXPECT_NEAR(1.0 * parts[1].width / 4000, 1.0 * parts[0].width / 5260, 0.001);
        EXPECT_EQ(parts[1].width, parts[2].width);
    }
    infoscherm& pizzas = page(3, 2);
    for (const char* pressed : {"keer hoger", "1/2", "2/3"}) {
        press(pizzas, pressed);
        const auto parts = filled<circle_op>(pizzas, half);
        ASSERT_EQ(parts.size(), 2U);
        EXPECT_DOUBLE_EQ(parts[0].sweep, parts[1].sweep) << pressed;
    }
}

// Columns, dots and sectors of one table: 10, 20, 40 and 10.
TEST_F(example, draws_one_table_in_three_shapes) {
    infoscherm& shown = page(4, 1);
    std::vector<int> columns, dots;
    for (const box_op& each : filled<box_op>(shown, half)) columns.push_back(each.height);
    EXPECT_EQ(columns, (std::vector<int>{500, 1000, 2000, 500}));
    press(shown, "lijngrafiek");
    for (const circle_op& each : filled<circle_op>(shown, donker)) dots.push_back(3750 - each.centre.y);
    EXPECT_EQ(dots, columns);
    press(shown, "cirkelgrafiek");
    const std::pair<kleur, double> sectors[]{{geel, 45}, {half, 90}, {donker, 180}, {lichtgrijs, 45}};
    for (const auto& [colour, sweep] : sectors) {
        const auto found = filled<circle_op>(shown, colour);
        ASSERT_EQ(found.size(), 1U);
        EXPECT_DOUBLE_EQ(found[0].sweep, sweep);
    }
}

// The same sequences as the practice screen's calculator, which keeps its own number; no message box opens.
TEST_F(example, is_a_calculator_of_its_own) {
    open();
    infoscherm& shown = page(12, 3);
    const auto display = [&] {
        for (const control* each : shown.bij().controls())
            if (each->name == "display") return each->caption;
        return std::string();
    };
    static constexpr std::pair<std::string_view, std::string_view> rows[]{
        {"007", "7,"},
        {"C12345678901", "1234567890,"},
        {"C12,5+3=", "15,5"},
        {"C200+15%=", "230,"},
        {"C7/0=", "7,"},
        {"C2/3=", "0,666666666"},
        {"5", "0,666666666"},
        {"\x7f"
         "5MMCR",
         "10,"},
        {"\x7f"
         "3*2.45\rMC2X1,2\rMR",
         "9,75"},
    };
    for (const auto& [keys, number] : rows) {
        for (const char key : keys) EXPECT_TRUE(pupil.press(shown, key == 'x' ? 'X' : key)) << key;
        EXPECT_EQ(display(), number) << keys;
        EXPECT_EQ(shown.bij().zin(), "Op het display staat " + std::string(number));
    }
    EXPECT_TRUE(pupil.boxes.empty());
    EXPECT_TRUE(shown.loaded());
    EXPECT_EQ(screen.display.caption, "0,");
}

} // namespace
} // namespace cijferwerf
