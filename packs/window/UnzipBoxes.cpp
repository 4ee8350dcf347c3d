#include "packs/window/UnzipBoxes.h"

#include "design/session/Algemeen.h"

#include <QInputDialog>
#include <QMessageBox>

namespace kaart {

UnzipBoxes::UnzipBoxes(QWidget& window, QProgressBar& bar)
    : window_(&window), bar_(&bar), wasVisible_(window.isVisible()) {
    clock_.restart();
}

std::optional<QString> UnzipBoxes::password(const QString& file) {
    QInputDialog box(window_);
    box.setWindowTitle(file);
    box.setLabelText(QStringLiteral("Please Enter The Password!"));
    const bool given = box.exec() == QDialog::Accepted;
    return given ? std::optional(box.textValue()) : std::nullopt;
}

ReplaceAnswer UnzipBoxes::replace(const QString& file) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Reribebin - File Already Exists!"),
                    QStringLiteral("Overwrite ") + file + QLatin1Char('?'),
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, window_);
    box.setTextFormat(Qt::PlainText);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return ReplaceAnswer::Yes;
    case QMessageBox::No:
        return ReplaceAnswer::No;
    default:
        return ReplaceAnswer::None;
    }
}

bool UnzipBoxes::service(qint64 done, qint64 total) {
    if (clock_.isDue()) {
        if (bar_ != nullptr && total > 0) {
            bar_->setValue(static_cast<int>(static_cast<double>(done) / static_cast<double>(total) *
                                            bar_->maximum()));
        }
        DoEvents();
    }
    return window_ != nullptr && (window_->isVisible() || !wasVisible_);
}

} // namespace kaart
