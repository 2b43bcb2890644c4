#include "desktop/FinestraGuida.h"

#include "core/Guida.h"
#include "core/ImmaginiToolbar.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Services.h"
#include "platform/runtime/Error.h"
#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

#include <QApplication>
#include <QDesktopServices>
#include <QShortcut>
#include <QToolButton>
#include <QWindow>

using namespace Qt::StringLiterals;
using toolkit::place;

namespace {

constexpr int ruoloId = Qt::UserRole;
constexpr double larghezzaIndice = 3750; // twips

const QString stile = u"h1 { font-size: 20px; color: #1f4e79; margin-bottom: 10px; }"
                      "h2 { font-size: 15px; color: #1f4e79; margin-top: 14px; margin-bottom: 5px; }"
                      "p { margin-top: 0; margin-bottom: 8px; line-height: 130%; }"
                      "li { margin-bottom: 4px; line-height: 125%; }"
                      "table.nota { background-color: #eaf1f8; margin-top: 6px; margin-bottom: 10px; }"
                      "a { color: #2f6fa8; }"_s;

} // namespace

FinestraGuida::FinestraGuida()
    : Form(u"FinestraGuida"_s), Toolbar(u"Toolbar"_s, this), ImageList1({24, 24}),
      Label1(u"Label1"_s, u"Cerca:"_s, client()), cerca(u"cerca"_s, client()), indice(client()),
      testo(client()) {
    setCaption(u"Guida del programma"_s);
    setInnerSize(13500, 8700);
    setResizable(true);

    addTopBar(&Toolbar);
    Toolbar.addButton(u"indietro"_s, u"Indietro"_s, u"Torna alla pagina di prima"_s)
        ->setShortcut(QKeySequence::Back);
    Toolbar.addButton(u"avanti"_s, u"Avanti"_s, u"Va alla pagina da cui si è tornati"_s)
        ->setShortcut(QKeySequence::Forward);
    Toolbar.addButton(u"inizio"_s, u"Inizio"_s, u"Va alla prima pagina"_s);

    cerca.setAccessibleName(Label1.caption());
    cerca.setClearButtonEnabled(true);
    cerca.setToolTip(u"Mostra nell’indice le pagine che contengono queste parole"_s);
    indice.setObjectName(u"indice"_s);
    indice.setAccessibleName(u"Indice"_s);
    indice.setHeaderHidden(true);
    indice.setRootIsDecorated(false);
    indice.setIndentation(14);
    testo.setObjectName(u"testo"_s);
    testo.setAccessibleName(u"Pagina della guida"_s);
    testo.setOpenLinks(false);
    testo.setFont(toolkit::font(u"Arial"_s, 10));
    testo.document()->setDefaultStyleSheet(stile);
    testo.document()->setDocumentMargin(18);

    connect(&Toolbar, &toolkit::Toolbar::buttonClick, this, &FinestraGuida::Toolbar_ButtonClick);
    connect(&cerca, &toolkit::TextBox::changed, this, &FinestraGuida::cercaNellaGuida);
    connect(&indice, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* voce) {
        if (voce != nullptr && !voce->data(0, ruoloId).toString().isEmpty())
            apri(voce->data(0, ruoloId).toString());
    });
    connect(&testo, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) {
        if (url.scheme().isEmpty()) {
            apri(url.fragment());
        } else {
            QDesktopServices::openUrl(url);
        }
    });
    auto* trova = new QShortcut(QKeySequence::Find, this);
    connect(trova, &QShortcut::activated, this, [this] { cerca.setFocus(); });
}

void FinestraGuida::mostra(const QString& id) {
    FinestraGuida& guida = comune();
    try {
        guida.load();
    } catch (const runtime::Error& errore) {
        host::message(errore.description(), host::Icon::Critical);
        return;
    }
    guida.apri(id);
    guida.show();
    // A child of the modal window, if there is one, is not blocked by it.
    guida.stayAbove(QApplication::activeModalWidget());
    guida.raise();
    guida.activateWindow();
}

