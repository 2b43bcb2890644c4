#pragma once

#include <QImage>
#include <QString>

namespace pictures {

/// A picture file, found without regard to case and decoded no larger than needed, turned as it asks for.
/// Every function raises runtime::FileNotFound for a missing file and `badPicture` for one that cannot be
/// decoded or is too large to be decoded in a moment.
class PictureFile {
public:
    /// Stored: `path` may have backslashes and any letter case (see host::resolve). Literal: a real file's.
    enum Path { Stored, Literal };

    explicit PictureFile(const QString& path, Path kind = Stored);

    /// The picture's own size in pixels.
    QSize size() const { return size_; }
    /// The whole picture; a file larger than `largest` on a side is decoded at half, a quarter … of its size.
    QImage whole() const;
    /// Scaled, keeping proportions, so that it fits `box` (enlarged too).
    QImage fitted(const QSize& box) const;
    /// Each side by itself no longer than that of `box`; for a picture that is stretched anyhow.
    QImage within(const QSize& box) const;

    static constexpr int badPicture = 481;
    static constexpr int largest = 2400; ///< pixels
    /// Most pixels of a file: a JPEG is decoded scaled, though a progressive one takes six bytes for each
    /// pixel that its head claims; other formats are decoded whole, in 128 MiB.
    static constexpr qint64 mostPixels = 100'000'000;
    static constexpr qint64 mostPixelsWhole = 32'000'000;

private:
    QImage read(const QSize& scaled) const;

    QString file_;
    QSize size_;
    bool turned_ = false; ///< by a quarter, so that the file's own width is the picture's height
};

} // namespace pictures
