#pragma once

#include "controls/FolderLists.h"
#include "controls/platform/Wallpaper.h"
#include "pictures/SheetBuilder.h"

#include <QDialog>
#include <QImage>

#include <functional>

namespace kaart {

class Design;
class SheetView;

/// "Eigen afbeelding invoegen": browses the disk, shows a folder as a sheet of thumbnails or one
/// picture large, and makes the picture the whole design, stretched to it and in the orientation
/// of the picture. The sheet grows while the window is used; another folder ends it at once.
///
/// Kept: a file that can't be read counts as the one read before it, for its thumbnail and for
/// taking over; so does no selection at all. Nothing selected, the last picture of the sheet so far
/// is taken. Where no picture was ever read the design stays as it is.
class Dialogform : public QDialog {
    Q_OBJECT

public:
    using Wallpaper = std::function<void(QWidget* parent, const QImage& picture)>;
    /// `wallpaper` is what asks for and sets the desktop's background.
    explicit Dialogform(Design& design, QWidget* parent = nullptr,
                        Wallpaper wallpaper = BewaarBureaublad);

    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void buildViews();
    void buildMenus();
    void dress();
    void connectControls();
    void showFolder(const QString& folder);
    void addThumbnail(int index, const PackedPicture& thumbnail, bool readable);
    void endSheet();
    void fitScroll();
    void pick();
    void showLarge(const QString& path);
    void bringIntoView(int index);
    void switchView();
    bool loadOrgineel(const QString& path);
    void takeOver();
    void makeWallpaper();
    QString pathOf(const QString& name) const;

    Design& design_;
    Wallpaper wallpaper_;
    FolderLists* folders_ = nullptr;
    SheetView* sheet_ = nullptr;
    SheetBuilder builder_;
    int count_ = 0;      ///< files in the folder
    int selected_ = -1;  ///< line and thumbnail
    QString formerPath_; ///< the file that was read last
};

} // namespace kaart
