#pragma once

#include "pictures/PackedPicture.h"

#include <QList>
#include <QWidget>

class QFrame;

namespace kaart {

/// One thumbnail, an element of Image1. The mouse goes through to the sheet.
class ThumbnailView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QImage Image READ Image)

public:
    ThumbnailView(const PackedPicture& picture, QWidget* parent);
    QImage Image() const { return picture_.unpack(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PackedPicture picture_;
};

/// The sheet of thumbnails, Picture1: elements of Image1 with outlines Border, five to a row. It
/// grows with them and is never lower than its parent.
class SheetView : public QWidget {
    Q_OBJECT

public:
    explicit SheetView(QWidget* parent);

    void clear();
    void add(const PackedPicture& thumbnail, const QString& toolTip);
    /// Turns the outline of one thumbnail yellow and that of the former one black. -1 is none; one
    /// that isn't there yet gets its colour when it comes.
    void select(int index);
    /// A thumbnail with its outline, in pixels of the sheet; empty for one that isn't there.
    QRect placeOf(int index) const;

signals:
    void clicked(int index);
    void doubleClicked(int index);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    int indexAt(const QPoint& at) const;
    void colourOutline(int index) const;
    void fit();

    struct Cell {
        ThumbnailView* image;
        QFrame* border;
    };
    QList<Cell> cells_;
    int selected_ = -1;
};

} // namespace kaart
