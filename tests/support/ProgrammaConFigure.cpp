#include "support/ProgrammaConFigure.h"

#include "figures/AreeCorpo.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

#include <stdexcept>

using namespace Qt::StringLiterals;

ProgrammaConFigure::ProgrammaConFigure() {
    program.sql(u"INSERT INTO muscoli VALUES ('PET','Pettorali','Grande pettorale'),('VUO','Vuoto','');"
                "INSERT INTO figure_muscoli VALUES (1,'PET');"_s);
    const QStringList file{u"Q/001.JPG"_s, u"Q/002.JPG"_s, u"Q/003.JPG"_s, u"G/004.JPG"_s};
    for (int i = 0; i < file.size(); ++i) {
        immagine(file[i], coloreFigura(i + 1));
    }
    immagine(u"FolderXP.JPG"_s, Qt::yellow);
    immagine(u"BodyMap/corpo.JPG"_s, coloreMappa({}));
    for (const char* codice : codiciMuscoli()) {
        immagine(u"BodyMap/Corpo_%1.JPG"_s.arg(QLatin1String(codice)), coloreMappa(QLatin1String(codice)));
    }
}

void ProgrammaConFigure::figura(int id_fig, double numero, const QString& muscolo,
                                const QString& file) const {
    program.sql(u"INSERT INTO figure VALUES (%1,'QUIVR',%2,'images\\%3');"
                "INSERT INTO figure_muscoli VALUES (%1,'%4');"_s.arg(id_fig)
                    .arg(numero)
                    .arg(file, muscolo));
    immagine(file, coloreFigura(id_fig));
}

void ProgrammaConFigure::immagine(const QString& file, const QColor& colore) const {
    const QString percorso = program.folder() + u"/images/"_s + file;
    QImage quadro(16, 16, QImage::Format_RGB32);
    quadro.fill(colore);
    if (!QDir().mkpath(QFileInfo(percorso).path()) || !quadro.save(percorso, "JPG", 100)) {
        throw std::runtime_error("cannot write " + percorso.toStdString());
    }
}

QColor ProgrammaConFigure::coloreFigura(int id_fig) {
    return QColor::fromHsv(id_fig * 60 % 360, 200, 200);
}

QColor ProgrammaConFigure::coloreMappa(const QString& codice) {
    for (int i = 0; const char* uno : codiciMuscoli()) {
        ++i;
        if (codice == QLatin1String(uno)) {
            return QColor::fromHsv(i * 15, 255, 120);
        }
    }
    return Qt::white;
}
