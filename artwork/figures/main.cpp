#include "Catalogue.h"
#include "Composer.h"
#include "ContactSheet.h"
#include "Jpeg.h"
#include "PoseFile.h"

#include <cstdio>
#include <exception>
#include <fstream>

namespace {

using namespace figures;
using Path = std::filesystem::path;

int usage() {
    std::fputs(
        "usage: quiverdeck_figures draw CATALOGUE POSES CODE OUT [DEPFILE]   draw a figure of the list\n"
        "       quiverdeck_figures warn POSE WIDTHxHEIGHT OUT [DEPFILE]      draw a posture not to take\n"
        "       quiverdeck_figures sheets CATALOGUE PICTURES FOLDER          lay all pictures out\n",
        stderr);
    return 2;
}

/// Tells the build which files a picture was made of.
void depfile(const Path& file, const Path& target, const std::vector<Path>& sources) {
    std::ofstream out(file);
    out << target.string() << ":";
    for (const auto& s : sources)
        out << " " << s.string();
    out << "\n";
    if (!out)
        throw PoseError(file.string() + ": cannot be written");
}

/// Says which pose an error belongs to.
void save(const Path& poseFile, std::uint32_t trained, int wide, int high, const Path& out,
          const std::string& depends) {
    std::vector<Path> sources;
    const Pose pose = PoseFile::read(poseFile, sources);
    try {
        Jpeg::save(Composer::draw(pose, trained, wide, high), out);
    } catch (const PoseError& e) {
        throw PoseError(pose.name + ": " + e.what());
    }
    if (!depends.empty())
        depfile(depends, out, sources);
}

void draw(const std::vector<std::string>& args) {
    const auto rows = Catalogue::read(args[1]);
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& r) { return r.code == args[3]; });
    if (row == rows.end())
        throw PoseError(args[3] + " is not in the list");
    save(Path(args[2]) / (row->code + ".pose"), row->trained, Composer::width, Composer::height, args[4],
         args.size() > 5 ? args[5] : "");
}

int warn(const std::vector<std::string>& args) {
    const auto cross = args[2].find('x');
    const int wide = std::atoi(args[2].c_str());
    const int high = cross == std::string::npos ? 0 : std::atoi(args[2].c_str() + cross + 1);
    if (wide < 100 || high < 100 || wide > 2000 || high > 2000)
        return usage();
    save(args[1], 0, wide, high, args[3], args.size() > 4 ? args[4] : "");
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    try {
        if ((args.size() == 5 || args.size() == 6) && args[0] == "draw") {
            draw(args);
            return 0;
        }
        if ((args.size() == 4 || args.size() == 5) && args[0] == "warn")
            return warn(args);
        if (args.size() == 4 && args[0] == "sheets") {
            ContactSheet::make(Catalogue::read(args[1]), args[2], args[3]);
            return 0;
        }
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    return usage();
}
