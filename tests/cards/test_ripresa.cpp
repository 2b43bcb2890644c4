#include "cards/EditorAperto.h"
#include "cards/FileSospeso.h"
#include "cards/RipresaScheda.h"
#include "cards/SchedaCorpo.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "platform/runtime/Error.h"
#include "support/Errors.h"
#include "support/ToolkitTest.h"

#include <QDir>
#include <QTimer>

using host::Answer;
using host::Icon;
using namespace variabiliGlobali;
using namespace Qt::StringLiterals;

namespace {

const QString domanda = u"Ripristinare la scheda che era aperta"_s;

/// The keeper at work, as in the program.
class AlLavoro {
public:
    AlLavoro() {
        toolkit::Application::setEventObserver(
            [this](bool fatal) { fatal ? ripresa.primaDellaFine() : ripresa.dopoEvento(); });
    }
    ~AlLavoro() { toolkit::Application::setEventObserver({}); }
    AlLavoro(const AlLavoro&) = delete;
    AlLavoro& operator=(const AlLavoro&) = delete;
    RipresaScheda ripresa;
};

/// Ends the editor without a word to the keeper, as a killed program does.
void interrompi() {
    inChiusura = true;
    mdiScheda::comune().puoiChiudere = true;
    mdiScheda::comune().unload();
    toolkit::Application::purge();
    inChiusura = false;
    idUtenteSelezionato = idSchedaSelezionata = idModelloSelezionato = 0;
}

QStringList messiDaParte(const EditorAperto& e, const QString& motivo) {
    return QDir(e.programma.folder()).entryList({u"splash.ps.aperta."_s + motivo + u"-*"_s});
}

QStringList pagina(const EditorAperto& e) {
    QStringList testi;
    for (const char* nome : {"nEsercizio_0", "durata_0", "serie_0", "recuperoMin_0", "peso_0", "note_0",
                             "durata_1", "serie_1", "note_1", "note_3"})
        testi += e.corpo().text(QLatin1String(nome));
    return testi;
}

QByteArray contenuto() {
    return FileSospeso().leggi().value_or(QByteArray());
}

} // namespace

class TestRipresa : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void opensJustAsItWas() {
        EditorAperto e;
        const int chiave = e.scheda();
        for (int n = 1; n <= 5; ++n)
            e.esercizio(chiave, n, n == 5 ? 0 : 1 + n % 3, u"nota %1"_s.arg(n));
        QStringList righe;
        QStringList testi;
        {
            const AlLavoro custode;
            e.apriScheda(chiave);
            e.intestazione().type(u"Obiettivo"_s, u"Resistenza"_s);
            e.corpo().press(u"EliminaEsercizio_0"_s);
            e.corpo().find<toolkit::ScrollBar>(u"VS"_s).setValue(2);
            e.corpo().type(u"peso_0"_s, u"7 kg"_s); // stays in the row: nothing copies it yet
            e.corpo().type(u"note_0"_s, u"appena scritta"_s);
            QVERIFY(EditorAperto::aperta().esercizi->Item(3)->peso != u"7 kg"_s);
            righe = EditorAperto::righe();
            testi = pagina(e);
            QVERIFY(contenuto().contains("appena scritta"));
        }
        interrompi();

        AlLavoro custode;
        e.riquadri.expectBeginning(Icon::Question, domanda + u" per Rossi Mario"_s, Answer::Yes);
        custode.ripresa.proponi();
        QVERIFY(e.riquadri.satisfied());
        QVERIFY(mdiScheda::comune().isVisible());
        QCOMPARE(EditorAperto::righe(), righe);
        QCOMPARE(pagina(e), testi);
        QCOMPARE(e.intestazione().text(u"Obiettivo"_s), u"Resistenza"_s);
        QCOMPARE(EditorAperto::schedaAperta().id_scheda, chiave);
        QVERIFY(!EditorAperto::aperta().isSaved);
        const auto letta = SchedaSospesa::leggi(contenuto());
        QVERIFY(letta);
        QCOMPARE(letta->eliminati.size(), std::size_t{1}); // still there, though deleted before the end

