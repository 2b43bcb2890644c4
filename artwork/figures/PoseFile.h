#pragma once

#include "Pose.h"

#include <filesystem>

namespace figures {

/// Reads pose files: one statement a line, "#" starts a comment. The language: artwork/poses/README.md.
class PoseFile {
public:
    /// Reads `file`; a statement "like NAME" first reads NAME.pose of the same folder. Throws PoseError with
    /// file and line for whatever it does not understand.
    static Pose read(const std::filesystem::path& file);

    /// The same, adding every file that was read to `files`.
    static Pose read(const std::filesystem::path& file, std::vector<std::filesystem::path>& files);

    /// Reads a pose from a text; `folder` is where "like" looks.
    static Pose parse(const std::string& text, const std::string& name,
                      const std::filesystem::path& folder = {});

private:
    explicit PoseFile(std::filesystem::path folder) : folder_(std::move(folder)) {}
    void statements(const std::string& text, const std::string& name, int depth);
    void statement(const std::vector<std::string>& words);
    bool bodyStatement(const std::vector<std::string>& words);
    void sidedStatement(const std::string& what, const std::string& sides,
                        const std::vector<std::string>& words);
    void foot(LegPose& leg, const std::vector<std::string>& words);
    void hand(ArmPose& arm, const std::vector<std::string>& words);
    void view(const std::vector<std::string>& words);
    void accessory(const std::vector<std::string>& words);
    BodyPose& current() { return pose_.hasSecond ? pose_.second : pose_.body; }

    std::filesystem::path folder_;
    std::vector<std::filesystem::path> files_;
    Pose pose_;
};

} // namespace figures
