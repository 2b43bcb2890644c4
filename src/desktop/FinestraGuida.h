#pragma once

#include "desktop/PagineGuida.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ImageList.h"
#include "platform/toolkit/Label.h"
#include "platform/toolkit/Shared.h"
#include "platform/toolkit/TextBox.h"
#include "platform/toolkit/Toolbar.h"

#include <QTextBrowser>
#include <QTreeWidget>

/// The guide: contents and search at the left, the page at the right, and a way back and forward.
class FinestraGuida : public toolkit::Form, public toolkit::Shared<FinestraGuida> {
    Q_OBJECT
public:
    FinestraGuida();

    /// Shows the guide on a page; on its first one if there is none of that id. It can be used beside every
    /// window, a modal one too. A missing help file is told in a box, and no window opens.
    static void mostra(const QString& id);

    /// The page shown.
    QString pagina() const;
    void apri(const QString& id);
    void indietro();
    void avanti();

protected:
    /// Raises runtime::FileNotFound without the help file.
    void onLoad() override;
    void onResize() override;
    void changeEvent(QEvent* event) override;

private:
    static constexpr qsizetype nessuna = -1;

    void Toolbar_ButtonClick(const QString& key);
    void cercaNellaGuida();
    void riempiIndice();
    void mostraCorrente();

    toolkit::Toolbar Toolbar;
    toolkit::ImageList ImageList1;
    toolkit::Label Label1;
    toolkit::TextBox cerca;
    QTreeWidget indice;
    QTextBrowser testo;

    std::vector<PaginaGuida> pagine;
    QStringList strada; ///< the pages seen, in order
    qsizetype posto = nessuna;
};
