#include "Composer.h"

#include "Anatomy.h"
#include "Lines.h"
#include "PoseCheck.h"
#include "Signs.h"
#include "Solver.h"
#include "Tint.h"

namespace figures {
namespace {

/// Least and greatest pixels per centimetre: all figures of the series have nearly the same size.
constexpr float smallestScale = 3.0F;
constexpr float largestScale = 5.2F;
constexpr float border = 24;

struct Bounds {
    float left = 1e9F, right = -1e9F, low = 1e9F, high = -1e9F;
    void take(const Shapes& shapes, const Camera& c) {
        for (const auto& s : shapes) {
            if (s.isBox) {
                const Vec3 h = s.half + Vec3{s.ra, s.ra, s.ra};
                for (int corner = 0; corner < 8; ++corner) {
                    take(s.frame.point({(corner & 1) != 0 ? h.x : -h.x, (corner & 2) != 0 ? h.y : -h.y,
                                        (corner & 4) != 0 ? h.z : -h.z}),
                         0, c);
                }
            } else {
                take(s.a, s.ra, c);
                take(s.b, s.rb, c);
            }
        }
    }
    void take(const Vec3& p, float r, const Camera& c) {
        left = std::min(left, dot(p, c.right) - r);
        right = std::max(right, dot(p, c.right) + r);
        low = std::min(low, dot(p, c.up) - r);
        high = std::max(high, dot(p, c.up) + r);
    }
};

void fit(Camera& camera, const Bounds& b, bool small) {
    const float w = (static_cast<float>(camera.width) - 2 * border) / (b.right - b.left);
    const float h = (static_cast<float>(camera.height) - 2 * border) / (b.high - b.low);
    camera.scale = std::min({w, h, small ? 100.0F : largestScale});
    if (!small && camera.scale < smallestScale) {
        throw PoseError("the figure leaves the frame: " + std::to_string(static_cast<int>(b.right - b.left)) +
                        " x " + std::to_string(static_cast<int>(b.high - b.low)) + " cm do not fit");
    }
    camera.middleX = (b.left + b.right) / 2;
    camera.middleY = (b.low + b.high) / 2;
}

/// The shadow on the floor, painted on the white ground.
void ground(QImage& image, const Camera& camera, const Shapes& shapes, const Joints& joints) {
    const Shadow shadow(shapes, joints, {0, 0, 0}, 230, 230, 0, 4);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const Vec3 from = camera.start(static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F);
            const Vec3 p = from + camera.into * (-from.z / camera.into.z);
            if (std::fabs(p.x) > 226 || std::fabs(p.y) > 226)
                continue;
            const float dark = 0.34F * shadow.at(p - Vec3{camera.right.x, camera.right.y, 0} * 2.5F);
            if (dark > 0.004F) {
                const auto grey = [dark](float to) { return static_cast<int>(255 - (255 - to) * dark); };
                line[x] = qRgb(grey(70), grey(80), grey(100));
            }
        }
    }
}

/// Lays `over` on `base`; where `depths` of the picture below are nearer, the lower one stays.
void layGhost(SampleMap& picture, const SampleMap& ghost) {
    for (std::size_t i = 0; i < picture.samples.size(); ++i) {
        const Sample& g = ghost.samples[i];
        Sample& p = picture.samples[i];
        const bool body = qAlpha(p.colour) != 0 && (p.key & 0x8000) == 0;
        if (qAlpha(g.colour) == 0 || body || g.depth > p.depth + 0.5F)
            continue;
        if (qAlpha(p.colour) == 0) {
            p.colour = qRgba(qRed(g.colour), qGreen(g.colour), qBlue(g.colour), 190);
        } else {
            const auto blend = [](int a, int b) { return (a * 5 + b * 5) / 10; };
            p.colour = qRgba(blend(qRed(p.colour), qRed(g.colour)), blend(qGreen(p.colour), qGreen(g.colour)),
                             blend(qBlue(p.colour), qBlue(g.colour)), 255);
        }
    }
}

