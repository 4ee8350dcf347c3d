#pragma once

#include "design/session/Design.h"

#include <QLabel>

namespace kaart {

Qt::AlignmentFlag sideOf(TextAlignment alignment);

/// A label above the canvas that shows a hanging text, to the pixel as it will stand on the design
/// (without its effects). Keeps `inset` pixels free round the text.
class TextMark : public QLabel {
    Q_OBJECT

public:
    /// Hidden at first. The text is one of the design's, which outlives this object.
    TextMark(const Design& design, const TextOverlay& text, int inset, QWidget* canvas);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();

    const TextOverlay& text_;
    const int inset_;
};

} // namespace kaart
