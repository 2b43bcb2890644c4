#include "cards/EditorTest.h"
#include "cards/FileSospeso.h"
#include "cards/RipresaScheda.h"
#include "core/variabiliGlobali.h"
#include "platform/runtime/Dates.h"

#include <QDir>

using namespace variabiliGlobali;
using namespace Qt::StringLiterals;

class TestRipresa : public EditorTest {
    Q_OBJECT

    std::optional<RipresaScheda> ripresa_; ///< at work from the start, as in the program

    void avvia() {
        ripresa_.emplace();
        toolkit::Application::setEventObserver(
            [this](bool fatal) { fatal ? ripresa_->primaDellaFine() : ripresa_->dopoEvento(); });
    }
    /// The program is killed, with no word to the editor, and starts again.
    void riavvia() {
        toolkit::Application::setEventObserver({});
        inChiusura = true;
        mdiScheda::comune().puoiChiudere = true;
        mdiScheda::comune().unload();
        toolkit::Application::purge();
        inChiusura = false;
        idUtenteSelezionato = idSchedaSelezionata = idModelloSelezionato = 0;
        avvia();
    }
    void proponi(const QString& inizio = {}, Answer risposta = Answer::Yes) {
        boxes().expectBeginning(Icon::Question, u"Ripristinare la scheda che era aperta "_s + inizio,
                                risposta);
        ripresa_->proponi();
    }
    static QByteArray sospesa() { return FileSospeso().leggi().value(); }
    /// The contents of the one file put aside for a reason.
    QByteArray messaDaParte(const QString& motivo) const {
        const QStringList nomi =
            QDir(program().folder()).entryList({u"splash.ps.aperta."_s + motivo + u"-*"_s});
        return nomi.size() == 1 ? FileSospeso(QDir(program().folder()).filePath(nomi[0])).leggi().value()
                                : QByteArray();
    }

private Q_SLOTS:
    void init() {
        EditorTest::init();
        avvia();
    }
    void cleanup() {
        runtime::setClock({});
        toolkit::Application::setEventObserver({});
        EditorTest::cleanup();
    }

    void opensJustAsItWas() {
        apriConFigure({1, 2, 3, 1, 0});
        intestazione().type(u"Obiettivo"_s, u"Resistenza"_s);
        corpo().press(u"EliminaEsercizio_0"_s);
        barra().setValue(2);
        corpo().type(u"peso_0"_s, u"7 kg"_s); // stays in the row: nothing copies it yet
        QCOMPARE(aperta().esercizi->Item(3)->peso, u"5 kg"_s);
        const QByteArray prima = sospesa();
        riavvia();
        proponi(u"per Rossi Mario"_s);
        QVERIFY(mdiScheda::comune().isVisible() && !aperta().isSaved);
        ripresa_->dopoEvento();
        QCOMPARE(sospesa(), prima);
        corpo().type(u"note_0"_s, u"ripresa"_s); // the file is written anew
        QVERIFY(sospesa().contains("ripresa"));
        // Deleted before the end, and still there.
        QCOMPARE(SchedaSospesa::leggi(sospesa()).value().eliminati.size(), std::size_t{1});

        // Left the normal way: stored as edited, and no file stays.
        boxes().expect(Icon::Information, u"Salvo le ultime modifiche?"_s, Answer::Yes);
        comando(u"fine"_s);
        QVERIFY(!FileSospeso().esiste());
        QCOMPARE(rows(u"SELECT id_scheda, Obiettivo FROM schede"), u"1|Resistenza"_s);
        QCOMPARE(rows(u"SELECT Note, Peso FROM Esercizi"), u"b|5 kg, c|5 kg, ripresa|7 kg, e|5 kg"_s);
    }

    void aTemplateComesBackThoughItsTimesEndedTheProgram() {
        nuovoModello();
        apri(0, 0, 2);
        corpo().type(u"peso_1"_s, u"9 kg"_s);
        corpo().find<toolkit::Combo>(u"durata_0"_s).setText(u"99999"_s);
        { // nothing but the fatal report itself writes the state
            const ExpectedFatal fatale;
            toolkit::Application::setEventObserver([this](bool fatal) {
                if (fatal)
                    ripresa_->primaDellaFine();
            });
            corpo().type(u"serie_0"_s, u"9"_s);
            QVERIFY(fatale.count > 0);
        }
        riavvia();
        proponi(u"(modello «Mio»)"_s);
        QCOMPARE(corpo().text(u"durata_0"_s) + corpo().text(u"peso_1"_s), u"999999 kg"_s);
    }

    void whatIsNotTakenBackIsPutAside() {
        apriNuova();
        const QByteArray prima = sospesa();
        riavvia();
        proponi({}, Answer::No);
        QCOMPARE(messaDaParte(u"rifiutata"_s), prima);
        sql(u"DELETE FROM utenti");
        QVERIFY(FileSospeso().scrivi(prima));
        boxes().expectBeginning(Icon::Question, {}, Answer::Yes);
        boxes().expectBeginning(Icon::Exclamation, u"L’atleta della scheda, Rossi Mario, non è più"_s);
        ripresa_->proponi();
        QCOMPARE(messaDaParte(u"senzaAtleta"_s), prima);
    }

    void anEarlierCardIsNotWrittenOver() {
        runtime::setClock([] { return QDateTime(QDate(2026, 11, 2), QTime(9, 5)); });
        // The name to put it aside is taken by a link that leads nowhere: it can be neither seen nor given.
        const QString nome = FileSospeso().percorso() + u".precedente-20261102-090500"_s;
        QVERIFY(QFile::link(u"/manca/manca"_s, nome) && FileSospeso().scrivi("mai ripresa"));
        boxes().expectBeginning(Icon::Exclamation, u"Impossibile scrivere «splash.ps.aperta»"_s);
        apriNuova();
        QCOMPARE(sospesa(), "mai ripresa");
        QVERIFY(QFile::remove(nome));
        ripresa_->dopoEvento();
        QVERIFY(SchedaSospesa::leggi(sospesa()));
        QCOMPARE(messaDaParte(u"precedente"_s), "mai ripresa");
    }
};

QUIVERDECK_TEST(TestRipresa)
#include "test_ripresa.moc"
