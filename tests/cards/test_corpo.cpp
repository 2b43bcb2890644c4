#include "cards/EditorTest.h"
#include "platform/toolkit/PictureBox.h"

using namespace Qt::StringLiterals;

namespace {

const QString predefinita = u"30s|30Hz|L|0|0|Statico a carico naturale|0|"_s;

/// What the fields of a row show.
QString mostrata(const WindowPage& pagina, int i) {
    QStringList testi;
    for (const char* campo :
         {"durata", "frequenza", "ampiezza", "recuperoMin", "recuperoSec", "modalita", "serie", "peso"})
        testi += pagina.text(u"%1_%2"_s.arg(QLatin1String(campo)).arg(i));
    return testi.join(u'|');
}

} // namespace

class TestCorpo : public EditorTest {
    Q_OBJECT

private Q_SLOTS:
    void saveLeavesBlanksOutAndKeepsTheGap() {
        apriNuova();
        QCOMPARE(righe(), u"0||0||0, 0||0||0"_s);
        QCOMPARE(mostrata(corpo(), 0), predefinita);
        QVERIFY(corpo().drop(u"figura_0"_s, u"1"_s));
        corpo().press(u"InserisciEsecizio_0"_s); // the blank one first, the figure second
        barra().setValue(2);
        QVERIFY(corpo().drop(u"figura_1"_s, u"2"_s));
        salva();
        QCOMPARE(rows(u"SELECT NProg, ID_Fig FROM Esercizi ORDER BY NProg"), u"2|1, 4|2"_s);
    }

    void insertionMovesDownAndDeletionIsStoredAtOnce() {
        apriConFigure({1, 2, 3}); // and one blank
        corpo().press(u"InserisciEsecizio_1"_s);
        QCOMPARE(righe(), u"1|45s|3|a|0, 0||0||0, 2|45s|3|b|0, 3|45s|3|c|0, 0||0||0, 0||0||0"_s);
        QCOMPARE(mostrata(corpo(), 1), predefinita);
        QCOMPARE(barra().maximum(), 4); // 6 lines, 3 screens and one more
        corpo().press(u"EliminaEsercizio_0"_s);
        QCOMPARE(righe(), u"0|30s|0||0, 2|45s|3|b|0, 3|45s|3|c|0, 0||0||0, 0||0||0, 0||0||0"_s);
        QCOMPARE(mostrata(corpo(), 1), u"45s|40Hz|H|1|20|Combinata|3|5 kg"_s);
        QCOMPARE(rows(u"SELECT NProg, Note FROM Esercizi ORDER BY NProg"), u"2|b, 3|c"_s);
    }

    void scrollingWritesTheRowsAndMakesANewScreen() {
        apriNuova();
        const WindowPage pagina = corpo();
        pagina.type(u"peso_0"_s, u"3 kg"_s);
        pagina.clickTab(u"TipoEsercizio_1"_s, 2);
        pagina.type(u"note_3"_s, u"libera"_s);
        barra().setValue(2);
        QCOMPARE(righe(), u"0|30s|0||0, 0|30s|0|libera|1, 0||0||0, 0||0||0"_s);
        QCOMPARE(mostrata(pagina, 0), predefinita);
        QCOMPARE(pagina.text(u"nEsercizio_0"_s) + pagina.text(u"nEsercizio_1"_s), u"34"_s);
        QVERIFY(pagina.isVisible(u"Frame1_1"_s));
        barra().setValue(1);
        QCOMPARE(pagina.text(u"peso_0"_s) + pagina.text(u"note_3"_s), u"3 kglibera"_s);
        QVERIFY(pagina.isVisible(u"FrameLibero_1"_s));
    }

    void freeRowKeepsItsHiddenValues() {
        apriConFigure({3, 1});
        QCOMPARE(aperta().esercizi->Count(), 4); // an even list gets two blanks
        corpo().clickTab(u"TipoEsercizio_0"_s, 2);
        QVERIFY(righe().startsWith(u"3|45s|3|a|0"_s)); // the tab alone writes nothing
        corpo().type(u"note_2"_s, u"a corpo libero"_s);
        salva();
        QCOMPARE(rows(u"SELECT ID_Fig, Durata, Serie, Note, isLibero FROM Esercizi"),
                 u"3|45s|3|a corpo libero|1, 1|45s|3|b|0"_s);
    }

    void timesAreCountedAtEachEdit() {
        apriConFigure({1}); // three series of 45 s and 1 min 20 s: 2:15 and 4:00
        const auto dopo = [](const QString& totale) {
            const QString stato = editor().find<toolkit::StatusBar>(u"StatusBar1"_s).panel(u"status"_s);
            QVERIFY2(stato.contains(u"Tempo totale: "_s + totale), qPrintable(stato));
        };
        dopo(u"06:15"_s);
        corpo().choose(u"durata_0"_s, u"60s"_s);
        dopo(u"07:00"_s);
        corpo().type(u"recuperoMin_0"_s, u"2"_s);
        dopo(u"10:00"_s);
        corpo().type(u"recuperoSec_0"_s, u"40"_s);
        dopo(u"11:00"_s);
        corpo().type(u"serie_0"_s, u"5"_s);
        dopo(u"18:20"_s);
    }

    void refusedFieldsKeepTheFocus_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::addColumn<QString>("messaggio");
        const QString lista = u"Selezionare un valore tra quelli disponibili!"_s;
        QTest::newRow("another case") << u"durata_0"_s << u"30S"_s << lista;
        QTest::newRow("emptied") << u"ampiezza_0"_s << QString() << lista;
        QTest::newRow("the apostrophe guarded") << u"modalita_0"_s << u"d'urto"_s << lista;
        QTest::newRow("60 s") << u"recuperoSec_0"_s << u"60"_s << u"Inserire un numero tra 0 e 59"_s;
        QTest::newRow("59 s") << u"recuperoSec_0"_s << u"59"_s << QString();
        QTest::newRow("99 series") << u"serie_1"_s << u"99"_s << QString();
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
        QVERIFY(messaggio.isEmpty() || pagina.widget(campo).hasFocus());
    }

    void emptiedTimes() {
        apriNuova();
        const ExpectedFatal fatale;
        for (const QString& campo : {u"recuperoMin_0"_s, u"recuperoSec_0"_s}) {
            QCOMPARE(fatale.count, 0); // no minutes are 0
            corpo().type(campo, {});
            QTest::keyClick(&corpo().widget(campo), Qt::Key_Tab);
        }
        QCOMPARE(fatale.lastNumber, int(runtime::TypeMismatch));
    }

    void droppedFigures() {
        apriNuova();
        for (const QString& altro : {u"gatto"_s, u"3 kg"_s, QString(), u"4294967296"_s})
            QVERIFY2(!corpo().drop(u"figura_1"_s, altro), qPrintable(altro));
        QVERIFY(corpo().drop(u"figura_1"_s, u"3"_s));
        QVERIFY(!corpo().find<toolkit::PictureBox>(u"figura_1"_s).isEmpty());
        QCOMPARE(aperta().esercizi->Item(2)->id_fig, 0); // only the next write has it
        barra().setValue(2);
        QCOMPARE(aperta().esercizi->Item(2)->id_fig, 3);
    }
};

QUIVERDECK_TEST(TestCorpo)
#include "test_corpo.moc"
