#include "cards/EditorTest.h"
#include "cards/scheda.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/ScrollBar.h"
#include "platform/toolkit/TabStrip.h"

#include <QAbstractButton>
#include <QFile>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

const QString predefinita = u"30s|30Hz|L|0:0|Statico a carico naturale|0|"_s;
const QString caricata = u"45s|40Hz|H|1:20|Combinata|3|5 kg"_s;

/// What a row shows: "durata|frequenza|ampiezza|min:sec|modalita|serie|peso".
QString mostrata(const WindowPage& pagina, int i) {
    const auto testo = [&](const char* campo) {
        return pagina.text(u"%1_%2"_s.arg(QLatin1String(campo)).arg(i));
    };
    return QStringList{testo("durata"),   testo("frequenza"),
                       testo("ampiezza"), testo("recuperoMin") + u':' + testo("recuperoSec"),
                       testo("modalita"), testo("serie"),
                       testo("peso")}
        .join(u'|');
}

} // namespace

class TestCorpo : public EditorTest {
    Q_OBJECT

    static toolkit::ScrollBar& barra() { return corpo().find<toolkit::ScrollBar>(u"VS"_s); }
    static bool senzaFigura(const QString& quadro) {
        return corpo().find<toolkit::PictureBox>(quadro).isEmpty();
    }

private Q_SLOTS:
    void emptyCardShowsTwoDefaultRows() {
        apriNuova();
        QCOMPARE(mostrata(corpo(), 0), predefinita);
        QCOMPARE(mostrata(corpo(), 1), predefinita);
        QCOMPARE(righe(), u"0||0||0, 0||0||0"_s);
        QCOMPARE(corpo().text(u"nEsercizio_0"_s) + corpo().text(u"nEsercizio_1"_s), u"12"_s);
        QCOMPARE(barra().minimum(), 1);
        QVERIFY(!corpo().isVisible(u"Command1"_s));
    }

    void blanksStandBehindTheLoadedLines_data() {
        QTest::addColumn<int>("caricati");
        QTest::addColumn<int>("inMemoria");
        QTest::newRow("one") << 1 << 2;
        QTest::newRow("four") << 4 << 6;
    }
    void blanksStandBehindTheLoadedLines() {
        QFETCH(int, caricati);
        const int card = nuovaScheda();
        for (int i = 1; i <= caricati; ++i)
            esercizio(card, i, 1);
        apriScheda(card);
        QTEST(aperta().esercizi->Count(), "inMemoria");
        QCOMPARE(mostrata(corpo(), 0), caricata);
        QCOMPARE(mostrata(corpo(), 1), caricati > 1 ? caricata : predefinita);
        QCOMPARE(barra().maximum(), 2); // not set by the load
    }

    void saveLeavesBlanksOutAndKeepsTheGap() {
        apriNuova();
        QVERIFY(corpo().drop(u"figura_0"_s, u"1"_s));
        corpo().press(u"InserisciEsecizio_0"_s); // the blank one first, the figure second
        barra().setValue(2);
        QVERIFY(corpo().drop(u"figura_1"_s, u"2"_s));
        salva();
        QCOMPARE(rows(u"SELECT NProg, ID_Fig FROM Esercizi ORDER BY NProg"), u"2|1, 4|2"_s);
    }

    void insertionMovesTheRowDown() {
        apriConFigure({1, 2, 3}); // and one blank
        corpo().press(u"InserisciEsecizio_1"_s);
        QCOMPARE(righe(), u"1|45s|3|a|0, 0||0||0, 2|45s|3|b|0, 3|45s|3|c|0, 0||0||0, 0||0||0"_s);
        QCOMPARE(mostrata(corpo(), 1), predefinita);
        QVERIFY(senzaFigura(u"figura_1"_s) && !senzaFigura(u"figura_0"_s));
        QCOMPARE(barra().maximum(), 4); // 6 lines, 3 screens and one more
        for (int i = 1; i <= 6; ++i)
            QCOMPARE(aperta().esercizi->Item(i)->nprog, i);
    }

    void deletionIsInTheStoreAtOnce() {
        apriConFigure({1, 2, 3});
        corpo().press(u"EliminaEsercizio_0"_s);
        QCOMPARE(righe(), u"2|45s|3|b|0, 3|45s|3|c|0, 0||0||0, 0||0||0"_s);
        QCOMPARE(mostrata(corpo(), 0), caricata);
        QCOMPARE(rows(u"SELECT NProg, Note FROM Esercizi ORDER BY NProg"), u"2|b, 3|c"_s);
    }

