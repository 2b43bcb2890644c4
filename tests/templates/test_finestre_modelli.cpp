#include "cards/mdiScheda.h"
#include "core/variabiliGlobali.h"
#include "support/WindowTest.h"
#include "templates/SchedaIntestazioneMODELLO.h"
#include "templates/SchedaModello.h"
#include "templates/SchedeMODELLONuova.h"
#include "templates/SchedeMODELLOSelezione.h"

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

namespace {

class Selezione : public WindowPage {
public:
    Selezione() : WindowPage(SchedeMODELLOSelezione::comune()) {}
    QString elenco() const {
        const auto& lista = find<toolkit::ReportList>(u"LW"_s);
        QStringList righe;
        for (int i = 0; i < lista.count(); ++i)
            righe += lista.cell(i, 0) + u'=' + lista.cell(i, 1);
        return righe.join(u' ');
    }
};

} // namespace

class TestFinestreModelli : public WindowTest {
    Q_OBJECT
    QString ultimo() const {
        return rows(
            u"SELECT id_Scheda, id_cat, descrizione FROM schedeModello ORDER BY id_Scheda DESC LIMIT 1");
    }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        // Template 1, "Base", is supplied and of the first category.
        sql(u"INSERT INTO schedeModello VALUES (2,2,'beta',0,''),(3,2,'Alfa',0,''),(10,2,'Gamma',1,''),"
            "(11,3,'Altro',0,'')");
    }

    void pulsanti_data() {
        QTest::addColumn<int>("utente");
        QTest::addColumn<QString>("spenti");
        QTest::newRow("choice for an athlete") << 1 << u"nuova modifica"_s;
        QTest::newRow("management") << 0 << u"seleziona"_s;
    }
    void pulsanti() {
        QFETCH(const int, utente);
        idUtenteSelezionato = utente;
        nomeModelloSelezionato = u"Forza"_s;
        SchedeMODELLOSelezione::comune().show();
        const Selezione pagina;
        QCOMPARE(nomeModelloSelezionato, QString());
        QStringList spenti;
        for (const QString& chiave : {u"seleziona"_s, u"annulla"_s, u"nuova"_s, u"modifica"_s, u"elimina"_s})
            if (!pagina.isEnabled(chiave))
                spenti += chiave;
        QTEST(spenti.join(u' '), "spenti");
    }

    void elencoPerCategoria() {
        SchedeMODELLOSelezione::comune().show();
        const Selezione pagina;
        QCOMPARE(pagina.text(u"categoria"_s), u"Generale"_s); // the second entry
        QCOMPARE(pagina.elenco(), u"3=Alfa 2=beta 10=Gamma"_s);
        pagina.clickLine(u"LW"_s, 1);
        sql(u"INSERT INTO schedeModello VALUES (12,2,'Aiuto',0,'')"_s);
        pagina.choose(u"categoria"_s, u"Recupero"_s);
        QCOMPARE(pagina.elenco(), u"11=Altro"_s);
        pagina.choose(u"categoria"_s, u"Generale"_s);
        QCOMPARE(pagina.elenco(), u"12=Aiuto 3=Alfa 2=beta 10=Gamma"_s); // read anew
        QCOMPARE(pagina.find<toolkit::ReportList>(u"LW"_s).selectedLine(), 0);
    }

    void uscite_data() {
        QTest::addColumn<int>("utente");
        QTest::addColumn<QString>("tasto");
        QTest::addColumn<int>("risposta");
        QTest::newRow("choice") << 1 << u"seleziona"_s << 2;
        QTest::newRow("change") << 0 << u"modifica"_s << 2;
        QTest::newRow("double click") << 1 << u"LW"_s << 2;
        QTest::newRow("cancelled") << 1 << u"annulla"_s << -1;
        QTest::newRow("dismissed") << 1 << QString() << 0;
    }
    void uscite() {
        QFETCH(const int, utente);
        QFETCH(const QString, tasto);
        idUtenteSelezionato = utente;
        whenModal([&tasto](toolkit::Form&) {
            const Selezione pagina;
            pagina.clickLine(u"LW"_s, 1);
            if (tasto.isEmpty())
                QTest::keyClick(&pagina.window(), Qt::Key_Escape);
            else if (tasto == u"LW"_s)
                pagina.clickLine(tasto, 1, 2);
            else
                pagina.press(tasto);
        });
        SchedeMODELLOSelezione::comune().showModal();
        QTEST(idModelloSelezionato, "risposta");
        QVERIFY(!SchedeMODELLOSelezione::esiste());
    }

    void senzaRigaLaSceltaFallisce() {
        sql(u"DELETE FROM schedeModello"_s);
        idUtenteSelezionato = 1;
        SchedeMODELLOSelezione::comune().show();
        const Selezione pagina;
        {
            const ExpectedFatal fine;
            pagina.press(u"seleziona"_s);
            QCOMPARE(fine.lastNumber, int(runtime::ObjectNotSet));
        }
        boxes().expect(Icon::Critical, u"Si è verificato un errore:\r"_s +
                                           runtime::standardDescription(runtime::ObjectNotSet) +
                                           u"\rContattare il supporto tecnico"_s);
        pagina.press(u"elimina"_s);
        QVERIFY(pagina.window().isVisible());
    }

    void eliminazione() {
        SchedeMODELLOSelezione::comune().show();
        const Selezione pagina;
        pagina.clickLine(u"LW"_s, 2);
        boxes().expect(Icon::Critical,
                       u"Impossibile eliminare la scheda perchè è una scheda preimpostata!"_s);
        pagina.press(u"elimina"_s);
        pagina.clickLine(u"LW"_s, 1);
        boxes().expect(Icon::Question, u"Confermi?"_s, Answer::No);
        pagina.press(u"elimina"_s);
        QCOMPARE(pagina.elenco(), u"3=Alfa 2=beta 10=Gamma"_s);
        boxes().expect(Icon::Question, u"Confermi?"_s, Answer::Yes);
        boxes().expect(Icon::Information, u"Scheda eliminata"_s);
        pagina.press(u"elimina"_s);
        QCOMPARE(pagina.elenco(), u"3=Alfa 10=Gamma"_s);
        QCOMPARE(rows(u"SELECT count(*) FROM schedeModello"), u"4"_s);
    }

    void nuova() {
        whenModal([](toolkit::Form&) {
            const Selezione pagina;
            pagina.choose(u"categoria"_s, u"Recupero"_s);
            whenModal([](toolkit::Form& form) {
                QVERIFY(!SchedeMODELLOSelezione::esiste()); // hidden and unloaded before
                const WindowPage nuova(form);
                QCOMPARE(nuova.text(u"categoria"_s), u"Recupero"_s);
                nuova.type(u"descrizione"_s, u"L'estate"_s);
                nuova.press(u"cmdOk"_s);
            });
            pagina.press(u"nuova"_s);
            QCOMPARE(idModelloSelezionato, 12); // answered before the first window's call returns
        });
        SchedeMODELLOSelezione::comune().showModal();
        QCOMPARE(idModelloSelezionato, 12);
        QCOMPARE(nomeModelloSelezionato, u"Recupero"_s);
        QCOMPARE(ultimo(), u"12|3|L`estate"_s);
        QVERIFY(mdiScheda::comune().isVisible()); // its window alone
        QVERIFY(mdiScheda::comune().schedaAperta == nullptr);
    }

    void nuovaChiedeTuttiIDati() {
        idModelloSelezionato = 7;
        SchedeMODELLONuova& form = SchedeMODELLONuova::comune();
        form.show();
        const WindowPage pagina(form);
        QCOMPARE(pagina.text(u"categoria"_s), u"Generale"_s);
        boxes().expect(Icon::Critical, u"Inserire tutti i dati"_s);
        pagina.press(u"cmdOk"_s);
        QVERIFY(form.isVisible());
        form.close(); // runs no code
        QCOMPARE(idModelloSelezionato, 7);
        SchedeMODELLONuova::comune().show();
        const WindowPage altra(SchedeMODELLONuova::comune());
        altra.type(u"descrizione"_s, u"  "_s); // blanks are a text
        altra.key(u"descrizione"_s, Qt::Key_Return);
        QVERIFY(!SchedeMODELLONuova::esiste());
        QCOMPARE(ultimo(), u"12|2|  "_s);
        QCOMPARE(idModelloSelezionato, 12);
    }

    void pocheCategorie() {
        sql(u"DELETE FROM categorie WHERE id_cat <> 1");
        // The second entry is selected, and there is none.
        const auto carica = [](toolkit::Form& form) { return errorOf([&form] { return form.load(), 0; }); };
        QCOMPARE(carica(SchedeMODELLOSelezione::comune()), int(runtime::InvalidPropertyValue));
        QCOMPARE(carica(SchedeMODELLONuova::comune()), int(runtime::InvalidPropertyValue));
        mdiScheda::comune().schedaAperta = std::make_shared<SchedaModello>();
        QCOMPARE(carica(SchedaIntestazioneMODELLO::comune()), int(runtime::InvalidPropertyValue));
    }

    void intestazione() {
        idModelloSelezionato = 3;
        mdiScheda::comune().mostra();
        const WindowPage pagina(SchedaIntestazioneMODELLO::comune());
        const auto modello = std::dynamic_pointer_cast<SchedaModello>(mdiScheda::comune().schedaAperta);
        QCOMPARE(pagina.text(u"categoria"_s), u"Generale"_s);
        QCOMPARE(pagina.text(u"descrizione"_s), u"Alfa"_s);
        const auto scritto = [&modello] { return !std::exchange(modello->isSaved, true); };
        scritto();
        pagina.typeOn(u"descrizione"_s, u"!"_s);
        QVERIFY(modello->descrizione.contains(u'!') && scritto());
        pagina.type(u"note"_s, u"Fine"_s);
        QVERIFY(modello->note == u"Fine"_s && scritto());
        pagina.choose(u"categoria"_s, u"Recupero"_s);
        QVERIFY(modello->categoria == u"Recupero"_s && scritto());
        pagina.window().close();
        QVERIFY(pagina.window().isVisible()); // stays as long as the editor does
    }

    void intestazioneDiUnModelloSenzaCategoria() {
        const auto modello = std::make_shared<SchedaModello>();
        mdiScheda::comune().load();
        mdiScheda::comune().schedaAperta = modello;
        SchedaIntestazioneMODELLO::comune().load();
        QCOMPARE(modello->categoria, u"Generale"_s);
        mdiScheda::comune().schedaAperta.reset(); // a header without a template
        QCOMPARE(errorOf([] {
                     return SchedaIntestazioneMODELLO::comune()
                                .findChild<toolkit::Combo*>(u"categoria"_s)
                                ->selectIndex(0),
                            0;
                 }),
                 int(runtime::ObjectNotSet));
    }

    /// The dialog behind "Salva su nuovo Modello" was dismissed: the flow goes on with key 0.
    void nuovoModelloNonConfermato() {
        sql(u"INSERT INTO utenti (id_utente, nome, cognome) VALUES (1,'Ada','Verdi')");
        idUtenteSelezionato = 1;
        mdiScheda::comune().mostra();
        boxes().expect(Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        boxes().expect(Icon::Information, u"Creata la nuova Scheda Modello ''"_s);
        whenModal([](toolkit::Form& form) { QTest::keyClick(&form, Qt::Key_Escape); });
        WindowPage(mdiScheda::comune()).press(u"SalvaSuModello"_s);
        QCOMPARE(ultimo(), u"12|0|"_s);
        QCOMPARE(idModelloSelezionato, 0);
    }
};

QUIVERDECK_TEST(TestFinestreModelli)
#include "test_finestre_modelli.moc"
