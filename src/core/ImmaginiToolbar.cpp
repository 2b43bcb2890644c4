#include "core/ImmaginiToolbar.h"

#include "artwork/icons/Icone.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/Toolbar.h"

void vestiToolbar(toolkit::Toolbar& toolbar, toolkit::ImageList& immagini, const QString& finestra) {
    for (int position = 1; position <= toolbar.count(); ++position)
        if (!toolbar.isSeparator(position))
            immagini.add(toolbar.key(position), artwork::icona(finestra, toolbar.key(position)));
    toolbar.setImageList(&immagini);
    toolkit::assegnaImmaginiToolbar(toolbar);
}
