#include "printing/SuperficieScheda.h"

#include "printing/LoghiFissi.h"
#include "printing/Stile.h"

#include <array>

using namespace Qt::StringLiterals;

namespace sheet {

namespace {

constexpr double ruleLength = 10440;
constexpr QSizeF blockSize(5175, 2175);

enum class Role { Number, Figure, Label, Value, Wrapped, Note };

/// One element of an exercise block; the place is an offset from the frame.
struct BlockPart {
    const char* name = "";
    QRectF box;
    Role role = Role::Label;
    const char* text = "";
};

const std::array blockParts{
    BlockPart{"nprog", {180, 120, 255, 255}, Role::Number, "1"},
    BlockPart{"figura", {150, 90, 2280, 1995}, Role::Figure},
    BlockPart{"durataEti", {2520, 120, 1035, 255}, Role::Label, "Durata: "},
    BlockPart{"durata", {3210, 120, 1845, 255}, Role::Value},
    BlockPart{"frequenzaEti", {2520, 345, 1035, 255}, Role::Label, "Frequenza: "},
    BlockPart{"frequenza", {3495, 345, 1560, 255}, Role::Value},
    BlockPart{"ampiezzaEti", {2520, 570, 915, 255}, Role::Label, "Ampiezza: "},
    BlockPart{"ampiezza", {3465, 570, 1590, 255}, Role::Value},
    BlockPart{"serieEti", {2520, 825, 585, 255}, Role::Label, "Serie:"},
    BlockPart{"serie", {3060, 825, 375, 255}, Role::Value},
    BlockPart{"recuperoEti", {3510, 825, 915, 255}, Role::Label, "Recupero: "},
    BlockPart{"recupero", {4425, 825, 630, 255}, Role::Value},
    BlockPart{"modalita", {2520, 1080, 2535, 480}, Role::Wrapped, "Modalità: "},
    BlockPart{"note", {2520, 1470, 2520, 600}, Role::Note, "Note: "},
};

Element make(const BlockPart& part, int index) {
    const QString name = QString::fromLatin1(part.name);
    const QString text = QString::fromUtf8(part.text);
    if (part.role == Role::Figure)
        return pictureBox(name, index, part.box);

    Element element = textBox(name, index, part.box, verdana(8.25), text);
    switch (part.role) {
    case Role::Number:
        element.font = times(9.75, true);
        element.alignment = Qt::AlignCenter;
        element.back = Qt::yellow;
        break;
    case Role::Value:
        element.font.bold = true;
        element.alignment = Qt::AlignRight | Qt::AlignTop;
        break;
    case Role::Note:
        element.font = verdana(6.75);
        element.wordWrap = true;
        break;
    case Role::Wrapped:
        element.wordWrap = true;
        break;
    case Role::Label:
    case Role::Figure:
        break;
    }
    return element;
}

/// The number lies on the figure, so it is added after it.
void addBlock(Surface& surface, int index) {
    surface.add(roundedFrame(u"cornice"_s, index, QRectF({0, 0}, blockSize)));
    for (const BlockPart& part : blockParts)
        if (part.role != Role::Number)
            surface.add(make(part, index));
    for (const BlockPart& part : blockParts)
        if (part.role == Role::Number)
            surface.add(make(part, index));
    ripristinaBlocco(surface, index);
}

void addHeaderLabel(Surface& surface, const char* name, double height, double points, const char* text) {
    Element label = textBox(QString::fromLatin1(name), 0, {0, 0, 1575, height}, sansSerif(points, true),
                            QString::fromUtf8(text));
    label.alignment = Qt::AlignLeft | Qt::AlignVCenter;
    surface.add(std::move(label));
}

void addHeaderValue(Surface& surface, const char* name, QSizeF size, double points) {
    Element value = textBox(QString::fromLatin1(name), 0, QRectF({0, 0}, size), arial(points, true));
    value.alignment = Qt::AlignLeft | Qt::AlignVCenter;
    surface.add(std::move(value));
}

void addHeader(Surface& surface) {
    addHeaderLabel(surface, "UtenteEti", 375, 13.5, "Utente: ");
    addHeaderValue(surface, "utente", {5895, 375}, 14.25);
    addHeaderLabel(surface, "istruttoreEti", 345, 12, "Istruttore: ");
    addHeaderValue(surface, "Istruttore", {6015, 345}, 12);
    addHeaderLabel(surface, "periodoEti", 345, 12, "Periodo: ");
    addHeaderValue(surface, "Periodo", {6015, 345}, 12);
    addHeaderValue(surface, "FreqAllen", {8190, 345}, 12);
    addHeaderLabel(surface, "GGAllenEti", 345, 12, "Giorni: ");
    addHeaderValue(surface, "GGAllen", {6015, 345}, 12);
    surface.add(levelRule(u"linea"_s, ruleLength));

    Element logo = pictureBox(u"logoPalestra"_s, 0, {});
    logo.visible = false;
    surface.add(std::move(logo));

    Element heading = textBox(u"intestazione"_s, 0, {}, sansSerif(8.25));
    heading.visible = false;
    surface.add(std::move(heading));
}

void addFooter(Surface& surface) {
    surface.add(levelRule(u"linea2"_s, ruleLength));

    Element number = textBox(u"piepagina"_s, 0, {0, 0, 2175, 255}, times(9));
    number.alignment = Qt::AlignHCenter | Qt::AlignTop;
    surface.add(std::move(number));

    Element producer = textBox(u"info"_s, 0, {0, 0, 2865, 270}, times(9, false, true));
    producer.visible = false;
    surface.add(std::move(producer));

    addFixedLogos(surface);

    Element notes = textBox(u"NoteFinali"_s, 0, {510, 0, 10485, 1170}, arial(8.25, true));
    notes.wordWrap = true;
    notes.visible = false;
    surface.add(std::move(notes));
}

} // namespace

Surface cardSurface() {
    Surface surface;
    for (int index = 0; index < blocchiPerFoglio; ++index)
        addBlock(surface, index);
    addHeader(surface);
    addFooter(surface);
    return surface;
}

void ripristinaBlocco(Surface& surface, int index) {
    Element& frame = surface.element(u"cornice"_s, index);
    frame.width = blockSize.width();
    frame.height = blockSize.height();
    for (const BlockPart& part : blockParts) {
        Element& element = surface.element(QString::fromLatin1(part.name), index);
        element.left = frame.left + part.box.left();
        element.top = frame.top + part.box.top();
        element.width = part.box.width();
        element.height = part.box.height();
        element.usableWidth = 0;
        element.usableHeight = 0;
    }
}

const QStringList& elementiDelBlocco() {
    static const QStringList names = [] {
        QStringList list;
        for (const BlockPart& part : blockParts)
            list << QString::fromLatin1(part.name);
        return list;
    }();
    return names;
}

} // namespace sheet
