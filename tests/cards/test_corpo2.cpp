#include "cards/EditorTest.h"
#include "cards/SchedaCorpo2.h"
#include "cards/scheda.h"

using namespace Qt::StringLiterals;

namespace {

const QString primo = u"1|45s|40Hz|H|1:05|Dinamico a carico naturale|1 kg|nota|1"_s;
const QString secondo = u"2|45s|40Hz|H|1:05|Dinamico a carico naturale|2 kg|nota|2"_s;

} // namespace

class TestCorpo2 : public EditorTest {
    Q_OBJECT

    /// Opens the page on a card in memory with as many exercises as asked for.
    void apri(int esercizi) {
        scheda_ = std::make_shared<::scheda>();
        for (int i = 1; i <= esercizi; ++i) {
            auto e = std::make_shared<Esercizio>();
            e->id_fig = i;
            e->durata = u"45s"_s;
            e->frequenza = u"40Hz"_s;
            e->ampiezza = u"H"_s;
            e->modalita = u"Dinamico a carico naturale"_s;
            e->recuperoMin = 1;
            e->recuperoSec = 5;
            e->serie = 3;
            e->peso = QString::number(i) + u" kg"_s;
            e->note = u"nota"_s;
            scheda_->esercizi->Add(e);
        }
        SchedaCorpo2::comune().schedaAperta = scheda_;
        SchedaCorpo2::comune().show();
        QVERIFY(QTest::qWaitForWindowActive(&SchedaCorpo2::comune()));
    }
    static WindowPage pagina() { return WindowPage(SchedaCorpo2::comune()); }
    Esercizio& riga(int posizione) const { return *scheda_->esercizi->Item(posizione); }
    /// "n|durata|frequenza|ampiezza|recupero|modalita|peso|note|figura" as shown.
    static QString mostrato() {
        QStringList testi;
        for (const auto* campo :
             {"nEsercizio", "durata", "frequenza", "ampiezza", "recupero", "modalita", "peso", "note"})
            testi += pagina().text(QLatin1String(campo));
        auto& figura = pagina().find<toolkit::PictureBox>(u"figura"_s);
        return testi.join(u'|') + u'|' + (figura.isEmpty() ? u"-"_s : figura.Tag);
    }

    std::shared_ptr<::scheda> scheda_;

private Q_SLOTS:
    void loadShowsTheFirstAndAddsABlank_data() {
        QTest::addColumn<int>("esercizi");
        QTest::addColumn<QString>("mostrato");
        QTest::newRow("empty card") << 0 << u"1|30s|30Hz|||Statico a carico aggiuntivo|||-"_s;
        QTest::newRow("two exercises") << 2 << primo;
    }
    void loadShowsTheFirstAndAddsABlank() {
        QFETCH(int, esercizi);
        apri(esercizi);
        QTEST(mostrato(), "mostrato");
        QCOMPARE(scheda_->esercizi->Count(), esercizi + 1);
    }

    void walking() {
        apri(2);
        pagina().press(u"cmdPrec"_s); // the first stays
        QCOMPARE(mostrato(), primo);
        pagina().press(u"cmdSucc"_s);
        QCOMPARE(mostrato(), secondo);
        pagina().press(u"cmdSucc"_s); // the blank of the load, shown as it is
        QCOMPARE(mostrato(), u"3||||0:00||||-"_s);
        pagina().press(u"cmdSucc"_s); // beyond the end: a new one with the defaults
        QCOMPARE(mostrato(), u"4|30s|30Hz||0:00|Statico a carico aggiuntivo|||-"_s);
        QCOMPARE(scheda_->esercizi->Count(), 4);
        for (int i = 0; i < 3; ++i)
            pagina().press(u"cmdPrec"_s);
        QCOMPARE(mostrato(), primo);
        QCOMPARE(scheda_->esercizi->Count(), 4);
        QCOMPARE(riga(4).durata, u"30s"_s); // written when it was left
        QCOMPARE(riga(4).nprog, 4);
        QCOMPARE(int(riga(1).serie), 3); // not on the page
        QCOMPARE(rows(u"SELECT count(*) FROM Esercizi"), u"0"_s);
    }

