#include "Catalogue.h"

#include "Pose.h"
#include "Shape.h"

#include <fstream>
#include <set>
#include <sstream>

namespace figures {
namespace {

std::vector<std::string> split(const std::string& text, char at) {
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, at);)
        parts.push_back(part);
    return parts;
}

Row rowOf(const std::string& line) {
    const auto cells = split(line, ';');
    if (cells.size() != 6)
        throw PoseError("six cells are wanted");
    Row row;
    row.code = cells[0];
    try {
        row.key = std::stoi(cells[1]);
        row.number = std::stod(cells[3]);
    } catch (const std::exception&) {
        throw PoseError("key or number is not a number");
    }
    row.machine = cells[2];
    row.name = cells[4];
    if (row.name.empty() || row.name.find('\'') != std::string::npos)
        throw PoseError("the name is empty or holds a straight apostrophe");
    row.muscles = split(cells[5], ',');
    for (const auto& code : row.muscles) {
        const auto index = muscleIndex(code);
        if (!index)
            throw PoseError("\"" + code + "\" is no muscle code");
        row.trained |= 1U << *index;
    }
    if (row.muscles.empty())
        throw PoseError("no muscle is named");
    return row;
}

} // namespace

std::vector<Row> Catalogue::read(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::string line;
    if (!in || !std::getline(in, line) || line != "codice;id_fig;ID_MAC;numero;nome;muscoli")
        throw PoseError(file.string() + ": cannot be read, or its first line is not the list's");
    std::vector<Row> rows;
    std::set<std::string> codes;
    std::set<int> keys;
    for (int n = 2; std::getline(in, line); ++n) {
        try {
            rows.push_back(rowOf(line));
            if (!codes.insert(rows.back().code).second || !keys.insert(rows.back().key).second)
                throw PoseError("code or key stands twice");
        } catch (const PoseError& e) {
            throw PoseError(file.filename().string() + ":" + std::to_string(n) + ": " + e.what());
        }
    }
    return rows;
}

} // namespace figures
