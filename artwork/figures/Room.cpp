#include "Room.h"

namespace figures {

float Support::topUnder(const Vec3& p, float margin) const {
    const Vec3 q = frame.local(p);
    if (std::fabs(q.x) > halfX - margin || std::fabs(q.y) > halfY - margin)
        return -1000;
    return frame.origin.z;
}

Room::Room(const Pose& pose) : column_(pose.column) {
    figure_ = Frame{}.turned(pose.facing, 0, 0);
    supports_.push_back({"floor", Frame{}, 1000, 1000});
    supports_.push_back({"plate", Frame{}.at({0, 0, pose.column ? plateTop : 12.0F}), plateHalf, plateHalf});
    platform(pose.column);
    for (const auto& a : pose.accessories)
        accessory(a);
}

const Support& Room::support(const std::string& name) const {
    for (const auto& s : supports_)
        if (s.name == name)
            return s;
    throw PoseError("nothing called \"" + name + "\" stands in the room");
}

Shape& Room::box(const Vec3& low, const Vec3& high, float edge, Material material) {
    Shape& s = shapes_.emplace_back(Shape::box(Frame{}.at((low + high) * 0.5F), (high - low) * 0.5F, edge));
    s.material = material;
    return s;
}

Shape& Room::tube(const Vec3& a, const Vec3& b, float radius, Material material) {
    Shape& s = shapes_.emplace_back(Shape::cone(a, radius, b, radius));
    s.material = material;
    return s;
}

void Room::platform(bool column) {
    const float top = support("plate").frame.origin.z;
    const float h = plateHalf;
    box({-h, -h, top - 3.2F}, {h, h, top}, 1.4F, Material::PlateTop);
    box({-h + 3, -h + 3, 1.5F}, {h - 3, h - 3, top - 4.2F}, 2.0F, Material::Plate);
    for (float x : {-1.0F, 1.0F})
        for (float y : {-1.0F, 1.0F})
            tube({x * (h - 8), y * (h - 8), 1.2F}, {x * (h - 8), y * (h - 8), 2.0F}, 3.2F, Material::Rubber);
    if (!column)
        return;
    box({h - 4, -17, 1.0F}, {h + 21, 17, top - 6.0F}, 3.0F, Material::Plate);
    // the column leans a little to the front, its console looks at the user
    const Frame lean = Frame{}.at({h + 11, 0, 66}).turned(0, -2, 0);
    Shape& post = shapes_.emplace_back(Shape::box(lean, {5.2F, 8.5F, 62}, 3.6F));
    post.material = Material::Column;
    Shape& stripe =
        shapes_.emplace_back(Shape::box(lean.at(lean.point({-4.6F, 0, 2})), {1.2F, 3.2F, 46}, 1.0F));
    stripe.material = Material::Accent;
    const Frame console = Frame{}.at({h + 5, 0, 132}).turned(0, -32, 0);
    Shape& head = shapes_.emplace_back(Shape::box(console, {3.2F, 14, 10}, 2.6F));
    head.material = Material::Plate;
    Shape& screen = shapes_.emplace_back(
        Shape::box(console.at(console.point({-2.7F, 0, 0.8F})), {0.9F, 10.5F, 6.6F}, 0.6F));
    screen.material = Material::Screen;
    // handlebar: cross tube, two short arms with grips, and the stay to the column
    const float z = barHeight;
    const float w = 31;
    tube({barX, -w + 5, z}, {barX, w - 5, z}, barRadius, Material::Steel);
    tube({barX, 0, z}, {h + 8, 0, z}, 2.6F, Material::Steel);
    for (float o : {-1.0F, 1.0F}) {
        tube({barX, o * (w - 5), z}, {barX - 3.5F, o * w, z}, barRadius, Material::Steel);
        tube({barX - 3.5F, o * w, z}, {barX - 9, o * w, z}, barRadius, Material::Steel);
        tube({barX - 9, o * w, z}, {barX - 20, o * w, z}, 2.0F, Material::Rubber);
    }
}

void Room::accessory(const Accessory& a) {
    Frame f = figure_.at(figure_.point(a.at)).turned(a.turn, 0, 0);
    const auto place = [&](const Vec3& middle, const Vec3& half, float edge, Material material) {
        Shape& s = shapes_.emplace_back(Shape::box(f.at(f.point(middle)), half, edge));
        s.material = material;
    };
    if (a.kind == "mat") {
        const float l = a.size > 0 ? a.size : 62;
        place({0, 0, 0.8F}, {l, 30, 0.8F}, 0.7F, Material::Mat);
        supports_.push_back({"mat", f.at(f.point({0, 0, 1.6F})), l, 30});
    } else if (a.kind == "step") {
        place({0, 0, 5}, {20, 34, 5}, 2.0F, Material::Cushion);
        place({0, 0, 9.4F}, {19, 33, 0.9F}, 0.8F, Material::Rubber);
        supports_.push_back({"step", f.at(f.point({0, 0, 10.2F})), 20, 34});
    } else if (a.kind == "bench") {
        const float l = a.size > 0 ? a.size : 26;
        place({0, 0, 41}, {l, 15, 4}, 2.4F, Material::Cushion);
        place({0, 0, 35.6F}, {l - 2, 11, 1.6F}, 1.0F, Material::Steel);
        for (float s : {-1.0F, 1.0F}) {
            place({s * (l - 6), 0, 18}, {2.0F, 2.4F, 18}, 1.2F, Material::Steel);
            place({s * (l - 6), 0, 1.6F}, {2.2F, 17, 1.6F}, 1.2F, Material::Steel);
        }
        supports_.push_back({"bench", f.at(f.point({0, 0, 45})), l, 15});
    } else if (a.kind == "ball") {
        Shape& s = shapes_.emplace_back(Shape::cone(f.origin, a.size, f.origin + Vec3{0, 0, 0.01F}, a.size));
        s.material = Material::Ball;
    } else if (a.kind != "straps" && a.kind != "dumbbells" && a.kind != "stick") {
        throw PoseError("unknown accessory \"" + a.kind + "\"");
    }
}

bool Room::stick(const Pose& pose, const Skeleton& skeleton, Vec3& middle, Vec3& direction) {
    for (const auto& a : pose.accessories) {
        if (a.kind == "stick") {
            middle = skeleton.chest.point({a.at.x, 0, a.at.z});
            direction = skeleton.chest.ay;
            return true;
        }
    }
    return false;
}

Shapes Room::held(const Pose& pose, const Skeleton& skeleton) const {
    Shapes out;
    const auto add = [&out](const Vec3& a, const Vec3& b, float r, Material m) {
        out.push_back(Shape::cone(a, r, b, r));
        out.back().material = m;
    };
    for (const auto& a : pose.accessories) {
        for (int side : {Left, Right}) {
            if (!(side == Left ? a.left : a.right))
                continue;
            const Frame& hand = skeleton.arm[static_cast<std::size_t>(side)].hand;
            const Vec3 grip = skeleton.gripPoint(side);
            if (a.kind == "dumbbells") {
                add(grip - hand.ay * 7, grip + hand.ay * 7, 1.5F, Material::Steel);
                for (float s : {-1.0F, 1.0F}) {
                    add(grip + hand.ay * (7.2F * s), grip + hand.ay * (9.6F * s), 4.6F, Material::Rubber);
                    out.back().cut(hand.ay * s, dot(hand.ay * s, grip) + 11.6F);
                }
            } else if (a.kind == "straps") {
                // anchored in the plate's upper edge, on the side of the hand
                const float ahead = a.at.x;
                const Vec3 anchor = figure_.point({ahead, outward(side) * (a.at.y > 0 ? a.at.y : 22.0F), 0}) +
                                    Vec3{0, 0, support("plate").frame.origin.z + 0.4F};
                const float l = length(grip - anchor);
                if (l < 20 || l > 215)
                    throw PoseError("a strap would be " + std::to_string(static_cast<int>(l)) + " cm long");
                add(anchor, grip, 1.0F, Material::Strap);
                add(anchor - Vec3{0, 0, 0.6F}, anchor + Vec3{0, 0, 0.2F}, 2.2F, Material::Steel);
                add(grip - hand.ay * 6, grip + hand.ay * 6, 1.6F, Material::Rubber);
            }
        }
    }
    Vec3 middle;
    Vec3 direction;
    if (stick(pose, skeleton, middle, direction))
        add(middle - direction * 62, middle + direction * 62, 1.5F, Material::Wood);
    return out;
}

} // namespace figures
