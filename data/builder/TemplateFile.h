#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace catalogue {

/// One line of a supplied template, as `EserciziModello` stores it.
struct TemplateLine {
    QString figure; ///< code of the figure ("Q001"), empty for free text
    QString durata, frequenza, ampiezza, modalita, peso, note;
    int recuperoMin = 0;
    int recuperoSec = 0;
    int serie = 0;
    bool isLibero = false;
    QString place; ///< "file:line", for messages
};

/// A supplied template, read from a file: a few lines "name: text" (categoria, descrizione, note), an empty
/// line, then a CSV of the exercises with the header
/// figura;durata;frequenza;ampiezza;recupero;serie;modalita;peso;note.
/// `recupero` is minutes:seconds. A line whose figure is empty is free text and has nothing but its note.
struct TemplateFile {
    /// Reads `path`. Throws Error naming file and line if a head line is missing, a value is not of the
    /// editor's lists, seconds exceed 59, series 99, or a free line has no text.
    explicit TemplateFile(const QString& path);

    QString categoria, descrizione, note;
    std::vector<TemplateLine> lines;
};

/// The values that the exercise editor offers; a template may hold no other.
const QStringList& durate();
const QStringList& frequenze();
const QStringList& ampiezze();
const QStringList& modi();

} // namespace catalogue
