#pragma once

#include "pictures/PackedPicture.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

namespace kaart {

/// Reads the thumbnails of a row of picture files, in their order, on a thread of its own, so that
/// windows stay alive however large the pictures are. Never more than a few finished ones wait for
/// the window system, so memory doesn't grow with the number of files.
class SheetBuilder : public QObject {
    Q_OBJECT

public:
    explicit SheetBuilder(QObject* parent = nullptr) : QObject(parent) {}
    ~SheetBuilder() override { stop(); }

    /// Begins with a new row of files. Of the old one nothing comes any more.
    void start(const QStringList& paths);
    /// Ends the work in hand without waiting for it.
    void stop();

signals:
    /// Kept: of a file that can't be read, the thumbnail is that of the last one that could, also
    /// of an earlier row; a blank square when there was none. `readable` tells.
    void thumbnailMade(int index, const kaart::PackedPicture& thumbnail, bool readable);
    /// After the last thumbnail; at once for an empty row.
    void finished();

private:
    struct Build;
    static void run(const std::shared_ptr<Build>& build);
    void take(const std::shared_ptr<Build>& build, int index,
              const std::optional<PackedPicture>& thumbnail);

    std::shared_ptr<Build> build_;
    PackedPicture former_;
};

} // namespace kaart
