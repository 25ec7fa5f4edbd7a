// Writes what the generators make, and what the catalogue offers, as JSON: one object a line, UTF-8.
// The same arguments give the same bytes on every platform. Nothing is shown or checked here.
//
// Status: 0 everything was written, 1 it could not be written, 2 unusable arguments.
#include "forms/practice/catalogue.h"
#include "generators/oefeningen.h"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace {

using namespace cijferwerf;

constexpr std::string_view usage = "usage: exercise_dump --list\n"
                                   "       exercise_dump --catalogue\n"
                                   "       exercise_dump [--generator NAME]... [--count N] [--seed S]\n"
                                   "  N exercises of each generator named (default: all of them, 1, seed 1);\n"
                                   "  N from 1 to 1000000, S from 0 to 4294967295\n";

constexpr float fixed_clock = 36'000; // ten o'clock, whenever it runs

struct bad_arguments {
    std::string message;
};

struct write_failed {};

// Gathers text and writes it in large pieces. finish() writes the rest; without it the rest is lost.
class output {
public:
    output() { pending_.reserve(full + full / 2); }

    output& operator<<(std::string_view text) {
        pending_ += text;
        return *this;
    }
    output& operator<<(char character) {
        pending_ += character;
        return *this;
    }
    void end_line() {
        pending_ += '\n';
        if (pending_.size() >= full) flush();
    }
    void finish() {
        flush();
        if (std::fflush(stdout) != 0) throw write_failed{};
    }

private:
    static constexpr std::size_t full = 1 << 16;

    void flush() {
        if (std::fwrite(pending_.data(), 1, pending_.size(), stdout) != pending_.size()) throw write_failed{};
        pending_.clear();
    }

    std::string pending_;
};

// ---- JSON ----

void put(output& out, std::string_view text) {
    constexpr std::string_view hex = "0123456789abcdef";
    out << '"';
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            out << '\\' << c;
        else if (code < 0x20)
            out << "\\u00" << hex[code >> 4] << hex[code & 15];
        else
            out << c;
    }
    out << '"';
}
void put(output& out, const std::string& text) { put(out, std::string_view(text)); }
void put(output& out, bool value) { out << (value ? "true" : "false"); }

template<class Number>
void put_number(output& out, Number value) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    out << std::string_view(digits, static_cast<std::size_t>(end - digits));
}
void put(output& out, int value) { put_number(out, value); }
void put(output& out, double value) { put_number(out, value); }

template<class List, class PutOne>
void put_list(output& out, const List& list, PutOne put_one) {
    out << '[';
    bool first = true;
    for (const auto& element : list) {
        if (!std::exchange(first, false)) out << ',';
        put_one(element);
    }
    out << ']';
}
void put(output& out, point corner) {
    out << '[';
    put(out, corner.x);
    out << ',';
    put(out, corner.y);
    out << ']';
}
void put(output& out, const std::vector<point>& corners) {
    put_list(out, corners, [&](point corner) { put(out, corner); });
}
void put(output& out, const tekstregels& lines) {
    put_list(out, lines, [&](const std::string& line) { put(out, line); });
}
void put(output& out, const catalogue_entry& entry) {
    out << '[';
    put(out, entry.title);
    out << ',';
    put(out, naam(entry.generator));
    out << ']';
}

// Opens with "{"key":value" and goes on with ","key":value".
class object {
public:
    explicit object(output& out) : out_(out) {}

    template<class Value>
    object& with(std::string_view key, const Value& value) {
        name(key);
        put(out_, value);
        return *this;
    }
    object& name(std::string_view key) {
        out_ << (std::exchange(first_, false) ? '{' : ',');
        put(out_, key);
        out_ << ':';
        return *this;
    }
    void end() { out_ << '}'; }

private:
    output& out_;
    bool first_ = true;
};

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

void put(output& out, const drawing& plaatje) {
    const operation_writer writer{out};
    out << '[';
    writer.ground(plaatje.ground);
    for (const drawing_op& operation : plaatje.operations()) {
        out << ',';
        std::visit(writer, operation);
    }
    out << ']';
}

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

