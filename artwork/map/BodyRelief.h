#pragma once

#include "BodyPlan.h"
#include "Field.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <map>
#include <vector>

/// Models the bodies of a plan as a relief under one light and paints them: the shape is worked out once, a
/// marked group then only changes its colour, so that the 18 marked pictures and the neutral one agree
/// everywhere else.
class BodyRelief {
public:
    /// `size` is the picture's, in pixels.
    BodyRelief(const BodyPlan& plan, QSize size, double pixelsPerTwip);

    /// The picture with the group `code` marked, or the neutral one if `code` is empty.
    QImage picture(const QString& code) const;

private:
    void addLayer(const BodyLayer& layer);
    /// A layer in front hides the marks behind it.
    void hideMarks(const Field& silhouette);
    void shade(const Field& silhouette, const Field& height);
    /// Radius of a blur that softens over `twips`.
    int pixels(double twips) const;
    QSize fine_; ///< size in which the relief is worked out, twice the picture's
    QSize size_;
    double scale_; ///< fine pixels a twip
    Field body_;   ///< how far a pixel shows a body rather than the ground
    Field light_;  ///< brightness, 1 is the colour itself
    std::map<QString, Field> marks_;
};
