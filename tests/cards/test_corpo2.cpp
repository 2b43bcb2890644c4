#include "cards/EditorAperto.h"
#include "cards/SchedaCorpo2.h"
#include "cards/scheda.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/PictureBox.h"
#include "support/ToolkitTest.h"
#include "support/WindowChecks.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

/// The page, open on a card in memory with as many exercises as asked for.
class PaginaCompatta : public EditorAperto {
public:
    explicit PaginaCompatta(int esercizi, const QString& ampiezza = u"H"_s) {
        for (int i = 1; i <= esercizi; ++i) {
            auto e = std::make_shared<Esercizio>();
            e->id_fig = i;
            e->durata = u"45s"_s;
            e->frequenza = u"40Hz"_s;
            e->ampiezza = ampiezza;
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
    ~PaginaCompatta() { SchedaCorpo2::comune().unload(); }
    PaginaCompatta(const PaginaCompatta&) = delete;
    PaginaCompatta& operator=(const PaginaCompatta&) = delete;

    static WindowPage pagina() { return WindowPage(SchedaCorpo2::comune()); }
    Esercizio& esercizio(int posizione) const { return *scheda_->esercizi->Item(posizione); }
    int numero() const { return scheda_->esercizi->Count(); }

    /// "n|durata|frequenza|ampiezza|recupero|modalita|peso|note|figura" as shown.
    static QString mostrato() {
        const WindowPage p = pagina();
        QStringList testi;
        for (const auto* campo :
             {"nEsercizio", "durata", "frequenza", "ampiezza", "recupero", "modalita", "peso", "note"}) {
            testi += p.text(QLatin1String(campo));
        }
        auto& figura = p.find<toolkit::PictureBox>(u"figura"_s);
        return testi.join(u'|') + u'|' + (figura.isEmpty() ? u"-"_s : figura.Tag);
    }

private:
    std::shared_ptr<::scheda> scheda_ = std::make_shared<::scheda>();
};

const QString primo = u"1|45s|40Hz|H|1:05|Dinamico a carico naturale|1 kg|nota|1"_s;
const QString secondo = u"2|45s|40Hz|H|1:05|Dinamico a carico naturale|2 kg|nota|2"_s;

} // namespace

class TestCorpo2 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void loadShowsTheFirstAndAddsABlank_data() {
        QTest::addColumn<int>("esercizi");
        QTest::addColumn<QString>("mostrato");
        QTest::newRow("empty card") << 0 << u"1|30s|30Hz|||Statico a carico aggiuntivo|||-"_s;
        QTest::newRow("two exercises") << 2 << primo;
    }
    void loadShowsTheFirstAndAddsABlank() {
        QFETCH(int, esercizi);
        const PaginaCompatta p(esercizi);
        QTEST(PaginaCompatta::mostrato(), "mostrato");
        QCOMPARE(p.numero(), esercizi + 1);
    }

    void walking() {
        const PaginaCompatta p(2);
        const WindowPage pagina = PaginaCompatta::pagina();
        pagina.press(u"cmdPrec"_s); // the first stays
        QCOMPARE(PaginaCompatta::mostrato(), primo);
        pagina.press(u"cmdSucc"_s);
        QCOMPARE(PaginaCompatta::mostrato(), secondo);
        pagina.press(u"cmdSucc"_s); // the blank of the load, shown as it is
        QCOMPARE(PaginaCompatta::mostrato(), u"3||||0:00||||-"_s);
        pagina.press(u"cmdSucc"_s); // beyond the end: a new one with the defaults
        QCOMPARE(PaginaCompatta::mostrato(), u"4|30s|30Hz||0:00|Statico a carico aggiuntivo|||-"_s);
        QCOMPARE(p.numero(), 4);
        for (int i = 0; i < 3; ++i) {
            pagina.press(u"cmdPrec"_s);
        }
        QCOMPARE(PaginaCompatta::mostrato(), primo);
        QCOMPARE(p.numero(), 4);
        QCOMPARE(p.esercizio(4).durata, u"30s"_s); // written when it was left
        QCOMPARE(p.esercizio(4).nprog, 4);
        QCOMPARE(int(p.esercizio(1).serie), 3); // not on the page
        QCOMPARE(p.programma.rows(u"SELECT count(*) FROM Esercizi"_s), QStringList(u"0"_s));
    }

