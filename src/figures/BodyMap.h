#pragma once

#include <QList>
#include <QWidget>

namespace toolkit {
class PictureBox;
}

/// The muscle map: a picture of the body with invisible rectangles over the muscles. A click is told to the
/// window around the map, which answers with `changeMuscle`; the map changes nothing by itself. It takes no
/// focus. The inner controls keep place and size whatever the map's own size.
class BodyMap : public QWidget {
    Q_OBJECT
public:
    BodyMap(const QString& name, QWidget* parent);

    /// Shows the neutral map, silently. Raises if its picture cannot be read.
    void onLoad();
    /// Marks a muscle and plays the sound; comes back when it has ended. Raises, and stays silent, if the
    /// muscle has no picture.
    void changeMuscle(const QString& id_muscolo);
    /// Shows the picture at `percorso`; an empty text leaves the map as it is. Raises as above.
    void changeBackground(const QString& percorso);

    static constexpr int larghezza = 2850; ///< the map's own size, twips
    static constexpr int altezza = 3015;

Q_SIGNALS:
    /// A hot area was clicked; also when its muscle is marked already.
    void Change(const QString& id_muscolo);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    toolkit::PictureBox* Image1;
    QList<QWidget*> aree_; ///< the hot areas, the topmost first
    qint32 larghezzaPrecedente_;
    qint32 altezzaPrecedente_;
};
