#include "cards/FileSospeso.h"
#include "cards/SchedaSospesa.h"
#include "cards/scheda.h"
#include "support/RecordsTest.h"
#include "templates/SchedaModello.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// Every field of a line differs from its default and from each other line's.
Esercizio riga(int n, bool isModello) {
    Esercizio e;
    e.ct = 100 + n;
    e.nprog = n;
    e.id_scheda = 70 + n;
    e.id_fig = 3 + n;
    e.durata = u"45s \"%1\""_s.arg(n);
    e.frequenza = u"40Hz\n%1"_s.arg(n);
    e.ampiezza = u"H\\%1"_s.arg(n);
    e.recuperoMin = static_cast<quint8>(200 + n);
    e.recuperoSec = static_cast<quint8>(210 + n);
    e.serie = static_cast<quint8>(220 + n);
    e.modalita = u"Perché ’%1’"_s.arg(n);
    e.peso = u"5 kg <%1>\u0001"_s.arg(n) + QChar(0xD83D) + u'x'; // half of a pair
    e.note = u"note %1 "_s.arg(n);
    e.isModello = isModello;
    e.isLibero = n % 2 == 1;
    return e;
}

QString testo(const Esercizio& e) {
    return QStringList{QString::number(e.ct),
                       QString::number(e.nprog),
                       QString::number(e.id_scheda),
                       QString::number(e.id_fig),
                       e.durata,
                       e.frequenza,
                       e.ampiezza,
                       QString::number(e.recuperoMin),
                       QString::number(e.recuperoSec),
                       QString::number(e.serie),
                       e.modalita,
                       e.peso,
                       e.note,
                       QString::number(e.isModello),
                       QString::number(e.isLibero)}
        .join(u'|');
}

SchedaSospesa esempio(bool isModello) {
    SchedaSospesa s;
    s.nome = u"Però \"Anna\" \U0001F4AA"_s;
    if (isModello) {
        auto modello = std::make_shared<SchedaModello>();
        modello->descrizione = u"Base’s"_s;
        modello->preimpostata = true;
        s.scheda = modello;
        s.idModelloSelezionato = 9;
    } else {
        auto carta = std::make_shared<scheda>();
        carta->id_utente = 1;
        carta->Istruttore = u"Istruttore"_s;
        carta->PeriodoDal = u"02/11/2026"_s;
        carta->PeriodoAl = u"30/11/2026"_s;
        carta->Obiettivo = u"Obiettivo"_s;
        carta->FreqAllen = 255;
        carta->GGAllen = u"001010100"_s;
        carta->nomeUtente = u"Anna"_s;
        carta->cognomeUtente = u"Però"_s;
        s.scheda = carta;
        s.idUtenteSelezionato = 1;
        s.idSchedaSelezionata = 5;
    }
    s.scheda->id_scheda = 5;
    s.scheda->id_cat = 2;
    s.scheda->categoria = u"Generale"_s;
    s.scheda->note = u"note\tfinali"_s;
    s.scheda->isSaved = true;
    for (int n : {1, 2, 3})
        s.scheda->esercizi->Add(std::make_shared<Esercizio>(riga(n, isModello)));
    s.eliminati.push_back(riga(8, isModello));
    s.pagina = PaginaEsercizi{.posizione = 2,
                              .massimo = 3,
                              .righe = {{true, u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"300"_s,
                                         u"h"_s, u"i"_s, u"l"_s, u"m"_s},
                                        {}}};
    return s;
}

const QDateTime ora(QDate(2026, 11, 22), QTime(22, 30, 15));

QByteArray fileDi(const SchedaSospesa& s) {
    return SchedaSospesa::file(s.stato(), ora);
}

} // namespace

class TestSospesa : public RecordsTest {
    Q_OBJECT
private Q_SLOTS:
    void comesBackWhole_data() {
        QTest::addColumn<bool>("isModello");
        QTest::newRow("card") << false;
        QTest::newRow("template") << true;
    }

