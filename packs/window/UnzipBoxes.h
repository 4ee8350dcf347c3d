#pragma once

#include "design/session/FrameClock.h"
#include "packs/CodeModule.h"

#include <QPointer>
#include <QProgressBar>

namespace kaart {

/// The callbacks of unpacking as boxes above a window, with its progress in a bar. The message loop
/// has its turn now and then; when the window is closed meanwhile, the unpacking stops.
class UnzipBoxes : public CodeModule {
public:
    UnzipBoxes(QWidget& window, QProgressBar& bar);

    std::optional<QString> password(const QString& file) override;
    ReplaceAnswer replace(const QString& file) override;
    bool service(qint64 done, qint64 total) override;

private:
    QPointer<QWidget> window_;
    QPointer<QProgressBar> bar_;
    const bool wasVisible_;
    FrameClock clock_;
};

} // namespace kaart
