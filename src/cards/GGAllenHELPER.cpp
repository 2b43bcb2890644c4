#include "cards/GGAllenHELPER.h"

#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

namespace GGAllenHELPER {

namespace {

constexpr QChar spuntato = u'1';
constexpr qsizetype primoGiorno = 2; // behind daily and none

} // namespace

void scriviGGAllen(const QString& giorni, host::CheckList& lista) {
    for (qsizetype i = 0; i < giorni.size(); ++i) {
        if (giorni[i] != spuntato)
            continue;
        if (i >= lista.count())
            runtime::raise(runtime::SubscriptOutOfRange);
        lista.setChecked(static_cast<int>(i), true);
    }
}

QString leggiGGAllen(const host::CheckList& lista) {
    QString giorni;
    for (int i = 0; i < lista.count(); ++i)
        giorni += lista.checked(i) ? spuntato : QChar(u'0');
    return giorni;
}

QString descrizioneGGAllen(const QString& giorni) {
    std::array<QString, 8> nomi;
    nomiGiorni(nomi);
    if (giorni.startsWith(spuntato))
        return u"GIORNALIERO"_s;
    if (giorni.mid(1).startsWith(spuntato))
        return u"NESSUNO"_s;
    QString testo;
    for (qsizetype i = primoGiorno; i < giorni.size(); ++i) {
        if (giorni[i] != spuntato)
            continue;
        const auto giorno = static_cast<std::size_t>(i - primoGiorno);
        if (giorno >= nomi.size())
            runtime::raise(runtime::SubscriptOutOfRange);
        if (!testo.isEmpty())
            testo += u" - "_s;
        testo += nomi[giorno];
    }
    return testo;
}

void nomiGiorni(std::array<QString, 8>& giorni) {
    giorni = {u"LUN"_s, u"MAR"_s, u"MER"_s, u"GIO"_s, u"VEN"_s, u"SAB"_s, u"DOM"_s, QString()};
}

} // namespace GGAllenHELPER