    void writing_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::addColumn<QString>("scritto"); // "ampiezza|min:sec|peso"
        const auto riga = [](const char* nome, const char* campo, const char* testo, const char* scritto) {
            QTest::newRow(nome) << campo << testo << scritto;
        };
        riga("minutes and seconds", "recupero", "2:30", "H|2:30|1 kg");
        riga("no colon: minutes", "recupero", "2 min", "H|2:0|1 kg");
        riga("no minutes", "recupero", ":45", "H|0:45|1 kg");
        riga("emptied", "recupero", "", "H|0:0|1 kg");
        riga("words", "recupero", "poco", "H|0:0|1 kg");
        riga("units and a second colon", "recupero", "1 m : 20 s : 9", "H|1:20|1 kg");
        riga("seconds of the field's whole range", "recupero", "255:255", "H|255:255|1 kg");
        riga("amplitude with a unit", "ampiezza", "4 mm", "4|1:5|1 kg");
        riga("amplitude with decimals", "ampiezza", " 2.50", "2.5|1:5|1 kg");
        riga("amplitude zero", "ampiezza", "00", "0|1:5|1 kg");
        riga("amplitude, a letter", "ampiezza", "L", "L|1:5|1 kg");
        riga("amplitude emptied", "ampiezza", "", "|1:5|1 kg");
        riga("guarded apostrophe", "peso", "d'un", "H|1:5|d’un");
    }
    void writing() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        const PaginaCompatta p(1);
        PaginaCompatta::pagina().type(campo, testo);
        SchedaCorpo2::comune().ScriviDati();
        const Esercizio& e = p.esercizio(1);
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
        const PaginaCompatta p(1);
        const WindowPage pagina = PaginaCompatta::pagina();
        pagina.type(u"peso"_s, u"9 kg"_s);
        pagina.type(u"recupero"_s, testo);
        const ExpectedFatal fatale;
        pagina.press(u"cmdSucc"_s);
        QCOMPARE(fatale.lastNumber, int(runtime::Overflow));
        QCOMPARE(p.esercizio(1).peso, u"1 kg"_s);
        QCOMPARE(int(p.esercizio(1).recuperoMin), 1);
        QCOMPARE(pagina.text(u"nEsercizio"_s), u"1"_s);
    }

    void droppedFigures() {
        const PaginaCompatta p(1);
        const WindowPage pagina = PaginaCompatta::pagina();
        QVERIFY(!pagina.drop(u"figura"_s, u"gatto"_s));
        QVERIFY(pagina.drop(u"figura"_s, u"3"_s));
        QCOMPARE(p.esercizio(1).id_fig, 1); // the next write has it
        pagina.press(u"cmdSucc"_s);
        QCOMPARE(p.esercizio(1).id_fig, 3);
        pagina.press(u"cmdSucc"_s);
        QCOMPARE(p.esercizio(2).id_fig, 0);
    }

    void refusedFieldsKeepTheFocus_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("testo");
        QTest::newRow("duration") << "durata"
                                  << "30S";
        QTest::newRow("frequency") << "frequenza"
                                   << "";
        QTest::newRow("mode of the other page") << "modalita"
                                                << "Combinata";
    }
    void refusedFieldsKeepTheFocus() {
        QFETCH(QString, campo);
        QFETCH(QString, testo);
        PaginaCompatta p(1);
        const WindowPage pagina = PaginaCompatta::pagina();
        pagina.type(campo, testo);
        p.riquadri.expect(host::Icon::Critical, u"Selezionare un valore tra quelli disponibili!"_s);
        pagina.press(u"cmdSucc"_s);
        QVERIFY(p.riquadri.satisfied());
        QVERIFY(pagina.widget(campo).hasFocus());
        QCOMPARE(pagina.text(u"nEsercizio"_s), u"1"_s);
    }

    void withoutARecord() {
        const EditorAperto e;
        QVERIFY_THROWS_EXCEPTION(runtime::Error, SchedaCorpo2::comune().load());
        delete &SchedaCorpo2::comune();
    }

    void everythingShowsWholeInReadingOrder() {
        const PaginaCompatta p(2);
        const WindowPage pagina = PaginaCompatta::pagina();
        QCOMPARE(cutTexts(pagina.window()), QStringList());
        const QRect dentro = pagina.widget(u"client"_s).rect();
        for (const auto* nome : {"Frame1", "cmdPrec", "cmdSucc"}) {
            QVERIFY2(dentro.contains(pagina.widget(QLatin1String(nome)).geometry()), nome);
        }
        pagina.widget(u"durata"_s).setFocus();
        QStringList passati;
        for (int i = 0; i < 9; ++i) {
            QWidget* campo = QApplication::focusWidget();
            passati += campo->objectName();
            QVERIFY2(!campo->accessibleName().isEmpty(), qPrintable(campo->objectName()));
            QTest::keyClick(campo, Qt::Key_Tab);
        }
        QCOMPARE(passati.join(u' '),
                 u"durata frequenza ampiezza recupero modalita peso note cmdPrec cmdSucc"_s);
    }
};

QUIVERDECK_WINDOW_TEST_MAIN(TestCorpo2)
#include "test_corpo2.moc"
