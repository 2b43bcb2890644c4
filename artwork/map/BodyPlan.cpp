#include "BodyPlan.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {
struct Knot {
    QPointF at;
    bool corner = false;
};
using Knots = std::vector<Knot>;

[[noreturn]] void fail(int line, const QString& what) {
    throw std::runtime_error(u"line %1: %2"_s.arg(line).arg(what).toStdString());
}

double number(const QString& text, int line) {
    bool valid = false;
    const double value = text.toDouble(&valid);
    if (!valid)
        fail(line, u"\"%1\" is no number"_s.arg(text));
    return value;
}

Knots knots(const QString& text, int line) {
    Knots result;
    const QStringList points = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString point : points) {
        const bool corner = point.endsWith(QLatin1Char('!'));
        if (corner)
            point.chop(1);
        const QStringList both = point.split(QLatin1Char(','));
        if (both.size() != 2)
            fail(line, u"\"%1\" is no point"_s.arg(point));
        result.push_back({QPointF(number(both.at(0), line), number(both.at(1), line)), corner});
    }
    if (result.size() < 2)
        fail(line, u"too few points"_s);
    return result;
}

Knots mirrored(const Knots& source) {
    Knots result(source.rbegin(), source.rend());
    for (Knot& knot : result)
        knot.at.setX(-knot.at.x());
    return result;
}

/// The outline of a half, closed by its mirror image; points on the axis stand once.
Knots completed(const Knots& half) {
    Knots result = half;
    for (const Knot& knot : mirrored(half))
        if (knot.at.x() != 0)
            result.push_back(knot);
    return result;
}

/// A smooth curve through the knots: the tangent of a knot is a sixth of the way between its neighbours.
QPainterPath curve(const Knots& points, bool closed, double axis) {
    const auto count = static_cast<int>(points.size());
    const auto at = [&](int i) -> const Knot& {
        return closed ? points[static_cast<size_t>((i + count) % count)]
                      : points[static_cast<size_t>(std::clamp(i, 0, count - 1))];
    };
    const auto handle = [&](int i) { return at(i).corner ? QPointF() : (at(i + 1).at - at(i - 1).at) / 6; };
    const QPointF shift(axis, 0);
    QPainterPath path(at(0).at + shift);
    for (int i = 0; i < (closed ? count : count - 1); ++i)
        path.cubicTo(at(i).at + handle(i) + shift, at(i + 1).at - handle(i + 1) + shift,
                     at(i + 1).at + shift);
    if (closed)
        path.closeSubpath();
    path.setFillRule(Qt::WindingFill);
    return path;
}

BodyShape::Kind kindOf(const QString& word, int line) {
    if (word == QLatin1String("parte"))
        return BodyShape::Kind::Part;
    if (word == QLatin1String("muscolo"))
        return BodyShape::Kind::Muscle;
    if (word == QLatin1String("rilievo"))
        return BodyShape::Kind::Relief;
    if (word == QLatin1String("solco"))
        return BodyShape::Kind::Groove;
    fail(line, u"\"%1\" is no kind of shape"_s.arg(word));
}
} // namespace

void BodyPlan::addLine(const QString& line, int number_) {
    const qsizetype colon = line.indexOf(QLatin1Char(':'));
    QStringList head = line.left(colon).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString word = head.takeFirst();
    if (word == QLatin1String("vista")) {
        axis_ = number(head.value(0), number_);
        layers_.emplace_back();
        return;
    }
    if (word == QLatin1String("strato")) {
        layers_.emplace_back();
        return;
    }
    if (layers_.empty() || colon < 0)
        fail(number_, u"a shape belongs to a body and has points"_s);
    BodyShape shape;
    shape.kind = kindOf(word, number_);
    if (shape.kind == BodyShape::Kind::Muscle)
        shape.code = head.isEmpty() ? QString() : head.takeFirst();
    const QString form = head.value(0);
    if (head.size() > 1)
        shape.strength = number(head.at(1), number_);
    const Knots points = knots(line.mid(colon + 1), number_);
    const bool closed = shape.kind != BodyShape::Kind::Groove;
    auto& shapes = layers_.back().shapes;
    const auto add = [&](const Knots& outline) {
        shape.path = curve(outline, closed, axis_);
        shapes.push_back(shape);
    };
    if (form == QLatin1String("mezza")) {
        add(completed(points));
    } else if (form == QLatin1String("coppia")) {
        add(points);
        add(mirrored(points));
    } else if (form == QLatin1String("intera")) {
        add(points);
    } else {
        fail(number_, u"intera, coppia or mezza, not \"%1\""_s.arg(form));
    }
}

BodyPlan BodyPlan::read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(u"%1 cannot be read"_s.arg(path).toStdString());
    BodyPlan plan;
    QString whole;
    int number = 0;
    int start = 0;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        ++number;
        if (line.startsWith(QLatin1Char('#')) || line.trimmed().isEmpty())
            continue;
        if (line.startsWith(QLatin1Char(' '))) {
            whole += line;
            continue;
        }
        if (!whole.isEmpty())
            plan.addLine(whole, start);
        whole = line;
        start = number;
    }
    if (!whole.isEmpty())
        plan.addLine(whole, start);
    return plan;
}
