#include "Manuale.h"

#include "PaginaHtml.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

#include <cmath>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

// All lengths are pixels at 96 dots an inch, which is what the text's own sizes mean; the painter makes them
// finer.
constexpr int resolution = 600; // dots an inch
constexpr double finer = resolution / 96.0;
constexpr double millimetre = 96 / 25.4;
constexpr double margin = 24 * millimetre;
constexpr double footer = 12 * millimetre;
constexpr int widestPicture = 560; // nearly the text's width

using PageNumbers = QHash<QString, int>;

const QString styleSheet = QStringLiteral(R"(
    body { font-family: 'Liberation Serif', 'Times New Roman', serif; font-size: 11pt; }
    p { margin-top: 0; margin-bottom: 9px; line-height: 122%; }
    li { margin-bottom: 5px; line-height: 120%; }
    ul, ol { margin-top: 3px; margin-bottom: 11px; }
    h1 { font-family: 'Liberation Sans', sans-serif; font-size: 20pt; color: #1f4e79; margin-bottom: 16px; }
    h2 { font-family: 'Liberation Sans', sans-serif; font-size: 14pt; color: #1f4e79; margin-top: 21px;
         margin-bottom: 8px; }
    h3 { font-family: 'Liberation Sans', sans-serif; font-size: 11.5pt; margin-top: 16px; margin-bottom: 5px; }
    .capitolo { font-family: 'Liberation Sans', sans-serif; font-size: 11pt; color: #7a8591; }
    .voce { font-family: 'Liberation Sans', sans-serif; font-size: 11pt; font-weight: bold; }
    table.nota { background-color: #eaf1f8; margin-top: 8px; margin-bottom: 13px; }
    a { color: #1f4e79; text-decoration: none; }
)");

QString contents(const Guida& guide, const PageNumbers& numbers) {
    QString html = u"<h1>Indice</h1><table width=\"100%\" cellpadding=\"2\">"_s;
    for (const Capitolo& chapter : guide.capitoli) {
        html += u"<tr><td colspan=\"2\" class=\"voce\">%1</td></tr>"_s.arg(chapter.titolo.toHtmlEscaped());
        for (const Pagina& page : chapter.pagine) {
            html += u"<tr><td style=\"padding-left:18px\">%1</td><td align=\"right\">%2</td></tr>"_s
                        .arg(page.titolo.toHtmlEscaped())
                        .arg(numbers.value(page.id));
        }
        html += u"<tr><td style=\"font-size:5pt\">&nbsp;</td></tr>"_s;
    }
    return html + u"</table>"_s;
}

QString manualHtml(const Guida& guide, const QString& screens, const PageNumbers& numbers) {
    const ComeHtml how{screens, widestPicture, [&numbers](const QString& id, const QString& text) {
                           return u"%1 (pag. %2)"_s.arg(text.toHtmlEscaped()).arg(numbers.value(id));
                       }};
    QString html = u"<html><body>"_s + contents(guide, numbers);
    for (const Capitolo& chapter : guide.capitoli) {
        bool first = true;
        for (const Pagina& page : chapter.pagine) {
            // A chapter begins on a new page; its pages follow each other.
            if (first) {
                html += u"<p class=\"capitolo\" style=\"page-break-before:always\">%1</p>"_s.arg(
                    chapter.titolo.toHtmlEscaped());
            }
            html += u"<h1 style=\"margin-top:%1px\"><a name=\"%2\">%3</a></h1>"_s.arg(first ? 0 : 34)
                        .arg(page.id, page.titolo.toHtmlEscaped());
            html += paginaHtml(page.testo, how);
            first = false;
        }
    }
    return html + u"</body></html>"_s;
}

/// Where each page of the guide stands, the title page counted as the first.
PageNumbers measure(const QTextDocument& document) {
    PageNumbers numbers;
    const double height = document.pageSize().height();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            for (const QString& name : fragment.fragment().charFormat().anchorNames()) {
                const double top = document.documentLayout()->blockBoundingRect(block).top();
                numbers.insert(name, static_cast<int>(top / height) + 2);
            }
        }
    }
    return numbers;
}

/// The first of the headings that stand alone at a page's foot, their text beginning on the next page.
QTextBlock loneHeading(const QTextDocument& document) {
    const QAbstractTextDocumentLayout& layout = *document.documentLayout();
    const double height = document.pageSize().height();
    QTextBlock run; // where the headings right before this block begin
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) {
            run = run.isValid() ? run : block;
        } else if (block.layout()->lineCount() > 0) { // not a table's frame
            const double firstLine =
                layout.blockBoundingRect(block).top() + block.layout()->lineAt(0).rect().bottom();
            if (run.isValid() && static_cast<int>(firstLine / height) !=
                                     static_cast<int>(layout.blockBoundingRect(run).top() / height))
                return run;
            run = QTextBlock();
        }
    }
    return {};
}

