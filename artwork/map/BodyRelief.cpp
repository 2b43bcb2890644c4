#include "BodyRelief.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace {
constexpr int oversampling = 2;

// Heights and radii in twips; they were found by looking at the result.
constexpr double limbRadius = 34; ///< softness of a silhouette's roundness
constexpr double limbHeight = 120;
constexpr double trunkRadius = 90; ///< second, wider rounding, which broad parts show
constexpr double trunkHeight = 150;
constexpr double muscleRadius = 16; ///< softness of a muscle's edge
constexpr double bellyRadius = 60;  ///< reach of its swelling
constexpr double muscleHeight = 62;
constexpr float edgeShare = 0.22F; ///< parts of the height that the edge and the swelling give
constexpr float bellyShare = 1.0F;
constexpr double grooveWidth = 9;
constexpr double grooveRadius = 5;
constexpr double grooveDepth = 16;
constexpr double shadowRadius = 22;

struct Colour {
    float red, green, blue;
};
constexpr Colour ground{255, 255, 255};
constexpr Colour skin{222, 211, 198};
constexpr Colour mark{226, 78, 44};
constexpr Colour dark{74, 58, 52}; ///< what colours fade to in the shade: warm, never black

Colour mix(const Colour& a, const Colour& b, float share) {
    return {a.red + (b.red - a.red) * share, a.green + (b.green - a.green) * share,
            a.blue + (b.blue - a.blue) * share};
}

Colour lit(const Colour& colour, float light) {
    return light <= 1 ? mix(dark, colour, std::max(0.0F, light))
                      : mix(colour, ground, std::min(1.0F, (light - 1) * 0.9F));
}

float smoothStep(float value) {
    const float t = std::clamp(value, 0.0F, 1.0F);
    return t * t * (3 - 2 * t);
}

/// The parts of a layer as one: each pixel takes the fullest cover. (Joining the paths instead breaks where
/// curves nearly touch.) An empty field if the layer has no part.
Field silhouetteOf(const BodyLayer& layer, const QTransform& toPixels, int margin) {
    std::vector<Field> parts;
    QRect area;
    for (const BodyShape& shape : layer.shapes) {
        if (shape.kind != BodyShape::Kind::Part)
            continue;
        parts.push_back(Field::coverage(shape.path, toPixels, margin));
        area |= parts.back().area();
    }
    Field result(area);
    for (const Field& part : parts) {
        for (int y = part.area().top(); y <= part.area().bottom(); ++y)
            for (int x = part.area().left(); x <= part.area().right(); ++x)
                result.at(x, y) = std::max(result.value(x, y), part.value(x, y));
    }
    return result;
}
} // namespace

BodyRelief::BodyRelief(const BodyPlan& plan, QSize size, double pixelsPerTwip)
    : fine_(size * oversampling), size_(size), scale_(pixelsPerTwip * oversampling), body_(QRect({}, fine_)),
      light_(QRect({}, fine_)) {
    for (const BodyLayer& layer : plan.layers())
        addLayer(layer);
}

int BodyRelief::pixels(double twips) const {
    return std::max(1, qRound(twips * scale_ / 2)); // three box blurs reach about twice as far as one
}

