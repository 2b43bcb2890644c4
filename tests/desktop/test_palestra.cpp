#include "desktop/SliderEffect.h"
#include "desktop/palestra.h"
#include "support/FakeControls.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

namespace {

class FakeBar : public host::ScrollValue {
public:
    int value() const override { return now; }
    void setValue(int value) override { now = value; }
    int minimum() const override { return 0; }
    int maximum() const override { return 1000; }
    int now = 500;
};

} // namespace

class TestPalestra : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void roundTrip() {
        palestra gym;
        gym.nome = u"L'Arena"_s;
        gym.responsabile = u"Ugo D'Amico"_s;
        gym.logo = u"/opt/Palestra è qui\\images\\l'ogo.JPG"_s;
        QVERIFY(gym.save());
        palestra read;
        read.carica();
        QCOMPARE(QStringList({read.nome, read.responsabile, read.logo}),
                 QStringList({u"L`Arena"_s, u"Ugo D`Amico"_s, u"/opt/Palestra è qui\\images\\l`ogo.JPG"_s}));
        QCOMPARE(log(), QStringList({u"Execute - UPDATE palestra SET nome= 'L`Arena',responsabile= "
                                     "'Ugo D`Amico',logo='/opt/Palestra è qui\\images\\l`ogo.JPG' "_s}));
        sql(u"INSERT INTO palestra VALUES ('x','y','z')");
        read.save(); // rewrites whatever rows are there
        QCOMPARE(rows(u"SELECT DISTINCT nome FROM palestra"), u"L`Arena"_s);
    }

    void emptyTable() {
        sql(u"DELETE FROM palestra");
        palestra gym;
        gym.nome = u"Arena"_s;
        boxes().expect(Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        gym.carica();
        QCOMPARE(gym.nome, u"Arena"_s);
        QVERIFY(gym.save());
        QCOMPARE(rows(u"SELECT * FROM palestra"), u"Arena||"_s);
        QVERIFY(log().isEmpty()); // the first one goes unlogged
        sql(u"DELETE FROM palestra; CREATE TRIGGER t BEFORE INSERT ON palestra "
            "BEGIN SELECT RAISE(ABORT,'no'); END");
        QCOMPARE(errorOf([&] { return gym.save(); }), 1811); // and its failure rises
    }

    void dragging() {
        FakeCursor cursor;
        FakeBar bar;
        SliderEffect slider;
        struct Move {
            int button;
            int y;
            int value; // afterwards
        };
        const QList<Move> moves = {
            {0, 300, 500},                               // no button: only remembered
            {1, 305, 300},                               // down five pixels: the page follows
            {1, 300, 500}, {2, 290, 500}, {3, 280, 500}, // other buttons do nothing
            {1, 279, 540},                               // from the last move, whatever its button
            {1, 400, 540},                               // past the end: dropped, not clamped
            {1, 389, 980}, {1, 388, 980},                // 1020 would be past it
            {1, 387, 980}, {0, 0, 980},   {1, 24, 20},
        };
        for (const Move& move : moves) {
            cursor.at = {0, move.y};
            slider.setDisplacement(static_cast<qint16>(move.button), bar);
            QCOMPARE(bar.now, move.value);
        }
    }
};

QUIVERDECK_TEST(TestPalestra)
#include "test_palestra.moc"
