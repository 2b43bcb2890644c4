#pragma once

#include <QString>

namespace toolkit {
class ImageTree;
}

namespace TreeViewHelper {

/// Whether a node of the tree has exactly that key. Walks all nodes by position and does not stop at a hit.
bool esisteChiave(const toolkit::ImageTree& tw, const QString& chiave);

} // namespace TreeViewHelper
