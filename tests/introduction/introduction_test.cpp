// The introduction screens: the way through them, what is said on them, and examples that follow one state.
#include "forms/introduction/infoscherm.h"

#include "tests/support/ink.h"
#include "tests/support/operation_text.h"
#include "tests/support/practising.h"
#include "tests/support/seen.h"
#include "tests/support/sums.h"

#include <regex>
#include <set>

namespace cijferwerf {
namespace {

class introduction : public practising {
protected:
    infoscherm& page(int booklet, int number) { return forms.get<infoscherm>(zoek_inleiding(booklet)->boekje, number); }
    void open_booklet(int booklet) { open(booklet_set, catalogue()[static_cast<std::size_t>(booklet - 1)].key); }
};

// What is to be seen of a form, or of an example: its words, its numbers, its drawing.
std::vector<std::string> shown_by(const std::vector<control*>& controls, const drawing& drawn) {
    std::vector<std::string> all = as_texts(drawn);
    for (const control* each : controls) all.push_back(each->caption);
    return all;
}

place place_of(const control& shown) { return {shown.left, shown.top, shown.width, shown.height}; }
bool apart(const place& a, const place& b) {
    return a.right() <= b.left || b.right() <= a.left || a.bottom() <= b.top || b.bottom() <= a.top;
}

TEST_F(introduction, leads_through_three_screens_and_back_and_leaves_the_practice_screen_as_it_was) {
    for (int booklet = 1; booklet <= 12; ++booklet) {
        SCOPED_TRACE(booklet);
        open_booklet(booklet);
        solve(screen.presentatielijst.items[0], 0);
        const auto before = shown_by(screen.controls(), screen.plaatje);
        int at = 0; // the screen of the set, or the practice screen
        for (const char step : std::string_view(">+-->++-++")) {
            if (step == '>')
                pupil.click(screen.info);
            else if (infoscherm& shown = page(booklet, at); booklet % 2 == 0)
                EXPECT_TRUE(shown.key(step == '+' ? '\r' : '\x1b', step == '+' ? &shown.verder : nullptr));
            else
                EXPECT_TRUE(pupil.click(step == '+' ? shown.verder : shown.terug));
            at = (at + (step == '-' ? -1 : 1)) % 4;
            for (int number = 1; number <= infoscherm::aantal; ++number)
                EXPECT_EQ(page(booklet, number).loaded(), number == at);
        }
        EXPECT_EQ(pupil.shown.back(), &screen);
        EXPECT_EQ(screen.focus, &screen.presentatielijst);
        EXPECT_EQ(shown_by(screen.controls(), screen.plaatje), before);
    }
}

// It says one thing in fifty words that fit.
void check_lesson(const infoscherm& on) {
    std::string said(on.lesje().kader.tekst);
    for (const std::string_view part : on.lesje().alineas) said.append(part.empty() ? "" : " ").append(part);
    const auto words = 1 + std::ranges::count(said, ' ');
    EXPECT_TRUE(words >= 20 && words <= 50) << words;
    EXPECT_LE(bold_text_width(on.titel.caption, on.titel.font_size), on.titel.width);
    for (const control* line : on.controls()) {
        if (line->role != theme_role::lesson_text) continue;
        EXPECT_LE(text_width(line->caption, line->font_size, 1.0), line->width) << line->caption;
        EXPECT_NE(place_of(on.kader).contains(place_of(*line)), line->name == "regels") << line->caption;
    }
}

// Every control of its example lies on the panel, and none that is pressed or read on another; one option is chosen.
void check_controls(infoscherm& on) {
    const auto& all = on.bij().controls();
    EXPECT_LE(std::ranges::count_if(all,
                                    [](const control* each) {
                                        return each->kind == control_kind::option_button &&
                                               static_cast<const option_button*>(each)->selected;
                                    }),
              1);
    for (const control* a : all) {
        EXPECT_TRUE(place_of(on.voorbeeldvlak).contains(place_of(*a))) << a->name << ' ' << a->caption;
        EXPECT_FALSE(a->takes_clicks() && a->caption.empty() && a->accessible_name.empty()) << a->name;
        for (const control* b : all)
            EXPECT_TRUE(a == b || a->kind == control_kind::picture_box || b->kind == control_kind::picture_box ||
                        apart(place_of(*a), place_of(*b)))
                << a->name << a->caption << " and " << b->name << b->caption;
    }
}

// The sums that it writes out hold, and each number of its sentence is to be read on the panel too.
void check_numbers(infoscherm& on) {
    const std::string& sentence = on.bij().zin();
    std::vector<std::string> read{sentence};
    for (const text_op& text : all<text_op>(on.bij().getekend())) read.emplace_back(text.text);
    for (const control* each : on.bij().controls()) read.push_back(each->caption);
    for (const std::string& text : read)
        for (const std::string& wrong : check_sums(text).wrong) ADD_FAILURE() << wrong;
    static const std::regex number(R"(\d[\d.,]*\d|\d)");
    for (std::sregex_iterator at(sentence.begin(), sentence.end(), number), end; at != end; ++at)
        EXPECT_TRUE(std::any_of(read.begin() + 1, read.end(),
                                [&](const std::string& text) { return text.find(at->str()) != std::string::npos; }))
            << at->str() << " of: " << sentence;
}

// What it writes is all legible: within the drawing, not under a control and not under other words; what a control
// says fits on it.
void check_words(infoscherm& on) {
    const drawing& drawn = on.bij().getekend();
    const auto& controls = on.bij().controls();
    const control& sheet = *controls.front();
    const double unit = 1.0 * sheet.width / drawing::inner_width;
    const std::vector<ink> words = visible_words(drawn);
    SCOPED_TRACE(on.bij().zin());
    for (const ink& word : words) {
        EXPECT_TRUE(word.within(0, 0, drawing::inner_width, drawn.full_height)) << word.word << " is outside";
        for (const ink& other : words)
            EXPECT_TRUE(&word == &other || !word.meets(other)) << word.word << " over " << other.word;
        const place seen{sheet.left + static_cast<int>(word.left * unit), sheet.top + static_cast<int>(word.top * unit),
                         static_cast<int>((word.right - word.left) * unit),
                         static_cast<int>((word.bottom - word.top) * unit)};
        for (const control* each : controls)
            EXPECT_TRUE(each == &sheet || each->role == theme_role::cell || apart(seen, place_of(*each)))
                << word.word << " under " << each->name;
    }
    for (const control* each : controls)
        EXPECT_TRUE(each->kind != control_kind::label || bold_text_width(each->caption, each->font_size) <= each->width)
            << each->caption;
}

// Each control is pressed until it gives up, or forty times.
TEST_F(introduction, says_something_new_on_each_screen_with_an_example_that_answers_and_stays_legible) {
    std::set<std::string> titles;
    for (int booklet = 1; booklet <= 12; ++booklet) {
        open_booklet(booklet);
        pupil.click(screen.info);
        for (int number = 1; number <= infoscherm::aantal; ++number) {
            infoscherm& shown = page(booklet, number);
            SCOPED_TRACE(shown.name() + " " + shown.titel.caption);
            EXPECT_EQ(titles.insert(shown.titel.caption).second, booklet != 8) << "said before";
            EXPECT_EQ(shown.opschriftbalk.caption, screen.opschriftbalk.caption);
            EXPECT_EQ(shown.verder.caption, number == 3 ? "sommen maken" : "verder");
            check_lesson(shown);
            check_controls(shown);
            voorbeeld& example = shown.bij();
            for (control* each : example.controls())
                for (int i = 0; i < 40 && !HasFailure(); ++i) {
                    check_words(shown);
                    check_numbers(shown);
                    const auto before = shown_by(example.controls(), example.getekend());
                    if (!pupil.click(*each)) break;
                    EXPECT_EQ(shown.announcement, example.zin());
                    EXPECT_TRUE(each->role != theme_role::stepper ||
                                shown_by(example.controls(), example.getekend()) != before)
                        << each->caption;
                }
            pupil.click(shown.verder);
        }
    }
}

} // namespace
} // namespace cijferwerf
