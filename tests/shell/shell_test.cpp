// From the start to the practice screen: the choice of a set, the credits, the menus, and the ways to stop.
#include "forms/introduction/infoscherm.h"
#include "forms/shell/achtergrond.h"
#include "forms/shell/codering.h"
#include "forms/shell/colofon.h"
#include "forms/shell/menu.h"

#include "tests/support/operation_text.h"
#include "tests/support/practising.h"

#include <set>

namespace cijferwerf {
namespace {

class shell : public practising {
protected:
    struct course {
        std::string_view set, kind;
        option_button& choice;
        colofon& credits;
        menu& from;
        std::vector<button*> entries;
    };
    shell() {
        for (button& entry : cl.boekje) courses[0].entries.push_back(&entry);
        for (button& entry : sw.plaatje) courses[1].entries.push_back(&entry);
    }
    void open_menu(const course& of) {
        EXPECT_FALSE(start.CLgekozen.selected || start.SWgekozen.selected) << "the choice before is no choice now";
        pupil.click(of.choice);
        pupil.click(start.verder);
        EXPECT_EQ(on_screen(), of.credits.name());
        pupil.click(of.credits.klik);
        EXPECT_EQ(on_screen(), of.from.name());
    }
    std::string on_screen() {
        std::string loaded;
        for (form* each : all)
            if (each->loaded()) loaded += each->name();
        return loaded;
    }

