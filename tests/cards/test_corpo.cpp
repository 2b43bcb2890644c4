#include "cards/EditorTest.h"
#include "cards/SchedaCorpo2.h"
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
    void droppedFiguresAreSavedAndBlanksLeftOut() {
        apriNuova();
        QCOMPARE(mostrata(corpo(), 0), predefinita);
        for (const QString& altro : {u"gatto"_s, u"3 kg"_s, QString(), u"4294967296"_s})
            QVERIFY2(!corpo().drop(u"figura_1"_s, altro), qPrintable(altro));
        QVERIFY(corpo().drop(u"figura_1"_s, u"3"_s));
        QVERIFY(!corpo().find<toolkit::PictureBox>(u"figura_1"_s).isEmpty());
        QCOMPARE(aperta().esercizi->Item(2)->id_fig, 0); // only the next write has it
        barra().setValue(2);
        QVERIFY(corpo().drop(u"figura_1"_s, u"2"_s));
        salva();
        QCOMPARE(rows(u"SELECT NProg, ID_Fig FROM Esercizi ORDER BY NProg"), u"2|3, 4|2"_s);
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
        for (const QString& passo : {u"recuperoMin_0|2|09:15"_s, u"recuperoSec_0|40|10:15"_s,
                                     u"serie_0|5|17:05"_s, u"durata_0|60s|18:20"_s}) {
            const QStringList parti = passo.split(u'|');
            parti[0] == u"durata_0"_s ? corpo().choose(parti[0], parti[1]) : corpo().type(parti[0], parti[1]);
            const QString stato = editor().find<toolkit::StatusBar>(u"StatusBar1"_s).panel(u"status"_s);
            QVERIFY2(stato.contains(u"Tempo totale: "_s + parti[2]), qPrintable(stato));
        }
    }

    void refusedFieldsKeepTheFocus_data() {
        QTest::addColumn<QString>("messaggio");
        const QString lista = u"Selezionare un valore tra quelli disponibili!"_s;
        QTest::newRow("durata_0=30S") << lista; // another case
        QTest::newRow("ampiezza_0=") << lista;
        QTest::newRow("modalita_0=d'urto") << lista; // with its apostrophe guarded
        QTest::newRow("recuperoSec_0=60") << u"Inserire un numero tra 0 e 59"_s;
        QTest::newRow("recuperoSec_0=59") << QString();
        QTest::newRow("serie_1=99") << QString();
        QTest::newRow("serie_0=1x00") << u"Valore troppo grande!"_s; // letters are dropped
    }
    void refusedFieldsKeepTheFocus() {
        QFETCH(QString, messaggio);
        const QStringList prova = QString::fromLatin1(QTest::currentDataTag()).split(u'=');
        const QString campo = prova[0];
        apriNuova();
        const WindowPage pagina = corpo();
        pagina.type(campo, prova[1]);
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

    /// The page of one exercise keeps what it does not show.
    void compactPage() {
        SchedaCorpo2& form = SchedaCorpo2::comune();
        form.schedaAperta = std::make_shared<::scheda>();
        addLines(*form.schedaAperta, {2});
        Esercizio& e = *form.schedaAperta->esercizi->Item(1);
        e.serie = 3;
        form.show();
        const WindowPage pagina(form);
        for (const QString& riga : {u"H|1:30|H|1|30"_s, u"4 mm|2|4|2|0"_s, u"H|:75|H|0|75"_s}) {
            pagina.type(u"ampiezza"_s, riga.section(u'|', 0, 0));
            pagina.type(u"recupero"_s, riga.section(u'|', 1, 1));
            pagina.press(u"cmdSucc"_s);
            pagina.press(u"cmdPrec"_s);
            QCOMPARE(u"%1|%2|%3"_s.arg(e.ampiezza).arg(e.recuperoMin).arg(e.recuperoSec),
                     riga.section(u'|', 2));
        }
        pagina.type(u"recupero"_s, u"0:256"_s);
        QCOMPARE(errorOf([&] { form.ScriviDati(); }), int(runtime::Overflow));
        QCOMPARE(u"%1|%2|%3|%4"_s.arg(e.id_fig).arg(e.serie).arg(e.recuperoSec).arg(e.note), u"2|3|75|1"_s);
    }
};

QUIVERDECK_TEST(TestCorpo)
#include "test_corpo.moc"
