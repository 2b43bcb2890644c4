#include "Skeleton.h"

namespace figures {

Vec3 Skeleton::gripPoint(int side) const {
    const auto& h = arm[static_cast<std::size_t>(side)].hand;
    return h.point({body::grip, 0, -2.6F});
}

Vec3 Skeleton::joint(const std::string& name) const {
    if (name == "pelvis")
        return pelvis.origin;
    if (name == "chest")
        return chest.point({0, 0, 14});
    if (name == "head")
        return head.point({0, 0, 9});
    const auto dotAt = name.find('.');
    const std::string side = dotAt == std::string::npos ? "" : name.substr(dotAt + 1);
    if (side == "left" || side == "right") {
        const std::size_t s = side == "left" ? Left : Right;
        const std::string part = name.substr(0, dotAt);
        if (part == "hand")
            return gripPoint(static_cast<int>(s));
        if (part == "elbow")
            return arm[s].upper.to;
        if (part == "shoulder")
            return arm[s].upper.from;
        if (part == "knee")
            return leg[s].thigh.to;
        if (part == "ankle")
            return leg[s].foot.origin;
        if (part == "toe")
            return leg[s].foot.point({body::ballAhead, 0, -6});
        if (part == "heel")
            return leg[s].foot.point({-body::heelBack, 0, -5});
    }
    throw PoseError("no joint is called \"" + name + "\"");
}

} // namespace figures
