#include "printing/LoghiFissi.h"

#include "artwork/logos/Loghi.h"
#include "printing/Stile.h"

using namespace Qt::StringLiterals;

namespace sheet {

namespace {

void addLogo(Surface& surface, const QString& name, QSizeF size, artwork::Logo which) {
    Element logo = pictureBox(name, 0, QRectF({0, 0}, size));
    logo.picture = Picture::drawn([which](QSize pixels) { return artwork::logo(which, pixels); });
    surface.add(std::move(logo));
}

} // namespace

void addFixedLogos(Surface& surface) {
    addLogo(surface, u"LogoZentara"_s, {1755, 540}, artwork::Logo::Zentara);
    addLogo(surface, u"logoQD"_s, {1350, 405}, artwork::Logo::QuiverDeck);
}

} // namespace sheet