struct arguments {
    bool list = false;
    bool catalogue = false;
    std::vector<oefening_id> generators; // empty: all
    int count = 1;
    std::uint32_t seed = 1;
};

// Every generator starts from the same seed, so that what it makes does not depend on which others are named.
void write_exercises(output& out, const arguments& asked) {
    oefeningen maker([] { return fixed_clock; });
    const auto write = [&](oefening_id generator) {
        maker.toeval.restart(asked.seed);
        maker.variant = 0;
        for (int i = 0; i < asked.count; ++i) {
            maker.maak(generator);
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

void write_catalogue(output& out) {
    const auto put_entry = [&](const catalogue_entry& entry) { put(out, entry); };
    const auto put_choice = [&](object& group, std::string_view name, std::span<const catalogue_entry> choice) {
        group.name(name);
        put_list(out, choice, put_entry);
    };
    for (const catalogue_list& list : catalogue()) {
        object line(out);
        line.with("key", list.key).with("heading", list.heading);
        if (list.drawn()) {
            line.name("groups");
            put_list(out, list.groups, [&](const review_group& choices) {
                object group(out);
                put_choice(group, "A", choices.a);
                put_choice(group, "B", choices.b);
                put_choice(group, "C", choices.c);
                group.end();
            });
            std::vector<catalogue_entry> searched;
            for (const auto& task : list.reviewed) searched.insert(searched.end(), task.begin(), task.end());
            line.name("search");
            put_list(out, searched, put_entry);
        } else {
            line.name("entries");
            put_list(out, list.entries, put_entry);
        }
        line.end();
        out.end_line();
    }
}

// ---- arguments ----

template<class Number>
Number read_number(std::string_view option, std::string_view text, Number least, Number most) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc{} || end != text.data() + text.size() || value < least || value > most)
        throw bad_arguments{std::string(option) + " takes a number from " + std::to_string(least) + " to " +
                            std::to_string(most) + ", not \"" + std::string(text) + "\""};
    return value;
}

arguments read_arguments(const std::vector<std::string_view>& words) {
    arguments asked;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view option = words[i];
        const auto value = [&] {
            if (++i == words.size()) throw bad_arguments{std::string(option) + " needs a value"};
            return words[i];
        };
        if (option == "--list")
            asked.list = true;
        else if (option == "--catalogue")
            asked.catalogue = true;
        else if (option == "--generator") {
            const std::string_view name = value();
            const auto found = zoek_oefening(name);
            if (!found) throw bad_arguments{"no generator is named \"" + std::string(name) + "\""};
            asked.generators.push_back(*found);
        } else if (option == "--count")
            asked.count = read_number<int>(option, value(), 1, 1'000'000);
        else if (option == "--seed")
            asked.seed = read_number<std::uint32_t>(option, value(), 0, 0xFFFFFFFF);
        else
            throw bad_arguments{"unknown option \"" + std::string(option) + "\""};
    }
    if ((asked.list || asked.catalogue) && words.size() > 1) throw bad_arguments{"--list and --catalogue stand alone"};
    return asked;
}

} // namespace

int main(int argc, char** argv) try {
#ifdef _WIN32
    _setmode(_fileno(stdout), _O_BINARY);
#endif
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN); // a closed pipe is a write that fails
#endif
    const arguments asked = read_arguments({argv + 1, argv + argc});
    output out;
    if (asked.list)
        write_list(out);
    else if (asked.catalogue)
        write_catalogue(out);
    else
        write_exercises(out, asked);
    out.finish();
    return 0;
} catch (const bad_arguments& bad) {
    std::fprintf(stderr, "exercise_dump: %s\n%.*s", bad.message.c_str(), static_cast<int>(usage.size()), usage.data());
    return 2;
} catch (const write_failed&) {
    std::perror("exercise_dump: cannot write");
    return 1;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "exercise_dump: %s\n", failure.what());
    return 1;
}
