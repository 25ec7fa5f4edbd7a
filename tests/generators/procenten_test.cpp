// The percentages, worked out again from what a pupil sees: the question, the picture, the answers. Each wrong answer
// is the mistake that its feedback names.
#include "tests/support/seen.h"

#include <cmath>
#include <map>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;
using numbers = std::array<double, 4>;

bool same(double a, double b) { return std::abs(a - b) < 1e-9; }

bool told_of(const seen& e, int answer, std::string_view mistake) {
    return e.feedback(answer).find(mistake) != std::string::npos;
}

bool is_percentage(const std::string& answer) { return answer.ends_with(" %"); }

// Every sum that an explanation writes out is right.
void check_sums(const std::string& explanation, int at_least) {
    static const std::regex sum(
        R"((\d(?:[\d.,]*\d)?)(?: ?%| euro)? ?([-x:/]) ?(\d(?:[\d.,]*\d)?)(?: ?%)? = (?:ongeveer )?(\d(?:[\d.,]*\d)?)(/\d+)?)");
    int sums = 0;
    for (std::sregex_iterator i(explanation.begin(), explanation.end(), sum), end; i != end; ++i, ++sums) {
        const auto& part = *i;
        const double a = decimal(part[1]), b = decimal(part[3]);
        const double divisor = part[5].matched ? decimal(part[5].str().substr(1)) : 1;
        const char sign = part[2].str()[0];
        const double outcome = sign == '-' ? a - b : sign == 'x' ? a * b : a / b;
        EXPECT_TRUE(same(outcome, decimal(part[4]) / divisor)) << part[0];
    }
    EXPECT_GE(sums, at_least);
}

