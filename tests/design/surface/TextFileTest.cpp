#include "design/surface/TextFile.h"
#include "design/surface/WholeFile.h"
#include "tests/support/Test.h"

#include <QFile>
#include <QTemporaryDir>

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

    QString path() const { return folder_.filePath(QStringLiteral("tekst.txt")); }

    QTemporaryDir folder_;

private slots:
    void LettersAndBytesBelongTogether_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QByteArray("Kom je ook?") << QStringLiteral("Kom je ook?");
        QTest::newRow("latin") << QByteArray("\xE9\xEB\xD6\xA0\xFF")
                               << QStringLiteral("éëÖ\u00A0ÿ");
        QTest::newRow("special") << QByteArray("\x80 5 \x93x\x94 \x97 \x9F\x8A")
                                 << QStringLiteral("€ 5 “x” — ŸŠ");
        QTest::newRow("unassigned") << QByteArray("\x81\x8D\x8F\x90\x9D")
                                    << QStringLiteral("\u0081\u008D\u008F\u0090\u009D");
    }
    void LettersAndBytesBelongTogether() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(fromWindows1252(bytes), text);
        QCOMPARE(toWindows1252(text), bytes);
    }

    void AllBytesSurviveReadingAndWriting() {
        QByteArray bytes(256, '\0');
        std::iota(bytes.begin(), bytes.end(), '\0');
        QCOMPARE(toWindows1252(fromWindows1252(bytes)), bytes);
    }

    void ForeignLettersBecomeOneQuestionMark() {
        QCOMPARE(toWindows1252(QStringLiteral("aЖb")), QByteArray("a?b"));
        QCOMPARE(toWindows1252(QStringLiteral("a😀b")), QByteArray("a?b"));
        QCOMPARE(toWindows1252(QString(QChar(0xD83D)) + QLatin1Char('b')), QByteArray("?b"));
        QCOMPARE(toWindows1252(QStringLiteral("\u0080\u0099")), QByteArray("??"));
    }

    void LinesEndInEveryWay_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        const QString a = QStringLiteral("a");
        const QString b = QStringLiteral("b");
        QTest::newRow("nothing") << QString() << QStringList();
        QTest::newRow("three ends") << QStringLiteral("a\r\nb\na\rb") << QStringList{a, b, a, b};
        QTest::newRow("last end") << QStringLiteral("a\r\n") << QStringList{a};
        QTest::newRow("empty lines") << QStringLiteral("\r\na\n\n") << QStringList{{}, a, {}};
        QTest::newRow("two returns") << QStringLiteral("a\r\r\nb") << QStringList{a, {}, b};
    }
    void LinesEndInEveryWay() {
        QFETCH(QString, text);
        QTEST(splitLines(text), "lines");
    }

    void WrittenTextHasTheseBytes() {
        QVERIFY(writeTextFile(path(), QStringLiteral("Één\r\nkaart")));
        QCOMPARE(readWholeFile(path(), 100), QByteArray("\xC9\xE9n\r\nkaart"));
        QCOMPARE(readTextFile(path()), QStringLiteral("Één\r\nkaart"));
    }

    void WhatCannotBeReadIsRefused() {
        QVERIFY(writeWholeFile(path(), QByteArray("12345")));
        QVERIFY(readWholeFile(path(), 5));
        QVERIFY(!readWholeFile(path(), 4));
        QVERIFY(!readTextFile(folder_.path()));
        QVERIFY(!readTextFile(folder_.filePath(QStringLiteral("geen"))));
        QVERIFY(!readTextFile(QStringLiteral("/dev/zero")));
        QFile::resize(path(), (qint64{64} << 20) + 1);
        QVERIFY(!readTextFile(path()));
    }

    void FailedWriteSaysSo() {
        const QString pipe = folder_.filePath(QStringLiteral("pijp"));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!writeWholeFile(pipe, QByteArray("nieuw")));
        QVERIFY(!writeWholeFile(folder_.path(), QByteArray("nieuw")));
        QVERIFY(!writeWholeFile(folder_.filePath(QStringLiteral("geen/map")), QByteArray("nieuw")));
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
