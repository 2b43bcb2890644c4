#include "cards/EditorAperto.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "platform/runtime/Dates.h"
#include "support/ToolkitTest.h"
#include "support/WindowChecks.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScopeGuard>

using host::Icon;

namespace {

const QString fuoriLista = QStringLiteral("Selezionare un valore tra quelli disponibili!");

/// Clicks a day of the open list.
void clicca(const WindowPage& pagina, int giorno) {
    auto& lista = pagina.find<QListWidget>(QStringLiteral("GGAllen"));
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                      lista.visualItemRect(lista.item(giorno)).center());
}

} // namespace

class TestIntestazione : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newCardTakesItsDefaults() {
        runtime::setClock([] { return QDateTime(QDate(2026, 2, 10), QTime(9, 0)); });
        const auto orologio = qScopeGuard([] { runtime::setClock({}); });
        EditorAperto e;
        e.apriNuova();
        const WindowPage pagina = e.intestazione();
        QCOMPARE(pagina.text("utente"), QStringLiteral("Rossi Mario"));
        QCOMPARE(pagina.text("categoria"), QStringLiteral("Generale")); // the second of the list
        QCOMPARE(pagina.text("dal"), QStringLiteral("10/02/2026"));
        QCOMPARE(pagina.text("al"), QStringLiteral("03/03/2026"));
        QCOMPARE(pagina.text("FreqAllen"), QStringLiteral("3"));
        QCOMPARE(pagina.text("Text1"), QStringLiteral("Selezionare i giorni..."));
        QVERIFY(!pagina.isVisible("GGAllen"));

