#include "platform/toolkit/ImageTree.h"

#include "platform/runtime/Error.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/ImageTreeDelegate.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace toolkit {

ImageTree::ImageTree(const QString& name, QWidget* parent) : QTreeWidget(parent) {
    setObjectName(name);
    setColumnCount(1);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(14);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setExpandsOnDoubleClick(false);
    setItemDelegate(new ImageTreeDelegate(*this));
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        Q_EMIT nodeClick(item->data(0, ImageTreeDelegate::KeyRole).toString());
    });
}

void ImageTree::setImageList(const ImageList* images) {
    images_ = images;
    static_cast<ImageTreeDelegate*>(itemDelegate())->setImageList(images);
    if (images != nullptr)
        verticalScrollBar()->setSingleStep(std::max(8, images->imageSize().height() / 3));
    scheduleDelayedItemsLayout();
}

void ImageTree::addNode(const QString& key, const QString& text, const QString& image,
                        const QString& parent) {
    if (byKey_.contains(key))
        runtime::raise(ImageList::duplicateKey, u"La chiave \"%1\" è già presente."_s.arg(key));
    if (images_ != nullptr && !images_->contains(image))
        runtime::raise(runtime::ElementNotFound, {}, image);
    auto* item = new QTreeWidgetItem;
    item->setText(0, text);
    item->setData(0, ImageTreeDelegate::KeyRole, key);
    item->setData(0, ImageTreeDelegate::ImageRole, image);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (payload_)
        flags |= Qt::ItemIsDragEnabled;
    item->setFlags(flags);
    if (parent.isEmpty()) {
        addTopLevelItem(item);
    } else {
        node(parent).addChild(item);
        node(parent).setExpanded(true);
    }
    nodes_.push_back(item);
    keys_.push_back(key);
    byKey_.insert(key, item);
}

void ImageTree::clear() {
    nodes_.clear();
    keys_.clear();
    byKey_.clear();
    QTreeWidget::clear();
}

QTreeWidgetItem& ImageTree::node(const QString& key) const {
    QTreeWidgetItem* found = byKey_.value(key);
    if (found == nullptr)
        runtime::raise(runtime::ElementNotFound, {}, key);
    return *found;
}

QString ImageTree::nodeKey(int position) const {
    if (position < 1 || position > nodeCount())
        runtime::raise(runtime::SubscriptOutOfRange, {}, objectName());
    return keys_[static_cast<std::size_t>(position - 1)];
}

QString ImageTree::nodeText(const QString& key) const {
    return node(key).text(0);
}

QString ImageTree::nodeImage(const QString& key) const {
    return node(key).data(0, ImageTreeDelegate::ImageRole).toString();
}

QString ImageTree::nodeTag(const QString& key) const {
    return node(key).data(0, ImageTreeDelegate::TagRole).toString();
}

void ImageTree::setNodeTag(const QString& key, const QString& tag) {
    node(key).setData(0, ImageTreeDelegate::TagRole, tag);
}

void ImageTree::ensureVisible(const QString& key) {
    for (QTreeWidgetItem* parent = node(key).parent(); parent != nullptr; parent = parent->parent())
        parent->setExpanded(true);
    if (isVisible())
        scrollToItem(&node(key));
}

void ImageTree::select(const QString& key) {
    setCurrentItem(&node(key));
}

QString ImageTree::selectedKey() const {
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->data(0, ImageTreeDelegate::KeyRole).toString();
}

QString ImageTree::keyAt(const QPoint& point) const {
    const QTreeWidgetItem* item = itemAt(point);
    return item == nullptr ? QString() : item->data(0, ImageTreeDelegate::KeyRole).toString();
}

void ImageTree::setDragSource(std::function<QString()> payload) {
    payload_ = std::move(payload);
    setDragEnabled(static_cast<bool>(payload_));
    setDragDropMode(payload_ ? QAbstractItemView::DragOnly : QAbstractItemView::NoDragDrop);
    for (QTreeWidgetItem* item : nodes_) {
        const Qt::ItemFlags flags = item->flags();
        item->setFlags(payload_ ? flags | Qt::ItemIsDragEnabled : flags & ~Qt::ItemIsDragEnabled);
    }
}

QMimeData* ImageTree::dragData() const {
    const QString text = payload_ ? payload_() : QString();
    if (text.isEmpty())
        return nullptr;
    auto* carried = new QMimeData;
    carried->setText(text);
    return carried;
}

void ImageTree::startDrag(Qt::DropActions /*actions*/) {
    QMimeData* carried = dragData();
    if (carried == nullptr)
        return;
    auto* drag = new QDrag(this);
    drag->setMimeData(carried);
    if (images_ != nullptr && hasSelection()) {
        const QPixmap picture = images_->pixmap(nodeImage(selectedKey()));
        const qreal density = devicePixelRatioF();
        QPixmap small = picture.scaled((QSizeF(80, 80) * density).toSize(), Qt::KeepAspectRatio,
                                       Qt::SmoothTransformation);
        small.setDevicePixelRatio(density);
        drag->setPixmap(small);
        drag->setHotSpot(QPoint(40, 40));
    }
    drag->exec(Qt::CopyAction, Qt::CopyAction);
}

void ImageTree::mousePressEvent(QMouseEvent* event) {
    Q_EMIT nodePressed(keyAt(event->position().toPoint()));
    QTreeWidget::mousePressEvent(event);
}

QItemSelectionModel::SelectionFlags ImageTree::selectionCommand(const QModelIndex& index,
                                                                const QEvent* event) const {
    const auto command = QTreeWidget::selectionCommand(index, event);
    return command & QItemSelectionModel::Deselect ? QItemSelectionModel::NoUpdate : command;
}

void ImageTree::keyPressEvent(QKeyEvent* event) {
    const QString before = selectedKey();
    QTreeWidget::keyPressEvent(event);
    const QString now = selectedKey();
    if (now != before && !now.isEmpty())
        Q_EMIT nodeClick(now);
}

} // namespace toolkit
