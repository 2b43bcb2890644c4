#pragma once

namespace toolkit {
class ImageList;
class ImageTree;
} // namespace toolkit

/// Fills the tree of the muscle groups.
class GestoreListaFolder {
public:
    toolkit::ImageTree* tw = nullptr; ///< the tree to fill; the window's

    /// Empties the tree and gives it its pictures.
    void init(const toolkit::ImageList& img);
    /// Adds the root "Elenco Completo" and one node for each name of the groups, read anew from the store.
    void fillList();
};
