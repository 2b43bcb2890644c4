#include "Anatomy.h"

namespace figures {
namespace {

/// Collects the shapes of one body; every place is given in the frame of the bone it hangs on.
class Builder {
public:
    explicit Builder(const Skeleton& skeleton) : s_(skeleton) {}

    Shapes build() {
        torso();
        head();
        for (int side : {Left, Right}) {
            shoulder(side);
            arm(side);
            hand(side);
            hip(side);
            thigh(side);
            shank(side);
            shoe(side);
        }
        std::stable_sort(shapes_.begin(), shapes_.end(),
                         [](const Shape& l, const Shape& r) { return l.group < r.group; });
        return shapes_;
    }

private:
    Shape& add(Group group, Part part, Material material, const Vec3& a, float ra, const Vec3& b, float rb,
               std::string_view muscle = {}) {
        Shape& shape = shapes_.emplace_back(Shape::cone(a, ra, b, rb));
        shape.group = group;
        shape.part = part;
        shape.material = material;
        if (const auto index = muscleIndex(muscle))
            shape.muscle = static_cast<std::int8_t>(*index);
        return shape;
    }
    static Group sidedGroup(Group left, int side) {
        return static_cast<Group>(static_cast<int>(left) + side);
    }
    const LegBones& leg(int side) const { return s_.leg[static_cast<std::size_t>(side)]; }
    const ArmBones& armOf(int side) const { return s_.arm[static_cast<std::size_t>(side)]; }

    void torso() {
        const auto& p = s_.pelvis;
        const auto& w = s_.waist;
        const auto& c = s_.chest;
        const auto g = Group::Torso;
        add(g, Part::Pelvis, Material::Shorts, p.point({-0.5F, 5.2F, 4.5F}), 9.4F,
            p.point({-0.5F, -5.2F, 4.5F}), 9.4F);
        for (int side : {Left, Right}) {
            const float o = outward(side);
            add(g, Part::Pelvis, Material::Shirt, p.point({0, 3.8F * o, 9}), 8.8F, w.point({0, 3.6F * o, 7}),
                8.6F);
            add(g, Part::Chest, Material::Shirt, w.point({0, 3.6F * o, 6}), 8.6F, c.point({0, 4.2F * o, 5}),
                9.0F);
            add(g, Part::Chest, Material::Shirt, c.point({0, 4.2F * o, 5}), 9.0F,
                c.point({-0.4F, 5.6F * o, 16}), 9.6F);
            add(g, Part::Chest, Material::Shirt, c.point({-0.8F, 6.5F * o, 18}), 7.8F,
                c.point({-1.2F, 8.5F * o, 21.5F}), 5.6F);
            add(g, Part::Pelvis, Material::Shirt, p.point({5.3F, 3.4F * o, 6.5F}), 3.9F,
                w.point({5.5F, 3.4F * o, 5}), 3.9F, "ADD");
            add(g, Part::Chest, Material::Shirt, w.point({5.5F, 3.4F * o, 5}), 3.9F,
                c.point({5.8F, 3.4F * o, 6}), 4.0F, "ADD");
            add(g, Part::Pelvis, Material::Shirt, p.point({0.8F, 8.8F * o, 9.5F}), 4.6F,
                w.point({0.8F, 8.2F * o, 5}), 4.8F, "FI1");
            add(g, Part::Chest, Material::Shirt, w.point({0.8F, 8.2F * o, 5}), 4.8F,
                c.point({1.0F, 9.2F * o, 4}), 4.8F, "FI1");
            add(g, Part::Pelvis, Material::Shirt, p.point({-6.3F, 3.4F * o, 8}), 3.8F,
                w.point({-6.3F, 3.4F * o, 4}), 3.6F, "ERE");
            add(g, Part::Chest, Material::Shirt, w.point({-6.3F, 3.4F * o, 4}), 3.6F,
                c.point({-7.2F, 3.5F * o, 9}), 3.6F, "ERE");
            add(g, Part::Chest, Material::Shirt, w.point({-4.2F, 6.8F * o, 4}), 4.4F,
                c.point({-4.8F, 8.8F * o, 8}), 5.2F, "DOR");
            add(g, Part::Chest, Material::Shirt, c.point({-4.8F, 8.8F * o, 8}), 5.2F,
                c.point({-3.6F, 11.6F * o, 16.5F}), 4.8F, "DOR");
            add(g, Part::Chest, Material::Shirt, c.point({6.0F, 5.2F * o, 14}), 4.8F,
                c.point({4.2F, 10.5F * o, 18}), 4.8F, "PET");
            add(g, Part::Chest, Material::Shirt, c.point({-6.8F, 2.2F * o, 14}), 3.2F,
                c.point({-5.2F, 4.2F * o, 22.5F}), 4.2F, "TRA");
        }
        add(g, Part::Chest, Material::Skin, c.point({-1.6F, 0, 25}), 5.6F, s_.head.point({-0.8F, 0, 3}),
            5.3F);
    }

