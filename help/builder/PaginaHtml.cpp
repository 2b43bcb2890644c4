#include "PaginaHtml.h"

#include <QBuffer>
#include <QImage>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double finer = 1.6; // a picture keeps so many of its pixels to one of the page's

/// `<img>` with the picture inside, so that the help stays one file; empty if the picture is not there.
QString imageHtml(const QString& name, const ComeHtml& how) {
    QImage image(how.screens + QLatin1Char('/') + name);
    if (image.isNull())
        return {};
    const int width = std::min(image.width(), how.larghezza);
    if (image.width() > width * finer)
        image = image.scaledToWidth(static_cast<int>(width * finer), Qt::SmoothTransformation);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return u"<img width=\"%1\" src=\"data:image/png;base64,%2\"/>"_s.arg(width).arg(
        QString::fromLatin1(bytes.toBase64()));
}

QString fragmentHtml(const QTextFragment& fragment, const ComeHtml& how) {
    const QTextCharFormat format = fragment.charFormat();
    if (format.isImageFormat())
        return imageHtml(format.toImageFormat().name(), how);
    QString text = fragment.text();
    text.replace(QChar::LineSeparator, QLatin1Char(' '));
    if (format.isAnchor()) {
        const QString target = format.anchorHref();
        if (target.endsWith(QLatin1String(".md")))
            return how.rimando(target.chopped(3), text);
        return u"<a href=\"%1\">%2</a>"_s.arg(target.toHtmlEscaped(), text.toHtmlEscaped());
    }
    QString html = text.toHtmlEscaped();
    if (format.fontItalic())
        html = u"<i>%1</i>"_s.arg(html);
    if (format.fontWeight() > QFont::Normal)
        html = u"<b>%1</b>"_s.arg(html);
    return html;
}

QString blockHtml(const QTextBlock& block, const ComeHtml& how) {
    QString html;
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
        html += fragmentHtml(fragment.fragment(), how);
    return html;
}

} // namespace

QString paginaHtml(const QString& markdown, const ComeHtml& how) {
    QTextDocument document;
    document.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    QString html;
    QString open; // the list that stands open
    const auto close = [&] {
        if (!open.isEmpty()) {
            html += u"</%1>\n"_s.arg(open);
            open.clear();
        }
    };
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString inside = blockHtml(block, how);
        if (inside.trimmed().isEmpty())
            continue;
        if (const QTextList* list = block.textList()) {
            const bool numbered = list->format().style() == QTextListFormat::ListDecimal;
            const QString tag = numbered ? u"ol"_s : u"ul"_s;
            if (open != tag || list->itemNumber(block) == 0) {
                close();
                html += u"<%1>"_s.arg(tag);
                open = tag;
            }
            html += u"<li>%1</li>"_s.arg(inside);
            continue;
        }
        close();
        if (const int level = block.blockFormat().headingLevel(); level > 0) {
            html += u"<h%1>%2</h%1>\n"_s.arg(level).arg(inside);
        } else if (block.blockFormat().intProperty(QTextFormat::BlockQuoteLevel) > 0) {
            html += u"<table class=\"nota\" width=\"100%\" cellpadding=\"7\"><tr><td>%1</td></tr>"
                    "</table>\n"_s.arg(inside);
        } else {
            html += u"<p>%1</p>\n"_s.arg(inside);
        }
    }
    close();
    return html;
}
