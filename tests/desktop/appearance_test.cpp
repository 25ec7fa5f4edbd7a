#include "desktop/appearance.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

TEST(desktop_settings, are_taken_from_what_the_desktop_says_in_one_way_or_another) {
    const struct {
        const char *group, *name;
        QVariant value;
        const char* theme;
        look_settings expected;
    } rows[]{
        {"org.freedesktop.appearance", "contrast", 1U, "", {true, false}},
        {"org.freedesktop.appearance", "contrast", 0U, "Adwaita", {false, false}},
        {"org.gnome.desktop.a11y.interface", "high-contrast", true, "", {true, false}},
        {"org.gnome.desktop.interface", "gtk-theme", "HighContrastInverse", "", {true, false}},
        {"org.gnome.desktop.interface", "gtk-theme", "Adwaita", "HighContrast:dark", {true, false}},
        {"org.gnome.desktop.interface", "text-scaling-factor", 1.25, "", {false, true}},
        {"org.gnome.desktop.interface", "text-scaling-factor", 1.0, "", {false, false}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(settings_from({{row.group, {{row.name, row.value}}}}, row.theme), row.expected)
            << row.name << ' ' << row.theme;
}

} // namespace
} // namespace cijferwerf
