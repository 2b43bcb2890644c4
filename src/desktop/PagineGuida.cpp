#include "desktop/PagineGuida.h"

#include "platform/runtime/Error.h"

#include <QFile>
#include <QHash>
#include <QTextDocumentFragment>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QHash<QString, QString>& pagine() {
    static const QHash<QString, QString> tutte{
        {u"Principale"_s, u"finestra-principale"_s},
        {u"frmPersonalizza"_s, u"palestra"_s},
        {u"UtentiSelezione"_s, u"atleti"_s},
        {u"UtentiNuovo"_s, u"nuovo-atleta"_s},
        {u"mdiScheda"_s, u"nuova-scheda"_s},
        {u"SchedaIntestazione"_s, u"intestazione"_s},
        {u"SchedaCorpo"_s, u"esercizi"_s},
        {u"SchedaSelezioneFIGURE"_s, u"figure"_s},
        {u"SchedaPreviewFigura"_s, u"figure"_s},
        {u"SchedeSelezione"_s, u"apri-scheda"_s},
        {u"SchedeMODELLOSelezione"_s, u"modelli"_s},
        {u"SchedeMODELLONuova"_s, u"nuovo-modello"_s},
        {u"SchedaIntestazioneMODELLO"_s, u"modificare-modello"_s},
        {u"PrinterCanvas"_s, u"stampa"_s},
        {u"PrinterDaNonFare"_s, u"istruzioni-uso"_s},
        {u"ResolutionConfirm"_s, u"schermo"_s},
        {u"frmAbout"_s, u"benvenuto"_s},
    };
    return tutte;
}

/// Lower case, without accents, with straight apostrophes.
QString semplice(const QString& testo) {
    QString risultato;
    for (const QChar c : testo.normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing)
            risultato.append(c == u'’' ? QChar(u'\'') : c.toLower());
    return risultato;
}

/// What follows `segno` up to the comment's end, if the line is such a comment.
bool commento(const QString& riga, const QString& segno, QString& contenuto) {
    if (!riga.startsWith(segno) || !riga.endsWith(u"-->"_s))
        return false;
    contenuto = riga.mid(segno.size()).chopped(3);
    return true;
}

} // namespace

bool PaginaGuida::contiene(const QString& cerca) const {
    const QString testo = semplice(QTextDocumentFragment::fromHtml(html).toPlainText());
    const QStringList parole = semplice(cerca).split(u' ', Qt::SkipEmptyParts);
    return std::all_of(parole.begin(), parole.end(),
                       [&testo](const QString& parola) { return testo.contains(parola); });
}

std::vector<PaginaGuida> leggiPagineGuida(const QString& file) {
    std::vector<PaginaGuida> lette;
    QFile origine(file);
    if (origine.open(QIODevice::ReadOnly)) {
        QString capitolo;
        QString contenuto;
        const QStringList righe = QString::fromUtf8(origine.readAll()).split(u'\n');
        for (const QString& riga : righe)
            if (commento(riga, u"<!--capitolo "_s, contenuto))
                capitolo = contenuto;
            else if (commento(riga, u"<!--pagina "_s, contenuto))
                lette.push_back({contenuto.section(u'|', 0, 0), contenuto.section(u'|', 1), capitolo, {}});
            else if (riga == u"<!--fine-->"_s)
                break;
            else if (!lette.empty())
                lette.back().html += riga + u'\n';
    }
    if (lette.empty())
        runtime::raise(runtime::FileNotFound, u"La guida non si trova o non è leggibile: "_s + file);
    return lette;
}

bool haPagina(const QString& finestra) {
    return pagine().contains(finestra);
}

QString paginaDellaFinestra(const QString& finestra) {
    return pagine().value(finestra, u"benvenuto"_s);
}
