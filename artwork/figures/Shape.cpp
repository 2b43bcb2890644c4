#include "Shape.h"

namespace figures {

std::optional<int> muscleIndex(std::string_view code) {
    for (std::size_t i = 0; i < muscleCodes.size(); ++i) {
        if (muscleCodes[i] == code) {
            return static_cast<int>(i);
        }
    }
    return std::nullopt;
}

Shape Shape::cone(const Vec3& a, float ra, const Vec3& b, float rb) {
    Shape s;
    s.a = a;
    s.b = b;
    s.ra = ra;
    s.rb = rb;
    s.reach = std::max(ra, rb);
    s.ba_ = b - a;
    s.l2_ = dot(s.ba_, s.ba_);
    s.rr_ = ra - rb;
    s.a2_ = s.l2_ - s.rr_ * s.rr_;
    s.il2_ = s.l2_ > 0 ? 1.0F / s.l2_ : 0;
    return s;
}

Shape Shape::box(const Frame& frame, const Vec3& half, float edge) {
    Shape s;
    s.isBox = true;
    s.frame = frame;
    s.half = half - Vec3{edge, edge, edge};
    s.ra = edge;
    // the longest axis is the segment, the other two the reach
    if (half.x >= half.y && half.x >= half.z) {
        s.a = frame.point({-half.x, 0, 0});
        s.b = frame.point({half.x, 0, 0});
        s.reach = std::hypot(half.y, half.z);
    } else if (half.y >= half.z) {
        s.a = frame.point({0, -half.y, 0});
        s.b = frame.point({0, half.y, 0});
        s.reach = std::hypot(half.x, half.z);
    } else {
        s.a = frame.point({0, 0, -half.z});
        s.b = frame.point({0, 0, half.z});
        s.reach = std::hypot(half.x, half.y);
    }
    return s;
}

void Shape::cut(const Vec3& normal, float limit) {
    hasCut_ = true;
    cutNormal_ = normal;
    cutLimit_ = limit;
}

float Shape::distance(const Vec3& p) const {
    float d = 0;
    if (isBox) {
        const Vec3 q = frame.local(p);
        const Vec3 e{std::fabs(q.x) - half.x, std::fabs(q.y) - half.y, std::fabs(q.z) - half.z};
        const Vec3 o{std::max(e.x, 0.0F), std::max(e.y, 0.0F), std::max(e.z, 0.0F)};
        d = length(o) + std::min(std::max({e.x, e.y, e.z}), 0.0F) - ra;
    } else if (a2_ <= 0) { // one ball swallows the other
        d = ra >= rb ? length(p - a) - ra : length(p - b) - rb;
    } else {
        const Vec3 pa = p - a;
        const float y = dot(pa, ba_);
        const float z = y - l2_;
        const Vec3 across = pa * l2_ - ba_ * y;
        const float x2 = dot(across, across);
        const float y2 = y * y * l2_;
        const float z2 = z * z * l2_;
        const float k = (rr_ > 0 ? 1.0F : -1.0F) * rr_ * rr_ * x2;
        if ((z > 0 ? 1.0F : -1.0F) * a2_ * z2 > k) {
            d = std::sqrt(x2 + z2) * il2_ - rb;
        } else if ((y > 0 ? 1.0F : -1.0F) * a2_ * y2 < k) {
            d = std::sqrt(x2 + y2) * il2_ - ra;
        } else {
            d = (std::sqrt(x2 * a2_ * il2_) + y * rr_) * il2_ - ra;
        }
    }
    return hasCut_ ? std::max(d, dot(cutNormal_, p) - cutLimit_) : d;
}

} // namespace figures