    void head() {
        const auto& h = s_.head;
        const auto g = Group::Head;
        const auto skin = Material::Skin;
        add(g, Part::Head, skin, h.point({-1.4F, 0, 10.6F}), 8.4F, h.point({1.6F, 0, 10.4F}), 8.0F);
        add(g, Part::Head, skin, h.point({3.0F, 0, 8.6F}), 6.7F, h.point({4.6F, 0, 3.0F}), 4.6F);
        add(g, Part::Head, skin, h.point({4.6F, 0, 3.0F}), 4.4F, h.point({5.6F, 0, 0.6F}), 3.0F);
        for (int side : {Left, Right}) {
            const float o = outward(side);
            add(g, Part::Head, skin, h.point({0.6F, 3.6F * o, 4.4F}), 3.4F, h.point({4.6F, 1.4F * o, 1.2F}),
                3.0F);
            add(g, Part::Head, skin, h.point({-0.4F, 8.0F * o, 8.4F}), 1.5F, h.point({-0.2F, 7.6F * o, 6.0F}),
                1.1F);
        }
        add(g, Part::Head, skin, h.point({9.2F, 0, 8.6F}), 0.8F, h.point({10.6F, 0, 6.0F}), 1.15F);
        for (int i = 0; i < 2; ++i) {
            Shape& hair = i == 0 ? add(Group::Hair, Part::Head, Material::Hair, h.point({-2.0F, 0, 11.2F}),
                                       9.0F, h.point({1.2F, 0, 12.0F}), 8.3F)
                                 : add(Group::Hair, Part::Head, Material::Hair, h.point({-3.6F, 0, 9.0F}),
                                       7.8F, h.point({-4.2F, 0, 4.4F}), 5.4F);
            const Vec3 normal = h.direction(unit({0.80F, 0, -0.60F}));
            hair.cut(normal, dot(normal, h.point({6.2F, 0, 15.2F})));
        }
    }

    void shoulder(int side) {
        const auto& u = armOf(side).upper;
        const auto& c = s_.chest;
        const float o = outward(side);
        const auto g = sidedGroup(Group::ArmLeft, side);
        add(Group::Torso, Part::Chest, Material::Shirt, c.point({-2.2F, 2.6F * o, 29.5F}), 3.4F,
            u.from + c.direction({-0.8F, -2.5F * o, 1.4F}), 4.0F, "TRA");
        add(g, sided(Part::UpperArm, side), Material::Skin, u.from + c.direction({0.9F, 0.4F * o, 0.2F}),
            5.3F, u.point(0.34F, 0.9F, 1.2F), 4.1F, "DAL");
        add(g, sided(Part::UpperArm, side), Material::Skin, u.from + c.direction({-2.6F, 0.0F, -0.4F}), 4.5F,
            u.point(0.28F, -1.4F, 0.9F), 3.7F, "DEP");
    }

    void arm(int side) {
        const auto& a = armOf(side);
        const auto g = sidedGroup(Group::ArmLeft, side);
        const auto upper = sided(Part::UpperArm, side);
        const auto fore = sided(Part::Forearm, side);
        const auto skin = Material::Skin;
        add(g, upper, skin, a.upper.point(0.1F, 0, 0), 4.2F, a.upper.point(1, 0, 0), 3.4F);
        add(g, upper, skin, a.upper.point(0.36F, 1.7F, 0.2F), 3.0F, a.upper.point(0.58F, 1.8F, 0.1F), 3.2F,
            "BIC");
        add(g, upper, skin, a.upper.point(0.58F, 1.8F, 0.1F), 3.2F, a.upper.point(0.86F, 1.0F, 0), 2.7F,
            "BIC");
        add(g, upper, skin, a.upper.point(0.20F, -1.7F, 0), 3.2F, a.upper.point(0.50F, -2.0F, 0.2F), 3.2F,
            "TRI");
        add(g, upper, skin, a.upper.point(0.50F, -2.0F, 0.2F), 3.2F, a.upper.point(0.90F, -1.0F, 0.1F), 2.6F,
            "TRI");
        add(g, fore, skin, a.lower.from, 3.4F, a.lower.point(0.28F, 0.5F, 0.3F), 3.9F);
        add(g, fore, skin, a.lower.point(0.28F, 0.5F, 0.3F), 3.9F, a.lower.to, 2.5F);
    }

