#include "printing/Surface.h"

#include "platform/runtime/Error.h"

#include <QSize>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace sheet {

namespace {

QString label(const QString& name, int index) {
    return u"%1(%2)"_s.arg(name).arg(index);
}

} // namespace

Element& Surface::add(Element element) {
    const std::pair key{element.name, element.index};
    if (places_.contains(key))
        runtime::raise(runtime::InvalidPropertyValue,
                       u"Elemento doppio: %1"_s.arg(label(element.name, element.index)));
    places_.insert(key, elements_.size());
    return elements_.emplace_back(std::move(element));
}

std::size_t Surface::placeOf(const QString& name, int index) const {
    const auto found = places_.constFind({name, index});
    if (found == places_.cend())
        runtime::raise(runtime::SubscriptOutOfRange, u"Elemento inesistente: %1"_s.arg(label(name, index)));
    return *found;
}

Element& Surface::element(const QString& name, int index) {
    return elements_[placeOf(name, index)];
}

const Element& Surface::element(const QString& name, int index) const {
    return elements_[placeOf(name, index)];
}

const Element* Surface::elementAt(QPointF point) const {
    const auto hit = [point](const Element& e) {
        return e.visible && e.kind != Kind::Frame && e.kind != Kind::Rule && e.rect().contains(point);
    };
    const auto found = std::find_if(elements_.rbegin(), elements_.rend(), hit);
    return found == elements_.rend() ? nullptr : &*found;
}

void Surface::load(Element& element, const QString& path) const {
    element.picture = pictures_->load(path, {element.width, element.height});
}

QSize Surface::pixels() const {
    return {static_cast<int>(std::ceil(width / twipsPerPixel)),
            static_cast<int>(std::ceil(height / twipsPerPixel))};
}

} // namespace sheet
