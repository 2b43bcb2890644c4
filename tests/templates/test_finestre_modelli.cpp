#include "cards/mdiScheda.h"
#include "core/variabiliGlobali.h"
#include "support/WindowTest.h"
#include "templates/SchedaIntestazioneMODELLO.h"
#include "templates/SchedeMODELLOSelezione.h"

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

class TestFinestreModelli : public WindowTest {
    Q_OBJECT

    QString ultimo() const {
        return rows(
            u"SELECT id_Scheda, id_cat, descrizione FROM schedeModello ORDER BY id_Scheda DESC LIMIT 1");
    }
    static FormPage selezione() { return FormPage(SchedeMODELLOSelezione::comune()); }
    static QString elenco() { return selezione().lines().join(u' '); }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        // Template 1, "Base", is supplied and of the first category.
        sql(u"INSERT INTO schedeModello VALUES (2,2,'beta',0,''),(3,2,'Alfa',0,''),(10,2,'Gamma',1,''),"
            "(11,3,'Altro',0,'');INSERT INTO categorie VALUES (0,'Zero')");
    }

    void elencoPerCategoriaEdEliminazione() {
        SchedeMODELLOSelezione::comune().show();
        QCOMPARE(selezione().text(u"categoria"_s), u"Generale"_s); // the second by name
        QCOMPARE(elenco(), u"3|Alfa 2|beta 10|Gamma"_s);
        selezione().choose(u"categoria"_s, u"Recupero"_s);
        QCOMPARE(elenco(), u"11|Altro"_s);
        sql(u"INSERT INTO schedeModello VALUES (12,2,'Aiuto',0,'')");
        selezione().choose(u"categoria"_s, u"Generale"_s);
        QCOMPARE(elenco(), u"12|Aiuto 3|Alfa 2|beta 10|Gamma"_s); // read anew
        selezione().clickLine(u"LW"_s, 3);
        boxes().expect(Icon::Critical,
                       u"Impossibile eliminare la scheda perchè è una scheda preimpostata!"_s);
        selezione().press(u"elimina"_s);
        selezione().clickLine(u"LW"_s, 2);
        boxes().expect(Icon::Question, u"Confermi?"_s, Answer::No);
        selezione().press(u"elimina"_s);
        QCOMPARE(selezione().list().count(), 4);
        boxes().expect(Icon::Question, u"Confermi?"_s, Answer::Yes);
        boxes().expect(Icon::Information, u"Scheda eliminata"_s);
        selezione().press(u"elimina"_s);
        QCOMPARE(elenco(), u"12|Aiuto 3|Alfa 10|Gamma"_s);
        QCOMPARE(rows(u"SELECT count(*) FROM schedeModello"), u"5"_s);
    }

    void uscite() {
        // For an athlete one is chosen; without, they are managed.
        for (const QString& uscita :
             {u"seleziona 1 2"_s, u"modifica 0 2"_s, u"annulla 1 -1"_s, u"LW 1 2"_s}) {
            const QStringList parti = uscita.split(u' ');
            idUtenteSelezionato = parti[1].toInt();
            whenModal([&](toolkit::Form& form) {
                const WindowPage pagina(form);
                for (const QString& tasto : {u"seleziona"_s, u"nuova"_s, u"modifica"_s})
                    QCOMPARE(pagina.isEnabled(tasto),
                             (tasto == u"seleziona"_s) == (idUtenteSelezionato != 0));
                pagina.clickLine(u"LW"_s, 1, parti[0] == u"LW"_s ? 2 : 1);
                if (parti[0] != u"LW"_s)
                    pagina.press(parti[0]);
            });
            SchedeMODELLOSelezione::comune().showModal();
            QCOMPARE(QString::number(idModelloSelezionato), parti[2]);
            QVERIFY(!SchedeMODELLOSelezione::esiste());
        }
    }

    void nuova() {
        whenModal([this](toolkit::Form&) {
            selezione().choose(u"categoria"_s, u"Recupero"_s);
            whenModal([this](toolkit::Form& form) {
                QVERIFY(!SchedeMODELLOSelezione::esiste()); // hidden and unloaded before
                const WindowPage nuova(form);
                boxes().expect(Icon::Critical, u"Inserire tutti i dati"_s);
                nuova.press(u"cmdOk"_s);
                nuova.type(u"descrizione"_s, u"  "_s); // blanks are a text
                nuova.key(u"descrizione"_s, Qt::Key_Return);
            });
            selezione().press(u"nuova"_s);
            QCOMPARE(idModelloSelezionato, 12); // answered before the first window's call returns
        });
        SchedeMODELLOSelezione::comune().showModal();
        QCOMPARE(ultimo(), u"12|3|  "_s);
        QVERIFY(mdiScheda::comune().isVisible()); // its window alone
    }

    void intestazione() {
        idModelloSelezionato = 3;
        mdiScheda::comune().mostra();
        const WindowPage pagina(SchedaIntestazioneMODELLO::comune());
        QCOMPARE(pagina.text(u"categoria"_s) + pagina.text(u"descrizione"_s), u"GeneraleAlfa"_s);
        pagina.type(u"descrizione"_s, u"Beta"_s);
        pagina.choose(u"categoria"_s, u"Recupero"_s);
        QVERIFY(!mdiScheda::comune().schedaAperta->isSaved);
        mdiScheda::comune().schedaAperta->save();
        QCOMPARE(rows(u"SELECT * FROM schedeModello WHERE id_Scheda=3"), u"3|3|Beta|0|"_s);
    }

    /// The dialog behind "Salva su nuovo Modello" was dismissed: the flow goes on with key 0.
    void nuovoModelloNonConfermato() {
        sql(u"INSERT INTO utenti (id_utente, nome, cognome) VALUES (1,'Ada','Verdi')");
        idUtenteSelezionato = 1;
        mdiScheda::comune().mostra();
        boxes().expect(Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        boxes().expect(Icon::Information, u"Creata la nuova Scheda Modello ''"_s);
        whenModal([](toolkit::Form& form) { form.close(); });
        WindowPage(mdiScheda::comune()).press(u"SalvaSuModello"_s);
        QCOMPARE(ultimo(), u"12|0|"_s);
        QCOMPARE(idModelloSelezionato, 0);
    }
};

QUIVERDECK_TEST(TestFinestreModelli)
#include "test_finestre_modelli.moc"
