// Drawings and pages as they come out, texts as wide as they are laid out, and what the desktop says of its look.
#include "desktop/appearance.h"
#include "desktop/picture_painter.h"
#include "desktop/report_printer.h"
#include "desktop/shipped.h"

#include <QBitmap>
#include <QCoreApplication>
#include <QFile>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

// A drawing with a white margin around it.
QImage painted(const drawing& shown, double scale = 1, int margin = 0) {
    const QSize size = (QSizeF(drawing::inner_width, drawing::inner_height) / 15 * scale).toSize();
    QImage image(size.grownBy(QMargins(margin, margin, margin, margin)), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter on(&image);
    picture_cache pictures;
    paint_drawing(on, shown, QRectF(QPointF(margin, margin), size), pictures);
    return image;
}

int count(const QImage& image, kleur colour) {
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) pixels += (image.pixel(x, y) & 0xFFFFFF) == kleur_rgb[colour];
    return pixels;
}

TEST(picture_text, is_as_wide_in_the_face_as_it_is_laid_out) {
    for (const double points : {8.25, 12.0, 20.0})
        for (const char* text :
             {"            =", "Bereken: 5 % van 26.400 = ...", "€ 1,25 ½ ² é", "AVAToWe f. 'Yes' \"LT\""})
            EXPECT_NEAR(QFontMetricsF(face()).horizontalAdvance(QString::fromUtf8(text)) * points * 20 / face_size,
                        text_width(text, points, 1.0), 1.5)
                << text << " in " << QFontInfo(face()).family().toStdString();
    EXPECT_NEAR(QFontMetricsF(face(true)).horizontalAdvance("Dat is 1.250,50 euro!") * 260 / face_size,
                bold_text_width("Dat is 1.250,50 euro!", 13), 1.5);
}

TEST(picture_text, is_painted_as_wide_at_every_scale_as_it_is_laid_out) {
    drawing shown;
    shown.text_size = 12;
    shown.print_at(300, 500, "HHHHHHHHHHHHHHHH");
    for (const double scale : {1.0, 1.3, 2.0, 3.0}) {
        const QImage ink = painted(shown, scale).createMaskFromColor(0xFFFFFFFF, Qt::MaskInColor);
        const int width = QRegion(QBitmap::fromImage(ink)).boundingRect().width();
        EXPECT_NEAR(width / scale * 15, text_width("HHHHHHHHHHHHHHHH", 12), 70) << "at scale " << scale;
    }
}

TEST(picture_box, filled_boxes_reach_the_edges_and_leave_no_gap) {
    for (const double scale : {1.0, 1.37, 2.0}) {
        drawing shown;
        for (int i = 0; i < 10; ++i)
            shown.filled_box(i * 538, 0, 538, drawing::inner_height, i % 2 == 0 ? rood : blauw);
        const QImage image = painted(shown, scale);
        EXPECT_EQ(count(image, rood) + count(image, blauw), image.width() * image.height()) << scale;
    }
}

TEST(picture_box, lines_along_the_axes_are_sharp_as_wide_as_they_should_be_and_have_the_gaps_of_their_style) {
    const auto pixels = [](int width, line_style style, double scale = 1) {
        drawing shown;
        shown.line_width = width;
        shown.style = style;
        shown.line(1500, 150, 1500, 1650, groen);
        return count(painted(shown, scale), groen);
    };
    EXPECT_EQ(pixels(1, line_style::solid, 2), 200 * 2);
    EXPECT_EQ(pixels(3, line_style::solid), 100 * 3);
    EXPECT_EQ(pixels(3, line_style::dot), 100 * 3) << "a wide line has no gaps";
    EXPECT_EQ(pixels(1, line_style::transparent), 0);

    drawing flat; // a flat box is a line too
    flat.filled_box(150, 300, 4500, 0, rood);
    flat.filled_box(4650, 600, -4500, 1, blauw);
    flat.style = line_style::dot;
    flat.box(150, 900, 4500, 0, groen);
    EXPECT_EQ(count(painted(flat), rood), 300);
    EXPECT_EQ(count(painted(flat), blauw), 300);
    for (const double scale : {1.0, 1.37, 3.0}) EXPECT_LT(count(painted(flat, scale), groen), 240 * scale * scale);
}

