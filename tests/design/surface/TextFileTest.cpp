#include "design/surface/TextFile.h"
#include "design/surface/WholeFile.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

#include <csignal>
#include <numeric>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utility>

using namespace kaart;

namespace {

// The most that a file may grow to from here on, as on a full disk; the former limit comes back.
rlim_t limitFileSize(rlim_t bytes) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlim_t before = std::exchange(limit.rlim_cur, bytes);
    setrlimit(RLIMIT_FSIZE, &limit);
    return before;
}

} // namespace

class TextFileTest : public QObject {
    Q_OBJECT

    QString path() const { return folder_.filePath("tekst.txt"); }

    QTemporaryDir folder_;

    using Letters = Rows<QByteArray, QString>;
    using Ends = Rows<QString, QStringList>;

private slots:
    void LettersAndBytesBelongTogether_data() {
        const Letters row;
        row("plain", "Kom je ook?", "Kom je ook?");
        row("latin", "\xE9\xEB\xD6\xA0\xFF", "éëÖ\u00A0ÿ");
        row("special", "\x80 5 \x93x\x94 \x97 \x9F\x8A", "€ 5 “x” — ŸŠ");
        row("unassigned", "\x81\x8D\x8F\x90\x9D", "\u0081\u008D\u008F\u0090\u009D");
    }
    void LettersAndBytesBelongTogether() {
        const auto [bytes, text] = Letters::now();
        QCOMPARE(fromWindows1252(bytes), text);
        QCOMPARE(toWindows1252(text), bytes);
    }

    void AllBytesSurviveReadingAndWriting() {
        QByteArray bytes(256, '\0');
        std::iota(bytes.begin(), bytes.end(), '\0');
        QCOMPARE(toWindows1252(fromWindows1252(bytes)), bytes);
    }

    void ForeignLettersBecomeOneQuestionMark() {
        QCOMPARE(toWindows1252("aЖb"), QByteArray("a?b"));
        QCOMPARE(toWindows1252("a😀b"), QByteArray("a?b"));
        QCOMPARE(toWindows1252(QString(QChar(0xD83D)) + QLatin1Char('b')), QByteArray("?b"));
        QCOMPARE(toWindows1252("\u0080\u0099"), QByteArray("??"));
    }

    void LinesEndInEveryWay_data() {
        const Ends row;
        row("nothing", "", {});
        row("three ends", "a\r\nb\na\rb", {"a", "b", "a", "b"});
        row("last end", "a\r\n", QStringList{"a"});
        row("empty lines", "\r\na\n\n", {"", "a", ""});
        row("two returns", "a\r\r\nb", {"a", "", "b"});
    }
    void LinesEndInEveryWay() {
        const auto [text, lines] = Ends::now();
        QCOMPARE(splitLines(text), lines);
    }

    void WrittenTextHasTheseBytes() {
        QVERIFY(writeTextFile(path(), "Één\r\nkaart"));
        QCOMPARE(readWholeFile(path(), 100), QByteArray("\xC9\xE9n\r\nkaart"));
        QCOMPARE(readTextFile(path()), "Één\r\nkaart");
    }

    void WhatCannotBeReadIsRefused() {
        QVERIFY(writeWholeFile(path(), QByteArray("12345")));
        QVERIFY(readWholeFile(path(), 5));
        QVERIFY(!readWholeFile(path(), 4));
        QVERIFY(!readTextFile(folder_.path()));
        QVERIFY(!readTextFile(folder_.filePath("geen")));
        QVERIFY(!readTextFile("/dev/zero"));
        QFile::resize(path(), (qint64{64} << 20) + 1);
        QVERIFY(!readTextFile(path()));
    }

    void FailedWriteSaysSo() {
        const QString pipe = folder_.filePath("pijp");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!writeWholeFile(pipe, QByteArray("nieuw")));
        QVERIFY(!writeWholeFile(folder_.path(), QByteArray("nieuw")));
        QVERIFY(!writeWholeFile(folder_.filePath("geen/map"), QByteArray("nieuw")));
    }

    void FullDiskLeavesTheOlderFile() {
        QVERIFY(writeWholeFile(path(), QByteArray("oud")));
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlim_t before = limitFileSize(1'000);
        const bool small = writeWholeFile(path(), QByteArray(2'000, 'n'));
        const bool large = writeWholeFile(path(), QByteArray(200'000, 'n'));
        limitFileSize(before);
        std::signal(SIGXFSZ, handler);
        QVERIFY(!small && !large);
        QCOMPARE(readWholeFile(path(), 100), QByteArray("oud"));
    }
};

KAART_TEST(TextFileTest)
#include "TextFileTest.moc"
