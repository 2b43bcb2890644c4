#pragma once

#include <QHash>
#include <QIcon>
#include <QImage>
#include <QSize>
#include <QString>
#include <vector>

namespace toolkit {

/// Pictures of one fixed size, found by key or by position from 1. Files are scaled while they are decoded,
/// keep their proportions and stand on white; they are kept in the screen's own pixels.
class ImageList {
public:
    /// `size` in logical pixels.
    explicit ImageList(const QSize& size = {16, 16}) : size_(size) {}

    QSize imageSize() const { return size_; }
    /// Only for an empty list (runtime::InvalidPropertyValue).
    void setImageSize(const QSize& size);

    /// Adds the picture of a file. Raises runtime::FileNotFound, badPicture (481) or, for a key there
    /// already, duplicateKey (35602).
    void add(const QString& key, const QString& path);
    /// Adds a picture made elsewhere, as it is.
    void add(const QString& key, const QIcon& icon);

    int count() const { return static_cast<int>(entries_.size()); }
    bool contains(const QString& key) const { return positions_.contains(key); }
    /// Raise runtime::ElementNotFound and runtime::SubscriptOutOfRange.
    QIcon icon(const QString& key) const;
    QIcon icon(int position) const;
    QPixmap pixmap(const QString& key) const;
    void clear();

    static constexpr int duplicateKey = 35602;

private:
    struct Entry {
        QImage image; ///< of a file; made a pixmap only when it is shown
        QIcon icon;   ///< of an icon
    };
    void insert(const QString& key, Entry entry);
    const Entry& entry(const QString& key) const;
    QIcon iconOf(const Entry& entry) const;

    QSize size_;
    std::vector<Entry> entries_;
    QHash<QString, int> positions_;
};

} // namespace toolkit
