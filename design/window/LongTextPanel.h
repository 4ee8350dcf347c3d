#pragma once

#include "design/session/Design.h"

#include <QObject>

namespace kaart {

/// Works the panel `Frame7`: the long text with its alignment, the text library, and the label
/// `TextLabel2`, which the left button drags and the release of the right button places; so do the
/// arrow keys and Enter.
class LongTextPanel : public QObject {
    Q_OBJECT

public:
    LongTextPanel(QWidget& window, Design& design);

    /// Mouse and keys of `TextLabel2`.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AlignKnop(int index);
    void align(TextAlignment alignment);
    void listTexts();
    void load(const QString& file);
    void askName();
    void BewaarTekst(const QString& name);
    void showName();
    void PlaatsKnop2();
    void placeText();
    bool pressKey(int key);

    QWidget& window_;
    Design& design_;
};

} // namespace kaart
