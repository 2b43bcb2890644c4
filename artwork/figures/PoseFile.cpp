#include "PoseFile.h"

#include <fstream>
#include <map>
#include <sstream>

namespace figures {
namespace {

using Words = std::vector<std::string>;

std::string contents(const std::filesystem::path& file) {
    std::ifstream in(file);
    if (!in)
        throw PoseError(file.string() + ": cannot be read");
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

float number(const Words& words, std::size_t index) {
    if (index >= words.size())
        throw PoseError("a number is missing after \"" + words.back() + "\"");
    std::size_t used = 0;
    float value = 0;
    try {
        value = std::stof(words[index], &used);
    } catch (const std::exception&) {
        used = 0;
    }
    if (used == 0 || used != words[index].size() || !std::isfinite(value))
        throw PoseError("\"" + words[index] + "\" is not a number");
    return value;
}

Vec3 vector(const Words& words, std::size_t index) {
    return {number(words, index), number(words, index + 1), number(words, index + 2)};
}

const std::string& word(const Words& words, std::size_t index) {
    if (index >= words.size())
        throw PoseError("a word is missing after \"" + words.back() + "\"");
    return words[index];
}

void end(const Words& words, std::size_t index) {
    if (index < words.size())
        throw PoseError("\"" + words[index] + "\" is too much");
}

/// Reads "name number" pairs from `index` on into the fields given.
void options(const Words& words, std::size_t index, const std::map<std::string, float*>& fields) {
    for (; index < words.size(); index += 2) {
        const auto field = fields.find(words[index]);
        if (field == fields.end())
            throw PoseError("unknown word \"" + words[index] + "\"");
        *field->second = number(words, index + 1);
    }
}

} // namespace

Pose PoseFile::read(const std::filesystem::path& file) {
    std::vector<std::filesystem::path> files;
    return read(file, files);
}

Pose PoseFile::read(const std::filesystem::path& file, std::vector<std::filesystem::path>& files) {
    PoseFile reader(file.parent_path());
    reader.pose_.name = file.filename().string();
    reader.statements(contents(file), reader.pose_.name, 0);
    files.push_back(file);
    files.insert(files.end(), reader.files_.begin(), reader.files_.end());
    return reader.pose_;
}

Pose PoseFile::parse(const std::string& text, const std::string& name, const std::filesystem::path& folder) {
    PoseFile reader(folder);
    reader.pose_.name = name;
    reader.statements(text, name, 0);
    return reader.pose_;
}

void PoseFile::statements(const std::string& text, const std::string& name, int depth) {
    std::istringstream lines(text);
    std::string line;
    for (int n = 1; std::getline(lines, line); ++n) {
        line = line.substr(0, line.find('#'));
        std::istringstream in(line);
        Words words;
        for (std::string w; in >> w;)
            words.push_back(w);
        if (words.empty())
            continue;
        if (words[0] == "like") {
            if (depth > 3 || words.size() != 2) {
                throw PoseError(name + ":" + std::to_string(n) +
                                ": \"like\" takes one name, four deep at most");
            }
            const auto file = folder_ / (words[1] + ".pose");
            statements(contents(file), file.filename().string(), depth + 1);
            files_.push_back(file);
            continue;
        }
        try {
            statement(words);
        } catch (const PoseError& e) {
            throw PoseError(name + ":" + std::to_string(n) + ": " + e.what());
        }
    }
}

void PoseFile::statement(const Words& words) {
    const std::string& what = words[0];
    if (what == "facing") {
        pose_.facing = number(words, 1);
        end(words, 2);
    } else if (what == "view") {
        view(words);
    } else if (what == "platform") {
        if (word(words, 1) != "low" && words[1] != "column")
            throw PoseError("a platform is \"column\" or \"low\"");
        pose_.column = words[1] == "column";
        end(words, 2);
    } else if (what == "forbidden") {
        pose_.forbidden = true;
        end(words, 1);
    } else if (what == "with") {
        accessory(words);
    } else if (what == "without") {
        std::erase_if(pose_.accessories, [&](const Accessory& a) { return a.kind == word(words, 1); });
        end(words, 2);
    } else if (what == "arrow") {
        Arrow a;
        a.point = word(words, 1);
        a.dx = words.size() > 2 ? number(words, 2) : 0;
        a.dy = words.size() > 3 ? number(words, 3) : 0;
        a.both = !(words.size() > 4 && words[4] == "one");
        end(words, a.both ? 4 : 5);
        pose_.arrows.push_back(a);
    } else if (what == "static") { // takes the movement of a "like" back
        pose_.hasSecond = false;
        pose_.arrows.clear();
        end(words, 1);
    } else if (what == "second") {
        pose_.hasSecond = true;
        pose_.second = pose_.body;
        pose_.ghost = !(words.size() > 1 && words[1] == "unseen");
        end(words, pose_.ghost ? 1 : 2);
    } else if (!bodyStatement(words)) {
        const auto dotAt = what.find('.');
        if (dotAt == std::string::npos)
            throw PoseError("unknown statement \"" + what + "\"");
        sidedStatement(what.substr(0, dotAt), what.substr(dotAt + 1), words);
    }
}

void PoseFile::view(const Words& words) {
    static const std::map<std::string, float> named = {
        {"front", 14}, {"side", 72}, {"quarter", 40}, {"rear", 138}, {"back", 166}};
    std::size_t at = 2;
    if (const auto n = named.find(word(words, 1)); n != named.end())
        pose_.azimuth = -n->second;
    else
        pose_.azimuth = number(words, 1);
    if (words.size() > at && words[at] == "left") {
        pose_.azimuth = -pose_.azimuth;
        ++at;
    }
    options(words, at, {{"pitch", &pose_.pitch}});
}

void PoseFile::accessory(const Words& words) {
    Accessory a;
    a.kind = word(words, 1);
    std::size_t at = 2;
    if (at < words.size() && (words[at] == "left" || words[at] == "right")) {
        a.left = words[at] == "left";
        a.right = !a.left;
        ++at;
    }
    options(words, at,
            {{"x", &a.at.x}, {"y", &a.at.y}, {"z", &a.at.z}, {"turn", &a.turn}, {"size", &a.size}});
    pose_.accessories.push_back(a);
}

bool PoseFile::bodyStatement(const Words& words) {
    BodyPose& b = current();
    const std::string& what = words[0];
    const std::map<std::string, float*> single = {
        {"tilt", &b.tilt}, {"roll", &b.roll}, {"yaw", &b.yaw}, {"shrug", &b.shrug}};
    if (const auto s = single.find(what); s != single.end()) {
        *s->second = number(words, 1);
        end(words, 2);
    } else if (what == "pelvis") {
        b.pelvis = vector(words, 1);
        end(words, 4);
    } else if (what == "spine") {
        const Vec3 v = vector(words, 1);
        b.bend = v.x;
        b.side = v.y;
        b.twist = v.z;
        end(words, 4);
    } else if (what == "head") {
        const Vec3 v = vector(words, 1);
        b.hasHead = true;
        b.nod = v.x;
        b.headSide = v.y;
        b.headTurn = v.z;
        end(words, 4);
    } else if (what == "rest") {
        if (word(words, 1) == "none") {
            b.rests.clear();
            end(words, 2);
        } else {
            b.rests.emplace_back(words[1], word(words, 2));
            end(words, 3);
        }
    } else {
        return false;
    }
    return true;
}

void PoseFile::sidedStatement(const std::string& what, const std::string& sides, const Words& words) {
    if (sides != "left" && sides != "right" && sides != "both")
        throw PoseError("\"" + words[0] + "\": a side is left, right or both");
    for (std::size_t side : {std::size_t{Left}, std::size_t{Right}}) {
        if ((sides == "left" && side == Right) || (sides == "right" && side == Left))
            continue;
        LegPose& leg = current().leg[side];
        ArmPose& arm = current().arm[side];
        if (what == "foot") {
            foot(leg, words);
        } else if (what == "leg") {
            leg.kind = LegPose::Angles;
            options(words, 1,
                    {{"flex", &leg.flex},
                     {"spread", &leg.spread},
                     {"roll", &leg.roll},
                     {"knee", &leg.knee},
                     {"ankle", &leg.ankle}});
        } else if (what == "knee") {
            leg.hasPole = true;
            leg.pole = vector(words, 1);
            end(words, 4);
        } else if (what == "hand") {
            hand(arm, words);
        } else if (what == "arm") {
            arm.kind = ArmPose::Angles;
            options(
                words, 1,
                {{"elev", &arm.elev}, {"plane", &arm.plane}, {"elbow", &arm.elbow}, {"twist", &arm.twist}});
        } else if (what == "elbow") {
            arm.hasElbow = true;
            arm.elbowTo = vector(words, 1);
            end(words, 4);
        } else if (what == "palm") {
            arm.hasPalm = true;
            arm.palmTo = vector(words, 1);
            end(words, 4);
        } else if (what == "fingers") {
            static const std::map<std::string, ArmPose::Shape> shapes = {{"relaxed", ArmPose::Relaxed},
                                                                         {"open", ArmPose::Open},
                                                                         {"grip", ArmPose::Grip},
                                                                         {"auto", ArmPose::Auto}};
            const auto shape = shapes.find(word(words, 1));
            if (shape == shapes.end())
                throw PoseError("fingers are relaxed, open, grip or auto");
            arm.shape = shape->second;
            end(words, 2);
        } else {
            throw PoseError("unknown statement \"" + words[0] + "\"");
        }
    }
}

void PoseFile::foot(LegPose& leg, const Words& words) {
    const std::string& kind = word(words, 1);
    leg.turn = 8;
    leg.heel = 0;
    if (kind == "kneel") {
        leg.kind = LegPose::Kneel;
        leg.surface = word(words, 2);
        leg.turn = 2;
        leg.fore = 1;
        leg.tuck = 0;
        options(words, 3, {{"turn", &leg.turn}, {"fore", &leg.fore}, {"tuck", &leg.tuck}});
    } else if (kind == "free") {
        leg.kind = LegPose::Free;
        leg.at = vector(words, 2);
        options(words, 5, {{"turn", &leg.turn}, {"pitch", &leg.heel}});
    } else {
        leg.kind = LegPose::Stand;
        leg.surface = kind;
        leg.at = {number(words, 2), number(words, 3), 0};
        options(words, 4, {{"turn", &leg.turn}, {"heel", &leg.heel}});
    }
}

void PoseFile::hand(ArmPose& arm, const Words& words) {
    const std::string& kind = word(words, 1);
    static const std::map<std::string, ArmPose::Kind> places = {
        {"chest", ArmPose::Chest}, {"pelvis", ArmPose::Pelvis}, {"world", ArmPose::World}};
    arm.under = false;
    arm.turn = 0;
    if (kind == "bar" || kind == "stick") {
        arm.kind = kind == "bar" ? ArmPose::Bar : ArmPose::Stick;
        arm.along = number(words, 2);
        if (words.size() > 3) {
            if (words[3] != "under" && words[3] != "over")
                throw PoseError("a grip is over or under");
            arm.under = words[3] == "under";
            end(words, 4);
        }
    } else if (kind == "flat") {
        arm.kind = ArmPose::Flat;
        arm.surface = word(words, 2);
        arm.at = {number(words, 3), number(words, 4), 0};
        options(words, 5, {{"turn", &arm.turn}});
    } else if (kind == "forearm") {
        arm.kind = ArmPose::Forearm;
        arm.surface = word(words, 2);
        arm.along = 1;
        options(words, 3, {{"turn", &arm.turn}, {"fore", &arm.along}});
    } else if (const auto place = places.find(kind); place != places.end()) {
        arm.kind = place->second;
        arm.at = vector(words, 2);
        end(words, 5);
    } else {
        throw PoseError(
            "a hand holds bar or stick, lies flat or on its forearm, or is placed in chest, pelvis or world");
    }
}

} // namespace figures
