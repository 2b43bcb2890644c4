#pragma once

#include <QString>

namespace toolkit {
class ImageList;
class ImageTree;
} // namespace toolkit

/// Fills the tree of thumbnails with the figures of one muscle group, or with all.
class GestoreListaIMG {
public:
    QString gruppo;                   ///< name of the group to list
    QString muscolo;                  ///< code of the group to list, or "*" for all figures
    toolkit::ImageTree* tw = nullptr; ///< the tree to fill; the window's

    /// Gives the tree its pictures; does not empty it.
    void init(const toolkit::ImageList& img);
    /// Reads the catalogue anew and fills the tree; a box if no group is set. Selects the first node.
    void aggiorna();

private:
    void elenca();
    void aggiungiNodo(const QString& link, float numero, qint32 id_fig);
};
