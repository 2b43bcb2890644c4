#include "cards/SchedaSospesa.h"

#include "cards/scheda.h"
#include "core/db.h"
#include "platform/runtime/Dates.h"
#include "templates/SchedaModello.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int massimoRighe = 32767;    // the loop counters' 16 bits
constexpr qsizetype vociDeiGiorni = 9; // of the header's list of training days

// Each record's fields are named once, for both ways.

/// Of one line, or of two side by side, to be compared.
template <class Campo, class... Righe> void campiRiga(const Campo& campo, Righe&... e) {
    campo("ct"_L1, e.ct...);
    campo("nprog"_L1, e.nprog...);
    campo("id_scheda"_L1, e.id_scheda...);
    campo("id_fig"_L1, e.id_fig...);
    campo("durata"_L1, e.durata...);
    campo("frequenza"_L1, e.frequenza...);
    campo("ampiezza"_L1, e.ampiezza...);
    campo("recuperoMin"_L1, e.recuperoMin...);
    campo("recuperoSec"_L1, e.recuperoSec...);
    campo("serie"_L1, e.serie...);
    campo("modalita"_L1, e.modalita...);
    campo("peso"_L1, e.peso...);
    campo("note"_L1, e.note...);
    campo("isModello"_L1, e.isModello...);
    campo("isLibero"_L1, e.isLibero...);
}

template <class Testi, class Campo> void campiTesti(Testi& t, const Campo& campo) {
    campo("isLibero"_L1, t.isLibero);
    campo("figura"_L1, t.figura);
    campo("durata"_L1, t.durata);
    campo("frequenza"_L1, t.frequenza);
    campo("ampiezza"_L1, t.ampiezza);
    campo("recuperoMin"_L1, t.recuperoMin);
    campo("recuperoSec"_L1, t.recuperoSec);
    campo("serie"_L1, t.serie);
    campo("modalita"_L1, t.modalita);
    campo("peso"_L1, t.peso);
    campo("note"_L1, t.note);
    campo("noteLibere"_L1, t.noteLibere);
}

template <class Sospesa, class Campo> void campiSospesa(Sospesa& s, const Campo& campo) {
    campo("nome"_L1, s.nome);
    campo("idUtenteSelezionato"_L1, s.idUtenteSelezionato);
    campo("idSchedaSelezionata"_L1, s.idSchedaSelezionata);
    campo("idModelloSelezionato"_L1, s.idModelloSelezionato);
}

template <class Campo> void campiScheda(SchedaApribile& s, const Campo& campo) {
    campo("id_scheda"_L1, s.id_scheda);
    campo("id_cat"_L1, s.id_cat);
    campo("categoria"_L1, s.categoria);
    campo("note"_L1, s.note);
    campo("preimpostata"_L1, s.preimpostata);
    campo("isSaved"_L1, s.isSaved);
    if (auto* carta = dynamic_cast<::scheda*>(&s)) {
        campo("id_utente"_L1, carta->id_utente);
        campo("Istruttore"_L1, carta->Istruttore);
        campo("PeriodoDal"_L1, carta->PeriodoDal);
        campo("PeriodoAl"_L1, carta->PeriodoAl);
        campo("Obiettivo"_L1, carta->Obiettivo);
        campo("FreqAllen"_L1, carta->FreqAllen);
        campo("GGAllen"_L1, carta->GGAllen);
        campo("nomeUtente"_L1, carta->nomeUtente);
        campo("cognomeUtente"_L1, carta->cognomeUtente);
    } else if (auto* modello = dynamic_cast<SchedaModello*>(&s)) {
        campo("descrizione"_L1, modello->descrizione);
    }
}

class Scrittore {
public:
    explicit Scrittore(QJsonObject& oggetto) : oggetto_(oggetto) {}
    template <class Valore> void operator()(QLatin1StringView nome, const Valore& valore) const {
        oggetto_.insert(nome, QJsonValue(valore));
    }

private:
    QJsonObject& oggetto_;
};

/// Takes only a value of the field's own kind and range; `bene` turns false at the first other one.
class Lettore {
public:
    Lettore(const QJsonObject& oggetto, bool& bene) : oggetto_(oggetto), bene_(bene) {}
    template <class Valore> void operator()(QLatin1StringView nome, Valore& valore) const {
        const QJsonValue letto = oggetto_.value(nome);
        if constexpr (std::is_same_v<Valore, QString>) {
            bene_ = bene_ && letto.isString();
            valore = letto.toString();
        } else if constexpr (std::is_same_v<Valore, bool>) {
            bene_ = bene_ && letto.isBool();
            valore = letto.toBool();
        } else {
            const double numero = letto.toDouble();
            const bool intero = letto.isDouble() && numero >= std::numeric_limits<Valore>::min() &&
                                numero <= std::numeric_limits<Valore>::max() && std::trunc(numero) == numero;
            bene_ = bene_ && intero;
            if (intero)
                valore = static_cast<Valore>(numero);
        }
    }

private:
    const QJsonObject& oggetto_;
    bool& bene_;
};

