// One exercise: the record that a generator fills, the picture box that it draws on, and the verbs that it does so
// with. It shows nothing and checks no answers; the practice screen does. The numbers and words are the generators'
// own.
//
// Every generator reads in the same order: variant, draws, picture, question, answers with their feedback, explanation.
#pragma once

#include "generators/gedeeld/keuze.h"
#include "generators/gedeeld/kleuren.h"
#include "runtime/control.h"
#include "runtime/number_text.h"
#include "runtime/random_draws.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cijferwerf {

// Seven lines of text; a single blank is an empty line.
using tekstregels = std::array<plakregel, 7>;

inline constexpr char leeg[] = " ";

// Whether no two of these values are equal.
template<class Value, std::size_t N>
constexpr bool alle_verschillend(const std::array<Value, N>& values) {
    for (auto one = values.begin(); one != values.end(); ++one)
        if (std::find(values.begin(), one, *one) != one) return false;
    return true;
}

class oefening {
public:
    explicit oefening(std::function<float()> clock) : toeval(std::move(clock)) { maak_leeg(); }

    tekstregels vraagregels, uitlegregels, tipregels_1, tipregels_2, foutregels_2, foutregels_3, foutregels_4,
        uitlegopdrachten;
    plakregel antwoord_1, antwoord_2, antwoord_3, antwoord_4;
    int juiste_positie = 0; // 0: answer 1 is right and the four are shuffled; 1 to 4: shown in order, this one is right
    plakregel hulpmiddel;   // "REKENMACHINE" or " "
    int tijdlimiet = 0;     // ticks; 0: no limit
    int variant = 0;        // counts the presentations; each generator wraps it to its own number of sub-variants
    picture_box plaatje;
    random_draws toeval;

protected:
    void maak_leeg(); // the whole record, not the picture box and not the variant

    // ---- variant and draws ----

