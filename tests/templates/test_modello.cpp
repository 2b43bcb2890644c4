#include "cards/scheda.h"
#include "support/FakeControls.h"
#include "support/RecordsTest.h"
#include "templates/Categorie.h"
#include "templates/RaccoglitoreModelli.h"
#include "templates/SchedaModello.h"

using namespace Qt::StringLiterals;

namespace {

QStringList header(const SchedaModello& m) {
    return {m.descrizione, m.note, m.categoria, u"%1 %2"_s.arg(m.id_cat).arg(m.preimpostata)};
}

} // namespace

class TestModello : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void roundTrip() {
        const QString text = u"l'anca DELETE * FROM x #1/1/2005# è 🏋"_s;
        const QString stored = QString(text).replace(u'\'', u'`');
        SchedaModello model;
        model.categoria = u"Generale"_s;
        model.descrizione = text;
        model.note = text + u'2';
        model.preimpostata = true;
        QCOMPARE(model.save(), 2);
        QVERIFY(model.isSaved && model.isModello && model.id_scheda == 2);
        SchedaModello read;
        QVERIFY(read.carica(2));
        QCOMPARE(header(read), QStringList({stored, stored + u'2', u"Generale"_s, u"2 1"_s}));
        read.preimpostata = false;
        read.categoria = u"Forza"_s;
        read.descrizione = text + u'3';
        read.note = text + u'4';
        QCOMPARE(read.save(), 0);
        QVERIFY(model.carica(2));
        QCOMPARE(header(model), QStringList({stored + u'3', stored + u'4', u"Forza"_s, u"1 0"_s}));
    }

    void linesGoToTheTemplatesTable() {
        SchedaModello model;
        QVERIFY(model.carica(1));
        model.caricaEsercizi();
        QCOMPARE(lines(model), u"1:2:1 2:3:1"_s);
        model.caricaEsercizi(); // doubles, unlike a card
        QCOMPARE(model.esercizi->Count(), 4);
        for (int i = 0; i < 2; ++i)
            model.esercizi->Remove(3);
        auto line = std::make_shared<Esercizio>();
        line->id_fig = 1; // its flag still says card
        model.esercizi->Add(line, 1);
        model.save();
        QCOMPARE(rows(u"SELECT ct, NProg, ID_Fig, ID_Scheda FROM EserciziModello ORDER BY NProg"),
                 u"3|1|1|1, 1|2|2|1, 2|3|3|1"_s);
        QCOMPARE(rows(u"SELECT * FROM Esercizi"), QString());
        model.EliminaEsercizio(2);
        QCOMPARE(rows(u"SELECT ct FROM EserciziModello ORDER BY ct"), u"2, 3"_s);
        QVERIFY(model.Elimina(0)); // supplied or not
        QCOMPARE(rows(u"SELECT * FROM EserciziModello"), QString());
    }

    void failures() {
        boxes().expect(Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        SchedaModello model;
        QVERIFY(!model.carica(0));
        QVERIFY(model.isSaved);
        sql(u"UPDATE schedeModello SET preimpostata=NULL");
        QCOMPARE(errorOf([&] { return model.carica(1); }), 13);
        model.categoria = u"Nessuna"_s;
        QCOMPARE(errorOf([&] { return model.save(); }), 513);
    }

    void pouringIntoACard() {
        SchedaModello model;
        model.carica(1);
        model.caricaEsercizi();
        scheda card;
        QVERIFY(model.travasaTo(card, false));
        QVERIFY(card.categoria == u"Forza" && card.id_cat == 1);
        QCOMPARE(card.note, u"Note del modello"_s);
        QCOMPARE(lines(card), u"0:2:0 0:3:0"_s);
        QCOMPARE(lines(model), u"1:2:1 2:3:1"_s);
        QVERIFY(card.esercizi->Item(1) != model.esercizi->Item(1));
        QCOMPARE(card.esercizi->Item(2)->peso, u"5 kg"_s);
        // Into lines that are there already: the first ones are readied, the copies keep their keys.
        SchedaModello full;
        full.categoria = u"Generale"_s;
        addLines(full, {0});
        full.esercizi->Item(1)->ct = 50;
        QVERIFY(model.travasaTo(full, true));
        QCOMPARE(full.categoria, u"Generale"_s);
        QCOMPARE(lines(full), u"0:0:1 0:2:1 2:3:0"_s);
    }

    void collectionOfTemplates() {
        sql(u"INSERT INTO schedeModello (id_cat,descrizione,preimpostata) VALUES (2,'Mio',0)");
        RaccoglitoreModelli models;
        QVERIFY(models.caricaSchede());
        QCOMPARE(models.schede->Item(2)->descrizione, u"Mio"_s);
        models.caricaSchede();
        QCOMPARE(models.schede->Count(), 4);
        QVERIFY(models.remove(models.schede->Item(1)));
        QCOMPARE(models.schede->Count(), 3);
        QCOMPARE(rows(u"SELECT descrizione FROM schedeModello"), u"Mio"_s);
        QVERIFY(RaccoglitoreModelli().EliminaTutto());
        QCOMPARE(rows(u"SELECT * FROM schedeModello"), QString());
    }

    void categories() {
        sql(u"INSERT INTO categorie VALUES (9,'Forza')");
        FakeItemList list;
        list.items = {u"già qui"_s};
        const Categorie categories;
        categories.fillcategorie(list);
        QCOMPARE(list.items,
                 QStringList({u"già qui"_s, u"Forza"_s, u"Forza"_s, u"Generale"_s, u"Recupero"_s}));
        QCOMPARE(categories.getCategorie()->Item(4)->id_cat, 3);
        SchedaModello model;
        model.setCategoriaPerNome(u"Forza"_s); // of two, the one the store gives first
        QCOMPARE(model.id_cat, 1);
    }
};

QUIVERDECK_TEST(TestModello)
#include "test_modello.moc"
