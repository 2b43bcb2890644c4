#include "cards/raccoglitore.h"
#include "cards/scheda.h"
#include "support/Errors.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"
#include "templates/SchedaModello.h"

#include <QTest>

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

QStringList header(const scheda& c) {
    return {QString::number(c.id_utente), c.Istruttore, c.PeriodoDal, c.PeriodoAl,
            QString::number(c.id_cat),    c.categoria,  c.Obiettivo,  c.note,
            QString::number(c.FreqAllen), c.GGAllen,    c.nomeUtente, c.cognomeUtente};
}

void addLines(SchedaApribile& card, std::initializer_list<qint32> figures) {
    for (const qint32 figure : figures) {
        auto line = std::make_shared<Esercizio>();
        line->id_fig = figure;
        line->isModello = card.isModello;
        line->durata = QString::number(figure * 10);
        card.esercizi->Add(line);
    }
}

/// "key:figure:template" of each line.
QStringList lines(const SchedaApribile& card) {
    QStringList result;
    for (const auto& line : *card.esercizi)
        result += u"%1:%2:%3"_s.arg(line->ct).arg(line->id_fig).arg(line->isModello);
    return result;
}

} // namespace

class TestScheda : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        program_->sql(u"INSERT INTO utenti (nome,cognome) VALUES ('Ada','Rossi')"_s);
        boxes_ = std::make_unique<ScriptedBoxes>();
    }
    void cleanup() {
        QVERIFY(boxes_->satisfied());
        boxes_.reset();
        program_.reset();
    }

    void roundTrip() {
        scheda card;
        fill(card);
        QCOMPARE(card.save(), 1);
        QCOMPARE(card.id_scheda, 1);
        QVERIFY(card.isSaved);
        scheda read;
        QVERIFY(read.carica(1));
        const QStringList stored = {u"1"_s,
                                    u"Màrio"_s,
                                    u"01/02/2005"_s,
                                    u"22/02/2005"_s,
                                    u"3"_s,
                                    u"Recupero"_s,
                                    u"Forza e #1/1/2005#"_s,
                                    u"dell`anca 🏋 DELETE * FROM x"_s,
                                    u"255"_s,
                                    u"001010100"_s,
                                    u"Ada"_s,
                                    u"Rossi"_s};
        QCOMPARE(header(read), stored);
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
        QCOMPARE(header(again),
                 QStringList({u"1"_s, u"Ugo"_s, u"31/12/2005"_s, u"01/01/1980"_s, u"1"_s, u"Forza"_s,
                              u"l`anca"_s, u"è"_s, u"0"_s, u"010000000"_s, u"Ada"_s, u"Rossi"_s}));
        QVERIFY(!again.periodoDalNullo());
        QVERIFY(again.periodoAlNullo());
        again.PeriodoAl = u"02/01/1980"_s;
        QVERIFY(!again.periodoAlNullo());
    }

    void statements() {
        scheda card;
        fill(card);
        card.categoria.clear();
        card.id_cat = 3;
        card.Obiettivo = u"x"_s;
        card.note = u"l'ora"_s;
        card.save();
        card.Obiettivo = u"l'anca"_s;
        card.save();
        card.Elimina(0);
        QCOMPARE(
            program_->log(),
            QStringList({u"Execute - INSERT INTO schede (id_utente,istruttore,periododal,periodoal, "
                         "id_cat,freqAllen,GGAllen,obiettivo,[note]) VALUES ('1','Màrio',#02/01/2005#,"
                         "#02/22/2005#,3,255,'001010100','x','l`ora')"_s,
                         u"Execute - UPDATE schede SET id_utente= '1',istruttore = 'Màrio',periododal = "
                         "#02/01/2005#,periodoal = #02/22/2005#,id_cat=3 ,obiettivo='l`anca',freqAllen=255,"
                         "GGAllen='001010100',[note]='l`ora' WHERE id_scheda=1"_s,
                         u"Execute - DELETE * FROM schede WHERE id_scheda=1"_s}));
    }

    void goalWithApostropheFailsOnlyOnTheFirstSave() {
        program_->sql(u"INSERT INTO schede (id_scheda) VALUES (40)"_s);
        scheda card;
        fill(card);
        card.Obiettivo = u"l'anca"_s;
        boxes_->expectBeginning(host::Icon::None, u"1-"_s);
        QCOMPARE(card.save(), 40); // the highest key there is
        QCOMPARE(card.save(), 0);
        QCOMPARE(program_->rows(u"SELECT obiettivo FROM schede"_s), QStringList({u"l`anca"_s}));
    }

    void unknownCategory() {
        scheda card;
        fill(card);
        card.categoria = u"forza"_s; // compared exactly
        addLines(card, {1});
        QCOMPARE(errorOf([&] { return card.save(); }), 513);
        QVERIFY(program_->rows(u"SELECT * FROM schede"_s).isEmpty());
        QVERIFY(!card.isSaved);
        try {
            card.setCategoriaPerNome(u"Nessuna"_s);
            QFAIL("accepted");
        } catch (const runtime::Error& error) {
            QCOMPARE(error.description(), u"Categoria non esistente!"_s);
        }
    }

    void cardWithoutCategoryIsNotFoundAgain() {
        scheda card;
        fill(card);
        card.categoria.clear();
        QCOMPARE(card.save(), 1);
        boxes_->expect(host::Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        scheda read;
        QVERIFY(!read.carica(1));
        QVERIFY(read.isSaved);
        QCOMPARE(read.id_scheda, 0);
    }

    void nullFrequencyIsAnError() {
        program_->sql(u"INSERT INTO schede (id_utente,id_cat,Istruttore) VALUES (1,1,'x')"_s);
        scheda card;
        QCOMPARE(errorOf([&] { return card.carica(1); }), 94);
    }

    void linesKeepTheirPlaces() {
        scheda card;
        fill(card);
        addLines(card, {3, 0, 2, 0});
        card.esercizi->Item(4)->isLibero = true;
        card.save();
        QCOMPARE(program_->rows(u"SELECT NProg, ID_Fig, isLibero, ID_Scheda FROM Esercizi ORDER BY NProg"_s),
                 QStringList({u"1|3|0|1"_s, u"3|2|0|1"_s, u"4|0|1|1"_s}));
        card.caricaEsercizi();
        card.caricaEsercizi();
        QCOMPARE(lines(card), QStringList({u"1:3:0"_s, u"2:2:0"_s, u"3:0:0"_s}));
        // At once from the store; the numbers behind it only with the next save.
        card.EliminaEsercizio(1);
        QCOMPARE(card.esercizi->Item(1)->nprog, 1);
        QCOMPARE(program_->rows(u"SELECT ct, NProg FROM Esercizi ORDER BY ct"_s),
                 QStringList({u"2|3"_s, u"3|4"_s}));
        QCOMPARE(errorOf([&] { return card.EliminaEsercizio(3), 0; }), 9);
        // A blanked line keeps its row and comes back.
        card.esercizi->Item(1)->svuotaDati();
        card.save();
        QCOMPARE(program_->rows(u"SELECT ct, NProg, ID_Fig FROM Esercizi ORDER BY ct"_s),
                 QStringList({u"2|3|2"_s, u"3|2|0"_s}));
        QVERIFY(card.Elimina(0));
        QVERIFY(program_->rows(u"SELECT * FROM Esercizi"_s).isEmpty());
    }

    void manyLines() {
        scheda card;
        fill(card);
        for (int i = 0; i < 300; ++i)
            addLines(card, {1});
        card.save();
        QCOMPARE(program_->rows(u"SELECT COUNT(*), MAX(NProg) FROM Esercizi"_s), QStringList({u"300|300"_s}));
    }

    void pouringIntoATemplate() {
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
        QCOMPARE(lines(card),
                 QStringList({u"0:1:1"_s, u"0:2:1"_s, u"0:3:1"_s, u"1:1:0"_s, u"2:2:0"_s, u"3:3:0"_s}));
        scheda other;
        QVERIFY(card.travasaTo(other, false));
        QCOMPARE(other.categoria, u"Recupero"_s);
        QCOMPARE(other.id_cat, 3);
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
        QCOMPARE(cards.schede->Count(), 3);
        QCOMPARE(cards.schede->Item(2)->id_scheda, 2);
        QCOMPARE(cards.schede->Item(2)->esercizi->Count(), 0);
        cards.caricaSchede();
        QCOMPARE(cards.schede->Count(), 6);
        QVERIFY(cards.remove(cards.schede->Item(1)));
        QCOMPARE(cards.schede->Count(), 5);
        QCOMPARE(program_->rows(u"SELECT id_scheda FROM schede"_s), QStringList({u"2"_s, u"3"_s}));
        program_->sql(u"INSERT INTO schede (id_utente,id_cat) VALUES (2,1)"_s);
        raccoglitore fresh;
        fresh.id_utente = 1;
        QVERIFY(fresh.EliminaTutto());
        QCOMPARE(fresh.schede->Count(), 2); // the collection keeps its items
        QCOMPARE(program_->rows(u"SELECT id_utente FROM schede"_s), QStringList({u"2"_s}));
    }

private:
    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QTEST_GUILESS_MAIN(TestScheda)
#include "test_scheda.moc"
