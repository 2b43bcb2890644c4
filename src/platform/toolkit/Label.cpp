#include "platform/toolkit/Label.h"

#include "platform/toolkit/Twips.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <algorithm>

namespace toolkit {

namespace {
/// How far a wrapped caption may grow below its place; pixels.
constexpr int wrapAllowance = 4;
} // namespace

Label::Label(const QString& name, const QString& caption, QWidget* parent) : QLabel(caption, parent) {
    setObjectName(name);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTextFormat(Qt::PlainText);
    setMargin(0);
    setIndent(0);
}

void Label::setHome(double left, double top, double width, double height) {
    home_ = toPixels(left, top, width, height);
    setGeometry(home_);
    if (isVisible())
        fit();
}

void Label::setCaption(const QString& caption) {
    if (caption == text())
        return;
    setText(caption);
    if (isVisible())
        fit();
}

int Label::textWidth(const QFont& font) const {
    return QFontMetrics(font)
        .size(Qt::TextSingleLine | (buddy() ? Qt::TextShowMnemonic : 0), text().trimmed())
        .width();
}

QRect Label::wrappedBox(int width) const {
    return QFontMetrics(font()).boundingRect(QRect(0, 0, width, 10000), int(alignment()) | Qt::TextWordWrap,
                                             text());
}

QRect Label::freeRoom() const {
    QRect room = home_;
    room.setLeft(0);
    room.setRight(parentWidget()->width() - 1);
    const auto avoid = [this, &room](const QRect& other) {
        if (other.contains(home_) || other.bottom() < home_.top() || other.top() > home_.bottom())
            return;
        if (other.left() > home_.left())
            room.setRight(std::min(room.right(), std::max(home_.right(), other.left() - 1)));
        else
            room.setLeft(std::max(room.left(), std::min(home_.left(), other.right() + 1)));
    };
    const QWidget* inside = this;
    for (const QWidget* parent = parentWidget(); parent != nullptr && !inside->isWindow();
         inside = parent, parent = parent->parentWidget()) {
        bool inFront = inside == this; // of the siblings all count, further out those stacked above
        for (const QObject* child : parent->children()) {
            const auto* other = qobject_cast<const QWidget*>(child);
            if (other == inside) {
                inFront = true;
            } else if (other != nullptr && inFront && !other->isHidden() && !other->isWindow()) {
                avoid(
                    {parentWidget()->mapFrom(window(), other->mapTo(window(), QPoint(0, 0))), other->size()});
            }
        }
    }
    return room;
}

void Label::fit() {
    if (home_.isNull())
        home_ = geometry();
    QFont plain = font();
    plain.setStretch(QFont::Unstretched);
    QRect place = home_;
    if (!wordWrap() && parentWidget() != nullptr) {
        const int needed = textWidth(plain) + 2 * (margin() + frameWidth());
        if (needed > place.width()) {
            const QRect room = freeRoom();
            const int missing = needed - place.width();
            if (alignment() & Qt::AlignHCenter) {
                const int side = (missing + 1) / 2;
                place.setLeft(std::max(room.left(), place.left() - side));
                place.setRight(std::min(room.right(), place.right() + side));
            } else if (alignment() & Qt::AlignRight) {
                place.setLeft(std::max(room.left(), place.left() - missing));
            } else {
                place.setRight(std::min(room.right(), place.right() + missing));
            }
            if (needed > place.width()) {
                const int borders = 2 * (margin() + frameWidth());
                int stretch = std::max(narrowestStretch, place.width() * 100 / needed);
                plain.setStretch(stretch); // widths follow it only roughly
                while (stretch > narrowestStretch && textWidth(plain) + borders > place.width())
                    plain.setStretch(--stretch);
            }
        }
    }
    if (wordWrap()) { // a font taller than the design's by a pixel or two
        const int needed = wrappedBox(place.width() - 2 * (margin() + frameWidth())).height();
        place.setHeight(std::clamp(needed, place.height(), place.height() + wrapAllowance));
    }
    if (plain != font())
        setFont(plain);
    if (place != geometry())
        setGeometry(place);
}

bool Label::isWhole() const {
    if (wordWrap()) {
        const QRect box = wrappedBox(contentsRect().width());
        return box.width() <= contentsRect().width() && box.height() <= contentsRect().height();
    }
    return textWidth(font()) <= contentsRect().width();
}

void Label::showEvent(QShowEvent* event) {
    QLabel::showEvent(event);
    fit();
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void place(Label& label, double left, double top, double width, double height) {
    label.setHome(left, top, width, height);
}

} // namespace toolkit
