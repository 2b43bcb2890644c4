#include "support/ScratchProgram.h"

#include "core/ModuloBase.h"
#include "core/db.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Settings.h"
#include "support/Files.h"

#include <sqlite3.h>

#include <memory>
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

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

Database open(const QString& path, int flags) {
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(QFile::encodeName(path).constData(), &handle, flags, nullptr);
    Database database(handle);
    if (code != SQLITE_OK)
        throw std::runtime_error(sqlite3_errstr(code));
    return database;
}

void run(const Database& database, const QByteArray& sql, int (*row)(void*, int, char**, char**) = nullptr,
         void* target = nullptr) {
    if (sqlite3_exec(database.get(), sql.constData(), row, target, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database.get()));
}

} // namespace

ScratchProgram::ScratchProgram() : folder_(root_.filePath(u"Palestra è qui/Quiverdeck"_s)) {
    if (!QDir().mkpath(folder_) || !QDir().mkpath(settingsFolder()))
        throw std::runtime_error("no scratch folder");
    const auto database = open(store(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    run(database, "BEGIN");
    run(database, readFile(qEnvironmentVariable("QUIVERDECK_SOURCE") + u"/data/schema.sql"_s));
    run(database, smallRows);
    run(database, "COMMIT");
    host::setProgramDirectory(folder_);
    host::setSettingsFolder(settingsFolder());
    db::comune().dbName = ModuloBase::nomeArchivio();
}

ScratchProgram::~ScratchProgram() {
    host::setProgramDirectory({});
    host::setSettingsFolder({});
}

QString ScratchProgram::store() const {
    return folder_ + u'/' + ModuloBase::nomeArchivio();
}

QString ScratchProgram::settingsFolder() const {
    return root_.filePath(u"impostazioni"_s);
}

void ScratchProgram::sql(const QString& statements) const {
    run(open(store(), SQLITE_OPEN_READWRITE), statements.toUtf8());
}

QStringList ScratchProgram::rows(const QString& query) const {
    QStringList result;
    run(
        open(store(), SQLITE_OPEN_READWRITE), query.toUtf8(),
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

void ScratchProgram::clearLog() const {
    QFile::remove(folder_ + u"/log.txt"_s);
}
