// exercise_dump and exercise_gallery as a developer starts them, through the shell.
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sys/wait.h>

namespace {

struct outcome {
    int status;
    std::string output; // standard output, or what the command line redirects to it
};

outcome run(const std::string& tool, const std::string& arguments) {
    FILE* const pipe = popen(("'" TOOLS "/" + tool + "' " + arguments).c_str(), "r");
    std::string output;
    std::array<char, 4096> piece{};
    while (const std::size_t got = std::fread(piece.data(), 1, piece.size(), pipe)) output.append(piece.data(), got);
    return {WEXITSTATUS(pclose(pipe)), output};
}
std::string dump(const std::string& arguments) { return run("exercise_dump", arguments).output; }

std::string content(const std::filesystem::path& file) {
    std::ifstream in(file);
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST(exercise_dump, writes_a_json_object_for_every_list_and_every_exercise) {
    const std::string read_back = R"( | python3 -c '
import json, sys
rows = [json.loads(line) for line in sys.stdin]
print(len(rows), len({r.get("generator") for r in rows}), {len(r.get("uitlegregels", ())) for r in rows})')";
    EXPECT_EQ(dump("--count 3" + read_back), "534 178 {7}\n");
    EXPECT_EQ(dump("--catalogue" + read_back), "32 1 {0}\n");
    EXPECT_EQ(dump("--list | sort -u | wc -l"), "178\n");
    EXPECT_NE(dump("--catalogue").find(R"("groups":[{"A":[["na elkaar",)"), std::string::npos);
}

TEST(exercise_dump, repeats_itself_exactly_whichever_others_are_named_and_changes_with_the_seed) {
    const std::string hele = "--generator M_hele_procenten_01_08_click ", rente = "--generator M_rente_01_08_click ";
    const std::string once = dump(hele + "--count 20");
    EXPECT_EQ(once, dump("--seed 1 --count 20 " + hele));
    EXPECT_NE(once, dump(hele + "--count 20 --seed 2"));
    EXPECT_TRUE(dump(hele + rente).ends_with(dump(rente)));
}

TEST(exercise_dump, writes_the_pictures_of_the_questions) {
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "svg" / "new";
    EXPECT_EQ(dump("--count 2 --generator M_rente_01_08_click --svg '" + folder.string() + "'"), "");
    const std::string svg = content(folder / "M_rente_01_08_click_2.svg");
    EXPECT_TRUE(svg.starts_with("<svg ") && svg.ends_with("</svg>\n")) << svg;
    std::filesystem::remove_all(folder);
}

void refuses(const std::string& tool, int status, std::initializer_list<const char*> calls) {
    for (const std::string arguments : calls) {
        const auto [ended, said] = run(tool, "2>&1 " + arguments);
        EXPECT_EQ(ended, status) << arguments;
        EXPECT_TRUE(said.find(tool + ": ") < said.find('{')) << arguments << " says " << said;
    }
}

TEST(exercise_dump, says_what_it_does_not_know_and_when_it_cannot_write) {
    refuses("exercise_dump", 2,
            {"--frobnicate", "rente", "--generator", "--generator rente", "--generator ''", "--count", "--count 0",
             "--count -1", "--count 2x", "--count 1000001", "--seed ''", "--seed -1", "--seed 4294967296", "--seed 1.5",
             "--list --count 2", "--catalogue --list", "--svg", "--svg ''", "--list --svg /tmp"});
    refuses("exercise_dump", 1, {"--svg /dev/null/x", "--list >/dev/full", "--count 100 >&-"});
    EXPECT_EQ(run("exercise_dump", "--seed 4294967295 --generator M_rente_01_08_click").status, 0);
}

#ifdef CIJFERWERF_DESKTOP
TEST(exercise_gallery, writes_the_introductions_or_the_question_and_the_explanation_of_every_variant) {
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "gallery" / "new";
    const auto made = [&](const std::string& arguments) {
        std::filesystem::remove_all(folder);
        EXPECT_EQ(run("exercise_gallery", "--out '" + folder.string() + "' " + arguments).status, 0);
        std::map<std::string, std::string> files;
        for (const auto& each : std::filesystem::directory_iterator(folder))
            files[each.path().stem().string()] = content(each.path());
        return files;
    };
    EXPECT_EQ(made("--introductions").size(), 33U);
    const std::string name = "M_hele_procenten_01_08_click";
    auto files = made("--scale 1.5 --generator " + name);
    EXPECT_EQ(files, made("--scale 1.5 --generator " + name)) << "the same seed, other pictures";
    const std::string question = files[name + "_variant01_vraag"];
    EXPECT_EQ(question.substr(16, 8), std::string("\0\0\x04\xE0\0\0\x03\x0C", 8)) << "1248 x 780 pixels";
    for (const char* other : {"_variant01_uitleg", "_variant02_vraag", "_variant02_uitleg"})
        EXPECT_NE(question, files.at(name + other));
    EXPECT_EQ(files.size(), 4U);
}

TEST(exercise_gallery, says_what_is_wrong) {
    refuses("exercise_gallery", 2,
            {"", "--out", "--out x --colour red", "--out x --generator L_nergens", "--out x --seed 1.5",
             "--out x --scale 0", "--out x --scale nan", "--out x --introductions --generator M_rente_01_08_click"});
    refuses("exercise_gallery", 1, {"--out /dev/null/x --introductions", "--out /dev/null/x"});
}
#endif

} // namespace
