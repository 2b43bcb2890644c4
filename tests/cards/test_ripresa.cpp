#include "cards/EditorTest.h"
#include "cards/FileSospeso.h"
#include "cards/RipresaScheda.h"
#include "cards/SchedaCorpo.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"

#include <QDir>

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

QByteArray contenuto() {
    return FileSospeso().leggi().value_or(QByteArray());
}

} // namespace

class TestRipresa : public EditorTest {
    Q_OBJECT

    QStringList messiDaParte(const QString& motivo) const {
        return QDir(program().folder()).entryList({u"splash.ps.aperta."_s + motivo + u"-*"_s});
    }
    static QStringList pagina() {
        QStringList testi;
        for (const char* nome : {"nEsercizio_0", "durata_0", "serie_0", "recuperoMin_0", "peso_0", "note_0",
                                 "durata_1", "serie_1", "note_1", "note_3"})
            testi += corpo().text(QLatin1String(nome));
        return testi;
    }
    /// The keeper asks, and is answered.
    void proponi(RipresaScheda& ripresa, const QString& inizio, Answer risposta) {
        boxes().expectBeginning(Icon::Question, domanda + inizio, risposta);
        ripresa.proponi();
    }

private Q_SLOTS:
    void opensJustAsItWas() {
        const int chiave = nuovaScheda();
        for (int n = 1; n <= 5; ++n)
            esercizio(chiave, n, n == 5 ? 0 : 1 + n % 3, u"nota %1"_s.arg(n));
        QString prima;
        QStringList testi;
        {
            const AlLavoro custode;
            apriScheda(chiave);
            intestazione().type(u"Obiettivo"_s, u"Resistenza"_s);
            corpo().press(u"EliminaEsercizio_0"_s);
            corpo().find<toolkit::ScrollBar>(u"VS"_s).setValue(2);
            corpo().type(u"peso_0"_s, u"7 kg"_s); // stays in the row: nothing copies it yet
            corpo().type(u"note_0"_s, u"appena scritta"_s);
            QVERIFY(aperta().esercizi->Item(3)->peso != u"7 kg"_s);
            prima = righe();
            testi = pagina();
            QVERIFY(contenuto().contains("appena scritta"));
        }
        interrompi();

        AlLavoro custode;
        proponi(custode.ripresa, u" per Rossi Mario"_s, Answer::Yes);
        QVERIFY(mdiScheda::comune().isVisible());
        QCOMPARE(righe(), prima);
        QCOMPARE(pagina(), testi);
        QCOMPARE(intestazione().text(u"Obiettivo"_s), u"Resistenza"_s);
        QCOMPARE(schedaAperta().id_scheda, chiave);
        QVERIFY(!aperta().isSaved);
        const auto letta = SchedaSospesa::leggi(contenuto());
        QVERIFY(letta);
        QCOMPARE(letta->eliminati.size(), std::size_t{1}); // still there, though deleted before the end

        // Left the normal way: stored as edited, and no file stays.
        boxes().expect(Icon::Information, u"Salvo le ultime modifiche?"_s, Answer::Yes);
        comando(u"fine"_s);
        QVERIFY(!FileSospeso().esiste());
        QCOMPARE(rows(u"SELECT Peso FROM Esercizi WHERE note = 'appena scritta'"), u"7 kg"_s);
        QCOMPARE(rows(u"SELECT count(*) FROM Esercizi"), u"4"_s);
    }

    void lostCardIsStoredAnew() {
        const int chiave = nuovaScheda();
        esercizio(chiave, 1, 2, u"prima"_s);
        {
            const AlLavoro custode;
            apriScheda(chiave);
            corpo().type(u"note_0"_s, u"cambiata"_s);
        }
        interrompi();
        sql(u"DELETE FROM schede"_s);
        AlLavoro custode;
        proponi(custode.ripresa, {}, Answer::Yes);
        salva();
        QCOMPARE(rows(u"SELECT e.note FROM Esercizi e JOIN schede USING (id_scheda)"), u"cambiata"_s);
    }

    void templateComesBack() {
        sql(u"INSERT INTO schedeModello VALUES (7,1,'Mio',0,'')"_s);
        {
            const AlLavoro custode;
            apri(0, 0, 7);
            corpo().type(u"peso_1"_s, u"9 kg"_s);
        }
        interrompi();
        AlLavoro custode;
        proponi(custode.ripresa, u" (modello «Mio»)"_s, Answer::Yes);
        QVERIFY(aperta().isModello);
        QCOMPARE(corpo().text(u"peso_1"_s), u"9 kg"_s);
    }

