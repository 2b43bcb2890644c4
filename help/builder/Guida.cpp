#include "Guida.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <stdexcept>

namespace {

[[noreturn]] void wrong(const QString& file, const QString& reason) {
    throw std::runtime_error(QStringLiteral("%1: %2").arg(file, reason).toStdString());
}

QString read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        wrong(path, file.errorString());
    }
    return QString::fromUtf8(file.readAll());
}

Pagina readPage(const QString& folder, const QString& id) {
    const QString path = QStringLiteral("%1/pagine/%2.md").arg(folder, id);
    const QString text = read(path);
    if (!text.startsWith(QLatin1String("# "))) {
        wrong(path, QStringLiteral("the first line is no title"));
    }
    const qsizetype end = text.indexOf(QLatin1Char('\n'));
    return {id, text.mid(2, end - 2).trimmed(), text.mid(end + 1)};
}

void checkLinks(const Guida& guide) {
    static const QRegularExpression link(QStringLiteral(R"(\]\(([^)]+)\.md\))"));
    for (const Capitolo& chapter : guide.capitoli) {
        for (const Pagina& page : chapter.pagine) {
            for (auto found = link.globalMatch(page.testo); found.hasNext();) {
                const QString target = found.next().captured(1);
                if (guide.pagina(target) == nullptr) {
                    wrong(page.id, QStringLiteral("there is no page %1").arg(target));
                }
            }
        }
    }
}

} // namespace

const Pagina* Guida::pagina(const QString& id) const {
    for (const Capitolo& chapter : capitoli) {
        for (const Pagina& page : chapter.pagine) {
            if (page.id == id) {
                return &page;
            }
        }
    }
    return nullptr;
}

Guida leggiGuida(const QString& folder) {
    Guida guide;
    const QString index = folder + QStringLiteral("/indice.txt");
    QSet<QString> named;
    for (const QString& line : read(index).split(QLatin1Char('\n'))) {
        const QString entry = line.trimmed();
        if (entry.startsWith(QLatin1String("# "))) {
            guide.capitoli.push_back({entry.mid(2), {}});
        } else if (!entry.isEmpty()) {
            if (guide.capitoli.empty() || named.contains(entry)) {
                wrong(index, entry);
            }
            guide.capitoli.back().pagine.push_back(readPage(folder, entry));
            named.insert(entry);
        }
    }
    for (const QString& file : QDir(folder + QStringLiteral("/pagine")).entryList({QStringLiteral("*.md")})) {
        if (!named.contains(file.chopped(3))) {
            wrong(index, QStringLiteral("does not name ") + file);
        }
    }
    checkLinks(guide);
    return guide;
}
