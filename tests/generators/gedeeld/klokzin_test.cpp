#include "generators/gedeeld/klokzin.h"

#include <gtest/gtest.h>

namespace cijferwerf {

namespace {

// Twelve hours from midnight on, every five minutes.
constexpr std::string_view zinnen[12][12]{
    {"twaalf uur", "vijf over twaalf", "tien over twaalf", "kwart over twaalf", "tien voor half één",
     "vijf voor half één", "half één", "vijf over half één", "tien over half één", "kwart voor één", "tien voor één",
     "vijf voor één"},
    {"één uur", "vijf over één", "tien over één", "kwart over één", "tien voor half twee", "vijf voor half twee",
     "half twee", "vijf over half twee", "tien over half twee", "kwart voor twee", "tien voor twee", "vijf voor twee"},
    {"twee uur", "vijf over twee", "tien over twee", "kwart over twee", "tien voor half drie", "vijf voor half drie",
     "half drie", "vijf over half drie", "tien over half drie", "kwart voor drie", "tien voor drie", "vijf voor drie"},
    {"drie uur", "vijf over drie", "tien over drie", "kwart over drie", "tien voor half vier", "vijf voor half vier",
     "half vier", "vijf over half vier", "tien over half vier", "kwart voor vier", "tien voor vier", "vijf voor vier"},
    {"vier uur", "vijf over vier", "tien over vier", "kwart over vier", "tien voor half vijf", "vijf voor half vijf",
     "half vijf", "vijf over half vijf", "tien over half vijf", "kwart voor vijf", "tien voor vijf", "vijf voor vijf"},
    {"vijf uur", "vijf over vijf", "tien over vijf", "kwart over vijf", "tien voor half zes", "vijf voor half zes",
     "half zes", "vijf over half zes", "tien over half zes", "kwart voor zes", "tien voor zes", "vijf voor zes"},
    {"zes uur", "vijf over zes", "tien over zes", "kwart over zes", "tien voor half zeven", "vijf voor half zeven",
     "half zeven", "vijf over half zeven", "tien over half zeven", "kwart voor zeven", "tien voor zeven",
     "vijf voor zeven"},
    {"zeven uur", "vijf over zeven", "tien over zeven", "kwart over zeven", "tien voor half acht",
     "vijf voor half acht", "half acht", "vijf over half acht", "tien over half acht", "kwart voor acht",
     "tien voor acht", "vijf voor acht"},
    {"acht uur", "vijf over acht", "tien over acht", "kwart over acht", "tien voor half negen", "vijf voor half negen",
     "half negen", "vijf over half negen", "tien over half negen", "kwart voor negen", "tien voor negen",
     "vijf voor negen"},
    {"negen uur", "vijf over negen", "tien over negen", "kwart over negen", "tien voor half tien",
     "vijf voor half tien", "half tien", "vijf over half tien", "tien over half tien", "kwart voor tien",
     "tien voor tien", "vijf voor tien"},
    {"tien uur", "vijf over tien", "tien over tien", "kwart over tien", "tien voor half elf", "vijf voor half elf",
     "half elf", "vijf over half elf", "tien over half elf", "kwart voor elf", "tien voor elf", "vijf voor elf"},
    {"elf uur", "vijf over elf", "tien over elf", "kwart over elf", "tien voor half twaalf", "vijf voor half twaalf",
     "half twaalf", "vijf over half twaalf", "tien over half twaalf", "kwart voor twaalf", "tien voor twaalf",
     "vijf voor twaalf"},
};

TEST(Klokzin, SaysEveryFiveMinutesOfTheDialAsItIsSaidBeforeAndAfterNoon) {
    for (int five = 0; five < 144; ++five) {
        const std::string_view said = zinnen[five / 12][five % 12];
        EXPECT_EQ(klokzin({five * 5}), said);
        EXPECT_EQ(klokzin({five * 5 + 720}), said);
    }
}

} // namespace

} // namespace cijferwerf
