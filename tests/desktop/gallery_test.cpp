// exercise_gallery, and what exercise_dump writes, as a developer calls them.
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct outcome {
    int status;
    QByteArray written;
    QString said;
};

outcome run(const QString& name, const QStringList& arguments) {
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + "/" + name, arguments);
    program.waitForFinished();
    const QByteArray written = program.readAllStandardOutput();
    return {program.exitCode(), written, QString::fromUtf8(program.readAllStandardError())};
}
outcome gallery(const QStringList& arguments) { return run("exercise_gallery", arguments); }

TEST(exercise_dump, writes_a_json_object_a_line) {
    for (const QStringList& arguments : {QStringList{"--catalogue"}, QStringList{"--count", "3"}}) {
        const outcome dump = run("exercise_dump", arguments);
        const QList<QByteArray> lines = dump.written.trimmed().split('\n');
        EXPECT_EQ(lines.size(), arguments.size() == 1 ? 32 : 3 * 178);
        for (const QByteArray& line : lines) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            EXPECT_FALSE(object.isEmpty()) << line.toStdString();
            EXPECT_EQ(object.value("uitlegregels").toArray().size(), arguments.size() == 1 ? 0 : 7);
        }
    }
}

TEST(exercise_gallery, writes_the_introductions_or_the_question_and_the_explanation_of_every_variant) {
    const QTemporaryDir folder;
    ASSERT_EQ(gallery({"--out", folder.path(), "--introductions"}).status, 0);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 33);
    const QString name = "M_hele_procenten_01_08_click";
    ASSERT_EQ(gallery({"--out", folder.filePath("new"), "--generator", name, "--scale", "1.5"}).status, 0);
    const QDir written(folder.filePath("new"));
    QStringList expected;
    for (const char* file : {"_variant01_uitleg", "_variant01_vraag", "_variant02_uitleg", "_variant02_vraag"})
        expected << name + file + ".png";
    ASSERT_EQ(written.entryList(QDir::Files, QDir::Name), expected);

    const QImage question(written.filePath(expected[1]));
    EXPECT_EQ(question.size(), QSize(1248, 780));
    EXPECT_NE(question, QImage(written.filePath(expected[0])));
    EXPECT_NE(question, QImage(written.filePath(expected[3])));

    gallery({"--out", folder.filePath("again"), "--generator", name, "--scale", "1.5"});
    EXPECT_EQ(question, QImage(QDir(folder.filePath("again")).filePath(expected[1])))
        << "the same seed, other pictures";
}

TEST(exercise_gallery, says_what_is_wrong) {
    const QString name = "M_rente_01_08_click";
    const std::tuple<QStringList, int, const char*> calls[]{
        {{}, 2, "--out"},
        {{"--out"}, 2, "--out needs a value"},
        {{"--out", "x", "--colour", "red"}, 2, "--colour"},
        {{"--out", "x", "--generator", "L_nergens"}, 2, "L_nergens"},
        {{"--out", "x", "--seed", "1.5"}, 2, "--seed"},
        {{"--out", "x", "--scale", "0"}, 2, "--scale"},
        {{"--out", "x", "--scale", "nan"}, 2, "--scale"},
        {{"--out", "x", "--introductions", "--generator", name}, 2, "do not go together"},
        {{"--out", "/dev/null/x", "--introductions"}, 1, "/dev/null/x"},
        {{"--out", "/dev/null/x"}, 1, "/dev/null/x"}};
    for (const auto& [arguments, status, said] : calls) {
        const outcome seen = gallery(arguments);
        EXPECT_EQ(seen.status, status) << arguments.join(' ').toStdString();
        EXPECT_TRUE(seen.said.contains(said)) << seen.said.toStdString();
    }
}

} // namespace