    void scrollingWritesTheRowsAndMakesANewScreen() {
        apriNuova();
        const WindowPage pagina = corpo();
        pagina.type(u"peso_0"_s, u"3 kg"_s);
        pagina.find<toolkit::TabStrip>(u"TipoEsercizio_1"_s).select(u"libero"_s);
        pagina.type(u"note_3"_s, u"libera"_s);
        barra().setValue(2);
        QCOMPARE(righe(), u"0|30s|0||0, 0|30s|0|libera|1, 0||0||0, 0||0||0"_s);
        QCOMPARE(aperta().esercizi->Item(1)->peso, u"3 kg"_s);
        QCOMPARE(mostrata(pagina, 0), predefinita);
        QCOMPARE(pagina.text(u"nEsercizio_0"_s) + u' ' + pagina.text(u"nEsercizio_1"_s), u"3 4"_s);
        QVERIFY(pagina.isVisible(u"Frame1_1"_s));
        QCOMPARE(barra().maximum(), 3);
        barra().setValue(1);
        QCOMPARE(pagina.text(u"peso_0"_s), u"3 kg"_s);
        QCOMPARE(pagina.text(u"note_3"_s), u"libera"_s);
        QVERIFY(pagina.isVisible(u"FrameLibero_1"_s));
        QCOMPARE(barra().maximum(), 3);
    }

    void freeRowKeepsItsHiddenValues() {
        apriConFigure({3});
        corpo().clickTab(u"TipoEsercizio_0"_s, 2);
        QVERIFY(corpo().isVisible(u"FrameLibero_0"_s) && !corpo().isVisible(u"figura_0"_s));
        QVERIFY(righe().startsWith(u"3|45s|3|a|0"_s)); // the tab alone writes nothing
        corpo().type(u"note_2"_s, u"a corpo libero"_s);
        salva();
        QCOMPARE(rows(u"SELECT ID_Fig, Durata, Serie, Note, isLibero FROM Esercizi"),
                 u"3|45s|3|a corpo libero|1"_s);
    }

