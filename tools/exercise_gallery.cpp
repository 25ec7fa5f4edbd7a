// Writes what pupils see as pictures: the practice screen for each sub-variant of each exercise, as presented and
// after its explanation; or the introduction screens of all booklets. No display is needed.
//
//     exercise_gallery --out DIR [--generator NAME]... [--seed S] [--scale F]
//     exercise_gallery --out DIR --introductions [--scale F]
#include "desktop/desktop.h"
#include "forms/introduction/infoscherm.h"
#include "forms/practice/mama.h"
#include "tools/arguments.h"

#include <QApplication>
#include <QDir>

#include <iostream>

using namespace cijferwerf;

namespace {

constexpr int most_variants = 20;
constexpr double least_scale = 0.6, most_scale = 8;

// Thrown with what is to be said on standard error.
struct failure {
    std::string message;
};

struct options {
    std::string out;
    std::vector<oefening_id> generators; // empty: all that are written
    std::uint32_t seed = 1;
    double scale = 1;
    bool introductions = false;
};

options read_options(arguments words) {
    options chosen;
    while (words.next()) {
        if (words.is("--out"))
            chosen.out = words.text();
        else if (words.is("--generator"))
            chosen.generators.push_back(words.generator());
        else if (words.is("--seed"))
            chosen.seed = words.number<std::uint32_t>(0, 0xFFFFFFFF);
        else if (words.is("--introductions"))
            chosen.introductions = true;
        else if (words.is("--scale"))
            chosen.scale = words.number<double>(least_scale, most_scale);
        else
            words.unknown();
    }
    if (chosen.out.empty()) throw bad_usage{"--out DIR says where the pictures go"};
    if (chosen.introductions && !chosen.generators.empty())
        throw bad_usage{"--introductions and --generator do not go together"};
    return chosen;
}

// The desktop with a clock that stands still, so that the same seed gives the same pictures. Nobody is there to answer
// a message box: one that comes up, such as that of a failing exercise, ends it.
class gallery_desktop : public desktop {
public:
    float seconds_since_midnight() const override { return 0; }
    void ask(form&, message_box box, std::function<void(box_answer)>) override { throw failure{box.text}; }
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

    // The screens of a booklet's introduction, each as it is when it is opened.
    void write_introduction(int booklet) {
        for (int number = 1; number <= infoscherm::aantal; ++number) {
            auto& shown = forms_.get<infoscherm>(booklet, number);
            outside_.run([&] { shown.toon_voor(booklet); });
            resize(shown);
            save(shown, QString::fromStdString(shown.name()));
        }
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
        resize(screen_);
    }

    void resize(const form& shown) {
        QWidget& window = *outside_.page(shown)->window();
        window.setMinimumSize(1, 1);
        window.resize((QSizeF(shown.width, shown.height) / 15 * chosen_.scale).toSize());
    }

    void save(oefening_id generator, int variant, const char* moment) {
        save(screen_,
             QString("%1_variant%2_%3")
                 .arg(QString::fromUtf8(naam(generator).data(), static_cast<qsizetype>(naam(generator).size())))
                 .arg(variant, 2, 10, QChar('0'))
                 .arg(moment));
    }
    void save(const form& shown, const QString& name) {
        const QString file = folder_.filePath(name + ".png");
        if (!outside_.page(shown)->grab().save(file, "PNG")) throw failure{"cannot write " + file.toStdString()};
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
        const options chosen = read_options({argc, argv});
        prepare_application();
        QApplication application(argc, argv);
        dress_application();

        gallery pictures(chosen);
        for (const oefening_id generator : chosen.generators) pictures.write(generator, true);
        if (chosen.introductions) {
            for (int booklet = 1; booklet <= 12; ++booklet)
                if (const inleiding* found = zoek_inleiding(booklet); found != nullptr && found->boekje == booklet)
                    pictures.write_introduction(booklet);
        } else if (chosen.generators.empty())
            for (std::size_t id = 0; id < alle_oefeningen().size(); ++id)
                pictures.write(static_cast<oefening_id>(id), false);
        return 0;
    } catch (const bad_usage& error) {
        std::cerr << "exercise_gallery: " << error.message << "\n"
                  << "usage: exercise_gallery --out DIR [--generator NAME]... [--seed S] [--scale F]\n"
                  << "       exercise_gallery --out DIR --introductions [--scale F]\n";
        return 2;
    } catch (const failure& error) {
        std::cerr << "exercise_gallery: " << error.message << "\n";
        return 1;
    }
}
