#pragma once

#include "cards/Esercizio.h"

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class SchedaApribile;

/// What a row of the exercise page shows, as it stands there: it may not have reached its exercise yet.
struct TestiRiga {
    bool isLibero = false;
    QString figura; ///< the picture's Tag
    QString durata, frequenza, ampiezza, recuperoMin, recuperoSec, serie, modalita, peso, note, noteLibere;

    bool operator==(const TestiRiga&) const = default;
};

/// The exercise page: where it stands in the list, the end of its scroll bar, and its rows.
struct PaginaEsercizi {
    qint32 posizione = 1;
    qint32 massimo = 1;
    std::vector<TestiRiga> righe;

    bool operator==(const PaginaEsercizi&) const = default;
};

/// The card or template that stands in the editor, with all that the editor shows of it: what must outlive
/// an unforeseen end of the program. Touches neither the record nor the store.
struct SchedaSospesa {
    static constexpr int versione = 1; ///< of the file

    qint32 idUtenteSelezionato = 0;
    qint32 idSchedaSelezionata = 0;
    qint32 idModelloSelezionato = 0;
    QString nome; ///< the athlete's, or the template's description
    std::shared_ptr<SchedaApribile> scheda;
    std::optional<PaginaEsercizi> pagina; ///< none while the sheet is being looked at
    std::vector<Esercizio> eliminati;     ///< lines deleted since the card was opened
    QDateTime ora;                        ///< of the last change; only `leggi` sets it

    /// All that the file holds but its time, as values that share their texts: taken and compared after each
    /// event, where the file's text is wanted only for a change.
    struct Stato {
        QJsonObject testata; ///< what is no list
        std::vector<Esercizio> esercizi;
        std::vector<Esercizio> eliminati;
        std::optional<PaginaEsercizi> pagina;

        bool operator==(const Stato& altro) const;
    };

    Stato stato() const;
    /// The contents of the file for a state.
    static QByteArray file(const Stato& stato, const QDateTime& ora);
    /// Reads a file's contents; nothing if they are damaged, incomplete or of another version.
    static std::optional<SchedaSospesa> leggi(const QByteArray& file);

    /// What has lost its row in the store becomes new: the card's `id_scheda`, a line's `ct` turn 0. False if
    /// the athlete is gone. Raises if the store cannot be read.
    bool confronta();
};

/// The lines that left the list since the card was opened. A line that is read anew from the store is still
/// the same one, and an empty one is no loss.
class RigheEliminate {
public:
    /// Looks at the list again; another record starts anew, with `gia` as its deleted lines.
    void guarda(const std::shared_ptr<SchedaApribile>& scheda);
    void riprendi(const std::shared_ptr<SchedaApribile>& scheda, std::vector<Esercizio> gia);
    const std::vector<Esercizio>& righe() const { return righe_; }

private:
    std::weak_ptr<SchedaApribile> scheda_;
    std::vector<std::shared_ptr<Esercizio>> viste_;
    std::vector<Esercizio> righe_;
};
