#include "desktop/shared/high_contrast.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>
#include <chrono>

#include "desktop/shared/qt_convert.h"
#include "view/contrast.h"

namespace tarnwick {
namespace {

using Namespaces = QMap<QString, QVariantMap>;

QColor text_of(const QPalette& palette) { return palette.color(QPalette::Active, QPalette::WindowText); }
QColor ground_of(const QPalette& palette) { return palette.color(QPalette::Active, QPalette::Window); }

QPalette strong_palette(bool dark) {
    const QColor text = dark ? Qt::white : Qt::black;
    const QColor ground = dark ? Qt::black : Qt::white;
    const QColor chosen = dark ? QColor(255, 230, 0) : QColor(0, 0, 160);
    const QColor disabled = dark ? QColor(170, 170, 170) : QColor(85, 85, 85);
    QPalette palette;
    for (const QPalette::ColorRole role : {QPalette::Window,
                                           QPalette::Base,
                                           QPalette::AlternateBase,
                                           QPalette::Button,
                                           QPalette::ToolTipBase,
                                           QPalette::HighlightedText}) {
        palette.setColor(role, ground);
    }
    for (const QPalette::ColorRole role : {QPalette::WindowText,
                                           QPalette::Text,
                                           QPalette::ButtonText,
                                           QPalette::BrightText,
                                           QPalette::ToolTipText,
                                           QPalette::PlaceholderText,
                                           QPalette::Light,
                                           QPalette::Midlight,
                                           QPalette::Mid,
                                           QPalette::Dark,
                                           QPalette::Shadow}) {
        palette.setColor(role, text);
    }
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::Link, QPalette::LinkVisited}) {
        palette.setColor(role, chosen);
    }
    return palette;
}

bool environment_asks() {
    return qEnvironmentVariableIsSet("TARNWICK_HIGH_CONTRAST") ||
           qgetenv("GTK_THEME").startsWith("HighContrast");
}

// Where the settings of the desktop can be read from, whichever it is.
QDBusMessage question_for_settings() {
    QDBusMessage question = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop",
                                                           "/org/freedesktop/portal/desktop",
                                                           "org.freedesktop.portal.Settings",
                                                           "ReadAll");
    // A desktop that has it has started it.
    question.setAutoStartService(false);
    question << QStringList{"org.freedesktop.appearance", "org.gnome.desktop.a11y.interface"};
    return question;
}

bool settings_ask(const Namespaces& settings) {
    return settings["org.freedesktop.appearance"]["contrast"].toUInt() == 1 ||
           settings["org.gnome.desktop.a11y.interface"]["high-contrast"].toBool();
}

void ask_desktop() {
    auto* answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question_for_settings()), qApp);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer] {
        const QDBusPendingReply<Namespaces> reply = *answer;
        answer->deleteLater();
        if (reply.isValid() && settings_ask(reply.value())) use_high_contrast();
    });
}

}  // namespace

bool has_high_contrast(const QPalette& palette) {
    return is_high_contrast(from_qt(text_of(palette)), from_qt(ground_of(palette)));
}

void use_high_contrast() {
    const QPalette palette = QApplication::palette();
    if (has_high_contrast(palette)) return;
    QApplication::setPalette(strong_palette(ground_of(palette).lightness() < text_of(palette).lightness()));
}

void follow_desktop_contrast() {
    if (environment_asks()) return use_high_contrast();
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return;
    qDBusRegisterMetaType<Namespaces>();
    constexpr std::chrono::milliseconds a_moment{200};
    QTimer::singleShot(a_moment, qApp, ask_desktop);
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, qApp, [](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) ask_desktop();
    });
}

QPalette outlined(QPalette palette) {
    palette.setColor(QPalette::Window, text_of(palette));
    return palette;
}

}  // namespace tarnwick
