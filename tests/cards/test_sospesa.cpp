#include "cards/FileSospeso.h"
#include "cards/SchedaSospesa.h"
#include "cards/scheda.h"
#include "support/RecordsTest.h"
#include "templates/SchedaModello.h"

#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class TestSospesa : public RecordsTest {
    Q_OBJECT

    const QDateTime ora{QDate(2026, 11, 22), QTime(22, 30, 15)};

    QByteArray fileDi(const SchedaSospesa& s) const { return SchedaSospesa::file(s.stato(), ora); }
    /// The stored card or template 5 with its lines 101 to 103, the last of them deleted too, and a page.
    static SchedaSospesa esempio(bool isModello) {
        SchedaSospesa s;
        s.nome = u"Però \"Anna\" \U0001F4AA\u0001"_s;
        if (isModello)
            s.scheda = std::make_shared<SchedaModello>();
        else
            s.scheda = std::make_shared<scheda>();
        s.idUtenteSelezionato = isModello ? 0 : 1;
        (isModello ? s.idModelloSelezionato : s.idSchedaSelezionata) = 5;
        s.scheda->carica(5);
        s.scheda->caricaEsercizi();
        s.eliminati.push_back(*s.scheda->esercizi->Item(3));
        s.pagina = PaginaEsercizi{.posizione = 2,
                                  .massimo = 3,
                                  .righe = {{true, u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s,
                                             u"h"_s, u"i"_s, u"l"_s, u"m"_s},
                                            {}}};
        return s;
    }

private Q_SLOTS:
    void init() {
        RecordsTest::init();
        sql(u"INSERT INTO utenti VALUES (1,'Anna','Però',NULL,'F','');"
            "INSERT INTO schede VALUES "
            "(5,1,'Ugo','2026-11-02','2026-11-30',2,255,'001010100','Forza','a\tb');"
            "INSERT INTO schedeModello VALUES (5,2,'Base’s',1,'a\tb');"
            "INSERT INTO Esercizi VALUES "
            "(101,1,5,1,'45s','40Hz','H',1,2,3,'è \"1\"','5 \\ kg',0,'una\nnota'),"
            "(102,2,5,0,'','','',0,0,0,'','',1,'🏋'),(103,3,5,2,'','','',254,255,253,'','',0,'');"
            "INSERT INTO EserciziModello SELECT * FROM Esercizi");
    }

    void comesBackWhole() {
        for (const bool isModello : {true, false}) {
            SchedaSospesa prima = esempio(isModello);
            auto dopo = SchedaSospesa::leggi(fileDi(prima)).value();
            QCOMPARE(dopo.stato(), prima.stato());
            QCOMPARE(dopo.ora, ora);
            prima.pagina.reset();
            QVERIFY(!SchedaSospesa::leggi(fileDi(prima)).value().pagina);
            // Stored, it fills every column again: of its own rows, and of new ones where they are lost. The
            // keys that come next are the same.
            const QString tipo = isModello ? u"Modello"_s : QString();
            const auto archivio = [&] {
                return rows(u"SELECT * FROM schede%1 s JOIN Esercizi%1 e ON e.ID_Scheda = s.id_scheda "
                            "WHERE s.id_scheda=5 ORDER BY ct"_s.arg(tipo));
            };
            const QString stava = archivio();
            for (const bool perse : {false, true}) {
                sql(u"DELETE FROM schede%1 WHERE id_scheda=5; UPDATE sqlite_sequence SET seq=4 WHERE name="
                    "'schede%1'; UPDATE sqlite_sequence SET seq=100 WHERE name='Esercizi%1'"_s.arg(tipo));
                if (!perse)
                    sql(u"INSERT INTO schede%1 (id_scheda) VALUES (5);"
                        "INSERT INTO Esercizi%1 (ct) VALUES (101),(102),(103)"_s.arg(tipo));
                QVERIFY(dopo.confronta());
                QCOMPARE(dopo.idSchedaSelezionata + dopo.idModelloSelezionato, perse ? 0 : 5);
                dopo.scheda->save();
                QCOMPARE(archivio(), stava);
            }
        }
    }

    void aLostRowBecomesNew() {
        SchedaSospesa s = esempio(false);
        sql(u"DELETE FROM Esercizi WHERE ct=102");
        QVERIFY(s.confronta());
        s.scheda->save();
        QCOMPARE(rows(u"SELECT ct, NProg FROM Esercizi ORDER BY NProg"), u"101|1, 104|2, 103|3"_s);
    }

    void refusesDamage() {
        const QByteArray buono = fileDi(esempio(false));
        for (const int quinti : {0, 1, 2, 3, 4})
            QVERIFY(!SchedaSospesa::leggi(buono.left(buono.size() * quinti / 5)));
        const auto letto = [&buono](const QByteArray& danno) { // the old value goes to a field of no meaning
            QByteArray altro = buono;
            altro.replace(danno.left(danno.indexOf(':') + 1), danno + ",\"tolto\":");
            return altro != buono && SchedaSospesa::leggi(altro);
        };
        QVERIFY(letto(R"("versione":1)"));
        const QByteArray danni =
            R"("versione":2 "ora":"x" "isModello":true "esercizi":null "serie":256 "serie":-1 "ct":1.5
               "ct":3000000000 "ct":"101" "Istruttore":null "Obiettivo":1 "PeriodoDal":"32/11/2026"
               "GGAllen":"0010101001" "posizione":0 "posizione":4 "massimo":4)";
        for (const QByteArray& danno : danni.simplified().split(' '))
            QVERIFY2(!letto(danno), danno);
    }

    void deletedLinesAreKept() {
        const auto carta = esempio(false).scheda;
        carta->esercizi->Add(std::make_shared<Esercizio>()); // an empty one is no loss
        RigheEliminate tolte;
        tolte.guarda(carta);
        sql(u"DELETE FROM Esercizi WHERE ct=102");
        for (int volta = 0; volta < 2; ++volta) { // read anew the lines are other objects, and the same
            carta->caricaEsercizi();
            tolte.guarda(carta);
        }
        QCOMPARE(tolte.righe().size(), std::size_t{1});
        QCOMPARE(tolte.righe().front().ct, 102);
        tolte.guarda(std::make_shared<scheda>());
        QVERIFY(tolte.righe().empty());
    }

    void fileIsReplacedAsAWholeAndPrivate() {
        const QTemporaryDir cartella;
        const FileSospeso file(cartella.filePath(u"splash.ps.aperta"_s));
        QByteArray messi;
        for (const char* contenuto : {"prima", "seconda"}) {
            QVERIFY(file.scrivi("vecchia") && file.scrivi(contenuto));
            const auto permessi = QFileInfo(file.percorso()).permissions();
            QVERIFY(!(permessi & (QFile::ReadGroup | QFile::ReadOther)));
            messi += FileSospeso(file.mettiDaParte(u"rifiutata"_s)).leggi().value(); // in the same second
        }
        QCOMPARE(messi, "primaseconda");
    }
};

QUIVERDECK_TEST(TestSospesa)
#include "test_sospesa.moc"
