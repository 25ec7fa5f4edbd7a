// Money: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the mistake that
// its feedback names.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

const row_part either_side = wrong("", lies::below, lies::above);

// What a table says for a number that was read, counted from 0.
formula of_table(std::vector<double> values, std::size_t number) {
    return [=](const reading& n) { return values.at(static_cast<std::size_t>(n[number])); };
}
// "20 eurocent", "50 ct" or "€ 2,-".
int cents(const std::string& text) {
    return static_cast<int>(rounded(number_of(text).value() * (text.find("€") == text.npos ? 1 : 100)));
}

double in_money_box(const reading& n) {
    const std::vector<std::string>& words = n.exercise.words;
    int sum = 0;
    for (std::size_t i = 1; i < words.size(); i += 2) {
        const std::size_t van = words[i].find(" van ");
        const int many = whole(words[i]), each = cents(words[i].substr(van + 5));
        const char* name = each < 500 ? (many == 1 ? "munt" : "munten") : many == 1 ? "briefje" : "briefjes";
        EXPECT_EQ(words[i].substr(0, van), regel(kaal(many), " ", name));
        EXPECT_EQ(each, cents(words[i - 1])) << "the coin beside " << words[i];
        sum += many * each;
    }
    return sum / 100.0;
}

void check_sums(const reading& n) {
    int smallest = 200;
    std::set<int> sums{0};
    for (const std::string& coin : n.exercise.words) {
        smallest = std::min(smallest, cents(coin));
        for (const int sum : std::set(sums)) sums.insert(sum + cents(coin));
    }
    for (int i = 1; i <= 4; ++i) {
        const int amount = cents(n.exercise.answer(i));
        EXPECT_EQ(sums.contains(amount), i != n.exercise.right_place()) << amount;
        EXPECT_TRUE(amount > smallest && amount < *sums.rbegin()) << amount;
        EXPECT_NE(n.exercise.explanation.find(kaal(komma(amount, 2))), std::string::npos) << amount;
    }
}

// The lower (1) or the higher (2) rate of the currency that is asked about.
formula rate(std::ptrdiff_t column) {
    return [=](const reading& n) {
        const auto row = std::ranges::find_if(
            n.exercise.words, [&](const std::string& word) { return word.starts_with(n.words[3].substr(0, 4)); });
        return decimal(row[column]);
    };
}
formula rounded_down(const formula& a) {
    return [=](const reading& n) { return std::floor(std::get<double>(a(n)) + 1e-9); };
}

// The least that can be paid with coins of 20 and 50 cents and euros.
double to_bring(const reading& n) {
    int total = 0;
    for (const std::string& word : n.exercise.words) {
        const auto item = find_pattern(word, "# @ *€ #").value();
        total += static_cast<int>(rounded(item.numbers[0] * item.numbers[1] * 100));
    }
    EXPECT_TRUE(total % 10 == 5 && total % 100 != 5 && total % 100 != 25) << total;
    while (total % 20 != 0 && (total < 50 || total % 20 != 10)) total += 5;
    return total / 100.0;
}

double days_of(const reading& n) {
    return std::set<std::string>{"april", "juni", "september", "november"}.contains(n.words[0]) ? 30 : 31;
}
const formula months = of_table({3, 6, 9, 6, 18, 24, 30}, 0), weeks = of_table({13, 26, 39, 26, 78, 104, 130, 52}, 0);

const formula extra = v[3] + v[4] / 100, change = v[2] + extra - v[1];
const formula paid = (v[1] + 1) * v[2] + (v[3] + 1) * v[4], back = paid - v[5];
const formula coins_in = v[1] * 100 / v[0], exchanged = of_table({1, 2, 3, 6}, 0) * v[1];
const formula pumped = v[1] * 10 + v[2] + v[3] / 10 + v[4] / 100, litres = v[5] * 10 + v[6]; // digit by digit
const formula per_litre = pumped / litres;
const formula sub_variant = [](const reading& n) { return n.variant(); };
const formula hours = v[2] + v[3] + v[4] + v[5] + v[6] + v[7];
const formula cds = v[0] * v[1], half = v[0] / 2, threes = rounded_down(v[1] / 3);

