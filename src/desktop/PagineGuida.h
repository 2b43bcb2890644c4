#pragma once

#include <QString>

#include <vector>

/// One page of the guide.
struct PaginaGuida {
    QString id;
    QString titolo;
    QString capitolo;
    QString html;

    /// Whether every word of `cerca` stands in the page, whatever its case, accents and kind of apostrophe.
    bool contiene(const QString& cerca) const;
};

/// The pages of the help file, in order. Raises runtime::FileNotFound if it is not there, and the same for a
/// file without pages.
std::vector<PaginaGuida> leggiPagineGuida(const QString& file);

/// The page of the guide that tells about a window, by the window's name; the first page's id if none does.
QString paginaDellaFinestra(const QString& finestra);
/// Whether the window has a page of its own.
bool haPagina(const QString& finestra);
