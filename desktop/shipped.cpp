#include "desktop/shipped.h"

#include <QCoreApplication>
#include <QFile>
#include <QFontDatabase>
#include <QImage>
#include <QPixmap>
#include <QResource>

#include <algorithm>

namespace cijferwerf {

QString shipped_file(const QString& name) {
    const QString folder = QCoreApplication::applicationDirPath();
    for (const char* place : {"/", "/../share/cijferwerf/"})
        if (const QString file = folder + place + name; QFile::exists(file)) return file;
    return folder + "/../libexec/cijferwerf/" + name;
}

QIcon program_icon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        const QResource pixels(QString(":/icon/%1.rgba").arg(size));
        if (pixels.isValid())
            icon.addPixmap(QPixmap::fromImage(QImage(pixels.data(), size, size, QImage::Format_RGBA8888)));
    }
    return icon;
}

void load_shipped_face() {
    const QStringList there = QFontDatabase::families();
    if (std::any_of(faces.begin(), faces.end(), [&](const QString& face) { return there.contains(face); })) return;
    for (const char* file : {"LiberationSans-Regular.ttf", "LiberationSans-Bold.ttf"})
        QFontDatabase::addApplicationFont(shipped_file(file));
}

} // namespace cijferwerf
