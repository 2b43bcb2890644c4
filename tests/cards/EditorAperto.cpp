#include "cards/EditorAperto.h"

#include "cards/SchedaCorpo.h"
#include "cards/SchedaIntestazione.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "platform/toolkit/Application.h"

#include <QDir>
#include <QImage>
#include <QTest>

using namespace variabiliGlobali;

namespace {

void azzera() {
    idUtenteSelezionato = 0;
    idSchedaSelezionata = 0;
    idModelloSelezionato = 0;
    nomeModelloSelezionato.clear();
    inChiusura = false;
}

} // namespace

EditorAperto::EditorAperto() {
    azzera();
    const QStringList file{QStringLiteral("Q/001"),
                           QStringLiteral("Q/002"),
                           QStringLiteral("Q/003"),
                           QStringLiteral("G/004"),
                           QStringLiteral("FolderXP"),
                           QStringLiteral("BodyMap/corpo"),
                           QStringLiteral("BodyMap/Corpo_PET")};
    for (const QString& nome : file) {
        const QString percorso =
            programma.folder() + QStringLiteral("/images/") + nome + QStringLiteral(".JPG");
        QDir().mkpath(QFileInfo(percorso).path());
        QImage figura(300, 300, QImage::Format_RGB32);
        figura.fill(QColor::fromHsv(static_cast<int>(file.indexOf(nome)) * 50, 200, 200));
        figura.save(percorso);
    }
    programma.sql(QStringLiteral("INSERT INTO utenti VALUES (1,'Mario','Rossi',NULL,'M','')"));
}

EditorAperto::~EditorAperto() {
    if (mdiScheda::esiste()) {
        inChiusura = true;
        mdiScheda::comune().puoiChiudere = true;
        mdiScheda::comune().unload();
        toolkit::Application::purge();
    }
    if (Principale::esiste()) {
        Principale::comune().nascondi();
    }
    azzera();
}

int EditorAperto::scheda(const QString& campi) const {
    programma.sql(
        QStringLiteral("INSERT INTO schede (id_utente,Istruttore,PeriodoDal,PeriodoAl,id_cat,FreqAllen,"
                       "GGAllen,Obiettivo,note) VALUES (1,'Anna','2026-11-02','2026-11-30',2,2,"
                       "'001010100','Forza','Bere molto');"));
    if (!campi.isEmpty()) {
        programma.sql(
            QStringLiteral("UPDATE schede SET %1 WHERE id_scheda=(SELECT max(id_scheda) FROM schede)")
                .arg(campi));
    }
    return programma.rows(QStringLiteral("SELECT max(id_scheda) FROM schede")).first().toInt();
}

void EditorAperto::esercizio(int scheda, int posizione, int figura, const QString& note) const {
    programma.sql(
        QStringLiteral("INSERT INTO Esercizi (NProg,ID_Scheda,ID_Fig,Durata,Frequenza,Ampiezza,RecuperoMin,"
                       "RecuperoSec,Serie,Modalita,Peso,isLibero,Note) VALUES (%1,%2,%3,'45s','40Hz','H',1,"
                       "20,3,'Combinata','5 kg',%4,'%5')")
            .arg(posizione)
            .arg(scheda)
            .arg(figura)
            .arg(figura == 0 ? 1 : 0)
            .arg(note));
}

void EditorAperto::apri(int utente, int scheda, int modello) const {
    idUtenteSelezionato = utente;
    idSchedaSelezionata = scheda;
    idModelloSelezionato = modello;
    mdiScheda::comune().mostra();
    QVERIFY(QTest::qWaitForWindowActive(&mdiScheda::comune())); // else no field has the focus
}

SchedaApribile& EditorAperto::aperta() {
    return *mdiScheda::comune().schedaAperta;
}

::scheda& EditorAperto::schedaAperta() {
    return dynamic_cast<::scheda&>(aperta());
}

QStringList EditorAperto::righe() {
    QStringList righe;
    for (const auto& e : *aperta().esercizi) {
        righe += QStringLiteral("%1|%2|%3|%4|%5")
                     .arg(e->id_fig)
                     .arg(e->durata)
                     .arg(e->serie)
                     .arg(e->note)
                     .arg(e->isLibero);
    }
    return righe;
}

QString EditorAperto::stato() {
    return mdiScheda::comune().findChild<toolkit::StatusBar*>()->panel(QStringLiteral("status"));
}

WindowPage EditorAperto::editor() const {
    return WindowPage(mdiScheda::comune());
}

WindowPage EditorAperto::intestazione() const {
    return WindowPage(SchedaIntestazione::comune());
}

WindowPage EditorAperto::corpo() const {
    return WindowPage(SchedaCorpo::comune());
}
