#include "figures/TreeViewHelper.h"

#include "platform/toolkit/ImageTree.h"

bool TreeViewHelper::esisteChiave(const toolkit::ImageTree& tw, const QString& chiave) {
    bool trovata = false;
    for (const QString& una : tw.nodeKeys())
        trovata |= una == chiave;
    return trovata;
}
