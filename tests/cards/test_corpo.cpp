#include "cards/EditorAperto.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/ScrollBar.h"
#include "platform/toolkit/TabStrip.h"
#include "support/ToolkitTest.h"
#include "support/WindowChecks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>

using host::Icon;

namespace {

const QString vuota = QStringLiteral("0||0||0"); // a blank line that no row has written yet

toolkit::ScrollBar& barra(const WindowPage& pagina) {
    return pagina.find<toolkit::ScrollBar>(QStringLiteral("VS"));
}

/// What a row shows: "durata frequenza ampiezza min:sec modalita serie peso".
QString mostrata(const WindowPage& pagina, int i) {
    const auto testo = [&](const char* campo) {
        return pagina.text(QStringLiteral("%1_%2").arg(QLatin1String(campo)).arg(i));
    };
    return QStringList{testo("durata"),   testo("frequenza"),
                       testo("ampiezza"), testo("recuperoMin") + u':' + testo("recuperoSec"),
                       testo("modalita"), testo("serie"),
                       testo("peso")}
        .join(u'|');
}

const QString predefinita = QStringLiteral("30s|30Hz|L|0:0|Statico a carico naturale|0|");
const QString caricata = QStringLiteral("45s|40Hz|H|1:20|Combinata|3|5 kg");

} // namespace

