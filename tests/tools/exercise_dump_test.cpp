// exercise_dump as a developer starts it.
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>

namespace {

struct outcome {
    int status = -1;
    std::string output; // standard output, or what the command line redirects to it
};

outcome run(const std::string& arguments) {
    outcome ended;
    const std::string command = "'" EXERCISE_DUMP "' " + arguments;
    FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return ended;
    std::array<char, 4096> piece{};
    while (const std::size_t got = std::fread(piece.data(), 1, piece.size(), pipe))
        ended.output.append(piece.data(), got);
    const int state = pclose(pipe);
    if (WIFEXITED(state)) ended.status = WEXITSTATUS(state);
    return ended;
}

long lines_of(const std::string& text) { return std::ranges::count(text, '\n'); }

TEST(exercise_dump, lists_every_generator_and_the_catalogue_with_the_groups_of_a_drawn_task) {
    const outcome list = run("--list");
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(lines_of(list.output), 178);
    EXPECT_NE(list.output.find("B_alcohol_01_08_Click\n"), std::string::npos);
    EXPECT_NE(list.output.find("Z_sponsorloop_12_07\n"), std::string::npos);
    const std::string all = run("--catalogue").output;
    for (const char* part :
         {R"({"key":"boekje01","heading":"BOEKJE 1 - PROCENTEN","entries":[["alcohol","B_alcohol_01_08_Click"],)",
          R"({"key":"taak05","heading":"HERHALING TAAK 1 t/m 4","groups":[{"A":[["na elkaar",)", R"("search":[[)"})
        EXPECT_NE(all.find(part), std::string::npos) << part;
}

TEST(exercise_dump, repeats_itself_exactly_whichever_others_are_named_and_changes_with_the_seed) {
    const std::string hele = "--generator M_hele_procenten_01_08_click ";
    const std::string once = run(hele + "--count 20").output;
    EXPECT_EQ(once, run("--seed 1 --count 20 " + hele).output);
    EXPECT_NE(once, run(hele + "--count 20 --seed 2").output);
    EXPECT_EQ(lines_of(once), 20);
    EXPECT_NE(once.find(R"("variant":2,)"), std::string::npos);
    EXPECT_EQ(once.find(R"("variant":3,)"), std::string::npos);
    const std::string rente = run("--generator M_rente_01_08_click").output;
    const std::string both = run("--generator B_alcohol_01_08_Click --generator M_rente_01_08_click").output;
    EXPECT_EQ(lines_of(both), 2);
    EXPECT_TRUE(both.ends_with(rente));
}

TEST(exercise_dump, refuses_what_it_does_not_know) {
    for (const char* arguments :
         {"--frobnicate", "rente", "--generator", "--generator rente", "--generator ''", "--count", "--count 0",
          "--count -1", "--count 2x", "--count 1000001", "--seed ''", "--seed -1", "--seed 4294967296", "--seed 1.5",
          "--list --count 2", "--catalogue --list", "--svg", "--svg ''", "--list --svg /tmp"}) {
        const outcome refused = run(std::string(arguments) + " 2>&1 >/dev/null");
        EXPECT_EQ(refused.status, 2) << arguments;
        EXPECT_NE(refused.output.find("exercise_dump: "), std::string::npos) << arguments;
        EXPECT_EQ(run(std::string(arguments) + " 2>/dev/null").output, "") << arguments;
    }
    EXPECT_EQ(run("--seed 4294967295 --generator M_rente_01_08_click").status, 0);
}

TEST(exercise_dump, writes_the_pictures_of_the_questions_and_says_when_it_cannot_write) {
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "svg" / "new";
    const outcome ended = run("--count 2 --generator M_rente_01_08_click --svg '" + folder.string() + "'");
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output, "");
    EXPECT_FALSE(std::filesystem::exists(folder / "M_rente_01_08_click_3.svg"));
    std::ifstream file(folder / "M_rente_01_08_click_2.svg");
    const std::string svg(std::istreambuf_iterator<char>(file), {});
    EXPECT_TRUE(svg.starts_with("<svg ") && svg.ends_with("</svg>\n")) << svg;
    std::filesystem::remove_all(folder);
    EXPECT_EQ(run("--svg /dev/null/x 2>/dev/null").status, 1);
    EXPECT_EQ(run("--count 100 2>/dev/null >&-").status, 1);
    EXPECT_EQ(run("--list 2>/dev/null >/dev/full").status, 1);
}

} // namespace
