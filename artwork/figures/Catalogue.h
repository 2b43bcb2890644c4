#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace figures {

/// One row of the list of figures.
struct Row {
    std::string code; ///< Q001..., also the pose's and the picture's name
    int key = 0;
    std::string machine;
    double number = 0;
    std::string name;
    std::vector<std::string> muscles;
    std::uint32_t trained = 0; ///< a bit for each muscle
};

/// Reads data/figure.csv. Throws PoseError with the line for whatever is amiss.
class Catalogue {
public:
    static std::vector<Row> read(const std::filesystem::path& file);
};

} // namespace figures
