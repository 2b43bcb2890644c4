#include "platform/toolkit/ParentForm.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace toolkit {

ParentForm::ParentForm(const QString& name) : Form(name), area_(new QMdiArea(client())) {
    area_->setObjectName(u"area"_s);
    area_->setBackground(palette().brush(QPalette::Mid));
    area_->setFrameShape(QFrame::NoFrame);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    auto* layout = new QVBoxLayout(client());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area_);
    new QShortcut(Qt::Key_F6, this, [this] { turnPage(1); });
    new QShortcut(Qt::SHIFT | Qt::Key_F6, this, [this] { turnPage(-1); });
}

void ParentForm::turnPage(int step) {
    const QList<QMdiSubWindow*> frames = area_->subWindowList();
    const qsizetype from = std::max<qsizetype>(frames.indexOf(area_->activeSubWindow()), 0);
    for (qsizetype i = 1; i < frames.size(); ++i) {
        QMdiSubWindow* frame = frames[(from + (i * step) + frames.size()) % frames.size()];
        if (frame->isVisible()) {
            area_->setActiveSubWindow(frame);
            return;
        }
    }
}

ParentForm::~ParentForm() = default;

QList<Form*> ParentForm::pages() const {
    QList<Form*> loaded;
    for (const QPointer<Form>& page : pages_)
        if (page && page->isLoaded())
            loaded.append(page);
    return loaded;
}

bool ParentForm::unloadPages() {
    const QList<Form*> open = pages();
    for (Form* page : open)
        if (!page->onQueryUnload())
            return false;
    for (Form* page : open) {
        page->onUnload();
        page->finishUnload();
    }
    pages_.removeIf([](const QPointer<Form>& page) { return page.isNull() || page->isGone(); });
    return true;
}

} // namespace toolkit
