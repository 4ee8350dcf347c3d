#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace kaart {

/// The folders that designs live in; absolute paths without a slash at the end. An empty Pictures
/// folder means that there's none.
struct DesignFolders {
    QString program;  ///< holds Ontwerpen
    QString pictures; ///< receives the JPEG copies
};

/// A design is one picture file, Ontwerpen/<name>.bmp, an uncompressed Windows BMP. Its name is
/// kept nowhere else, and nothing but the picture's size says that it is a design.
QString designPath(const DesignFolders& folders, const QString& name);
/// The JPEG copy beside it, <pictures>/<name>.jpg, which is never read back.
QString jpegCopyPath(const DesignFolders& folders, const QString& name);

/// The designs' file names, sorted without regard to case. Empty when the folder isn't there.
QStringList designFileNames(const DesignFolders& folders);

/// Writes design and JPEG copy (quality 100) under a name, which is taken as it stands. Creates
/// Ontwerpen when needed. An older file of the name is replaced as a whole or stays whole. Kept:
/// the scratch file mydummy.bmp alone decides, true when it could be made; a refused name, of which
/// nothing is written, and a copy that fails aren't noticed.
bool saveDesign(const DesignFolders& folders, const QString& name, const QImage& picture);

/// "Liggend" for a design wider than it is high, else "Staand"; nothing for a picture that is no
/// design. Kept: the test is only that width and height in pixels add up to 1080.
std::optional<QString> designOrientation(const QSize& size);

} // namespace kaart
