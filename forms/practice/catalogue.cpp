#include "forms/practice/catalogue.h"

namespace cijferwerf {

namespace {

using id = oefening_id;
using row = catalogue_entry;

constexpr row boekje01[]{
    {"alcohol", id::B_alcohol_01_08_Click},
    {"grasveld", id::B_grasveld_01_08_click},
    {"bevolking", id::L_bevolking_01_08_click},
    {"computer", id::L_computer_01_08_click},
    {"examen", id::L_examen_01_08_click},
    {"snel!", id::L_snel_01_08_click},
    {"voetbal", id::L_voetbal_01_08_click},
    {"blessures", id::M_blessures_01_08_click},
    {"hele procenten", id::M_hele_procenten_01_08_click},
    {"rente", id::M_rente_01_08_click},
    {"kommaprocenten", id::Z_kommaprocenten_01_08_click},
};

constexpr row boekje02[]{
    {"huis", id::B_huis_02_16_click},
    {"maatbeker", id::B_maatbeker_02_16_click},
    {"vakantie", id::B_vakantie_02_16_click},
    {"cirkels", id::L_cirkels_02_16_click},
    {"fietspad (1)", id::L_fietspad_1_02_16_click},
    {"museum", id::L_museum_02_16_click},
    {"fietspad (2)", id::M_fietspad_2_02_16_click},
    {"tandwielen", id::M_tandwielen_02_16_click},
    {"brandstofverbruik", id::Z_brandstofverbruik_02_16_click},
    {"tuinman", id::Z_tuinman_02_16_click},
    {"uitgaven", id::Z_uitgaven_02_16_click},
};

constexpr row boekje03[]{
    {"chocolade", id::B_chocolade_03_03_click},
    {"helen", id::B_helen_03_03_click},
    {"maatbeker", id::B_maatbeker_02_16_click},
    {"vlakjes", id::B_vlakjes_03_03_click},
    {"helen maken", id::L_helen_maken_03_03_click},
    {"marathon", id::L_marathon_03_03_click},
    {"optellen", id::L_optellen_03_14_click},
    {"prijzen", id::L_prijzen_03_03_click},
    {"procenten", id::L_procenten_03_14_click},
    {"stukken", id::L_stukken_03_14_click},
    {"aanvullen (1)", id::M_aanvullen_1_03_14_click},
    {"aanvullen (2)", id::M_aanvullen_2_03_14_click},
    {"aftrekken", id::M_aftrekken_03_14_click},
    {"getallenlijn", id::M_getallenlijn_03_03_click},
    {"grootste/kleinste", id::M_grootste_kleinste_03_03_click},
    {"olievat", id::M_olievat_03_06_click},
    {"snel!", id::M_snel_03_03_click},
    {"tussen in", id::M_tussen_in_03_14_click},
    {"vereenvoudigen", id::M_vereenvoudigen_03_14_click},
    {"delen", id::Z_delen_03_14_click},
    {"vermenigvuldigen", id::Z_vermenigvuldigen_03_14_click},
};

constexpr row boekje04_taak18[]{
    {"inwoners", id::B_inwoners_04_18_click},         {"rusthuis", id::B_rusthuis_04_18_click},
    {"hardlopen (1)", id::L_hardlopen_1_04_18_click}, {"hardlopen (2)", id::L_hardlopen_2_04_18_click},
    {"inkomen", id::L_inkomen_04_18_click},           {"regenval", id::L_regenval_04_18_click},
    {"vakanties", id::L_vakanties_04_18_click},       {"bevolking", id::L_bevolking_01_08_click},
    {"dollars", id::M_dollars_04_18_click},           {"roken", id::Z_roken_04_18_click},
    {"verkiezingen", id::Z_verkiezingen_04_18_click},
};

constexpr row boekje05[]{
    {"spaarpot", id::B_spaarpot_05_07_click},
    {"wisselen", id::B_wisselen_05_07_click},
    {"bijbetalen", id::L_bijbetalen_05_07_click},
    {"krantenwijk", id::L_krantenwijk_05_07_click},
    {"snel!", id::L_snel_05_07_click},
    {"terugbetalen", id::L_terugbetalen_05_07_click},
    {"vreemd geld (1)", id::L_vreemd_geld_1_05_07_click},
    {"vreemd geld (2)", id::L_vreemd_geld_2_05_07_click},
    {"boodschap", id::M_boodschap_05_07_click},
    {"brandstof", id::M_brandstof_05_07_click},
    {"CD's", id::M_CDs_05_07_click},
    {"computer", id::L_computer_01_08_click},
    {"niet gepast", id::M_niet_gepast_05_07_click},
    {"rente", id::M_rente_01_08_click},
    {"brandstofverbruik", id::Z_brandstofverbruik_02_16_click},
    {"huren", id::Z_huren_05_07_click},
};

constexpr row boekje06_taak04[]{
    {"datum", id::B_datum_06_04_click},
    {"wedstrijd", id::B_wedstrijd_06_04_click},
    {"boeken", id::L_boeken_06_04_click},
    {"huren", id::Z_huren_05_07_click},
    {"wachten", id::L_wachten_06_04_click},
    {"kilometers", id::M_kilometers_06_04_click},
    {"naar school", id::M_naar_school_06_04_click},
    {"snel!", id::M_snel_06_04_click},
    {"trein", id::M_trein_06_04_click},
    {"wereldtijden", id::Z_wereldtijden_06_04_click},
};

constexpr row boekje07[]{
    {"oppervlakte", id::B_oppervlakte_07_12_click},
    {"rechthoek", id::B_rechthoek_07_12_click},
    {"doos", id::L_doos_07_12_click},
    {"fietsen", id::L_fietsen_07_09_click},
    {"optellen (1)", id::L_optellen_1_07_09_click},
    {"optellen (2)", id::L_optellen_2_07_09_click},
    {"schilder", id::L_schilder_07_12_click},
    {"snel! (1)", id::L_snel_1_07_09_click},
    {"snel! (2)", id::L_snel_2_07_09_click},
    {"vakantie", id::L_vakantie_07_09_click},
    {"bedrijfsruimte", id::M_bedrijfsruimte_07_12_click},
    {"behangen", id::M_behangen_07_09_click},
    {"draad", id::M_draad_07_12_click},
    {"figuren", id::M_figuren_07_12_click},
    {"L-vorm", id::M_L_vorm_07_12_click},
    {"tuin", id::M_tuin_07_09_click},
    {"vliegtuig", id::Z_vliegtuig_07_09_click},
    {"tegels", id::Z_tegels_07_12_click},
};

constexpr row boekje08[]{
    {"inhoud", id::B_inhoud_08_17_click},       {"schatten", id::B_schatten_08_17_click},
    {"doos", id::L_doos_08_17_click},           {"gewichten", id::L_gewichten_08_17_click},
    {"optellen", id::L_optellen_08_17_click},   {"watertank", id::L_watertank_07_17_click},
    {"opbrengst", id::M_opbrengst_08_12_click}, {"worst", id::M_worst_08_17_click},
};

constexpr row boekje09[]{
    {"tafels", id::B_tafels_09_02_click},     {"aftrekken", id::L_aftrekken_09_01_click},
    {"delen (1)", id::L_delen_1_09_06_click}, {"keer", id::L_keer_09_02_click},
    {"delen (2)", id::M_delen_2_09_06_click}, {"nullen", id::M_nullen_09_06_click},
    {"komma", id::Z_komma_09_06_click},
};

constexpr row boekje10[]{
    {"gestreept", id::B_gestreept_10_03_click}, {"schatten (1)", id::B_schatten_1_10_09_click},
    {"betegelen", id::L_betegelen_10_12_click}, {"bezoekers", id::L_bezoekers_10_00_click},
    {"schaal", id::L_schaal_10_16_click},       {"schatten (2)", id::L_schatten_2_10_09_click},
    {"erfenis", id::M_erfenis_10_07_click},     {"seconden", id::M_seconden_10_06_click},
};

constexpr row boekje11[]{
    {"getallenlijn", id::B_getallenlijn_11_01_click},
    {"letters", id::B_letters_11_01_click},
    {"onder elkaar", id::B_onder_elkaar_11_01_click},
    {"pijl (1)", id::B_pijl_1_11_06_click},
    {"pijl (2)", id::B_pijl_2_11_06_click},
    {"schatten", id::B_schatten_11_01_click},
    {"waarde", id::B_waarde_11_01_click},
    {"na de komma", id::L_na_de_komma_11_06_click},
    {"optellen", id::L_optellen_11_01_click},
    {"pijlverwijzing", id::L_pijlverwijzing_11_06_click},
    {"samenstellen", id::L_samenstellen_11_06_click},
    {"schoolbord", id::L_schoolbord_11_06_click},
    {"dichtst bij", id::M_dichtst_bij_11_06_click},
    {"grootste/kleinste", id::M_grootste_kleinste_11_01_click},
    {"tabel", id::M_tabel_11_01_click},
};

constexpr row boekje12[]{
    {"inwoners (1)", id::B_inwoners_1_12_01_click},
    {"inwoners (2)", id::B_inwoners_2_12_01_click},
    {"anders", id::L_anders_12_02_click},
    {"door elkaar", id::L_door_elkaar_12_02_click},
    {"haakjes", id::L_haakjes_12_02_click},
    {"na elkaar", id::L_na_elkaar_12_01_click},
    {"onder elkaar", id::L_onder_elkaar_12_06_click},
    {"controle", id::M_controle_12_02_click},
    {"flesjes", id::M_flesjes_12_02_click},
    {"maal", id::M_maal_12_02_click},
    {"snel!", id::M_snel_12_06_click},
    {"BTW", id::Z_BTW_12_08_click},
    {"lenen", id::Z_lenen_12_07_click},
    {"memory", id::Z_memory_12_02_click},
    {"sponsorloop", id::Z_sponsorloop_12_07},
};

constexpr row taak01[]{
    {"getallenlijn", id::B_getallenlijn_11_01_click},
    {"inwoners (1)", id::B_inwoners_1_12_01_click},
    {"inwoners (2)", id::B_inwoners_2_12_01_click},
    {"letters", id::B_letters_11_01_click},
    {"onder elkaar", id::B_onder_elkaar_11_01_click},
    {"schatten", id::B_schatten_11_01_click},
    {"waarde", id::B_waarde_11_01_click},
    {"aftrekken", id::L_aftrekken_09_01_click},
    {"na elkaar", id::L_na_elkaar_12_01_click},
    {"optellen", id::L_optellen_11_01_click},
    {"grootste/kleinste", id::M_grootste_kleinste_11_01_click},
    {"tabel", id::M_tabel_11_01_click},
};

constexpr row taak02[]{
    {"tafels", id::B_tafels_09_02_click},
    {"anders", id::L_anders_12_02_click},
    {"door elkaar", id::L_door_elkaar_12_02_click},
    {"haakjes", id::L_haakjes_12_02_click},
    {"keer", id::L_keer_09_02_click},
    {"controle", id::M_controle_12_02_click},
    {"flesjes", id::M_flesjes_12_02_click},
    {"maal", id::M_maal_12_02_click},
    {"memory", id::Z_memory_12_02_click},
};

constexpr row taak03[]{
    {"chocolade", id::B_chocolade_03_03_click},
    {"gestreept", id::B_gestreept_10_03_click},
    {"helen", id::B_helen_03_03_click},
    {"maatbeker", id::B_maatbeker_02_16_click},
    {"vlakjes", id::B_vlakjes_03_03_click},
    {"helen maken", id::L_helen_maken_03_03_click},
    {"marathon", id::L_marathon_03_03_click},
    {"prijzen", id::L_prijzen_03_03_click},
    {"getallenlijn", id::M_getallenlijn_03_03_click},
    {"grootste/kleinste", id::M_grootste_kleinste_03_03_click},
    {"snel!", id::M_snel_03_03_click},
};

constexpr review_group taak05_groups[]{
    {{"na elkaar", "optellen", "grootste/kleinste", "tabel"},
     {"onder elkaar", "schatten", "waarde", "aftrekken"},
     {"getallenlijn", "inwoners (1)", "inwoners (2)", "letters"}},
    {{"flesjes", "maal", "memory"}, {"haakjes", "keer", "controle"}, {"tafels", "anders", "door elkaar"}},
    {{"getallenlijn", "grootste/kleinste"},
     {"vlakjes", "helen maken", "marathon", "prijzen"},
     {"chocolade", "gestreept", "helen", "maatbeker"}},
    {{"trein", "wereldtijden"}, {"wachten", "kilometers", "naar school"}, {"datum", "wedstrijd", "boeken", "huren"}},
};

constexpr row taak06[]{
    {"pijl (1)", id::B_pijl_1_11_06_click},
    {"pijl (2)", id::B_pijl_2_11_06_click},
    {"delen (1)", id::L_delen_1_09_06_click},
    {"na de komma", id::L_na_de_komma_11_06_click},
    {"onder elkaar", id::L_onder_elkaar_12_06_click},
    {"pijlverwijzing", id::L_pijlverwijzing_11_06_click},
    {"samenstellen", id::L_samenstellen_11_06_click},
    {"schoolbord", id::L_schoolbord_11_06_click},
    {"delen (2)", id::M_delen_2_09_06_click},
    {"dichtst bij", id::M_dichtst_bij_11_06_click},
    {"nullen", id::M_nullen_09_06_click},
    {"olievat", id::M_olievat_03_06_click},
    {"seconden", id::M_seconden_10_06_click},
    {"snel", id::M_snel_12_06_click},
    {"komma", id::Z_komma_09_06_click},
};

constexpr row taak07[]{
    {"spaarpot", id::B_spaarpot_05_07_click},
    {"wisselen", id::B_wisselen_05_07_click},
    {"bijbetalen", id::L_bijbetalen_05_07_click},
    {"krantenwijk", id::L_krantenwijk_05_07_click},
    {"snel!", id::L_snel_05_07_click},
    {"terugbetalen", id::L_terugbetalen_05_07_click},
    {"vreemd geld (1)", id::L_vreemd_geld_1_05_07_click},
    {"vreemd geld (2)", id::L_vreemd_geld_2_05_07_click},
    {"boodschap", id::M_boodschap_05_07_click},
    {"brandstof", id::M_brandstof_05_07_click},
    {"CD's", id::M_CDs_05_07_click},
    {"computer", id::L_computer_01_08_click},
    {"erfenis", id::M_erfenis_10_07_click},
    {"niet gepast", id::M_niet_gepast_05_07_click},
    {"rente", id::M_rente_01_08_click},
    {"brandstofverbruik", id::Z_brandstofverbruik_02_16_click},
    {"huren", id::Z_huren_05_07_click},
    {"lenen", id::Z_lenen_12_07_click},
    {"sponsorloop", id::Z_sponsorloop_12_07},
};

constexpr row taak08[]{
    {"alcohol", id::B_alcohol_01_08_Click},
    {"grasveld", id::B_grasveld_01_08_click},
    {"bevolking", id::L_bevolking_01_08_click},
    {"computer", id::L_computer_01_08_click},
    {"examen", id::L_examen_01_08_click},
    {"snel!", id::L_snel_01_08_click},
    {"voetbal", id::L_voetbal_01_08_click},
    {"blessures", id::M_blessures_01_08_click},
    {"hele procenten", id::M_hele_procenten_01_08_click},
    {"rente", id::M_rente_01_08_click},
    {"BTW", id::Z_BTW_12_08_click},
    {"kommaprocenten", id::Z_kommaprocenten_01_08_click},
};

constexpr row taak09[]{
    {"schatten (1)", id::B_schatten_1_10_09_click}, {"fietsen", id::L_fietsen_07_09_click},
    {"optellen (1)", id::L_optellen_1_07_09_click}, {"optellen (2)", id::L_optellen_2_07_09_click},
    {"schatten (2)", id::L_schatten_2_10_09_click}, {"snel! (1)", id::L_snel_1_07_09_click},
    {"snel! (2)", id::L_snel_2_07_09_click},        {"vakantie", id::L_vakantie_07_09_click},
    {"behangen", id::M_behangen_07_09_click},       {"tuin", id::M_tuin_07_09_click},
    {"vliegtuig", id::Z_vliegtuig_07_09_click},
};

constexpr review_group taak10_groups[]{
    {{"pijlverwijzing", "samenstellen", "schoolbord", "dichtst bij", "onder elkaar"},
     {"nullen", "olievat", "seconden", "komma"},
     {"pijl (1)", "pijl (2)", "delen (1)", "delen (2)", "na de komma"}},
    {{"vreemd geld (1)", "vreemd geld (2)", "boodschap", "brandstof", "CD's", "computer"},
     {"erfenis", "niet gepast", "rente", "brandstofverbruik", "huren", "lenen", "sponsorloop"},
     {"spaarpot", "wisselen", "bijbetalen", "krantenwijk", "terugbetalen"}},
    {{"examen", "voetbal", "blessures"},
     {"hele procenten", "rente", "BTW", "kommaprocenten"},
     {"alcohol", "grasveld", "bevolking", "computer"}},
    {{"vakantie", "optellen (1)", "optellen (2)"},
     {"behangen", "tuin", "vliegtuig"},
     {"schatten (1)", "schatten (2)", "fietsen"}},
};

constexpr row taak11[]{
    {"snel!", id::B_snel_00_11_click},
    {"berekenen", id::L_berekenen_00_11_click},
    {"in woorden", id::L_in_woorden_00_11_click},
    {"korter", id::L_korter_00_11_click},
    {"volgorde", id::L_volgorde_00_11_click},
    {"bacterie", id::M_bacterie_00_11_click},
    {"bloembollen", id::M_bloembollen_00_11_click},
    {"fabriekshal", id::M_fabriekshal_00_11_click},
    {"stroopwafels", id::M_stroopwafels_00_11_click},
    {"spaargeld", id::Z_spaargeld_00_11_click},
};

constexpr row taak12[]{
    {"oppervlakte", id::B_oppervlakte_07_12_click},
    {"rechthoek", id::B_rechthoek_07_12_click},
    {"betegelen", id::L_betegelen_10_12_click},
    {"doos", id::L_doos_07_12_click},
    {"schilder", id::L_schilder_07_12_click},
    {"bedrijfsruimte", id::M_bedrijfsruimte_07_12_click},
    {"draad", id::M_draad_07_12_click},
    {"figuren", id::M_figuren_07_12_click},
    {"L-vorm", id::M_L_vorm_07_12_click},
    {"opbrengst", id::M_opbrengst_08_12_click},
    {"tegels", id::Z_tegels_07_12_click},
};

constexpr row taak13[]{
    {"cirkel (1)", id::B_cirkel_1_00_13_click},     {"cirkel (2)", id::L_cirkel_2_00_13_click},
    {"blikjes", id::M_blikjes_00_13_click},         {"huls", id::M_huls_00_13_click},
    {"in elkaar", id::M_in_elkaar_00_13_click},     {"pizza", id::M_pizza_00_13_click},
    {"skelterbaan", id::M_skelterbaan_00_13_click}, {"vijver", id::M_vijver_00_13_click},
    {"fietswiel", id::Z_fietswiel_00_13_click},     {"terras", id::Z_terras_00_13_click},
};

constexpr row taak14[]{
    {"optellen", id::L_optellen_03_14_click},
    {"procenten", id::L_procenten_03_14_click},
    {"stukken", id::L_stukken_03_14_click},
    {"aanvullen (1)", id::M_aanvullen_1_03_14_click},
    {"aanvullen (2)", id::M_aanvullen_2_03_14_click},
    {"aftrekken", id::M_aftrekken_03_14_click},
    {"tussen in", id::M_tussen_in_03_14_click},
    {"vereenvoudigen", id::M_vereenvoudigen_03_14_click},
    {"delen", id::Z_delen_03_14_click},
    {"vermenigvuldigen", id::Z_vermenigvuldigen_03_14_click},
};

constexpr review_group taak15_groups[]{
    {{"volgorde", "bacterie", "bloembollen"},
     {"fabriekshal", "stroopwafels", "spaargeld"},
     {"berekenen", "in woorden", "korter"}},
    {{"schilder", "bedrijfsruimte", "draad", "figuren"},
     {"L-vorm", "opbrengst", "tegels"},
     {"oppervlakte", "rechthoek", "betegelen", "doos"}},
    {{"huls", "in elkaar", "pizza", "skelterbaan"},
     {"vijver", "fietswiel", "terras"},
     {"cirkel (1)", "cirkel (2)", "blikjes"}},
    {{"aanvullen (1)", "aanvullen (2)", "aftrekken"},
     {"tussen in", "vereenvoudigen", "delen", "vermenigvuldigen"},
     {"optellen", "procenten", "stukken"}},
};

constexpr row taak16[]{
    {"huis", id::B_huis_02_16_click},
    {"maatbeker", id::B_maatbeker_02_16_click},
    {"vakantie", id::B_vakantie_02_16_click},
    {"cirkels", id::L_cirkels_02_16_click},
    {"fietspad (1)", id::L_fietspad_1_02_16_click},
    {"museum", id::L_museum_02_16_click},
    {"schaal", id::L_schaal_10_16_click},
    {"fietspad (2)", id::M_fietspad_2_02_16_click},
    {"tandwielen", id::M_tandwielen_02_16_click},
    {"brandstofverbruik", id::Z_brandstofverbruik_02_16_click},
    {"tuinman", id::Z_tuinman_02_16_click},
    {"uitgaven", id::Z_uitgaven_02_16_click},
};

constexpr row taak17[]{
    {"inhoud", id::B_inhoud_08_17_click},       {"schatten", id::B_schatten_08_17_click},
    {"doos", id::L_doos_08_17_click},           {"gewichten", id::L_gewichten_08_17_click},
    {"optellen", id::L_optellen_08_17_click},   {"watertank", id::L_watertank_07_17_click},
    {"cilinder", id::M_cilinder_00_17_click},   {"worst", id::M_worst_08_17_click},
    {"dichtheid", id::Z_dichtheid_00_17_click}, {"volumeprocent", id::Z_volumeprocent_00_17_click},
};

constexpr row taak19[]{
    {"energie", id::L_energie_00_19_click},
    {"gas (1)", id::L_gas_1_00_19_click},
    {"elektriciteit (1)", id::M_elektriciteit_1_00_19_click},
    {"elektriciteit (2)", id::M_elektriciteit_2_00_19_click},
    {"voeding (1)", id::M_voeding_1_00_19_click},
    {"voeding (2)", id::M_voeding_2_00_19_click},
    {"water (1)", id::M_water_1_00_19_click},
    {"water (2)", id::M_water_2_00_19_click},
    {"elektriciteit (3)", id::Z_elektriciteit_3_00_19_click},
    {"gas (2)", id::Z_gas_2_00_19_click},
};

constexpr review_group taak20_groups[]{
    {{"fietspad (1)", "museum", "schaal", "fietspad (2)"},
     {"tandwielen", "brandstofverbruik", "tuinman", "uitgaven"},
     {"huis", "maatbeker", "vakantie", "cirkels"}},
    {{"optellen", "watertank", "cilinder"},
     {"worst", "dichtheid", "volumeprocent"},
     {"inhoud", "schatten", "doos", "gewichten"}},
    {{"voeding (1)", "voeding (2)", "water (1)", "water (2)"},
     {"elektriciteit (1)", "elektriciteit (2)", "elektriciteit (3)"},
     {"energie", "gas (1)", "gas (2)"}},
};

constexpr std::span<const row> taak05_reviewed[]{taak01, taak02, taak03, boekje06_taak04};
constexpr std::span<const row> taak10_reviewed[]{taak06, taak07, taak08, taak09};
constexpr std::span<const row> taak15_reviewed[]{taak11, taak12, taak13, taak14};
constexpr std::span<const row> taak20_reviewed[]{taak16, taak17, boekje04_taak18, taak19};

constexpr catalogue_list lists[]{
    {booklet_set, "boekje01", "BOEKJE 1 - PROCENTEN", boekje01},
    {booklet_set, "boekje02", "BOEKJE 2 - VERHOUDINGEN", boekje02},
    {booklet_set, "boekje03", "BOEKJE 3 - BREUKEN", boekje03},
    {booklet_set, "boekje04", "BOEKJE 4 - GRAFIEKEN", boekje04_taak18},
    {booklet_set, "boekje05", "BOEKJE 5 - GELD", boekje05},
    {booklet_set, "boekje06", "BOEKJE 6 - TIJD", boekje06_taak04},
    {booklet_set, "boekje07", "BOEKJE 7 - METEN EN MEETKUNDE (1)", boekje07},
    {booklet_set, "boekje08", "BOEKJE 8 - METEN EN MEETKUNDE (2)", boekje08},
    {booklet_set, "boekje09", "BOEKJE 9 - HOOFDREKENEN", boekje09},
    {booklet_set, "boekje10", "BOEKJE 10 - SCHATTEN", boekje10},
    {booklet_set, "boekje11", "BOEKJE 11 - GETALKENNIS", boekje11},
    {booklet_set, "boekje12", "BOEKJE 12 - CIJFEREN", boekje12},
    {task_set, "taak01", "TAAK 1 - GETALLEN", taak01},
    {task_set, "taak02", "TAAK 2 - VERMENIGVULDIGEN EN DELEN", taak02},
    {task_set, "taak03", "TAAK 3 - BREUKEN (1)", taak03},
    {task_set, "taak04", "TAAK 4 - TIJD", boekje06_taak04},
    {task_set, "taak05", "HERHALING TAAK 1 t/m 4", {}, taak05_groups, taak05_reviewed},
    {task_set, "taak06", "TAAK 6 - KOMMAGETALLEN", taak06},
    {task_set, "taak07", "TAAK 7 - GELD", taak07},
    {task_set, "taak08", "TAAK 8 - PROCENTEN", taak08},
    {task_set, "taak09", "TAAK 9 - LENGTEMATEN", taak09},
    {task_set, "taak10", "HERHALING TAAK 6 t/m 9", {}, taak10_groups, taak10_reviewed},
    {task_set, "taak11", "TAAK 11 - MACHTSVERHEFFEN", taak11},
    {task_set, "taak12", "TAAK 12 - OMTREK EN OPPERVLAKTE", taak12},
    {task_set, "taak13", "TAAK 13 - DE CIRKEL", taak13},
    {task_set, "taak14", "TAAK 14 - BREUKEN (2)", taak14},
    {task_set, "taak15", "HERHALING TAAK 11 t/m 14", {}, taak15_groups, taak15_reviewed},
    {task_set, "taak16", "TAAK 16 - VERHOUDINGEN", taak16},
    {task_set, "taak17", "TAAK 17 - INHOUD EN GEWICHT", taak17},
    {task_set, "taak18", "TAAK 18 - GETALLEN IN BEELD", boekje04_taak18},
    {task_set, "taak19", "TAAK 19 - MATEN EN METEN", taak19},
    {task_set, "taak20", "HERHALING TAAK 16 t/m 19", {}, taak20_groups, taak20_reviewed},
};

// Single precision, as the draws are. The narrow band between the first two falls to choice B.
constexpr float below_is_c = 0.33F;
constexpr float from_is_a = 0.34F;
constexpr float above_is_b = 0.67F;

} // namespace

std::span<const catalogue_list> catalogue() { return lists; }

const catalogue_list* zoek_lijst(std::string_view set, std::string_view key) {
    for (const catalogue_list& list : lists)
        if (list.set == set && list.key == key) return &list;
    return nullptr;
}

titles geloot(const review_group& group, float fraction) {
    if (fraction < below_is_c) return group.c;
    if (fraction < from_is_a || fraction > above_is_b) return group.b;
    return group.a;
}

std::vector<std::string_view> titels(const catalogue_list& list, random_draws& toeval) {
    std::vector<std::string_view> shown;
    for (const catalogue_entry& entry : list.entries) shown.push_back(entry.title);
    for (const review_group& group : list.groups) {
        toeval.seed();
        const titles drawn = geloot(group, toeval.fraction());
        shown.insert(shown.end(), drawn.begin(), drawn.end());
    }
    return shown;
}

std::optional<oefening_id> zoek_generator(const catalogue_list& list, int position, std::string_view title) {
    if (!list.drawn()) {
        const auto at = static_cast<std::size_t>(position);
        if (position < 0 || at >= list.entries.size()) return std::nullopt;
        return list.entries[at].generator;
    }
    for (const auto& task : list.reviewed)
        for (const catalogue_entry& entry : task)
            if (entry.title == title) return entry.generator;
    return std::nullopt;
}

} // namespace cijferwerf
