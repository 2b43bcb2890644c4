#include "cards/FileSospeso.h"
#include "cards/SchedaSospesa.h"
#include "cards/scheda.h"
#include "support/RecordsTest.h"
#include "templates/SchedaModello.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

const QDateTime ora(QDate(2026, 11, 22), QTime(22, 30, 15));

QByteArray fileDi(const SchedaSospesa& s) {
    return SchedaSospesa::file(s.stato(), ora);
}

/// The same with another value at a place; an undefined one takes the field away.
QJsonValue con(const QJsonValue& in, const QStringList& posto, const QJsonValue& valore) {
    if (posto.isEmpty())
        return valore;
    if (in.isArray())
        return QJsonArray{con(in[0], posto.mid(1), valore)};
    QJsonObject oggetto = in.toObject();
    oggetto[posto.first()] = con(oggetto[posto.first()], posto.mid(1), valore);
    return oggetto;
}

} // namespace

class TestSospesa : public RecordsTest {
    Q_OBJECT

    /// The stored card or template 5 with its lines 101 to 103, the last of them deleted too, and a page.
    static SchedaSospesa esempio(bool isModello) {
        SchedaSospesa s;
        s.nome = u"Però \"Anna\" \U0001F4AA\u0001"_s;
        if (isModello)
            s.scheda = std::make_shared<SchedaModello>();
        else
            s.scheda = std::make_shared<scheda>();
        s.idUtenteSelezionato = isModello ? 0 : 1;
        s.idSchedaSelezionata = isModello ? 0 : 5;
        s.idModelloSelezionato = isModello ? 5 : 0;
        s.scheda->carica(5);
        s.scheda->caricaEsercizi();
        s.eliminati.push_back(*s.scheda->esercizi->Item(3));
        s.pagina = PaginaEsercizi{.posizione = 2, .massimo = 3, .righe = {{}, {}}};
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
        std::vector<std::shared_ptr<SchedaApribile>> tornate;
        for (const bool isModello : {false, true}) {
            SchedaSospesa prima = esempio(isModello);
            const auto dopo = SchedaSospesa::leggi(fileDi(prima));
            QVERIFY(dopo);
            QCOMPARE(dopo->ora, ora);
            QCOMPARE(dopo->eliminati.at(0).ct, 103);
            QCOMPARE(dopo->stato(), prima.stato());
            prima.pagina.reset();
            QVERIFY(!SchedaSospesa::leggi(fileDi(prima)).value().pagina);
            tornate.push_back(dopo->scheda);
        }
        // Stored, they fill every column again.
        const auto archivio = [this] {
            return QStringList{rows(u"SELECT * FROM schede"), rows(u"SELECT * FROM Esercizi"),
                               rows(u"SELECT * FROM schedeModello WHERE id_Scheda=5"),
                               rows(u"SELECT * FROM EserciziModello WHERE ID_Scheda=5")};
        };
        const QStringList stava = archivio();
        sql(u"UPDATE schede SET Istruttore='',PeriodoDal=NULL,PeriodoAl=NULL,FreqAllen=0,GGAllen='',"
            "Obiettivo='',note='';"
            "UPDATE schedeModello SET descrizione='',preimpostata=0,note=''");
        for (const QString& tabella : {u"Esercizi"_s, u"EserciziModello"_s})
            sql(u"UPDATE %1 SET ID_Fig=0,Durata='',Frequenza='',Ampiezza='',RecuperoMin=0,RecuperoSec=0,"
                "Serie=0,Modalita='',Peso='',isLibero=0,Note=''"_s.arg(tabella));
        for (const auto& scheda : tornate)
            scheda->save();
        QCOMPARE(archivio(), stava);
    }

