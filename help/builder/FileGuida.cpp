#include "FileGuida.h"

#include "PaginaHtml.h"

#include <QSaveFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int widestPicture = 560;

} // namespace

void scriviFileGuida(const Guida& guide, const QString& screens, const QString& path) {
    const ComeHtml how{screens, widestPicture, [](const QString& id, const QString& text) {
                           return u"<a href=\"#%1\">%2</a>"_s.arg(id, text.toHtmlEscaped());
                       }};
    QString html = u"<!DOCTYPE html>\n<html lang=\"it\"><head><meta charset=\"utf-8\">"
                   "<title>Guida di Quiver-Deck</title></head><body>\n"_s;
    for (const Capitolo& chapter : guide.capitoli) {
        html += u"<!--capitolo %1-->\n"_s.arg(chapter.titolo);
        for (const Pagina& page : chapter.pagine) {
            html += u"<!--pagina %1|%2-->\n<h1 id=\"%1\">%3</h1>\n"_s.arg(page.id, page.titolo,
                                                                          page.titolo.toHtmlEscaped());
            html += paginaHtml(page.testo, how);
        }
    }
    html += u"<!--fine-->\n</body></html>\n"_s;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(html.toUtf8()) < 0 || !file.commit())
        throw std::runtime_error((path + u": "_s + file.errorString()).toStdString());
}
