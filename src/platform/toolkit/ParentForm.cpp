#include "platform/toolkit/ParentForm.h"

#include <QMdiArea>
#include <QVBoxLayout>

namespace toolkit {

ParentForm::ParentForm(const QString& name) : Form(name), area_(new QMdiArea(client())) {
    area_->setObjectName(QStringLiteral("area"));
    area_->setBackground(palette().brush(QPalette::Mid));
    area_->setFrameShape(QFrame::NoFrame);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    auto* layout = new QVBoxLayout(client());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area_);
}

ParentForm::~ParentForm() = default;

QList<Form*> ParentForm::pages() const {
    QList<Form*> loaded;
    for (const QPointer<Form>& page : pages_) {
        if (page && page->isLoaded()) {
            loaded.append(page);
        }
    }
    return loaded;
}

bool ParentForm::unloadPages() {
    const QList<Form*> open = pages();
    for (Form* page : open) {
        if (!page->onQueryUnload()) {
            return false;
        }
    }
    for (Form* page : open) {
        page->onUnload();
        page->finishUnload();
    }
    pages_.removeIf([](const QPointer<Form>& page) { return page.isNull() || page->isGone(); });
    return true;
}

} // namespace toolkit
