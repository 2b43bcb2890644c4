#include "cards/FiguraEsercizio.h"

#include "cards/Esercizio.h"
#include "figures/figura.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/runtime/Conversions.h"
#include "printing/PictureCache.h"

FiguraEsercizio::FiguraEsercizio(const QString& nome, QWidget* parent, sheet::PictureCache& immagini,
                                 QSizeF quadro)
    : PictureBox(nome, parent), immagini_(immagini), quadro_(quadro) {
    setFrameShape(QFrame::StyledPanel);
    setDropTarget(true);
    setDropFilter([](const QString& testo) {
        bool numero = false;
        testo.trimmed().toInt(&numero);
        return numero;
    });
}

void FiguraEsercizio::mostra(const Esercizio& e) {
    if (e.id_fig != 0) {
        carica(e.id_fig);
        Tag = QString::number(e.id_fig);
    } else {
        svuota();
    }
}

void FiguraEsercizio::scrivi(Esercizio& e) {
    if (!Tag.isEmpty()) {
        e.id_fig = runtime::toInt32(runtime::leadingNumber(Tag));
        carica(e.id_fig);
    }
}

void FiguraEsercizio::prendi(const QString& testo) {
    Tag = testo;
    const qint32 chiave = runtime::toInt32(runtime::leadingNumber(testo));
    clear();
    carica(chiave);
}

void FiguraEsercizio::svuota() {
    if (!isEmpty())
        clear();
    Tag.clear();
}

void FiguraEsercizio::carica(qint32 id_fig) {
    ::figura f;
    f.carica(id_fig);
    const sheet::Picture picture = immagini_.load(host::resolve(f.figura_()), quadro_);
    const QSize pixels = (QSizeF(contentsRect().size()) * devicePixelRatioF()).toSize();
    const QImage stretched = picture.stretchedTo(pixels);
    // The record is written at each key: a picture that shows already is not drawn anew.
    if (stretched.cacheKey() != image().cacheKey())
        setImage(stretched);
}