    // Wraps the variant counter: past this number it starts again at 1.
    void kies_variant(int aantal) {
        if (variant > aantal) variant = 1;
    }
    void zaai() { toeval.seed(); }
    // 0 to n - 1.
    int trek(int n) { return toeval.below(n); }
    // From first to last, in steps: trek_van(5, 65, 5) is 5, 10, ..., 65.
    int trek_van(int first, int last, int step = 1) { return first + trek((last - first) / step + 1) * step; }
    bool kop() { return toeval.coin(); }
    template<class List>
    const auto& kies(const List& list) {
        return list[static_cast<std::size_t>(trek(static_cast<int>(std::size(list))))];
    }
    // Element n of a list, counted from 1 as sub-variants and places are; outside the list ends the run.
    template<class List>
    static auto& rij(List& list, int n) {
        if (n < 1 || n > static_cast<int>(std::size(list))) stop_run("no row " + std::to_string(n));
        return list[static_cast<std::size_t>(n - 1)];
    }
    // The result of the first draw that fits; the draw is meant to fit nearly always at once.
    template<class Draw, class Fits>
    auto trek_tot(Draw draw, Fits fits) {
        for (int tries = 0; tries < 10'000; ++tries)
            if (auto drawn = draw(); fits(drawn)) return drawn;
        stop_run("an exercise found no draw that fits its condition");
    }
    // The list in random order; so that its first few are different picks.
    template<class List>
    List geschud(List list) {
        for (std::size_t left = std::size(list); left > 1; --left)
            std::swap(list[left - 1], list[static_cast<std::size_t>(trek(static_cast<int>(left)))]);
        return list;
    }

    // ---- lines ----

    // Glues a line for this exercise only; in other respects it is the regel() of everyone.
    template<line_part... Parts>
    static plakregel regel(const Parts&... parts) {
        return plak_even({regeldeel(parts)...});
    }
    template<std::convertible_to<plakregel> Text>
    static plakregel regel(const Text& text) {
        return text;
    }

    // ---- picture ----

    // A board: its ground, and the colour and size (points) of what is printed on it.
    void bord(kleur ground, kleur text, double size);
    // Prints a line glued from texts and numbers with its top-left corner at (x, y).
    template<line_part... Parts>
    void druk(int x, int y, const Parts&... parts) {
        plaatje.print_at(x, y, regel(parts...));
    }
    // The same with its middle at x.
    template<line_part... Parts>
    void druk_midden(int x, int y, const Parts&... parts) {
        plaatje.print_centred(x, y, regel(parts...));
    }
    // The same with its right end at x.
    template<line_part... Parts>
    void druk_rechts(int x, int y, const Parts&... parts) {
        plaatje.print_right(x, y, regel(parts...));
    }

    // The same with powers, at (x, y): the digits after each "^" are small and raised. Returns its right end.
    int druk_machten(int x, int y, std::string_view text);

    // The board of a quick exercise, and its limit. Of the picture y 1100 to 1450 is kept free for the bar that counts
    // the time, and the place from (1800, 1500) on for what is said when it is up; the practice screen draws both.
    void snel_bord(int ticks, double size);
    // The same with one sum in large type in its usual place.
    template<line_part... Parts>
    void snel_som(int ticks, const Parts&... parts) {
        toon_snelle_som(ticks, regel(parts...));
    }

    // ---- texts ----

    // The question, from its second line on (the first always stays empty): at most six lines.
    template<class... Lines>
    void vraag(const Lines&... lines) {
        static_assert(sizeof...(Lines) <= 6);
        schrijf(vraagregels, 1, {plakregel(lines)...});
    }
    template<class... Lines>
    void tip_1(const Lines&... lines) {
        static_assert(sizeof...(Lines) <= 6);
        schrijf(tipregels_1, 0, {plakregel(lines)...});
    }
    template<class... Lines>
    void tip_2(const Lines&... lines) {
        static_assert(sizeof...(Lines) <= 6);
        schrijf(tipregels_2, 0, {plakregel(lines)...});
    }
    template<class... Lines>
    void uitleg(const Lines&... lines) {
        static_assert(sizeof...(Lines) <= 6);
        schrijf(uitlegregels, 0, {plakregel(lines)...});
    }
    // One more drawing command of the explanation, or several; an empty line is none. There are at most seven in all:
    // an eighth ends the run.
    void opdracht(plakregel line);
    template<class... Lines>
    void opdrachten(const Lines&... lines) {
        static_assert(sizeof...(Lines) <= 7);
        (opdracht(lines), ...);
    }

    // Draws a sum in the board's colour so that it ends a blank before (x, y), where the explanation prints the answer
    // in this colour. Powers in the sum are written "3^2". Its size is so many points.
    template<line_part Text>
    void som_met_antwoord(int x, int y, kleur in, int punten, std::string_view som, const Text& antwoord) {
        druk_som_met_antwoord(x, y, in, punten, som, regel(antwoord));
    }
    // Prints dots from (x, y) on in the board's colour and size (whole points), in the middle of as much room as they
    // or the answer need; the picture's x then lies behind it. The explanation wipes the dots out with the board's
    // ground and prints the answer in their place, in this colour. Two commands.
    template<line_part Text>
    void antwoord_over_stippen(int x, int y, kleur in, std::string_view stippen, const Text& antwoord) {
        druk_antwoord_over_stippen(x, y, in, stippen, regel(antwoord));
    }

    // ---- answers, each beside the feedback for the mistake that it stands for ----

    // The right answer, where the four are shuffled.
    template<line_part Text>
    void goed(const Text& text) {
        antwoord_1 = regel(text);
    }
    // The next wrong answer; three in all, a fourth ends the run.
    template<line_part Text, class... Lines>
    void fout(const Text& text, const Lines&... feedback) {
        static_assert(sizeof...(Lines) <= 6);
        volgende_fout(regel(text), {plakregel(feedback)...});
    }

    // For answers with fixed places: the place, 1 to 4, of the right one. Say this first.
    void juist_op(int plaats) { juiste_positie = plaats; }
    // The answer at this place, with what the pupil is told when it is picked and wrong (at the right place the
    // feedback is left out).
    template<line_part Text, class... Lines>
    void op_plaats(int plaats, const Text& text, const Lines&... feedback) {
        static_assert(sizeof...(Lines) <= 6);
        zet_op_plaats(plaats, regel(text), {plakregel(feedback)...});
    }
    // Fixes the places of answers that were written with goed() and fout(): the right one stands at this place and
    // every button keeps the feedback of the answer that it shows.
    void leg_vast(int plaats);

    // The right answer and three of a list of mistakes, each {value, "feedback", ...}. What equals the right value or
    // an earlier mistake is passed over, and so is 0 or less where the right one is more. Which three is drawn: first
    // how many of them lie below the right one, all numbers that can be with equal chances. Fewer than three end the
    // run. A value becomes its answer by `vorm`.
    //
    //     drie_andere(prijs - korting, euro, {{prijs + korting, "Je hebt de korting erbij opgeteld."},
    //                                         {korting, "Je hebt alleen de korting berekend."}, ...});
    template<class Value, class Vorm, class List = std::initializer_list<keuze<Value>>>
    void drie_andere(const Value& juist, Vorm vorm, const List& vergissingen) {
        goed(vorm(juist));
        for (const keuze<Value>* k : kies_drie(juist, vergissingen)) fout_met(regel(vorm(k->waarde)), k->melding);
    }
    // The same four as options, the right one first, for kleurkeuze() and vier_rekenaars().
    template<class Value, class Vorm, class List = std::initializer_list<keuze<Value>>>
    std::array<keuze<>, 4> vier_opties(const Value& juist, Vorm vorm, const List& vergissingen) {
        const auto [een, twee, drie] = kies_drie(juist, vergissingen);
        const auto optie = [&vorm](const keuze<Value>* k) { return keuze<>{regel(vorm(k->waarde)), k->melding}; };
        return {keuze<>{regel(vorm(juist))}, optie(een), optie(twee), optie(drie)};
    }
    // The right answer and three near it, some steps away; where it stands among the four in size is drawn evenly.
    // Nothing is 0 or less.
    template<class Vorm = number_text (*)(long long)>
    void bijna(int juist, int stap = 1, Vorm vorm = tekst) {
        drie_andere(juist, vorm,
                    {{juist - 3 * stap},
                     {juist - 2 * stap},
                     {juist - stap},
                     {juist + stap},
                     {juist + 2 * stap},
                     {juist + 3 * stap}});
    }
    // Four answers in a row at fixed places, upward, the place of the right one drawn; none is below `kleinste`.
    template<class Vorm>
    void opeenvolgend(int juist, Vorm vorm, int stap = 1, int kleinste = 1) {
        juist_op(trek(std::clamp((juist - kleinste) / stap + 1, 1, 4)) + 1);
        for (int i = 1; i <= 4; ++i) op_plaats(i, vorm(juist + (i - juiste_positie) * stap));
    }

    // Four options on bars in these colours, each with the word of its colour in front, below one another from `plaats`
    // (top left) to the right edge of the picture; line after line is so much lower, and the type is the board's, or
    // smaller where that does not fit. The answers are the words, at fixed places. Give the right option first, then
    // the three wrong ones with their feedback: {"text", "feedback", ...}. In which place each stands is drawn. Powers
    // are written "3^2".
    template<class List = std::initializer_list<keuze<>>>
    void kleurkeuze(point plaats, int regelhoogte, const std::array<kleur, 4>& kleuren, const List& opties) {
        toon_kleurkeuze(plaats, regelhoogte, kleuren, verdeeld(std::span(std::data(opties), std::size(opties))));
    }
    // Four persons in this order below one another from `plaats` on, each with a written calculation behind the name,
    // all at one x. The answers are the names, without the dots at their end. The calculations are given, and
    // distributed, as the options of kleurkeuze().
    template<class List = std::initializer_list<keuze<>>>
    void vier_rekenaars(point plaats, int regelhoogte, const std::array<std::string_view, 4>& namen,
                        const List& rekeningen) {
        toon_opties(plaats, regelhoogte, 0, namen, verdeeld(std::span(std::data(rekeningen), std::size(rekeningen))),
                    nullptr);
    }

    // The text of the right answer without blanks around it, for the explanation.
    std::string_view juiste_antwoord() { return kaal(antwoord(juiste_positie == 0 ? 1 : juiste_positie)); }

    void met_rekenmachine() { hulpmiddel = "REKENMACHINE"; }

public:
    // Which answer string, 1 to 4, a button shows when the right one stands at this place (both 1 to 4). With the right
    // one at A the buttons show 1 2 3 4, at B 2 1 4 3, at C 3 4 1 2, at D 4 3 2 1.
    static constexpr int getoond_antwoord(int button, int right) { return ((button - 1) ^ (right - 1)) + 1; }

    plakregel& antwoord(int which);     // 1 to 4
    tekstregels& foutregels(int which); // 2 to 4

private:
    using vier_keuzes = std::array<const keuze<>*, 4>;

    // A mistake that can be offered: its place in the list, and whether it lies below the right answer.
    struct vergissing {
        std::size_t plek;
        bool lager;
    };
    template<class Value, class List>
    std::array<const keuze<Value>*, 3> kies_drie(const Value& juist, const List& vergissingen) {
        const keuze<Value>* const alle = std::data(vergissingen);
        std::array<vergissing, 32> andere;
        int aantal = 0;
        for (std::size_t plek = 0; plek < std::size(vergissingen); ++plek) {
            const Value& waarde = alle[plek].waarde;
            const bool komt_voor = std::any_of(andere.begin(), andere.begin() + aantal, [&](const vergissing& eerder) {
                return alle[eerder.plek].waarde == waarde;
            });
            if (!komt_voor && waarde != juist && (waarde > Value{} || !(juist > Value{})))
                rij(andere, ++aantal) = {plek, waarde < juist};
        }
        const auto [een, twee, drie] = trek_drie({andere.data(), static_cast<std::size_t>(aantal)});
        return {&alle[een], &alle[twee], &alle[drie]};
    }
    // Draws how many of three lie below the right answer, and which they are; shuffles the list.
    std::array<std::size_t, 3> trek_drie(std::span<vergissing> andere);
    void volgende_fout(plakregel text, std::initializer_list<plakregel> feedback);
    void zet_op_plaats(int plaats, plakregel text, std::initializer_list<plakregel> feedback);
    void fout_met(plakregel text, const melding& feedback);
    void toon_snelle_som(int ticks, std::string_view som);
    void druk_som_met_antwoord(int x, int y, kleur in, int punten, std::string_view som, std::string_view antwoord);
    void druk_antwoord_over_stippen(int x, int y, kleur in, std::string_view stippen, std::string_view antwoord);
    // Four options, the first of them right, in the order in which they will stand; sets the place of the right one.
    vier_keuzes verdeeld(std::span<const keuze<>> opties);
    // Draws each option behind its word, on a bar where there are bars, and makes the words the answers.
    void toon_opties(point plaats, int regelhoogte, int marge, const std::array<std::string_view, 4>& woorden,
                     const vier_keuzes& opties, const std::array<kleur, 4>* balken);
    void toon_kleurkeuze(point plaats, int regelhoogte, const std::array<kleur, 4>& kleuren, const vier_keuzes& opties);

    static void schrijf_melding(tekstregels& to, const melding& feedback);
    static void schrijf(tekstregels& to, std::size_t first, std::initializer_list<plakregel> lines);

    kladblok klad_;
};

} // namespace cijferwerf