    void comesBackWhole() {
        QFETCH(bool, isModello);
        const SchedaSospesa prima = esempio(isModello);
        const auto dopo = SchedaSospesa::leggi(fileDi(prima));
        QVERIFY(dopo);
        QCOMPARE(dopo->ora, ora);
        QCOMPARE(dopo->nome, prima.nome);
        QCOMPARE(dopo->scheda->isModello, isModello);
        QCOMPARE(dopo->scheda->preimpostata, isModello);
        QCOMPARE(dopo->scheda->note, u"note\tfinali"_s);
        QVERIFY(dopo->scheda->isSaved);
        QCOMPARE(dopo->scheda->esercizi->Count(), 3);
        for (int n : {1, 2, 3})
            QCOMPARE(testo(*dopo->scheda->esercizi->Item(n)), testo(riga(n, isModello)));
        QCOMPARE(testo(dopo->eliminati.at(0)), testo(riga(8, isModello)));
        QCOMPARE(dopo->pagina->posizione, 2);
        QCOMPARE(dopo->pagina->righe.at(0).noteLibere, u"m"_s);
        QCOMPARE(dopo->pagina->righe.at(0).serie, u"300"_s);
        if (const auto* carta = dynamic_cast<const scheda*>(dopo->scheda.get())) {
            QCOMPARE(carta->FreqAllen, 255);
            QCOMPARE(carta->cognomeUtente, u"Però"_s);
        } else {
            QCOMPARE(dynamic_cast<const SchedaModello&>(*dopo->scheda).descrizione, u"Base’s"_s);
        }
        QCOMPARE(dopo->stato(), prima.stato()); // and with it every other field
    }

    void aChangeShows() {
        SchedaSospesa s = esempio(false);
        const QByteArray prima = s.stato();
        s.scheda->esercizi->Item(2)->isLibero = true;
        const QByteArray seconda = s.stato();
        QVERIFY(seconda != prima);
        s.pagina.reset();
        QVERIFY(s.stato() != seconda);
        QVERIFY(SchedaSospesa::leggi(fileDi(s)) && !SchedaSospesa::leggi(fileDi(s))->pagina);
    }

    void refusesDamage_data() {
        QTest::addColumn<QByteArray>("contenuto");
        const QByteArray buono = fileDi(esempio(false));
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("zeros") << QByteArray(buono.size(), '\0');
        QTest::newRow("picture") << QByteArray("\xff\xd8\xff\xe0\0\x10JFIF\0", 11) + buono;
        for (int quinti : {1, 2, 3, 4})
            QTest::addRow("truncated at %d/5", quinti) << buono.left(buono.size() * quinti / 5);
        const auto con = [&buono](const char* prima, const char* dopo) {
            QByteArray altro = buono;
            altro.replace(prima, dopo);
            if (altro == buono)
                qFatal("nothing replaced");
            return altro;
        };
        QTest::newRow("other version") << con(R"("versione":1)", R"("versione":2)");
        QTest::newRow("no time") << con("2026-11-22T", "x");
        QTest::newRow("beyond 8 bits") << con(R"("serie":221)", R"("serie":256)");
        QTest::newRow("below 8 bits") << con(R"("serie":221)", R"("serie":-1)");
        QTest::newRow("fraction") << con(R"("ct":101)", R"("ct":1.5)");
        QTest::newRow("beyond 32 bits") << con(R"("ct":101)", R"("ct":3000000000)");
        QTest::newRow("text for a number") << con(R"("ct":101)", R"("ct":"101")");
        QTest::newRow("number for a text") << con(R"("Obiettivo":"Obiettivo")", R"("Obiettivo":1)");
        QTest::newRow("field missing") << con(R"("Istruttore":)", R"("Altro":)");
        QTest::newRow("no lines") << con(R"("esercizi":)", R"("altro":)");
        QTest::newRow("card as template") << con(R"("isModello":false,"nome")", R"("isModello":true,"nome")");
        QTest::newRow("page before the list") << con(R"("posizione":2)", R"("posizione":0)");
        QTest::newRow("page behind its end") << con(R"("posizione":2)", R"("posizione":4)");
        QTest::newRow("page behind the list")
            << con(R"("massimo":3,"posizione":2)", R"("massimo":4,"posizione":3)");
        QTest::newRow("end behind the list") << con(R"("massimo":3)", R"("massimo":4)");
        QTest::newRow("period is no date") << con("02/11/2026", "32/11/2026");
        QTest::newRow("a tenth training day") << con("001010100", "0010101001");
    }

