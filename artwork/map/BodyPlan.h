#pragma once

#include <QPainterPath>
#include <QString>

#include <vector>

/// A closed smooth shape of the body or, as a groove, an open line. Coordinates are twips of the map.
struct BodyShape {
    enum class Kind {
        Part,   ///< a piece of the silhouette; the parts of a layer melt into one
        Muscle, ///< a bulge with a code, marked when that code is
        Relief, ///< a bulge without a code
        Groove  ///< an engraved line
    };
    Kind kind = Kind::Part;
    QString code;        ///< of a muscle; "ADD", "DAL"
    double strength = 1; ///< height of the bulge or depth of the groove, 1 is usual
    QPainterPath path;
};

/// What lies at one depth; a later layer lies before an earlier one and casts a shadow on it.
struct BodyLayer {
    std::vector<BodyShape> shapes;
};

/// The three bodies of the map, read from a text file.
///
///     vista 1185              a new body; its shapes count x from this twip
///     strato                  a new layer
///     parte coppia: x,y x,y … one of: parte, rilievo, solco, or muscolo with its code (`muscolo ADD coppia:
///     …`);
///                             a strength may follow the form (`rilievo coppia 0.5: …`)
///
/// `intera` takes the points as they stand, `coppia` adds the mirrored twin, `mezza` takes the right half of
/// a symmetric outline, from the axis to the axis. A point is passed smoothly, or as a corner if it ends with
/// "!". Lines that begin with # are remarks; a line that begins with blanks continues the one before.
class BodyPlan {
public:
    /// Throws std::runtime_error, naming the line, if the text is not of this form.
    static BodyPlan read(const QString& path);

    const std::vector<BodyLayer>& layers() const { return layers_; }

private:
    void addLine(const QString& line, int number);
    double axis_ = 0;
    std::vector<BodyLayer> layers_;
};
