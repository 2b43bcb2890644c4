// A sheet composed and rastered, and a long card printed to a PDF, against the same pictures and texts
// painted bare.

#include "Desk.h"
#include "Table.h"
#include "World.h"

#include "printing/FittedText.h"
#include "printing/LavoroDiStampa.h"
#include "printing/Painting.h"
#include "printing/PreviewWindow.h"
#include "printing/SuperficieScheda.h"
#include "printing/pages.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

constexpr double printerRatio = 4;
constexpr int sheets = 100;
constexpr int printings = 3;

/// A window that only holds the surface.
struct Bench : sheet::PreviewWindow {
    sheet::Surface surface = sheet::cardSurface();
    sheet::Surface& canvas() override { return surface; }
    double width() const override { return 15360; }
    void setFirstPanel(const QString& /*text*/) override {}
};

bench::World& world() {
    static bench::World one({});
    one.use();
    return one;
}

int longCard() {
    static const int key = world().card(sheets * sheet::blocchiPerFoglio);
    return key;
}

/// The picture files that sheet `number` (from 1) shows.
QString picture(int number, int block) {
    const QStringList& all = world().pictures();
    return all[((number - 1) * sheet::blocchiPerFoglio + block) % all.size()];
}

/// The texts and pictures of a composed surface painted where they stand, with nothing fitted or cut; the
/// exercises' pictures are decoded for it, at the size in which they show.
QImage paintBare(const sheet::Surface& surface, int number, double ratio) {
    QImage image((QSizeF(surface.pixels()) * ratio).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const double scale = ratio / sheet::twipsPerPixel;
    painter.scale(scale, scale);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    for (const sheet::Element& element : surface.elements()) {
        if (!element.visible)
            continue;
        if (element.kind == sheet::Kind::Text) {
            painter.setFont(sheet::pageFont(element.font));
            painter.drawText(element.rect(),
                             int(element.alignment) | (element.wordWrap ? Qt::TextWordWrap : 0),
                             element.text);
        } else if (element.kind == sheet::Kind::Picture && element.name == u"figura"_s) {
            QImageReader reader(picture(number, element.index));
            reader.setScaledSize((element.rect().size() * scale).toSize());
            painter.drawImage(element.rect(), reader.read());
        } else if (element.kind == sheet::Kind::Frame) {
            painter.drawRoundedRect(element.rect(), element.cornerRadius, element.cornerRadius);
        } else if (element.kind == sheet::Kind::Rule) {
            painter.drawLine(element.rect().topLeft(), element.rect().bottomRight());
        }
    }
    return image;
}

/// Composes the first sheet on a surface that has decoded nothing yet, and rasters it.
void composeAndRaster(benchmark::State& state) {
    world();
    Bench window;
    pages all(window);
    all.createPages(longCard());
    while (state.KeepRunning()) {
        window.surface = sheet::cardSurface();
        all.OpenCanvas();
        all.PreviewPage(1);
        benchmark::DoNotOptimize(sheet::raster(window.surface, printerRatio));
    }
}

/// Turns to the next sheet and back, with the pictures decoded already, and paints it as the preview does.
void turnPage(benchmark::State& state) {
    world();
    Bench window;
    pages all(window);
    all.createPages(longCard());
    std::int16_t number = 0;
    const auto turn = [&] {
        number = number == 1 ? 2 : 1;
        all.PreviewPage(number);
        benchmark::DoNotOptimize(sheet::raster(window.surface, 1));
    };
    turn();
    turn();
    while (state.KeepRunning())
        turn();
}

void bare(benchmark::State& state, double ratio) {
    Bench window;
    pages all(window);
    world();
    all.createPages(longCard());
    all.PreviewPage(1);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(paintBare(window.surface, 1, ratio));
}

QString pdf(const char* side, int last) {
    return u"%1/%2-%3.pdf"_s.arg(world().folder(), QLatin1String(side)).arg(last);
}

/// As the preview's print command does it, sheet by sheet.
void printCard(benchmark::State& state, int last) {
    world();
    while (state.KeepRunning()) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf("ours", last));
        printer.setPageSize(QPageSize(QPageSize::A4));
        Bench window;
        pages all(window);
        all.createPages(longCard());
        all.OpenCanvas();
        LavoroDiStampa job(printer);
        for (int page = 1; page <= last; ++page) {
            all.PreviewPage(static_cast<std::int16_t>(page));
            job.foglio(sheet::raster(window.surface, printerRatio), 1);
        }
        job.EndDoc();
    }
}

void printBare(benchmark::State& state, int last) {
    Bench window;
    pages all(window);
    world();
    all.createPages(longCard());
    all.PreviewPage(1);
    while (state.KeepRunning()) {
        QPdfWriter writer(pdf("raw", last));
        writer.setPageSize(QPageSize(QPageSize::A4));
        QPainter painter(&writer);
        for (int page = 1; page <= last; ++page) {
            if (page > 1)
                writer.newPage();
            const double dots = writer.resolution() / 96.0;
            painter.drawImage(QRectF(QPointF(0, 0), QSizeF(window.surface.pixels()) * dots),
                              paintBare(window.surface, page, printerRatio));
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    const bench::Desk desk;
    bench::add({"sheet composed and rastered, 384 dpi", "<= 200 ms", composeAndRaster,
                [](benchmark::State& state) { bare(state, printerRatio); }});
    bench::add(
        {"page turned and painted, 96 dpi", "", turnPage, [](benchmark::State& state) { bare(state, 1); }});
    for (const int last : {10, sheets})
        bench::add({"card of " + std::to_string(last) + " sheets to PDF", "",
                    [last](benchmark::State& state) { printCard(state, last); },
                    [last](benchmark::State& state) { printBare(state, last); }, last, bench::Clock::Cpu,
                    printings});
    const int result = bench::run(argc, argv);
    const auto kilobytes = [](const char* side) {
        return double(QFileInfo(pdf(side, sheets)).size()) / 1024 / sheets;
    };
    if (kilobytes("ours") > 0)
        bench::print("file of 100 sheets, for each sheet", kilobytes("ours"), kilobytes("raw"), "KiB", "");
    return result;
}
