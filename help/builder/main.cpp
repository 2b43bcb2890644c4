#include "FileGuida.h"
#include "Guida.h"
#include "Manuale.h"

#include <QGuiApplication>

#include <cstdio>
#include <exception>

using namespace Qt::StringLiterals;

/// quiverdeck-build-help SOURCES SCREENS FOLDER VERSION: writes HELP.hlp and manuale.pdf into FOLDER.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 5) {
        std::fputs("usage: quiverdeck-build-help SOURCES SCREENS FOLDER VERSION\n", stderr);
        return 2;
    }
    try {
        const Guida guide = leggiGuida(arguments.at(1));
        const QString& folder = arguments.at(3);
        const QString logo = arguments.at(1) + u"/../artwork/logos/quiverdeck.svg"_s;
        scriviFileGuida(guide, arguments.at(2), folder + u"/HELP.hlp"_s);
        scriviManuale(guide, arguments.at(2), logo, arguments.at(4), folder + u"/manuale.pdf"_s);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