template <class Elemento, class Scrivi>
QJsonArray elenco(const std::vector<Elemento>& elementi, const Scrivi& scrivi) {
    QJsonArray array;
    for (const Elemento& elemento : elementi) {
        QJsonObject o;
        scrivi(elemento, Scrittore(o));
        array.append(o);
    }
    return array;
}

QJsonArray elencoRighe(const std::vector<Esercizio>& righe) {
    return elenco(righe, [](const Esercizio& e, const Scrittore& campo) { campiRiga(campo, e); });
}

QJsonObject oggetto(const PaginaEsercizi& pagina) {
    return {{"posizione"_L1, pagina.posizione},
            {"massimo"_L1, pagina.massimo},
            {"righe"_L1,
             elenco(pagina.righe, [](const TestiRiga& t, const Scrittore& campo) { campiTesti(t, campo); })}};
}

/// The objects of an array, each through `leggi`; false for anything else.
template <class Elemento, class Leggi>
bool leggiElenco(const QJsonValue& valore, std::vector<Elemento>& elenco, const Leggi& leggi) {
    const QJsonArray array = valore.toArray();
    bool bene = valore.isArray() && array.size() <= massimoRighe;
    for (qsizetype i = 0; bene && i < array.size(); ++i) {
        Elemento elemento;
        const QJsonObject o = array.at(i).toObject();
        leggi(elemento, Lettore(o, bene));
        elenco.push_back(std::move(elemento));
    }
    return bene;
}

bool leggiRighe(const QJsonValue& valore, std::vector<Esercizio>& righe) {
    return leggiElenco(valore, righe, [](Esercizio& e, const Lettore& campo) { campiRiga(campo, e); });
}

bool leggiPagina(const QJsonValue& valore, std::optional<PaginaEsercizi>& pagina) {
    if (valore.isNull())
        return true;
    const QJsonObject o = valore.toObject();
    PaginaEsercizi letta;
    bool bene = leggiElenco(o.value("righe"_L1), letta.righe,
                            [](TestiRiga& t, const Lettore& campo) { campiTesti(t, campo); });
    const Lettore campo(o, bene);
    campo("posizione"_L1, letta.posizione);
    campo("massimo"_L1, letta.massimo);
    bene = bene && letta.posizione >= 1 && letta.massimo >= letta.posizione && letta.massimo <= massimoRighe;
    pagina = std::move(letta);
    return bene;
}

/// Whether the page stands in a list of `righe` lines, or on the screen that scrolling would add behind it.
bool staNellElenco(const PaginaEsercizi& pagina, std::size_t righe) {
    const std::size_t schermata = pagina.righe.size();
    return schermata > 0 && (static_cast<std::size_t>(pagina.posizione) - 1) * schermata <= righe &&
           static_cast<std::size_t>(pagina.massimo) * schermata < righe + 2 * schermata;
}

/// The header page raises at a period that is no date and at a tick behind its list.
bool siPuoMostrare(const SchedaApribile& s) {
    const auto* carta = dynamic_cast<const ::scheda*>(&s);
    const auto data = [](const QString& testo) {
        return testo.isEmpty() || runtime::parseDate(testo, runtime::DateOrder::DayFirst);
    };
    return carta == nullptr || (data(carta->PeriodoDal) && data(carta->PeriodoAl) &&
                                carta->GGAllen.indexOf(u'1', vociDeiGiorni) < 0);
}

bool esiste(const QString& tabella, const QString& colonna, qint32 chiave) {
    const QString sql = u"SELECT %1 FROM %2 WHERE %1 = %3"_s.arg(colonna, tabella).arg(chiave);
    return !db::comune().getRs(sql).EOF_();
}

/// All keys of a card's lines that the store still has, looked up at once.
std::set<qint32> righeEsistenti(const SchedaApribile::Esercizi& righe, bool isModello) {
    QStringList chiavi;
    for (const auto& riga : righe)
        if (riga->ct != 0 && riga->isModello == isModello)
            chiavi += QString::number(riga->ct);
    std::set<qint32> trovate;
    if (chiavi.isEmpty())
        return trovate;
    store::Recordset rs = db::comune().getRs(u"SELECT ct FROM %1 WHERE ct IN (%2)"_s.arg(
        isModello ? u"EserciziModello"_s : u"Esercizi"_s, chiavi.join(u',')));
    for (; !rs.EOF_(); rs.MoveNext())
        trovate.insert(rs(u"ct").toInt32());
    return trovate;
}

/// Without a text of the file's: asked behind each event.
bool stesseRighe(const std::vector<Esercizio>& prime, const std::vector<Esercizio>& altre) {
    bool stesse = prime.size() == altre.size();
    const auto confronta = [&stesse](QLatin1StringView, const auto& uno, const auto& altro) {
        stesse = stesse && uno == altro;
    };
    for (std::size_t i = 0; stesse && i < prime.size(); ++i)
        campiRiga(confronta, prime[i], altre[i]);
    return stesse;
}

} // namespace