    void timesAreCountedAtEachEdit_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::addColumn<QString>("totale");
        // Three series of 45 s and 1 min 20 s: 2:15 and 4:00.
        QTest::newRow("duration chosen") << u"durata_0"_s << u"60s"_s << u"07:00"_s;
        QTest::newRow("minutes") << u"recuperoMin_0"_s << u"2"_s << u"09:15"_s;
        QTest::newRow("seconds") << u"recuperoSec_0"_s << u"40"_s << u"07:15"_s;
        QTest::newRow("series") << u"serie_0"_s << u"5"_s << u"10:25"_s;
        QTest::newRow("amplitude does not count") << u"ampiezza_0"_s << u"L"_s << u"06:15"_s;
    }
    void timesAreCountedAtEachEdit() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        QFETCH(QString, totale);
        apriConFigure({1});
        QVERIFY(stato().contains(u"Tempo totale: 06:15"_s));
        aperta().isSaved = true;
        if (qobject_cast<QLineEdit*>(&corpo().widget(campo)) != nullptr)
            corpo().type(campo, testo);
        else
            corpo().choose(campo, testo);
        QVERIFY2(stato().contains(u"Tempo totale: "_s + totale), qPrintable(stato()));
        QVERIFY(!aperta().isSaved);
    }

    void refusedFieldsKeepTheFocus_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::addColumn<QString>("messaggio");
        const QString lista = u"Selezionare un valore tra quelli disponibili!"_s;
        const QString secondi = u"Inserire un numero tra 0 e 59"_s;
        QTest::newRow("duration not listed") << u"durata_0"_s << u"31s"_s << lista;
        QTest::newRow("duration in another case") << u"durata_0"_s << u"30S"_s << lista;
        QTest::newRow("frequency") << u"frequenza_1"_s << u"30"_s << lista;
        QTest::newRow("amplitude emptied") << u"ampiezza_0"_s << QString() << lista;
        QTest::newRow("mode, with the guarded apostrophe") << u"modalita_0"_s << u"d'urto"_s << lista;
        QTest::newRow("60 seconds") << u"recuperoSec_0"_s << u"60"_s << secondi;
        QTest::newRow("59 seconds pass") << u"recuperoSec_0"_s << u"59"_s << QString();
        QTest::newRow("255 minutes pass") << u"recuperoMin_0"_s << u"255"_s << QString();
        QTest::newRow("99 series pass") << u"serie_1"_s << u"99"_s << QString();
        QTest::newRow("100 series, letters dropped")
            << u"serie_0"_s << u"1x00"_s << u"Valore troppo grande!"_s;
    }
    void refusedFieldsKeepTheFocus() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        QFETCH(QString, messaggio);
        apriNuova();
        const WindowPage pagina = corpo();
        pagina.type(campo, testo);
        QVERIFY(!pagina.text(campo).contains(u'\'') && !pagina.text(campo).contains(u'x'));
        if (!messaggio.isEmpty())
            boxes().expect(Icon::Critical, messaggio);
        pagina.clickTab(u"TipoEsercizio_0"_s, 2);
        QCOMPARE(pagina.isVisible(u"FrameLibero_0"_s), messaggio.isEmpty());
        if (!messaggio.isEmpty()) {
            QVERIFY(pagina.widget(campo).hasFocus());
            boxes().expect(Icon::Critical, messaggio);
            QTest::mouseClick(&barra(), Qt::LeftButton, {}, QPoint(8, barra().QWidget::height() - 4));
            QCOMPARE(barra().value(), 1);
        }
    }

    void uncaughtErrors_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::addColumn<int>("errore");
        QTest::newRow("256 minutes overflow") << u"recuperoMin_0"_s << u"256"_s << int(runtime::Overflow);
        QTest::newRow("256 seconds overflow") << u"recuperoSec_0"_s << u"256"_s << int(runtime::Overflow);
        QTest::newRow("emptied seconds") << u"recuperoSec_0"_s << QString() << int(runtime::TypeMismatch);
        QTest::newRow("emptied minutes are 0") << u"recuperoMin_0"_s << QString() << 0;
    }
    void uncaughtErrors() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        apriNuova();
        const ExpectedFatal fatale;
        corpo().type(campo, testo);
        if (fatale.count == 0)
            QTest::keyClick(&corpo().widget(campo), Qt::Key_Tab);
        QTEST(fatale.lastNumber, "errore");
    }

    void droppedFigures_data() {
        QTest::addColumn<QString>("testo");
        QTest::addColumn<bool>("accettato");
        QTest::newRow("a key") << u"3"_s << true;
        QTest::newRow("a word") << u"gatto"_s << false;
        QTest::newRow("a number with a unit") << u"3 kg"_s << false;
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("beyond 32 bits") << u"4294967296"_s << false;
    }
    void droppedFigures() {
        QFETCH(QString, testo);
        QFETCH(bool, accettato);
        apriNuova();
        aperta().isSaved = true;
        QCOMPARE(corpo().drop(u"figura_1"_s, testo), accettato);
        QCOMPARE(senzaFigura(u"figura_1"_s), !accettato);
        QVERIFY(aperta().isSaved); // a drop marks nothing, and only the next write has it
        QCOMPARE(aperta().esercizi->Item(2)->id_fig, 0);
        barra().setValue(2);
        QCOMPARE(aperta().esercizi->Item(2)->id_fig, accettato ? 3 : 0);
    }

    void missingFigureOrPicture_data() {
        QTest::addColumn<QString>("chiave");
        QTest::newRow("no such figure") << u"77"_s;
        QTest::newRow("its picture is gone") << u"2"_s;
    }
    void missingFigureOrPicture() {
        QFETCH(QString, chiave);
        apriNuova();
        QVERIFY(QFile::remove(program().folder() + u"/images/Q/002.JPG"_s));
        const ExpectedFatal fatale;
        if (chiave == u"77"_s)
            boxes().expect(Icon::Critical, u"ERR:Problemi di connessione"_s);
        corpo().drop(u"figura_0"_s, chiave);
        QCOMPARE(fatale.lastNumber, int(runtime::FileNotFound));
    }

    void technicianCopiesTheFirstExercise() {
        apriConFigure({1, 2});
        corpo().type(u"recuperoSec_0"_s, u"7"_s);
        corpo().find<QAbstractButton>(u"Command1"_s).click();
        QCOMPARE(corpo().text(u"recuperoSec_1"_s), u"7"_s);
        QCOMPARE(righe(), u"1|45s|3|a|0, 2|45s|3|b|0, 0|45s|3||0, 0|45s|3||0"_s);
    }

    void focusSelectsTheNumber() {
        apriConFigure({1});
        corpo().widget(u"recuperoMin_0"_s).setFocus(Qt::TabFocusReason);
        corpo().widget(u"recuperoSec_0"_s).setFocus(Qt::TabFocusReason);
        QCOMPARE(corpo().find<QLineEdit>(u"recuperoSec_0"_s).selectedText(), u"20"_s);
    }
};

QUIVERDECK_TEST(TestCorpo)
#include "test_corpo.moc"
