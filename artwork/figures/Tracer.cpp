#include "Tracer.h"

namespace figures {
namespace {

constexpr int tileSize = 8;
/// Shapes this far beside a tile still shade it (folds, soft joins), in cm.
constexpr float margin = 3.5F;
constexpr float touch = 0.025F;

float toSegment(float px, float py, float ax, float ay, float bx, float by) {
    const float dx = bx - ax;
    const float dy = by - ay;
    const float l2 = dx * dx + dy * dy;
    const float t = l2 > 0 ? std::clamp(((px - ax) * dx + (py - ay) * dy) / l2, 0.0F, 1.0F) : 0.0F;
    return std::hypot(px - ax - dx * t, py - ay - dy * t);
}

std::size_t at(int row, int width, int column) {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(width) + static_cast<std::size_t>(column);
}

/// Whether the pixel continues its neighbour: same surface, colour and plane.
bool calm(const Sample& a, const Sample& b, float predicted) {
    if (qAlpha(a.colour) != qAlpha(b.colour) || a.key != b.key)
        return false;
    if (qAlpha(a.colour) == 0)
        return true;
    const int change = std::abs(qRed(a.colour) - qRed(b.colour)) +
                       std::abs(qGreen(a.colour) - qGreen(b.colour)) +
                       std::abs(qBlue(a.colour) - qBlue(b.colour));
    return change < 40 && std::fabs(b.depth - predicted) < 0.3F;
}

} // namespace

struct Tracer::Flat {
    float ax, ay, bx, by, reach, nearest, farthest;
};

std::vector<Tracer::Flat> Tracer::flatten(const Camera& camera) const {
    std::vector<Flat> flat;
    flat.reserve(shapes_.size());
    for (const auto& s : shapes_) {
        const float za = camera.depth(s.a);
        const float zb = camera.depth(s.b);
        flat.push_back({camera.x(s.a), camera.y(s.a), camera.x(s.b), camera.y(s.b), s.reach,
                        std::min(za, zb) - s.reach, std::max(za, zb) + s.reach});
    }
    return flat;
}

Tracer::Tile Tracer::tileAt(const Camera& camera, const std::vector<Flat>& flat, int x0, int y0) const {
    Tile tile;
    const float radius = tileSize * 0.7072F;
    const auto cx = static_cast<float>(x0) + tileSize / 2.0F;
    const auto cy = static_cast<float>(y0) + tileSize / 2.0F;
    for (std::size_t i = 0; i < flat.size(); ++i) {
        const Flat& f = flat[i];
        const float d = toSegment(cx, cy, f.ax, f.ay, f.bx, f.by) - radius;
        if (d > (f.reach + margin) * camera.scale)
            continue;
        tile.list.push_back(&shapes_[i]);
        if (d <= (f.reach + 0.8F) * camera.scale) { // soft joins swell a little
            tile.nearest = std::min(tile.nearest, f.nearest - 1);
            tile.farthest = std::max(tile.farthest, f.farthest + 1);
        }
    }
    if (tile.nearest >= tile.farthest)
        return tile;
    // one thick ray for the whole tile skips the empty room before the first surface
    const float thick = radius / camera.scale;
    const Vec3 middle = camera.start(cx, cy);
    for (int i = 0; i < 40 && tile.nearest < tile.farthest; ++i) {
        const float d = Field::distance(tile.list, joints_, middle + camera.into * tile.nearest) - thick;
        if (d < 0.4F)
            break;
        tile.nearest += d;
    }
    return tile;
}

bool Tracer::ray(const Camera& camera, const Surface& surface, const Tile& tile, float x, float y,
                 Sample& sample, Vec3& normal) const {
    const Vec3 from = camera.start(x, y);
    float t = tile.nearest;
    float d = 0;
    for (int i = 0; i < 60 && t < tile.farthest; ++i) {
        d = Field::distance(tile.list, joints_, from + camera.into * t);
        if (d < touch)
            break;
        t += d;
    }
    if (t >= tile.farthest || d > 0.3F)
        return false;
    Hit hit;
    hit.depth = t;
    hit.point = from + camera.into * t;
    hit.normal = Field::normal(tile.list, joints_, hit.point);
    const auto owner = Field::owner(tile.list, hit.point, trained_);
    hit.shape = owner.shape;
    hit.tint = owner.tint;
    const float near = Field::distance(tile.list, joints_, hit.point + hit.normal * 1.2F) / 1.2F;
    const float far = Field::distance(tile.list, joints_, hit.point + hit.normal * 3.2F) / 3.2F;
    hit.open = std::clamp(0.45F * near + 0.55F * far, 0.0F, 1.0F);
    sample.depth = t;
    surface.colour(hit, sample);
    normal = hit.normal;
    return true;
}

SampleMap Tracer::trace(const Camera& camera, const Surface& surface, int fine) const {
    SampleMap coarse(camera.width, camera.height);
    struct Slope {
        float x = 0, y = 0; ///< depth a pixel further
    };
    std::vector<Slope> slopes(coarse.samples.size());
    const auto flat = flatten(camera);
    const int across = (camera.width + tileSize - 1) / tileSize;
    std::vector<Tile> tiles;
    for (int y0 = 0; y0 < camera.height; y0 += tileSize) {
        for (int x0 = 0; x0 < camera.width; x0 += tileSize) {
            const Tile& tile = tiles.emplace_back(tileAt(camera, flat, x0, y0));
            if (tile.nearest >= tile.farthest)
                continue;
            for (int y = y0; y < std::min(y0 + tileSize, camera.height); ++y) {
                for (int x = x0; x < std::min(x0 + tileSize, camera.width); ++x) {
                    Vec3 n;
                    if (ray(camera, surface, tile, static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F,
                            coarse.at(x, y), n)) {
                        const float facing = std::min(dot(n, camera.into), -0.05F) * camera.scale;
                        slopes[at(y, camera.width, x)] = {-dot(n, camera.right) / facing,
                                                          dot(n, camera.up) / facing};
                    }
                }
            }
        }
    }
    if (fine == 1)
        return coarse;
    SampleMap map(camera.width * fine, camera.height * fine);
    for (int y = 0; y < camera.height; ++y) {
        for (int x = 0; x < camera.width; ++x) {
            const Sample& s = coarse.at(x, y);
            const Slope slope = slopes[at(y, camera.width, x)];
            bool quiet = true;
            for (int dy = -1; dy <= 1 && quiet; ++dy) {
                for (int dx = -1; dx <= 1 && quiet; ++dx) {
                    const int nx = std::clamp(x + dx, 0, camera.width - 1);
                    const int ny = std::clamp(y + dy, 0, camera.height - 1);
                    quiet = calm(s, coarse.at(nx, ny),
                                 s.depth + slope.x * static_cast<float>(nx - x) +
                                     slope.y * static_cast<float>(ny - y));
                }
            }
            if (quiet && qAlpha(s.colour) == 0)
                continue;
            const Tile& tile = tiles[at(y / tileSize, across, x / tileSize)];
            for (int sy = 0; sy < fine; ++sy) {
                for (int sx = 0; sx < fine; ++sx) {
                    Sample& out = map.at(x * fine + sx, y * fine + sy);
                    const float ox = (static_cast<float>(sx) + 0.5F) / static_cast<float>(fine);
                    const float oy = (static_cast<float>(sy) + 0.5F) / static_cast<float>(fine);
                    if (quiet) {
                        out = s;
                        out.depth += slope.x * (ox - 0.5F) + slope.y * (oy - 0.5F);
                    } else if (tile.nearest < tile.farthest) {
                        Vec3 n;
                        ray(camera, surface, tile, static_cast<float>(x) + ox, static_cast<float>(y) + oy,
                            out, n);
                    }
                }
            }
        }
    }
    return map;
}

} // namespace figures
