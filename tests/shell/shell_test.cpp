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
        std::string_view set, hint;
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
    course courses[2]{{"TELMORA's CIJFERLOOP", "boekje kiezen", start.CLgekozen, forms.get<colofoncl>(), cl, {}},
                      {"SOMMENWERF", "taak kiezen", start.SWgekozen, forms.get<colofonsw>(), sw, {}}};
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
    EXPECT_EQ(pupil.boxes.at(0).text + '|' + pupil.boxes[0].title, "Maak een keuze...|Cijferwerf");
    EXPECT_EQ(on_screen(), "codering");

    for (const course& each : courses)
        for (button* entry : each.entries) {
            SCOPED_TRACE(entry->caption);
            open_menu(each);
            pupil.click(*entry);
            EXPECT_EQ(on_screen(), "mama");
            EXPECT_EQ(screen.caption, each.set);
            EXPECT_EQ(screen.opschriftbalk.caption, entry->caption);
            EXPECT_EQ(zoek_lijst(each.set, forms.globalen.gekozen_onderdeel)->heading, entry->caption);
            EXPECT_FALSE(screen.presentatielijst.items.empty());
            EXPECT_EQ(screen.info.visible, &each.from == &cl);
            EXPECT_NE(screen.info.enabled, entry->overline == "HERHALING");
            pupil.hover(screen.terug);
            pupil.wait(1950);
            EXPECT_TRUE(screen.taakkiezen_label.visible && screen.taakkiezen_label.caption == each.hint);
            pupil.wait(50);
            EXPECT_FALSE(screen.taakkiezen_label.visible);
            pupil.click(screen.terug);
            EXPECT_EQ(on_screen(), each.from.name());
            pupil.click(each.from.terug);
            EXPECT_EQ(on_screen(), "codering");
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
        for (const box_answer answer : {box_answer::no, box_answer::yes}) {
            pupil.ended = false;
            pupil.answers = {answer};
            way();
            EXPECT_EQ(pupil.boxes.back().text, "Wil je echt stoppen?");
            EXPECT_EQ(pupil.boxes.back().buttons, box_buttons::yes_no);
            EXPECT_EQ(pupil.ended, answer == box_answer::yes);
        }
    EXPECT_EQ(on_screen(), "menucl");
    pupil.ended = false;
    pupil.close(forms.get<achtergrond>());
    EXPECT_TRUE(pupil.ended);
    EXPECT_EQ(pupil.boxes.size(), 2 * ways.size()) << "the background form ends without asking";
}

// ---- what the menus look like ----

TEST_F(shell, arrow_keys_follow_the_grid_and_stop_at_its_edge) {
    control* at = &cl.boekje[1];
    const std::pair<char, int> steps[]{{keys::right, 2}, {keys::right, 3}, {keys::right, 3},
                                       {keys::down, 6},  {keys::left, 5},  {keys::up, 2},
                                       {keys::end, 12},  {keys::down, 12}, {keys::home, 1}};
    for (const auto& [key, to] : steps) {
        cl.focus = at;
        EXPECT_TRUE(cl.key(key, at));
        at = cl.focus;
        EXPECT_EQ(at, &cl.boekje[to]);
    }
}

TEST_F(shell, entries_have_names_and_marks_of_their_own_and_reviews_share_a_mark) {
    EXPECT_EQ(cl.boekje[8].overline + '|' + cl.boekje[8].headline, "BOEKJE 8|Meten en meetkunde (2)");
    EXPECT_EQ(sw.plaatje[20].overline + '|' + sw.plaatje[20].headline, "HERHALING|Taak 16 t/m 19");
    for (const course& each : courses) {
        std::set<std::vector<std::string>> marks{{}}; // none at all is not one of theirs
        for (const button* entry : each.entries) marks.insert(as_texts(*entry->mark));
        EXPECT_EQ(marks.size(), each.entries.size() == 12 ? 1 + 12U : 1 + 16 + 1) << each.set;
    }
}

} // namespace
} // namespace cijferwerf
