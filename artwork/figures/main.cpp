#include "Catalogue.h"
#include "Composer.h"
#include "ContactSheet.h"
#include "Jpeg.h"
#include "PoseFile.h"

#include <cstdio>
#include <exception>

namespace {

using namespace figures;

int usage() {
    std::fputs("usage: figures draw CATALOGUE POSES OUT CODE...   draw figures of the list\n"
               "       figures warn POSES OUT NAME WIDTHxHEIGHT   draw a posture of the warning sheet\n"
               "       figures sheets CATALOGUE PICTURES OUT      lay all pictures out on contact sheets\n",
               stderr);
    return 2;
}

int draw(const std::vector<std::string>& args) {
    const auto rows = Catalogue::read(args[1]);
    int failures = 0;
    for (std::size_t i = 4; i < args.size(); ++i) {
        const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& r) { return r.code == args[i]; });
        try {
            if (row == rows.end()) {
                throw PoseError("is not in the list");
            }
            const Pose pose = PoseFile::read(std::filesystem::path(args[2]) / (row->code + ".pose"));
            Jpeg::save(Composer::draw(pose, row->trained), std::filesystem::path(args[3]) / (row->code + ".JPG"));
        } catch (const PoseError& e) {
            std::fprintf(stderr, "%s: %s\n", args[i].c_str(), e.what());
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}

int warn(const std::vector<std::string>& args) {
    int wide = 0;
    int high = 0;
    if (std::sscanf(args[4].c_str(), "%dx%d", &wide, &high) != 2 || wide < 100 || high < 100 || wide > 2000 || high > 2000) {
        return usage();
    }
    const Pose pose = PoseFile::read(std::filesystem::path(args[1]) / (args[3] + ".pose"));
    Jpeg::save(Composer::draw(pose, 0, wide, high), std::filesystem::path(args[2]) / (args[3] + ".JPG"));
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    try {
        if (args.size() >= 5 && args[0] == "draw") {
            return draw(args);
        }
        if (args.size() == 5 && args[0] == "warn") {
            return warn(args);
        }
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
