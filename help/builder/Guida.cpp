#include "Guida.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void wrong(const QString& file, const QString& reason) {
    throw std::runtime_error(u"%1: %2"_s.arg(file, reason).toStdString());
}

QString read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        wrong(path, file.errorString());
    return QString::fromUtf8(file.readAll());
}

Pagina readPage(const QString& folder, const QString& id) {
    const QString path = u"%1/pagine/%2.md"_s.arg(folder, id);
    const QString text = read(path);
    if (!text.startsWith(QLatin1String("# ")))
        wrong(path, u"the first line is no title"_s);
    const qsizetype end = text.indexOf(QLatin1Char('\n'));
    return {id, text.mid(2, end - 2).trimmed(), text.mid(end + 1)};
}

void checkLinks(const Guida& guide) {
    static const QRegularExpression link(QStringLiteral(R"(\]\(([^)]+)\.md\))"));
    for (const Capitolo& chapter : guide.capitoli) {
        for (const Pagina& page : chapter.pagine) {
            for (auto found = link.globalMatch(page.testo); found.hasNext();) {
                const QString target = found.next().captured(1);
                if (guide.pagina(target) == nullptr)
                    wrong(page.id, u"there is no page %1"_s.arg(target));
            }
        }
    }
}

} // namespace

const Pagina* Guida::pagina(const QString& id) const {
    for (const Capitolo& chapter : capitoli) {
        for (const Pagina& page : chapter.pagine)
            if (page.id == id)
                return &page;
    }
    return nullptr;
}

Guida leggiGuida(const QString& folder) {
    Guida guide;
    const QString index = folder + u"/indice.txt"_s;
    QSet<QString> named;
    for (const QString& line : read(index).split(QLatin1Char('\n'))) {
        const QString entry = line.trimmed();
        if (entry.startsWith(QLatin1String("# "))) {
            guide.capitoli.push_back({entry.mid(2), {}});
        } else if (!entry.isEmpty()) {
            if (guide.capitoli.empty() || named.contains(entry))
                wrong(index, entry);
            guide.capitoli.back().pagine.push_back(readPage(folder, entry));
            named.insert(entry);
        }
    }
    for (const QString& file : QDir(folder + u"/pagine"_s).entryList({u"*.md"_s}))
        if (!named.contains(file.chopped(3)))
            wrong(index, u"does not name "_s + file);
    checkLinks(guide);
    return guide;
}
