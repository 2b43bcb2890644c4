#include "FileGuida.h"
#include "Guida.h"
#include "Manuale.h"

#include <QGuiApplication>

#include <cstdio>
#include <exception>

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
        const QString logo = arguments.at(1) + QStringLiteral("/../artwork/logos/quiverdeck.svg");
        scriviFileGuida(guide, arguments.at(2), folder + QStringLiteral("/HELP.hlp"));
        scriviManuale(guide, arguments.at(2), logo, arguments.at(4), folder + QStringLiteral("/manuale.pdf"));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
