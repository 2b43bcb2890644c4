// Draws the muscle map: quiverdeck-draw-map <plan> <folder> [--areas <picture>]
//
// Writes corpo.JPG and Corpo_<code>.JPG into the folder; with --areas instead one picture for the eye: every
// group marked in turn, with its hot areas drawn over it.
#include "BodyPlan.h"
#include "BodyRelief.h"
#include "ContactSheet.h"

#include "src/figures/AreeCorpo.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>

#include <cstdio>
#include <exception>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {
constexpr int quality = 92;
const QSize pictureSize(748, 796); // four times the control's pixels: stays sharp on fine screens

void save(const QImage& image, const QString& path) {
    if (!image.save(path, "JPG", quality))
        throw std::runtime_error(u"%1 cannot be written"_s.arg(path).toStdString());
}

void draw(const QStringList& arguments) {
    const BodyPlan plan = BodyPlan::read(arguments.at(1));
    const BodyRelief relief(plan, pictureSize, static_cast<double>(pictureSize.width()) / larghezzaMappa);
    if (arguments.size() == 5) {
        save(contactSheet(relief), arguments.at(4));
        return;
    }
    const QDir folder(arguments.at(2));
    folder.mkpath(u"."_s);
    save(relief.picture({}), folder.filePath(u"corpo.JPG"_s));
    for (const char* code : codiciMuscoli()) {
        const QString name = QString::fromLatin1(code);
        save(relief.picture(name), folder.filePath(u"Corpo_%1.JPG"_s.arg(name)));
    }
}
} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const bool sheet = arguments.size() == 5 && arguments.at(3) == QLatin1String("--areas");
    if (arguments.size() != 3 && !sheet) {
        std::fputs("usage: quiverdeck-draw-map <plan> <folder> [--areas <picture>]\n", stderr);
        return 2;
    }
    try {
        draw(arguments);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quiverdeck-draw-map: %s\n", error.what());
        return 1;
    }
    return 0;
}
