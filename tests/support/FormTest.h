#pragma once

#include "controls/ControlTable.h"
#include "design/session/Design.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Answer.h"
#include "tests/support/Drag.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QtWidgets>

inline QImage plain(int width, int height, kaart::ColorRef colour) {
    return kaart::PixelSurface(width, height, colour).Image();
}

/// A test of a window over a design. Its folder is both the program's and the pictures'.
template <typename Form>
class FormTest : public QObject {
protected:
    /// A new folder and a new design, which may have its files elsewhere, and no window yet.
    void begin(const QString& elsewhere = QString()) {
        form_.reset();
        root_ = std::make_unique<QTemporaryDir>();
        const QString files = elsewhere.isEmpty() ? root_->path() : elsewhere;
        design_ = std::make_unique<kaart::Design>(kaart::ProgramFolders{files, files});
    }
    static QString shippedFiles() { return qEnvironmentVariable("KAART_SOURCE") + "/data"; }
    /// Shows a new window, made of the design and the arguments.
    template <typename... Arguments>
    void open(Arguments&&... arguments) {
        form_ = std::make_unique<Form>(*design_, std::forward<Arguments>(arguments)...);
        form_->show();
    }

    QString path(const QString& name) const { return root_->filePath(name); }
    /// Writes a file into the folder; a picture as a BMP, whatever its name.
    void write(const QString& name, const QImage& picture) const {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QVERIFY(kaart::SavePicture(picture, path(name)));
    }
    void write(const QString& name, const QByteArray& content) const {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    template <typename Control = QWidget, typename... Index>
    Control& part(const char* name, Index... index) const {
        return kaart::control<Control>(*form_, name, index...);
    }
    QString text(const char* name) const { return part(name).property("text").toString(); }
    /// What a SurfaceView shows.
    QImage image(const char* name) const {
        return qvariant_cast<QImage>(part(name).property("Image"));
    }
    void press(const char* button) const { QTest::mouseClick(&part(button), Qt::LeftButton); }
    void clickLine(const char* list, int row) const {
        auto& view = part<QListWidget>(list);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          view.visualItemRect(view.item(row)).center());
    }
    void clickLine(const char* list, const QString& line) const {
        QVERIFY(lines(list).contains(line));
        clickLine(list, static_cast<int>(lines(list).indexOf(line)));
    }
    QStringList lines(const char* list) const {
        QStringList lines;
        for (const auto& item : part<QListWidget>(list).findItems(QString(), Qt::MatchContains)) {
            lines << item->text();
        }
        return lines;
    }

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<kaart::Design> design_;
    std::unique_ptr<Form> form_;
};
