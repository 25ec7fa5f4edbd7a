// One exercise: the record that a generator fills, the picture box that it draws on, and the verbs that it does so
// with. It shows nothing and checks no answers; the practice screen does. The numbers and words are the generators'
// own.
//
// Every generator reads in the same order: variant, draws, picture, question, answers with their feedback, explanation.
#pragma once

#include "runtime/control.h"
#include "runtime/number_text.h"
#include "runtime/random_draws.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace cijferwerf {

// Seven lines of text; a single blank is an empty line.
using tekstregels = std::array<std::string, 7>;

inline constexpr std::string_view leeg = " ";

class oefening {
public:
    explicit oefening(std::function<float()> clock) : toeval(std::move(clock)) { maak_leeg(); }

    tekstregels vraagregels, uitlegregels, tipregels_1, tipregels_2, foutregels_2, foutregels_3, foutregels_4,
        uitlegopdrachten;
    std::string antwoord_1, antwoord_2, antwoord_3, antwoord_4;
    int juiste_positie = 0; // 0: answer 1 is right and the four are shuffled; 1 to 4: shown in order, this one is right
    std::string hulpmiddel; // "REKENMACHINE" or " "
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
    bool munt() { return toeval.coin(); }
    template<class List>
    const auto& kies(const List& list) {
        return list[static_cast<std::size_t>(trek(static_cast<int>(std::size(list))))];
    }
    // Element n of a list, counted from 1 as sub-variants and places are; outside the list ends the run.
    template<class List>
    static auto& rij(List& list, int n) {
        if (n < 1 || n > static_cast<int>(std::size(list))) throw checked_error("no row " + std::to_string(n));
        return list[static_cast<std::size_t>(n - 1)];
    }
    // The result of the first draw that fits; the draw is meant to fit nearly always at once.
    template<class Draw, class Fits>
    auto trek_tot(Draw draw, Fits fits) {
        for (int tries = 0; tries < 10'000; ++tries)
            if (auto drawn = draw(); fits(drawn)) return drawn;
        throw checked_error("an exercise found no draw that fits its condition");
    }
    // The list in random order; so that its first few are different picks.
    template<class List>
    List geschud(List list) {
        for (std::size_t left = std::size(list); left > 1; --left)
            std::swap(list[left - 1], list[static_cast<std::size_t>(trek(static_cast<int>(left)))]);
        return list;
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

    // ---- texts ----

    // The question, from its second line on (the first always stays empty): at most six lines.
    template<class... Lines>
    void vraag(Lines&&... lines) {
        static_assert(sizeof...(Lines) <= 6);
        schrijf(vraagregels, 1, std::forward<Lines>(lines)...);
    }
    template<class... Lines>
    void tip_1(Lines&&... lines) {
        static_assert(sizeof...(Lines) <= 6);
        schrijf(tipregels_1, 0, std::forward<Lines>(lines)...);
    }
    template<class... Lines>
    void tip_2(Lines&&... lines) {
        static_assert(sizeof...(Lines) <= 6);
        schrijf(tipregels_2, 0, std::forward<Lines>(lines)...);
    }
    template<class... Lines>
    void uitleg(Lines&&... lines) {
        static_assert(sizeof...(Lines) <= 6);
        schrijf(uitlegregels, 0, std::forward<Lines>(lines)...);
    }
    // The drawing commands of the explanation: at most seven.
    template<class... Lines>
    void opdrachten(Lines&&... lines) {
        static_assert(sizeof...(Lines) <= 7);
        schrijf(uitlegopdrachten, 0, std::forward<Lines>(lines)...);
    }

    // ---- answers, each beside the feedback for the mistake that it stands for ----

    // The right answer, where the four are shuffled.
    template<line_part Text>
    void goed(const Text& text) {
        antwoord_1 = regel(text);
    }
    // The next wrong answer; three in all.
    template<line_part Text, class... Lines>
    void fout(const Text& text, Lines&&... feedback) {
        static_assert(sizeof...(Lines) <= 6);
        const int which = antwoord_2.empty() ? 2 : antwoord_3.empty() ? 3 : 4;
        antwoord(which) = regel(text);
        schrijf(foutregels(which), 0, std::forward<Lines>(feedback)...);
    }

    // For answers with fixed places: the place, 1 to 4, of the right one. Say this first.
    void juist_op(int plaats) { juiste_positie = plaats; }
    // The answer at this place, with what the pupil is told when it is picked and wrong (at the right place the
    // feedback is left out).
    template<line_part Text, class... Lines>
    void op_plaats(int plaats, const Text& text, Lines&&... feedback) {
        static_assert(sizeof...(Lines) <= 6);
        antwoord(plaats) = regel(text);
        if (plaats != juiste_positie)
            schrijf(foutregels(getoond_antwoord(plaats, juiste_positie)), 0, std::forward<Lines>(feedback)...);
    }
    // Fixes the places of answers that were written with goed() and fout(): the right one stands at this place and
    // every button keeps the feedback of the answer that it shows.
    void leg_vast(int plaats);

    void snel(int ticks) { tijdlimiet = ticks; }
    void met_rekenmachine() { hulpmiddel = "REKENMACHINE"; }

public:
    // Which answer string, 1 to 4, a button shows when the right one stands at this place (both 1 to 4). With the right
    // one at A the buttons show 1 2 3 4, at B 2 1 4 3, at C 3 4 1 2, at D 4 3 2 1.
    static constexpr int getoond_antwoord(int button, int right) { return ((button - 1) ^ (right - 1)) + 1; }

    std::string& antwoord(int which);   // 1 to 4
    tekstregels& foutregels(int which); // 2 to 4

private:
    template<class... Lines>
    static void schrijf(tekstregels& to, std::size_t first, Lines&&... lines) {
        [[maybe_unused]] const auto put = [&](auto&& line) { to[first++] = std::forward<decltype(line)>(line); };
        (put(std::forward<Lines>(lines)), ...);
    }
};

} // namespace cijferwerf
