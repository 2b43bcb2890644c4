#include "Shape.h"

namespace figures {

std::optional<int> muscleIndex(std::string_view code) {
    for (std::size_t i = 0; i < muscleCodes.size(); ++i)
        if (muscleCodes[i] == code)
            return static_cast<int>(i);
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
    s.middle_ = mix(a, b, 0.5F);
    s.ball_ = std::sqrt(s.l2_) / 2 + s.reach;
    return s;
}

Shape Shape::box(const Frame& frame, const Vec3& half, float edge) {
    Shape s;
    s.isBox = true;
    s.frame = frame;
    s.half = half - Vec3{edge, edge, edge};
    s.ra = edge;
    s.middle_ = frame.origin;
    s.ball_ = length(half);
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

} // namespace figures
