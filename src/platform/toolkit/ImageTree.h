#pragma once

#include <QTreeWidget>
#include <functional>
#include <vector>

namespace toolkit {

class ImageList;

/// A tree of keyed nodes, each with a text and a picture from an ImageList. Nodes are never edited. Keys are
/// compared exactly.
class ImageTree : public QTreeWidget {
    Q_OBJECT
public:
    ImageTree(const QString& name, QWidget* parent);

    /// The pictures; the list must outlive the tree or be replaced.
    void setImageList(const ImageList* images);

    /// Adds a node behind its siblings; no `parent` makes it a root. Raises runtime::ElementNotFound for an
    /// unknown parent or image and 35602 for a key there already.
    void addNode(const QString& key, const QString& text, const QString& image, const QString& parent = {});
    void clear();

    /// All nodes in the order in which they were added, from 1.
    int nodeCount() const { return static_cast<int>(nodes_.size()); }
    QString nodeKey(int position) const;
    /// The keys in that order, flat, so that a walk over all nodes stays cheap.
    const std::vector<QString>& nodeKeys() const { return keys_; }
    bool contains(const QString& key) const { return byKey_.contains(key); }

    /// Raise runtime::ElementNotFound for an unknown key.
    QString nodeText(const QString& key) const;
    QString nodeImage(const QString& key) const;
    QString nodeTag(const QString& key) const;
    void setNodeTag(const QString& key, const QString& tag);
    void ensureVisible(const QString& key);
    /// Selects the node without a click.
    void select(const QString& key);

    bool hasSelection() const { return !selectedKey().isEmpty(); }
    /// Empty if no node is selected.
    QString selectedKey() const;
    /// The node at a point of the viewport (pixels); empty if there is none.
    QString keyAt(const QPoint& point) const;

    /// Makes the tree a drag source: at the start of a drag `payload` gives the text to carry; an empty text
    /// drags nothing. Only copying is offered; the selected node's picture goes along.
    void setDragSource(std::function<QString()> payload);
    /// What a drag from the tree carries: made for startDrag.
    QMimeData* dragData() const;

Q_SIGNALS:
    /// The mouse was pressed; `key` is the node there, empty beside all nodes.
    void nodePressed(const QString& key);
    void nodeClick(const QString& key);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// The selected node stays selected: Ctrl with a click or Space takes nothing away.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void startDrag(Qt::DropActions actions) override;

private:
    QTreeWidgetItem& node(const QString& key) const;

    const ImageList* images_ = nullptr;
    std::function<QString()> payload_;
    std::vector<QTreeWidgetItem*> nodes_;
    std::vector<QString> keys_; ///< of nodes_
    QHash<QString, QTreeWidgetItem*> byKey_;
};

} // namespace toolkit
