// Money: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the mistake that
// its feedback names.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

const row_part either_side = wrong("", lies::below, lies::above);

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
            n.exercise.words, [&](const std::string& word) { return word.starts_with(n.words[2].substr(0, 4)); });
        return decimal(row[column]);
    };
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
const formula months = chosen(A, {3, 6, 9, 6, 18, 24, 30}), weeks = chosen(B, {13, 26, 39, 26, 78, 104, 130, 52});

const std::string rented =
    "gedurende (een kwartaal|twee kwartalen|drie kwartalen|een half jaar|anderhalf jaar|twee jaar|"
    "twee en een half jaar|een jaar)";
const formula extra = D + E / 100, change = C + extra - B;
const formula paid = (B + 1) * C + (D + 1) * E, back = paid - F;
const formula coins_in = B * 100 / A, exchanged = chosen(A, {1, 2, 3, 6}) * B;
const formula pumped = B * 10 + C + D / 10 + E / 100, litres = F * 10 + G; // digit by digit
const formula per_litre = pumped / litres;
const formula country = by_variant({0, 1, 2, 3, 4});
const formula hours = C + D + E + F + G + H;
const formula cds = A * B, half = A / 2, threes = floor(B / 3);

const exercise_rows money([] {
    row(B_spaarpot_05_07_click, 4, "@ gooit (zijn|haar) spaarpot leeg. Wat er in {zijn|haar} spaarpot zat",
        counts([](const reading& n) { return n.exercise.words.size() / 2; },
               [](const reading& n) { return whole(n.exercise.words.back()); }),
        range({{0, 1}, {3, 3}, {1, 9}}), range({{0, 1}, {3, 3}, {1, 9}}), range({{0, 1}, {4, 4}, {1, 9}}),
        range({{0, 1}, {4, 4}, {1, 9}}), words({12}), right(in_money_box), either_side,
        tips("Kijk goed naar de waarde", "Vermenigvuldig die met het aantal"));
    row(B_wisselen_05_07_click, 3,
        "wisselt (een biljet|twee biljetten|drie biljetten|zes biljetten) van € #,- tegen munten van # eurocent.",
        range({{0, 3}, {20, 200}, {10, 10}}), range({{0, 3}, {20, 200}, {20, 20}}),
        range({{0, 3}, {20, 200}, {50, 50}}), right(exchanged * 100 / C),
        wrong("", exchanged, exchanged * 2, exchanged * 5, exchanged * 10, exchanged * 20, exchanged * 50, B * 100 / C),
        explains("wisselt (een|twee|drie|zes) bil*€ #,-*krijgt hij # munten van # eurocent. Voor € #,- ", A, B, 100 / C,
                 C, exchanged),
        tips("Bedenk eerst hoeveel", "doe daarna een vermenigvuldiging"));
    row(L_snel_05_07_click, 6, "| Hoeveel munten van # eurocent | gaan er in € #,-?", range({{1, 50}, {2, 10}}),
        right(coins_in),
        wrong("", coins_in - 15, coins_in - 10, coins_in - 5, coins_in + 5, coins_in + 10, coins_in + 15),
        explains("In een euro * # *, dus in € #,- zitten # x ", 100 / A, B, B), ticks({10}));
    row(M_niet_gepast_05_07_click, 4, "bedragen kun je hiermee NIET gepast betalen?",
        counts([](const reading& n) { return std::set(n.exercise.words.begin(), n.exercise.words.end()).size(); }),
        range({{3, 3}}), range({{3, 3}}), range({{4, 4}}), range({{4, 4}}), wrong("jij koos is wel", lies::elsewhere),
        wrong("Dat bedrag", lies::elsewhere), wrong("juist wel", lies::elsewhere), check_sums);
    row(L_bijbetalen_05_07_click, 2,
        "(Een man|Een vrouw) koopt voor € # een stel CD's. {Hij|Zij} *€ #,-, maar {hij|zij} *€ #,- en een munt van # ",
        range({{0, 1}, {6.1, 97.5, 2}, {20, 100}, {1, 2}, {10, 50}}), right(change),
        wrong("(te veel|teveel) terug", change + extra), wrong("te weinig terug", change - extra),
        wrong("(er een euro|je een euro)", change - 1, change + 1),
        explains("bijbetaling € # moeten*klant € # bij", change - extra, extra));
    row(L_terugbetalen_05_07_click, 5,
        "(Hij|Zij) moet *. @ betaalt met (een|2|3) briefje* € #,- en (een|2|3) munt* € #,-. *{hij|ze} terug? | € #",
        range({{0, 1}, {0, 2}, {5, 100}, {0, 2}, {1, 2}, {5.05, 305.95, 2}}), words({10}), right(back),
        wrong("", back - 1, back - .5, back - .1, back - .05, back + .1, back + .5, back + 1, F - (B + 1) * C),
        explains("van € #* moet je aanvullen tot € #,-. Dat doe je met € #", F, paid, back),
        tips("Reken eerst uit", "Bereken met hoeveel"));
    row(L_vreemd_geld_1_05_07_click, 5,
        "@ gaat op vakantie naar @. $a besluit voor € #,- aan @ mee te nemen. Hoeveel hele $c kan (hij|zij) kopen?",
        counts(rate(1), rate(2)), range({{150, 950}, {0, 1}, {.55, 1.28}, {.59, 1.35}}), words({10, 5, 5}),
        right(floor(A / D)), either_side,
        explains("koers: #, dat wil zeggen voor een (Am|Au|Ca|En|Zw)* moet je € # betalen. * getal: #/#", D, country, D,
                 A, D),
        tips("Weet je dat je de hoogste", "Doe een deling en gebruik de hoogste"));
    row(L_vreemd_geld_2_05_07_click, 5, "@ komt van vakantie terug uit @. $a wisselt voor # @ in euro's.",
        counts(rate(1), rate(2)), range({{120, 950}, {.55, 1.28}, {.59, 1.35}}), words({10, 5, 5}), right(floor(A * B)),
        either_side,
        explains("koers: #, Dit betekent dat je voor elke (Am|Au|Ca|En|Zw)* € # terug krijgt. Voor # ", B, country, B,
                 A),
        tips("Weet je dat je de laagste", "Doe een vermenigvuldiging en gebruik de laagste"));
    row(M_boodschap_05_07_click, 4,
        "@ haalt voor (zijn|haar) (vader|moeder) @, @ en @. (Vader|Moeder) *krijgt $a mee? | # kg aardappelen *€ #",
        counts(B - by_variant({0, 1, 0, 1}), C - B,
               [](const reading& n) { return n.exercise.words.size() - (n.variant() < 3 ? 3U : 4U); }),
        range({{0, 1}, {0, 1}, {0, 1}, {1.5, 2.5}, {.5, 1.9}, {0, 0}, {0, 0}, {0, 0}}), right(to_bring), either_side,
        explains("boodschappen € # kosten. Want € # +*krijgt $a dus", formula(to_bring) - .05, D * E),
        tips("De afzonderlijke bedragen", "(Vader|Moeder) niet kan betalen"));
    row(M_CDs_05_07_click, 2, "Ze kosten € # per stuk. * koopt # CD's.", counts(B - 3 * threes),
        range({{6.9, 19.9}, {6, 15}, {0, 0}}), range({{6.9, 19.9}, {7, 17}, {1, 2}}), right(cds - threes * half),
        wrong("vergeten dat", cds), wrong("juist duurder", cds + threes * half), wrong("maar één CD", cds - half),
        explains("in # zitten # hele", B, threes));
    row(L_krantenwijk_05_07_click, 2,
        "(Een meisje|Een jongen) doet * heeft {zij|hij} een * € #* per uur. Hoeveel heeft {ze|hij} die * | maandag | "
        "# uur *| # uur *| # uur *| # uur *| # uur | zaterdag | # uur",
        range({{0, 1}, {2.6, 5.95}, {1, 4}, {1, 4}, {1, 4}, {1, 4}, {1, 4}, {1, 4}}), right(hours * B),
        wrong("alleen de uren van de maandag", C * B), wrong("alleen de uren van de zaterdag", H * B),
        wrong("één uur per dag", 6 * B), wrong("alleen de uren bij elkaar", hours),
        wrong("de zaterdag vergeten", (hours - H) * B), wrong("de maandag twee keer", (hours + C) * B),
        wrong("de zaterdag twee keer", (hours + H) * B), wrong("tien uren te veel", (hours + 10) * B),
        explains("er in totaal #. * Dus: # x", hours, hours));
    row(M_brandstof_05_07_click, 2,
        "(Een man|Een vrouw) heeft bij een pompstation {zijn|haar} auto *| #  #, #  # | #  #",
        range({{0, 1}, {2, 9}, {0, 9}, {0, 9}, {0, 9}, {2, 5}, {0, 9}}), right(per_litre),
        wrong("", rounded(litres / pumped, 2), pumped, per_litre * 10, per_litre - .1, per_litre - .01, per_litre + .01,
              per_litre + .1),
        explains("hoeveel (hij|zij) voor # liters * Dus € #* : #", A, litres, pumped, litres),
        tips("Je moet delen.", "een deling doen"));
    row(Z_huren_05_07_click, 4, "periode van # weken. *€ #* per dag *€ #,- per dag *€ #,- per maand *€ #,- per uur",
        of({1}), range({{2, 9}, {.75, 2.5}, {30, 75}, {400, 900}, {15, 45}}), right(7 * A * B),
        wrong("vijf dagen telt", 5 * A * B), wrong("14 dagen", 14 * A * B), wrong("maal het aantal weken", A * B),
        wrong("geen zes dagen", 6 * A * B), wrong("geen acht dagen", 8 * A * B),
        wrong("een week te veel", 7 * (A + 1) * B));
    row(Z_huren_05_07_click, 4, "een auto gedurende de hele maand @. * | AUTO | Kosten: € #,- per dag", of({2}),
        counts(days_of), words({11}), right(A * B), wrong("28 dagen zitten? Dat geldt alleen voor februari.", 28 * A),
        wrong("heeft geen", (61 - B) * A), wrong("32 dagen", 32 * A), wrong("vijf hele weken", 35 * A),
        wrong("vier weken van vijf", 20 * A), wrong("een week te veel", (B + 7) * A), wrong("één week", 7 * A));
    row(Z_huren_05_07_click, 4, (rented + " een woning. * WONING | Kosten: € #,- per maand"), of({3}), range({{0, 6}}),
        right(months * B), wrong("voor een jaar berekend", 12 * B), wrong("voor één maand", B),
        wrong("half jaar te veel", (months + 6) * B), wrong("een kwartaal te veel", (months + 3) * B),
        wrong("een maand te veel", (months + 1) * B), wrong("een maand te weinig", (months - 1) * B),
        wrong("vier maanden telt", months / 3 * 4 * B), wrong("langer dan twee", months / 3 * 2 * B),
        wrong("meer dan tien", months / 12 * 10 * B));
    row(Z_huren_05_07_click, 4, ("voor # uur per week " + rented + ". * SPORTHAL | Kosten: € #,- per uur"), of({4}),
        range({{2, 6}, {0, 7}, {15, 45}}), right(weeks * A * C), wrong("voor een jaar berekend", 52 * A * C),
        wrong("één uur per week", weeks * C), wrong("langer dan vier weken", weeks * 12 / 13 * A * C),
        wrong("geen vijf weken", weeks * 15 / 13 * A * C), wrong("met de maanden gerekend", weeks * 3 / 13 * A * C),
        wrong("een week te veel", (weeks + 1) * A * C), wrong("een week te weinig", (weeks - 1) * A * C));
});

} // namespace
} // namespace cijferwerf