    void unchangedCardIsNotWrittenAgain() {
        const AlLavoro custode;
        apriNuova();
        corpo().press(u"InserisciEsecizio_0"_s);
        const FileSospeso file;
        QVERIFY(file.esiste());
        QFile::remove(file.percorso());
        corpo().key(u"note_0"_s, Qt::Key_Shift);
        QVERIFY(!file.esiste());
        corpo().typeOn(u"note_0"_s, u"a"_s);
        QVERIFY(file.esiste());
    }

    void noKeepsTheFileAside() {
        {
            const AlLavoro custode;
            apriNuova();
            corpo().type(u"note_0"_s, u"una"_s);
        }
        const QByteArray prima = contenuto();
        interrompi();
        AlLavoro custode;
        proponi(custode.ripresa, {}, Answer::No);
        const QStringList altri = messiDaParte(u"rifiutata"_s);
        QCOMPARE(altri.size(), 1);
        QCOMPARE(FileSospeso(program().folder() + u'/' + altri.first()).leggi(), prima);
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
        QVERIFY(FileSospeso().scrivi(file));
        AlLavoro custode;
        if (motivo == u"senzaAtleta"_s)
            boxes().expectBeginning(Icon::Question, domanda, Answer::Yes);
        boxes().expectBeginning(Icon::Exclamation, QString());
        custode.ripresa.proponi();
        QVERIFY(!FileSospeso().esiste());
        QCOMPARE(messiDaParte(motivo).size(), 1);
    }

    void anEarlierCardIsNotWrittenOver() {
        QVERIFY(FileSospeso().scrivi("una scheda mai ripresa"));
        const AlLavoro custode;
        apriNuova();
        QVERIFY(SchedaSospesa::leggi(contenuto()));
        const QStringList altri = messiDaParte(u"precedente"_s);
        QCOMPARE(altri.size(), 1);
        QCOMPARE(FileSospeso(program().folder() + u'/' + altri.first()).leggi(), "una scheda mai ripresa");
    }

    void fatalReportFindsTheStateWritten() {
        const ExpectedFatal fatale;
        const AlLavoro custode;
        apriNuova();
        QTimer::singleShot(0, qApp, [] {
            schedaAperta().Obiettivo = u"prima dell’errore"_s;
            runtime::raise(runtime::Overflow);
        });
        QTRY_COMPARE(fatale.count, 1);
        QVERIFY(contenuto().contains(u"prima dell’errore"_s.toUtf8()));
    }

    void rowsThatCouldNotMoveKeepTheirPlace() {
        apriConFigure({1, 1, 1, 1});
        {
            const ExpectedFatal fatale;
            corpo().type(u"recuperoMin_0"_s, u"256"_s); // beyond 8 bits: no row can be written
        }
        QCOMPARE(errorOf([] { return corpo().find<toolkit::ScrollBar>(u"VS"_s).setValue(2), 0; }),
                 runtime::Overflow);
        QCOMPARE(corpo().text(u"note_0"_s), u"a"_s);
        QCOMPARE(SchedaCorpo::comune().pagina().posizione, 1);
    }

    void timesThatEndedTheProgramDoNotEndItAgain() {
        {
            const AlLavoro custode;
            const ExpectedFatal fatale;
            apriConFigure({2});
            corpo().find<toolkit::Combo>(u"durata_0"_s).setText(u"99999"_s);
            corpo().type(u"serie_0"_s, u"9"_s);
            QVERIFY(fatale.count > 0);
        }
        interrompi();
        AlLavoro custode;
        proponi(custode.ripresa, {}, Answer::Yes);
        QCOMPARE(corpo().text(u"durata_0"_s), u"99999"_s);
    }

    void unwritableFileIsToldOnce() {
        QVERIFY(QDir().mkpath(program().folder() + u"/splash.ps.aperta/piena"_s));
        const AlLavoro custode;
        boxes().expectBeginning(Icon::Exclamation, u"Impossibile scrivere"_s);
        apriNuova();
        corpo().type(u"note_0"_s, u"una"_s);
    }
};

QUIVERDECK_TEST(TestRipresa)
#include "test_ripresa.moc"
