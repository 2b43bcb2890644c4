#include "Tint.h"

namespace figures {
namespace {

constexpr Vec3 rgb(int r, int g, int b) {
    return {static_cast<float>(r) / 255, static_cast<float>(g) / 255, static_cast<float>(b) / 255};
}
constexpr Vec3 warmLight = rgb(242, 92, 52);
constexpr Vec3 warmDark = rgb(176, 34, 26);

QRgb packed(const Vec3& c) {
    const auto byte = [](float v) { return static_cast<int>(std::lround(std::clamp(v, 0.0F, 1.0F) * 255)); };
    return qRgba(byte(c.x), byte(c.y), byte(c.z), 255);
}

/// The light comes from the upper left of the viewer, a little from the front.
Vec3 lightOf(const Camera& c) {
    return unit(c.right * -0.55F + c.up * 0.75F - c.into * 0.62F);
}

} // namespace

Tint::Tint(const Skeleton& skeleton, const Camera& camera, const Shadow& plateShadow, float plateTop)
    : s_(skeleton), camera_(camera), plateShadow_(plateShadow), plateTop_(plateTop), light_(lightOf(camera)) {
}

Tint::Look Tint::look(Material material) {
    switch (material) {
    case Material::Skin:
        return {rgb(247, 217, 193), rgb(206, 158, 130), 0.06F};
    case Material::Shirt:
        return {rgb(226, 234, 243), rgb(158, 174, 196), 0};
    case Material::Shorts:
        return {rgb(92, 118, 162), rgb(50, 66, 104), 0};
    case Material::Shoe:
        return {rgb(84, 98, 122), rgb(44, 52, 70), 0.1F};
    case Material::Sole:
        return {rgb(245, 247, 250), rgb(184, 192, 204), 0};
    case Material::Hair:
        return {rgb(112, 82, 62), rgb(60, 42, 32), 0.14F};
    case Material::Feature:
        return {rgb(74, 54, 48), rgb(60, 44, 40), 0};
    case Material::Plate:
        return {rgb(122, 134, 150), rgb(74, 84, 100), 0.08F};
    case Material::PlateTop:
        return {rgb(176, 186, 199), rgb(112, 124, 140), 0};
    case Material::Column:
        return {rgb(218, 224, 231), rgb(152, 163, 177), 0.15F};
    case Material::Steel:
        return {rgb(200, 208, 218), rgb(120, 132, 148), 0.35F};
    case Material::Rubber:
        return {rgb(92, 100, 112), rgb(48, 54, 64), 0.12F};
    case Material::Screen:
        return {rgb(126, 196, 214), rgb(74, 140, 166), 0.2F};
    case Material::Accent:
        return {rgb(64, 160, 176), rgb(34, 108, 126), 0.1F};
    case Material::Mat:
        return {rgb(134, 190, 176), rgb(84, 142, 130), 0};
    case Material::Strap:
        return {rgb(72, 92, 132), rgb(40, 52, 84), 0};
    case Material::Wood:
        return {rgb(222, 186, 132), rgb(160, 118, 70), 0.15F};
    case Material::Ball:
        return {rgb(120, 176, 218), rgb(58, 108, 158), 0.3F};
    case Material::Cushion:
        return {rgb(112, 124, 142), rgb(66, 76, 92), 0.08F};
    case Material::Ground:
        break;
    }
    return {rgb(255, 255, 255), rgb(230, 230, 230), 0};
}

bool Tint::face(const Vec3& p, Vec3& base) const {
    const float y = std::fabs(p.y);
    const auto spot = [](float a, float b, float wide, float high) {
        return (a * a) / (wide * wide) + (b * b) / (high * high) < 1;
    };
    if (p.x < 3)
        return false;
    if (spot(y - 3.3F, p.z - 8.9F, 1.0F, 1.15F)) { // eye
        base = rgb(62, 48, 44);
        return true;
    }
    if (spot(y - 3.5F, p.z - 11.3F - 0.12F * (3.5F - y), 1.9F, 0.42F)) { // brow
        base = rgb(104, 76, 60);
        return true;
    }
    if (spot(y, p.z - 3.1F - 0.03F * y * y, 2.3F, 0.42F)) { // mouth
        base = rgb(186, 106, 94);
        return true;
    }
    return false;
}

Material Tint::cover(const Hit& hit, int& detail) const {
    const Shape& shape = *hit.shape;
    detail = 0;
    const auto along = [&hit](const Bone& b) {
        const Vec3 way = b.to - b.from;
        return dot(hit.point - b.from, way) / dot(way, way);
    };
    switch (shape.group) {
    case Group::Torso:
        if (s_.pelvis.local(hit.point).z < 8.5F && shape.part == Part::Pelvis)
            return Material::Shorts;
        if (shape.part == Part::Chest) {
            const Vec3 neck = s_.chest.local(hit.point);
            if (neck.z > 21.0F && std::hypot(neck.x + 1.0F, neck.y) < 7.6F + (neck.x > 0 ? 0.8F : 0))
                return Material::Skin;
        }
        return Material::Shirt;
    case Group::ArmLeft:
    case Group::ArmRight: {
        const auto& a = s_.arm[shape.group == Group::ArmLeft ? 0 : 1];
        const bool upper = shape.part == Part::UpperArm || shape.part == Part::UpperArmR;
        return upper && along(a.upper) < 0.40F ? Material::Shirt : Material::Skin;
    }
    case Group::LegLeft:
    case Group::LegRight: {
        const auto& l = s_.leg[shape.group == Group::LegLeft ? 0 : 1];
        const bool thigh = shape.part == Part::Thigh || shape.part == Part::ThighR;
        if (thigh)
            return along(l.thigh) < 0.50F ? Material::Shorts : Material::Skin;
        if (along(l.shank) > 0.86F)
            return Material::Sole; // socks share the white of the soles
        return Material::Skin;
    }
    case Group::ShoeLeft:
    case Group::ShoeRight: {
        const auto& l = s_.leg[shape.group == Group::ShoeLeft ? 0 : 1];
        const Vec3 p = l.foot.local(hit.point);
        if (p.x < body::ballAhead && p.z < -6.4F)
            return Material::Sole;
        if (p.x >= body::ballAhead) { // the toes bend at the ball
            const float a = radians(l.toeFlex);
            const float x = p.x - body::ballAhead;
            const float z = p.z + body::ankleHeight - 1.0F;
            if (z * std::cos(a) - x * std::sin(a) < 1.2F)
                return Material::Sole;
        }
        return Material::Shoe;
    }
    default:
        return shape.material;
    }
}

void Tint::colour(const Hit& hit, Sample& sample) const {
    const Shape& shape = *hit.shape;
    int detail = 0;
    const Material material = shape.group == Group::Object ? shape.material : cover(hit, detail);
    Look l = look(material);
    float open = hit.open;
    if (shape.group == Group::Head) {
        Vec3 paint;
        if (face(s_.head.local(hit.point), paint)) {
            l.base = paint;
            l.dark = paint * 0.85F;
        }
    }
    if (material == Material::PlateTop && hit.normal.z > 0.7F && std::fabs(hit.point.z - plateTop_) < 1) {
        // rubber studs in rows, and the shadow of whoever stands here
        const float gx = hit.point.x - 6.0F * std::round(hit.point.x / 6.0F);
        const float gy = hit.point.y - 6.0F * std::round(hit.point.y / 6.0F);
        if (std::max(std::fabs(hit.point.x), std::fabs(hit.point.y)) < 34.5F)
            l.base = l.base * (std::hypot(gx, gy) < 1.5F ? 0.80F : 0.93F);
        open = std::min(open + 0.15F, 1.0F) *
               (1 - 0.55F * plateShadow_.at(hit.point - Vec3{light_.x, light_.y, 0} * -3.0F));
    }
    if (hit.tint > 0) {
        const float t = hit.tint * 0.88F;
        l.base = mix(l.base, warmLight, t);
        l.dark = mix(l.dark, warmDark, t);
    }
    const float lambert = dot(hit.normal, light_);
    const float lit = smoothstep(-0.55F, 0.85F, lambert);
    const float fold = 0.45F + 0.55F * smoothstep(0.05F, 0.8F, open);
    Vec3 c = mix(l.dark, l.base, lit * (0.4F + 0.6F * fold));
    c = c * (0.78F + 0.22F * fold);
    if (l.gloss > 0) {
        const Vec3 half = unit(light_ - camera_.into);
        const float shine = std::pow(std::max(0.0F, dot(hit.normal, half)), 28.0F);
        c = mix(c, {1, 1, 1}, shine * l.gloss);
    }
    // light that comes round from the back parts near limbs from far ones
    const float rim = 1 + dot(hit.normal, camera_.into);
    c = mix(c, mix(l.base, {1, 1, 1}, 0.3F), 0.28F * rim * rim * rim * smoothstep(-0.2F, 0.6F, -lambert));
    sample.colour = packed(c);
    sample.key =
        static_cast<std::uint16_t>(static_cast<int>(material) + 32 * (static_cast<int>(shape.group) + 1));
    if (shape.group == Group::HandLeft || shape.group == Group::HandRight) { // no line across the wrist
        sample.key =
            static_cast<std::uint16_t>(static_cast<int>(material) + 32 * (static_cast<int>(shape.group) - 1));
    }
    if (shape.group == Group::Torso && (material == Material::Shirt || material == Material::Shorts))
        sample.key = static_cast<std::uint16_t>(static_cast<int>(material));
    const bool limb = shape.group >= Group::ArmLeft && shape.group <= Group::LegRight;
    if (limb && (material == Material::Shirt || material == Material::Shorts)) // one garment, one key
        sample.key = static_cast<std::uint16_t>(static_cast<int>(material));
    if (shape.group == Group::Head || (shape.group == Group::Torso && material == Material::Skin))
        sample.key = static_cast<std::uint16_t>(static_cast<int>(material) + 32 * 2);
}

Ghost::Ghost(const Camera& camera) : light_(lightOf(camera)) {}

void Ghost::colour(const Hit& hit, Sample& sample) const {
    const float lit = smoothstep(-0.7F, 0.9F, dot(hit.normal, light_));
    sample.colour = packed(mix(rgb(172, 186, 206), rgb(226, 233, 242), lit));
    sample.key = 1;
}

} // namespace figures
