// Every text that is written in the generators is shown in some exercise: a wording, a name of a list or a mistake that
// never comes is a draw that has gone wrong.
#include "tests/support/seen.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace cijferwerf {
namespace {

// The texts in source code, without blanks around them; what is said when the program stops is not for pupils.
std::vector<std::string> texts_in(const std::string& code) {
    std::vector<std::string> texts;
    for (std::size_t at = 0; at < code.size(); ++at) {
        const auto skip_to = [&](std::string_view end) { at = std::min(code.find(end, at + 1), code.size()); };
        const std::string_view rest = std::string_view(code).substr(at);
        if (rest.starts_with("//") || rest.starts_with("#")) skip_to("\n");
        if (rest.starts_with("stop_run(")) skip_to(";");
        if (rest.starts_with("'\"'")) skip_to("'");
        if (rest[0] != '"') continue;
        std::string text;
        for (++at; code[at] != '"'; ++at) text += code[at] == '\\' ? code[++at] : code[at];
        texts.emplace_back(kaal(std::string_view(text)));
    }
    // Only measured, and powers as they are written for a drawing.
    std::erase_if(texts, [](const std::string& text) { return text == "1000,0" || text.starts_with('^'); });
    return texts;
}

// All that an exercise can show or say.
std::string shown_by(const oefening& made) {
    std::string all;
    const auto add = [&all](std::string_view text) { all.append(text).append("|"); };
    for (const tekstregels* lines :
         {&made.vraagregels, &made.uitlegregels, &made.tipregels_1, &made.tipregels_2, &made.foutregels_2,
          &made.foutregels_3, &made.foutregels_4, &made.uitlegopdrachten})
        for (const plakregel& line : *lines) add(line);
    for (const plakregel& answer : {made.antwoord_1, made.antwoord_2, made.antwoord_3, made.antwoord_4}) add(answer);
    for (const text_op& text : cijferwerf::all<text_op>(made.plaatje)) add(text.text);
    for (const picture_op& picture : cijferwerf::all<picture_op>(made.plaatje)) add(picture.file);
    for (const spoken_part& part : made.plaatje.spoken) add(part.sentence);
    return all;
}

// What families share in gedeeld/ is a kit that knows more than its users need.
class every_family : public testing::TestWithParam<std::string> {};

TEST_P(every_family, shows_each_of_its_texts_some_time) {
    std::string code;
    for (const auto& file : std::filesystem::directory_iterator(CIJFERWERF_GENERATORS "/" + GetParam())) {
        std::ifstream in(file.path());
        code.append(std::istreambuf_iterator<char>(in), {});
    }
    std::vector<std::string> unseen = texts_in(code);
    std::vector<oefening_id> own;
    for (const oefening_soort& each : alle_oefeningen())
        if (code.find("::" + std::string(each.name) + "(") != code.npos) own.push_back(*zoek_oefening(each.name));
    oefeningen maker([] { return 36'000.0F; });
    for (int i = 0; i < 400 && !unseen.empty(); ++i)
        for (const oefening_id each : own)
            for (int variant = 0; variant < 10 && !unseen.empty(); ++variant) {
                maker.maak(each);
                const std::string all = shown_by(maker);
                std::erase_if(unseen, [&](const std::string& text) { return all.find(text) != all.npos; });
            }
    EXPECT_TRUE(unseen.empty()) << testing::PrintToString(unseen);
}

std::vector<std::string> families() {
    std::vector<std::string> all;
    for (const auto& each : std::filesystem::directory_iterator(CIJFERWERF_GENERATORS))
        if (each.is_directory() && each.path().filename() != "gedeeld") all.push_back(each.path().filename());
    return all;
}

INSTANTIATE_TEST_SUITE_P(generators, every_family, testing::ValuesIn(families()),
                         [](const auto& of) { return of.param; });

} // namespace
} // namespace cijferwerf
