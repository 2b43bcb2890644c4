#include "cards/scheda.h"
#include "support/Errors.h"
#include "support/FakeControls.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"
#include "templates/Categorie.h"
#include "templates/RaccoglitoreModelli.h"
#include "templates/SchedaModello.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// "key:figure:template" of each line.
QStringList lines(const SchedaApribile& card) {
    QStringList result;
    for (const auto& line : *card.esercizi)
        result += u"%1:%2:%3"_s.arg(line->ct).arg(line->id_fig).arg(line->isModello);
    return result;
}

} // namespace

class TestModello : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        boxes_ = std::make_unique<ScriptedBoxes>();
    }
    void cleanup() {
        QVERIFY(boxes_->satisfied());
        boxes_.reset();
        program_.reset();
    }

    void roundTrip_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("apostrophe") << u"l'anca"_s;
        QTest::newRow("SQL") << u"DELETE * FROM x #1/1/2005#"_s;
        QTest::newRow("emoji") << u"è 🏋"_s;
    }
    void roundTrip() {
        QFETCH(QString, text);
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
        QCOMPARE(QStringList({read.descrizione, read.note, read.categoria}),
                 QStringList({stored, stored + u'2', u"Generale"_s}));
        QVERIFY(read.preimpostata && read.id_cat == 2);
        read.preimpostata = false;
        read.categoria = u"Forza"_s;
        read.descrizione = text + u'3';
        read.note = text + u'4';
        QCOMPARE(read.save(), 0);
        QVERIFY(model.carica(2));
        QCOMPARE(QStringList({model.descrizione, model.note, model.categoria}),
                 QStringList({stored + u'3', stored + u'4', u"Forza"_s}));
        QVERIFY(!model.preimpostata);
    }

    void statements() {
        SchedaModello model;
        model.id_cat = 2;
        model.descrizione = u"l'anca"_s;
        model.save();
        model.save();
        model.Elimina(0);
        QCOMPARE(program_->log(),
                 QStringList(
                     {u"Execute - INSERT INTO schedeModello (id_cat,descrizione,preimpostata,[note]) VALUES "
                      "(2,'l`anca',FALSE,'')"_s,
                      u"Execute - UPDATE schedemodello SET descrizione= 'l`anca',id_cat=2,preimpostata=FALSE,"
                      "[note]='' WHERE id_Scheda=2"_s,
                      u"Execute - DELETE * FROM schedemodello WHERE id_Scheda=2"_s}));
    }

    void linesGoToTheTemplatesTable() {
        SchedaModello model;
        QVERIFY(model.carica(1));
        QVERIFY(model.preimpostata);
        model.caricaEsercizi();
        QCOMPARE(lines(model), QStringList({u"1:2:1"_s, u"2:3:1"_s}));
        model.caricaEsercizi(); // doubles, unlike a card
        QCOMPARE(model.esercizi->Count(), 4);
        for (int i = 0; i < 2; ++i)
            model.esercizi->Remove(3);
        auto line = std::make_shared<Esercizio>();
        line->id_fig = 1; // its flag still says card
        model.esercizi->Add(line, 1);
        model.save();
        QCOMPARE(program_->rows(u"SELECT ct, NProg, ID_Fig, ID_Scheda FROM EserciziModello ORDER BY NProg"_s),
                 QStringList({u"3|1|1|1"_s, u"1|2|2|1"_s, u"2|3|3|1"_s}));
        QVERIFY(program_->rows(u"SELECT * FROM Esercizi"_s).isEmpty());
        model.EliminaEsercizio(2);
        QCOMPARE(program_->rows(u"SELECT ct FROM EserciziModello ORDER BY ct"_s),
                 QStringList({u"2"_s, u"3"_s}));
        QVERIFY(model.Elimina(0)); // supplied or not
        QVERIFY(program_->rows(u"SELECT * FROM EserciziModello"_s).isEmpty());
    }

    void failuresOfLoading() {
        boxes_->expect(host::Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        SchedaModello model;
        QVERIFY(!model.carica(0));
        QVERIFY(model.isSaved);
        program_->sql(u"UPDATE schedeModello SET preimpostata=NULL"_s);
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
        QCOMPARE(card.categoria, u"Forza"_s);
        QCOMPARE(card.id_cat, 1);
        QCOMPARE(card.note, u"Note del modello"_s);
        QCOMPARE(lines(card), QStringList({u"0:2:0"_s, u"0:3:0"_s}));
        QCOMPARE(lines(model), QStringList({u"1:2:1"_s, u"2:3:1"_s}));
        QVERIFY(card.esercizi->Item(1) != model.esercizi->Item(1));
        QCOMPARE(card.esercizi->Item(2)->peso, u"5 kg"_s);
        // Into lines that are there already: the first ones are readied, the copies keep their keys.
        SchedaModello full;
        full.categoria = u"Generale"_s;
        full.esercizi->Add(std::make_shared<Esercizio>());
        full.esercizi->Item(1)->ct = 50;
        QVERIFY(model.travasaTo(full, true));
        QCOMPARE(full.categoria, u"Generale"_s);
        QCOMPARE(lines(full), QStringList({u"0:0:1"_s, u"0:2:1"_s, u"2:3:0"_s}));
    }

    void collectionOfTemplates() {
        program_->sql(u"INSERT INTO schedeModello (id_cat,descrizione,preimpostata) VALUES (2,'Mio',0)"_s);
        RaccoglitoreModelli models;
        QVERIFY(models.caricaSchede());
        QCOMPARE(models.schede->Count(), 2);
        QCOMPARE(models.schede->Item(2)->descrizione, u"Mio"_s);
        models.caricaSchede();
        QCOMPARE(models.schede->Count(), 4);
        QVERIFY(models.remove(models.schede->Item(1)));
        QCOMPARE(models.schede->Count(), 3);
        QCOMPARE(program_->rows(u"SELECT descrizione FROM schedeModello"_s), QStringList({u"Mio"_s}));
        RaccoglitoreModelli fresh;
        QVERIFY(fresh.EliminaTutto());
        QVERIFY(program_->rows(u"SELECT * FROM schedeModello"_s).isEmpty());
    }

    void categories() {
        program_->sql(u"INSERT INTO categorie VALUES (9,'Forza')"_s);
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
        program_->sql(u"DELETE FROM categorie"_s);
        categories.fillcategorie(list);
        QCOMPARE(list.items.size(), 5);
    }

private:
    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QTEST_GUILESS_MAIN(TestModello)
#include "test_modello.moc"
