// Takes a picture of one of the program's windows, drawn as on a screen of any scale, font and colours. No
// display is needed.

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QPalette>
#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <map>
#include <string_view>

#include "desktop/app/qt_desktop.h"
#include "desktop/shared/high_contrast.h"
#include "desktop/shared/picture_cache.h"
#include "platform/random.h"
#include "settings/settings.h"
#include "settings/store.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace {

using namespace tarnwick;

constexpr std::uint32_t shown_deal = 26;

// Opens each of the windows, by the name it has on the command line.
const std::map<QString, std::function<void()>>& windows() {
    static const std::map<QString, std::function<void()>> all{
        {"table", [] { frmcards.raise(); }},
        {"settings", [] { frmFeatures.show(); }},
        {"statistics", [] { frmBestScore.show(); }},
        {"win", [] { frmyouwin.show(); }},
        {"error",
         [] {
             frmError.show();
             frmError.LblError.set_caption("Fatel Error in Subroutine layout_to_ace");
         }},
        {"help", [] { frmcards.mnuAbout.choose(); }},
        {"message",
         [] {
             desktop().notify({"Tarnwick", "This pile needs the other Seven of Hearts."});
         }},
        {"colour", [] { desktop().pick_color("Background Color", [](auto) {}); }},
    };
    return all;
}

QString window_names() {
    QStringList names;
    for (const auto& [name, open] : windows()) names += name;
    return names.join(", ");
}

// What a store holds after some games.
void save_games() {
    for (int place = 1; place <= 5; ++place) {
        save_setting(key_high_score(place), std::to_string(205 - 15 * place));
        save_setting(key_high_score_name(place), place == 2 ? "Wilhelmina Featherstonehaugh" : "Ada");
        save_setting(key_high_score_date(place), "11/22/2026");
    }
    save_setting(key_games_played, "27");
    save_setting(key_games_won, "3");
    save_setting(key_average_score, "2954");
}

QPalette dark_colors() {
    QPalette colors(QColor(49, 54, 59), QColor(42, 46, 50));
    colors.setColor(QPalette::Highlight, QColor(61, 174, 233));
    return colors;
}

void look_as_asked(const QCommandLineParser& line) {
    QFont font = QApplication::font();
    if (line.isSet("font")) font.setPointSizeF(line.value("font").toDouble());
    QApplication::setFont(font);
    if (line.isSet("dark")) QApplication::setPalette(dark_colors());
    if (line.isSet("high-contrast")) use_high_contrast();
    if (line.isSet("four-colors")) use_four_colors();
    if (line.isSet("rtl")) QApplication::setLayoutDirection(Qt::RightToLeft);
}

void read(QCommandLineParser& line, const QStringList& arguments) {
    line.setApplicationDescription("Takes a picture of one of the program's windows.");
    line.addHelpOption();
    line.addPositionalArgument("WINDOW", "One of " + window_names() + ".");
    line.addPositionalArgument("FILE", "The picture, a PNG file.");
    line.addOptions({{"scale", "Device pixels for a pixel, as 1.5.", "NUMBER"},
                     {"font", "Size of the desktop's font.", "POINTS"},
                     {"dark", "Dark colours."},
                     {"high-contrast", "As for those who see little."},
                     {"four-colors", "A colour for each suit."},
                     {"rtl", "Laid out from right to left."},
                     {"played", "After some games, not as a new player sees it."}});
    line.process(arguments);
}

}  // namespace

int main(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::string_view(argv[i]) == "--scale") qputenv("QT_SCALE_FACTOR", argv[i + 1]);
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCommandLineParser line;
    read(line, QApplication::arguments());
    const QStringList names = line.positionalArguments();
    if (names.size() != 2 || windows().count(names[0]) == 0) line.showHelp(2);
    look_as_asked(line);

    MemoryStore store;
    QtDesktop desktop;
    use_store(&store);
    if (line.isSet("played")) save_games();
    random_generator().replay(shown_deal);
    start_program(store);
    constexpr int time_to_open = 500;
    QTimer::singleShot(time_to_open, qApp, [&] {
        QWidget* const window = QApplication::activeWindow();
        const bool saved = window && window->grab().save(names[1]);
        // A message would wait for its answer: the program ends here and now.
        std::_Exit(saved ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    QTimer::singleShot(0, qApp, windows().at(names[0]));
    return QApplication::exec();
}
