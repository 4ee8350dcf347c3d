#include "packs/CGUnzipFiles.h"
#include "design/surface/WholeFile.h"
#include "tests/packs/Archives.h"
#include "tests/support/Rows.h"

#include <QtEndian>

using namespace kaart;

namespace {

/// A user who has thought out all answers beforehand.
class Planned : public CodeModule {
public:
    QStringList Passwords;
    QList<ReplaceAnswer> Answers;
    QStringList Asked;
    int Pieces = 1000; ///< to go before the work is stopped

    std::optional<QString> password(const QString& file) override {
        Asked << file;
        return Passwords.isEmpty() ? std::nullopt : std::optional(Passwords.takeFirst());
    }
    ReplaceAnswer replace(const QString& file) override {
        Asked << file;
        return Answers.takeFirst();
    }
    bool service(qint64 done, qint64 total) override { return done <= total && --Pieces > 0; }
};

} // namespace

class CGUnzipFilesTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Planned> user_;

    QString zip() const { return root_->filePath("pak.zip"); }
    QString in(const QString& name = {}) const { return root_->filePath("in/" + name); }
    QByteArray bytesOf(const QString& path) const {
        return readWholeFile(path, 1 << 20).value_or("?");
    }
    /// All that lies in the root but the archive, folders with what they hold: "in/a.bmp=aa".
    QString tree() const {
        QStringList files;
        QDirIterator all(root_->path(), QDir::Files | QDir::Hidden | QDir::System,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString path = all.next();
            if (path != zip() && !all.fileInfo().isSymLink()) {
                files << QDir(root_->path()).relativeFilePath(path) + '=' + bytesOf(path);
            }
        }
        files.sort();
        return files.join(' ');
    }
    qint32 unzip(const UnzipSettings& settings = {}, const UnzipLimits& limits = {}) const {
        CGUnzipFiles unzip(*user_, limits);
        static_cast<UnzipSettings&>(unzip) = settings;
        return unzip.Unzip(zip(), in());
    }

    using Asking = Rows<zip_uint16_t, QStringList, QString, bool>;
    using Setting = Rows<UnzipSettings, QString>;

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        user_ = std::make_unique<Planned>();
        QVERIFY(QDir(root_->path()).mkpath("in") && QDir(root_->path()).mkpath("elders"));
    }

    void NoEntryLeavesTheFolder_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("place");
        for (const char* name :
             {"../x",       "a/../../x", "a/..", "/x",     "..\\x",  "\\x",         "\\\\host\\x",
              "C:\\x",      "c:x",       "x:y",  ".. /x",  "... /x", "x.",          "nul",
              "a/Com1.bmp", "LPT9 .txt", "b\tc", "link/x", "naar",   "links/diep/x"}) {
            QTest::newRow(name) << QByteArray(name) << QString();
        }
        QTest::newRow("back slashes") << QByteArray("a\\b.bmp") << "a/b.bmp";
        QTest::newRow("empty parts") << QByteArray("./a//b/./c") << "a/b/c";
        QTest::newRow("nearly") << QByteArray("..a/com10/nul_") << "..a/com10/nul_";
        QTest::newRow("cp437") << QByteArray("caf\x82/\x99.bmp") << QString("café/Ö.bmp");
        QTest::newRow("UTF-8") << QByteArray("café/Ω.bmp") << QString("café/Ω.bmp");
        QTest::newRow("255 letters") << QByteArray(255, 'l') << QString(255, 'l');
    }
    void NoEntryLeavesTheFolder() {
        QFETCH(QByteArray, name);
        QFETCH(QString, place);
        QVERIFY(QFile::link(root_->filePath("elders"), in("link")));
        QVERIFY(QFile::link(root_->filePath("elders/doel"), in("naar")));
        QVERIFY(QFile::link("../in", in("links")));
        const bool old = QTest::currentDataTag() == QByteArray("cp437");
        const zip_flags_t encoding = old ? ZIP_FL_ENC_CP437 : ZIP_FL_ENC_UTF_8;
        writeZip(zip(), {{name, "aa", ZIP_EM_NONE, 0100644, encoding}, {"slot", "z"}});
        QCOMPARE(unzip(), place.isEmpty() ? UnzipLeftOut : UnzipFine);
        QStringList files{"in/slot=z"};
        if (!place.isEmpty()) {
            files.prepend("in/" + place + "=aa");
        }
        files.sort();
        QCOMPARE(tree(), files.join(' '));
    }

    void LinksAndDevicesAreNotMade() {
        writeZip(zip(), {{"wijzer", "../elders", ZIP_EM_NONE, 0120777},
                         {"wijzer/x", "aa"},
                         {"pijp", "", ZIP_EM_NONE, 0010644}});
        QCOMPARE(unzip(), UnzipLeftOut);
        QCOMPARE(tree(), "in/wijzer/x=aa"); // now an ordinary folder
    }

    void LimitsStopAndTheRestIsKept() {
        const QString two = "in/a=aa in/b=bbb";
        const QString all = two + " in/c=cccc";
        writeZip(zip(), {{"a", "aa"}, {"b", "bbb"}, {"c", "cccc"}});
        const auto left = [&](const UnzipLimits& limits) {
            const qint32 status = unzip({}, limits);
            const QString found = tree();
            QDir(in()).removeRecursively();
            return status == (found == all ? UnzipFine : UnzipTooMuch) ? found : "wrong status";
        };
        QCOMPARE(left({.Entries = 2}), two);
        QCOMPARE(left({.Bytes = 8, .Ratio = 0}), two);
        QCOMPARE(left({.Entries = 3, .Bytes = 9, .Ratio = 0}), all);
        QCOMPARE(left({.Bytes = 1, .Ratio = 1}), all);
    }

    void LyingSizesLeaveNoFile() {
        writeZip(zip(), {{"a", QByteArray(5000, 'a')}, {"b", "bbb"}});
        const QByteArray honest = bytesOf(zip());
        const qsizetype size = honest.indexOf("PK\1\2") + 24;
        for (const quint32 lie : {0U, 1U, 4999U, 5001U, 0x7FFFFFFFU}) {
            QByteArray bytes = honest;
            qToLittleEndian(lie, bytes.data() + size);
            QVERIFY(writeWholeFile(zip(), bytes));
            const UnzipStatus wanted = lie > 9999 ? UnzipTooMuch : UnzipDamaged;
            QCOMPARE(unzip(), wanted);
            QCOMPARE(tree(), wanted == UnzipTooMuch ? QString() : QString("in/b=bbb"));
            QFile::remove(in("b"));
        }
    }

    void DamageAtAnyByteLeavesWholeFilesOrNone() {
        writeZip(zip(), {{"a", "aaaabaaaabaaaabaaaabaaaab"}, {"b", "bbb", ZIP_EM_AES_128}});
        const QByteArray whole = bytesOf(zip());
        for (qsizetype at = 0; at < whole.size() * 2; ++at) {
            QByteArray bytes = at < whole.size() ? whole.left(at) : whole;
            if (at >= whole.size()) {
                bytes[at - whole.size()] = char(~bytes[at - whole.size()]);
            }
            QVERIFY(writeWholeFile(zip(), bytes));
            user_->Passwords = QStringList{"geheim"};
            const qint32 status = unzip();
            QVERIFY(at >= whole.size() || status == UnzipNoArchive);
            const QString left = tree();
            for (const QString& file : left.split(' ', Qt::SkipEmptyParts)) {
                QVERIFY2(file.startsWith("in/") &&
                             (file.endsWith("=aaaabaaaabaaaabaaaabaaaab") || file.endsWith("=bbb")),
                         qPrintable(QString::number(at) + left));
            }
            QVERIFY(QDir(in()).removeRecursively());
        }
    }

    void PasswordsAreAskedUntilRightAndKept_data() {
        const Asking row;
        for (const int tried : {ZIP_EM_TRAD_PKWARE, ZIP_EM_AES_128, ZIP_EM_AES_256}) {
            const auto method = zip_uint16_t(tried);
            const QByteArray name = QByteArray::number(method, 16);
            row(name + " right", method, {"geheim"}, "a", true);
            row(name + " wrong first", method, {"Geheim", "", "geheim"}, "aaa", true);
            row(name + " thrice wrong", method, {"1", "2", "3", "4", "5", "6"}, "aaabbb", false);
            row(name + " cancelled", method, {}, "a", false);
        }
    }
    void PasswordsAreAskedUntilRightAndKept() {
        const auto [encryption, answers, asked, right] = Asking::now();
        writeZip(zip(), {{"a", "aa", encryption}, {"b", "bbb", encryption}, {"c", "open"}});
        user_->Passwords = answers;
        QCOMPARE(unzip(), right ? UnzipFine : UnzipNoPassword);
        QCOMPARE(user_->Asked.join(""), asked);
        QCOMPARE(tree(), right ? "in/a=aa in/b=bbb in/c=open" : "in/c=open");
    }

    void SettingsDoWhatTheyPromise_data() {
        const Setting row;
        row("defaults", {}, "in/m 1/a=new in/old=new");
        row("keep", {.OverWriteFiles = 0}, "in/m 1/a=new in/old=mine");
        row("newer", {.ExtractNewer = 1}, "in/m 1/a=new in/old=mine");
        row("only newer", {.ExtractOnlyNewer = 1}, "in/old=mine");
        row("flat", {.HonorDirectories = 0}, "in/a=new in/old=new");
        row("blanks", {.SpaceToUnderScore = 1}, "in/m_1/a=new in/old=new");
        row("test", {.TestZip = 1}, "in/old=mine");
        row("16 bits", {.ExtractList = 0x10000}, "in/m 1/a=new in/old=new");
    }
    void SettingsDoWhatTheyPromise() {
        const auto [settings, expected] = Setting::now();
        QVERIFY(writeWholeFile(in("old"), "mine"));
        writeZip(zip(), {{"m 1/", ""}, {"m 1/a", "new"}, {"old", "new"}});
        QCOMPARE(unzip(settings), UnzipFine);
        QCOMPARE(tree(), expected);
        QCOMPARE(user_->message() + user_->Asked.join(""), QString());
    }

    void ReplaceQuestionHasThreeAnswers() {
        QList<Packed> entries;
        for (const char* name : {"a", "b", "c", "d"}) {
            QVERIFY(writeWholeFile(in(name), "mine"));
            entries << Packed{name, "new"};
        }
        writeZip(zip(), entries);
        user_->Answers = {ReplaceAnswer::No, ReplaceAnswer::Yes, ReplaceAnswer::None};
        QCOMPARE(unzip({.PromptOverwrite = 1, .OverWriteFiles = 0}), UnzipFine);
        QCOMPARE(user_->Asked.join(""), "abc");
        QCOMPARE(tree(), "in/a=mine in/b=new in/c=mine in/d=mine");
    }

    void ListingAndMessagesAreCollected() {
        writeZip(zip(), {{"Frames/a.bmp", "aa"}, {"../x", "xxx"}});
        QCOMPARE(unzip({.ExtractList = 1}), UnzipFine);
        QCOMPARE(user_->message(),
                 "Filename:                                       Size  Date      Time\r\n"
                 "Frames/a.bmp                                       2  02/03/20  04:05\r\n"
                 "../x                                               3  02/03/20  04:05\r\n");
        QCOMPARE(tree(), QString());
        QCOMPARE(unzip({.MessageLevel = 0}), UnzipLeftOut);
        QCOMPARE(user_->message(), "Frames/a.bmp\r\n../x: refused\r\n");
        QCOMPARE(QFileInfo(in("Frames/a.bmp")).lastModified(), QDateTime({2020, 2, 3}, {4, 5, 6}));
    }

    void StoppingLeavesNoHalfFile() {
        writeZip(zip(), {{"a", "aa"}, {"b", QByteArray(600'000, 'b')}, {"c", "c"}});
        user_->Pieces = 4; // "a", its end, and one piece of "b" more
        QCOMPARE(unzip(), UnzipStopped);
        QCOMPARE(tree(), "in/a=aa");
    }
};

KAART_TEST(CGUnzipFilesTest)
#include "CGUnzipFilesTest.moc"
