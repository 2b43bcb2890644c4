#pragma once

#include "Camera.h"
#include "Field.h"

#include <QImage>

namespace figures {

/// What one ray met.
struct Hit {
    float depth = 1e9F;
    const Shape* shape = nullptr; ///< nothing: the ray left the picture
    Vec3 point;
    Vec3 normal;
    float tint = 0;
    float open = 1; ///< 1 open to the light, 0 deep in a fold
};

/// One pixel of a traced picture.
struct Sample {
    float depth = 1e9F;    ///< far away where the ray met nothing
    QRgb colour = 0;       ///< transparent where the ray met nothing
    std::uint16_t key = 0; ///< surfaces with different keys are parted by a line
};

/// A traced picture, one sample a pixel of its camera.
struct SampleMap {
    int width = 0;
    int height = 0;
    std::vector<Sample> samples;
    SampleMap(int w, int h)
        : width(w), height(h), samples(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {}
    const Sample& at(int x, int y) const { return samples[index(x, y)]; }
    Sample& at(int x, int y) { return samples[index(x, y)]; }

private:
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    }
};

/// Gives what a ray met its colour.
class Surface {
public:
    virtual ~Surface() = default;
    virtual void colour(const Hit& hit, Sample& sample) const = 0;
};

/// Follows one ray for each pixel through the shapes (sphere tracing), tile by tile, so that a ray asks only
/// the shapes near its tile.
class Tracer {
public:
    Tracer(const Shapes& shapes, const Joints& joints, std::uint32_t trained)
        : shapes_(shapes), joints_(joints), trained_(trained) {}

    /// Traces every pixel of `camera`, then `fine` x `fine` rays where a pixel and its neighbours differ;
    /// calm pixels are filled in. The map has `fine` times the camera's pixels.
    SampleMap trace(const Camera& camera, const Surface& surface, int fine) const;

private:
    struct Flat;  // a shape on the picture
    struct Tile { // the shapes near a tile, and where rays through it may meet them
        Field::List list;
        float nearest = 1e9F;
        float farthest = -1e9F;
    };
    std::vector<Flat> flatten(const Camera& camera) const;
    Tile tileAt(const Camera& camera, const std::vector<Flat>& flat, int x0, int y0) const;
    bool ray(const Camera& camera, const Surface& surface, const Tile& tile, float x, float y, Sample& sample,
             Vec3& normal) const;

    const Shapes& shapes_;
    const Joints& joints_;
    std::uint32_t trained_;
};

} // namespace figures
