#pragma once

#include <QImage>
#include <QString>

namespace toolkit {

/// A picture file, found without regard to case and decoded no larger than needed. Every function raises
/// runtime::FileNotFound for a missing file and `badPicture` for one that cannot be decoded.
class PictureFile {
public:
    /// `path` may have backslashes (see host::resolve).
    explicit PictureFile(const QString& path);

    /// The picture's own size in pixels.
    QSize size() const { return size_; }
    /// The whole picture; a file larger than `largest` on a side is decoded at half, a quarter … of its size.
    QImage whole() const;
    /// Scaled, keeping proportions, so that it fits `box` (enlarged too).
    QImage fitted(const QSize& box) const;

    static constexpr int badPicture = 481;
    static constexpr int largest = 2400; ///< pixels

private:
    QImage read(const QSize& scaled) const;

    QString file_;
    QSize size_;
};

} // namespace toolkit
