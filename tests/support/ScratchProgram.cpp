#include "support/ScratchProgram.h"

#include "core/db.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Settings.h"
#include "support/Files.h"

#include <sqlite3.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr auto smallRows = R"(
INSERT INTO categorie VALUES (1,'Forza'),(2,'Generale'),(3,'Recupero');
INSERT INTO Macchinari VALUES ('GLIDR',1),('QUIVR',1);
INSERT INTO muscoli VALUES ('ADD','Addominali','Retto'),('GLU','Glutei','Grande gluteo'),('QUA','Cosce','Quadricipite');
INSERT INTO figure VALUES (1,'QUIVR',2,'images\Q\001.JPG'),(2,'QUIVR',1.5,'images\Q\002.JPG'),
                          (3,'QUIVR',1,'images\Q\003.JPG'),(4,'GLIDR',1,'images\G\004.JPG');
INSERT INTO figure_muscoli VALUES (1,'QUA'),(2,'GLU'),(3,'ADD'),(3,'QUA'),(4,'GLU');
INSERT INTO palestra VALUES ('','','');
INSERT INTO Parametri VALUES ('PATH_MANUALE','\HELP\manuale');
INSERT INTO schedeModello VALUES (1,1,'Base',1,'Note del modello');
INSERT INTO EserciziModello VALUES (1,1,1,2,'30 sec','30 Hz','Low',1,20,3,'Statico','','0','prima'),
                                   (2,2,1,3,'45 sec','35 Hz','High',0,30,2,'Dinamico','5 kg','0','seconda');
)";

/// Runs statements on a store file that exists; `row` takes each row of their answers.
void run(const QString& store, const QByteArray& sql, int (*row)(void*, int, char**, char**) = nullptr,
         void* target = nullptr) {
    sqlite3* database = nullptr;
    sqlite3_open_v2(QFile::encodeName(store).constData(), &database, SQLITE_OPEN_READWRITE, nullptr);
    const int code = sqlite3_exec(database, sql.constData(), row, target, nullptr);
    sqlite3_close(database);
    if (code != SQLITE_OK)
        throw std::runtime_error(sqlite3_errstr(code) + (": " + sql).toStdString());
}

} // namespace

ScratchProgram::ScratchProgram() : folder_(root_.filePath(u"Palestra è qui/Quiverdeck"_s)) {
    if (!QDir().mkpath(settingsFolder()))
        throw std::runtime_error("no scratch folder");
    writeFile(store());
    const QByteArray schema = readFile(qEnvironmentVariable("QUIVERDECK_SOURCE") + u"/data/schema.sql"_s);
    run(store(), "BEGIN;" + schema + smallRows + "COMMIT");
    host::setProgramDirectory(folder_);
    host::setSettingsFolder(settingsFolder());
    db::comune().dbName = u"splash.ps"_s;
}

ScratchProgram::~ScratchProgram() {
    host::setProgramDirectory({});
    host::setSettingsFolder({});
}

void ScratchProgram::sql(const QString& statements) const {
    run(store(), statements.toUtf8());
}

QStringList ScratchProgram::rows(const QString& query) const {
    QStringList result;
    run(
        store(), query.toUtf8(),
        [](void* target, int count, char** values, char** /*names*/) {
            QStringList cells;
            for (int i = 0; i < count; ++i)
                cells += values[i] ? QString::fromUtf8(values[i]) : u"NULL"_s;
            static_cast<QStringList*>(target)->append(cells.join(u'|'));
            return 0;
        },
        &result);
    return result;
}

QStringList ScratchProgram::log() const {
    constexpr qsizetype stampLength = 22; // "[dd/MM/yyyy hh:mm:ss] "
    QStringList lines =
        QString::fromUtf8(readFile(folder_ + u"/log.txt"_s)).split(u"\r\n"_s, Qt::SkipEmptyParts);
    for (QString& line : lines)
        line.remove(0, stampLength);
    return lines;
}
