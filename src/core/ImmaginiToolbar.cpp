#include "core/ImmaginiToolbar.h"

#include "artwork/icons/Icone.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/Toolbar.h"

void caricaImmaginiToolbar(toolkit::ImageList& immagini, const toolkit::Toolbar& toolbar,
                           const QString& finestra) {
    for (int position = 1; position <= toolbar.count(); ++position) {
        if (!toolbar.isSeparator(position)) {
            immagini.add(toolbar.key(position), artwork::icona(finestra, toolbar.key(position)));
        }
    }
}
