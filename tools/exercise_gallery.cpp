// Writes what pupils see as pictures: the practice screen for each sub-variant of each exercise, as presented and
// after its explanation. No display is needed.
//
//     exercise_gallery --out DIR [--generator NAME]... [--seed S] [--scale F]
#include "desktop/desktop.h"
#include "forms/practice/mama.h"

#include <QApplication>
#include <QDir>

#include <charconv>
#include <iostream>

using namespace cijferwerf;

namespace {

constexpr int most_variants = 20;
constexpr double least_scale = 0.6, most_scale = 8;

// Thrown with what is to be said on standard error.
struct bad_usage {
    std::string message;
};
struct failure {
    std::string message;
};

struct options {
    std::string out;
    std::vector<oefening_id> generators; // empty: all that are written
    std::uint32_t seed = 1;
    double scale = 1;
};

template<class Number>
Number number(std::string_view text, std::string_view option) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        throw bad_usage{regel(option, " takes a number, not \"", text, "\"")};
    return value;
}

options read_options(const std::vector<std::string_view>& arguments) {
    options chosen;
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        const std::string_view option = arguments[i];
        if (option != "--out" && option != "--generator" && option != "--seed" && option != "--scale")
            throw bad_usage{regel("unknown option \"", option, "\"")};
        if (i + 1 == arguments.size()) throw bad_usage{regel(option, " needs a value")};
        const std::string_view value = arguments[i + 1];
        if (option == "--out") chosen.out = value;
        if (option == "--seed") chosen.seed = number<std::uint32_t>(value, option);
        if (option == "--scale") chosen.scale = number<double>(value, option);
        if (option == "--generator") {
            const auto id = zoek_oefening(value);
            if (!id) throw bad_usage{regel("no generator is called \"", value, "\"")};
            chosen.generators.push_back(*id);
        }
    }
    if (chosen.out.empty()) throw bad_usage{"--out DIR says where the pictures go"};
    if (!(chosen.scale >= least_scale && chosen.scale <= most_scale)) throw bad_usage{"--scale takes 0.6 to 8"};
    return chosen;
}

// The desktop with a clock that stands still, so that the same seed gives the same pictures. Nobody is there to answer
// a message box: one that comes up, such as that of a failing exercise, ends it.
class gallery_desktop : public desktop {
public:
    float seconds_since_midnight() const override { return 0; }
    box_answer ask(const std::string& text, const std::string&, box_buttons) override { throw failure{text}; }
};

// A list of the catalogue that offers a generator, and its place in it.
struct offer {
    const catalogue_list* list;
    int place;
};
std::optional<offer> find_offer(oefening_id generator) {
    for (const catalogue_list& list : catalogue())
        for (std::size_t i = 0; i < list.entries.size(); ++i)
            if (list.entries[i].generator == generator) return offer{&list, static_cast<int>(i)};
    return std::nullopt;
}

class gallery {
public:
    explicit gallery(const options& chosen) : chosen_(chosen), folder_(QString::fromStdString(chosen.out)) {
        if (!folder_.mkpath(".")) throw failure{"cannot make the folder " + chosen_.out};
    }

    void write(oefening_id generator, bool also_blank) {
        const auto offered = find_offer(generator);
        if (!offered) throw bad_usage{regel("no list offers ", naam(generator))};
        open(*offered->list);
        for (int variant = 1; variant <= most_variants; ++variant) {
            screen_.toeval.restart(chosen_.seed);
            screen_.variant = variant - 1;
            outside_.run([this, &offered] {
                screen_.presentatielijst.selected = offered->place;
                screen_.presentatielijst_click();
            });
            if (screen_.variant != variant) break;                      // wrapped: all have been seen
            if (kaal(screen_.antwoord_1).empty() && !also_blank) break; // not written yet
            save(generator, variant, "vraag");
            outside_.run([this] { screen_.knop_click(screen_.juiste_letter[0] - 'A' + 1); });
            outside_.run([this] { screen_.uitleggeven_click(); });
            save(generator, variant, "uitleg");
        }
        outside_.run([this] { screen_.Timer1.stop(); });
    }

private:
    void open(const catalogue_list& list) {
        outside_.run([this, &list] {
            screen_.unload();
            forms_.globalen.gekozen_pakket = list.set;
            forms_.globalen.gekozen_onderdeel = list.key;
            screen_.zet_opschrift(std::string(list.heading), std::string(list.set), true);
            screen_.open();
        });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QSizeF size(screen_.width / 15.0, screen_.height / 15.0);
        page().window()->setMinimumSize(1, 1);
        page().window()->resize((size * chosen_.scale).toSize());
    }

    form_page& page() { return *outside_.page(screen_); }

    void save(oefening_id generator, int variant, const char* moment) {
        const QString file =
            QString("%1_variant%2_%3.png")
                .arg(QString::fromUtf8(naam(generator).data(), static_cast<qsizetype>(naam(generator).size())))
                .arg(variant, 2, 10, QChar('0'))
                .arg(moment);
        if (!page().grab().save(folder_.filePath(file), "PNG"))
            throw failure{"cannot write " + folder_.filePath(file).toStdString()};
    }

    const options& chosen_;
    QDir folder_;
    gallery_desktop outside_;
    formulieren forms_{outside_};
    mama& screen_ = forms_.get<mama>();
};

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    try {
        const options chosen = read_options({argv + 1, argv + argc});
        prepare_application();
        QApplication application(argc, argv);
        dress_application();

        gallery pictures(chosen);
        for (const oefening_id generator : chosen.generators) pictures.write(generator, true);
        if (chosen.generators.empty())
            for (std::size_t id = 0; id < alle_oefeningen().size(); ++id)
                pictures.write(static_cast<oefening_id>(id), false);
        return 0;
    } catch (const bad_usage& error) {
        std::cerr << "exercise_gallery: " << error.message << "\n"
                  << "usage: exercise_gallery --out DIR [--generator NAME]... [--seed S] [--scale F]\n";
        return 2;
    } catch (const failure& error) {
        std::cerr << "exercise_gallery: " << error.message << "\n";
        return 1;
    }
}