    codering& start = forms.get<codering>();
    menucl& cl = forms.get<menucl>();
    menusw& sw = forms.get<menusw>();
    course courses[2]{{"TELMORA's CIJFERLOOP", "boekje", start.CLgekozen, forms.get<colofoncl>(), cl, {}},
                      {"SOMMENWERF", "taak", start.SWgekozen, forms.get<colofonsw>(), sw, {}}};
    form* all[7]{&start, &cl, &sw, &screen, &courses[0].credits, &courses[1].credits, &forms.get<infoscherm>(1, 1)};
};

TEST_F(shell, goes_from_the_background_form_past_a_choice_and_credits_to_every_entry_and_back) {
    auto& background = forms.get<achtergrond>();
    background.open();
    pupil.wait(900);
    EXPECT_EQ(on_screen(), "");
    pupil.wait(200);
    EXPECT_EQ(on_screen(), "codering");
    pupil.click(start.verder); // without a choice
    ASSERT_EQ(pupil.boxes.size(), 1U);
    EXPECT_EQ(pupil.boxes[0].text + '|' + pupil.boxes[0].title, "Maak een keuze...|Cijferwerf");
    EXPECT_EQ(pupil.boxes[0].buttons, box_buttons::ok);
    for (const int none : {-1, 0, 13}) cl.boekje_click(none);
    EXPECT_EQ(on_screen() + forms.globalen.gekozen_onderdeel, "codering");

    for (const course& each : courses)
        for (int i = 1; button * entry : each.entries) {
            SCOPED_TRACE(entry->caption);
            const bool booklets = &each.from == &cl, review = !booklets && i % 5 == 0;
            open_menu(each);
            pupil.click(*entry);
            EXPECT_EQ(on_screen(), "mama");
            EXPECT_EQ(forms.globalen.gekozen_pakket, each.set);
            EXPECT_EQ(forms.globalen.gekozen_onderdeel, regel(each.kind, i < 10 ? "0" : "", kaal(i)));
            EXPECT_EQ(entry->caption, zoek_lijst(each.set, forms.globalen.gekozen_onderdeel)->heading);
            EXPECT_EQ(screen.opschriftbalk.caption, entry->caption);
            EXPECT_EQ(screen.caption, each.set);
            EXPECT_EQ(screen.info.visible, booklets);
            EXPECT_EQ(screen.info.enabled, !review);
            EXPECT_FALSE(screen.presentatielijst.items.empty());
            pupil.click(screen.terug);
            EXPECT_EQ(on_screen(), each.from.name());
            pupil.click(each.from.terug);
            EXPECT_EQ(on_screen(), "codering");
            ++i;
        }
    EXPECT_EQ(sw.caption, "DEEL 1 EN 2, SOMMENWERF");
    start.unload();
    pupil.wait(5000);
    EXPECT_FALSE(start.loaded()) << "the background form brings it up once";
}

TEST_F(shell, closing_a_window_or_stopping_asks_first) {
    start.open();
    open_menu(courses[0]);
    std::vector<std::function<void()>> ways;
    for (form* each : all) ways.push_back([=, this] { pupil.close(*each); });
    for (button* each : {&start.stoppen, &cl.stoppen, &sw.stoppen}) ways.push_back([=, this] { pupil.click(*each); });
    for (const auto& way : ways)
        for (const bool sure : {false, true}) {
            pupil.ended = false;
            pupil.boxes.clear();
            pupil.answers = {sure ? box_answer::yes : box_answer::no};
            way();
            ASSERT_EQ(pupil.boxes.size(), 1U);
            EXPECT_EQ(pupil.boxes[0].text, "Wil je echt stoppen?");
            EXPECT_EQ(pupil.boxes[0].buttons, box_buttons::yes_no);
            EXPECT_EQ(pupil.ended, sure);
            EXPECT_EQ(on_screen(), "menucl");
        }
    pupil.ended = false;
    pupil.answers = {box_answer::yes};
    pupil.run([this] { cl.bevestig_stoppen(); });
    EXPECT_TRUE(pupil.boxes.size() == 2 && !pupil.ended) << "the booklet menu's own question ends nothing";
    pupil.close(forms.get<achtergrond>());
    EXPECT_TRUE(pupil.boxes.size() == 2 && pupil.ended) << "the background form ends without asking";
}

// ---- what the menus look like ----

TEST_F(shell, arrow_keys_follow_the_grid_and_stop_at_its_edge) {
    constexpr int nowhere = 0;
    const struct {
        int on, from;
        char key;
        int to;
    } rows[]{{0, 1, keys::right, 2}, {0, 3, keys::right, nowhere}, {0, 1, keys::down, 4},  {0, 10, keys::down, nowhere},
             {0, 5, keys::up, 2},    {0, 4, keys::left, nowhere},  {0, 7, keys::home, 1},  {0, 7, keys::end, 12},
             {1, 3, keys::down, 8},  {1, 8, keys::down, 13},       {1, 13, keys::left, 12}};
    for (const auto& [on, from, key, to] : rows) {
        const course& of = courses[on];
        const auto entry = [&](int i) {
            return i == nowhere ? nullptr : of.entries.at(static_cast<std::size_t>(i - 1));
        };
        of.from.focus = nullptr;
        EXPECT_TRUE(of.from.key(key, entry(from)));
        EXPECT_EQ(of.from.focus, entry(to)) << of.from.name() << " from " << from;
    }
}

TEST_F(shell, booklets_and_tasks_have_names_and_marks_of_their_own_and_reviews_share_a_mark) {
    const std::pair<button*, const char*> rows[]{{&cl.boekje[8], "BOEKJE 8|Meten en meetkunde (2)"},
                                                 {&sw.plaatje[13], "TAAK 13|De cirkel"},
                                                 {&sw.plaatje[20], "HERHALING|Taak 16 t/m 19"}};
    for (const auto& [entry, words] : rows) EXPECT_EQ(entry->overline + '|' + entry->headline, words);
    std::set<std::vector<std::string>> of_booklets, of_tasks, of_reviews;
    for (button& entry : cl.boekje) of_booklets.insert(as_texts(*entry.mark));
    for (int i = 1; i <= 20; ++i) (i % 5 == 0 ? of_reviews : of_tasks).insert(as_texts(*sw.plaatje[i].mark));
    EXPECT_EQ(std::tuple(of_booklets.size(), of_tasks.size(), of_reviews.size()), std::tuple(12U, 16U, 1U));
    EXPECT_FALSE(of_tasks.contains(*of_reviews.begin()));
    EXPECT_FALSE(of_booklets.contains({}) || of_tasks.contains({}) || of_reviews.contains({}));
}

} // namespace
} // namespace cijferwerf
