#include "Field.h"

namespace figures {
namespace {

/// Polynomial smooth minimum: like min, but within `k` the two run into each other.
inline float join(float a, float b, float k) {
    const float h = std::max(k - std::fabs(a - b), 0.0F);
    return std::min(a, b) - h * h / (4 * k);
}

/// How softly the shapes of one group run into each other, in cm; by Group.
constexpr std::array<float, 12> softness = {3.2F, 1.6F, 1.6F, 1.6F, 0.45F, 0.45F,
                                            1.8F, 1.8F, 1.2F, 1.2F, 1.0F,  0.01F};

/// No two groups feel each other over a greater distance.
constexpr float farthestJoin = 3.6F;

/// Softness between a limb and the trunk: only near the joint.
float nearJoint(const Vec3& p, const Vec3& joint, float from, float to) {
    const Vec3 v = p - joint;
    const float d2 = dot(v, v);
    if (d2 > to * to)
        return 0.25F;
    return 0.25F + 3.2F * (1 - smoothstep(from, to, std::sqrt(d2)));
}

} // namespace

float Field::distance(const List& shapes, const Joints& joints, const Vec3& p) {
    float all = 1e9F;
    std::array<float, 2> arm = {1e9F, 1e9F};
    std::size_t i = 0;
    while (i < shapes.size()) {
        const Group group = shapes[i]->group;
        const float k = softness[static_cast<std::size_t>(group)];
        float d = 1e9F;
        for (; i < shapes.size() && shapes[i]->group == group; ++i) {
            if (d < 1e8F && shapes[i]->beyond(p, std::min(d + k, all + farthestJoin)))
                continue;
            const float one = shapes[i]->distance(p);
            d = group == Group::Object ? std::min(d, one) : join(d, one, k);
        }
        switch (group) {
        case Group::Head:
            all = join(all, d, 1.5F);
            break;
        case Group::ArmLeft:
        case Group::ArmRight: {
            const std::size_t side = group == Group::ArmLeft ? 0 : 1;
            arm[side] = d;
            all = join(all, d, nearJoint(p, joints.shoulder[side], 6, 14));
            break;
        }
        case Group::HandLeft:
        case Group::HandRight: {
            const float with = arm[group == Group::HandLeft ? 0 : 1];
            all = std::min(all, with < 1e8F ? join(with, d, 1.4F) : d);
            break;
        }
        case Group::LegLeft:
        case Group::LegRight:
            all = join(all, d, nearJoint(p, joints.hip[group == Group::LegLeft ? 0 : 1], 9, 18));
            break;
        default:
            all = std::min(all, d);
        }
    }
    return all;
}

Vec3 Field::normal(const List& shapes, const Joints& joints, const Vec3& p) {
    constexpr float e = 0.12F;
    const Vec3 k0{1, -1, -1};
    const Vec3 k1{-1, -1, 1};
    const Vec3 k2{-1, 1, -1};
    const Vec3 k3{1, 1, 1};
    return unit(k0 * distance(shapes, joints, p + k0 * e) + k1 * distance(shapes, joints, p + k1 * e) +
                k2 * distance(shapes, joints, p + k2 * e) + k3 * distance(shapes, joints, p + k3 * e));
}

Field::Owner Field::owner(const List& shapes, const Vec3& p, std::uint32_t trained) {
    Owner o;
    float least = 1e9F;
    std::array<float, 160> d{};
    const std::size_t n = std::min(shapes.size(), d.size());
    for (std::size_t i = 0; i < n; ++i) {
        d[i] = shapes[i]->distance(p);
        if (d[i] < least) {
            least = d[i];
            o.shape = shapes[i];
        }
    }
    if (o.shape == nullptr || o.shape->group == Group::Object)
        return o;
    float sum = 0;
    float warm = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const float away = d[i] - least;
        if (away > 2.5F || shapes[i]->group == Group::Object)
            continue;
        const float w = std::exp(-away * 3.0F);
        sum += w;
        if (shapes[i]->muscle >= 0 && (trained >> shapes[i]->muscle & 1U) != 0)
            warm += w;
    }
    o.tint = smoothstep(0.22F, 0.62F, warm / sum);
    return o;
}

} // namespace figures
