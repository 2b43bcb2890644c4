#pragma once

#include <QString>

#include <vector>

/// One page of the guide: the file `pagine/<id>.md`, whose first line is its title.
struct Pagina {
    QString id;
    QString titolo;
    QString testo; ///< Markdown, without the title
};

struct Capitolo {
    QString titolo;
    std::vector<Pagina> pagine;
};

/// The whole guide in reading order.
struct Guida {
    std::vector<Capitolo> capitoli;

    const Pagina* pagina(const QString& id) const;
};

/// Reads `indice.txt` (a line "# chapter", then the ids of its pages) and the pages of `folder`. Throws
/// std::runtime_error, with file and reason, for a missing page, a page that the index does not name, one
/// without a title, and a link to a page that is not there.
Guida leggiGuida(const QString& folder);
