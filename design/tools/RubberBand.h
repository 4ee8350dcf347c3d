#pragma once

#include "design/session/Design.h"

#include <QPoint>

namespace kaart {

/// The rectangle that a drag stretches down and right from its start, with a label of its size.
/// What the label says is up to whoever drags.
void startRubberBand(Design& design, QPoint at);

/// Stretches Layer to a point, which is held at no less than the start. Layer includes both its
/// start and the point, so it is at least 1 x 1.
void stretchRubberBand(Design& design, QPoint at);

/// Puts two numbers on the label: " 12,8 ".
void labelRubberBand(Design& design, double x, double y);

} // namespace kaart
