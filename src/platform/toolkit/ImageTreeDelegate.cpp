#include "platform/toolkit/ImageTreeDelegate.h"

#include "platform/toolkit/ImageList.h"

#include <QApplication>
#include <QPainter>
#include <QTreeWidget>

namespace toolkit {

namespace {
constexpr int gap = 4; // pixels around picture and text
}

ImageTreeDelegate::ImageTreeDelegate(QTreeWidget& tree) : QStyledItemDelegate(&tree) {}

void ImageTreeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QWidget* tree = option.widget;
    QApplication::style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, tree);
    const QString key = index.data(ImageRole).toString();
    QRect textPlace = item.rect.adjusted(gap, 0, -gap, 0);
    if (images_ != nullptr && images_->contains(key)) {
        const QSize size = images_->imageSize();
        const QPoint corner(item.rect.left() + gap,
                            item.rect.top() + (item.rect.height() - size.height()) / 2);
        textPlace.setLeft(corner.x() + size.width() + gap);
        painter->drawPixmap(corner, images_->pixmap(key));
    }
    const bool selected = item.state & QStyle::State_Selected;
    painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(item.font);
    const QString text = item.fontMetrics.elidedText(item.text, Qt::ElideRight, textPlace.width());
    painter->drawText(textPlace, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

QSize ImageTreeDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int line = option.fontMetrics.height() + gap;
    const int textWidth = option.fontMetrics.horizontalAdvance(index.data().toString()) + 2 * gap;
    if (images_ == nullptr)
        return {textWidth, line};
    const QSize size = images_->imageSize();
    return {size.width() + 2 * gap + textWidth, std::max(size.height() + 2, line)};
}

} // namespace toolkit