TEST(picture_box, a_missing_picture_leaves_a_line_and_the_rest_and_nothing_is_painted_outside) {
    drawing shown;
    shown.picture("bestaatniet.bmp");
    const int line = count(painted(shown), wit);
    shown.filled_box(1500, 900, 300, 300, rood);
    shown.sector(2700, 1050, 900, 0, 90, blauw, true);
    const QImage image = painted(shown);
    EXPECT_LT(line, image.width() * image.height() - 200) << "the file is named";
    EXPECT_EQ(count(image, rood), 20 * 20);
    EXPECT_EQ(count(image.copy(0, 30, 100, 100), wit), 100 * 100) << "the line stays small";
    EXPECT_EQ(image.pixelColor(200, 50), QColor(0, 0, 255)) << "a sector turns counter-clockwise from three o'clock";
    EXPECT_EQ(count(image.copy(120, 10, 60, 120), blauw) + count(image.copy(120, 70, 120, 60), blauw), 0);

    shown.filled_box(-9000, -9000, 20000, 20000, rood);
    shown.text_size = 40;
    shown.print_at(5000, -200, "MMMM");
    const QImage framed = painted(shown, 1, 50);
    EXPECT_EQ(count(framed, wit), framed.width() * framed.height() - image.width() * image.height());
}

TEST(picture_box, a_picture_of_few_colours_is_scaled_without_a_grain) {
    QImage slope(1076, 426, QImage::Format_Indexed8);
    slope.setColorTable({qRgb(234, 242, 251), qRgb(217, 179, 137), qRgb(47, 127, 209), qRgb(63, 73, 86)});
    for (int x = 0; x < slope.width(); ++x)
        for (int y = 0; y < slope.height(); ++y) slope.setPixel(x, y, static_cast<unsigned>((x + y) / 40 % 4));
    const std::string name = "helling" + std::to_string(QCoreApplication::applicationPid()) + ".bmp";
    const QString file = QCoreApplication::applicationDirPath() + '/' + name.c_str();
    ASSERT_TRUE(slope.save(file, "BMP"));
    drawing shown;
    shown.picture(name);
    EXPECT_EQ(painted(shown).pixelColor(10, 10), QColor(217, 179, 137));
    QFile::remove(file);
}

TEST(report, is_printed_on_one_page_with_its_columns_in_line) {
    QTemporaryDir folder;
    const QString file = folder.filePath("score.pdf");
    report printed{"score", {{14, {{0, "Uitslag van de opgaven"}}}}};
    for (int i = 0; i < 50; ++i)
        printed.lines.push_back({9, {{0, "oefening " + std::to_string(i)}, {30, "goed"}, {45, "één keer"}}});
    EXPECT_EQ(print_report(printed, file).what, print_result::outcome::printed);
    const print_result refused = print_report(printed, "/bestaat/niet/score.pdf");
    EXPECT_TRUE(refused.what == print_result::outcome::failed && !refused.reason.empty());

    QProcess reader;
    reader.start("pdftotext", {"-layout", file, "-"});
    ASSERT_TRUE(reader.waitForFinished()) << "pdftotext is not installed";
    const QString text = QString::fromUtf8(reader.readAllStandardOutput());
    EXPECT_EQ(text.count('\f'), 1) << "pages";
    QStringList lines = text.split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(lines.takeFirst().trimmed(), "Uitslag van de opgaven");
    lines = lines.filter(QRegularExpression(QString::fromUtf8("^ *oefening \\d+ +goed +één keer$")));
    EXPECT_EQ(lines.size(), 50);
    for (const QString& line : lines)
        EXPECT_NEAR(static_cast<double>(line.indexOf("goed")), static_cast<double>(lines[0].indexOf("goed")), 1);
}

TEST(desktop_settings, are_taken_from_what_the_desktop_says_in_one_way_or_another) {
    const char *appearance = "org.freedesktop.appearance", *gnome = "org.gnome.desktop.interface";
    const std::tuple<const char*, const char*, QVariant, const char*, look_settings> rows[]{
        {appearance, "contrast", 1U, "", {true, false}},
        {appearance, "contrast", 0U, "Adwaita", {false, false}},
        {"org.gnome.desktop.a11y.interface", "high-contrast", true, "", {true, false}},
        {gnome, "gtk-theme", "HighContrastInverse", "", {true, false}},
        {gnome, "gtk-theme", "Adwaita", "HighContrast:dark", {true, false}},
        {gnome, "text-scaling-factor", 1.25, "", {false, true}},
    };
    for (const auto& [group, name, value, theme, expected] : rows)
        EXPECT_EQ(settings_from({{group, {{name, value}}}}, theme), expected) << name << ' ' << theme;
}

TEST(icon, of_each_size_has_a_blue_ship) {
    for (const int size : {16, 24, 32, 48, 64})
        EXPECT_EQ(program_icon().pixmap(size).toImage().pixelColor(size / 2, size * 3 / 4), QColor("#1D4E9E")) << size;
}

} // namespace
} // namespace cijferwerf
