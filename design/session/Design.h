#pragma once

#include "design/session/Overlays.h"
#include "design/session/ProgramFolders.h"
#include "design/session/Progress.h"
#include "design/session/TextStyle.h"
#include "design/surface/PixelSurface.h"
#include "puzzle/PuzzleResult.h"

#include <QObject>
#include <QString>

#include <functional>

namespace kaart {

/// The design in hand: its surfaces, the module variables by their own names, and the one gate
/// through which the design changes. The only instance is handed to all windows by reference; what
/// a window shows of it follows from the signals. Colours and sizes are in the units of the
/// surface: ColorRef and pixels.
class Design : public QObject {
    Q_OBJECT

public:
    explicit Design(ProgramFolders folders, QObject* parent = nullptr);

    const ProgramFolders Folders;

    // The surfaces. Pic changes only through the gate below.
    const PixelSurface& Pic() const { return pic_; }
    const PixelSurface& UndoPic() const { return undoPic_; }
    PixelSurface OrgineelPic; ///< work copy
    PixelSurface ClipPic;     ///< the floating picture
    PixelSurface LijstPic;    ///< the chosen frame file, 80 x 80

    // The module variables.
    int TekenModus = 999;
    bool Gewijzigd = false;
    double BeginX = 0;
    double BeginY = 0;
    double VorigeX = 0;
    double VorigeY = 0;
    int LijnDikte = 2;
    int GomGrootte = 20;
    int RasterAfstand = 10;
    int RondeHoek = 30;
    bool TekstHangt = false;
    double SelectieBreedte = 0;
    double SelectieHoogte = 0;
    QString OntwerpRichting; ///< "Staand" or "Liggend"
    QString OntwerpNaam;     ///< empty for a new design
    QString OntwerpPad;
    QString pictureFolder; ///< where the user last looked for pictures
    QString TekstNaam = QStringLiteral("Default");
    int RandSoort = 0;
    double MargeLinks = 0; ///< margins in units of 30 twips
    double MargeBoven = 0;
    double MargeRechts = 0;
    int MargeOnder = 0;
    double GrijpX = 0;
    int GrijpY = 0;
    bool FilterBusy = false; ///< a filter on the array path is running
    int FilterPercent = 0;   ///< how far it has come
    PuzzleResult Puzzel;     ///< the puzzle's choice, and its last game

    // What the option panels say.
    ColorRef Tekenkleur = RGB(60, 60, 60);
    ColorRef Vulkleur = RGB(200, 250, 0);
    bool GummenInVulkleur = false; ///< Check3
    bool VormKnippen = false;      ///< Check2
    TextStyle Tekst;

    // Marks above the canvas; they never reach Image.
    Overlay Layer;
    Overlay Gom;
    LabelOverlay XYcor;
    TextOverlay TextLabel;  ///< the text line, which follows the mouse
    TextOverlay TextLabel2; ///< the long text, which is dragged

    Progress Voortgang; ///< of long work

    using Change = std::function<void(PixelSurface& pic)>;
    /// The gate: undo copy, the change, Gewijzigd, refresh.
    void change(const Change& change);
    /// The gate within a drag, whose press has taken the undo copy already.
    void changeFurther(const Change& change);
    /// UndoPic.Picture := Pic.Image.
    void takeUndo();
    /// The pen width that Pic draws with until the next call, pixels.
    void setDrawWidth(int pixels) { pic_.DrawWidth = pixels; }
    /// "Ongedaan Maken": Pic.Picture := UndoPic.Image. A second time gives the same picture.
    void EditUndo();
    /// Empties design and name; kept: no undo copy is taken and Gewijzigd stays as it is.
    void FileNew();
    /// The gate for a picture in the design's place: turns as ZetRichting(kind) does and stretches
    /// the picture over the whole canvas. The undo copy is the design before, cut off where the
    /// turned canvas ends.
    void replace(const QImage& picture, int kind);
    /// Takes a loaded picture as the unchanged design and as its undo copy.
    void open(const QImage& picture, const QString& name);

    /// 1 portrait, anything else landscape: clears and resizes the design and its undo copy,
    /// without asking and without undo.
    void ZetRichting(int kind);
    bool isLandscape() const;

    /// Shows a hint; the rest state is ToonInfo("Informatie...", 0, 90, 0).
    void ToonInfo(const QString& text, int red, int green, int blue);
    void ToonInfo(); ///< the rest state

    /// Sets TekenModus, and tells who shows the tool in hand.
    void setTekenModus(int mode);
    void setTekenkleur(ColorRef colour);
    void setVulkleur(ColorRef colour);
    /// To be called after one of these marks was changed.
    void showOverlays() { emit overlaysChanged(); }
    void showFloat() { emit floatChanged(); }
    /// To be called after Voortgang was changed.
    void showProgress() { emit progressChanged(); }
    /// Pic.Refresh: shows what was drawn since the last time.
    void Refresh();

signals:
    void picChanged(const QRect& pixels);
    void hintChanged(const QString& text, kaart::ColorRef colour);
    void orientationChanged();
    void overlaysChanged();
    void floatChanged();
    /// A selection rectangle stands in Layer, for its commands.
    void selectionMade();
    void coloursChanged();
    void toolChanged();
    void progressChanged();

private:
    PixelSurface pic_;
    PixelSurface undoPic_;
};

} // namespace kaart
