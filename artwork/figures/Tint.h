#pragma once

#include "Shadow.h"
#include "Tracer.h"

namespace figures {

/// Colours of the series: clothes, skin, machine, the warm tint of trained muscles, one light from the upper
/// left.
class Tint : public Surface {
public:
    Tint(const Skeleton& skeleton, const Camera& camera, const Shadow& plateShadow, float plateTop);
    void colour(const Hit& hit, Sample& sample) const override;

private:
    struct Look {
        Vec3 base;
        Vec3 dark; ///< colour in the shade
        float gloss = 0;
    };
    static Look look(Material material);
    /// Skin or cloth, face or hair: what the place of a body shape shows.
    Material cover(const Hit& hit, int& detail) const;
    bool face(const Vec3& local, Vec3& base) const;

    const Skeleton& s_;
    const Camera& camera_;
    const Shadow& plateShadow_;
    float plateTop_;
    Vec3 light_;
};

/// The pale second position of a movement.
class Ghost : public Surface {
public:
    explicit Ghost(const Camera& camera);
    void colour(const Hit& hit, Sample& sample) const override;

private:
    Vec3 light_;
};

} // namespace figures
