#pragma once

#include <QLabel>

namespace toolkit {

/// A caption. When its text is longer than its place, it runs into the free room beside it (to the right, or
/// as the alignment asks); only if that is not enough, its font is stretched, down to 85 %.
class Label : public QLabel {
    Q_OBJECT
public:
    Label(const QString& name, const QString& caption, QWidget* parent);

    /// Places the label (twips). The place is remembered: a shorter text falls back to it.
    void setHome(double left, double top, double width, double height);

    QString caption() const { return text(); }
    void setCaption(const QString& caption);

    /// Fits the text again; done by itself on a change of caption and when the label is shown.
    void fit();
    /// True if the text shows whole.
    bool isWhole() const;

    static constexpr int narrowestStretch = 85; ///< percent

Q_SIGNALS:
    void clicked();

protected:
    void showEvent(QShowEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int textWidth(const QFont& font) const;
    /// What the wrapped text takes of a place this wide; pixels.
    QRect wrappedBox(int width) const;
    /// The widest rectangle around `home` that touches no visible neighbour: no sibling, and nothing that
    /// stands in front of the label's containers.
    QRect freeRoom() const;

    QRect home_;
};

/// Places `label` in twips, as the other controls; found before the general form.
void place(Label& label, double left, double top, double width, double height);

} // namespace toolkit