void BodyRelief::addLayer(const BodyLayer& layer) {
    const QTransform toPixels = QTransform::fromScale(scale_, scale_);
    const int margin = pixels(trunkRadius) * 3 + 4;
    const Field silhouette = silhouetteOf(layer, toPixels, margin);
    if (silhouette.area().isEmpty())
        return;
    const Field limb = silhouette.blurred(pixels(limbRadius));
    const Field trunk = silhouette.blurred(pixels(trunkRadius));
    const QRect area = silhouette.area();
    Field height(area);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            height.at(x, y) = static_cast<float>(limbHeight * std::sqrt(limb.value(x, y)) +
                                                 trunkHeight * trunk.value(x, y));
    }
    hideMarks(silhouette);
    for (const BodyShape& shape : layer.shapes) {
        if (shape.kind == BodyShape::Kind::Part)
            continue;
        const bool groove = shape.kind == BodyShape::Kind::Groove;
        const int radius = pixels(groove ? grooveRadius : muscleRadius);
        const Field covered = groove ? Field::line(shape.path, grooveWidth, toPixels, radius * 3 + 2)
                                     : Field::coverage(shape.path, toPixels, radius * 3 + 2);
        const Field soft = covered.blurred(radius);
        const Field belly = groove ? soft : covered.blurred(pixels(bellyRadius));
        const double rise = shape.strength * (groove ? -grooveDepth : muscleHeight);
        const QRect box = soft.area() & area;
        for (int y = box.top(); y <= box.bottom(); ++y) {
            for (int x = box.left(); x <= box.right(); ++x) {
                // A bulge rises slowly from its edge to its belly, so that neighbours meet in a soft furrow.
                const float edge = soft.value(x, y);
                const float bulge =
                    groove ? edge : smoothStep(edge) * (edgeShare + bellyShare * belly.value(x, y));
                height.at(x, y) += static_cast<float>(rise) * bulge;
            }
        }
        if (shape.kind != BodyShape::Kind::Muscle)
            continue;
        Field& marked = marks_.try_emplace(shape.code, QRect({}, fine_)).first->second;
        const QRect inside = box & marked.area();
        for (int y = inside.top(); y <= inside.bottom(); ++y) {
            for (int x = inside.left(); x <= inside.right(); ++x) {
                const float share = covered.value(x, y) * silhouette.value(x, y);
                marked.at(x, y) = std::max(marked.value(x, y), share);
            }
        }
    }
    shade(silhouette, height);
}

void BodyRelief::hideMarks(const Field& silhouette) {
    const QRect area = silhouette.area() & body_.area();
    for (auto& [code, marked] : marks_) {
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                marked.at(x, y) *= 1 - silhouette.value(x, y);
    }
}

void BodyRelief::shade(const Field& silhouette, const Field& height) {
    const Field shadow = silhouette.blurred(pixels(shadowRadius));
    const QRect area = silhouette.area() & body_.area();
    // The light falls from the upper left, towards the viewer.
    constexpr float lightX = -0.42F;
    constexpr float lightY = -0.52F;
    constexpr float lightZ = 0.744F;
    const auto slope = static_cast<float>(scale_ / 2); // heights are twips, steps are pixels
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const float cover = silhouette.value(x, y);
            const float dx = (height.value(x + 1, y) - height.value(x - 1, y)) * slope;
            const float dy = (height.value(x, y + 1) - height.value(x, y - 1)) * slope;
            const float length = std::sqrt(dx * dx + dy * dy + 1);
            const float lambert = (-dx * lightX - dy * lightY + lightZ) / length;
            const float rim = 1 / length; // surfaces seen edge-on darken a little on either side
            const float brightness = 0.50F + 0.52F * lambert / lightZ * 0.9F + 0.07F * (rim - 1);
            // What lies behind is shaded beside this layer, then covered by it.
            light_.at(x, y) *= 1 - 0.30F * shadow.value(x, y) * (1 - cover);
            light_.at(x, y) = light_.value(x, y) * (1 - cover) + brightness * cover;
            body_.at(x, y) = body_.value(x, y) * (1 - cover) + cover;
        }
    }
}

QImage BodyRelief::picture(const QString& code) const {
    const auto found = marks_.find(code);
    QImage image(fine_, QImage::Format_RGB32);
    for (int y = 0; y < fine_.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < fine_.width(); ++x) {
            const float share = found == marks_.end() ? 0.0F : found->second.value(x, y);
            const Colour own = lit(mix(skin, mark, share), light_.value(x, y));
            const Colour shown = mix(ground, own, body_.value(x, y));
            row[x] = qRgb(qRound(shown.red), qRound(shown.green), qRound(shown.blue));
        }
    }
    return image.scaled(size_, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
