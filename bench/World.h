#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace bench {

/// How much a world holds. The figures bear the shipped pictures under names of their own.
struct Size {
    int athletes = 1;
    int cards = 0; ///< of athlete 1, without lines
    int templates = 0;
    int figures = 160;
};

/// A program's folder filled to a size, made from the build's data file and pictures (the variable
/// QUIVERDECK_BUILD names that build). It goes with the object.
class World {
public:
    explicit World(const Size& size);

    /// Makes it the program's folder from here on.
    void use() const;

    QString folder() const { return root_.path(); }
    QString store() const { return folder() + QStringLiteral("/splash.ps"); }
    /// The figures' picture files, those of keys 1, 2, …
    const QStringList& pictures() const { return pictures_; }
    /// Stores a card of athlete 1 with that many lines, each with a figure and notes. Gives its key.
    int card(int lines) const;

private:
    void fill(const Size& size);
    void linkPictures(int figures);

    QTemporaryDir root_;
    QStringList pictures_;
};

} // namespace bench
