#include "support/Pictures.h"

#include "figures/AreeCorpo.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

#include <stdexcept>

using namespace Qt::StringLiterals;

void givePictures(const ScratchProgram& program) {
    for (const QString& row : program.rows(u"SELECT max(id_fig), substr(figura, 8) FROM figure GROUP BY 2"_s))
        givePicture(program, row.section(u'|', 1), colourOfFigure(row.section(u'|', 0, 0).toInt()));
    givePicture(program, u"FolderXP.JPG"_s, Qt::yellow);
    givePicture(program, u"BodyMap/corpo.JPG"_s, colourOfMap({}));
    for (const QString code : codiciMuscoli())
        givePicture(program, u"BodyMap/Corpo_%1.JPG"_s.arg(code), colourOfMap(code));
}

void givePicture(const ScratchProgram& program, QString file, const QColor& colour, QSize size) {
    const QString path = program.folder() + u"/images/"_s + file.replace(u'\\', u'/');
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    if (!QDir().mkpath(QFileInfo(path).path()) || !picture.save(path, nullptr, 100))
        throw std::runtime_error("cannot write " + path.toStdString());
}

void addFigure(const ScratchProgram& program, int id_fig, double numero, const QString& muscolo,
               const QString& file) {
    program.sql(u"INSERT INTO figure VALUES (%1,'QUIVR',%2,'images\\%3');"
                "INSERT INTO figure_muscoli VALUES (%1,'%4')"_s.arg(id_fig)
                    .arg(numero)
                    .arg(file, muscolo));
    givePicture(program, file, colourOfFigure(id_fig));
}

QColor colourOfFigure(int id_fig) {
    return QColor::fromHsv(id_fig * 60 % 360, 200, 200);
}

QColor colourOfMap(const QString& code) {
    return code.isEmpty() ? QColor(Qt::white) : QColor::fromHsv(qChecksum(code.toLatin1()) % 360, 255, 120);
}

bool alike(const QColor& a, const QColor& b) {
    return qAbs(a.red() - b.red()) < 12 && qAbs(a.green() - b.green()) < 12 && qAbs(a.blue() - b.blue()) < 12;
}
