#pragma once

#include "design/window/Canvas.h"

#include <QMainWindow>

#include <functional>

namespace kaart {

/// The menu entries that act on the whole design or tell about the screen: the edge, the colour
/// runs, the clipboard and the Help menu. A document that is missing or cannot be opened is told.
/// To be made before the tool buttons, one of which opens the pop-up of the colour runs.
class CanvasMenu : public QObject {
    Q_OBJECT

public:
    CanvasMenu(QMainWindow& window, Design& design, const Canvas& canvas);

private:
    /// Connects an entry, which does nothing during a drag on the canvas.
    void add(const QString& entry, const std::function<void()>& run);
    void addCommands();
    void addHelp();
    void Helpscreen();
    void ToonTekens();
    /// Connects an entry that shows a document of the folder Data; without the file it is disabled.
    void addDocument(const QString& entry, const QString& fileName);
    QString documentPath(const QString& fileName) const;
    void openDocument(const QString& fileName);
    void openPage(const QString& address);

    QMainWindow& window_;
    Design& design_;
    const Canvas& canvas_;
};

} // namespace kaart
