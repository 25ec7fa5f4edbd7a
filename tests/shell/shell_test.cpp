// From the start to the practice screen: the choice of a set, the credits, the menus, and the ways to stop.
#include "forms/introduction/infoscherm.h"
#include "forms/marks.h"
#include "forms/shell/achtergrond.h"
#include "forms/shell/codering.h"
#include "forms/shell/colofon.h"
#include "forms/shell/menu.h"

#include "tests/support/operation_text.h"
#include "tests/support/practising.h"

#include <set>
#include <sstream>

namespace cijferwerf {
namespace {

class shell : public practising {
protected:
    void choose(std::string_view set) {
        start.open();
        pupil.click(set == booklet_set ? start.CLgekozen : start.SWgekozen);
        pupil.click(start.verder);
    }
    void open_menu(std::string_view set) {
        choose(set);
        pupil.click(set == booklet_set ? static_cast<control&>(forms.get<colofoncl>().klik)
                                       : forms.get<colofonsw>().klik);
    }
    using names = std::vector<std::string>;
    names on_screen() {
        names loaded;
        for (form* each :
             std::initializer_list<form*>{&start, &forms.get<colofoncl>(), &forms.get<colofonsw>(), &cl, &sw, &screen})
            if (each->loaded()) loaded.push_back(each->name());
        return loaded;
    }

    // Opens every entry of a menu and comes back to the start each time.
    template<class Check>
    void at_every_entry(menu& of, auto& entries, Check check) {
        const std::string_view set = &of == &cl ? booklet_set : task_set;
        for (int i = 0; button & entry : entries) {
            SCOPED_TRACE(entry.caption);
            open_menu(set);
            pupil.click(entry);
            EXPECT_EQ(on_screen(), names{"mama"});
            check(++i);
            pupil.click(screen.terug);
            EXPECT_EQ(on_screen(), names{of.name()});
            pupil.click(of.terug);
        }
    }

