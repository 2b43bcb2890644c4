#pragma once

#include <QStyledItemDelegate>

class QTreeWidget;

namespace toolkit {

class ImageList;

/// Draws the nodes of an ImageTree. Pictures are fetched from the list while painting, so that only those on
/// screen ever become pixmaps.
class ImageTreeDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    enum Role { KeyRole = Qt::UserRole + 1, ImageRole, TagRole };

    explicit ImageTreeDelegate(QTreeWidget& tree);

    void setImageList(const ImageList* images) { images_ = images; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const ImageList* images_ = nullptr;
};

} // namespace toolkit
