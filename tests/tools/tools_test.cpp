// exercise_dump and exercise_gallery as a developer starts them, through the shell.
#include <array>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

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

const std::string folder = testing::TempDir() + "tools " + std::to_string(getpid()), quoted = "'" + folder + "/new'";

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
    EXPECT_EQ(dump("--count 2 --generator M_rente_01_08_click --svg " + quoted + "; grep -l '^<svg .*' " + quoted +
                   "/* | wc -l"),
              "2\n");
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
}

#ifdef CIJFERWERF_DESKTOP
TEST(exercise_gallery, writes_the_introductions_or_the_question_and_the_explanation_of_every_variant) {
    const auto checksums = [](const std::string& arguments) {
        std::istringstream lines(
            run("exercise_gallery", "--out " + quoted + " " + arguments + "; cksum " + quoted + "/*").output);
        std::map<std::string, std::string> sums; // by checksum the file
        for (std::string sum, line; lines >> sum && std::getline(lines, line);) sums[sum] = line;
        std::filesystem::remove_all(folder);
        return sums;
    };
    EXPECT_EQ(checksums("--introductions").size(), 33U);
    const std::string hele = "--generator M_hele_procenten_01_08_click ";
    EXPECT_EQ(checksums(hele).size(), 4U);
    EXPECT_EQ(checksums(hele), checksums(hele)) << "the same seed, other pictures";
    EXPECT_NE(checksums(hele), checksums(hele + "--scale 1.5"));
}

TEST(exercise_gallery, says_what_is_wrong) {
    refuses("exercise_gallery", 2,
            {"", "--out", "--out x --colour red", "--out x --generator L_nergens", "--out x --seed 1.5",
             "--out x --scale 0", "--out x --scale nan", "--out x --introductions --generator M_rente_01_08_click"});
    refuses("exercise_gallery", 1, {"--out /dev/null/x --introductions", "--out /dev/null/x"});
}
#endif

} // namespace
