#pragma once

#include <QGroupBox>

namespace kaart {

/// A group of controls within a thin rounded line that its title interrupts. Its contents start
/// 18 pixels from the top.
class TitledFrame : public QGroupBox {
    Q_OBJECT

public:
    explicit TitledFrame(const QString& title, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kaart
