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

FittedText::FittedText(const Element& element) : mElement(element) {
    QString text = element.text;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n').replace(u'\t', u' ');
    if (element.wordWrap)
        fitWrapped(text);
    else
        fitSingle(text.replace(u'\n', u' '));
    place();
}

double FittedText::usableWidth() const {
    return mElement.usableWidth > 0 ? mElement.usableWidth : mElement.width;
}

double FittedText::usableHeight() const {
    return mElement.usableHeight > 0 ? mElement.usableHeight : mElement.height;
}

void FittedText::useScale(double scale) {
    mSizeScale = scale;
    mFont = pageFont(mElement.font, scale);
    mLineHeight = QFontMetricsF(mFont).height();
}

double FittedText::widthOf(const QString& text) const {
    return singleLine(trimmedEnd(text), mFont)->lineAt(0).naturalTextWidth();
}

void FittedText::fitSingle(const QString& text) {
    useScale(1);
    mLines = {text};
    const double room = usableWidth() + tolerance;
    double width = widthOf(text);
    if (width <= room)
        return;
    mWidthScale = std::max(leastScale, usableWidth() / width);
    if (width * mWidthScale <= room)
        return;
    useScale(std::max(leastSingleScale, usableWidth() / (width * mWidthScale)));
    width = widthOf(text);
    // The size is whole twips: take up what rounding left over.
    if (width * mWidthScale > room && width * mWidthScale < usableWidth() * 1.02)
        mWidthScale = usableWidth() / width;
    if (width * mWidthScale > room)
        cutLastLine();
}

/// Breaks into at most `most` lines; tells whether the whole text found room.
bool FittedText::breakLines(const QString& text, qsizetype most) {
    mLines.clear();
    for (const QString& paragraph : text.split(u'\n')) {
        if (mLines.size() == most)
            return false;
        if (paragraph.isEmpty()) {
            mLines << QString();
            continue;
        }
        QTextLayout layout(paragraph, mFont);
        layout.setTextOption(optionFor(true));
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            if (mLines.size() == most)
                return false;
            line.setLineWidth(usableWidth());
            mLines << paragraph.mid(line.textStart(), line.textLength());
        }
        layout.endLayout();
    }
    return true;
}

void FittedText::fitWrapped(const QString& text) {
    const double leastWrapped = std::min(leastScale, leastPoints / mElement.font.points);
    const double smallest = mElement.font.points * twipsPerPoint * leastWrapped;
    const double linesAtMost = usableHeight() / smallest + 1;
    const auto worthShaping = qsizetype(linesAtMost * (usableWidth() / (smallest * narrowestLetter) + 1));
    const QString beginning = text.left(worthShaping);
    const int steps = int(std::floor((1 - leastWrapped) / scaleStep + 1e-6));
    for (int step = 0; step <= steps; ++step) {
        useScale(1 - step * scaleStep);
        const auto most = std::max<qsizetype>(1, qsizetype((usableHeight() + tolerance) / mLineHeight));
        if (breakLines(beginning, most) && beginning.size() == text.size())
            return;
    }
    cutLastLine();
}

void FittedText::cutLastLine() {
    mCut = true;
    QString line = trimmedEnd(mLines.back());
    const double room = usableWidth() / mWidthScale + tolerance;
    while (!line.isEmpty() && widthOf(withEllipsis(line)) > room) {
        const qsizetype blank = line.lastIndexOf(u' ');
        // Whole words go first; a line of one word loses letters, never half a surrogate pair.
        line.truncate(blank > 0 && mElement.wordWrap ? blank
                                                     : line.size() - (line.back().isLowSurrogate() ? 2 : 1));
        line = trimmedEnd(line);
    }
    mLines.back() = withEllipsis(line);
}

void FittedText::place() {
    double top = 0;
    const double block = mLineHeight * double(mLines.size());
    if (mElement.alignment & Qt::AlignVCenter)
        top = (mElement.height - block) / 2;
    else if (mElement.alignment & Qt::AlignBottom)
        top = mElement.height - block;

    mPlaced.reserve(std::size_t(mLines.size()));
    for (const QString& text : std::as_const(mLines)) {
        Line line;
        line.layout = singleLine(trimmedEnd(text), mFont);
        line.width = line.layout->lineAt(0).naturalTextWidth();
        const double spare = usableWidth() - line.width * mWidthScale;
        double left = 0;
        if (mElement.alignment & Qt::AlignRight)
            left = spare;
        else if (mElement.alignment & Qt::AlignHCenter)
            left = spare / 2;
        line.at = {left, top};
        top += mLineHeight;
        mPlaced.push_back(std::move(line));
    }
}

QRectF FittedText::bounds() const {
    QRectF all;
    for (const Line& line : mPlaced)
        all |= QRectF(mElement.left + line.at.x(), mElement.top + line.at.y(), line.width * mWidthScale,
                      mLineHeight);
    return all;
}

void FittedText::paint(QPainter& painter, QPointF origin) const {
    painter.setPen(mElement.colour);
    for (const Line& line : mPlaced) {
        if (line.width <= 0)
            continue;
        painter.save();
        painter.translate(origin + line.at);
        painter.scale(mWidthScale, 1);
        line.layout->draw(&painter, {0, 0});
        painter.restore();
    }
}

} // namespace sheet
