#include "World.h"

#include "Bare.h"
#include "core/ModuloBase.h"
#include "core/db.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Settings.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

void must(bool done, const char* what) {
    if (!done)
        throw std::runtime_error(what);
}

QString build() {
    QString folder = qEnvironmentVariable("QUIVERDECK_BUILD");
    must(QFile::exists(folder + u"/splash.ps"_s), "QUIVERDECK_BUILD names no build with a data file");
    return folder;
}

/// The rows 1 to `n` as a table `i`.
QString counted(int n) {
    return u"WITH RECURSIVE i(n) AS (SELECT 1 UNION ALL SELECT n+1 FROM i WHERE n<%1) "_s.arg(n);
}

} // namespace

World::World(const Size& size) {
    must(root_.isValid() && QFile::copy(build() + u"/splash.ps"_s, store()), "no scratch folder");
    linkPictures(size.figures);
    fill(size);
}

void World::linkPictures(int figures) {
    const QDir shipped(build() + u"/images"_s);
    const QString images = folder() + u"/images"_s;
    must(QDir().mkpath(images + u"/banco"_s), "no folder for the pictures");
    for (const QString& name : shipped.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        must(QFile::link(shipped.filePath(name), images + u'/' + name), "no link to the pictures");
    QStringList files;
    for (const int key : Bare(store()).keys("SELECT id_fig FROM figure WHERE ID_MAC='QUIVR'")) {
        const QString path =
            Bare(store()).text("SELECT figura FROM figure WHERE id_fig=" + std::to_string(key));
        files += host::resolve(folder() + u'/' + QString(path).replace(u'\\', u'/'));
    }
    must(!files.isEmpty(), "no shipped figures");
    for (int i = 1; i <= figures; ++i) {
        const QString name = u"%1/banco/%2.jpg"_s.arg(images).arg(i, 4, 10, QChar(u'0'));
        must(QFile::link(files[(i - 1) % files.size()], name), "no link to a picture");
        pictures_ += name;
    }
}

void World::fill(const Size& size) {
    Bare store(this->store());
    const auto run = [&store](const QString& sql) { store.run(sql.toStdString()); };
    run(u"PRAGMA synchronous=OFF"_s);
    run(u"BEGIN"_s);
    run(u"DELETE FROM figure"_s);
    run(u"DELETE FROM figure_muscoli"_s);
    run(u"DELETE FROM utenti"_s);
    run(u"DELETE FROM schedeModello"_s);
    run(counted(size.figures) +
        uR"(INSERT INTO figure SELECT n,'QUIVR',n,printf('images\banco\%04d.jpg',n) FROM i)"_s);
    run(u"INSERT INTO figure_muscoli SELECT id_fig,id_muscolo FROM figure JOIN (SELECT id_muscolo,"
        "row_number() OVER (ORDER BY id_muscolo)-1 AS place,count(*) OVER () AS groups FROM muscoli) "
        "ON id_fig % groups=place"_s);
    run(counted(size.athletes) +
        u"INSERT INTO utenti SELECT n,'Nome'||n,'Cognome'||(n*7919%10007),date('1960-01-01',(n*37%15000)||' "
        "days'),'F','Note sull’atleta, con qualche parola in più' FROM i"_s);
    if (size.cards > 0)
        run(counted(size.cards) +
            u"INSERT INTO schede "
            u"(id_utente,Istruttore,PeriodoDal,PeriodoAl,id_cat,FreqAllen,GGAllen,Obiettivo"
            ",note) SELECT 1,'Anna Bianchi','2026-11-02','2026-11-30',1,2,'001010100','Forza','Bere' FROM i"_s);
    if (size.templates > 0)
        run(counted(size.templates) + u"INSERT INTO schedeModello (id_cat,descrizione,preimpostata,note) "
                                      "SELECT 1,'Modello '||n,0,'Note' FROM i"_s);
    run(u"COMMIT"_s);
}

void World::use() const {
    host::setProgramDirectory(folder());
    host::setSettingsFolder(folder());
    db::comune().dbName = ModuloBase::nomeArchivio();
}

int World::card(int lines) const {
    Bare store(this->store());
    store.run("PRAGMA synchronous=OFF");
    store.run("BEGIN");
    store.run(
        "INSERT INTO schede (id_utente,Istruttore,PeriodoDal,PeriodoAl,id_cat,FreqAllen,GGAllen,Obiettivo,"
        "note) VALUES (1,'Anna Bianchi','2026-11-02','2026-11-30',1,2,'001010100','Forza','Bere molto')");
    const int key = store.keys("SELECT max(id_scheda) FROM schede").at(0);
    store.run(
        (counted(lines) +
         u"INSERT INTO Esercizi (NProg,ID_Scheda,ID_Fig,Durata,Frequenza,Ampiezza,RecuperoMin,RecuperoSec"
         ",Serie,Modalita,Peso,isLibero,Note) SELECT n,%1,1+(n-1)%%2,'45s','40Hz','H',1,20,3,'Combinata',"
         "'5 kg',0,'Tenere la schiena diritta e non bloccare le ginocchia, riga '||n FROM i"_s.arg(key)
             .arg(pictures_.size()))
            .toStdString());
    store.run("COMMIT");
    return key;
}

} // namespace bench
