#include "FileGuida.h"

#include "PaginaHtml.h"

#include <QSaveFile>

#include <stdexcept>

namespace {

constexpr int widestPicture = 560;

} // namespace

void scriviFileGuida(const Guida& guide, const QString& screens, const QString& path) {
    const ComeHtml how{screens, widestPicture, [](const QString& id, const QString& text) {
                           return QStringLiteral("<a href=\"#%1\">%2</a>").arg(id, text.toHtmlEscaped());
                       }};
    QString html = QStringLiteral("<!DOCTYPE html>\n<html lang=\"it\"><head><meta charset=\"utf-8\">"
                                  "<title>Guida di Quiver-Deck</title></head><body>\n");
    for (const Capitolo& chapter : guide.capitoli) {
        html += QStringLiteral("<!--capitolo %1-->\n").arg(chapter.titolo);
        for (const Pagina& page : chapter.pagine) {
            html += QStringLiteral("<!--pagina %1|%2-->\n<h1 id=\"%1\">%3</h1>\n")
                        .arg(page.id, page.titolo, page.titolo.toHtmlEscaped());
            html += paginaHtml(page.testo, how);
        }
    }
    html += QStringLiteral("<!--fine-->\n</body></html>\n");
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(html.toUtf8()) < 0 || !file.commit()) {
        throw std::runtime_error((path + QStringLiteral(": ") + file.errorString()).toStdString());
    }
}
