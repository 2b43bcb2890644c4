#pragma once

#include "platform/host/Controls.h"

#include <QFrame>
#include <QImage>
#include <QPixmap>
#include <functional>

namespace toolkit {

/// A picture stretched to the control's size. As a host::Box its geometry is in twips (`width()` and
/// `height()` here hide the widget's pixels; `size()` and `rect()` are still pixels).
class PictureBox : public QFrame, public host::Box {
    Q_OBJECT
public:
    PictureBox(const QString& name, QWidget* parent);

    QString Tag;

    /// Loads a picture. Raises runtime::FileNotFound for a missing file, 481 for a bad one; the picture shown
    /// before then stays.
    void load(const QString& path);
    void setImage(const QImage& image);
    void clear();
    bool isEmpty() const { return image_.isNull(); }
    const QImage& image() const { return image_; }
    /// The picture's own size in twips, 15 to a pixel; empty if there is none.
    QSizeF pictureSize() const;

    /// Text can be dropped here: `dropped` tells it. Off at first.
    void setDropTarget(bool accepts) { setAcceptDrops(accepts); }
    /// Takes only texts that `fits` agrees to; others are refused as soon as they are dragged in.
    void setDropFilter(std::function<bool(const QString& text)> fits) { fits_ = std::move(fits); }

    // host::Box; twips
    double left() const override;
    double top() const override;
    double width() const override;
    double height() const override;
    void setLeft(double twips) override;
    void setTop(double twips) override;
    void setWidth(double twips) override;
    void setHeight(double twips) override;
    void setVisible(bool visible) override { QFrame::setVisible(visible); }
    void refresh() override { repaint(); }

Q_SIGNALS:
    void dropped(const QString& text);
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool takes(const QDropEvent& event) const;

    QImage image_;
    QSize ownSize_;  ///< of the file, in pixels; image_ may be smaller
    QPixmap scaled_; ///< image_ as last painted
    std::function<bool(const QString&)> fits_;
    bool dropHint_ = false;
};

} // namespace toolkit
