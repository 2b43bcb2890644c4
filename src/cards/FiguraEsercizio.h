#pragma once

#include "platform/toolkit/PictureBox.h"

#include <QSizeF>

class Esercizio;
namespace sheet {
class PictureCache;
}

/// The picture of an exercise's figure, which takes the key of another by drag and drop. The tag holds the
/// key as text, or nothing. Error 53 wherever the figure's picture is missing, behind a box if the figure is.
class FiguraEsercizio : public toolkit::PictureBox {
public:
    /// What an empty picture asks for.
    static QString invito() { return QStringLiteral("Trascinare qui l'immagine dell'esercizio"); }

    /// Pictures come through `immagini`, which outlives the control, at the size of `quadro` (twips).
    FiguraEsercizio(const QString& nome, QWidget* parent, sheet::PictureCache& immagini, QSizeF quadro);

    /// Record to control.
    void mostra(const Esercizio& e);
    /// Control to record; without a tag the record keeps its figure. Loads the picture again.
    void scrivi(Esercizio& e);
    /// Takes the dropped key of a figure.
    void prendi(const QString& testo);
    /// Neither picture nor tag.
    void svuota();

private:
    void carica(qint32 id_fig);

    sheet::PictureCache& immagini_;
    QSizeF quadro_;
};