class TestCorpo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void emptyCardShowsTwoDefaultRows() {
        EditorAperto e;
        e.apriNuova();
        QCOMPARE(mostrata(e.corpo(), 0), predefinita);
        QCOMPARE(mostrata(e.corpo(), 1), predefinita);
        QCOMPARE(EditorAperto::righe(), QStringList({vuota, vuota}));
        QCOMPARE(e.corpo().text("nEsercizio_0") + e.corpo().text("nEsercizio_1"), QStringLiteral("12"));
        QCOMPARE(barra(e.corpo()).minimum(), 1);
        QCOMPARE(barra(e.corpo()).maximum(), 2);
        QVERIFY(!e.corpo().isVisible("Command1"));
    }

    void blanksStandBehindTheLoadedLines_data() {
        QTest::addColumn<int>("caricati");
        QTest::addColumn<int>("inMemoria");
        QTest::newRow("one") << 1 << 2;
        QTest::newRow("three") << 3 << 4;
        QTest::newRow("four") << 4 << 6;
        QTest::newRow("thirty") << 30 << 32;
    }
    void blanksStandBehindTheLoadedLines() {
        QFETCH(int, caricati);
        EditorAperto e;
        const int card = e.scheda();
        for (int i = 1; i <= caricati; ++i) {
            e.esercizio(card, i, 1);
        }
        e.apriScheda(card);
        QTEST(int(EditorAperto::righe().size()), "inMemoria");
        QCOMPARE(mostrata(e.corpo(), 0), caricata);
        QCOMPARE(mostrata(e.corpo(), 1), caricati > 1 ? caricata : predefinita);
        QCOMPARE(barra(e.corpo()).maximum(), 2); // not set by the load
    }

    void saveLeavesBlanksOutAndKeepsTheGap() {
        EditorAperto e;
        e.apriNuova();
        const WindowPage pagina = e.corpo();
        QVERIFY(pagina.drop("figura_0", "1"));
        pagina.press("InserisciEsecizio_0"); // the blank one first, the figure second
        barra(pagina).setValue(2);
        QVERIFY(pagina.drop("figura_1", "2"));
        e.riquadri.expect(Icon::Information, "Salvataggio effettuato");
        e.comando("salva");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(e.programma.rows("SELECT NProg, ID_Fig FROM Esercizi ORDER BY NProg"),
                 QStringList({"2|1", "4|2"}));
    }

    void insertionMovesTheRowDown() {
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 1, "a");
        e.esercizio(card, 2, 2, "b");
        e.esercizio(card, 3, 3, "c");
        e.apriScheda(card); // and one blank
        const WindowPage pagina = e.corpo();
        pagina.press("InserisciEsecizio_1");
        QCOMPARE(EditorAperto::righe(),
                 QStringList({"1|45s|3|a|0", vuota, "2|45s|3|b|0", "3|45s|3|c|0", vuota, vuota}));
        QCOMPARE(mostrata(pagina, 1), predefinita);
        QVERIFY(pagina.find<toolkit::PictureBox>("figura_1").isEmpty());
        QVERIFY(!pagina.find<toolkit::PictureBox>("figura_0").isEmpty());
        QCOMPARE(barra(pagina).maximum(), 4); // 6 lines, 3 screens and one more
        QStringList numeri;
        for (const auto& riga : *EditorAperto::aperta().esercizi) {
            numeri += QString::number(riga->nprog);
        }
        QCOMPARE(numeri.join(u' '), QStringLiteral("1 2 3 4 5 6"));
    }

    void deletionIsInTheStoreAtOnce() {
        EditorAperto e;
        const int card = e.scheda();
        for (int i = 1; i <= 3; ++i) {
            e.esercizio(card, i, i, QString::number(i));
        }
        e.apriScheda(card);
        e.corpo().press("EliminaEsercizio_0");
        QCOMPARE(EditorAperto::righe(), QStringList({"2|45s|3|2|0", "3|45s|3|3|0", vuota, vuota}));
        QCOMPARE(mostrata(e.corpo(), 0), caricata);
        e.riquadri.expect(Icon::Information, "Salvo le ultime modifiche?", host::Answer::No);
        e.comando("fine");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(e.programma.rows("SELECT NProg, Note FROM Esercizi ORDER BY NProg"),
                 QStringList({"2|2", "3|3"}));
    }

    void scrollingWritesTheRowsAndMakesANewScreen() {
        EditorAperto e;
        e.apriNuova();
        const WindowPage pagina = e.corpo();
        pagina.type("peso_0", "3 kg");
        pagina.find<toolkit::TabStrip>("TipoEsercizio_1").select(QStringLiteral("libero"));
        pagina.type("note_3", "libera");
        barra(pagina).setValue(2);
        QCOMPARE(EditorAperto::righe().size(), 4);
        QCOMPARE(EditorAperto::righe().at(1), QStringLiteral("0|30s|0|libera|1"));
        QCOMPARE(EditorAperto::aperta().esercizi->Item(1)->peso, QStringLiteral("3 kg"));
        QCOMPARE(mostrata(pagina, 0), predefinita);
        QCOMPARE(pagina.text("nEsercizio_0") + u' ' + pagina.text("nEsercizio_1"), QStringLiteral("3 4"));
        QVERIFY(pagina.isVisible("Frame1_1"));
        QCOMPARE(barra(pagina).maximum(), 3);
        barra(pagina).setValue(1);
        QCOMPARE(pagina.text("peso_0"), QStringLiteral("3 kg"));
        QCOMPARE(pagina.text("note_3"), QStringLiteral("libera"));
        QVERIFY(pagina.isVisible("FrameLibero_1"));
        QCOMPARE(barra(pagina).maximum(), 3);
    }

    void freeRowKeepsItsHiddenValues() {
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 3, "nota");
        e.apriScheda(card);
        const WindowPage pagina = e.corpo();
        pagina.clickTab("TipoEsercizio_0", 2);
        QVERIFY(pagina.isVisible("FrameLibero_0"));
        QVERIFY(!pagina.isVisible("figura_0"));
        QCOMPARE(EditorAperto::righe().first(),
                 QStringLiteral("3|45s|3|nota|0")); // the tab alone writes nothing
        pagina.type("note_2", "a corpo libero");
        e.riquadri.expect(Icon::Information, "Salvataggio effettuato");
        e.comando("salva");
        QCOMPARE(e.programma.rows("SELECT ID_Fig, Durata, Serie, Note, isLibero FROM Esercizi"),
                 QStringList("3|45s|3|a corpo libero|1"));
    }

    void timesAreCountedAtEachEdit_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::addColumn<QString>("totale");
        QTest::addColumn<bool>("contato");
        // Three series of 45 s and 1 min 20 s: 2:15 and 4:00.
        QTest::newRow("duration chosen") << "durata_0"
                                         << "60s"
                                         << "Tempo totale: 07:00" << true;
        QTest::newRow("minutes") << "recuperoMin_0"
                                 << "2"
                                 << "Tempo totale: 09:15" << true;
        QTest::newRow("seconds") << "recuperoSec_0"
                                 << "40"
                                 << "Tempo totale: 07:15" << true;
        QTest::newRow("series") << "serie_0"
                                << "5"
                                << "Tempo totale: 10:25" << true;
        QTest::newRow("amplitude does not count") << "ampiezza_0"
                                                  << "L"
                                                  << "Tempo totale: 06:15" << false;
    }
    void timesAreCountedAtEachEdit() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        QFETCH(QString, totale);
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 1);
        e.apriScheda(card);
        QVERIFY(EditorAperto::stato().contains(QStringLiteral("Tempo totale: 06:15")));
        EditorAperto::aperta().isSaved = true;
        if (campo.startsWith(QLatin1String("durata")) || campo.startsWith(QLatin1String("ampiezza"))) {
            e.corpo().choose(campo, testo);
        } else {
            e.corpo().type(campo, testo);
        }
        QVERIFY2(EditorAperto::stato().contains(totale), qPrintable(EditorAperto::stato()));
        QVERIFY(!EditorAperto::aperta().isSaved);
    }

    void insertionDeletionAndDropMarkNothing() {
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 1);
        e.esercizio(card, 2, 1);
        e.apriScheda(card);
        EditorAperto::aperta().isSaved = true;
        QVERIFY(e.corpo().drop("figura_0", "2"));
        QVERIFY(EditorAperto::aperta().isSaved);
    }

    void hundredSeriesAreNotCountedAndRefused() {
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 1);
        e.apriScheda(card);
        const WindowPage pagina = e.corpo();
        pagina.type("serie_0", "1x00"); // letters are dropped
        QCOMPARE(pagina.text("serie_0"), QStringLiteral("100"));
        QCOMPARE(EditorAperto::aperta().esercizi->Item(1)->serie, 10); // as far as it was counted
        e.riquadri.expect(Icon::Critical, "Valore troppo grande!");
        pagina.press("InserisciEsecizio_0");
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(EditorAperto::righe().size(), 2); // the button did not act
        QVERIFY(pagina.widget("serie_0").hasFocus());
    }

    void refusedFieldsKeepTheFocus_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::addColumn<QString>("messaggio");
        const QString lista = QStringLiteral("Selezionare un valore tra quelli disponibili!");
        const QString secondi = QStringLiteral("Inserire un numero tra 0 e 59");
        QTest::newRow("duration not listed") << "durata_0"
                                             << "31s" << lista;
        QTest::newRow("duration in another case") << "durata_0"
                                                  << "30S" << lista;
        QTest::newRow("frequency") << "frequenza_1"
                                   << "30" << lista;
        QTest::newRow("amplitude emptied") << "ampiezza_0"
                                           << "" << lista;
        QTest::newRow("mode, with the guarded apostrophe") << "modalita_0"
                                                           << "d'urto" << lista;
        QTest::newRow("60 seconds") << "recuperoSec_0"
                                    << "60" << secondi;
        QTest::newRow("59 seconds pass") << "recuperoSec_0"
                                         << "59"
                                         << "";
        QTest::newRow("255 minutes pass") << "recuperoMin_0"
                                          << "255"
                                          << "";
        QTest::newRow("99 series pass") << "serie_1"
                                        << "99"
                                        << "";
    }
    void refusedFieldsKeepTheFocus() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        QFETCH(QString, messaggio);
        EditorAperto e;
        e.apriNuova();
        const WindowPage pagina = e.corpo();
        pagina.type(campo, testo);
        QVERIFY(!pagina.text(campo).contains(u'\''));
        if (!messaggio.isEmpty()) {
            e.riquadri.expect(Icon::Critical, messaggio);
        }
        pagina.clickTab("TipoEsercizio_0", 2);
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(pagina.isVisible("FrameLibero_0"), messaggio.isEmpty());
        if (messaggio.isEmpty()) {
            return;
        }
        QVERIFY(pagina.widget(campo).hasFocus());
        e.riquadri.expect(Icon::Critical, messaggio);
        auto& vs = barra(pagina);
        QTest::mouseClick(&vs, Qt::LeftButton, {}, QPoint(8, vs.QWidget::height() - 4));
        QVERIFY(e.riquadri.satisfied());
        QCOMPARE(vs.value(), 1);
    }

    void uncaughtErrors_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::addColumn<int>("errore");
        QTest::newRow("256 minutes overflow") << "recuperoMin_0"
                                              << "256" << int(runtime::Overflow);
        QTest::newRow("256 seconds overflow") << "recuperoSec_0"
                                              << "256" << int(runtime::Overflow);
        QTest::newRow("seconds emptied are no number") << "recuperoSec_0"
                                                       << "" << int(runtime::TypeMismatch);
        QTest::newRow("minutes emptied are 0") << "recuperoMin_0"
                                               << "" << 0;
    }
    void uncaughtErrors() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        EditorAperto e;
        e.apriNuova();
        ExpectedFatal fatale;
        e.corpo().type(campo, testo);
        if (fatale.count == 0) {
            QTest::keyClick(&e.corpo().widget(campo), Qt::Key_Tab);
        }
        QTEST(fatale.lastNumber, "errore");
        e.corpo().find<QLineEdit>(campo).setText(QStringLiteral("0"));
    }

    void droppedFigures_data() {
        QTest::addColumn<QString>("testo");
        QTest::addColumn<bool>("accettato");
        QTest::newRow("a key") << "3" << true;
        QTest::newRow("a word") << "gatto" << false;
        QTest::newRow("a number with a unit") << "3 kg" << false;
        QTest::newRow("nothing") << "" << false;
        QTest::newRow("beyond 32 bits") << "4294967296" << false;
    }
    void droppedFigures() {
        QFETCH(QString, testo);
        QFETCH(bool, accettato);
        EditorAperto e;
        e.apriNuova();
        const WindowPage pagina = e.corpo();
        QCOMPARE(pagina.drop("figura_1", testo), accettato);
        QCOMPARE(!pagina.find<toolkit::PictureBox>("figura_1").isEmpty(), accettato);
        QCOMPARE(EditorAperto::aperta().esercizi->Item(2)->id_fig, 0); // the next write has it
        barra(pagina).setValue(2);
        QCOMPARE(EditorAperto::aperta().esercizi->Item(2)->id_fig, accettato ? 3 : 0);
    }

    void missingFigureOrPicture_data() {
        QTest::addColumn<QString>("chiave");
        QTest::addColumn<bool>("riquadro");
        QTest::newRow("no such figure") << "77" << true;
        QTest::newRow("its picture is gone") << "2" << false;
    }
    void missingFigureOrPicture() {
        QFETCH(QString, chiave);
        QFETCH(bool, riquadro);
        EditorAperto e;
        e.apriNuova();
        QVERIFY(QFile::remove(e.programma.folder() + QStringLiteral("/images/Q/002.JPG")));
        ExpectedFatal fatale;
        if (riquadro) {
            e.riquadri.expect(Icon::Critical, "ERR:Problemi di connessione");
        }
        e.corpo().drop("figura_0", chiave);
        QCOMPARE(fatale.lastNumber, int(runtime::FileNotFound));
        QVERIFY(e.riquadri.satisfied());
        e.corpo().find<toolkit::PictureBox>("figura_0").Tag.clear(); // the page can go
    }

    void changedPictureShowsAtTheNextWrite() {
        EditorAperto e;
        e.apriNuova();
        const WindowPage pagina = e.corpo();
        QVERIFY(pagina.drop("figura_0", "1"));
        const QImage prima = pagina.find<toolkit::PictureBox>("figura_0").image();
        QImage altra(200, 200, QImage::Format_RGB32);
        altra.fill(Qt::black);
        QVERIFY(altra.save(e.programma.folder() + QStringLiteral("/images/Q/001.JPG")));
        pagina.type("serie_0", "2");
        const QImage dopo = pagina.find<toolkit::PictureBox>("figura_0").image();
        QVERIFY(prima.pixelColor(10, 10).value() > 100);
        QVERIFY(dopo.pixelColor(10, 10).value() < 50);
    }

    void technicianCopiesTheFirstExercise() {
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 1);
        e.esercizio(card, 2, 2);
        e.apriScheda(card);
        e.corpo().type("recuperoSec_0", "7");
        e.corpo().find<QAbstractButton>("Command1").click();
        QCOMPARE(e.corpo().text("recuperoSec_1"), QStringLiteral("7"));
        QCOMPARE(EditorAperto::righe(),
                 QStringList({"1|45s|3||0", "2|45s|3||0", "0|45s|3||0", "0|45s|3||0"}));
    }

    void focusSelectsTheNumber() {
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, 1);
        e.apriScheda(card);
        e.corpo().widget("recuperoMin_0").setFocus(Qt::TabFocusReason);
        e.corpo().widget("recuperoSec_0").setFocus(Qt::TabFocusReason);
        QCOMPARE(e.corpo().find<QLineEdit>("recuperoSec_0").selectedText(), QStringLiteral("20"));
    }

    void everythingShowsWhole_data() {
        QTest::addColumn<bool>("libero");
        QTest::newRow("figures") << false;
        QTest::newRow("free") << true;
    }
    void everythingShowsWhole() {
        QFETCH(bool, libero);
        EditorAperto e;
        const int card = e.scheda();
        e.esercizio(card, 1, libero ? 0 : 1, QStringLiteral("lunga ").repeated(200));
        e.esercizio(card, 2, libero ? 0 : 2);
        e.apriScheda(card);
        QCOMPARE(cutTexts(e.corpo().window()).join(u'\n'), QString());
        const QRect dentro = e.corpo().widget("client").rect();
        for (const char* nome : {"VS", "Frame1_0", "Frame1_1", "FrameLibero_1"}) {
            QVERIFY2(dentro.contains(e.corpo().widget(nome).geometry()), nome);
        }
    }

    void keyboardGoesThroughTheRowsInReadingOrder() {
        EditorAperto e;
        e.apriNuova();
        const WindowPage pagina = e.corpo();
        pagina.widget("durata_0").setFocus();
        QStringList passati;
        for (int i = 0; i < 12; ++i) {
            QWidget* campo = QApplication::focusWidget();
            passati += campo->objectName();
            QVERIFY2(!campo->accessibleName().isEmpty(), qPrintable(campo->objectName()));
            QTest::keyClick(campo, Qt::Key_Tab);
        }
        QCOMPARE(passati, QStringList({"durata_0", "frequenza_0", "ampiezza_0", "serie_0", "recuperoMin_0",
                                       "recuperoSec_0", "modalita_0", "peso_0", "note_0",
                                       "InserisciEsecizio_1", "EliminaEsercizio_1", "TipoEsercizio_1"}));
    }
};

QUIVERDECK_WINDOW_TEST_MAIN(TestCorpo)
#include "test_corpo.moc"
