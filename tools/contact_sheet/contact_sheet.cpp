// Draws SVG files onto one sheet, so that a set of pictures can be judged side by side with the renderer that
// the program itself uses.

#include <QByteArray>
#include <QColor>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QSvgRenderer>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace {

struct Picture {
    QString name;
    std::unique_ptr<QSvgRenderer> renderer;
    QSize size;
};

struct Layout {
    int columns = 13;
    int gap = 6;
    int caption_height = 0;
    std::optional<QPoint> overlap;
};

// How a colour is seen: three rows of weights for linear red, green and blue.
using Vision = std::array<std::array<double, 3>, 3>;

constexpr Vision grey_vision{{{0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}}};
constexpr Vision protan_vision{{{0.1124, 0.8876, 0.0}, {0.1124, 0.8876, 0.0}, {0.0040, -0.0040, 1.0}}};
constexpr Vision deutan_vision{{{0.2927, 0.7073, 0.0}, {0.2927, 0.7073, 0.0}, {-0.0223, 0.0223, 1.0}}};

std::optional<Vision> vision_named(const QString& name) {
    if (name == QLatin1String("grey")) return grey_vision;
    if (name == QLatin1String("protan")) return protan_vision;
    if (name == QLatin1String("deutan")) return deutan_vision;
    return std::nullopt;
}

double to_linear(int channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

int from_linear(double value) {
    const double clamped = std::clamp(value, 0.0, 1.0);
    const double encoded =
        clamped <= 0.0031308 ? clamped * 12.92 : 1.055 * std::pow(clamped, 1.0 / 2.4) - 0.055;
    return static_cast<int>(std::lround(encoded * 255.0));
}

void apply_vision(QImage& sheet, const Vision& vision) {
    for (int y = 0; y < sheet.height(); ++y) {
        for (int x = 0; x < sheet.width(); ++x) {
            const QColor colour = sheet.pixelColor(x, y);
            const std::array<double, 3> seen{
                to_linear(colour.red()), to_linear(colour.green()), to_linear(colour.blue())};
            std::array<int, 3> shown{};
            for (std::size_t row = 0; row < 3; ++row) {
                shown[row] = from_linear(vision[row][0] * seen[0] + vision[row][1] * seen[1] +
                                         vision[row][2] * seen[2]);
            }
            sheet.setPixelColor(x, y, QColor(shown[0], shown[1], shown[2]));
        }
    }
}

// Where the top left corner of the picture at this index goes.
QPoint position(int index, const QSize& cell, const Layout& layout) {
    const QSize step = layout.overlap ? QSize(layout.overlap->x(), layout.overlap->y())
                                      : QSize(cell.width() + layout.gap, cell.height() + layout.gap);
    return {layout.gap + index % layout.columns * step.width(),
            layout.gap + index / layout.columns * step.height()};
}

QImage draw_sheet(const std::vector<Picture>& pictures, const QColor& background, const Layout& layout) {
    QSize picture;
    for (const Picture& item : pictures) picture = picture.expandedTo(item.size);
    const QSize cell = picture + QSize(0, layout.caption_height);

    const int count = static_cast<int>(pictures.size());
    QSize extent;
    for (int index = 0; index < count; ++index) {
        const QPoint corner = position(index, cell, layout);
        extent = extent.expandedTo(
            {corner.x() + cell.width() + layout.gap, corner.y() + cell.height() + layout.gap});
    }

    QImage sheet(extent, QImage::Format_RGB32);
    sheet.fill(background);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < count; ++index) {
        const Picture& item = pictures[static_cast<std::size_t>(index)];
        const QPoint corner = position(index, cell, layout);
        item.renderer->render(&painter, QRectF(corner, item.size));
        if (layout.caption_height > 0) {
            const QRect caption(
                corner.x(), corner.y() + picture.height(), cell.width(), layout.caption_height);
            painter.setPen(Qt::white);
            painter.drawText(caption, Qt::AlignCenter, item.name);
        }
    }
    return sheet;
}

bool load(const QStringList& files, double scale, std::vector<Picture>& pictures) {
    QTextStream errors(stderr);
    for (const QString& file : files) {
        auto renderer = std::make_unique<QSvgRenderer>();
        if (!renderer->load(file)) {
            errors << "cannot read " << file << '\n';
            return false;
        }
        const QSize size = (QSizeF(renderer->defaultSize()) * scale).toSize();
        pictures.push_back({QFileInfo(file).completeBaseName(), std::move(renderer), size});
    }
    return true;
}

QPoint point_from(const QString& text) {
    const QStringList parts = text.split(QLatin1Char(','));
    return parts.size() == 2 ? QPoint(parts[0].toInt(), parts[1].toInt()) : QPoint();
}

void read(QCommandLineParser& line, const QGuiApplication& application) {
    line.setApplicationDescription("Draws SVG files onto one sheet.");
    line.addHelpOption();
    line.addOptions({{{"o", "output"}, "Write the sheet to <file>.", "file", "sheet.png"},
                     {{"s", "scale"}, "Draw pictures at <factor> times natural size.", "factor", "1"},
                     {{"c", "columns"}, "Place <count> pictures in a row.", "count", "13"},
                     {{"g", "gap"}, "Leave <pixels> between pictures.", "pixels", "6"},
                     {{"b", "background"}, "Use <colour> for the table.", "colour", "#1f6b45"},
                     {"overlap", "Advance by <x,y> pixels only, so that pictures overlap.", "x,y"},
                     {"vision", "Show the sheet as seen by <kind>: protan, deutan or grey.", "kind"},
                     {"crop", "Keep <x,y> pixels of the top left of the sheet.", "x,y"},
                     {{"z", "zoom"}, "Show each pixel of the sheet as <count> pixels.", "count", "1"},
                     {{"n", "names"}, "Write file names below the pictures."}});
    line.addPositionalArgument("files", "SVG files to draw.", "files...");
    line.process(application);
}

Layout layout_from(const QCommandLineParser& line) {
    Layout layout;
    layout.columns = line.value("columns").toInt();
    layout.gap = line.value("gap").toInt();
    layout.caption_height = line.isSet("names") ? 16 : 0;
    if (line.isSet("overlap")) layout.overlap = point_from(line.value("overlap"));
    return layout;
}

// What is done to the whole sheet in the end.
QImage finished(QImage sheet, const QCommandLineParser& line) {
    if (line.isSet("crop")) {
        const QPoint size = point_from(line.value("crop"));
        sheet = sheet.copy(0, 0, size.x(), size.y());
    }
    if (const int count = line.value("zoom").toInt(); count > 1) sheet = sheet.scaled(sheet.size() * count);
    if (const auto seen_by = vision_named(line.value("vision"))) apply_vision(sheet, *seen_by);
    return sheet;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCommandLineParser line;
    read(line, application);
    const double scale = line.value("scale").toDouble();
    const Layout layout = layout_from(line);
    if (line.positionalArguments().isEmpty() || scale <= 0.0 || layout.columns < 1 || layout.gap < 0) {
        line.showHelp(EXIT_FAILURE);
    }
    std::vector<Picture> pictures;
    if (!load(line.positionalArguments(), scale, pictures)) return EXIT_FAILURE;
    const QImage sheet = finished(draw_sheet(pictures, QColor(line.value("background")), layout), line);
    if (sheet.save(line.value("output"))) return EXIT_SUCCESS;
    QTextStream(stderr) << "cannot write " << line.value("output") << '\n';
    return EXIT_FAILURE;
}