        // Left the normal way: stored as edited, and no file stays.
        e.riquadri.expect(Icon::Information, u"Salvo le ultime modifiche?"_s, Answer::Yes);
        e.comando(u"fine"_s);
        QVERIFY(e.riquadri.satisfied());
        QVERIFY(!FileSospeso().esiste());
        QCOMPARE(e.programma.rows(u"SELECT Peso FROM Esercizi WHERE note = 'appena scritta'"_s),
                 QStringList(u"7 kg"_s));
        QCOMPARE(e.programma.rows(u"SELECT count(*) FROM Esercizi"_s), QStringList(u"4"_s));
    }

    void lostCardIsStoredAnew() {
        EditorAperto e;
        const int chiave = e.scheda();
        e.esercizio(chiave, 1, 2, u"prima"_s);
        {
            const AlLavoro custode;
            e.apriScheda(chiave);
            e.corpo().type(u"note_0"_s, u"cambiata"_s);
        }
        interrompi();
        e.programma.sql(u"DELETE FROM schede"_s);
        AlLavoro custode;
        e.riquadri.expectBeginning(Icon::Question, domanda, Answer::Yes);
        custode.ripresa.proponi();
        e.riquadri.expect(Icon::Information, u"Salvataggio effettuato"_s);
        e.comando(u"salva"_s);
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(e.programma.rows(u"SELECT e.note FROM Esercizi e JOIN schede USING (id_scheda)"_s),
                 QStringList(u"cambiata"_s));
    }

    void templateComesBack() {
        EditorAperto e;
        e.programma.sql(u"INSERT INTO schedeModello VALUES (7,1,'Mio',0,'')"_s);
        {
            const AlLavoro custode;
            e.apri(0, 0, 7);
            e.corpo().type(u"peso_1"_s, u"9 kg"_s);
        }
        interrompi();
        AlLavoro custode;
        e.riquadri.expectBeginning(Icon::Question, domanda + u" (modello «Mio»)"_s, Answer::Yes);
        custode.ripresa.proponi();
        QVERIFY(e.riquadri.satisfied());
        QVERIFY(EditorAperto::aperta().isModello);
        QCOMPARE(e.corpo().text(u"peso_1"_s), u"9 kg"_s);
    }

    void unchangedCardIsNotWrittenAgain() {
        EditorAperto e;
        const AlLavoro custode;
        e.apriNuova();
        e.corpo().press(u"InserisciEsecizio_0"_s);
        const FileSospeso file;
        QVERIFY(file.esiste());
        QFile::remove(file.percorso());
        e.corpo().key(u"note_0"_s, Qt::Key_Shift);
        QVERIFY(!file.esiste());
        e.corpo().typeOn(u"note_0"_s, u"a"_s);
        QVERIFY(file.esiste());
    }

    void noKeepsTheFileAside() {
        EditorAperto e;
        {
            const AlLavoro custode;
            e.apriNuova();
            e.corpo().type(u"note_0"_s, u"una"_s);
        }
        const QByteArray prima = contenuto();
        interrompi();
        AlLavoro custode;
        e.riquadri.expectBeginning(Icon::Question, domanda, Answer::No);
        custode.ripresa.proponi();
        QVERIFY(e.riquadri.satisfied());
        const QStringList altri = messiDaParte(e, u"rifiutata"_s);
        QCOMPARE(altri.size(), 1);
        QCOMPARE(FileSospeso(e.programma.folder() + u'/' + altri.first()).leggi(), prima);
        custode.ripresa.proponi(); // and asks no more
    }

    void whatCannotComeBackIsPutAside_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("motivo");
        QTest::newRow("damaged") << QByteArray(100, '\0') << u"danneggiata"_s;
        SchedaSospesa s;
        s.scheda = std::make_shared<scheda>();
        s.idUtenteSelezionato = 99;
        QTest::newRow("athlete gone")
            << SchedaSospesa::file(s.stato(), QDateTime::currentDateTime()) << u"senzaAtleta"_s;
    }

    void whatCannotComeBackIsPutAside() {
        QFETCH(QByteArray, file);
        QFETCH(QString, motivo);
        EditorAperto e;
        QVERIFY(FileSospeso().scrivi(file));
        AlLavoro custode;
        if (motivo == u"senzaAtleta"_s)
            e.riquadri.expectBeginning(Icon::Question, domanda, Answer::Yes);
        e.riquadri.expectBeginning(Icon::Exclamation, QString());
        custode.ripresa.proponi();
        QVERIFY(e.riquadri.satisfied());
        QVERIFY(!FileSospeso().esiste());
        QCOMPARE(messiDaParte(e, motivo).size(), 1);
    }

    void anEarlierCardIsNotWrittenOver() {
        EditorAperto e;
        QVERIFY(FileSospeso().scrivi("una scheda mai ripresa"));
        const AlLavoro custode;
        e.apriNuova();
        QVERIFY(SchedaSospesa::leggi(contenuto()));
        const QStringList altri = messiDaParte(e, u"precedente"_s);
        QCOMPARE(altri.size(), 1);
        QCOMPARE(FileSospeso(e.programma.folder() + u'/' + altri.first()).leggi(), "una scheda mai ripresa");
    }

    void fatalReportFindsTheStateWritten() {
        EditorAperto e;
        const ExpectedFatal fatale;
        const AlLavoro custode;
        e.apriNuova();
        QTimer::singleShot(0, qApp, [] {
            EditorAperto::schedaAperta().Obiettivo = u"prima dell’errore"_s;
            runtime::raise(runtime::Overflow);
        });
        QTRY_COMPARE(fatale.count, 1);
        QVERIFY(contenuto().contains(u"prima dell’errore"_s.toUtf8()));
    }

    void rowsThatCouldNotMoveKeepTheirPlace() {
        EditorAperto e;
        const int chiave = e.scheda();
        for (int n = 1; n <= 4; ++n)
            e.esercizio(chiave, n, 1, u"nota %1"_s.arg(n));
        e.apriScheda(chiave);
        {
            const ExpectedFatal fatale;
            e.corpo().type(u"recuperoMin_0"_s, u"256"_s); // beyond 8 bits: no row can be written
        }
        QCOMPARE(errorOf([&e] { return e.corpo().find<toolkit::ScrollBar>(u"VS"_s).setValue(2), 0; }),
                 runtime::Overflow);
        QCOMPARE(e.corpo().text(u"note_0"_s), u"nota 1"_s);
        QCOMPARE(SchedaCorpo::comune().pagina().posizione, 1);
        e.corpo().type(u"recuperoMin_0"_s, u"1"_s); // the editor can be left again
    }

    void timesThatEndedTheProgramDoNotEndItAgain() {
        EditorAperto e;
        const int chiave = e.scheda();
        e.esercizio(chiave, 1, 2);
        {
            const AlLavoro custode;
            const ExpectedFatal fatale;
            e.apriScheda(chiave);
            e.corpo().find<toolkit::Combo>(u"durata_0"_s).setText(u"99999"_s);
            e.corpo().type(u"serie_0"_s, u"9"_s);
            QVERIFY(fatale.count > 0);
        }
        interrompi();
        AlLavoro custode;
        e.riquadri.expectBeginning(Icon::Question, domanda, Answer::Yes);
        custode.ripresa.proponi();
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(e.corpo().text(u"durata_0"_s), u"99999"_s);
    }

    void unwritableFileIsToldOnce() {
        EditorAperto e;
        QVERIFY(QDir().mkpath(e.programma.folder() + u"/splash.ps.aperta/piena"_s));
        const AlLavoro custode;
        e.riquadri.expectBeginning(Icon::Exclamation, u"Impossibile scrivere"_s);
        e.apriNuova();
        e.corpo().type(u"note_0"_s, u"una"_s);
        QVERIFY(e.riquadri.satisfied());
    }
};

QUIVERDECK_WINDOW_TEST_MAIN(TestRipresa)
#include "test_ripresa.moc"