    GLOBALEN& globalen = forms.globalen;
    codering& start = forms.get<codering>();
    menucl& cl = forms.get<menucl>();
    menusw& sw = forms.get<menusw>();
};

TEST_F(shell, goes_from_the_background_form_past_a_choice_and_credits_to_a_menu) {
    auto& background = forms.get<achtergrond>();
    background.open();
    pupil.wait(900);
    EXPECT_FALSE(start.loaded());
    pupil.wait(200);
    EXPECT_TRUE(start.loaded() && !background.Timer1.enabled);
    pupil.click(start.verder); // without a choice
    ASSERT_EQ(pupil.boxes.size(), 1U);
    EXPECT_EQ(pupil.boxes[0].text + '|' + pupil.boxes[0].title, "Maak een keuze...|Cijferwerf");
    EXPECT_EQ(pupil.boxes[0].buttons, box_buttons::ok);
    EXPECT_EQ(on_screen(), names{"codering"});

    for (const std::string_view set : {"TELMORA's CIJFERLOOP", "SOMMENWERF"}) {
        const bool booklets = set == booklet_set;
        EXPECT_FALSE(start.CLgekozen.selected || start.SWgekozen.selected) << "the choice before is no choice now";
        choose(set);
        EXPECT_EQ(globalen.gekozen_pakket, set);
        EXPECT_EQ(on_screen(), names{booklets ? "colofoncl" : "colofonsw"});
        pupil.click(booklets ? forms.get<colofoncl>().klik : forms.get<colofonsw>().klik);
        EXPECT_EQ(on_screen(), names{booklets ? "menucl" : "menusw"});
        for (const int i : {-1, 0, booklets ? 13 : 21}) {
            booklets ? cl.boekje_click(i) : sw.plaatje_click(i);
            EXPECT_EQ(globalen.gekozen_onderdeel + screen.opschriftbalk.caption, "") << i;
        }
        pupil.click(booklets ? cl.terug : sw.terug);
        EXPECT_EQ(on_screen(), names{"codering"});
    }
    EXPECT_EQ(sw.caption, "DEEL 1 EN 2, SOMMENWERF");
    start.unload();
    pupil.wait(5000);
    EXPECT_FALSE(start.loaded()) << "the background form brings it up once";
}

TEST_F(shell, every_entry_opens_the_practice_screen_under_its_own_heading_and_only_a_review_has_no_info) {
    for (const auto& [entry, small, large] : {std::tuple{&cl.boekje[8], "BOEKJE 8", "Meten en meetkunde (2)"},
                                              {&sw.plaatje[13], "TAAK 13", "De cirkel"},
                                              {&sw.plaatje[20], "HERHALING", "Taak 16 t/m 19"}})
        EXPECT_EQ(std::pair(entry->overline, entry->headline), std::pair(std::string(small), std::string(large)));
    const auto opened = [this](std::string_view set, std::string_view kind, int i, const button& entry) {
        EXPECT_EQ(globalen.gekozen_onderdeel, regel(kind, i < 10 ? "0" : "", kaal(i)));
        EXPECT_EQ(screen.opschriftbalk.caption, zoek_lijst(set, globalen.gekozen_onderdeel)->heading);
        EXPECT_EQ(screen.opschriftbalk.caption, entry.caption);
        EXPECT_EQ(screen.caption, set);
        EXPECT_EQ(screen.info.visible, set == booklet_set);
        EXPECT_EQ(screen.info.enabled, set == booklet_set || i % 5 != 0);
        EXPECT_FALSE(screen.presentatielijst.items.empty());
    };
    at_every_entry(cl, cl.boekje, [&](int i) { opened("TELMORA's CIJFERLOOP", "boekje", i, cl.boekje[i]); });
    at_every_entry(sw, sw.plaatje, [&](int i) { opened("SOMMENWERF", "taak", i, sw.plaatje[i]); });
}

TEST_F(shell, closing_a_window_or_stopping_asks_first) {
    open_menu(booklet_set);
    std::vector<std::function<void()>> ways;
    for (form* each : std::initializer_list<form*>{&start, &cl, &sw, &screen, &forms.get<colofoncl>(),
                                                   &forms.get<colofonsw>(), &forms.get<infoscherm>(1, 1)})
        ways.push_back([=, this] { pupil.close(*each); });
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
            EXPECT_EQ(on_screen(), names{"menucl"});
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
        menu& on;
        int from;
        char key;
        int to;
    } rows[]{
        {cl, 1, keys::right, 2}, {cl, 3, keys::right, nowhere}, {cl, 1, keys::down, 4},  {cl, 10, keys::down, nowhere},
        {cl, 5, keys::up, 2},    {cl, 4, keys::left, nowhere},  {cl, 5, keys::left, 4},  {cl, 7, keys::home, 1},
        {cl, 7, keys::end, 12},  {sw, 3, keys::down, 8},        {sw, 8, keys::down, 13}, {sw, 5, keys::right, nowhere},
        {sw, 13, keys::up, 8},   {sw, 13, keys::left, 12},      {sw, 12, keys::home, 1}, {sw, 1, keys::end, 20},
    };
    for (const auto& row : rows) {
        const auto entry = [&](int i) -> control* {
            if (i == nowhere) return nullptr;
            return &row.on == &cl ? &cl.boekje[i] : &sw.plaatje[i];
        };
        row.on.focus = nullptr;
        EXPECT_TRUE(row.on.key(row.key, entry(row.from)));
        EXPECT_EQ(row.on.focus, entry(row.to)) << row.on.name() << " from " << row.from << " to " << row.to;
    }
}

TEST_F(shell, no_buttons_overlap_and_every_word_of_a_name_has_room_beside_or_under_the_mark) {
    for (const menu* shown : std::initializer_list<const menu*>{&cl, &sw})
        for (const control* a : shown->controls()) {
            if (!a->is_button()) continue;
            const int room = a->width - (a->width > 2 * a->height ? a->height + 285 : 240);
            std::istringstream words(static_cast<const button*>(a)->headline);
            for (std::string word; words >> word;) EXPECT_LE(bold_text_width(word, a->font_size), room) << word;
            EXPECT_TRUE(a->left + a->width <= shown->width && a->top + a->height <= shown->height) << a->caption;
            for (const control* b : shown->controls())
                EXPECT_TRUE(a == b || !b->is_button() || a->left + a->width <= b->left ||
                            b->left + b->width <= a->left || a->top + a->height <= b->top ||
                            b->top + b->height <= a->top)
                    << a->caption << " and " << b->caption;
        }
}

TEST_F(shell, booklets_and_tasks_have_marks_of_their_own_and_reviews_share_one_apart) {
    std::set<std::vector<std::string>> of_booklets, of_tasks, of_reviews;
    for (button& entry : cl.boekje) of_booklets.insert(as_texts(*entry.mark));
    for (int i = 1; i <= 20; ++i) (i % 5 == 0 ? of_reviews : of_tasks).insert(as_texts(*sw.plaatje[i].mark));
    EXPECT_EQ(std::tuple(of_booklets.size(), of_tasks.size(), of_reviews.size()), std::tuple(12U, 16U, 1U));
    EXPECT_FALSE(of_tasks.contains(*of_reviews.begin()));
    EXPECT_FALSE(of_booklets.contains({}) || of_tasks.contains({}) || of_reviews.contains({}));
}

} // namespace
} // namespace cijferwerf