/// Lone headings go to the next page, with what follows them.
void keepHeadings(QTextDocument& document) {
    const QSizeF page = document.pageSize();
    for (QTextBlock lone = loneHeading(document); lone.isValid(); lone = loneHeading(document)) {
        QTextBlockFormat format = lone.blockFormat();
        if (format.pageBreakPolicy() == QTextFormat::PageBreak_AlwaysBefore)
            return; // a picture higher than what is left of the page
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(lone).setBlockFormat(format);
        document.setPageSize({page.width(), page.height() + 1}); // laid out anew as a whole
        document.setPageSize(page);
    }
}

QFont sans(double points, bool bold) {
    QFont font(u"Liberation Sans"_s);
    font.setPixelSize(static_cast<int>(std::lround(points * 96 / 72)));
    font.setBold(bold);
    return font;
}

void titlePage(QPainter& painter, const QSizeF& page, const QString& logo, const QString& version) {
    QSvgRenderer drawing(logo);
    const double width = page.width() * 0.5;
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    drawing.render(&painter, {(page.width() - width) / 2, page.height() * 0.22, width, width * 0.3});
    painter.setPen(QColor(0x1f, 0x4e, 0x79));
    painter.setFont(sans(30, true));
    painter.drawText(QRectF(0, page.height() * 0.44, page.width(), 20 * millimetre), Qt::AlignHCenter,
                     u"Manuale d’uso"_s);
    painter.setPen(Qt::black);
    painter.setFont(sans(13, false));
    painter.drawText(QRectF(0, page.height() * 0.52, page.width(), 10 * millimetre), Qt::AlignHCenter,
                     u"Schede di allenamento per la pedana vibrante"_s);
    painter.setFont(sans(10, false));
    painter.drawText(QRectF(0, page.height() - 10 * millimetre, page.width(), 8 * millimetre),
                     Qt::AlignHCenter, u"Versione "_s + version);
}

void footerLine(QPainter& painter, const QSizeF& page, int number) {
    const QRectF line(0, page.height() - 6 * millimetre, page.width(), 6 * millimetre);
    painter.setPen(QPen(QColor(0xb4, 0xbc, 0xc6), 0.2 * millimetre));
    painter.drawLine(line.topLeft(), line.topRight());
    painter.setPen(QColor(0x5a, 0x64, 0x70));
    painter.setFont(sans(8.5, false));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom, u"Quiver-Deck – Manuale d’uso"_s);
    painter.drawText(line, Qt::AlignRight | Qt::AlignBottom, QString::number(number));
}

} // namespace

void scriviManuale(const Guida& guide, const QString& screens, const QString& logo, const QString& version,
                   const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error((path + u": "_s + file.errorString()).toStdString());
    QPdfWriter writer(&file);
    writer.setResolution(resolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({0, 0, 0, 0});
    writer.setTitle(u"Quiver-Deck – Manuale d’uso"_s);
    writer.setCreator(u"Quiver-Deck"_s);
    const QSizeF page(writer.width() / finer - 2 * margin, writer.height() / finer - 2 * margin);
    const QSizeF text(page.width(), std::floor(page.height() - footer));

    QTextDocument document;
    document.setDefaultStyleSheet(styleSheet);
    document.setDocumentMargin(0);
    QFont body(u"Liberation Serif"_s);
    body.setPointSizeF(11);
    body.setHintingPreference(QFont::PreferNoHinting);
    document.setDefaultFont(body);
    QTextOption option = document.defaultTextOption();
    option.setUseDesignMetrics(true);
    document.setDefaultTextOption(option);
    PageNumbers numbers;
    for (int pass = 0; pass < 2; ++pass) { // the second one knows the page numbers
        document.setHtml(manualHtml(guide, screens, numbers));
        document.setPageSize(text);
        keepHeadings(document);
        numbers = measure(document);
    }

    QPainter painter(&writer);
    painter.scale(finer, finer);
    painter.translate(margin, margin);
    titlePage(painter, page, logo, version);
    for (int number = 0; number < document.pageCount(); ++number) {
        writer.newPage();
        const QRectF view(0, number * text.height(), text.width(), text.height());
        painter.save();
        painter.translate(0, -view.top());
        painter.setClipRect(view);
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = view;
        context.palette.setColor(QPalette::Text, Qt::black);
        document.documentLayout()->draw(&painter, context);
        painter.restore();
        footerLine(painter, page, number + 2);
    }
}