    void refusesDamage() {
        const QByteArray buono = fileDi(esempio(false));
        for (const int quinti : {0, 1, 2, 3, 4})
            QVERIFY(!SchedaSospesa::leggi(buono.left(buono.size() * quinti / 5)));
        const auto letto = [&buono](const QString& danno) {
            const QByteArray valore = '[' + danno.section(u'=', 1).toUtf8() + ']';
            const QJsonValue altro =
                con(QJsonDocument::fromJson(buono).object(), danno.section(u'=', 0, 0).split(u'/'),
                    QJsonDocument::fromJson(valore)[0]);
            return SchedaSospesa::leggi(QJsonDocument(altro.toObject()).toJson()).has_value();
        };
        QVERIFY(letto(u"versione=1"_s));
        const auto danni =
            u"versione=2 ora=\"x\" stato/isModello=true stato/esercizi= stato/eliminati/0/serie=256 "
            "stato/eliminati/0/serie=-1 stato/eliminati/0/ct=1.5 stato/eliminati/0/ct=3000000000 "
            "stato/eliminati/0/ct=\"101\" stato/scheda/Istruttore= stato/scheda/Obiettivo=1 "
            "stato/scheda/PeriodoDal=\"32/11/2026\" stato/scheda/GGAllen=\"0010101001\" "
            "stato/pagina/posizione=0 stato/pagina/posizione=4 stato/pagina/massimo=4"_s;
        for (const QString& danno : danni.split(u' '))
            QVERIFY2(!letto(danno), qPrintable(danno));
    }

    void lostRowsBecomeNew() {
        SchedaSospesa s = esempio(false);
        const auto chiavi = [&s] {
            QList<int> ct{s.scheda->id_scheda, s.idSchedaSelezionata};
            for (const auto& e : *s.scheda->esercizi)
                ct += e->ct;
            return ct;
        };
        sql(u"DELETE FROM Esercizi WHERE ct=102");
        QVERIFY(s.confronta());
        QCOMPARE(chiavi(), QList<int>({5, 5, 101, 0, 103}));
        sql(u"DELETE FROM schede");
        QVERIFY(s.confronta());
        QCOMPARE(chiavi(), QList<int>({0, 0, 0, 0, 0})); // the store removes a card's lines with it
        s = esempio(true);                               // its keys are the templates'
        QVERIFY(s.confronta());
        QCOMPARE(chiavi(), QList<int>({5, 0, 101, 102, 103}));
    }

    void deletedLinesAreKept() {
        const auto carta = std::make_shared<scheda>();
        RigheEliminate tolte;
        // Read anew from the store the lines are other objects, and the same; an empty one is no loss.
        for (const QList<int>& righe : {QList<int>{1, 2, 3, 0}, QList<int>{1, 3}, QList<int>{1, 3}}) {
            carta->esercizi = std::make_shared<SchedaApribile::Esercizi>();
            for (const int n : righe) {
                addLines(*carta, {n});
                carta->esercizi->Item(carta->esercizi->Count())->ct = n;
            }
            tolte.guarda(carta);
        }
        QCOMPARE(tolte.righe().size(), std::size_t{1});
        QCOMPARE(tolte.righe().front().ct, 2);
        tolte.guarda(std::make_shared<scheda>());
        QVERIFY(tolte.righe().empty());
    }

    void fileIsReplacedAsAWholeAndPrivate() {
        const QTemporaryDir cartella;
        const FileSospeso file(cartella.filePath(u"splash.ps.aperta"_s));
        QStringList altri;
        for (const char* contenuto : {"prima", "seconda"}) {
            QVERIFY(file.scrivi("vecchia") && file.scrivi(contenuto));
            QCOMPARE(*file.leggi(), QByteArray(contenuto));
            QVERIFY(!(QFileInfo(file.percorso()).permissions() &
                      (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther)));
            altri += file.mettiDaParte(u"rifiutata"_s); // both in the same second
            QVERIFY(!file.esiste());
        }
        QCOMPARE(*FileSospeso(altri[0]).leggi() + *FileSospeso(altri[1]).leggi(), "primaseconda");
    }
};

QUIVERDECK_TEST(TestSospesa)
#include "test_sospesa.moc"