const exercise_rows money([] {
    row(B_spaarpot_05_07_click, 4,
        "@ gooit (zijn|haar) spaarpot leeg. Wat er in {zijn|haar} spaarpot zat, zie je hiernaast. Hoeveel geld",
        counts([](const reading& n) { return n.exercise.words.size() / 2; },
               [](const reading& n) { return whole(n.exercise.words.back()); }),
        range({{0, 1}, {3, 3}, {1, 9}}), range({{0, 1}, {3, 3}, {1, 9}}), range({{0, 1}, {4, 4}, {1, 9}}),
        range({{0, 1}, {4, 4}, {1, 9}}), words({12}), right(in_money_box), either_side,
        tips("Kijk goed naar de waarde", "Vermenigvuldig die met het aantal"));
    row(B_wisselen_05_07_click, 3,
        "wisselt (een biljet|twee biljetten|drie biljetten|zes biljetten) van € #,- tegen munten van # eurocent.",
        range({{0, 3}, {20, 200}, {10, 10}}), range({{0, 3}, {20, 200}, {20, 20}}),
        range({{0, 3}, {20, 200}, {50, 50}}), right(exchanged * 100 / v[2]),
        wrong("", exchanged, exchanged * 2, exchanged * 5, exchanged * 10, exchanged * 20, exchanged * 50,
              v[1] * 100 / v[2]),
        explains("krijgt hij # munten van # eurocent. Voor € #,- ", 100 / v[2], v[2], exchanged),
        tips("Bedenk eerst hoeveel", "doe daarna een vermenigvuldiging"));
    row(L_snel_05_07_click, 6, "| Hoeveel munten van # eurocent | gaan er in € #,-?", range({{1, 50}, {2, 10}}),
        right(coins_in),
        wrong("", coins_in - 15, coins_in - 10, coins_in - 5, coins_in + 5, coins_in + 10, coins_in + 15),
        explains("In een euro * # *, dus in € #,- zitten # x ", 100 / v[0], v[1], v[1]), ticks({10}));
    row(M_niet_gepast_05_07_click, 4, "bedragen kun je hiermee NIET gepast betalen?",
        counts([](const reading& n) { return std::set(n.exercise.words.begin(), n.exercise.words.end()).size(); }),
        range({{3, 3}}), range({{3, 3}}), range({{4, 4}}), range({{4, 4}}), wrong("jij koos is wel", lies::elsewhere),
        wrong("Dat bedrag", lies::elsewhere), wrong("juist wel", lies::elsewhere), check_sums);
    row(L_bijbetalen_05_07_click, 2,
        "(Een man|Een vrouw) koopt voor € # een stel CD's. {Hij|Zij} betaalt eerst met een briefje van € #,-, "
        "maar {hij|zij} geeft er ook nog een munt van € #,- en een munt van # eurocent bij. * | CD's * | U I T",
        range({{0, 1}, {6.1, 97.5, 2}, {20, 100}, {1, 2}, {10, 50}}), right(change),
        wrong("(te veel|teveel) terug", change + extra), wrong("te weinig terug", change - extra),
        wrong("(er een euro|je een euro)", change - 1, change + 1),
        explains("ZONDER bijbetaling € # * klant € # bijbetaalde", change - extra, extra));
    row(L_terugbetalen_05_07_click, 5,
        "(Hij|Zij) moet bij de kassa afrekenen. @ betaalt met (een briefje|2 briefjes|3 briefjes) van € #,- en "
        "(een munt|2 munten|3 munten) van € #,-. Hoeveel krijgt {hij|ze} terug? | € #",
        range({{0, 1}, {0, 2}, {5, 100}, {0, 2}, {1, 2}, {5.05, 305.95, 2}}), words({10}), right(back),
        wrong("", back - 1, back - .5, back - .1, back - .05, back + .1, back + .5, back + 1, v[5] - (v[1] + 1) * v[2]),
        explains("bedrag van € #* moet je aanvullen tot € #,-. Dat doe je met € #", v[5], paid, back),
        tips("Reken eerst uit", "Bereken met hoeveel"));
    row(L_vreemd_geld_1_05_07_click, 5,
        "@ gaat op vakantie naar @. @ besluit voor € #,- aan @ mee te nemen. Hoeveel hele @ kan (hij|zij) kopen?",
        counts(rate(1), rate(2)), range({{150, 950}, {0, 1}, {.55, 1.28}, {.59, 1.35}}), words({10, 5, 10, 5, 5}),
        right(rounded_down(v[0] / v[3])), either_side,
        explains("koers: #, dat wil zeggen voor een (Amerikaanse dollar|Australische dollar|Canadese "
                 "dollar|Engelse pond|Zwitserse franc) moet je € # betalen. * getal: #/#",
                 v[3], sub_variant - 1, v[3], v[0], v[3]),
        tips("Weet je dat je de hoogste", "Doe een deling en gebruik de hoogste"));
    row(L_vreemd_geld_2_05_07_click, 5, "@ komt van vakantie terug uit @. @ wisselt voor # @ in euro's.",
        counts(rate(1), rate(2)), range({{120, 950}, {.55, 1.28}, {.59, 1.35}}), words({10, 5, 10, 5}),
        right(rounded_down(v[0] * v[1])), either_side,
        explains("koers: #, Dit betekent dat je voor elke (Amerikaanse dollar|Australische dollar|Canadese "
                 "dollar|Engelse pond|Zwitserse franc) € # terug krijgt. Voor # * dus # x #",
                 v[1], sub_variant - 1, v[1], v[0], v[0], v[1]),
        tips("Weet je dat je de laagste", "Doe een vermenigvuldiging en gebruik de laagste"));
    row(M_boodschap_05_07_click, 4,
        "@ haalt voor (zijn|haar) (vader|moeder) @, @ en @. (Vader|Moeder) geeft zo min mogelijk geld mee. * Hoeveel "
        "krijgt @ mee? | # kg aardappelen *€ #",
        counts([](const reading& n) { return n.exercise.words.size(); }),
        range({{0, 1}, {0, 0}, {0, 0}, {1.5, 2.5}, {.5, 1.9}, {3, 3}}),
        range({{0, 1}, {1, 1}, {1, 1}, {1.5, 2.5}, {.5, 1.9}, {3, 3}}),
        range({{0, 1}, {0, 0}, {0, 0}, {1.5, 2.5}, {.5, 1.9}, {4, 4}}),
        range({{0, 1}, {1, 1}, {1, 1}, {1.5, 2.5}, {.5, 1.9}, {4, 4}}), right(to_bring), either_side,
        explains("boodschappen € # kosten. Want € # +", formula(to_bring) - .05, v[3] * v[4]),
        tips("De afzonderlijke bedragen", "(Vader|Moeder) niet kan betalen"));
    row(M_CDs_05_07_click, 2,
        "Ze kosten € # per stuk. * Een meneer koopt # CD's. Hoeveel moet hij betalen? | CD's * | U I T",
        counts(v[1] - 3 * threes), range({{6.9, 19.9}, {6, 15}, {0, 0}}), range({{6.9, 19.9}, {7, 17}, {1, 2}}),
        right(cds - threes * half), wrong("vergeten dat", cds), wrong("juist duurder", cds + threes * half),
        wrong("maar één CD", cds - half),
        explains("hij # x € # = € #* moeten betalen. Maar in # zitten # hele", v[1], v[0], cds, v[1], threes),
        explains("korting van # x € #* = € #*. Hij", threes, half, threes * half));
    row(L_krantenwijk_05_07_click, 2,
        "(Een meisje|Een jongen) doet de hele week een krantenwijk. Aan het eind heeft {zij|hij} een * bedraagt "
        "€ #* per uur. Hoeveel heeft {ze|hij} die * | maandag | # uur | dinsdag | # uur | woensdag | # uur | "
        "donderdag | # uur | vrijdag | # uur | zaterdag | # uur",
        range({{0, 1}, {2.6, 5.95}, {1, 4}, {1, 4}, {1, 4}, {1, 4}, {1, 4}, {1, 4}}), right(hours * v[1]),
        wrong("alleen de uren van de maandag", v[2] * v[1]), wrong("alleen de uren van de zaterdag", v[7] * v[1]),
        wrong("één uur per dag", 6 * v[1]), wrong("alleen de uren bij elkaar", hours),
        wrong("de zaterdag vergeten", (hours - v[7]) * v[1]), wrong("de maandag twee keer", (hours + v[2]) * v[1]),
        wrong("de zaterdag twee keer", (hours + v[7]) * v[1]), wrong("tien uren te veel", (hours + 10) * v[1]),
        explains("er in totaal #. * Dus: # x", hours, hours));
    row(M_brandstof_05_07_click, 2,
        "(Een man|Een vrouw) heeft bij een pompstation {zijn|haar} auto volgetankt. * | #  #, #  # | #  #",
        range({{0, 1}, {2, 9}, {0, 9}, {0, 9}, {0, 9}, {2, 5}, {0, 9}}), right(per_litre),
        wrong("", rounded(litres / pumped, 2), pumped, per_litre * 10, per_litre - .1, per_litre - .01, per_litre + .01,
              per_litre + .1),
        explains("hoeveel (hij|zij) voor # liters * Dus € #* : #", v[0], litres, pumped, litres),
        tips("Je moet delen.", "een deling doen"));
    row(Z_huren_05_07_click, 4,
        "periode van # weken. * | KLEURENTELEVISIE | Kosten: € #* per dag | * | AUTO | Kosten: € #,- per dag | * "
        "| WONING | Kosten: € #,- per maand | * | SPORTHAL | Kosten: € #,- per uur",
        of({1}), range({{2, 9}, {.75, 2.5}, {30, 75}, {400, 900}, {15, 45}}), right(7 * v[0] * v[1]),
        wrong("vijf dagen telt", 5 * v[0] * v[1]), wrong("14 dagen", 14 * v[0] * v[1]),
        wrong("maal het aantal weken", v[0] * v[1]), wrong("geen zes dagen", 6 * v[0] * v[1]),
        wrong("geen acht dagen", 8 * v[0] * v[1]), wrong("een week te veel", 7 * (v[0] + 1) * v[1]),
        explains("zitten # x 7 = # dagen. Elke dag kost € #*.", v[0], 7 * v[0], v[1]));
    row(Z_huren_05_07_click, 4, "een auto gedurende de hele maand @. * | AUTO | Kosten: € #,- per dag", of({2}),
        counts(days_of), words({11}), right(v[0] * v[1]),
        wrong("28 dagen zitten? Dat geldt alleen voor februari.", 28 * v[0]), wrong("heeft geen", (61 - v[1]) * v[0]),
        wrong("32 dagen", 32 * v[0]), wrong("vijf hele weken", 35 * v[0]), wrong("vier weken van vijf", 20 * v[0]),
        wrong("een week te veel", (v[1] + 7) * v[0]), wrong("één week", 7 * v[0]),
        explains("de maand * # dagen heeft. * kost € #,-", v[1], v[0]));
    row(Z_huren_05_07_click, 4,
        "gedurende (een kwartaal|twee kwartalen|drie kwartalen|een half jaar|anderhalf jaar|twee jaar|twee en een "
        "half jaar) een woning. * | WONING | Kosten: € #,- per maand",
        of({3}), range({{0, 6}}), right(months * v[1]), wrong("voor een jaar berekend", 12 * v[1]),
        wrong("voor één maand", v[1]), wrong("half jaar te veel", (months + 6) * v[1]),
        wrong("een kwartaal te veel", (months + 3) * v[1]), wrong("een maand te veel", (months + 1) * v[1]),
        wrong("een maand te weinig", (months - 1) * v[1]), wrong("vier maanden telt", months / 3 * 4 * v[1]),
        wrong("langer dan twee", months / 3 * 2 * v[1]), wrong("meer dan tien", months / 12 * 10 * v[1]),
        explains("maanden. Dat kost # x", months));
    row(Z_huren_05_07_click, 4,
        "gedurende (een kwartaal|twee kwartalen|drie kwartalen|een half jaar|anderhalf jaar|twee jaar|twee en een "
        "half jaar|een jaar). * | SPORTHAL | Kosten: € #,- per uur",
        of({4}), counts([](const reading& n) { return decimal(n.exercise.asked("voor ([0-9]+) uur per week").at(1)); }),
        range({{0, 7}, {15, 45}, {2, 6}}), right(weeks * v[1] * v[2]),
        wrong("voor een jaar berekend", 52 * v[1] * v[2]), wrong("één uur per week", weeks * v[1]),
        wrong("langer dan vier weken", weeks * 12 / 13 * v[1] * v[2]),
        wrong("geen vijf weken", weeks * 15 / 13 * v[1] * v[2]),
        wrong("met de maanden gerekend", weeks * 3 / 13 * v[1] * v[2]),
        wrong("een week te veel", (weeks + 1) * v[1] * v[2]), wrong("een week te weinig", (weeks - 1) * v[1] * v[2]),
        explains("Elke week huurt zij # uur, dus in totaal # x #", v[2], weeks, v[2]));
});

} // namespace
} // namespace cijferwerf
