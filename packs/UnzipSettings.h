#pragma once

#include <QString>

namespace kaart {

/// What can be set about unpacking, in the order in which the routine takes it. Flags are 0 or 1.
/// WriteToStdOut, ConvertCRtoCRLF, Verbose, CaseSensitive and Privilege are kept and change
/// nothing: entries become files byte by byte, and names always go with their case.
struct UnzipSettings {
    qint16 ExtractNewer = 0;      ///< of existing files only those that the archive has newer
    qint16 SpaceToUnderScore = 0; ///< blanks in names become "_"
    qint16 PromptOverwrite = 0;   ///< asks, where OverWriteFiles is 0
    qint32 MessageLevel = 2;      ///< below 2 each unpacked entry gives a line of text
    qint16 WriteToStdOut = 0;
    qint16 TestZip = 0;          ///< reads and checks everything, writes nothing
    qint32 ExtractList = 0;      ///< lists the members instead of unpacking them
    qint16 ExtractOnlyNewer = 0; ///< as ExtractNewer, and makes no new files
    qint16 DisplayComment = 0;   ///< gives the archive's comment instead of unpacking
    qint16 HonorDirectories = 1; ///< restores the stored folders; 0 puts all files side by side
    qint16 OverWriteFiles = 1;   ///< existing files are replaced without a question
    qint16 ConvertCRtoCRLF = 0;
    qint16 Verbose = 0;
    qint16 CaseSensitive = 1;
    qint32 Privilege = 0;
    QString ZipFileName = {};
    QString ExtractDir = {};
};

/// Where unpacking stops an archive that can't be meant well. What was unpacked until then stays.
struct UnzipLimits {
    qint64 Entries = 10'000;
    /// An archive may unpack to so many bytes, or to so many times its own size if that is more.
    qint64 Bytes = qint64(1) << 30;
    qint64 Ratio = 200;
};

/// How unpacking ended; the highest number that applies.
enum UnzipStatus : qint32 {
    UnzipFine = 0,
    UnzipLeftOut = 1,      ///< an entry was refused: its name, its kind, or something in its way
    UnzipDamaged = 2,      ///< an entry's bytes are not what they should be
    UnzipNoArchive = 9,    ///< no such file, or no zip archive
    UnzipTooMuch = 12,     ///< stopped at one of the limits
    UnzipDiskFull = 50,    ///< stopped: a file could not be written to its end
    UnzipStopped = 80,     ///< stopped by the service callback
    UnzipUnsupported = 81, ///< an entry is packed or encrypted in an unknown way
    UnzipNoPassword = 82   ///< an entry's password was wrong or not given
};

} // namespace kaart