    void hand(int side) {
        const auto& h = armOf(side).hand;
        const auto shape = armOf(side).shape;
        const auto g = sidedGroup(Group::HandLeft, side);
        const auto part = sided(Part::Hand, side);
        const auto skin = Material::Skin;
        add(g, part, skin, h.origin, 2.4F, h.point({3, 0, 0}), 2.2F);
        for (float y : {-2.3F, 0.0F, 2.3F})
            add(g, part, skin, h.point({2, y * 0.7F, 0}), 1.7F, h.point({8.2F, y, 0}), 1.45F);
        const bool grip = shape == ArmPose::Grip;
        const bool open = shape == ArmPose::Open;
        const float bend1 = radians(grip ? 45.0F : open ? 3.0F : 28.0F);
        const float bend2 = radians(grip ? 150.0F : open ? 5.0F : 62.0F);
        const std::array<float, 4> reach = {0.82F, 0.96F, 1.0F, 0.92F}; // little finger to index
        for (std::size_t i = 0; i < reach.size(); ++i) {
            const float y = -3.0F + 2.0F * static_cast<float>(i);
            const float l1 = 4.1F * reach[i];
            const float l2 = (grip ? 3.4F : 4.2F) * reach[i];
            const Vec3 root{8.7F, y, 0};
            const Vec3 mid = root + Vec3{l1 * std::cos(bend1), open ? y * 0.06F : 0, -l1 * std::sin(bend1)};
            const Vec3 tip = mid + Vec3{l2 * std::cos(bend2), open ? y * 0.06F : 0, -l2 * std::sin(bend2)};
            add(g, part, skin, h.point(root), 1.15F, h.point(mid), 1.0F);
            add(g, part, skin, h.point(mid), 1.0F, h.point(tip), 0.85F);
        }
        const Vec3 t0{2.6F, 2.2F, -0.4F};
        const Vec3 t1 = grip   ? Vec3{6.4F, 3.9F, -2.6F}
                        : open ? Vec3{5.6F, 4.8F, -0.3F}
                               : Vec3{6.2F, 3.9F, -1.2F};
        const Vec3 t2 = grip   ? Vec3{9.2F, 3.0F, -5.0F}
                        : open ? Vec3{8.4F, 6.0F, -0.3F}
                               : Vec3{8.8F, 3.7F, -2.4F};
        add(g, part, skin, h.point(t0), 1.6F, h.point(t1), 1.2F);
        add(g, part, skin, h.point(t1), 1.2F, h.point(t2), 0.95F);
    }

    void hip(int side) {
        const auto& t = leg(side).thigh;
        const auto& p = s_.pelvis;
        const float o = outward(side);
        add(Group::Torso, Part::Pelvis, Material::Shorts, p.point({-5.4F, 6.8F * o, 3.2F}), 7.2F,
            mix(p.point({-4.6F, 7.8F * o, -4.0F}), t.point(0.13F, -4.6F, 0.6F), 0.55F), 7.4F, "GLU");
        add(Group::Torso, Part::Pelvis, Material::Shorts, p.point({2.6F, 10.0F * o, 6.5F}), 4.8F,
            t.point(0.13F, 2.2F, 2.6F), 5.8F, "FI2");
    }

