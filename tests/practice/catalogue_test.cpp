#include "forms/practice/catalogue.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

namespace cijferwerf {
namespace {

std::string_view title_drawn(float fraction) {
    static constexpr catalogue_entry a[]{{"A", {}}}, b[]{{"B", {}}}, c[]{{"C", {}}};
    return keuze_uit({a, b, c}, fraction).front().title;
}

TEST(catalogue, the_narrow_band_from_033_to_034_falls_to_choice_b) {
    const auto before = [](float fraction) { return std::nextafter(fraction, 0.0F); };
    const auto after = [](float fraction) { return std::nextafter(fraction, 1.0F); };
    const std::pair<float, std::string_view> rows[]{
        {0.0F, "C"},  {before(0.33F), "C"}, {0.33F, "B"},        {before(0.34F), "B"}, {0.34F, "A"},
        {0.67F, "A"}, {after(0.67F), "B"},  {1 - 0x1p-24F, "B"}, {0.5F, "A"},
    };
    for (const auto& [fraction, title] : rows) EXPECT_EQ(title_drawn(fraction), title) << fraction;
}

const catalogue_list& list_of(std::string_view key) {
    const catalogue_list* list = zoek_lijst(key.starts_with("taak") ? task_set : booklet_set, key);
    if (list == nullptr) throw checked_error("no list");
    return *list;
}

TEST(catalogue, an_entry_runs_what_stands_at_its_position) {
    const struct {
        std::string_view key;
        int position;
        std::string_view title, generator;
    } rows[]{
        {"boekje01", 0, "alcohol", "B_alcohol_01_08_Click"},   {"taak06", 13, "snel", "M_snel_12_06_click"},
        {"taak07", 18, "sponsorloop", "Z_sponsorloop_12_07"},  {"taak07", 11, "computer", "L_computer_01_08_click"},
        {"taak18", 7, "bevolking", "L_bevolking_01_08_click"},
    };
    for (const auto& row : rows) {
        const auto& list = list_of(row.key);
        EXPECT_EQ(list.entries[static_cast<std::size_t>(row.position)].title, row.title);
        const auto found = zoek_generator(list, row.position, "");
        ASSERT_TRUE(found) << row.title;
        EXPECT_EQ(naam(*found), row.generator);
    }
    EXPECT_FALSE(zoek_generator(list_of("taak06"), 15, "snel"));
    EXPECT_FALSE(zoek_generator(list_of("taak06"), -1, "snel"));
}

TEST(catalogue, in_a_review_task_the_first_entry_of_a_title_wins) {
    const std::tuple<std::string_view, std::string_view, std::string_view> rows[]{
        {"taak05", "getallenlijn", "B_getallenlijn_11_01_click"},
        {"taak05", "grootste/kleinste", "M_grootste_kleinste_11_01_click"},
        {"taak10", "computer", "L_computer_01_08_click"},
        {"taak10", "rente", "M_rente_01_08_click"},
        {"taak20", "hardlopen (1)", "L_hardlopen_1_04_18_click"},
    };
    for (const auto& [key, title, generator] : rows) {
        const auto found = zoek_generator(list_of(key), 0, title);
        ASSERT_TRUE(found) << title;
        EXPECT_EQ(naam(*found), generator);
    }
    EXPECT_FALSE(zoek_generator(list_of("taak05"), 0, "rente"));
}

// A drawn title that the search does not find would leave the pupil with a blank screen.
TEST(catalogue, every_title_that_can_be_drawn_is_found_and_runs_what_its_group_says) {
    for (const catalogue_list& list : catalogue())
        for (const review_group& group : list.groups)
            for (const auto choice : {group.a, group.b, group.c}) {
                EXPECT_FALSE(choice.empty()) << list.key;
                for (const catalogue_entry& entry : choice)
                    EXPECT_EQ(zoek_generator(list, 0, entry.title), entry.generator) << list.key << ' ' << entry.title;
            }
}

TEST(catalogue, every_generator_can_be_picked_somewhere) {
    std::set<oefening_id> offered;
    for (const catalogue_list& list : catalogue())
        for (const catalogue_entry& entry : list.entries) offered.insert(entry.generator);
    for (std::size_t i = 0; i < alle_oefeningen().size(); ++i)
        EXPECT_TRUE(offered.contains(static_cast<oefening_id>(i))) << alle_oefeningen()[i].name;
    EXPECT_EQ(alle_oefeningen().size(), 178U);
    EXPECT_EQ(catalogue().size(), 32U);
}

TEST(catalogue, another_set_or_key_has_no_list) {
    EXPECT_EQ(zoek_lijst(booklet_set, "taak01"), nullptr);
    EXPECT_EQ(zoek_lijst(task_set, "boekje01"), nullptr);
    EXPECT_EQ(zoek_lijst("", "taak01"), nullptr);
    EXPECT_EQ(zoek_lijst(task_set, "taak21"), nullptr);
}

TEST(catalogue, a_review_task_shows_one_choice_of_each_group_in_order) {
    random_draws toeval([] { return 0.0F; });
    toeval.put_in({0.5F, 0.335F, 0.1F, 0.9F});
    std::vector<std::string_view> titles;
    for (const catalogue_entry& entry : toon_lijst(list_of("taak05"), toeval)) titles.push_back(entry.title);
    EXPECT_EQ(titles, (std::vector<std::string_view>{"na elkaar", "optellen", "grootste/kleinste", "tabel", "haakjes",
                                                     "keer", "controle", "chocolade", "gestreept", "helen", "maatbeker",
                                                     "wachten", "kilometers", "naar school"}));
}

} // namespace
} // namespace cijferwerf
