#pragma once

#include <QImage>
#include <QSize>
#include <QString>

class QLabel;

namespace kaart {

/// A drawing of the program, ":/art/<name>.svg", rendered in so many pixels on a transparent
/// ground, premultiplied. Fully transparent when there is no such drawing.
QImage renderArt(const QString& name, const QSize& pixels);

/// The same with hard edges: every pixel takes the colour that covers most of it, so that nothing
/// is blended. For drawings of flat colours.
QImage renderFlatArt(const QString& name, const QSize& pixels);

/// Fills a label of its final size with a drawing, sharp on any screen.
void showArt(QLabel& label, const QString& name);

} // namespace kaart
