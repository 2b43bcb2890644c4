#include "cards/EditorTest.h"
#include "cards/FileSospeso.h"
#include "cards/RipresaScheda.h"
#include "core/variabiliGlobali.h"

#include <QDir>

using namespace variabiliGlobali;
using namespace Qt::StringLiterals;

namespace {

/// The keeper at work, as in the program.
class AlLavoro {
public:
    AlLavoro() {
        toolkit::Application::setEventObserver(
            [this](bool fatal) { fatal ? ripresa.primaDellaFine() : ripresa.dopoEvento(); });
    }
    ~AlLavoro() { toolkit::Application::setEventObserver({}); }
    Q_DISABLE_COPY_MOVE(AlLavoro)
    RipresaScheda ripresa;
};

/// Acts while a keeper is at work, and ends the editor without a word to it, as in a killed program.
template <class Gesti> void interrompi(const Gesti& gesti) {
    {
        const AlLavoro custode;
        gesti();
    }
    inChiusura = true;
    mdiScheda::comune().puoiChiudere = true;
    mdiScheda::comune().unload();
    toolkit::Application::purge();
    inChiusura = false;
    idUtenteSelezionato = idSchedaSelezionata = idModelloSelezionato = 0;
}

} // namespace

class TestRipresa : public EditorTest {
    Q_OBJECT

    /// The contents of the one file put aside for a reason.
    QByteArray messoDaParte(const QString& motivo) const {
        const QDir cartella(program().folder());
        const QStringList nomi = cartella.entryList({u"splash.ps.aperta."_s + motivo + u"-*"_s});
        return nomi.size() == 1 ? FileSospeso(cartella.filePath(nomi.first())).leggi().value() : QByteArray();
    }
    void proponi(RipresaScheda& ripresa, const QString& inizio = {}, Answer risposta = Answer::Yes) {
        boxes().expectBeginning(Icon::Question, u"Ripristinare la scheda che era aperta "_s + inizio,
                                risposta);
        ripresa.proponi();
    }

private Q_SLOTS:
    void opensJustAsItWas() {
        SchedaSospesa::Stato prima;
        const auto vista = [] {
            SchedaSospesa s;
            s.scheda = mdiScheda::comune().schedaAperta;
            s.pagina = SchedaCorpo::comune().pagina();
            return s.stato();
        };
        interrompi([&] {
            apriConFigure({1, 2, 3, 1, 0});
            intestazione().type(u"Obiettivo"_s, u"Resistenza"_s);
            corpo().press(u"EliminaEsercizio_0"_s);
            barra().setValue(2);
            corpo().type(u"peso_0"_s, u"7 kg"_s); // stays in the row: nothing copies it yet
            QCOMPARE(aperta().esercizi->Item(3)->peso, u"5 kg"_s);
            prima = vista();
        });
        AlLavoro custode;
        proponi(custode.ripresa, u"per Rossi Mario"_s);
        QVERIFY(mdiScheda::comune().isVisible() && !aperta().isSaved);
        QCOMPARE(vista(), prima);
        corpo().type(u"note_0"_s, u"ripresa"_s); // the file is written anew
        const auto letta = SchedaSospesa::leggi(FileSospeso().leggi().value());
        QCOMPARE(letta.value().eliminati.size(), std::size_t{1}); // deleted before the end, and still there

        // Left the normal way: stored as edited, and no file stays.
        boxes().expect(Icon::Information, u"Salvo le ultime modifiche?"_s, Answer::Yes);
        comando(u"fine"_s);
        QVERIFY(!FileSospeso().esiste());
        QCOMPARE(rows(u"SELECT id_scheda, Obiettivo FROM schede"), u"1|Resistenza"_s);
        QCOMPARE(rows(u"SELECT Note, Peso FROM Esercizi"), u"b|5 kg, c|5 kg, ripresa|7 kg, e|5 kg"_s);
    }

    void aTemplateComesBackThoughItsTimesEndedTheProgram() {
        nuovoModello();
        interrompi([] {
            const ExpectedFatal fatale;
            apri(0, 0, 2);
            corpo().type(u"peso_1"_s, u"9 kg"_s);
            corpo().find<toolkit::Combo>(u"durata_0"_s).setText(u"99999"_s);
            corpo().type(u"serie_0"_s, u"9"_s);
            QVERIFY(fatale.count > 0);
        });
        AlLavoro custode;
        proponi(custode.ripresa, u"(modello «Mio»)"_s);
        QVERIFY(aperta().isModello);
        QCOMPARE(corpo().text(u"durata_0"_s) + corpo().text(u"peso_1"_s), u"999999 kg"_s);
    }

    void whatIsNotTakenBackIsPutAside() {
        interrompi(apriNuova);
        const QByteArray prima = FileSospeso().leggi().value();
        AlLavoro custode;
        proponi(custode.ripresa, {}, Answer::No);
        QCOMPARE(messoDaParte(u"rifiutata"_s), prima);
        custode.ripresa.proponi(); // asks no more
        sql(u"DELETE FROM utenti");
        QVERIFY(FileSospeso().scrivi(prima));
        boxes().expectBeginning(Icon::Question, {}, Answer::Yes);
        boxes().expectBeginning(Icon::Exclamation, u"L’atleta della scheda, Rossi Mario, non è più"_s);
        custode.ripresa.proponi();
        QCOMPARE(messoDaParte(u"senzaAtleta"_s), prima);
    }

    void anEarlierCardIsNotWrittenOver() {
        QVERIFY(FileSospeso().scrivi("una scheda mai ripresa"));
        const AlLavoro custode;
        apriNuova();
        QVERIFY(SchedaSospesa::leggi(FileSospeso().leggi().value()));
        QCOMPARE(messoDaParte(u"precedente"_s), "una scheda mai ripresa");
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
        QVERIFY(FileSospeso().leggi().value().contains("prima dell’errore"));
    }

    void rowsThatCouldNotMoveKeepTheirPlace() {
        apriConFigure({1, 1, 1, 1});
        {
            const ExpectedFatal fatale;
            corpo().type(u"recuperoMin_0"_s, u"256"_s); // beyond 8 bits: no row can be written
        }
        QCOMPARE(errorOf([] { barra().setValue(2); }), int(runtime::Overflow));
        QCOMPARE(corpo().text(u"note_0"_s), u"a"_s);
        QCOMPARE(SchedaCorpo::comune().pagina().posizione, 1);
    }
};

QUIVERDECK_TEST(TestRipresa)
#include "test_ripresa.moc"
