#include "cards/raccoglitore.h"
#include "cards/scheda.h"
#include "support/RecordsTest.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

namespace {

void fill(scheda& card) {
    card.id_utente = 1;
    card.Istruttore = u"Màrio"_s;
    card.PeriodoDal = u"01/02/2005"_s;
    card.PeriodoAl = u"22/02/2005"_s;
    card.categoria = u"Recupero"_s;
    card.Obiettivo = u"Forza e #1/1/2005#"_s;
    card.note = u"dell'anca 🏋 DELETE * FROM x"_s;
    card.FreqAllen = 255;
    card.GGAllen = u"001010100"_s;
}

/// The header's values; the athlete's and the key of the category at the end.
QString header(const scheda& c) {
    return QStringList({c.Istruttore, c.PeriodoDal, c.PeriodoAl, c.categoria, c.Obiettivo, c.note, c.GGAllen,
                        c.nomeUtente, c.cognomeUtente})
               .join(u'|') +
           u"|%1|%2|%3"_s.arg(c.FreqAllen).arg(c.id_utente).arg(c.id_cat);
}

} // namespace

class TestScheda : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        RecordsTest::init();
        sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi')");
    }

    void roundTrip() {
        scheda card;
        fill(card);
        QCOMPARE(card.save(), 1);
        QVERIFY(card.isSaved && card.id_scheda == 1);
        scheda read;
        QVERIFY(read.carica(1));
        QCOMPARE(header(read), u"Màrio|01/02/2005|22/02/2005|Recupero|Forza e #1/1/2005#|"
                               "dell`anca 🏋 DELETE * FROM x|001010100|Ada|Rossi|255|1|3"_s);
        QVERIFY(read.isSaved && !read.isModello && read.id_scheda == 1);
        // The update writes every field too.
        read.Istruttore = u"Ugo"_s;
        read.PeriodoDal = u"31/12/2005"_s;
        read.PeriodoAl.clear();
        read.categoria = u"Forza"_s;
        read.Obiettivo = u"l'anca"_s;
        read.note = u"è"_s;
        read.FreqAllen = 0;
        read.GGAllen = u"010000000"_s;
        QCOMPARE(read.save(), 0);
        scheda again;
        QVERIFY(again.carica(1));
        QCOMPARE(header(again), u"Ugo|31/12/2005|01/01/1980|Forza|l`anca|è|010000000|Ada|Rossi|0|1|1"_s);
        QVERIFY(!again.periodoDalNullo() && again.periodoAlNullo());
        again.PeriodoDal = u"01/01/1980"_s; // the stand-in's own date, but the store had another
        again.PeriodoAl = u"02/01/1980"_s;
        QVERIFY(!again.periodoDalNullo() && !again.periodoAlNullo());
    }

    void statements() {
        scheda card;
        fill(card);
        card.categoria.clear();
        card.id_cat = 3;
        card.Obiettivo = u"x"_s;
        card.save();
        card.Obiettivo = u"l'anca"_s;
        card.note.clear();
        card.save();
        card.Elimina(0);
        QCOMPARE(
            log(),
            QStringList({u"Execute - INSERT INTO schede (id_utente,istruttore,periododal,periodoal, "
                         "id_cat,freqAllen,GGAllen,obiettivo,[note]) VALUES ('1','Màrio',#02/01/2005#,"
                         "#02/22/2005#,3,255,'001010100','x','dell`anca 🏋 DELETE * FROM x')"_s,
                         u"Execute - UPDATE schede SET id_utente= '1',istruttore = 'Màrio',periododal = "
                         "#02/01/2005#,periodoal = #02/22/2005#,id_cat=3 ,obiettivo='l`anca',freqAllen=255,"
                         "GGAllen='001010100',[note]='' WHERE id_scheda=1"_s,
                         u"Execute - DELETE * FROM schede WHERE id_scheda=1"_s}));
    }

    void goalWithApostropheFailsOnlyOnTheFirstSave() {
        sql(u"INSERT INTO schede (id_scheda) VALUES (40)");
        scheda card;
        fill(card);
        card.Obiettivo = u"l'anca"_s;
        boxes().expectBeginning(Icon::None, u"1-"_s);
        QCOMPARE(card.save(), 40); // the highest key there is
        QCOMPARE(card.save(), 0);
        QCOMPARE(rows(u"SELECT obiettivo FROM schede"), u"l`anca"_s);
    }

    void unknownCategory() {
        scheda card;
        fill(card);
        card.categoria = u"forza"_s; // compared exactly
        addLines(card, {1});
        try {
            card.save();
            QFAIL("accepted");
        } catch (const runtime::Error& error) {
            QCOMPARE(error.number(), 513);
            QCOMPARE(error.description(), u"Categoria non esistente!"_s);
        }
        QCOMPARE(rows(u"SELECT * FROM schede"), QString());
        QVERIFY(!card.isSaved);
    }

    void cardsThatCannotBeRead() {
        scheda card;
        fill(card);
        card.categoria.clear();
        QCOMPARE(card.save(), 1);
        boxes().expect(Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        scheda read;
        QVERIFY(!read.carica(1)); // without a category the view does not show it
        QVERIFY(read.isSaved && read.id_scheda == 0);
        sql(u"UPDATE schede SET id_cat=1, FreqAllen=NULL");
        QCOMPARE(errorOf([&] { return read.carica(1); }), 94);
    }

    void linesKeepTheirPlaces() {
        scheda card;
        fill(card);
        addLines(card, {3, 0, 2, 0});
        card.esercizi->Item(4)->isLibero = true;
        card.save();
        const auto stored = u"SELECT ct, NProg, ID_Fig, isLibero, ID_Scheda FROM Esercizi ORDER BY ct";
        QCOMPARE(rows(stored), u"1|1|3|0|1, 2|3|2|0|1, 3|4|0|1|1"_s);
        card.caricaEsercizi();
        card.caricaEsercizi();
        QCOMPARE(lines(card), u"1:3:0 2:2:0 3:0:0"_s);
        // At once from the store; the numbers behind it only with the next save.
        card.EliminaEsercizio(1);
        QCOMPARE(card.esercizi->Item(1)->nprog, 1);
        QCOMPARE(rows(stored), u"2|3|2|0|1, 3|4|0|1|1"_s);
        QCOMPARE(errorOf([&] { card.EliminaEsercizio(3); }), 9);
        // A blanked line keeps its row and comes back.
        card.esercizi->Item(1)->svuotaDati();
        card.save();
        QCOMPARE(rows(stored), u"2|3|2|0|1, 3|2|0|1|1"_s);
        QVERIFY(card.Elimina(0));
        QCOMPARE(rows(stored), QString());
    }

    void manyLines() {
        scheda card;
        fill(card);
        for (int i = 0; i < 300; ++i)
            addLines(card, {1});
        card.save();
        QCOMPARE(rows(u"SELECT COUNT(*), MAX(NProg) FROM Esercizi"), u"300|300"_s);
    }

    void travasaTo() {
        scheda card;
        fill(card);
        addLines(card, {1, 2, 3});
        card.save();
        SchedaModello target;
        target.categoria = u"Generale"_s;
        QVERIFY(card.travasaTo(target, true));
        QCOMPARE(target.note, card.note);
        QCOMPARE(target.categoria, u"Generale"_s);
        QCOMPARE(target.esercizi, card.esercizi); // one collection, six lines
        QCOMPARE(lines(card), u"0:1:1 0:2:1 0:3:1 1:1:0 2:2:0 3:3:0"_s);
        scheda other;
        QVERIFY(card.travasaTo(other, false));
        QVERIFY(other.categoria == u"Recupero" && other.id_cat == 3);
        QVERIFY(other.Istruttore.isEmpty());
    }

    void collectionOfCards() {
        for (int i = 0; i < 3; ++i) {
            scheda card;
            fill(card);
            addLines(card, {1});
            card.save();
        }
        raccoglitore cards;
        cards.id_utente = 1;
        QVERIFY(cards.caricaSchede());
        QCOMPARE(cards.schede->Item(2)->id_scheda, 2);
        QCOMPARE(cards.schede->Item(2)->esercizi->Count(), 0);
        cards.caricaSchede();
        QCOMPARE(cards.schede->Count(), 6); // nothing empties it
        QVERIFY(cards.remove(cards.schede->Item(1)));
        QCOMPARE(cards.schede->Count(), 5);
        QCOMPARE(rows(u"SELECT id_scheda FROM schede"), u"2, 3"_s);
        sql(u"INSERT INTO schede (id_utente,id_cat) VALUES (2,1)");
        raccoglitore fresh;
        fresh.id_utente = 1;
        QVERIFY(fresh.EliminaTutto());
        QCOMPARE(fresh.schede->Count(), 2); // the collection keeps its items
        QCOMPARE(rows(u"SELECT id_utente FROM schede"), u"2"_s);
    }
};

QUIVERDECK_TEST(TestScheda)
#include "test_scheda.moc"
