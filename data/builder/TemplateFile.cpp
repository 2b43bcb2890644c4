#include "TemplateFile.h"

#include "CsvFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace catalogue {

namespace {
constexpr int greatestMinutes = 255;
constexpr int greatestSeconds = 59;
constexpr int greatestSeries = 99;
constexpr int fieldCount = 9;

const QString csvHeader = u"figura;durata;frequenza;ampiezza;recupero;serie;modalita;peso;note"_s;

QString oneOf(const QStringList& list, const QString& value, const QString& place) {
    if (!list.contains(value))
        throw Error(u"%1: \"%2\" is none of %3"_s.arg(place, value, list.join(u", "_s)));
    return value;
}

int within(const QString& value, int greatest, const QString& what, const QString& place) {
    bool whole = false;
    const int number = value.toInt(&whole);
    if (!whole || number < 0 || number > greatest)
        throw Error(u"%1: %2 is \"%3\", not a whole number up to %4"_s.arg(place, what, value).arg(greatest));
    return number;
}

TemplateLine readLine(const QString& text, const QString& place) {
    const QStringList fields = splitCsvLine(text, place);
    if (fields.size() != fieldCount)
        throw Error(u"%1: %2 fields, not %3"_s.arg(place).arg(fields.size()).arg(fieldCount));
    TemplateLine line;
    line.place = place;
    line.figure = fields.at(0);
    line.note = fields.at(8);
    line.isLibero = line.figure.isEmpty();
    if (line.isLibero) {
        if (line.note.isEmpty())
            throw Error(u"%1: a free line without a text"_s.arg(place));
        // The hidden fields hold what the editor leaves in an untouched row.
        line.durata = durate().front();
        line.frequenza = frequenze().front();
        line.ampiezza = ampiezze().front();
        line.modalita = modi().front();
        return line;
    }
    line.durata = oneOf(durate(), fields.at(1), place);
    line.frequenza = oneOf(frequenze(), fields.at(2), place);
    line.ampiezza = oneOf(ampiezze(), fields.at(3), place);
    const QStringList recovery = fields.at(4).split(QLatin1Char(':'));
    if (recovery.size() != 2)
        throw Error(u"%1: the recovery is \"%2\", not minutes:seconds"_s.arg(place, fields.at(4)));
    line.recuperoMin = within(recovery.at(0), greatestMinutes, u"minutes"_s, place);
    line.recuperoSec = within(recovery.at(1), greatestSeconds, u"seconds"_s, place);
    line.serie = within(fields.at(5), greatestSeries, u"serie"_s, place);
    line.modalita = oneOf(modi(), fields.at(6), place);
    line.peso = fields.at(7);
    return line;
}
} // namespace

const QStringList& durate() {
    static const QStringList list{u"30s"_s, u"45s"_s, u"60s"_s};
    return list;
}

const QStringList& frequenze() {
    static const QStringList list{u"30Hz"_s, u"35Hz"_s, u"40Hz"_s, u"50Hz"_s};
    return list;
}

const QStringList& ampiezze() {
    static const QStringList list{u"L"_s, u"H"_s};
    return list;
}

const QStringList& modi() {
    static const QStringList list{u"Statico a carico naturale"_s, u"Statico a carico aggiuntivo"_s,
                                  u"Dinamico a carico naturale"_s, u"Dinamico a carico aggiuntivo"_s,
                                  u"Combinata"_s};
    return list;
}

TemplateFile::TemplateFile(const QString& path) {
    const QString file = QFileInfo(path).fileName();
    bool inHead = true;
    const QStringList all = readLines(path);
    for (qsizetype i = 0; i < all.size(); ++i) {
        const QString text = all.at(i).trimmed();
        const QString place = u"%1:%2"_s.arg(file).arg(i + 1);
        if (text.isEmpty() || text.startsWith(QLatin1Char('#')))
            continue;
        if (text == csvHeader) {
            inHead = false;
        } else if (!inHead) {
            lines.push_back(readLine(text, place));
        } else {
            const qsizetype colon = text.indexOf(QLatin1Char(':'));
            const QString name = text.left(colon);
            const QString value = text.mid(colon + 1).trimmed();
            if (name == QLatin1String("categoria"))
                categoria = value;
            else if (name == QLatin1String("descrizione"))
                descrizione = value;
            else if (name == QLatin1String("note"))
                note = value;
            else
                throw Error(u"%1: \"%2\" is no name of a head line"_s.arg(place, name));
        }
    }
    if (categoria.isEmpty() || descrizione.isEmpty() || lines.empty())
        throw Error(u"%1: category, description and exercises are needed"_s.arg(file));
}

} // namespace catalogue
