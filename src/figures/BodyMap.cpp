#include "figures/BodyMap.h"

#include "figures/AreeCorpo.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Sound.h"
#include "platform/toolkit/PictureBox.h"
#include "platform/toolkit/Twips.h"

#include <QFrame>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr auto proprietaCodice = "codice";

} // namespace

BodyMap::BodyMap(const QString& name, QWidget* parent)
    : QWidget(parent), Image1(new toolkit::PictureBox(u"Image1"_s, this)) {
    setObjectName(name);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(u"Mappa dei gruppi muscolari"_s);
    resize(toolkit::toPixels(larghezza), toolkit::toPixels(altezza));
    larghezzaPrecedente_ = width();
    altezzaPrecedente_ = height();
    toolkit::place(*Image1, 0, 0, larghezzaMappa, altezzaMappa);
    const auto aree = areeCorpo();
    for (const AreaCorpo& area : aree) {
        auto* etichetta = new QFrame(this);
        etichetta->setObjectName(u"%1_%2"_s.arg(QLatin1String(area.nome)).arg(area.indice));
        etichetta->setProperty(proprietaCodice, QString::fromLatin1(area.codice));
        etichetta->setFrameShape(QFrame::Box); // seen in the design only
        toolkit::place(*etichetta, area.left, area.top, area.width, area.height);
        etichetta->installEventFilter(this);
        if (!aree_.isEmpty())
            etichetta->stackUnder(aree_.last()); // where two overlap, the earlier one takes the click
        aree_.append(etichetta);
    }
    Image1->lower();
}

void BodyMap::onLoad() {
    Image1->load(host::joined(u"\\images\\BodyMap\\corpo.JPG"_s));
    const QList<QFrame*> controlli = findChildren<QFrame*>();
    for (QFrame* controllo : controlli)
        controllo->setFrameShape(QFrame::NoFrame);
}

void BodyMap::changeMuscle(const QString& id_muscolo) {
    changeBackground(host::joined(u"\\images\\BODYMAP\\Corpo_"_s + id_muscolo + u".JPG"_s));
    host::playAndWait(host::resolve(host::joined(u"\\images\\bodymap\\suono.wav"_s)));
}

void BodyMap::changeBackground(const QString& percorso) {
    if (percorso.isEmpty())
        return;
    Image1->load(percorso);
    Image1->repaint(); // seen while the sound plays
}

bool BodyMap::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress)
        return true; // takes the press, so that the release comes here too
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* area = qobject_cast<QWidget*>(watched);
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (area != nullptr && mouse->button() == Qt::LeftButton && area->rect().contains(mouse->pos()))
            Q_EMIT Change(area->property(proprietaCodice).toString());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void BodyMap::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // The size is kept, the controls stay as they are: a larger map has a margin at the right and below.
    larghezzaPrecedente_ = width();
    altezzaPrecedente_ = height();
}
