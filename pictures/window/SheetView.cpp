#include "pictures/window/SheetView.h"

#include "controls/Palette.h"
#include "pictures/ThumbnailSheet.h"

#include <QFrame>
#include <QMouseEvent>
#include <QPainter>

namespace kaart {

ThumbnailView::ThumbnailView(const PackedPicture& picture, QWidget* parent)
    : QWidget(parent), picture_(picture) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ThumbnailView::paintEvent(QPaintEvent*) {
    QPainter(this).drawImage(0, 0, Image());
}

SheetView::SheetView(QWidget* parent) : QWidget(parent) {
    setForeColor(*this, black);
}

void SheetView::clear() {
    for (const Cell& cell : cells_) {
        delete cell.image;
        delete cell.border;
    }
    cells_.clear();
    selected_ = -1;
    fit();
}

void SheetView::add(const PackedPicture& thumbnail, const QString& toolTip) {
    const int index = static_cast<int>(cells_.size());
    const QRect place = thumbnailPlace(index, thumbnail.size());
    auto* border = new QFrame(this);
    border->setObjectName(QStringLiteral("Border(%1)").arg(index));
    border->setFrameStyle(QFrame::Box | QFrame::Plain);
    border->setGeometry(outlinePlace(place));
    auto* image = new ThumbnailView(thumbnail, this);
    image->setObjectName(QStringLiteral("Image1(%1)").arg(index));
    image->setGeometry(place);
    image->setToolTip(toolTip);
    cells_ << Cell{image, border};
    fit();
    colourOutline(index);
    border->show();
    image->show();
}

void SheetView::select(int index) {
    const int former = selected_;
    selected_ = index;
    colourOutline(former);
    colourOutline(index);
}

void SheetView::colourOutline(int index) const {
    if (index >= 0 && index < cells_.size()) {
        setForeColor(*cells_[index].border, index == selected_ ? RGB(255, 255, 0) : black);
    }
}

QRect SheetView::placeOf(int index) const {
    return index >= 0 && index < cells_.size() ? cells_[index].border->geometry() : QRect();
}

int SheetView::indexAt(const QPoint& at) const {
    for (int index = 0; index < cells_.size(); ++index) {
        if (cells_[index].image->geometry().contains(at)) {
            return index;
        }
    }
    return -1;
}

void SheetView::mouseReleaseEvent(QMouseEvent* event) {
    const int index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index >= 0) {
        emit clicked(index);
    }
}

void SheetView::mouseDoubleClickEvent(QMouseEvent* event) {
    const int index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index >= 0) {
        emit doubleClicked(index);
    }
}

void SheetView::fit() {
    resize(width(),
           std::max(parentWidget()->height(), sheetHeight(static_cast<int>(cells_.size()))));
}

} // namespace kaart
