// Writes what the generators make, and what the catalogue offers, as JSON: one object a line, UTF-8; or the pictures of
// the questions as SVG files.
// The same arguments give the same bytes on every platform. Nothing is shown or checked here.
//
// Status: 0 everything was written, 1 it could not be written, 2 unusable arguments.
#include "forms/practice/catalogue.h"
#include "runtime/svg.h"
#include "tools/arguments.h"
#include "tools/json_writer.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace cijferwerf {

namespace {

using json::object;
using json::output;

constexpr std::string_view usage = "usage: exercise_dump --list\n"
                                   "       exercise_dump --catalogue\n"
                                   "       exercise_dump [--generator NAME]... [--count N] [--seed S] [--svg DIR]\n"
                                   "  N exercises of each generator named (default: all of them, 1, seed 1);\n"
                                   "  N from 1 to 1000000, S from 0 to 4294967295;\n"
                                   "  --svg: instead, the picture of each question as DIR/NAME_1.svg and so on\n";

constexpr float fixed_clock = 36'000; // ten o'clock, whenever it runs

// ---- an exercise ----

struct operation_writer {
    output& out;

    object operation(std::string_view op) const {
        object written(out);
        written.with("op", op);
        return written;
    }
    static object& outline(object& of, const pen& pen) {
        return of.with("line_width", pen.width).with("style", static_cast<int>(pen.style));
    }

    void ground(kleur colour) const { operation("ground").with("colour", static_cast<int>(colour)).end(); }
    void operator()(const text_op& op) const {
        operation("text")
            .with("text", op.text)
            .with("x", op.x)
            .with("y", op.y)
            .with("colour", static_cast<int>(op.colour))
            .with("size", op.size)
            .end();
    }
    void operator()(const line_op& op) const {
        operation("line")
            .with("x1", op.from.x)
            .with("y1", op.from.y)
            .with("x2", op.to.x)
            .with("y2", op.to.y)
            .with("colour", static_cast<int>(op.pen.colour))
            .with("width", op.pen.width)
            .with("style", static_cast<int>(op.pen.style))
            .end();
    }
    void operator()(const box_op& op) const {
        object written = operation("box");
        written.with("x", op.x).with("y", op.y).with("width", op.width).with("height", op.height);
        written.with("colour", static_cast<int>(op.pen.colour)).with("filled", op.filled);
        outline(written, op.pen).end();
    }
    void operator()(const circle_op& op) const {
        object written = operation("circle");
        written.with("x", op.centre.x).with("y", op.centre.y);
        written.with("radius_x", op.radius_x).with("radius_y", op.radius_y);
        written.with("start", op.start).with("sweep", op.sweep);
        written.with("colour", static_cast<int>(op.pen.colour)).with("filled", op.filled);
        outline(written, op.pen).end();
    }
    void operator()(const polygon_op& op) const {
        object written = operation("polygon");
        written.with("points", op.corners);
        written.with("colour", static_cast<int>(op.pen.colour)).with("filled", op.filled);
        outline(written, op.pen).end();
    }
    void operator()(const picture_op& op) const { operation("picture").with("file", op.file).end(); }
};

} // namespace

// Found by their types.
static void put(output& out, point corner) { put(out, std::array{corner.x, corner.y}); }
static void put(output& out, const catalogue_entry& entry) { put(out, std::array{entry.title, naam(entry.generator)}); }
static void put(output& out, const drawing& plaatje) {
    const operation_writer writer{out};
    out << '[';
    writer.ground(plaatje.ground);
    for (const drawing_op& operation : plaatje.operations()) {
        out << ',';
        std::visit(writer, operation);
    }
    out << ']';
}

