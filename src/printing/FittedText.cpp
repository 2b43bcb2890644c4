#include "printing/FittedText.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace sheet {

namespace {

constexpr double twipsPerPoint = 20;

/// Narrower or smaller than this a text no longer looks like its neighbours.
constexpr double leastScale = 0.85;

/// The smallest print still read with ease; a longer text gets it before any word is lost.
constexpr double leastPoints = 5.7;
constexpr double scaleStep = 0.05;

/// A single line that is still too wide is set smaller down to this before it is cut.
constexpr double leastSingleScale = 0.6;

/// Text widths are sums of rounded glyph widths: forgive a fraction of a pixel.
constexpr double tolerance = 1;

/// No letter is narrower than this part of its size, on average; bounds the text worth shaping.
constexpr double narrowestLetter = 0.12;

const QChar ellipsis(0x2026);

QTextOption optionFor(bool wrapped) {
    QTextOption option;
    option.setWrapMode(wrapped ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    option.setUseDesignMetrics(true);
    return option;
}

std::unique_ptr<QTextLayout> singleLine(const QString& text, const QFont& font) {
    auto layout = std::make_unique<QTextLayout>(text, font);
    layout->setTextOption(optionFor(false));
    layout->setCacheEnabled(true);
    layout->beginLayout();
    QTextLine line = layout->createLine();
    line.setLineWidth(1e6);
    line.setPosition({0, 0});
    layout->endLayout();
    return layout;
}

QString trimmedEnd(QString text) {
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

/// "spalle,…" reads as a slip.
QString withEllipsis(QString text) {
    text = trimmedEnd(std::move(text));
    while (!text.isEmpty() && QLatin1String(".,;:-").contains(text.back()))
        text.chop(1);
    return trimmedEnd(std::move(text)) + ellipsis;
}

/// The first family of the list that the system has; asking the system costs more than laying out a text, so
/// its answer is kept.
QString installedFamily(const QStringList& wished) {
    static const QStringList all = QFontDatabase::families();
    static const QSet<QString> installed(all.begin(), all.end());
    const auto found = std::ranges::find_if(wished, [](const QString& f) { return installed.contains(f); });
    return found == wished.end() ? wished.value(0) : *found;
}

} // namespace

QFont pageFont(const Font& font, double sizeScale) {
    QFont result(installedFamily(font.families));
    result.setPixelSize(std::max(1, int(std::lround(font.points * twipsPerPoint * sizeScale))));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setStyleStrategy(QFont::PreferAntialias);
    return result;
}

FittedText::FittedText(const Element& element) : element_(element) {
    QString text = element.text;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n').replace(u'\t', u' ');
    if (element.wordWrap)
        fitWrapped(text);
    else
        fitSingle(text.replace(u'\n', u' '));
    place();
}

double FittedText::usableWidth() const {
    return element_.usableWidth > 0 ? element_.usableWidth : element_.width;
}

double FittedText::usableHeight() const {
    return element_.usableHeight > 0 ? element_.usableHeight : element_.height;
}

void FittedText::useScale(double scale) {
    sizeScale_ = scale;
    font_ = pageFont(element_.font, scale);
    lineHeight_ = QFontMetricsF(font_).height();
}

double FittedText::widthOf(const QString& text) const {
    return singleLine(trimmedEnd(text), font_)->lineAt(0).naturalTextWidth();
}

void FittedText::fitSingle(const QString& text) {
    useScale(1);
    lines_ = {text};
    const double room = usableWidth() + tolerance;
    double width = widthOf(text);
    if (width <= room)
        return;
    widthScale_ = std::max(leastScale, usableWidth() / width);
    if (width * widthScale_ <= room)
        return;
    useScale(std::max(leastSingleScale, usableWidth() / (width * widthScale_)));
    width = widthOf(text);
    // The size is whole twips: take up what rounding left over.
    if (width * widthScale_ > room && width * widthScale_ < usableWidth() * 1.02)
        widthScale_ = usableWidth() / width;
    if (width * widthScale_ > room)
        cutLastLine();
}

/// Breaks into at most `most` lines; tells whether the whole text found room.
bool FittedText::breakLines(const QString& text, qsizetype most) {
    lines_.clear();
    for (const QString& paragraph : text.split(u'\n')) {
        if (lines_.size() == most)
            return false;
        if (paragraph.isEmpty()) {
            lines_ << QString();
            continue;
        }
        QTextLayout layout(paragraph, font_);
        layout.setTextOption(optionFor(true));
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            if (lines_.size() == most)
                return false;
            line.setLineWidth(usableWidth());
            lines_ << paragraph.mid(line.textStart(), line.textLength());
        }
        layout.endLayout();
    }
    return true;
}

void FittedText::fitWrapped(const QString& text) {
    const double leastWrapped = std::min(leastScale, leastPoints / element_.font.points);
    const double smallest = element_.font.points * twipsPerPoint * leastWrapped;
    const double linesAtMost = usableHeight() / smallest + 1;
    const auto worthShaping = qsizetype(linesAtMost * (usableWidth() / (smallest * narrowestLetter) + 1));
    const QString beginning = text.left(worthShaping);
    const int steps = int(std::floor((1 - leastWrapped) / scaleStep + 1e-6));
    for (int step = 0; step <= steps; ++step) {
        useScale(1 - step * scaleStep);
        const auto most = std::max<qsizetype>(1, qsizetype((usableHeight() + tolerance) / lineHeight_));
        if (breakLines(beginning, most) && beginning.size() == text.size())
            return;
    }
    cutLastLine();
}

void FittedText::cutLastLine() {
    cut_ = true;
    QString line = trimmedEnd(lines_.back());
    const double room = usableWidth() / widthScale_ + tolerance;
    while (!line.isEmpty() && widthOf(withEllipsis(line)) > room) {
        const qsizetype blank = line.lastIndexOf(u' ');
        // Whole words go first; a line of one word loses letters, never half a surrogate pair.
        line.truncate(blank > 0 && element_.wordWrap ? blank
                                                     : line.size() - (line.back().isLowSurrogate() ? 2 : 1));
        line = trimmedEnd(line);
    }
    lines_.back() = withEllipsis(line);
}

void FittedText::place() {
    double top = 0;
    const double block = lineHeight_ * double(lines_.size());
    if (element_.alignment & Qt::AlignVCenter)
        top = (element_.height - block) / 2;
    else if (element_.alignment & Qt::AlignBottom)
        top = element_.height - block;

    placed_.reserve(std::size_t(lines_.size()));
    for (const QString& text : std::as_const(lines_)) {
        Line line;
        line.layout = singleLine(trimmedEnd(text), font_);
        line.width = line.layout->lineAt(0).naturalTextWidth();
        const double spare = usableWidth() - line.width * widthScale_;
        double left = 0;
        if (element_.alignment & Qt::AlignRight)
            left = spare;
        else if (element_.alignment & Qt::AlignHCenter)
            left = spare / 2;
        line.at = {left, top};
        top += lineHeight_;
        placed_.push_back(std::move(line));
    }
}

QRectF FittedText::bounds() const {
    QRectF all;
    for (const Line& line : placed_)
        all |= QRectF(element_.left + line.at.x(), element_.top + line.at.y(), line.width * widthScale_,
                      lineHeight_);
    return all;
}

void FittedText::paint(QPainter& painter, QPointF origin) const {
    painter.setPen(element_.colour);
    for (const Line& line : placed_) {
        if (line.width <= 0)
            continue;
        painter.save();
        painter.translate(origin + line.at);
        painter.scale(widthScale_, 1);
        line.layout->draw(&painter, {0, 0});
        painter.restore();
    }
}

} // namespace sheet