    void thigh(int side) {
        const auto& t = leg(side).thigh;
        const auto g = sidedGroup(Group::LegLeft, side);
        const auto part = sided(Part::Thigh, side);
        const auto skin = Material::Skin;
        add(g, part, skin, t.from, 7.6F, t.point(1, 0, 0), 5.1F);
        add(g, part, skin, t.point(0.10F, 2.4F, 0.8F), 6.0F, t.point(0.48F, 3.3F, 0.8F), 5.5F, "QUA");
        add(g, part, skin, t.point(0.48F, 3.3F, 0.8F), 5.5F, t.point(0.90F, 1.5F, 0.3F), 4.2F, "QUA");
        add(g, part, skin, t.point(0.66F, 2.2F, -1.9F), 3.6F, t.point(0.88F, 1.6F, -1.8F), 3.2F, "QUA");
        add(g, part, skin, t.point(0.14F, -3.2F, -2.4F), 5.0F, t.point(0.55F, -3.4F, -2.0F), 4.2F, "ICI");
        add(g, part, skin, t.point(0.55F, -3.4F, -2.0F), 4.2F, t.point(0.95F, -1.6F, -2.4F), 2.8F, "ICI");
        add(g, part, skin, t.point(0.14F, -3.2F, 2.0F), 5.0F, t.point(0.55F, -3.4F, 2.0F), 4.2F, "ICE");
        add(g, part, skin, t.point(0.55F, -3.4F, 2.0F), 4.2F, t.point(0.95F, -1.6F, 2.4F), 2.8F, "ICE");
        add(g, part, skin, t.point(0.05F, 0.4F, -3.2F), 5.2F, t.point(0.62F, 0.0F, -2.9F), 3.9F, "ADU");
        add(g, part, skin, t.point(0.10F, 0.0F, 3.6F), 4.9F, t.point(0.86F, 0.2F, 2.8F), 3.2F, "FI3");
    }

    void shank(int side) {
        const auto& k = leg(side).shank;
        const auto g = sidedGroup(Group::LegLeft, side);
        const auto part = sided(Part::Shank, side);
        const auto skin = Material::Skin;
        const auto& t = leg(side).thigh;
        add(g, part, skin, mix(t.point(0.99F, 1.6F, 0), k.point(0.01F, 1.6F, 0), 0.5F), 4.3F,
            k.point(0.1F, 0.8F, 0), 4.2F);
        add(g, part, skin, k.point(0.05F, 0, 0), 4.7F, k.point(1, 0, 0), 3.1F);
        add(g, part, skin, k.point(0.10F, -1.6F, -1.8F), 3.6F, k.point(0.36F, -2.3F, -1.7F), 3.7F, "POL");
        add(g, part, skin, k.point(0.10F, -1.6F, 1.7F), 3.6F, k.point(0.33F, -2.2F, 1.7F), 3.6F, "POL");
        add(g, part, skin, k.point(0.34F, -1.9F, 0), 4.1F, k.point(0.86F, -0.9F, 0), 2.5F, "POL");
    }

    void shoe(int side) {
        const auto& l = leg(side);
        const auto& f = l.foot;
        const auto g = sidedGroup(Group::ShoeLeft, side);
        const auto part = sided(Part::Foot, side);
        const float o = outward(side);
        const float sole = dot(f.az, f.point({0, 0, -body::ankleHeight}));
        const auto rear = [&](const Vec3& a, float ra, const Vec3& b, float rb) {
            add(g, part, Material::Shoe, f.point(a), ra, f.point(b), rb).cut(-f.az, -sole);
        };
        rear({-0.6F, 0, -0.6F}, 4.2F, {-1.4F, 0, -4.6F}, 4.6F);
        rear({-1.6F, 0, -5.0F}, 4.6F, {5.5F, -0.2F * o, -5.0F}, 4.3F);
        rear({1.0F, 0, -2.8F}, 4.2F, {10.0F, -0.4F * o, -5.8F}, 3.9F);
        rear({6.0F, 0.6F * o, -5.6F}, 3.9F, {body::ballAhead, 0.9F * o, -6.0F}, 3.9F);
        rear({6.0F, -0.8F * o, -5.6F}, 3.8F, {body::ballAhead, -1.2F * o, -6.0F}, 3.7F);

        Frame toe = f.at(f.point({body::ballAhead, 0, -body::ankleHeight + 1.0F}));
        toe = toe.turned(0, -l.toeFlex, 0);
        const float toeSole = dot(toe.az, toe.point({0, 0, -1.0F}));
        for (float y : {-1.2F, 0.9F}) {
            Shape& s = add(g, part, Material::Shoe, toe.point({0, y * o, 1.6F}), 3.8F,
                           toe.point({body::toeLength - 3.4F, y * 0.6F * o - 0.5F * o, 1.2F}), 3.3F);
            s.cut(-toe.az, -toeSole);
        }
    }

    const Skeleton& s_;
    Shapes shapes_;
};

} // namespace

Shapes anatomy(const Skeleton& skeleton) {
    return Builder(skeleton).build();
}

} // namespace figures
