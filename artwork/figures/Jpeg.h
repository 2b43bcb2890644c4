#pragma once

#include <QImage>

#include <filesystem>

namespace figures {

/// Writes pictures the way the whole series is written.
class Jpeg {
public:
    static constexpr int heaviest = 80 * 1024 - 1; ///< bytes

    /// Quality 90, a little less where that would be too heavy. Throws PoseError when the file cannot be
    /// written.
    static void save(const QImage& image, const std::filesystem::path& file);
};

} // namespace figures
