// The introduction screens: the way through them, what is said on them, and examples that follow one state.
#include "forms/introduction/infoscherm.h"

#include "tests/support/ink.h"
#include "tests/support/operation_text.h"
#include "tests/support/practising.h"
#include "tests/support/sums.h"

#include <set>

namespace cijferwerf {
namespace {

class introduction : public practising {
protected:
    void open_booklet(int booklet) { open(booklet_set, catalogue()[static_cast<std::size_t>(booklet - 1)].key); }
    infoscherm& page(int booklet, int number) { return forms.get<infoscherm>(zoek_inleiding(booklet)->boekje, number); }
    // Calls check(screen, booklet) on every introduction screen, as it is when it is opened.
    template<class Check>
    void on_every_page(Check check) {
        for (int booklet = 1; booklet <= 12; ++booklet) {
            if (zoek_inleiding(booklet) == nullptr) continue;
            open_booklet(booklet);
            pupil.click(screen.info);
            for (int number = 1; number <= infoscherm::aantal; ++number) {
                infoscherm& shown = page(booklet, number);
                SCOPED_TRACE(shown.name() + " " + shown.titel.caption);
                ASSERT_TRUE(shown.loaded());
                check(shown, booklet);
                pupil.click(shown.verder);
            }
        }
    }
    std::vector<std::string> loaded() {
        std::vector<std::string> names;
        for (form* each : pupil.shown)
            if (each->loaded() && std::ranges::find(names, each->name()) == names.end()) names.push_back(each->name());
        return names;
    }
};

// What an example shows: its words, its numbers, its drawing.
std::vector<std::string> shown_by(infoscherm& on) {
    std::vector<std::string> all = as_texts(on.bij().getekend());
    for (const control* each : on.bij().controls()) all.push_back(each->caption + (each->visible ? "" : " hidden"));
    all.push_back(on.bij().zin());
    return all;
}

int words_in(std::string_view text) {
    std::istringstream words{std::string(text)};
    return static_cast<int>(std::distance(std::istream_iterator<std::string>(words), {}));
}

TEST_F(introduction, leads_through_three_screens_and_back_and_leaves_the_practice_screen_as_it_was) {
    for (const bool keyboard : {false, true})
        for (int booklet = 1; booklet <= 12; ++booklet) {
            if (zoek_inleiding(booklet) == nullptr) continue;
            SCOPED_TRACE(booklet);
            open_booklet(booklet);
            pupil.pick(screen.presentatielijst, 0);
            answer_right();
            explain();
            const auto drawn = as_texts(screen.plaatje);
            const auto seen = [&] {
                std::vector<std::string> captions{std::to_string(forms.globalen.aantalvragengedaan),
                                                  std::to_string(screen.variant), screen.opschriftbalk.caption};
                for (const control* each : screen.controls()) captions.push_back(each->caption);
                return captions;
            };
            const auto before = seen();
            const std::string first = std::to_string(booklet == 8 ? 7 : booklet);
            const auto at = [&](int number) {
                std::vector<std::string> names{"mama"};
                if (number > 0) names.push_back("info" + std::to_string(number) + "_boekje" + first);
                EXPECT_EQ(loaded(), names);
                if (number > 0) {
                    EXPECT_EQ(page(booklet, number).opschriftbalk.caption, screen.opschriftbalk.caption);
                }
            };
            const auto go = [&](int from, bool on) {
                infoscherm& shown = page(booklet, from);
                EXPECT_TRUE(keyboard ? shown.key(on ? '\r' : '\x1b', on ? &shown.verder : nullptr)
                                     : pupil.click(on ? shown.verder : shown.terug));
            };
            pupil.click(screen.info);
            at(1);
            go(1, true), at(2);
            go(2, false), at(1);
            go(1, false), at(0);
            pupil.click(screen.info);
            go(1, true), go(2, true), at(3);
            EXPECT_EQ(page(booklet, 3).verder.caption, "sommen maken");
            go(3, false), at(2);
            go(2, true), go(3, true), at(0);
            EXPECT_EQ(pupil.shown.back(), &screen);
            EXPECT_EQ(screen.focus, &screen.presentatielijst);
            EXPECT_EQ(seen(), before);
            EXPECT_EQ(as_texts(screen.plaatje), drawn);
        }
}

TEST_F(introduction, is_opened_by_the_heading_of_a_booklet_alone) {
    for (const char* heading : {"", "TAAK", "BOEKJE ", "BOEKJE 0", "BOEKJE 13", "TAAK 11 - MACHTSVERHEFFEN"}) {
        screen.opschriftbalk.caption = heading;
        screen.info_click();
        EXPECT_EQ(loaded(), std::vector<std::string>{}) << heading;
    }
}

TEST_F(introduction, says_one_thing_in_fifty_words_that_fit) {
    std::set<std::string> titles;
    on_every_page([&](infoscherm& shown, int booklet) {
        EXPECT_EQ(titles.insert(shown.titel.caption).second, booklet != 8) << "said before";
        EXPECT_LE(bold_text_width(shown.titel.caption, shown.titel.font_size), shown.titel.width);
        int words = words_in(shown.lesje().kader.tekst);
        for (const std::string_view part : shown.lesje().alineas) words += words_in(part);
        EXPECT_LE(words, 50) << "words";
        EXPECT_GE(words, 20);
        for (label& line : shown.regels) {
            EXPECT_LE(text_width(line.caption, line.font_size, 1.0), line.width) << line.caption;
            EXPECT_LE(line.top + line.height, shown.kader.top) << line.caption;
        }
        for (label& line : shown.kaderregels)
            EXPECT_LE(text_width(line.caption, line.font_size, 1.0), line.width) << line.caption;
    });
}

// Every control lies on the panel, and none on another.
TEST_F(introduction, has_controls_that_can_be_reached) {
    on_every_page([&](infoscherm& shown, int) {
        const frame& panel = shown.voorbeeldvlak;
        std::vector<control*> pressed;
        for (control* each : shown.bij().controls()) {
            EXPECT_TRUE(each->left >= panel.left && each->top >= panel.top &&
                        each->left + each->width <= panel.left + panel.width &&
                        each->top + each->height <= panel.top + panel.height)
                << each->name << ' ' << each->caption;
            if (each->takes_clicks()) {
                EXPECT_FALSE(each->caption.empty() && each->accessible_name.empty()) << each->name;
                pressed.push_back(each);
            }
        }
        for (const control* a : pressed)
            for (const control* b : pressed)
                EXPECT_TRUE(a == b || a->left + a->width <= b->left || b->left + b->width <= a->left ||
                            a->top + a->height <= b->top || b->top + b->height <= a->top)
                    << a->name << a->caption << " and " << b->name << b->caption;
    });
}

// The sums that it writes out hold, and each number of its sentence is to be read on the panel too.
void check_numbers(infoscherm& on) {
    std::string read;
    for (const drawing_op& op : on.bij().getekend().operations())
        if (const auto* text = std::get_if<text_op>(&op)) {
            for (const std::string& wrong : check_sums(text->text).wrong) ADD_FAILURE() << wrong;
            read += ' ' + text->text + ' ';
        }
    for (const control* each : on.bij().controls()) read += ' ' + each->caption + ' ';
    const std::string& sentence = on.bij().zin();
    for (const std::string& wrong : check_sums(sentence).wrong) ADD_FAILURE() << wrong;
    const std::string digits = "0123456789";
    for (std::size_t at = sentence.find_first_of(digits); at != std::string::npos;
         at = sentence.find_first_of(digits, at)) {
        const std::size_t end = std::min(sentence.find_first_not_of(digits + ".,", at), sentence.size());
        std::string number = sentence.substr(at, end - at);
        while (number.back() == '.' || number.back() == ',') number.pop_back();
        EXPECT_NE(read.find(number), std::string::npos) << number << " of: " << sentence;
        at = end;
    }
}

// Each control is pressed until it gives up, or forty times; what a press did, its opposite undoes.
TEST_F(introduction, has_examples_that_answer_to_each_control_and_stay_legible) {
    on_every_page([&](infoscherm& shown, int) {
        const auto check = [&] {
            const drawing& drawn = shown.bij().getekend();
            const auto strips = std::ranges::count(shown.bij().controls(), control_kind::picture_box, &control::kind);
            const std::vector<ink> words = visible_words(drawn);
            for (const ink& word : words) {
                EXPECT_TRUE(
                    word.within(0, 0, drawing::inner_width, static_cast<double>(strips) * drawing::inner_height))
                    << word.word << " is outside; " << shown.bij().zin();
                for (const ink& other : words)
                    EXPECT_TRUE(&word == &other || !word.meets(other))
                        << word.word << " over " << other.word << "; " << shown.bij().zin();
            }
            for (const control* each : shown.bij().controls()) {
                if (each->kind != control_kind::label) continue;
                EXPECT_LE(bold_text_width(each->caption, each->font_size), each->width) << each->caption;
            }
            EXPECT_FALSE(shown.bij().zin().empty());
            check_numbers(shown);
        };
        check();
        for (control* each : shown.bij().controls()) {
            if (!each->takes_clicks() || HasFailure()) continue;
            for (int i = 0; i < 40 && each->usable() && !HasFailure(); ++i) {
                const auto before = shown_by(shown);
                ASSERT_TRUE(pupil.click(*each));
                check();
                EXPECT_EQ(shown.announcement, shown.bij().zin());
                EXPECT_TRUE(each->role != theme_role::stepper || shown_by(shown) != before) << each->caption;
            }
        }
    });
}

} // namespace
} // namespace cijferwerf