void FinestraGuida::onLoad() {
    pagine = leggiPagineGuida(host::resolve(guida::file));
    vestiToolbar(Toolbar, ImageList1, objectName());
    riempiIndice();
}

void FinestraGuida::onResize() {
    const double altezza = innerHeight();
    place(Label1, 120, 165, 720, 225);
    place(cerca, 840, 120, larghezzaIndice - 840, 315);
    place(indice, 120, 555, larghezzaIndice - 120, altezza - 675);
    place(testo, larghezzaIndice + 120, 120, innerWidth() - larghezzaIndice - 240, altezza - 240);
}

void FinestraGuida::changeEvent(QEvent* event) {
    Form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && posto != nessuna)
        mostraCorrente();
}

QString FinestraGuida::pagina() const {
    return posto == nessuna ? QString() : strada.at(posto);
}

void FinestraGuida::apri(const QString& id) {
    const bool nota =
        std::any_of(pagine.begin(), pagine.end(), [&id](const PaginaGuida& una) { return una.id == id; });
    const QString voluta = nota ? id : pagine.front().id;
    if (voluta == pagina())
        return;
    strada = strada.first(posto + 1);
    strada.append(voluta);
    posto = strada.size() - 1;
    mostraCorrente();
}

void FinestraGuida::indietro() {
    if (posto > 0) {
        --posto;
        mostraCorrente();
    }
}

void FinestraGuida::avanti() {
    if (posto + 1 < strada.size()) {
        ++posto;
        mostraCorrente();
    }
}

void FinestraGuida::mostraCorrente() {
    const auto una =
        std::find_if(pagine.begin(), pagine.end(), [this](const PaginaGuida& p) { return p.id == pagina(); });
    testo.setHtml(una->html);
    if (!cerca.text().trimmed().isEmpty())
        testo.find(cerca.text().trimmed().section(u' ', 0, 0));
    Toolbar.setButtonEnabled(u"indietro"_s, posto > 0);
    Toolbar.setButtonEnabled(u"avanti"_s, posto + 1 < strada.size());
    const QSignalBlocker zitto(&indice);
    for (QTreeWidgetItemIterator voce(&indice); *voce != nullptr; ++voce) {
        if ((*voce)->data(0, ruoloId).toString() == pagina()) {
            indice.setCurrentItem(*voce);
            return;
        }
    }
    indice.setCurrentItem(nullptr);
}

void FinestraGuida::riempiIndice() {
    const QSignalBlocker zitto(&indice);
    const QString parole = cerca.text().trimmed();
    indice.clear();
    QTreeWidgetItem* capitolo = nullptr;
    for (const PaginaGuida& una : pagine) {
        if (!parole.isEmpty() && !una.contiene(parole))
            continue;
        if (capitolo == nullptr || capitolo->text(0) != una.capitolo) {
            capitolo = new QTreeWidgetItem(&indice, {una.capitolo});
            capitolo->setFlags(Qt::ItemIsEnabled);
            QFont grassetto = indice.font();
            grassetto.setBold(true);
            capitolo->setFont(0, grassetto);
        }
        auto* voce = new QTreeWidgetItem(capitolo, {una.titolo});
        voce->setData(0, ruoloId, una.id);
        voce->setSelected(una.id == pagina());
    }
    if (capitolo == nullptr) {
        auto* nulla = new QTreeWidgetItem(&indice, {u"Nessuna pagina trovata"_s});
        nulla->setFlags(Qt::NoItemFlags);
    }
    indice.expandAll();
}

void FinestraGuida::cercaNellaGuida() {
    riempiIndice();
    if (posto != nessuna)
        mostraCorrente();
}

void FinestraGuida::Toolbar_ButtonClick(const QString& key) {
    if (key == u"indietro"_s)
        indietro();
    else if (key == u"avanti"_s)
        avanti();
    else
        apri(pagine.front().id);
}