TEST(percentages, the_titles_go_through_their_sub_variants_and_start_again) {
    static constexpr std::pair<oefening_id, int> titles[]{
        {L_voetbal_01_08_click, 5},    {L_examen_01_08_click, 8},    {L_computer_01_08_click, 3},
        {L_snel_01_08_click, 4},       {M_blessures_01_08_click, 4}, {M_hele_procenten_01_08_click, 2},
        {M_rente_01_08_click, 2},      {B_alcohol_01_08_Click, 4},   {Z_kommaprocenten_01_08_click, 4},
        {L_bevolking_01_08_click, 10}, {B_grasveld_01_08_click, 2}};
    for (const auto& [title, number] : titles) {
        oefeningen maker([] { return 43'200.0F; });
        maker.variant = number - 1;
        for (const int expected : {number, 1}) {
            maker.maak(title);
            EXPECT_EQ(maker.variant, expected) << naam(title);
        }
    }
}

TEST(percentages, the_visitors_have_the_rest_of_the_spectators) {
    each(L_voetbal_01_08_click, [](const seen& e) {
        const auto part = e.asked(R"(tussen (.+) en (.+) zitten ([\d.]+) mensen\. )"
                                  R"(Hiervan is (\d+) % supporter van (.+)\. Hoeveel supporters van (.+) zijn er)");
        const std::string &home = part[1], &visitors = part[2];
        EXPECT_EQ(e.words, (std::vector<std::string>{home, "-", visitors}));
        EXPECT_EQ(part[5] + "|" + part[6], home + "|" + visitors);
        EXPECT_TRUE(home.find(visitors) == home.npos && visitors.find(home) == visitors.npos) << "one club";

        const double all = whole(part[3]), at_home = whole(part[4]);
        const double own = all * at_home / 100;
        EXPECT_EQ(e.numbers(), (numbers{all - own, 100 - at_home, own, all + all - own}));
        EXPECT_TRUE(told_of(e, 2, "het AANTAL berekenen") && told_of(e, 3, "THUIS") && told_of(e, 4, "groter"));
        check_sums(e.explanation, 2);
    });
}

TEST(percentages, so_many_of_the_pupils_passed_or_failed) {
    each(L_examen_01_08_click, [](const seen& e) {
        const auto part = e.asked(R"((zakte|slaagde)n (\d+) van de (\d+) leerlingen\. Hoeveel procent (\w+) dus\?)");
        const bool failed = part[1] == "zakte";
        const double count = whole(part[2]), pupils = whole(part[3]);
        EXPECT_EQ(part[1], part[4]);
        EXPECT_EQ(e.words[0], failed ? "GEZAKT..." : "GESLAAGD!");
        e.shown(3, failed ? "^van [a-z]+ gezakt bent\\.$" : "^van [a-z]+ geslaagd bent\\.$");
        EXPECT_EQ(failed, count < pupils / 2) << "most pupils pass";

        const double percent = count * 100 / pupils;
        EXPECT_EQ(e.numbers()[0], percent);
        EXPECT_EQ(e.numbers()[1], 100 - percent);
        EXPECT_TRUE(told_of(e, 2, failed ? "niet over de geslaagden!" : "niet over de gezakten!"));
        for (const int wrong : {3, 4}) {
            const bool other_group = told_of(e, wrong, "verwisseld!");
            EXPECT_EQ(whole(e.answer(wrong)), other_group ? pupils - count : count);
            EXPECT_EQ(is_percentage(e.answer(wrong)), told_of(e, wrong, "meteen gelijk"));
            EXPECT_NE(is_percentage(e.answer(wrong)), told_of(e, wrong, "niet het percentage"));
        }
        check_sums(e.explanation, 2);
    });
}

TEST(percentages, the_discount_goes_off_the_price) {
    each(L_computer_01_08_click, [](const seen& e) {
        const auto part = e.asked(R"(computer van ([\d.]+) euro\. De \w+ geeft (\d+) % korting\. Hoeveel kost)");
        EXPECT_EQ(e.words, (std::vector<std::string>{"oude prijs:", part[1] + " euro", part[2] + " % korting"}));
        const double price = whole(part[1]), percent = whole(part[2]), discount = price * percent / 100;
        EXPECT_FALSE((std::set{10., 20., 25., 50.}.contains(percent))) << "too easy";
        EXPECT_EQ(e.numbers(), (numbers{price - discount, price + discount, price - percent, discount}));
        EXPECT_TRUE(told_of(e, 2, "opgeteld") && told_of(e, 3, "niet in euro's") && told_of(e, 4, "alleen de korting"));
        check_sums(e.explanation, 2);
    });
}

TEST(percentages, a_part_is_so_many_per_cent) {
    std::map<int, std::set<int>> asked;
    each(L_snel_01_08_click, [&](const seen& e) {
        const auto part = e.shown(0, R"(^Hoeveel % is (\d+) van (\d+)\?$)");
        EXPECT_EQ(whole(e.right) * whole(part[2]), whole(part[1]) * 100);
        EXPECT_EQ(e.last, "Het juiste antwoord is  " + e.right + ".") << "the percentage stands apart";
        asked[e.made.variant].insert(whole(e.right));
        check_sums(e.explanation, 1);
    });
    EXPECT_EQ(asked, (std::map<int, std::set<int>>{{1, {1, 25}}, {2, {2, 50}}, {3, {1, 5}}, {4, {10}}}));
}

TEST(percentages, the_sport_with_the_most_or_fewest_injuries_for_its_size) {
    each(M_blessures_01_08_click, [](const seen& e) {
        const auto part = e.asked(R"(sporten in (.+) in een bepaalde tijd.* sportblessures het (grootst|kleinst)\? $)");
        EXPECT_TRUE(e.words[1].starts_with(part[1] + ", "));
        const double sign = part[2] == "grootst" ? 1 : -1;
        std::map<double, std::set<std::string>> by_rate, by_count; // what is asked for stands last
        for (std::size_t row = 0; row < 4; ++row) {
            const std::string& sport = e.words[5 + 3 * row];
            const double injuries = whole(e.words[7 + 3 * row]), rate = injuries * 100 / whole(e.words[6 + 3 * row]);
            by_rate[sign * rate].insert(sport);
            by_count[sign * injuries].insert(sport);
            const int button = static_cast<int>(row) + 1;
            EXPECT_EQ(e.answer(button), sport);
            if (button != e.right_place()) {
                EXPECT_TRUE(told_of(e, button, "Bij " + sport + " "));
                EXPECT_TRUE(
                    told_of(e, button, "= " + std::to_string(std::lround(rate)) + " %. Dat is niet het " + part[2]));
                check_sums(e.feedback(button), 1);
            }
        }
        EXPECT_EQ(by_rate.rbegin()->second, std::set{e.right});
        EXPECT_NE(by_count.rbegin()->second, std::set{e.right}) << "to be found without any percentage";
        const auto told = e.told(R"(Het (\w+) is het bij (\w+): 1 % .* dus ongeveer (\d+) %\. $)");
        EXPECT_EQ(told[1], part[2]);
        EXPECT_EQ(told[2], e.right);
        EXPECT_EQ(sign * whole(told[3]), by_rate.rbegin()->first);
        check_sums(e.explanation, 4);
    });
}

// Right, 1 % only, a tenth for 1 %, that tenth only.
void check_mistakes(const seen& e, double percent, double base) {
    const numbers expected{percent * base / 100, base / 100, percent * base / 10, base / 10};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_TRUE(same(e.numbers()[i], expected[i])) << e.answers()[i];
    EXPECT_TRUE(told_of(e, 2, "1 % g") && told_of(e, 3, "door 100 ") && told_of(e, 4, "vermenigvuldig"));
    check_sums(e.explanation, 2);
}

TEST(percentages, whole_ones_of_the_number_on_the_board) {
    each(M_hele_procenten_01_08_click, [](const seen& e) {
        const auto part = e.shown(1, R"(^ (\d+) % van ([\d.]+) = \.\.\.$)");
        check_mistakes(e, whole(part[1]), whole(part[2]));
        EXPECT_EQ(whole(part[1]) > 10, e.made.variant == 2);
        e.told(("^.* van " + part[2] + " nemen.*Dus " + part[1] + " % van " + part[2]).c_str());
    });
}

TEST(percentages, with_decimals_and_the_outcome_comes_behind_the_sum) {
    each(Z_kommaprocenten_01_08_click, [](const seen& e) {
        const auto part = e.shown(0, R"(^([\d,]+) % van ([\d.]+) =$)");
        EXPECT_NE(part[1].find(','), std::string::npos);
        check_mistakes(e, decimal(part[1]), decimal(part[2]));
        const auto later = e.when_explained().texts;
        ASSERT_EQ(later.size(), 2U);
        EXPECT_EQ(later[1].text, e.right);
        EXPECT_EQ(later[1].y, later[0].y);
        EXPECT_GT(later[1].x, later[0].x + text_width(later[0].text, later[0].size));
    });
}

TEST(percentages, interest_is_a_part_of_the_amount_before_it_came) {
    const std::set<std::string> boys{"Jochem", "Jelmer", "Martijn", "Saoed"};
    std::set<std::string> names;
    each(M_rente_01_08_click, [&](const seen& e) {
        const auto part = e.asked(R"(^((?:(Meneer|Mevrouw) )?.+) krijgt van .* rente heeft (hij|zij) gekregen\? $)");
        names.insert(part[1]);
        const bool adult = !part[2].empty();
        EXPECT_EQ(part[3], part[2] == "Meneer" || boys.contains(part[1]) ? "hij" : "zij");
        EXPECT_EQ(adult, e.made.variant == 1);
        EXPECT_EQ(e.words[1], "Geachte " + part[1] + ",");
        const auto interest = e.shown(2, R"(^We hebben ([\d.]+) euro rente op (uw|je) rekening bijgeschreven\.$)");
        const auto now = e.shown(3, R"(^Er staat nu ([\d.]+) euro op (uw|je) rekening\.$)");
        EXPECT_EQ(interest[2], adult ? "uw" : "je");
        EXPECT_EQ(now[2], interest[2]);

        const double before = whole(now[1]) - whole(interest[1]);
        EXPECT_TRUE(adult ? before >= 1000 && before <= 8900 : before >= 100 && before <= 800) << before;
        EXPECT_EQ(whole(e.right) * before, whole(interest[1]) * 100);
        EXPECT_EQ(e.last, "Het goede percentage is inderdaad " + e.right + ".");
        check_sums(e.explanation, 2);
    });
    EXPECT_EQ(names.size(), 20U);
}

TEST(percentages, a_fraction_says_as_much_as_the_percentage) {
    std::set<int> percentages;
    each(B_alcohol_01_08_Click, [&](const seen& e) {
        const auto part = e.asked(R"(' (\d+) % van (\d+) ')");
        const int percent = whole(part[1]);
        percentages.insert(percent);
        EXPECT_TRUE(e.words[4].ends_with("bijna " + part[1] + " % van " + part[2]));
        EXPECT_EQ(percent * whole(part[2]) % 100, 0) << "parts of drivers";
        for (int i = 1; i <= 4; ++i) {
            std::smatch of;
            const std::string answer = e.answer(i);
            const bool of_them = std::regex_match(answer, of, std::regex(R"((\d+/\d+) (?:x|van) (\d+))"));
            EXPECT_EQ(of_them && fraction(of[1]) == (breuk{percent, 100}), i == e.right_place()) << answer;
            if (i == e.right_place()) continue;
            EXPECT_EQ(told_of(e, i, "delen door dat percentage"), answer == part[2] + " : " + part[1]);
            EXPECT_EQ(told_of(e, i, "vermenigvuldigen met dat percentage"), answer == part[2] + " x " + part[1]);
            EXPECT_EQ(told_of(e, i, "verkeerde breuk"), of_them);
        }
        const auto told =
            e.told(R"((\d+)/100 vereenvoudigen tot (\d+)/(\d+), want je kunt teller en noemer door (\d+) delen)");
        EXPECT_EQ(whole(told[2]) * whole(told[4]), whole(told[1]));
        EXPECT_EQ(whole(told[3]) * whole(told[4]), 100);
        EXPECT_TRUE(e.right.starts_with(told[2] + "/" + told[3] + " "));
    });
    EXPECT_EQ(percentages, (std::set{2, 4, 5, 15, 20, 25, 40, 50}));
}

TEST(percentages, one_pie_alone_has_the_parts_of_the_legend) {
    std::map<int, std::set<std::string>> peoples;
    each(L_bevolking_01_08_click, [&](const seen& e) {
        std::map<kleur, double> legend; // degrees by colour
        ASSERT_EQ(e.blocks.size(), 4U);
        for (std::size_t i = 0; i < 4; ++i) {
            const text_op &group = e.texts[4 + 2 * i], &percent = e.texts[5 + 2 * i];
            const box_op& mark = e.blocks[i];
            EXPECT_TRUE(mark.x + mark.width <= group.x && group.x < percent.x && group.y == percent.y);
            EXPECT_TRUE(mark.y > group.y && mark.y < group.y + text_height(group.size));
            legend[mark.pen.colour] = whole(percent.text) * 3.6;
            peoples[e.made.variant].insert(group.text);
        }
        std::map<int, std::map<kleur, double>> pies; // by their centres
        double end = 0;
        for (const drawing_op& operation : e.made.plaatje.operations())
            if (const auto* sector = std::get_if<circle_op>(&operation); sector != nullptr && sector->filled) {
                auto& pie = pies[sector->centre.x];
                EXPECT_TRUE(pie.empty() || same(end, sector->start)) << "a gap, or slices over one another";
                end = sector->start + sector->sweep;
                pie[sector->pen.colour] = sector->sweep;
            }
        ASSERT_EQ(pies.size(), 4U);
        const auto has = [](const std::map<kleur, double>& pie, double sweep) {
            return std::ranges::any_of(pie, [&](const auto& slice) { return same(slice.second, sweep); });
        };
        for (std::size_t i = 0; const auto& [centre, pie] : pies) {
            const text_op& label = e.texts[i++];
            const int number = whole(label.text);
            EXPECT_LT(std::abs(label.x - centre), 100);
            const bool fits = std::ranges::equal(legend, pie, [](const auto& part, const auto& slice) {
                return part.first == slice.first && same(part.second, slice.second);
            });
            EXPECT_EQ(e.answer(number), "nummer " + std::to_string(number));
            EXPECT_EQ(fits, number == e.right_place());
            if (fits) continue;
            EXPECT_EQ(told_of(e, number, "halve cirkel?"), !has(pie, 180));
            EXPECT_EQ(told_of(e, number, "kwart cirkel?"), has(pie, 180) && !has(pie, 90));
            EXPECT_EQ(told_of(e, number, "18 % hoort bij"), has(pie, 180) && has(pie, 90));
        }
        EXPECT_EQ(e.last, "Het goede antwoord is dus " + e.right + ".");
    });
    EXPECT_EQ(peoples.size(), 10U);
    for (const auto& [place, groups] : peoples) EXPECT_EQ(groups.size(), 4U) << place;
}

TEST(percentages, the_strips_of_the_lawn_are_counted) {
    each(B_grasveld_01_08_click, [](const seen& e) {
        const double mown = double(e.of_colour(lichtgroen)), rest = double(e.of_colour(groen)), all = mown + rest;
        EXPECT_EQ(all, double(e.blocks.size()));
        for (const box_op& strip : e.blocks)
            EXPECT_EQ(strip.width * strip.height, e.blocks[0].width * e.blocks[0].height);
        const bool ask_mown = e.question.ends_with("Hoeveel procent is al gemaaid? ");
        EXPECT_NE(ask_mown, e.question.ends_with("Hoeveel procent moet nog gemaaid worden? "));
        const double done = mown * 100 / all, to_do = rest * 100 / all;
        EXPECT_EQ(e.numbers(), ask_mown ? (numbers{done, rest, to_do, mown}) : (numbers{to_do, rest, done, mown}));
        EXPECT_TRUE(told_of(e, 2, "gemaaid moeten worden"));
        EXPECT_TRUE(told_of(e, 3, ask_mown ? "nog gedaan moet" : "al gedaan is") && told_of(e, 4, "aantal gemaaide"));
        const auto told =
            e.told(R"(Er zijn (\d+) baantjes .*Hiervan (is|zijn) er al (\d+) gedaan, dat is dus (\d+)/(\d+) van)");
        EXPECT_EQ((std::vector<double>{decimal(told[1]), decimal(told[3]), decimal(told[4]), decimal(told[5])}),
                  (std::vector{all, mown, mown, all}));
        EXPECT_EQ(told[2] == "is", mown == 1);
        check_sums(e.explanation, ask_mown ? 0 : 1);
    });
}

} // namespace
} // namespace cijferwerf
