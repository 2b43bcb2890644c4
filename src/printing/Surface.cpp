#include "printing/Surface.h"

#include "platform/runtime/Error.h"

#include <QSize>

#include <algorithm>
#include <cmath>

namespace sheet {

namespace {

QString label(const QString& name, int index) {
    return QStringLiteral("%1(%2)").arg(name).arg(index);
}

} // namespace

Element& Surface::add(Element element) {
    const std::pair key{element.name, element.index};
    if (mPlaces.contains(key))
        runtime::raise(runtime::InvalidPropertyValue,
                       QStringLiteral("Elemento doppio: %1").arg(label(element.name, element.index)));
    mPlaces.insert(key, mElements.size());
    return mElements.emplace_back(std::move(element));
}

std::size_t Surface::placeOf(const QString& name, int index) const {
    const auto found = mPlaces.constFind({name, index});
    if (found == mPlaces.cend())
        runtime::raise(runtime::SubscriptOutOfRange,
                       QStringLiteral("Elemento inesistente: %1").arg(label(name, index)));
    return *found;
}

Element& Surface::element(const QString& name, int index) {
    return mElements[placeOf(name, index)];
}

const Element& Surface::element(const QString& name, int index) const {
    return mElements[placeOf(name, index)];
}

const Element* Surface::elementAt(QPointF point) const {
    const auto hit = [point](const Element& e) { return e.visible && e.rect().contains(point); };
    const auto found = std::find_if(mElements.rbegin(), mElements.rend(), hit);
    return found == mElements.rend() ? nullptr : &*found;
}

void Surface::load(Element& element, const QString& path) const {
    element.picture = mPictures->load(path, {element.width, element.height});
}

QSize Surface::pixels() const {
    return {static_cast<int>(std::ceil(width / twipsPerPixel)),
            static_cast<int>(std::ceil(height / twipsPerPixel))};
}

} // namespace sheet
