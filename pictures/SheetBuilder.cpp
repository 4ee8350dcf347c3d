#include "pictures/SheetBuilder.h"

#include "design/surface/PictureGate.h"
#include "pictures/ThumbnailSheet.h"

#include <QThreadPool>

#include <condition_variable>
#include <mutex>

namespace kaart {

namespace {

constexpr int mostWaiting = 4;

std::optional<PackedPicture> readThumbnail(const QString& path) {
    const auto picture = loadStretched(path, thumbnailSize);
    return picture ? std::optional(PackedPicture(*picture)) : std::nullopt;
}

PackedPicture blank() {
    QImage square(thumbnailSize({1, 1}), QImage::Format_RGB32);
    square.fill(Qt::lightGray);
    return PackedPicture(square);
}

} // namespace

/// What the builder and the thread share.
struct SheetBuilder::Build {
    Build(QStringList files, SheetBuilder* builder) : paths(std::move(files)), receiver(builder) {}

    const QStringList paths;
    std::mutex mutex;
    std::condition_variable changed;
    SheetBuilder* receiver; ///< null when nobody wants the rest
    int waiting = 0;
};

void SheetBuilder::start(const QStringList& paths) {
    stop();
    if (paths.isEmpty()) {
        emit finished();
        return;
    }
    build_ = std::make_shared<Build>(paths, this);
    QThreadPool::globalInstance()->start([build = build_] { run(build); });
}

void SheetBuilder::stop() {
    if (build_) {
        const std::scoped_lock lock(build_->mutex);
        build_->receiver = nullptr;
        build_->changed.notify_all();
    }
    build_.reset();
}

void SheetBuilder::run(const std::shared_ptr<Build>& build) {
    for (int index = 0; index < build->paths.size(); ++index) {
        {
            std::unique_lock lock(build->mutex);
            build->changed.wait(
                lock, [&] { return build->receiver == nullptr || build->waiting < mostWaiting; });
            if (build->receiver == nullptr) {
                return;
            }
        }
        const auto thumbnail = readThumbnail(build->paths[index]);
        const std::scoped_lock lock(build->mutex);
        if (build->receiver == nullptr) {
            return;
        }
        ++build->waiting;
        // Under the lock: so the receiver still lives.
        QMetaObject::invokeMethod(
            build->receiver,
            [receiver = build->receiver, build, index, thumbnail] {
                receiver->take(build, index, thumbnail);
            },
            Qt::QueuedConnection);
    }
}

void SheetBuilder::take(const std::shared_ptr<Build>& build, int index,
                        const std::optional<PackedPicture>& thumbnail) {
    if (build != build_) {
        return; // of a row that was ended
    }
    {
        const std::scoped_lock lock(build->mutex);
        --build->waiting;
        build->changed.notify_all();
    }
    if (thumbnail) {
        former_ = *thumbnail;
    } else if (former_.size().isEmpty()) {
        former_ = blank();
    }
    emit thumbnailMade(index, former_, thumbnail.has_value());
    // A listener may have begun another row.
    if (build == build_ && index + 1 == build->paths.size()) {
        emit finished();
    }
}

} // namespace kaart
