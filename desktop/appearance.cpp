#include "desktop/appearance.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QGuiApplication>
#include <QTimer>

namespace cijferwerf {

namespace {

constexpr double larger_from = 1.05; // times the usual size
look_settings current;

void take_up(const portal_settings& read, const std::function<void()>& changed) {
    const look_settings asked = settings_from(read, qgetenv("GTK_THEME"));
    if (asked == current) return;
    current = asked;
    changed();
}

// Without a session bus there is no portal, and asking for one would start a bus.
bool has_session_bus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

void ask_desktop(const std::function<void()>& changed) {
    if (!has_session_bus()) return take_up({}, changed);
    qDBusRegisterMetaType<portal_settings>();
    QDBusMessage question =
        QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                       "org.freedesktop.portal.Settings", "ReadAll");
    question << QStringList{"org.freedesktop.appearance", "org.gnome.desktop.interface",
                            "org.gnome.desktop.a11y.interface"};
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), qApp);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, [answer, changed] {
        const QDBusPendingReply<portal_settings> reply = *answer;
        take_up(reply.isError() ? portal_settings() : reply.value(), changed);
        answer->deleteLater();
    });
}

} // namespace

look_settings desktop_settings() { return current; }

look_settings settings_from(const portal_settings& read, const QByteArray& theme_in_environment) {
    const auto value = [&](const char* group, const char* name) { return read.value(group).value(name); };
    const QString theme = value("org.gnome.desktop.interface", "gtk-theme").toString();
    return {.high_contrast = value("org.freedesktop.appearance", "contrast").toInt() == 1 ||
                             value("org.gnome.desktop.a11y.interface", "high-contrast").toBool() ||
                             theme.startsWith("HighContrast") || theme_in_environment.startsWith("HighContrast"),
            .larger_text = value("org.gnome.desktop.interface", "text-scaling-factor").toDouble() > larger_from};
}

void follow_desktop_settings(std::function<void()> changed) {
    constexpr int after_the_start = 200; // ms
    QTimer::singleShot(after_the_start, qApp, [changed] { ask_desktop(changed); });
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, [changed](Qt::ApplicationState now) {
        if (now == Qt::ApplicationActive) ask_desktop(changed);
    });
}

} // namespace cijferwerf