namespace {

void write_exercise(output& out, std::string_view generator, const oefening& made) {
    object(out)
        .with("generator", generator)
        .with("variant", made.variant)
        .with("vraagregels", made.vraagregels)
        .with("uitlegregels", made.uitlegregels)
        .with("tipregels_1", made.tipregels_1)
        .with("tipregels_2", made.tipregels_2)
        .with("foutregels_2", made.foutregels_2)
        .with("foutregels_3", made.foutregels_3)
        .with("foutregels_4", made.foutregels_4)
        .with("uitlegopdrachten", made.uitlegopdrachten)
        .with("antwoord_1", made.antwoord_1)
        .with("antwoord_2", made.antwoord_2)
        .with("antwoord_3", made.antwoord_3)
        .with("antwoord_4", made.antwoord_4)
        .with("juiste_positie", made.juiste_positie)
        .with("hulpmiddel", made.hulpmiddel)
        .with("tijdlimiet", made.tijdlimiet)
        .with("plaatje", static_cast<const drawing&>(made.plaatje))
        .end();
    out.end_line();
}

// ---- the three things it writes ----

struct requested {
    bool list = false;
    bool catalogue = false;
    std::vector<oefening_id> generators; // empty: all
    int count = 1;
    std::uint32_t seed = 1;
    std::optional<std::filesystem::path> svg; // a folder
};

void write_picture(const std::filesystem::path& folder, std::string_view generator, int number, const drawing& shown) {
    const std::filesystem::path file = folder / regel(generator, "_", kaal(number), ".svg");
    std::ofstream out(file, std::ios::binary);
    out << svg_of(shown);
    if (!out.flush()) throw std::runtime_error("cannot write " + file.string());
}

// Every generator starts from the same seed, so that what it makes does not depend on which others are named.
void write_exercises(output& out, const requested& asked) {
    if (asked.svg) std::filesystem::create_directories(*asked.svg);
    oefeningen maker([] { return fixed_clock; });
    const auto write = [&](oefening_id generator) {
        maker.toeval.restart(asked.seed);
        maker.variant = 0;
        for (int i = 0; i < asked.count; ++i) {
            maker.maak(generator);
            if (asked.svg)
                write_picture(*asked.svg, naam(generator), i + 1, maker.plaatje);
            else
                write_exercise(out, naam(generator), maker);
        }
    };
    for (const oefening_id generator : asked.generators) write(generator);
    if (asked.generators.empty())
        for (std::size_t i = 0; i < alle_oefeningen().size(); ++i) write(static_cast<oefening_id>(i));
}

void write_list(output& out) {
    for (const oefening_soort& generator : alle_oefeningen()) {
        out << generator.name;
        out.end_line();
    }
}

// A review task's titles run what a search for them finds.
void write_groups(output& out, const catalogue_list& list) {
    const auto entries = [&](titles choice) {
        std::vector<catalogue_entry> found;
        for (const std::string_view title : choice) found.push_back({title, zoek_generator(list, 0, title).value()});
        return found;
    };
    put_list(out, list.groups, [&](const review_group& choices) {
        object group(out);
        group.with("A", entries(choices.a)).with("B", entries(choices.b)).with("C", entries(choices.c)).end();
    });
}

void write_catalogue(output& out) {
    for (const catalogue_list& list : catalogue()) {
        object line(out);
        line.with("key", list.key).with("heading", list.heading);
        if (list.drawn()) {
            line.name("groups");
            write_groups(out, list);
            std::vector<catalogue_entry> searched;
            for (const auto& task : list.reviewed) searched.insert(searched.end(), task.begin(), task.end());
            line.with("search", searched);
        } else
            line.with("entries", list.entries);
        line.end();
        out.end_line();
    }
}

requested read_request(arguments words) {
    requested asked;
    int options = 0;
    for (; words.next(); ++options) {
        if (words.is("--list"))
            asked.list = true;
        else if (words.is("--catalogue"))
            asked.catalogue = true;
        else if (words.is("--generator"))
            asked.generators.push_back(words.generator());
        else if (words.is("--count"))
            asked.count = words.number<int>(1, 1'000'000);
        else if (words.is("--seed"))
            asked.seed = words.number<std::uint32_t>(0, 0xFFFFFFFF);
        else if (words.is("--svg"))
            asked.svg = words.folder();
        else
            words.unknown();
    }
    if ((asked.list || asked.catalogue) && options > 1) throw bad_usage{"--list and --catalogue stand alone"};
    return asked;
}

} // namespace

} // namespace cijferwerf

using namespace cijferwerf;

int main(int argc, char** argv) try {
#ifdef _WIN32
    _setmode(_fileno(stdout), _O_BINARY);
#endif
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN); // a closed pipe is a write that fails
#endif
    const requested asked = read_request({argc, argv});
    output out;
    if (asked.list)
        write_list(out);
    else if (asked.catalogue)
        write_catalogue(out);
    else
        write_exercises(out, asked);
    out.finish();
    return 0;
} catch (const bad_usage& bad) {
    std::fprintf(stderr, "exercise_dump: %s\n%.*s", bad.message.c_str(), static_cast<int>(usage.size()), usage.data());
    return 2;
} catch (const json::write_failed&) {
    std::perror("exercise_dump: cannot write");
    return 1;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "exercise_dump: %s\n", failure.what());
    return 1;
}