bool SchedaSospesa::Stato::operator==(const Stato& altro) const {
    return testata == altro.testata && stesseRighe(esercizi, altro.esercizi) &&
           stesseRighe(eliminati, altro.eliminati) && pagina == altro.pagina;
}

SchedaSospesa::Stato SchedaSospesa::stato() const {
    Stato stato{.testata = {{"isModello"_L1, scheda->isModello}},
                .esercizi = {},
                .eliminati = eliminati,
                .pagina = pagina};
    campiSospesa(*this, Scrittore(stato.testata));
    QJsonObject testata;
    campiScheda(*scheda, Scrittore(testata));
    stato.testata.insert("scheda"_L1, testata);
    stato.esercizi.reserve(static_cast<std::size_t>(scheda->esercizi->Count()));
    for (const auto& riga : *scheda->esercizi)
        stato.esercizi.push_back(*riga);
    return stato;
}

QByteArray SchedaSospesa::file(const Stato& stato, const QDateTime& ora) {
    QJsonObject tutto = stato.testata;
    tutto.insert("esercizi"_L1, elencoRighe(stato.esercizi));
    tutto.insert("eliminati"_L1, elencoRighe(stato.eliminati));
    tutto.insert("pagina"_L1, stato.pagina ? oggetto(*stato.pagina) : QJsonValue());
    return QJsonDocument(
               {{"versione"_L1, versione}, {"ora"_L1, ora.toString(Qt::ISODateWithMs)}, {"stato"_L1, tutto}})
        .toJson(QJsonDocument::Compact);
}

std::optional<SchedaSospesa> SchedaSospesa::leggi(const QByteArray& file) {
    const QJsonDocument documento = QJsonDocument::fromJson(file);
    if (!documento.isObject() || documento["versione"_L1] != QJsonValue(versione))
        return {};
    SchedaSospesa s;
    s.ora = QDateTime::fromString(documento["ora"_L1].toString(), Qt::ISODate);
    const QJsonObject tutto = documento["stato"_L1].toObject();
    bool bene = s.ora.isValid();
    bool isModello = false;
    Lettore(tutto, bene)("isModello"_L1, isModello);
    campiSospesa(s, Lettore(tutto, bene));
    if (isModello)
        s.scheda = std::make_shared<SchedaModello>();
    else
        s.scheda = std::make_shared<::scheda>();
    const QJsonObject testata = tutto.value("scheda"_L1).toObject();
    campiScheda(*s.scheda, Lettore(testata, bene));
    std::vector<Esercizio> righe;
    bene = bene && leggiRighe(tutto.value("esercizi"_L1), righe) &&
           leggiRighe(tutto.value("eliminati"_L1), s.eliminati) && tutto.contains("pagina"_L1) &&
           leggiPagina(tutto.value("pagina"_L1), s.pagina);
    // A card has its athlete, a template none; the page stands inside of the list.
    bene = bene && (s.idUtenteSelezionato == 0) == isModello && siPuoMostrare(*s.scheda) &&
           (!s.pagina || staNellElenco(*s.pagina, righe.size()));
    if (!bene)
        return {};
    for (Esercizio& riga : righe)
        s.scheda->esercizi->Add(std::make_shared<Esercizio>(std::move(riga)));
    return s;
}

bool SchedaSospesa::confronta() {
    if (idUtenteSelezionato != 0 && !esiste(u"utenti"_s, u"id_utente"_s, idUtenteSelezionato))
        return false;
    if (scheda->id_scheda != 0 &&
        !esiste(scheda->isModello ? u"schedeModello"_s : u"schede"_s, u"id_scheda"_s, scheda->id_scheda)) {
        scheda->id_scheda = 0;
        (scheda->isModello ? idModelloSelezionato : idSchedaSelezionata) = 0;
    }
    for (const bool isModello : {false, true}) {
        const std::set<qint32> trovate = righeEsistenti(*scheda->esercizi, isModello);
        for (const auto& riga : *scheda->esercizi)
            if (riga->isModello == isModello && trovate.count(riga->ct) == 0)
                riga->ct = 0;
    }
    return true;
}

void RigheEliminate::guarda(const std::shared_ptr<SchedaApribile>& scheda) {
    if (scheda_.lock() != scheda) {
        riprendi(scheda, {});
        return;
    }
    const auto& ora = *scheda->esercizi;
    if (std::equal(viste_.begin(), viste_.end(), ora.begin(), ora.end()))
        return;
    for (const auto& vista : viste_) {
        const bool presente = std::any_of(ora.begin(), ora.end(), [&vista](const auto& riga) {
            return riga == vista || (vista->ct != 0 && riga->ct == vista->ct);
        });
        if (SchedaApribile::daSalvare(*vista) && !presente)
            righe_.push_back(*vista);
    }
    viste_.assign(ora.begin(), ora.end());
}

void RigheEliminate::riprendi(const std::shared_ptr<SchedaApribile>& scheda, std::vector<Esercizio> gia) {
    scheda_ = scheda;
    viste_.assign(scheda->esercizi->begin(), scheda->esercizi->end());
    righe_ = std::move(gia);
}
