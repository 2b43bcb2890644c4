#include "PaginaHtml.h"

#include <QBuffer>
#include <QImage>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

namespace {

constexpr double finer = 1.6; // a picture keeps so many of its pixels to one of the page's

/// `<img>` with the picture inside, so that the help stays one file; empty if the picture is not there.
QString imageHtml(const QString& name, const ComeHtml& how) {
    QImage image(how.screens + QLatin1Char('/') + name);
    if (image.isNull()) {
        return {};
    }
    const int width = std::min(image.width(), how.larghezza);
    if (image.width() > width * finer) {
        image = image.scaledToWidth(static_cast<int>(width * finer), Qt::SmoothTransformation);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return QStringLiteral("<img width=\"%1\" src=\"data:image/png;base64,%2\"/>")
        .arg(width)
        .arg(QString::fromLatin1(bytes.toBase64()));
}

QString fragmentHtml(const QTextFragment& fragment, const ComeHtml& how) {
    const QTextCharFormat format = fragment.charFormat();
    if (format.isImageFormat()) {
        return imageHtml(format.toImageFormat().name(), how);
    }
    QString text = fragment.text();
    text.replace(QChar::LineSeparator, QLatin1Char(' '));
    if (format.isAnchor()) {
        const QString target = format.anchorHref();
        if (target.endsWith(QLatin1String(".md"))) {
            return how.rimando(target.chopped(3), text);
        }
        return QStringLiteral("<a href=\"%1\">%2</a>").arg(target.toHtmlEscaped(), text.toHtmlEscaped());
    }
    QString html = text.toHtmlEscaped();
    if (format.fontItalic()) {
        html = QStringLiteral("<i>%1</i>").arg(html);
    }
    if (format.fontWeight() > QFont::Normal) {
        html = QStringLiteral("<b>%1</b>").arg(html);
    }
    return html;
}

QString blockHtml(const QTextBlock& block, const ComeHtml& how) {
    QString html;
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
        html += fragmentHtml(fragment.fragment(), how);
    }
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
            html += QStringLiteral("</%1>\n").arg(open);
            open.clear();
        }
    };
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString inside = blockHtml(block, how);
        if (inside.trimmed().isEmpty()) {
            continue;
        }
        if (const QTextList* list = block.textList()) {
            const bool numbered = list->format().style() == QTextListFormat::ListDecimal;
            const QString tag = numbered ? QStringLiteral("ol") : QStringLiteral("ul");
            if (open != tag || list->itemNumber(block) == 0) {
                close();
                html += QStringLiteral("<%1>").arg(tag);
                open = tag;
            }
            html += QStringLiteral("<li>%1</li>").arg(inside);
            continue;
        }
        close();
        if (const int level = block.blockFormat().headingLevel(); level > 0) {
            html += QStringLiteral("<h%1>%2</h%1>\n").arg(level).arg(inside);
        } else if (block.blockFormat().intProperty(QTextFormat::BlockQuoteLevel) > 0) {
            html +=
                QStringLiteral("<table class=\"nota\" width=\"100%\" cellpadding=\"7\"><tr><td>%1</td></tr>"
                               "</table>\n")
                    .arg(inside);
        } else {
            html += QStringLiteral("<p>%1</p>\n").arg(inside);
        }
    }
    close();
    return html;
}
