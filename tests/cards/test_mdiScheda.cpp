#include "cards/EditorAperto.h"
#include "cards/SchedaCorpo.h"
#include "cards/SchedaIntestazione.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/runtime/Error.h"
#include "printing/ContatoreTempi.h"
#include "printing/PrinterCanvas.h"
#include "support/ToolkitTest.h"
#include "support/WindowChecks.h"
#include "templates/SchedaIntestazioneMODELLO.h"
#include "templates/SchedaModello.h"
#include "templates/SchedeMODELLONuova.h"

#include <QAbstractButton>
#include <QDir>
#include <QPointer>
#include <QTimer>
#include <cmath>

using host::Answer;
using host::Icon;
using namespace variabiliGlobali;

namespace {

const QString domanda = QStringLiteral("Salvo le ultime modifiche?");

bool abilitato(const EditorAperto& e, const QString& chiave) {
    return e.editor().isEnabled(chiave);
}

QString identificativi() {
    return QStringLiteral("%1 %2 %3")
        .arg(idUtenteSelezionato)
        .arg(idSchedaSelezionata)
        .arg(idModelloSelezionato);
}

/// Fills the window that asks for a new template as soon as it is open; an empty description dismisses it.
void rispondi(const QString& descrizione) {
    QTimer::singleShot(0, qApp, [descrizione] {
        auto& finestra = SchedeMODELLONuova::comune();
        if (descrizione.isEmpty()) {
            finestra.unload();
            return;
        }
        const WindowPage pagina(finestra);
        pagina.type(QStringLiteral("descrizione"), descrizione);
        pagina.press(QStringLiteral("cmdOk"));
    });
}

/// A user's template 2, "Mio", with one line of figure 1.
void aggiungiModello(const EditorAperto& e) {
    e.programma.sql(
        "INSERT INTO schedeModello VALUES (2,2,'Mio',0,'note mie');"
        "INSERT INTO EserciziModello VALUES (3,1,2,1,'45s','40Hz','H',1,20,3,'Combinata','',0,'mia')");
}

} // namespace