    void refusesDamage() {
        QFETCH(QByteArray, contenuto);
        QVERIFY(!SchedaSospesa::leggi(contenuto));
    }

    void lostRowsBecomeNew() {
        sql(u"INSERT INTO utenti VALUES (1,'Anna','Però',NULL,'F','');"
            "INSERT INTO schede (id_scheda,id_utente,id_cat) VALUES (5,1,2);"
            "INSERT INTO Esercizi (ct,NProg,ID_Scheda) VALUES (101,1,5),(103,3,5)"_s);
        SchedaSospesa s = esempio(false);
        QVERIFY(s.confronta());
        const auto chiavi = [&s] {
            QList<int> ct{s.scheda->id_scheda, s.idSchedaSelezionata};
            for (const auto& e : *s.scheda->esercizi)
                ct += e->ct;
            return ct;
        };
        QCOMPARE(chiavi(), QList<int>({5, 5, 101, 0, 103}));
        sql(u"DELETE FROM schede"_s);
        QVERIFY(s.confronta());
        QCOMPARE(chiavi(), QList<int>({0, 0, 0, 0, 0})); // the store removes a card's lines with it
        sql(u"DELETE FROM utenti"_s);
        QVERIFY(!s.confronta());

        SchedaSospesa m = esempio(true); // its keys are the templates', whatever the cards have
        QVERIFY(m.confronta());
        QCOMPARE(m.scheda->id_scheda, 0);
    }

    void deletedLinesAreKept() {
        const auto carta = std::make_shared<scheda>();
        for (int n : {1, 2, 3})
            carta->esercizi->Add(std::make_shared<Esercizio>(riga(n, false)));
        carta->esercizi->Add(std::make_shared<Esercizio>()); // empty: no loss
        RigheEliminate tolte;
        tolte.guarda(carta);
        QVERIFY(tolte.righe().empty());
        carta->esercizi->Remove(4);
        carta->esercizi->Remove(2);
        tolte.guarda(carta);
        QCOMPARE(tolte.righe().size(), std::size_t{1});
        QCOMPARE(testo(tolte.righe().front()), testo(riga(2, false)));
        // Read anew from the store: other objects, the same lines.
        for (int n : {1, 3}) {
            carta->esercizi->Remove(1);
            carta->esercizi->Add(std::make_shared<Esercizio>(riga(n, false)));
        }
        tolte.guarda(carta);
        QCOMPARE(tolte.righe().size(), std::size_t{1});
        tolte.guarda(std::make_shared<scheda>());
        QVERIFY(tolte.righe().empty());
    }

    void fileIsReplacedAsAWholeAndPrivate() {
        const QTemporaryDir cartella;
        const FileSospeso file(cartella.filePath(u"splash.ps.aperta"_s));
        QVERIFY(!file.esiste());
        for (const char* contenuto : {"prima", "seconda"}) {
            QVERIFY(file.scrivi(contenuto));
            QCOMPARE(*file.leggi(), QByteArray(contenuto));
            QCOMPARE(QFileInfo(file.percorso()).permissions() &
                         (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
                     QFile::Permissions());
        }
        const QString altro = file.mettiDaParte(u"rifiutata"_s);
        QVERIFY(!file.esiste());
        QVERIFY(file.scrivi("terza"));
        const QString ancora = file.mettiDaParte(u"rifiutata"_s); // in the same second
        QVERIFY(!ancora.isEmpty() && ancora != altro);
        QCOMPARE(*FileSospeso(altro).leggi(), QByteArray("seconda"));
        QVERIFY(!FileSospeso(cartella.filePath(u"manca/splash.ps.aperta"_s)).scrivi("x"));
    }
};

QUIVERDECK_TEST(TestSospesa)
#include "test_sospesa.moc"
