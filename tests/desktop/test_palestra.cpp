#include "desktop/palestra.h"
#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

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
};

QUIVERDECK_TEST(TestPalestra)
#include "test_palestra.moc"