class TestMdiScheda : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thumbnailsAreLoadedOnceUnderTheirPaths() {
        EditorAperto e;
        e.programma.sql("INSERT INTO figure VALUES (5,'QUIVR',9,'images\\Q\\001.JPG')"); // shares a file
        auto& shell = mdiScheda::comune();
        shell.load();
        QVERIFY(!shell.isVisible());
        QCOMPARE(shell.ImageList1.imageSize(), QSize(25, 25));
        QVERIFY(shell.ImageList1.contains("Cartella"));
        QCOMPARE(shell.ImageList2.imageSize(), QSize(150, 150));
        QCOMPARE(shell.ImageList2.count(), 4);
        QVERIFY(shell.ImageList2.contains(host::joined("\\images\\Q\\003.JPG")));
        QDir(e.programma.folder() + "/images/Q").removeRecursively(); // no file is read when the editor opens
        e.apriNuova();
        QCOMPARE(shell.ImageList2.count(), 4);
    }

    void aMissingThumbnailStopsTheStart() {
        EditorAperto e;
        QVERIFY(QFile::remove(e.programma.folder() + "/images/Q/002.JPG"));
        try {
            mdiScheda::comune().load();
            QFAIL("loaded");
        } catch (const runtime::Error& error) {
            QCOMPARE(error.number(), int(runtime::FileNotFound));
        }
    }

    void opensWhatTheGlobalsSay_data() {
        QTest::addColumn<int>("utente");
        QTest::addColumn<int>("scheda");
        QTest::addColumn<int>("modello");
        QTest::addColumn<QString>("aperta"); // key, category, template, number of lines, athlete
        QTest::addColumn<bool>("salva");
        QTest::newRow("new card") << 1 << 0 << 0 << "0|Generale|0|2|1" << true;
        QTest::newRow("stored card wins") << 1 << 1 << 2 << "1|Generale|0|2|1" << true;
        QTest::newRow("supplied template") << 0 << 0 << 1 << "1|Forza|1|4|" << false;
        QTest::newRow("own template") << 0 << 0 << 2 << "2|Generale|1|2|" << true;
        QTest::newRow("card from a template") << 1 << 0 << 1 << "0|Forza|0|4|1" << true;
    }
    void opensWhatTheGlobalsSay() {
        QFETCH(int, utente);
        QFETCH(int, scheda);
        QFETCH(int, modello);
        EditorAperto e;
        e.esercizio(e.scheda(), 1, 1);
        aggiungiModello(e);
        e.apri(utente, scheda, modello);
        const SchedaApribile& aperta = EditorAperto::aperta();
        const auto* card = dynamic_cast<const ::scheda*>(&aperta);
        QTEST(QStringLiteral("%1|%2|%3|%4|%5")
                  .arg(aperta.id_scheda)
                  .arg(aperta.categoria)
                  .arg(aperta.isModello)
                  .arg(aperta.esercizi->Count())
                  .arg(card != nullptr ? QString::number(card->id_utente) : QString()),
              "aperta");
        QTEST(abilitato(e, "salva"), "salva");
        QVERIFY(!aperta.isModello || !abilitato(e, "stampa"));
        QCOMPARE(SchedaIntestazione::esiste(), utente != 0);
        QCOMPARE(SchedaIntestazioneMODELLO::esiste(), utente == 0);
        QVERIFY(!mdiScheda::comune().puoiChiudere);
        QVERIFY(mdiScheda::comune().isMaximized());
        QCOMPARE(mdiScheda::comune().pages().size(), 4);
    }

    void linesOfATemplateBecomeTheCardsOwn() {
        EditorAperto e;
        e.apri(1, 0, 1);
        e.riquadri.expect(Icon::Information, "Salvataggio effettuato");
        e.comando("salva");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(e.programma.rows("SELECT NProg, ID_Fig, Note FROM Esercizi ORDER BY NProg"),
                 QStringList({"1|2|prima", "2|3|seconda"}));
        QCOMPARE(e.programma.rows("SELECT count(*) FROM EserciziModello"), QStringList("2"));
    }

    void missingRecordsEndInTheirBoxes() {
        EditorAperto e;
        e.riquadri.expect(Icon::Critical, "ERR:Problemi di connessione"); // the athlete
        e.riquadri.expect(Icon::Critical, "Archivio Vuoto o Problemi di connessione!");
        e.apri(9, 9, 0);
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(EditorAperto::aperta().id_scheda, 0);
    }

    void pagesStandWhereTheyShould() {
        EditorAperto e;
        e.apriNuova();
        auto& shell = mdiScheda::comune();
        auto& testa = SchedaIntestazione::comune();
        auto& corpo = SchedaCorpo::comune();
        QCOMPARE(QRectF(testa.left(), testa.top(), testa.outerWidth(), testa.outerHeight()).toRect(),
                 QRect(0, 0, 6300, 3510)); // whole pixels
        QCOMPARE(QRectF(corpo.left(), corpo.top(), corpo.outerWidth(), corpo.outerHeight()).toRect(),
                 QRect(0, 3510, 6300, 6000));
        for (toolkit::Form* pagina : shell.pages()) {
            if (pagina->objectName() == "SchedaSelezioneFIGURE") {
                // Pixels are whole, and the platform of the tests takes its 4 pixels of frame away late.
                const double scarto = shell.outerWidth() - pagina->outerWidth() - 250 - pagina->left();
                QVERIFY2(std::abs(scarto) <= 4 * 15 + 8, qPrintable(QString::number(scarto)));
                QCOMPARE(pagina->top(), 0);
            }
            QCOMPARE(pagina->isVisible(), pagina->objectName() != "SchedaPreviewFigura");
        }
    }

    void saveStoresOnceAndThenUpdates() {
        EditorAperto e;
        e.apriNuova();
        QVERIFY(e.corpo().drop("figura_0", "1"));
        for (int volta = 0; volta < 2; ++volta) {
            e.riquadri.expect(Icon::Information, "Salvataggio effettuato");
            e.comando("salva");
            QVERIFY(e.riquadri.satisfied());
        }
        QCOMPARE(e.programma.rows("SELECT id_scheda, id_utente FROM schede"), QStringList("1|1"));
        QCOMPARE(e.programma.rows("SELECT ID_Scheda, ID_Fig, Durata FROM Esercizi"), QStringList("1|1|30s"));
        QVERIFY(EditorAperto::aperta().isSaved);
    }

    void printingStoresTheCardWithoutAQuestion() {
        EditorAperto e;
        e.apriNuova();
        QVERIFY(e.corpo().drop("figura_1", "1")); // behind a blank line
        QPointer<toolkit::Form> pagina(&SchedaCorpo::comune());
        bool aperta = false;
        QTimer::singleShot(0, qApp, [&] {
            aperta = PrinterCanvas::comune().isVisible() && !SchedaCorpo::esiste();
            PrinterCanvas::comune().unload();
        });
        e.comando("stampa");
        QVERIFY(aperta);
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(identificativi(), QStringLiteral("1 1 0"));
        QCOMPARE(EditorAperto::aperta().id_scheda, 1);
        QVERIFY(pagina != &SchedaCorpo::comune()); // loaded afresh, from what the store holds
        QCOMPARE(SchedaCorpo::comune().top(), SchedaIntestazione::comune().outerHeight());
        QCOMPARE(EditorAperto::righe(), QStringList({"1|30s|0||0", "0||0||0"}));
        QVERIFY(!mdiScheda::comune().puoiChiudere);

        e.corpo().type("peso_0", "4 kg");
        e.riquadri.expect(Icon::Information, "Salvataggio effettuato");
        e.comando("salva");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(e.programma.rows("SELECT id_scheda FROM schede"), QStringList("1"));
        QCOMPARE(e.programma.rows("SELECT ct, NProg, Peso FROM Esercizi"), QStringList("1|1|4 kg"));
    }

    void finishAsksOfAnUntouchedCardToo_data() {
        QTest::addColumn<Answer>("risposta");
        QTest::addColumn<bool>("chiusa");
        QTest::addColumn<int>("salvate");
        QTest::addColumn<QString>("globali");
        QTest::newRow("yes") << Answer::Yes << true << 1 << "0 0 0";
        QTest::newRow("no") << Answer::No << true << 0 << "0 0 0";
        QTest::newRow("cancel") << Answer::Cancel << false << 0 << "1 0 0";
    }
    void finishAsksOfAnUntouchedCardToo() {
        QFETCH(Answer, risposta);
        QFETCH(bool, chiusa);
        EditorAperto e;
        e.apriNuova();
        e.riquadri.expect(Icon::Information, domanda, risposta);
        e.comando("fine");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(mdiScheda::comune().isVisible(), !chiusa);
        QCOMPARE(Principale::esiste() && Principale::comune().isVisible(), chiusa);
        QCOMPARE(mdiScheda::comune().puoiChiudere, chiusa);
        QCOMPARE(SchedaCorpo::esiste(), !chiusa);
        QVERIFY(mdiScheda::comune().isLoaded());
        QTEST(int(e.programma.rows("SELECT * FROM schede").size()), "salvate");
        QTEST(identificativi(), "globali");
    }

    void aSuppliedTemplateEndsWithoutAQuestion() {
        EditorAperto e;
        e.apri(0, 0, 1);
        e.comando("fine");
        QVERIFY(e.riquadri.satisfied());
        QVERIFY(!mdiScheda::comune().isVisible());
        QCOMPARE(identificativi(), QStringLiteral("0 0 1")); // kept on this way
    }

    void theShellOpensAgainAfresh() {
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 1);
        e.apriScheda(card);
        e.corpo().type("peso_0", "9 kg");
        const auto contatore = mdiScheda::comune().contaTempi;
        e.riquadri.expect(Icon::Information, domanda, Answer::No);
        e.comando("fine");
        e.apriNuova();
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(e.corpo().text("peso_0"), QString());
        QVERIFY(mdiScheda::comune().contaTempi != contatore);
        QVERIFY(EditorAperto::stato().startsWith("Tempi Quiver-Deck: Tempo effettivo: 00:00 - "));
    }

    void closeBoxesLeaveTheEditorOpen() {
        EditorAperto e;
        e.apriNuova();
        for (toolkit::Form* pagina : mdiScheda::comune().pages()) {
            QVERIFY2(!pagina->unload(), qPrintable(pagina->objectName()));
        }
        QVERIFY(!mdiScheda::comune().close());
        QVERIFY(mdiScheda::comune().isVisible());
        QCOMPARE(mdiScheda::comune().pages().size(), 4);
        QVERIFY(e.riquadri.satisfied());
    }

    void anUnknownCategoryStopsTheSave() {
        EditorAperto e;
        e.apriNuova();
        EditorAperto::aperta().categoria = "Sparita";
        ExpectedFatal fatale;
        e.comando("salva"); // no success message
        QCOMPARE(fatale.lastNumber, int(runtime::OwnErrors));
        QCOMPARE(fatale.description, QStringLiteral("Categoria non esistente!"));
        QVERIFY(e.riquadri.satisfied());
    }

    void toolbarButtonsDoNotValidateButNeverWrap() {
        EditorAperto e;
        e.apriNuova();
        e.corpo().type("serie_0", "256"); // not counted, so nothing has been written yet
        ExpectedFatal fatale;
        e.comando("salva");
        QCOMPARE(fatale.lastNumber, int(runtime::Overflow));
        QVERIFY(e.programma.rows("SELECT * FROM schede").isEmpty());
        e.corpo().type("serie_0", "1");
    }

    void aCardSavedAsTemplateStaysOpenAndUnchanged() {
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 1, "una");
        e.esercizio(card, 2, 0, "libera");
        e.apriScheda(card);
        rispondi("Copia");
        e.riquadri.expect(Icon::Information, "Creata la nuova Scheda Modello 'Copia'");
        e.comando("SalvaSuModello");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(idModelloSelezionato, 0);
        QCOMPARE(nomeModelloSelezionato, QString());
        QCOMPARE(
            e.programma.rows(
                "SELECT id_Scheda, id_cat, preimpostata, note FROM schedeModello WHERE descrizione='Copia'"),
            QStringList("2|2|0|Bere molto"));
        QCOMPARE(
            e.programma.rows(
                "SELECT NProg, ID_Fig, isLibero, Note FROM EserciziModello WHERE ID_Scheda=2 ORDER BY 1"),
            QStringList({"1|1|0|una", "2|0|1|libera"}));
        QCOMPARE(e.programma.rows("SELECT Note FROM EserciziModello WHERE ID_Scheda=1 ORDER BY ct"),
                 QStringList({"prima", "seconda"})); // whose keys the card's lines share

        e.corpo().type("note_0", "cambiata");
        e.riquadri.expect(Icon::Information, "Salvataggio effettuato");
        e.comando("salva");
        QCOMPARE(e.programma.rows("SELECT ct, ID_Scheda, Note FROM Esercizi ORDER BY ct"),
                 QStringList({"1|1|cambiata", "2|1|libera"}));
    }

    void theCategoryIsProposed() {
        EditorAperto e;
        e.apriScheda(e.scheda("id_cat=3"));
        QString proposta;
        QTimer::singleShot(0, qApp, [&] {
            proposta = WindowPage(SchedeMODELLONuova::comune()).text("categoria");
            WindowPage(SchedeMODELLONuova::comune()).type("descrizione", "R");
            WindowPage(SchedeMODELLONuova::comune()).press("cmdOk");
        });
        e.riquadri.expect(Icon::Information, "Creata la nuova Scheda Modello 'R'");
        e.comando("SalvaSuModello");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(proposta, QStringLiteral("Recupero"));
    }

    // The flow goes on whatever the window did: on a template that was never found.
    void dismissedNewTemplateRunsOn() {
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 1);
        e.apriScheda(card);
        rispondi({});
        e.riquadri.expect(Icon::Critical, "Archivio Vuoto o Problemi di connessione!");
        e.riquadri.expect(Icon::Information, "Creata la nuova Scheda Modello ''");
        e.comando("SalvaSuModello");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(EditorAperto::aperta().esercizi->Item(1)->ct, 1);
        QVERIFY(!EditorAperto::aperta().esercizi->Item(1)->isModello);
    }

    void aTemplateSavedAsTemplateOpensTheNewOne_data() {
        QTest::addColumn<int>("modello");
        QTest::addColumn<QString>("vecchieNote"); // of the old template afterwards
        QTest::newRow("own, old changes kept") << 2 << "cambiate";
        QTest::newRow("supplied, not asked") << 1 << "Note del modello";
    }
    void aTemplateSavedAsTemplateOpensTheNewOne() {
        QFETCH(int, modello);
        EditorAperto e;
        aggiungiModello(e);
        e.apri(0, 0, modello);
        const auto contatore = mdiScheda::comune().contaTempi;
        WindowPage(SchedaIntestazioneMODELLO::comune()).type("note", "cambiate");
        rispondi("Nuovo");
        if (modello == 2) {
            e.riquadri.expect(Icon::Information, "Salvare le modifiche al modello precedente?", Answer::Yes);
        }
        e.riquadri.expect(Icon::Information, "Creata e aperta la nuova Scheda Modello 'Nuovo'");
        e.comando("SalvaSuModello");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(EditorAperto::aperta().id_scheda, 3);
        QVERIFY(abilitato(e, "salva")); // a new template is the user's own
        QCOMPARE(WindowPage(SchedaIntestazioneMODELLO::comune()).text("descrizione"),
                 QStringLiteral("Nuovo"));
        QCOMPARE(e.corpo().text("note_0"), modello == 2 ? QStringLiteral("mia") : QStringLiteral("prima"));
        QTEST(
            e.programma.rows(QStringLiteral("SELECT note FROM schedeModello WHERE id_Scheda=%1").arg(modello))
                .first(),
            "vecchieNote");
        QCOMPARE(idModelloSelezionato, 0);
        QVERIFY(!mdiScheda::comune().puoiChiudere);
        // The counter keeps the old template, which lives on with it.
        QCOMPARE(mdiScheda::comune().contaTempi, contatore);
        QCOMPARE(contatore->schedaCorrente->id_scheda, modello);
        e.corpo().type("serie_0", "9");
    }

    void everythingShowsWhole() {
        EditorAperto e;
        e.apriNuova();
        QCOMPARE(cutTexts(mdiScheda::comune()).join(u'\n'), QString());
    }
};

QUIVERDECK_WINDOW_TEST_MAIN(TestMdiScheda)
#include "test_mdiScheda.moc"
