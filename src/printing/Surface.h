#pragma once

#include "printing/Element.h"
#include "printing/PictureCache.h"

#include <QHash>

#include <memory>
#include <utility>
#include <vector>

namespace sheet {

/// The side of a logical pixel in twips: 96 pixels to the inch.
inline constexpr double twipsPerPixel = 15;

/// The program's own factor, not the exact 566.93.
inline constexpr double twipsPerCm = 567;

/// A printed sheet as data: a fixed set of elements, found by name and index, in stacking order (the last one
/// lies on top). Composing changes elements and never adds or removes any.
class Surface {
public:
    double width = 20 * twipsPerCm;
    double height = 28 * twipsPerCm;

    /// Adds an element on top. Raises InvalidPropertyValue when its name and index are taken.
    Element& add(Element element);

    bool has(const QString& name, int index = 0) const { return places_.contains({name, index}); }

    /// Raises SubscriptOutOfRange when there is no such element.
    Element& element(const QString& name, int index = 0);
    const Element& element(const QString& name, int index = 0) const;

    /// In stacking order, the lowest first.
    const std::vector<Element>& elements() const { return elements_; }

    /// The topmost visible element at a point in twips, nullptr on bare paper. Frames and rules are drawn on
    /// the paper and count as such.
    const Element* elementAt(QPointF point) const;

    /// Loads a picture file into an element, for the element's box. Raises as Picture::fromFile; the element
    /// then keeps the picture it had.
    void load(Element& element, const QString& path) const;

    /// Size in logical pixels, rounded up: 756 x 1059 for the standard sheet.
    QSize pixels() const;

private:
    std::vector<Element> elements_;
    QHash<std::pair<QString, int>, std::size_t> places_;

    std::shared_ptr<PictureCache> pictures_ = std::make_shared<PictureCache>();

    std::size_t placeOf(const QString& name, int index) const;
};

} // namespace sheet