/// The way a joint takes from one position to the other, shifted as the arrow asks. An arrow with one head
/// points to the position that is trained.
std::vector<Vec3> roadOf(const Arrow& arrow, const Pose& pose, const Solver& solver, const Skeleton& first,
                         const Skeleton& second, const Camera& camera) {
    constexpr int steps = 12;
    std::vector<Vec3> road;
    for (int i = 0; i <= steps; ++i) {
        const bool end = i == 0 || i == steps;
        if (!end && !Solver::alike(pose.body, pose.second))
            continue; // a limb changes its hold: the road goes straight
        const float t = static_cast<float>(i) / steps;
        const Vec3 p = end ? (i == 0 ? first : second).joint(arrow.point)
                           : solver.solve(Solver::between(pose.body, pose.second, t)).joint(arrow.point);
        road.push_back(p + camera.right * arrow.dx + camera.up * arrow.dy);
    }
    if (!arrow.both)
        std::reverse(road.begin(), road.end());
    return road;
}

} // namespace

QImage Composer::draw(const Pose& pose, std::uint32_t trained, int wide, int high, int fine) {
    const Room room(pose);
    const Solver solver(room, pose);
    const Skeleton skeleton = solver.solve(pose.body);
    PoseCheck::joints(skeleton);
    Shapes body = anatomy(skeleton);
    PoseCheck::contact(body, skeleton, room);
    Shapes things = room.shapes();
    const Shapes held = room.held(pose, skeleton);
    things.insert(things.end(), held.begin(), held.end());

    Skeleton moved = skeleton;
    Shapes ghostBody;
    if (pose.hasSecond) {
        try {
            moved = solver.solve(pose.second);
            PoseCheck::joints(moved);
            ghostBody = anatomy(moved);
            PoseCheck::contact(ghostBody, moved, room);
            const Shapes ghostHeld = room.held(pose, moved);
            ghostBody.insert(ghostBody.end(), ghostHeld.begin(), ghostHeld.end());
        } catch (const PoseError& e) {
            throw PoseError(std::string("second position: ") + e.what());
        }
    }

    const bool small = wide != width || high != height;
    Camera camera = Camera::from(pose.facing + pose.azimuth, pose.pitch);
    camera.width = wide;
    camera.height = high;
    Bounds bounds;
    bounds.take(body, camera);
    bounds.take(things, camera);
    bounds.take(ghostBody, camera);
    std::vector<std::vector<Vec3>> roads;
    for (const auto& arrow : pose.arrows) {
        const auto& road = roads.emplace_back(roadOf(arrow, pose, solver, skeleton, moved, camera));
        for (const Vec3& p : road)
            bounds.take(p, 7, camera);
    }
    fit(camera, bounds, small);

    const Joints joints = Joints::of(skeleton);
    const float plateTop = room.support("plate").frame.origin.z;
    Shapes casters = body;
    casters.insert(casters.end(), held.begin(), held.end());
    for (const auto& s : room.shapes())
        if (s.material == Material::Ball || s.material == Material::Cushion || s.material == Material::Column)
            casters.push_back(s);
    const Shadow plateShadow(casters, joints, {0, 0, plateTop}, Room::plateHalf, Room::plateHalf, plateTop,
                             1.5F);

    Shapes all = body;
    all.insert(all.end(), things.begin(), things.end());
    const Tint tint(skeleton, camera, plateShadow, plateTop);
    SampleMap picture = Tracer(all, joints, trained).trace(camera, tint, fine);
    Lines::draw(picture, fine);
    if (pose.hasSecond && pose.ghost) {
        const Ghost pale(camera);
        SampleMap second = Tracer(ghostBody, Joints::of(moved), 0).trace(camera, pale, fine);
        Lines::draw(second, fine);
        layGhost(picture, second);
    }

    QImage image(wide, high, QImage::Format_RGB32);
    image.fill(Qt::white);
    ground(image, camera, all, joints);
    Lines::reduce(picture, fine, image);

    for (std::size_t i = 0; i < roads.size(); ++i) {
        std::vector<QPointF> road;
        for (const Vec3& p : roads[i])
            road.emplace_back(camera.x(p), camera.y(p));
        Signs::arrow(image, road, pose.arrows[i].both);
    }
    if (pose.forbidden)
        Signs::forbidden(image);
    return image;
}

} // namespace figures