    void writing_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::addColumn<QString>("scritto"); // "ampiezza|min:sec|peso"
        const auto caso = [](const char* nome, const char* campo, const char* testo, const char* scritto) {
            QTest::newRow(nome) << campo << testo << scritto;
        };
        caso("minutes and seconds", "recupero", "2:30", "H|2:30|1 kg");
        caso("no colon: minutes", "recupero", "2 min", "H|2:0|1 kg");
        caso("no minutes", "recupero", ":45", "H|0:45|1 kg");
        caso("emptied", "recupero", "", "H|0:0|1 kg");
        caso("seconds of the field's whole range", "recupero", "255:255", "H|255:255|1 kg");
        caso("amplitude with a unit", "ampiezza", "4 mm", "4|1:5|1 kg");
        caso("amplitude with decimals", "ampiezza", " 2.50", "2.5|1:5|1 kg");
        caso("amplitude emptied", "ampiezza", "", "|1:5|1 kg");
        caso("guarded apostrophe", "peso", "d'un", "H|1:5|d’un");
    }
    void writing() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        apri(1);
        pagina().type(campo, testo);
        SchedaCorpo2::comune().ScriviDati();
        const Esercizio& e = riga(1);
        QTEST(u"%1|%2:%3|%4"_s.arg(e.ampiezza).arg(e.recuperoMin).arg(e.recuperoSec).arg(e.peso), "scritto");
    }

    void beyondEightBitsNothingIsWritten_data() {
        QTest::addColumn<QString>("testo");
        QTest::newRow("minutes") << "256:00";
        QTest::newRow("seconds") << "2:256";
        QTest::newRow("negative") << "-1";
    }
    void beyondEightBitsNothingIsWritten() {
        QFETCH(QString, testo);
        apri(1);
        pagina().type(u"peso"_s, u"9 kg"_s);
        pagina().type(u"recupero"_s, testo);
        const ExpectedFatal fatale;
        pagina().press(u"cmdSucc"_s);
        QCOMPARE(fatale.lastNumber, int(runtime::Overflow));
        QCOMPARE(riga(1).peso, u"1 kg"_s);
        QCOMPARE(int(riga(1).recuperoMin), 1);
        QCOMPARE(pagina().text(u"nEsercizio"_s), u"1"_s);
    }

    void droppedFigures() {
        apri(1);
        QVERIFY(!pagina().drop(u"figura"_s, u"gatto"_s));
        QVERIFY(pagina().drop(u"figura"_s, u"3"_s));
        QCOMPARE(riga(1).id_fig, 1); // the next write has it
        pagina().press(u"cmdSucc"_s);
        QCOMPARE(riga(1).id_fig, 3);
        pagina().press(u"cmdSucc"_s);
        QCOMPARE(riga(2).id_fig, 0);
    }

    void refusedFieldsKeepTheFocus_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::newRow("duration") << u"durata"_s << u"30S"_s;
        QTest::newRow("frequency") << u"frequenza"_s << QString();
        QTest::newRow("mode of the other page") << u"modalita"_s << u"Combinata"_s;
    }
    void refusedFieldsKeepTheFocus() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        apri(1);
        pagina().type(campo, testo);
        boxes().expect(Icon::Critical, u"Selezionare un valore tra quelli disponibili!"_s);
        pagina().press(u"cmdSucc"_s);
        QVERIFY(pagina().widget(campo).hasFocus());
        QCOMPARE(pagina().text(u"nEsercizio"_s), u"1"_s);
    }

    void withoutARecord() {
        QCOMPARE(errorOf([] { return SchedaCorpo2::comune().load(), 0; }), int(runtime::ObjectNotSet));
    }
};

QUIVERDECK_TEST(TestCorpo2)
#include "test_corpo2.moc"
