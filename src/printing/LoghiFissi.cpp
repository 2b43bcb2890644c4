#include "printing/LoghiFissi.h"

#include "printing/Stile.h"

#include <QFileInfo>

namespace sheet {

namespace {

void addLogo(Surface& surface, const QString& name, QSizeF size, const QString& resource) {
    Element& logo = surface.add(pictureBox(name, 0, QRectF({0, 0}, size)));
    if (QFileInfo::exists(resource))
        surface.load(logo, resource);
}

} // namespace

void addFixedLogos(Surface& surface) {
    addLogo(surface, QStringLiteral("LogoZentara"), {1755, 540}, QStringLiteral(":/loghi/zentara.svg"));
    addLogo(surface, QStringLiteral("logoQD"), {1350, 405}, QStringLiteral(":/loghi/quiverdeck.svg"));
}

} // namespace sheet
