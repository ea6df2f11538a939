// What the player or the desktop asks for, in the real window: lines in high contrast, a colour for each
// suit.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>

#include "tests/desktop/inner_game.h"
#include "tests/desktop/reach.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// A message bus of its own, on which the desktop's settings can be read.
class DesktopSettings : public QDBusVirtualObject {
    using Settings = QMap<QString, QVariantMap>;

  public:
    DesktopSettings() {
        qDBusRegisterMetaType<Settings>();
        eventually([this] { return daemon_.output().ends_with('\n'); });
        QDBusConnection bus = QDBusConnection::connectToBus(to_qt(address()), "settings");
        bus.registerVirtualObject("/org/freedesktop/portal/desktop", this);
        bus.registerService("org.freedesktop.portal.Desktop");
    }
    ~DesktopSettings() override { QDBusConnection::disconnectFromBus("settings"); }

    std::string address() const { return daemon_.output().substr(0, daemon_.output().find('\n')); }
    void set_high_contrast(bool on) { high_contrast_ = on; }
    int questions() const { return questions_; }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& question, const QDBusConnection& bus) override {
        if (question.member() != "ReadAll") return false;
        ++questions_;
        const Settings settings{{"org.gnome.desktop.a11y.interface", {{"high-contrast", high_contrast_}}}};
        return bus.send(question.createReply(QVariant::fromValue(settings)));
    }

  private:
    ChildProcess daemon_{"/usr/bin/dbus-daemon", {"--session", "--nofork", "--print-address"}};
    bool high_contrast_ = false;
    int questions_ = 0;
};

// Whether the line around the first ace pile is the white one of high contrast.
bool is_strong(const TwinGame& game) {
    const QImage seen = image_of(game.board_pixels());
    const Rect place = frmcards.Shape1(0).place();
    const QPoint spot = to_qt(place).toRect().topLeft() + QPoint(static_cast<int>(place.width) / 2, 1);
    return seen.pixelColor(spot) == QColor(Qt::white);
}

TEST(HighContrast, IsThatOfTheDesktop) {
    DesktopSettings settings;
    TwinGame game({.program = tested_program(),
                   .deal = 26,
                   .environment = {{"DBUS_SESSION_BUS_ADDRESS", settings.address()}}});
    ASSERT_TRUE(comes_true([&] { return settings.questions() > 0; })) << game.program().errors();
    EXPECT_FALSE(is_strong(game));
    settings.set_high_contrast(true);
    // When the player comes back from the settings of the desktop.
    game.screen().minimize(game.window());
    EXPECT_TRUE(game.bring_to_front(game.window()));
    EXPECT_TRUE(comes_true([&] { return is_strong(game); }));
}

TEST(Options, AskForHighContrastAndFourColors) {
    TwinGame game(
        {.program = tested_program(), .deal = 26, .arguments = {"--high-contrast", "--four-colors"}});
    EXPECT_TRUE(is_strong(game));
    const QImage seen = image_of(game.board_pixels());
    // The first column is the Queen of Diamonds.
    const QRect index = to_qt(top_image(0).place()).toRect().adjusted(0, 0, 0, -60);
    int blue = 0;
    for (int y = index.top(); y < index.bottom(); ++y) {
        for (int x = index.left(); x < index.right(); ++x)
            blue += seen.pixelColor(x, y) == QColor("#1448e0") ? 1 : 0;
    }
    EXPECT_GT(blue, 20);
}

}  // namespace
}  // namespace tarnwick
