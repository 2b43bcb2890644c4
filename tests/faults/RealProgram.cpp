#include "faults/RealProgram.h"

#include "faults/Faults.h"
#include "support/Pictures.h"

#include <QDir>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

/// The same file under another name, so that it finds its folder there.
void place(const char* from, const QString& to) {
    std::error_code failed;
    std::filesystem::create_hard_link(from, to.toStdString(), failed);
    if (failed)
        std::filesystem::copy_file(from, to.toStdString());
}

QProcessEnvironment environmentIn(const QString& home) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : std::initializer_list<std::pair<const char*, QString>>{
             {"QT_QPA_PLATFORM", u"offscreen:configfile="_s + home + u"/screen.json"_s},
             {"QT_SCALE_FACTOR", u"1"_s}, // the screen is not asked, with a hand of its own
             {"QT_PLUGIN_PATH", home + u"/plugins"_s},
             {"QT_QPA_GENERIC_PLUGINS", u"hand"_s},
             {"QUIVERDECK_HAND", home + u"/run/hand"_s},
             {"HOME", home},
             {"XDG_CONFIG_HOME", home + u"/config"_s},
             {"XDG_DATA_HOME", home + u"/data"_s},
             {"XDG_RUNTIME_DIR", home + u"/run"_s}})
        environment.insert(QLatin1String(name), value);
    return environment;
}

} // namespace

RealProgram::RealProgram() : RunningProgram(file(u"quiverdeck"_s), environmentIn(home())) {
    sql(u"INSERT INTO utenti (nome, cognome, sesso) VALUES ('Anna', 'Rossi', 'F')"_s);
    givePictures(*this);
    place(PROGRAM, executable);
    place(BACKUP, file(u"quiverdeck-backup"_s));
    for (const QString& name : {u"plugins/generic"_s, u"config"_s, u"data"_s, u"run"_s})
        QDir(home()).mkpath(name);
    place(HAND, home() + u"/plugins/generic/hand.so"_s);
    QFile::setPermissions(home() + u"/run"_s, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    faults::write(home() + u"/screen.json"_s,
                  R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1280, "height": 1024,
                      "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
}

void RealProgram::installCopy() const {
    place(RENEWER, file(u"quiverdeck-renew-store"_s));
    QDir(folder()).mkpath(u"HELP"_s);
    faults::write(file(u"quiverdeck.installed"_s), {});
}

void RealProgram::waitFor(const QString& target) {
    until(target, [&] { return shows(target); });
}

void RealProgram::act(const QStringList& request) {
    waitFor(request[1]);
    ask(request);
}

QString RealProgram::answer(const QString& beginning, const QString& button) {
    waitFor(u"messageBox"_s);
    const QString said = text(u"messageBox"_s);
    if (!said.startsWith(beginning))
        fail(u"a box says: "_s + said);
    press(u"messageBox#button:"_s + button);
    return said;
}

void RealProgram::openNewCard() {
    press(u"Principale/nuova"_s);
    press(u"UtentiSelezione/seleziona"_s);
    waitFor(u"SchedaCorpo/note_0"_s);
}

void RealProgram::leave() {
    press(u"Principale/esci"_s);
    if (waitForEnd() != EXIT_SUCCESS)
        fail(u"the program fails as it ends"_s);
}