        const ::scheda& card = EditorAperto::schedaAperta();
        QCOMPARE(card.categoria, QStringLiteral("Generale"));
        QCOMPARE(card.PeriodoDal, QStringLiteral("10/02/2026"));
        QCOMPARE(card.PeriodoAl, QStringLiteral("03/03/2026"));
        QCOMPARE(card.FreqAllen, 3);
        QCOMPARE(card.GGAllen, QString());
        QVERIFY(!card.isSaved);
    }

    void todayIsWrittenEvenWhereThePickerShowsIt() {
        EditorAperto e;
        e.apriNuova();
        QCOMPARE(EditorAperto::schedaAperta().PeriodoDal, runtime::dateText(runtime::today()));
    }

    void storedCardShowsItsFields() {
        EditorAperto e;
        e.apriScheda(e.scheda());
        const WindowPage pagina = e.intestazione();
        QCOMPARE(pagina.text("categoria"), QStringLiteral("Generale"));
        QCOMPARE(pagina.text("Obiettivo"), QStringLiteral("Forza"));
        QCOMPARE(pagina.text("Istruttore"), QStringLiteral("Anna"));
        QCOMPARE(pagina.text("dal"), QStringLiteral("02/11/2026"));
        QCOMPARE(pagina.text("al"), QStringLiteral("30/11/2026"));
        QCOMPARE(pagina.text("FreqAllen"), QStringLiteral("2"));
        QCOMPARE(pagina.text("note"), QStringLiteral("Bere molto"));
        const auto& giorni = pagina.find<QListWidget>("GGAllen");
        QStringList spuntati;
        for (int i = 0; i < giorni.count(); ++i) {
            if (giorni.item(i)->checkState() == Qt::Checked) {
                spuntati += giorni.item(i)->text();
            }
        }
        QCOMPARE(spuntati, QStringList({"Lunedi", "Mercoledi", "Venerdi"}));
        QCOMPARE(giorni.count(), 9);
        QVERIFY(!EditorAperto::aperta().isSaved); // every card that shows is marked unsaved
    }

    void textsGoStraightToTheCard_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("digitato");
        QTest::addColumn<QString>("atteso");
        QTest::newRow("instructor") << "Istruttore"
                                    << "D'Amico" << QStringLiteral("D’Amico");
        QTest::newRow("goal") << "Obiettivo"
                              << "l'equilibrio" << QStringLiteral("l’equilibrio");
        QTest::newRow("notes are escaped by the record") << "note"
                                                         << "un po' di \"x\""
                                                         << "un po' di \"x\"";
        QTest::newRow("emptied") << "Istruttore"
                                 << ""
                                 << "";
    }
    void textsGoStraightToTheCard() {
        QFETCH(QString, campo);
        QFETCH(QString, digitato);
        QFETCH(QString, atteso);
        EditorAperto e;
        e.apriScheda(e.scheda());
        ::scheda& card = EditorAperto::schedaAperta();
        card.isSaved = true;
        e.intestazione().type(campo, digitato);
        QCOMPARE(campo == "Istruttore"  ? card.Istruttore
                 : campo == "Obiettivo" ? card.Obiettivo
                                        : card.note,
                 atteso);
        QVERIFY(!card.isSaved);
    }

    // One more would make the save fail, and the card would be lost.
    void notesStopAtWhatTheRecordStores() {
        EditorAperto e;
        e.apriScheda(e.scheda());
        auto& note = e.intestazione().find<QPlainTextEdit>("note");
        QGuiApplication::clipboard()->setText(QString(40'000, u'è'));
        note.selectAll();
        note.paste();
        QTest::keyClicks(&note, "x");
        QTest::keyClick(&note, Qt::Key_Return);
        QCOMPARE(EditorAperto::aperta().note, QString(32'767, u'è'));
        e.riquadri.expect(Icon::Information, "Salvataggio effettuato");
        e.comando("salva");
        QVERIFY(e.riquadri.satisfied());
        note.selectAll();
        QTest::keyClicks(&note, "di nuovo"); // a selection makes room
        QCOMPARE(EditorAperto::aperta().note, QStringLiteral("di nuovo"));
    }

    void datesGoStraightToTheCard() {
        EditorAperto e;
        e.apriScheda(e.scheda());
        e.intestazione().find<QDateEdit>("dal").setDate(QDate(2026, 12, 1));
        e.intestazione().find<QDateEdit>("al").setDate(QDate(2026, 1, 1)); // before the start: not looked at
        QCOMPARE(EditorAperto::schedaAperta().PeriodoDal, QStringLiteral("01/12/2026"));
        QCOMPARE(EditorAperto::schedaAperta().PeriodoAl, QStringLiteral("01/01/2026"));
    }

    void frequency_data() {
        QTest::addColumn<QString>("digitato");
        QTest::addColumn<int>("atteso");
        QTest::addColumn<bool>("rifiutato");
        QTest::newRow("an item") << "5" << 5 << false;
        QTest::newRow("a byte that is no item") << "255" << 255 << true;
        QTest::newRow("beyond a byte keeps the last that fitted") << "256" << 25 << true;
        QTest::newRow("no number keeps the value") << "x" << 2 << true;
        QTest::newRow("empty") << "" << 2 << true;
    }
    void frequency() {
        QFETCH(QString, digitato);
        QFETCH(bool, rifiutato);
        EditorAperto e;
        e.apriScheda(e.scheda());
        const WindowPage pagina = e.intestazione();
        pagina.type("FreqAllen", digitato);
        QTEST(int(EditorAperto::schedaAperta().FreqAllen), "atteso");
        if (rifiutato) {
            e.riquadri.expect(Icon::Critical, fuoriLista);
        }
        pagina.press("note");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(pagina.find<QComboBox>("FreqAllen").hasFocus(), rifiutato);
    }

    void categoryReachesTheCardOnlyByAChoice() {
        EditorAperto e;
        e.apriScheda(e.scheda());
        const WindowPage pagina = e.intestazione();
        pagina.type("categoria", "Forza"); // the text of an item, typed
        pagina.press("Obiettivo");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(EditorAperto::aperta().categoria, QStringLiteral("Generale"));

        pagina.choose("categoria", "Recupero");
        QCOMPARE(EditorAperto::aperta().categoria, QStringLiteral("Recupero"));

        pagina.type("categoria", "Altro");
        e.riquadri.expect(Icon::Critical, fuoriLista);
        pagina.press("apriGGAllen");
        QVERIFY(e.riquadri.satisfied());
        QVERIFY(!pagina.isVisible("GGAllen")); // the button that caused it did not act
        QCOMPARE(EditorAperto::aperta().categoria, QStringLiteral("Recupero"));
    }

    void dayListCloses_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<bool>("chiude");
        for (const char* campo : {"categoria", "Istruttore", "Obiettivo", "note", "dal"}) {
            QTest::newRow(campo) << campo << true;
        }
        QTest::newRow("al") << "al" << false;
        QTest::newRow("FreqAllen") << "FreqAllen" << false;
        QTest::newRow("its own button") << "apriGGAllen" << true;
    }
    void dayListCloses() {
        QFETCH(QString, campo);
        QFETCH(bool, chiude);
        EditorAperto e;
        e.apriNuova();
        const WindowPage pagina = e.intestazione();
        pagina.press("apriGGAllen");
        QVERIFY(pagina.isVisible("GGAllen"));
        if (campo == "apriGGAllen") {
            pagina.press(campo);
        } else {
            pagina.widget(campo).setFocus(Qt::TabFocusReason);
        }
        QCOMPARE(pagina.isVisible("GGAllen"), !chiude);
    }

    void dayListClosesBeforeAToolbarAction() {
        EditorAperto e;
        e.apriNuova();
        e.intestazione().press("apriGGAllen");
        e.riquadri.expect(Icon::Information, "Salvo le ultime modifiche?", host::Answer::Cancel);
        e.comando("fine");
        QVERIFY(e.riquadri.satisfied());
        QVERIFY(!e.intestazione().isVisible("GGAllen"));
    }

    void daysAreStoredAsTheyAreTicked() {
        EditorAperto e;
        e.apriScheda(e.scheda());
        const WindowPage pagina = e.intestazione();
        EditorAperto::aperta().isSaved = true;
        pagina.press("apriGGAllen");
        clicca(pagina, 0); // daily beside weekdays: both stay
        clicca(pagina, 2);
        QCOMPARE(EditorAperto::schedaAperta().GGAllen, QStringLiteral("100010100"));
        QVERIFY(!EditorAperto::aperta().isSaved);
    }

    void everythingShowsWhole() {
        EditorAperto e;
        e.apriScheda(e.scheda("Istruttore='Anna'"));
        const WindowPage pagina = e.intestazione();
        pagina.press("apriGGAllen");
        QCOMPARE(cutTexts(pagina.window()).join(u'\n'), QString());
    }

    void keyboardGoesThroughTheFieldsInReadingOrder() {
        EditorAperto e;
        e.apriNuova();
        const WindowPage pagina = e.intestazione();
        pagina.widget("categoria").setFocus();
        QStringList passati;
        for (int tasti = 0; passati.size() < 8 && tasti < 16; ++tasti) {
            QWidget* campo = QApplication::focusWidget();
            if (!passati.contains(campo->objectName())) { // a date stops at day, month and year
                passati += campo->objectName();
            }
            QVERIFY2(!campo->accessibleName().isEmpty(), qPrintable(campo->objectName()));
            QTest::keyClick(campo, Qt::Key_Tab);
        }
        QCOMPARE(passati, QStringList({"categoria", "Obiettivo", "Istruttore", "dal", "al", "FreqAllen",
                                       "apriGGAllen", "note"}));
    }

    void pageStaysUntilTheEditorLetsItGo() {
        EditorAperto e;
        e.apriNuova();
        auto& pagina = dynamic_cast<toolkit::Form&>(e.intestazione().window());
        QVERIFY(!pagina.unload());
        mdiScheda::comune().puoiChiudere = true;
        QVERIFY(pagina.unload());
    }
};

QUIVERDECK_WINDOW_TEST_MAIN(TestIntestazione)
#include "test_intestazione.moc"
