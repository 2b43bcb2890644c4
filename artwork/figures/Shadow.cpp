#include "Shadow.h"

namespace figures {

Shadow::Shadow(const Shapes& casters, const Joints& joints, const Vec3& middle, float halfX, float halfY,
               float z, float step)
    : x0_(middle.x - halfX), y0_(middle.y - halfY), step_(step), nx_(static_cast<int>(2 * halfX / step) + 1),
      ny_(static_cast<int>(2 * halfY / step) + 1),
      dark_(static_cast<std::size_t>(nx_) * static_cast<std::size_t>(ny_), 0.0F) {
    constexpr float soft = 11; // cm over which the shadow fades
    Field::List list;
    for (const auto& s : casters)
        if (std::min(s.a.z, s.b.z) - s.reach < z + soft)
            list.push_back(&s);
    if (list.empty())
        return;
    for (int iy = 0; iy < ny_; ++iy) {
        for (int ix = 0; ix < nx_; ++ix) {
            const Vec3 p{x0_ + static_cast<float>(ix) * step, y0_ + static_cast<float>(iy) * step, z + 0.5F};
            const float d = std::max(0.0F, Field::distance(list, joints, p));
            const float f = 1 - std::min(d / soft, 1.0F);
            dark_[static_cast<std::size_t>(iy) * static_cast<std::size_t>(nx_) +
                  static_cast<std::size_t>(ix)] = f * f;
        }
    }
}

float Shadow::value(int ix, int iy) const {
    if (ix < 0 || iy < 0 || ix >= nx_ || iy >= ny_)
        return 0;
    return dark_[static_cast<std::size_t>(iy) * static_cast<std::size_t>(nx_) + static_cast<std::size_t>(ix)];
}

float Shadow::at(const Vec3& p) const {
    const float fx = (p.x - x0_) / step_;
    const float fy = (p.y - y0_) / step_;
    const int ix = static_cast<int>(std::floor(fx));
    const int iy = static_cast<int>(std::floor(fy));
    const float tx = fx - static_cast<float>(ix);
    const float ty = fy - static_cast<float>(iy);
    const float low = value(ix, iy) * (1 - tx) + value(ix + 1, iy) * tx;
    const float high = value(ix, iy + 1) * (1 - tx) + value(ix + 1, iy + 1) * tx;
    return low * (1 - ty) + high * ty;
}

} // namespace figures
