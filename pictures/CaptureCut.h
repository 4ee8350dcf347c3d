#pragma once

#include <QImage>
#include <QRect>

namespace kaart {

/// The rubber band from its start to the mouse, in pixels of the picture, both included. It grows
/// down and right only: a point before the start counts as the start in that direction. What
/// exceeds the picture is left out.
QRect captureBand(const QPoint& start, const QPoint& mouse, const QSize& picture);

/// That part of a picture of the screen, unscaled, with pixels of its own.
QImage captureCut(const QImage& screen, const QRect& band);

} // namespace kaart
